#include <gmock/gmock.h>

#include <string>

#include "design/SteelBuilder.h"
#include "design/TestReport.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::ElementsAre;

constexpr double Relative = 1e-6;

void ExpectClose(float value, double expected, std::string_view what)
{
    EXPECT_NEAR(value, expected, Relative * std::max(1.0, std::abs(expected))) << what;
}

struct LoadCase {
    std::string_view Name;
    std::string_view Shape;
    SteelFamily Family;
    void (*Change)(Session&);
    double MemberWeight;
    double MaxMoment;
    double CantileverMoment;
    double TotalLoad;
    double Reaction1;
    double Reaction2;
    double MaxShear;
};

class SteelLoadsTest : public testing::TestWithParam<LoadCase> {};

TEST_P(SteelLoadsTest, IncludeTheShapesWeight)
{
    const LoadCase& c = GetParam();
    Session session = SteelSession(c.Family, "10", "962", "");
    c.Change(session);
    const SteelTestState& state = TestedShape(session, c.Shape);
    ExpectClose(state.MemberWeight, c.MemberWeight, "weight");
    ExpectClose(state.MaxMoment, c.MaxMoment, "moment");
    ExpectClose(state.CantileverMoment, c.CantileverMoment, "overhang moment");
    ExpectClose(state.TotalLoad, c.TotalLoad, "load");
    ExpectClose(state.Reaction1, c.Reaction1, "R1");
    ExpectClose(state.Reaction2, c.Reaction2, "R2");
    ExpectClose(state.MaxShear, c.MaxShear, "V");
}

void Simple(Session& /*session*/) {}

void Weightless(Session& session)
{
    session.Problem.NoWeight = true;
}

void TwoSpans(Session& session)
{
    session.Problem.Support = SupportCondition::MultipleSpans;
}

void ThreeSpans(Session& session)
{
    TwoSpans(session);
    session.Problem.ThreeSpan = true;
}

/// Of a hip: 3000 lb rising from R1 to R2, 100 plf beside it, and an equivalent uniform load of 400 plf.
void Hip(Session& session)
{
    session.Problem.Support = SupportCondition::HipValley;
    session.Problem.Span = "12";
    session.Problem.Loads.UNIF = "400";
    session.Problem.Loads.IncUnifTL = "100";
    session.IncreasingTotalLoad = 3000;
}

void Overhang(Session& session, std::string_view uniform, std::string_view tip, std::string_view place)
{
    session.Problem.Support = SupportCondition::Overhanging;
    session.Problem.Span = "16";
    session.Problem.Loads.UNIF = uniform;
    SetPoint(session.Problem, 4, tip, place);
}

// R1 = (500 * 16 * 8 - 4000 * 4) / 16 = 3000, R2 = 9000; the moment peaks with 3000^2 / (2 * 500) = 9000 at
// 6 ft, the station before it is 5.92 ft. With 38 plf: 9000 + 38 * 5.92^2 / 2 in the span, 16000 + 38 * 8 at
// R2; R1 + 240 * 38 / 32, R2 + 400 * 38 / 32. V beside R2: 9475 - (4000 + 152) = 5323, above 4152 and R1.
void OverhangWithLoadedSpan(Session& session)
{
    Overhang(session, "500", "4000", "4");
}

// 8000 lb 2 ft from R1: R1 = (8000 * 14 - 400 * 4) / 16 = 6900, R2 = 1500, of which 400 from the overhang
void OverhangWithLoadByR1(Session& session)
{
    Overhang(session, "", "400", "4");
    SetPoint(session.Problem, 0, "8000", "2");
    Weightless(session);
}

// R1 = (1600 * 8 - 8000 * 4) / 16 = -1200, R2 = 10800, of which 8000 from the overhang and 2800 from the span
void OverhangLiftingR1(Session& session)
{
    Overhang(session, "100", "8000", "4");
    Weightless(session);
}

