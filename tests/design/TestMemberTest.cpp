#include "design/TestMember.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>

#include "design/DesignBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::SizeIs;
using testing::StartsWith;

/// A weightless beam under a uniform dead load, calculated.
Session UniformSession(std::string_view span, std::string_view load, Edition edition = Edition::Nds2018)
{
    Session session = PlainSession(edition);
    session.Problem.Span = span;
    session.Problem.Loads.UNIF = load;
    session.Problem.Loads.LUNIF = "";
    session.Problem.NoWeight = true;
    Calculate(session);
    return session;
}

TEST(Verdict, SectionPassesOnEquality)
{
    // DF-L #2 2x12: S 31.640625, Fb' 900 psi. M = S Fb' / 12 = 2373.046875 ft-lb = w 144 / 8
    Session at = UniformSession("12", "131.8359375");
    const MemberTestResult& equal = Tested(at, Member("2x", "12", "DF-L #2")).Result;
    EXPECT_EQ(equal.SectionReq, 31.640625F);
    EXPECT_EQ(equal.SecStatus, "OK");
    Session above = UniformSession("12", "131.84");
    EXPECT_EQ(Tested(above, Member("2x", "12", "DF-L #2")).Result.SecStatus, "Fail");
}

TEST(Verdict, ShearPassesOnEquality)
{
    // A 16.875 in2, Fv' 180 psi: V = 180 * 16.875 / 1.5 = 2025 lb = 675 plf * 6 ft / 2
    Session at = UniformSession("6", "675");
    const MemberTestResult& equal = Tested(at, Member("2x", "12", "DF-L #2")).Result;
    EXPECT_EQ(equal.ActualShearStress, 180);
    EXPECT_EQ(equal.ShearStatus, "OK");
    Session above = UniformSession("6", "675.1");
    EXPECT_EQ(Tested(above, Member("2x", "12", "DF-L #2")).Result.ShearStatus, "Fail");
}

TEST(Verdict, OneFailureFailsTheMember)
{
    // 2x10 of 990 psi at 1800 ft-lb: S required 21.82, has 21.39
    Session session = UniformSession("12", "100");
    const MemberTestResult& result = Tested(session, Member("2x", "10", "DF-L #2")).Result;
    EXPECT_NEAR(result.SectionReq, 21600.0 / 990, 1e-4);
    EXPECT_EQ(result.SecStatus, "Fail");
    EXPECT_EQ(result.ShearStatus, "OK");
    EXPECT_EQ(result.Overall, "Fail");
    EXPECT_EQ(result.LDeflStatus, "");
    EXPECT_EQ(result.OHDeflStatus, "");
    EXPECT_EQ(result.LiveDeflectionAllowed, 0);
}

TEST(Verdict, DeflectionIsComparedByMagnitude)
{
    // A light tip load on a heavily loaded span: the tip rises by more than it may move.
    Session session = PlainSession();
    session.Problem.Support = SupportCondition::Overhanging;
    session.Problem.Loads.UNIF = "500";
    session.Problem.Loads.LUNIF = "300";
    SetPoint(session.Problem, 4, "10", "4", "5");
    Calculate(session);
    const MemberTestResult& result = Tested(session, Member("4x", "12", "DF-L #2")).Result;
    EXPECT_LT(result.OverhangDeflection, -result.OverhangDeflectionAllowed);
    EXPECT_EQ(result.OHDeflStatus, "Fail");
}

struct NoSplitsCase {
    std::string_view Name;
    std::string_view Load;  // plf on 8 ft: V = 4 w, fv = 1.5 V / 63.25
    Edition Code;
    bool NoSplits;
    float FvAdj;
    std::string_view Overall;
};

class NoSplitsTest : public testing::TestWithParam<NoSplitsCase> {};

TEST_P(NoSplitsTest, IsOfferedWhereShearAloneFails)
{
    Session session = UniformSession("8", GetParam().Load, GetParam().Code);
    const MemberTest& member = Tested(session, Member("6x", "12", "DF-L #1"));
    EXPECT_EQ(member.Result.NoSplits, GetParam().NoSplits) << GetParam().Name;
    EXPECT_EQ(member.Result.FvAdj, GetParam().FvAdj);
    EXPECT_EQ(member.Result.Overall, GetParam().Overall);
    EXPECT_NEAR(member.Result.AreaReq * member.Result.FvAdj, 63.25 * member.Result.ActualShearStress, 0.05);
}

