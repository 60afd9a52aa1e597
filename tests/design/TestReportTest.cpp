#include "design/TestReport.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "design/DesignBuilder.h"
#include "design/ReportNotes.h"
#include "design/SectionPicture.h"
#include "design/Verdict.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

TestReport ReportOf(Session& session, const MemberEntry& entry)
{
    Calculate(session);
    Tested(session, entry);
    return MakeTestReport(session);
}

TEST(TestReport, ShowsAJoist)
{
    // 12 ft at 100 plf, 60 live, weightless. 2x12 DF-L #2: M 1800, S required 24.00 of 31.64; V 600,
    // area 5.00 of 16.88; deflection 0.013 * 144^3 * 600 / (1.6e6 * 177.98) = 0.0818 dead 480 lb * 1.5 =
    // 0.0981, live 0.0981... each
    Session session = PlainSession();
    session.Problem.NoWeight = true;
    const TestReport report = ReportOf(session, Member("2x", "12", "DF-L #2"));
    EXPECT_EQ(report.DisplayChoice, "2x  12 DF-L #2");
    EXPECT_EQ(report.GradeLabel, "NDS 2018 Values");
    EXPECT_EQ(report.Modifiers, "");
    EXPECT_EQ(report.Label5, "Actual Size is  1-1/2 x 11-1/4");
    EXPECT_EQ(report.SectionReq, "24.00");
    EXPECT_EQ(report.SectionProp, "31.64");
    EXPECT_EQ(report.SecPercent, "76%");
    EXPECT_EQ(report.ShearReq, "5.00");
    EXPECT_EQ(report.ShearProp, "16.88");
    EXPECT_EQ(report.HorPercent, "30%");
    // Live 720 lb: 0.013 * 2985984 * 720 / (1.6e6 * 177.9785) = 0.0981 in.; dead 480 lb * 1.5 the same
    EXPECT_EQ(report.LDeflProp, "0.10");
    EXPECT_EQ(report.LDeflReq, "0.40");
    EXPECT_EQ(report.DeflProp, "0.20");
    EXPECT_EQ(report.DeflReq, "0.60");
    EXPECT_EQ(report.DeflPercent, "33%");
    EXPECT_EQ(report.Label11, "Total Load Deflection    Max: L / 240   Actual: L / 734");
    EXPECT_EQ(report.Label6, "Live Load Deflection     Max: L / 360   Actual: L / >1000");
    EXPECT_EQ(report.Label10, "Reactions: R1 TL = 600   R2 TL = 600");
    EXPECT_EQ(report.Label15, "Reactions: R1 LL = 360   R2 LL = 360");
    EXPECT_EQ(report.DeadDefl, "Dead Load Deflection (x 1.5 for creep)= 0.10");
    EXPECT_EQ(report.OHDeflReq + report.OHDeflProp + report.OHDeflStatus + report.OHDeflPercent, "");
    EXPECT_EQ(report.Unbalancedlabel, "");
}

TEST(TestReport, LeavesTheLiveRowsEmptyWithoutLiveLoad)
{
    Session session = PlainSession();
    session.Problem.Loads.LUNIF = "";
    session.Problem.LMaxDefl = "";
    Calculate(session);
    const TestReport report = ReportOf(session, Member("2x", "12", "DF-L #2"));
    EXPECT_EQ(report.LDeflReq + report.LDeflProp + report.LDeflStatus + report.LDeflPercent, "");
    EXPECT_EQ(report.Label6 + report.Label15, "");
}

TEST(TestReport, CallsALiftedReactionUplift)
{
    Session session = PlainSession();
    session.Problem.Support = SupportCondition::Overhanging;
    session.Problem.NoWeight = true;
    session.Problem.Loads.UNIF = "20";
    session.Problem.Loads.LUNIF = "";
    SetPoint(session.Problem, 4, "1200", "4", "600");
    // R1 = 20 * 12 / 2 - 1200 * 4 / 12 = -280; live -200
    const TestReport report = ReportOf(session, Member("4x", "12", "DF-L #2"));
    EXPECT_EQ(report.Label10, "Uplift @ R1 TL = -280   R2 TL = 1720");
    EXPECT_EQ(report.Label15, "Uplift @ R1 LL = -200   R2 LL = 800");
    EXPECT_EQ(report.Unbalancedlabel, "Overhanging members should be checked for unbalanced live loads.");
    EXPECT_NE(report.OHDeflStatus, "");
    EXPECT_NE(report.OHLDeflPercent, "");
}

TEST(TestReport, NamesEveryTextOnce)
{
    std::set<std::string_view> names;
    for (const TestReportField& field : TestReportFields) {
        EXPECT_TRUE(names.insert(field.Name).second) << field.Name;
    }
    EXPECT_EQ(sizeof(TestReport) / sizeof(std::string), TestReportFields.size());
}