// W 14x 38 weighs 38 plf, with which 962 plf make 1000 plf. S 6x 12.5 adds 12.5 plf.
INSTANTIATE_TEST_SUITE_P(
    Conditions, SteelLoadsTest,
    testing::Values(
        LoadCase{"simple span", "W 14x 38", SteelFamily::W, Simple, 380, 12500, 0, 10000, 5000, 5000, 5000},
        LoadCase{"weightless", "W 14x 38", SteelFamily::W, Weightless, 0, 12025, 0, 9620, 4810, 4810, 4810},
        LoadCase{"two spans", "W 14x 38", SteelFamily::W, TwoSpans, 380, 12500, 0, 10000, 3750, 12500, 6250},
        LoadCase{"three spans", "W 14x 38", SteelFamily::W, ThreeSpans, 380, 10000, 0, 10000, 4000, 11000,
                 6000},
        LoadCase{"hip", "S 6x 12.5", SteelFamily::S, Hip, 150, 412.5 * 144 / 8, 0, 4350, 1675, 2675, 2675},
        LoadCase{"overhang, V in the span at R2", "W 14x 38", SteelFamily::W, OverhangWithLoadedSpan, 760,
                 9665.8816, 16304, 12760, 3285, 9475, 5323},
        LoadCase{"overhang, V at R1", "W 14x 38", SteelFamily::W, OverhangWithLoadByR1, 0, 13800, 1600, 8400,
                 6900, 1500, 6900},
        LoadCase{"overhang, V beyond R2", "W 14x 38", SteelFamily::W, OverhangLiftingR1, 0, 0, 32000, 9600,
                 -1200, 10800, 8000}),
    CaseName);

TEST(NamedShape, OfABeamLeavesWhatTheReportNeeds)
{
    // W 14x 38 on 20 ft, 1162 + 38 = 1200 plf: M = 60000 ft-lb, S = 60000 * 12 / 23760 = 30.303 of 54.6;
    // V = 12000, fv = 12000 / (14.1 * 0.31) = 2745.4; deflection 0.013 * 240^3 * 24000 / (29e6 * 385) =
    // 0.3863
    Session session = SteelSession(SteelFamily::W, "20", "1162", "800");
    const SteelTestState& state = TestedShape(session, "W 14x 38");
    EXPECT_EQ(state.RowIndex, 40U);
    EXPECT_EQ(state.ShapeName, "W 14x 38");
    EXPECT_EQ(state.SelfWeight, 38);
    EXPECT_EQ(state.UnbracedLength, 0);
    EXPECT_EQ(state.MaxUnbracedText, "Lc = 7.1 ft");
    EXPECT_EQ(state.ActualS, 54.6F);
    ExpectClose(state.RequiredS, 60000.0 * 12 / 23760, "S");
    EXPECT_EQ(state.FbAllowed, 23760);
    EXPECT_EQ(state.Fy, 36000);
    EXPECT_EQ(state.FvAllowed, 14400);
    ExpectClose(state.WebArea, 14.1 * 0.31, "web");
    ExpectClose(state.ShearStress, 12000 / (14.1 * 0.31), "fv");
    ExpectClose(state.RequiredWebArea, 12000.0 / 14400, "required web");
    EXPECT_EQ(state.ActualI, 385);
    EXPECT_EQ(state.ActualSizeBreadth, "6-3/4");
    EXPECT_EQ(state.ActualSizeDepth, "14-1/8");

    const MemberTestResult& result = session.Member.Result;
    const double perPound = 0.013 * 240 * 240 * 240 / (29e6 * 385);
    ExpectClose(result.TotalDeflection, perPound * 24000, "total deflection");
    ExpectClose(result.LiveDeflection, perPound * 16000, "live deflection");
    EXPECT_EQ(result.TotalDeflectionAllowed, 1);
    EXPECT_EQ(result.CreepFactor, 1);
    EXPECT_EQ(session.Member.Adjusted.EAdj, 29);
    EXPECT_EQ(session.Member.Values.E, 29);
    EXPECT_EQ(result.Overall, StatusOk);
}