// DF-L #1 6x12: Fv 85 psi in 1997, 170 later; without splits 2 * 90 psi
INSTANTIATE_TEST_SUITE_P(Loads, NoSplitsTest,
                         testing::Values(NoSplitsCase{"84 psi", "885", Edition::Nds1997, false, 85, "OK"},
                                         NoSplitsCase{"120 psi", "1265", Edition::Nds1997, true, 180, ""},
                                         NoSplitsCase{"185 psi", "1950", Edition::Nds1997, false, 85, "Fail"},
                                         NoSplitsCase{"172 psi, no such offer", "1815", Edition::Nds2001,
                                                      false, 170, "Fail"}),
                         CaseName);

TEST(NoSplits, IsNotOfferedToGlulams)
{
    Session session = UniformSession("8", "2500", Edition::Nds1997);  // 224 psi of 190
    const MemberTest& member = Tested(session, Member("5-1/8x", "13-1/2", "GLB 24F-V4 DF/DF"));
    EXPECT_EQ(member.Result.ShearStatus, "Fail");
    EXPECT_FALSE(member.Result.NoSplits);
}

TEST(NextSmaller, IsTestedWithItsOwnFactors)
{
    // Wet DF-L #1: a 2x10 (1.1 * 1000) keeps its bending value, a 2x8 (1.2 * 1000) loses 15 %: 1020 psi.
    // 2x8, S 13.140625: M of 1117 ft-lb at 1020 psi, 1314 at 1200 psi. 8 ft: M = 8 w.
    const auto nextSmallerOk = [](std::string_view load) {
        Session session = PlainSession();
        session.Problem.Span = "8";
        session.Problem.Loads.UNIF = load;
        session.Problem.Loads.LUNIF = "";
        session.Problem.NoWeight = true;
        session.Problem.Wet = true;
        Calculate(session);
        const MemberTest& member = Tested(session, Member("2x", "10", "DF-L #1"));
        EXPECT_EQ(member.Result.Overall, "OK");
        EXPECT_EQ(member.Factors.CfSmaller, 1.2F);
        return member.Result.NextSmallerOk;
    };
    EXPECT_TRUE(nextSmallerOk("139"));
    EXPECT_FALSE(nextSmallerOk("141"));
}

TEST(NextSmaller, DeflectsMoreByTheLossOfStiffness)
{
    // 4x12 of E 1.6 on 14 ft under 60 plf: 1.5 * 0.013 * 168^3 * 840 / (1.6e6 * 415.283) = 0.11689 in.
    // 4x10: I 230.840, so 0.21029 in.; 168 / 0.21029 = 798.9
    const auto okWithLimit = [](std::string_view limit) {
        Session session = UniformSession("14", "60");
        session.Problem.MaxDefl = limit;
        Calculate(session);
        return Tested(session, Member("4x", "12", "DF-L #2")).Result.NextSmallerOk;
    };
    EXPECT_TRUE(okWithLimit("798"));
    EXPECT_FALSE(okWithLimit("800"));
}

TEST(NextSmaller, IsNoneAtTheLeastDepth)
{
    Session session = UniformSession("4", "10");
    EXPECT_FALSE(Tested(session, Member("2x", "4", "DF-L #2")).Result.NextSmallerOk);
    EXPECT_FALSE(Tested(session, Member("8x", "8", "DF-L #2")).Result.NextSmallerOk);
    EXPECT_TRUE(Tested(session, Member("2x", "6", "DF-L #2")).Result.NextSmallerOk);
}