struct ModifierCase {
    bool Rep;
    bool Wet;
    bool Incised;
    std::string_view Text;
};

class ModifiersTest : public testing::TestWithParam<ModifierCase> {};

TEST_P(ModifiersTest, TellWhatChangedTheValues)
{
    Session session = PlainSession();
    session.Problem.Rep = GetParam().Rep;
    session.Problem.Wet = GetParam().Wet;
    session.Problem.Incised = GetParam().Incised;
    EXPECT_EQ(ReportOf(session, Member("4x", "12", "DF-L #2")).Modifiers, GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    Conditions, ModifiersTest,
    testing::Values(ModifierCase{true, true, true,
                                 "Values modified for: Wet, Incised and Repetitive use    "},
                    ModifierCase{true, true, false, "Values modified for: Wet and Repetitive use    "},
                    ModifierCase{true, false, true, "Values modified for: Incised, Repetitive use    "},
                    ModifierCase{true, false, false, "Values modified for: Repetitive use    "},
                    ModifierCase{false, true, true, "Values modified for: Wet use, Incised  "},
                    ModifierCase{false, true, false, "Values modified for: Wet use  "},
                    ModifierCase{false, false, true, "Values modified for: Incised  "},
                    ModifierCase{false, false, false, ""}));

TEST(Modifiers, TellTheSpacingBesideRepetitiveUse)
{
    Session session = PlainSession();
    session.Problem.Rep = true;
    session.Problem.Spacing = RepetitiveSpacing::Ctr19;
    EXPECT_EQ(ReportOf(session, Member("2x", "12", "DF-L #2")).Modifiers,
              "Values modified for: Repetitive use    Spacing @ 19.2 in. o.c.  ");
}

TEST(Modifiers, OfAGlulamTellWetUseAlone)
{
    Session session = PlainSession();
    session.Problem.Wet = true;
    session.Problem.Incised = true;
    EXPECT_EQ(ReportOf(session, Member("5-1/8x", "12", "GLB 24F-V4 DF/DF")).Modifiers,
              "Values modified for: Wet use  ");
}

TEST(SmallChoice, OffersTheNextSmallerDepth)
{
    Session session = PlainSession();
    session.Problem.Loads.UNIF = "30";
    session.Problem.Loads.LUNIF = "20";
    EXPECT_EQ(ReportOf(session, Member("4x", "12", "DF-L #2")).SmallChoice,
              "Note: 4x 10 DF-L #2 may also be acceptable.");
    EXPECT_EQ(ReportOf(session, Member("4x", "4", "DF-L #2")).SmallChoice, "");
}

/// A tested member whose deflections are set by hand.
struct Staged {
    Session Work = PlainSession();

    explicit Staged(std::string_view breadth = "4x", std::string_view depth = "12",
                    std::string_view species = "DF-L #2")
    {
        Calculate(Work);
        Tested(Work, Member(breadth, depth, species));
    }
    MemberTestResult& Result() { return Work.Member.Result; }
    TestReport Report() { return MakeTestReport(Work); }
};

TEST(DeadDeflection, SeemsHighAboveAQuarterInch)
{
    Staged staged;
    staged.Result().DeadDeflection = 0.26F;
    EXPECT_EQ(staged.Report().DeadDefl, "Dead Load Deflection (x 1.5 for creep)= 0.26");
    staged.Result().DeadDeflection = 0.27F;
    EXPECT_EQ(staged.Report().DeadDefl, "Dead Load Deflection (x 1.5 for creep)= 0.27 ...seems a bit high.");
    staged.Result().DeadDeflection = 0.01F;
    EXPECT_EQ(staged.Report().DeadDefl, "Dead Load Deflection (x 1.5 for creep)= <0.01");
    staged.Work.Problem.Roofbutton = true;
    staged.Work.Problem.Pitchtext = "4";
    staged.Result().DeadDeflection = 0.05F;
    EXPECT_EQ(staged.Report().DeadDefl,
              "Dead Load Deflection (x 1.5 for creep)= 0.05  DL adjusted for 4:12 pitch");
}

TEST(DeadDeflection, OfAGlulamRecommendsItsCamber)
{
    Staged staged("5-1/8x", "12", "GLB 24F-V4 DF/DF");
    staged.Result().DeadDeflection = 0.3F;
    EXPECT_EQ(staged.Report().DeadDefl,
              "Dead Load Deflection (x 1.5 for creep)= is 0.30   Recommended Camber is 0.45");
    staged.Result().DeadDeflection = 0.005F;
    EXPECT_EQ(staged.Report().DeadDefl,
              "Dead Load Deflection (x 1.5 for creep)= is <0.01   Recommended Camber is < .015");
}

TEST(DeflectionAlert, ComesAboveAThirdOfAnInchUnlessARowFails)
{
    Staged staged;
    EXPECT_EQ(staged.Report().DeflTooHigh, "");
    staged.Result().LiveDeflection = -0.34F;
    EXPECT_EQ(staged.Report().DeflTooHigh,
              "A Courtesy Alert:  Deflection is greater than 1/3 inch.  It's your judgement call if this is "
              "acceptable...");
    staged.Result().Overall = StatusFail;
    EXPECT_EQ(staged.Report().DeflTooHigh, "");
}

TEST(DeflectionLines, ShowTheNumberUpToAThousand)
{
    Staged staged;
    staged.Work.Analysis.TotalDeflRatio = 1000;
    EXPECT_EQ(staged.Report().Label11, "Total Load Deflection    Max: L / 240   Actual: L / 1000");
    staged.Work.Analysis.TotalDeflRatio = 1000.1F;
    EXPECT_EQ(staged.Report().Label11, "Total Load Deflection    Max: L / 240   Actual: L / >1000");
}

TEST(Percentages, RoundSoThatAMemberJustOverItsLimitShows100)
{
    Staged staged;
    staged.Result().SectionReq = 10.04F;
    staged.Result().SectionProp = 10;
    GiveVerdict(staged.Work.Numbers, staged.Work.Member);
    EXPECT_EQ(staged.Report().SecPercent, "100%");
    EXPECT_EQ(staged.Report().SecStatus, "Fail");
}

TEST(OverallText, NamesTheMemberThatMustHaveNoSplits)
{
    MemberTestResult result;
    result.Overall = StatusFail;
    EXPECT_EQ(OverallText(result), "Fail");
    result.NoSplits = true;
    EXPECT_EQ(OverallText(result), "Fail");  // another check fails besides
    result.Overall = {};
    EXPECT_EQ(OverallText(result), "OK with NO SPLITS");
    result.NoSplits = false;
    result.Overall = StatusOk;
    EXPECT_EQ(OverallText(result), "OK");
}

TEST(Ratio, IsReadFromItsText)
{
    EXPECT_EQ(RatioOf(""), std::nullopt);
    EXPECT_EQ(RatioOf("0%"), 0.0);
    EXPECT_EQ(RatioOf("75%"), 0.75);
    EXPECT_EQ(RatioOf("1250%"), 12.5);
}

struct SectionCase {
    std::string_view Name;
    SpeciesGroup Group;
    std::string_view Breadth;
    std::string_view Depth;
    std::string_view Species;
    int PlyCount;
    double Lamination;  // in.
    std::string_view Words;
};

class SectionPictureTest : public testing::TestWithParam<SectionCase> {};

TEST_P(SectionPictureTest, KnowsWhatTheMemberIsMadeOf)
{
    const SectionCase& c = GetParam();
    ScriptedUser user;
    MemberCandidate member;
    ASSERT_EQ(IdentifyMember(Member(c.Breadth, c.Depth, c.Species), c.Group, user, member), Outcome::Done);
    const SectionPicture picture = ReadSectionPicture(member);
    EXPECT_EQ(picture.PlyCount, c.PlyCount);
    EXPECT_EQ(picture.Lamination, c.Lamination);
    EXPECT_EQ(DescribeSection(picture), c.Words);
}

INSTANTIATE_TEST_SUITE_P(
    Members, SectionPictureTest,
    testing::Values(SectionCase{"one piece", SpeciesGroup::HemFirDouglasFir, "4x", "10", "DF-L #2", 1, 0,
                                "Rectangular section, 3-1/2 in. broad and 9-1/4 in. deep."},
                    SectionCase{"built up", SpeciesGroup::HemFirDouglasFir, "(3) 2x", "12", "HF #2", 3, 0,
                                "Rectangular section, 4-1/2 in. broad and 11-1/4 in. deep, 3 plies of 1-1/2 "
                                "in."},
                    SectionCase{"glulam", SpeciesGroup::HemFirDouglasFir, "5-1/8x", "21", "GLB 24F-V4 DF/DF",
                                1, 1.5,
                                "Rectangular section, 5-1/8 in. broad and 21 in. deep, 14 laminations of "
                                "1-1/2 in."},
                    SectionCase{"Southern Pine glulam", SpeciesGroup::SouthernPine, "3-1/8x", "9-5/8",
                                "GLB 24F-V3 SP/SP", 1, 1.375,
                                "Rectangular section, 3-1/8 in. broad and 9-5/8 in. deep, 7 laminations of "
                                "1-3/8 in."}),
    CaseName);

TEST(SectionPicture, OfARoundMemberTellsItsDiameter)
{
    MemberCandidate member;
    member.Round = true;
    member.B = 8.5;
    member.D = 8.5;
    EXPECT_EQ(DescribeSection(ReadSectionPicture(member)), "Round section, 8-1/2 in. in diameter.");
    EXPECT_EQ(DescribeSection(SectionPicture{}), "");
}

}  // namespace
}  // namespace kordavan