TEST(NamedShape, NeedsTheSectionOfTheLargerMoment)
{
    Session session = SteelSession(SteelFamily::W, "16", "", "");
    OverhangWithLoadedSpan(session);
    const SteelTestState& state = TestedShape(session, "W 14x 38");
    ExpectClose(state.RequiredS, 9665.8816 * 12 / 23760, "of the span");
    ExpectClose(session.Member.Result.SectionReq, 16304.0 * 12 / 23760, "of the overhang");
}

TEST(NamedShape, KeepsTheAppliedLoads)
{
    Session session = SteelSession(SteelFamily::W, "20", "1162", "800");
    Calculate(session);
    const AppliedLoadResult before = session.Analysis;
    TestedShape(session, "W 14x 38");
    EXPECT_EQ(session.Analysis.R1Applied, before.R1Applied);
    EXPECT_EQ(session.Analysis.MaxMomentApplied, before.MaxMomentApplied);
    EXPECT_EQ(session.Analysis.TotalAppliedLoad, before.TotalAppliedLoad);
}

TEST(NamedShape, IsReportedWhereItFails)
{
    // W 6x 9 under 12500 ft-lb: S = 12500 * 12 / 23760 = 6.3 of 5.56
    Session session = SteelSession(SteelFamily::W, "10", "991", "660");
    TestedShape(session, "W 6x 9");
    EXPECT_EQ(session.Member.Result.SecStatus, StatusFail);
    EXPECT_EQ(session.Member.Result.ShearStatus, StatusOk);
    EXPECT_EQ(session.Member.Result.Overall, StatusFail);
}

TEST(NamedShape, IsNeverOfferedWithoutSplits)
{
    // Under NDS 1997 wood that fails in shear alone may be; PL 15-1/2x 1/4 has 3.875 in2 of web, 55800 lb.
    Session session = SteelSession(SteelFamily::Plate, "3.1", "", "");
    session.Nds = EditionFlags(Edition::Nds1997);
    session.Problem.NoWeight = true;
    SetPoint(session.Problem, 0, "60000", "0.2", "40000");  // V = 60000 * 2.9 / 3.1 = 56129
    TestedShape(session, "PL 15-1/2x 1/4");
    EXPECT_EQ(session.Member.Result.SecStatus, StatusOk);
    EXPECT_EQ(session.Member.Result.DeflStatus, StatusOk);
    EXPECT_EQ(session.Member.Result.ShearStatus, StatusFail);
    EXPECT_FALSE(session.Member.Result.NoSplits);
    EXPECT_EQ(session.Member.Result.Overall, StatusFail);
}

TEST(NamedShape, FoundWithoutTheBlankOfItsNameIsTheSame)
{
    Session session = SteelSession(SteelFamily::C, "10", "100", "60");
    EXPECT_EQ(TestedShape(session, "C 6x 13").RowIndex, 196U);
    EXPECT_EQ(TestedShape(session, "C 6x 13 ").RowIndex, 196U);
}

constexpr std::string_view NotInFamily =
    "Your Steel selection does not match any sizes in the Kordavan database for this steel shape or the size "
    "you have entered is not in the correct format.\n\nExamples: (Note the location of the spaces and "
    "'x')\n\n"
    "\tW 12x 30\n\tS 8x 18.4\n\tC 7x 9.8\n\tT 10x 5x 1/2\n\nClick the DATABASE button to see the steel sizes "
    "available in the database for this shape. You may enter any size listed in the database.";
constexpr std::string_view NotInFamilyStepping =
    "Your Steel selection does not match any sizes in the Kordavan database for this steel shape.";

struct RefusedShapeCase {
    std::string_view Name;
    SteelFamily Family;
    std::string_view Shape;
};

class RefusedShapeTest : public testing::TestWithParam<RefusedShapeCase> {};