TEST(SouthernPine, FirstGradeReadsTheFlagThatASecondGradeLeft)
{
    Session session = PlainSession();
    session.Problem.Combo1 = SpeciesGroup::SouthernPine;
    Calculate(session);
    EXPECT_EQ(Tested(session, Member("2x", "10", "So. Pine #1")).Factors.Cf, 1.04F);
    EXPECT_EQ(session.Member.Values.E, 1.7F);
    EXPECT_EQ(Tested(session, Member("2x", "10", "So. Pine #2")).Factors.Cf, 0.8205F);
    EXPECT_EQ(session.Member.Values.E, 1.4F);
    EXPECT_EQ(Tested(session, Member("2x", "10", "So. Pine #1")).Factors.Cf, 0.84F);
    EXPECT_EQ(session.Member.Values.E, 1.6F);
    EXPECT_EQ(Tested(session, Member("2x", "10", "Mixed So. Pine #1")).Factors.Cf, 1.07692F);

    session.Nds = EditionFlags(Edition::Nds2005);
    Calculate(session);
    EXPECT_EQ(Tested(session, Member("2x", "10", "So. Pine #1")).Values.E, 1.6F);  // still as left
    EXPECT_EQ(Tested(session, Member("2x", "10", "Mixed So. Pine #2")).Factors.Cf, 1.05714F);
    EXPECT_EQ(Tested(session, Member("2x", "10", "So. Pine #1")).Values.E, 1.7F);
}

TEST(Glulam, VolumeFactorEndsAtTheInflectionOfAnOverhangingBeam)
{
    Session session = PlainSession();
    session.Problem.Span = "30";
    session.Problem.Support = SupportCondition::Overhanging;
    SetPoint(session.Problem, 4, "6000", "8", "3000");
    Calculate(session);
    // The moment is negative up to station 199 of 0.15 ft: 29.85 ft. 21 / 29.85 * 12 / 24 = 0.351759, ^0.1 =
    // 0.90080; 22.5 in. deep 0.375209, ^0.1 = 0.90663
    const MemberTest& member = Tested(session, Member("5-1/8x", "24", "GLB 24F-V8 DF/DF"));
    EXPECT_NEAR(member.Factors.Cv, 0.90080, 1e-5);
    EXPECT_NEAR(member.Factors.CfSmaller, 0.90663, 1e-5);
}

MemberEntry CustomMember(std::string_view breadth, std::string_view depth)
{
    MemberEntry entry = Member(breadth, depth, "Larch, own grading");
    entry.Custom.Fb = "1500";
    entry.Custom.Fv = "180";
    entry.Custom.E = "1.9";
    entry.Custom.FcPerp = "625.5";
    return entry;
}

Session CustomSession(Edition edition = Edition::Nds2018)
{
    Session session = PlainSession(edition);
    session.Problem.Combo1 = SpeciesGroup::Custom;
    Calculate(session);
    return session;
}

TEST(CustomMember, TakesTheEnteredValues)
{
    Session session = CustomSession();
    const MemberTest& member = Tested(session, CustomMember("2x", "8"));
    EXPECT_EQ(member.Values.Fb, 1500);
    EXPECT_EQ(member.Values.FcPerp, 626);
    EXPECT_EQ(member.Factors.Cf, 1.2F);
    EXPECT_NEAR(member.Adjusted.FbAdj, 1800, 1e-3);
}

TEST(CustomMember, NamedLikeSouthernPineLeavesTheFlagOfTheListedSpecies)
{
    Session session = CustomSession();
    MemberEntry entry = CustomMember("2x", "8");
    entry.SpeciesText = "So. Pine #2";
    Tested(session, entry);
    EXPECT_FALSE(session.SoPineLowered);
}

TEST(CustomMember, MachineGradesAndSizedValuesNeedNoSizeFactor)
{
    Session session = CustomSession();
    for (bool CustomEntry::*flag :
         {&CustomEntry::MELCheckbox, &CustomEntry::MSRCheckbox, &CustomEntry::CustomIngradeSP}) {
        MemberEntry entry = CustomMember("2x", "8");
        entry.Custom.*flag = true;
        EXPECT_EQ(Tested(session, entry).Factors.Cf, 1);
    }
}

TEST(CustomMember, TimbersByHalfInchesHaveTheirOwnSizeFactor)
{
    Session session = CustomSession();
    MemberEntry entry = CustomMember("8-1/2x", "16-1/2");
    entry.Custom.Wid6x = true;
    const MemberTest& member = Tested(session, entry);
    EXPECT_EQ(member.Candidate.B, 8);
    EXPECT_EQ(member.Candidate.D, 16);
    EXPECT_NEAR(member.Factors.Cf, 0.96854, 5e-6);
    EXPECT_NEAR(member.Factors.CfSmaller, 0.97551, 5e-6);  // 15 in. net
    EXPECT_EQ(member.Candidate.NextSmallerDepthText, "15-1/2");
}