TEST_P(RefusedShapeTest, LeavesTheLastTest)
{
    Session session = SteelSession(GetParam().Family, "10", "100", "60");
    const std::string_view good = ShapesOf(GetParam().Family).back().ShapeName;
    TestedShape(session, good);
    ScriptedUser user;
    EXPECT_EQ(TestNamedShape(session, GetParam().Shape, SteelTestMode::FromSelection, user),
              SteelTestEnd::Refused);
    EXPECT_EQ(TestNamedShape(session, GetParam().Shape, SteelTestMode::FromStepping, user),
              SteelTestEnd::Refused);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(NotInFamily, "StlChoice"), RefusalOf(NotInFamilyStepping)));
    EXPECT_EQ(user.Told.front().Title, "Kordavan");
    EXPECT_EQ(session.Steel.ShapeName, good);
}

INSTANTIATE_TEST_SUITE_P(Names, RefusedShapeTest,
                         testing::Values(RefusedShapeCase{"format", SteelFamily::W, "W12x30"},
                                         RefusedShapeCase{"other family", SteelFamily::W, "S 8x 18.4"},
                                         RefusedShapeCase{"empty", SteelFamily::W, ""},
                                         RefusedShapeCase{"filler", SteelFamily::Tube, "xx"},
                                         RefusedShapeCase{"empty row", SteelFamily::DoublePlate, ""}),
                         CaseName);

TEST(NamedShape, BeyondEveryRegimeIsRefused)
{
    Session session = SteelSession(SteelFamily::W, "10", "100", "60");
    session.Problem.UBLtext = "4.3";  // Lu of W 12x 14 is 4.2 ft
    Calculate(session);
    PrepareSteel(session);
    ScriptedUser user;
    EXPECT_EQ(TestNamedShape(session, "W 12x 14", SteelTestMode::FromSelection, user), SteelTestEnd::Refused);
    EXPECT_EQ(TestNamedShape(session, "W 12x 14", SteelTestMode::FromStepping, user), SteelTestEnd::Refused);
    EXPECT_THAT(
        user.Told,
        ElementsAre(
            RefusalOf("Proposed Unbraced length for Lc or Lu is too large.  Please select another size or "
                      "adjust the unbraced length.  Kordavan does not compute the special anaylsis required "
                      "for members with an unbraced length greater than Lu.",
                      "StlChoice"),
            RefusalOf("Proposed Unbraced length for Lc or Lu is too large.  Please select another size or "
                      "adjust the unbalanced length.  Kordavan does not compute the special anaylsis "
                      "required for members with an unbalanced length greater than Lu.")));
    EXPECT_EQ(session.Steel.ShapeName, "");
}

/// An overhang so long that its reaction is beyond a 32-bit float.
Session EndlessOverhang()
{
    Session session = SteelSession(SteelFamily::W, "1", "", "");
    session.Problem.Support = SupportCondition::Overhanging;
    SetPoint(session.Problem, 4, "1", "1e20");
    ScriptedUser user;
    user.WillAnswer(true);  // a long overhang
    EXPECT_EQ(CalculateAction(session, user), Outcome::Done);
    return session;
}

TEST(NamedShape, WithoutAGreatestShearLeadsBackToTheCriteria)
{
    Session session = EndlessOverhang();
    PrepareSteel(session);
    ScriptedUser user;
    EXPECT_EQ(TestNamedShape(session, "W 14x 38", SteelTestMode::FromSelection, user),
              SteelTestEnd::BackToCriteria);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf("Max V Error, Steel form22 OK button")));
}

TEST(SteelScan, WithoutAGreatestShearLeadsBackToTheCriteria)
{
    Session session = EndlessOverhang();
    ScriptedUser user;
    EXPECT_EQ(OpenSteelSelection(session, user), Outcome::Refused);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf("Max V Error, Steel form22")));
    EXPECT_TRUE(session.SteelPicks.Slots.empty());
}

TEST(NamedShape, BeyondEveryNumberIsRefused)
{
    Session session = SteelSession(SteelFamily::W, "1e15", "1e8", "");
    Calculate(session);
    PrepareSteel(session);
    ScriptedUser user;
    EXPECT_EQ(TestNamedShape(session, "W 14x 38", SteelTestMode::FromSelection, user), SteelTestEnd::Refused);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf("Error in deflection calc")));
}

}  // namespace
}  // namespace kordavan