TEST(CustomMember, DeepGlulamsKeepTheEnteredCompression)
{
    Session session = CustomSession();
    MemberEntry entry = CustomMember("5-1/8x", "18");
    entry.Custom.WidGLB = true;
    EXPECT_EQ(Tested(session, entry).Values.FcPerp, 626);
}

TEST(CustomMember, SouthernPineGlulamsHaveTheirOwnExponent)
{
    Session session = CustomSession();
    MemberEntry entry = CustomMember("6-3/4x", "30-1/4");
    entry.Custom.WidGLB = true;
    entry.Custom.SPG = true;
    EXPECT_NEAR(Tested(session, entry).Factors.Cv, std::pow(21 / 12.0 * 12 / 30.25 * 5.125 / 6.75, 0.05),
                1e-6);
}

struct RoundCase {
    Edition Code;
    float FormFactor;
};

class RoundMemberTest : public testing::TestWithParam<RoundCase> {};

TEST_P(RoundMemberTest, IsASectionOfItsDiameter)
{
    Session session = CustomSession(GetParam().Code);
    session.Problem.UBLtext = "12";  // a round member cannot buckle sideways
    Calculate(session);
    MemberEntry entry = CustomMember("", "");
    entry.Custom.Roundoption = true;
    entry.Custom.Diam = "10";
    const MemberTest& member = Tested(session, entry);
    EXPECT_NEAR(member.Result.SectionProp, 98.1746, 1e-4);
    EXPECT_NEAR(session.Analysis.SelfWeightPlf, 78.54 * 0.243, 1e-4);
    EXPECT_EQ(member.Factors.FormFactor, GetParam().FormFactor);
    EXPECT_NEAR(member.Adjusted.FbAdj, 1500 * GetParam().FormFactor, 1e-3);
    EXPECT_NEAR(member.Result.ActualShearStress, 1.33333 * session.Analysis.ShearMax / 78.54, 1e-3);
    EXPECT_EQ(member.Stability.Span.Rb, 0);
    EXPECT_FALSE(member.Result.NextSmallerOk);
}

INSTANTIATE_TEST_SUITE_P(Editions, RoundMemberTest,
                         testing::Values(RoundCase{Edition::Nds1997, 1.18F},
                                         RoundCase{Edition::Nds2001, 1.18F},
                                         RoundCase{Edition::Nds2005, 1.0F},
                                         RoundCase{Edition::Nds2018, 1.0F}));

struct RefusedMember {
    std::string_view Name;
    std::function<void(Session&, MemberEntry&)> Spoil;
    std::string_view Text;  // its beginning
    std::string_view Focus;
};

class RefusedMemberTest : public testing::TestWithParam<RefusedMember> {};

TEST_P(RefusedMemberTest, LeavesTheLastTestAsItWas)
{
    Session session = PlainSession();
    Calculate(session);
    Tested(session, Member("4x", "12", "DF-L #2"));
    MemberEntry entry = Member("2x", "10", "HF #2");
    GetParam().Spoil(session, entry);
    const float before = session.Analysis.SelfWeightPlf;
    ScriptedUser user;
    EXPECT_EQ(TestMember(session, entry, {}, user), Outcome::Refused);
    ASSERT_THAT(user.Told, SizeIs(1));
    EXPECT_THAT(user.Told[0].Text, StartsWith(std::string(GetParam().Text)));
    EXPECT_EQ(user.Told[0].Focus, GetParam().Focus);
    EXPECT_EQ(session.Member.Candidate.DepthText, "12");
    EXPECT_EQ(session.Analysis.SelfWeightPlf, before);
}

void MakeCustom(Session& session, MemberEntry& entry)
{
    session.Problem.Combo1 = SpeciesGroup::Custom;
    Calculate(session);
    entry = CustomMember("2x", "10");
}

const RefusedMember RefusedMembers[] = {
    {"breadth", [](Session&, MemberEntry& m) { m.BreadthText = "2"; },
     "Please enter a valid numeric BREADTH in the same format", "Text1"},
    {"depth", [](Session&, MemberEntry& m) { m.DepthText = "9"; },
     "Please enter a valid numeric DEPTH in the same format", "Text2"},
    {"species", [](Session&, MemberEntry& m) { m.SpeciesText = "hf #2"; },
     "Please enter a Species and Grade in exactly the same format", "Text3"},
    {"species comes before depth",
     [](Session&, MemberEntry& m) {
         m.SpeciesText = "";
         m.DepthText = "";
     },
     "Please enter a Species and Grade in exactly the same format", "Text3"},
    {"species of another class", [](Session&, MemberEntry& m) { m.SpeciesText = "GLB 24F-V4 DF/DF"; },
     "Please enter a Species and Grade in exactly the same format", "Text3"},
    {"repetitive timber",
     [](Session& s, MemberEntry& m) {
         s.Problem.Rep = true;
         Calculate(s);
         m.BreadthText = "6x";
     },
     "Please note:\nGLB and 6x sizes do not qualify for Repetitive Use Values.", ""},
    {"older rules",
     [](Session& s, MemberEntry&) {
         s.Problem.INGRADE = false;
         Calculate(s);
     },
     "Database search error in calc module", ""},
    {"custom without Fb",
     [](Session& s, MemberEntry& m) {
         MakeCustom(s, m);
         m.Custom.Fb = "";
     },
     "Calc module, zero value error!", ""},
    {"custom without Fv",
     [](Session& s, MemberEntry& m) {
         MakeCustom(s, m);
         m.Custom.Fv = "none";
     },
     "Please enter a value for the Fv.", "Text2"},
    {"custom with a negative E",
     [](Session& s, MemberEntry& m) {
         MakeCustom(s, m);
         m.Custom.E = "-1.6";
     },
     "Please enter a value for the E.", "Text4"},
    {"custom with more compression than a 16-bit number",
     [](Session& s, MemberEntry& m) {
         MakeCustom(s, m);
         m.Custom.FcPerp = "99999";
     },
     "Please enter a value for the Fc.", "Text3"},
    {"custom Fb beyond a 32-bit float",
     [](Session& s, MemberEntry& m) {
         MakeCustom(s, m);
         m.Custom.Fb = "1e39";
     },
     "Calc module, zero value error!", ""},
    {"custom Fv beyond a 32-bit float",
     [](Session& s, MemberEntry& m) {
         MakeCustom(s, m);
         m.Custom.Fv = "1e39";
     },
     "Please enter a value for the Fv.", "Text2"},
    {"deflection too small for its ratio",
     [](Session& s, MemberEntry&) {
         s.Problem.NoWeight = true;
         s.Problem.Loads.UNIF = s.Problem.Loads.LUNIF = "1e-38";
         Calculate(s);
     },
     "Error in deflection calc", ""},
    {"custom E beyond use",
     [](Session& s, MemberEntry& m) {
         MakeCustom(s, m);
         m.Custom.E = "1e-44";
     },
     "Error in deflection calc", ""},
    {"round without diameter",
     [](Session& s, MemberEntry& m) {
         MakeCustom(s, m);
         m.Custom.Roundoption = true;
     },
     "Please enter a valid numeric value for the diameter in inches.", "Diam"},
    {"breadth outside its family",
     [](Session& s, MemberEntry& m) {
         MakeCustom(s, m);
         m.Custom.Wid4x = true;
     },
     "Please enter a valid numeric BREADTH in the same format", "Text6"},
};

INSTANTIATE_TEST_SUITE_P(Entries, RefusedMemberTest, testing::ValuesIn(RefusedMembers), CaseName);

TEST(QuietTest, PassesOverTheNoteOnRepetitiveUse)
{
    Session session = PlainSession();
    session.Problem.Rep = true;
    Calculate(session);
    ScriptedUser user;
    EXPECT_EQ(TestMember(session, Member("6x", "10", "DF-L #1"), {.QuietTest = true}, user), Outcome::Done);
    EXPECT_EQ(session.Member.Factors.Cr, 1.15F);
    EXPECT_THAT(user.Told, SizeIs(0));
}

}  // namespace
}  // namespace kordavan
