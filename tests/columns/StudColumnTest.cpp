#include "columns/StudColumn.h"

#include <gmock/gmock.h>

#include <string_view>

#include "columns/StudBuilder.h"
#include "columns/StudFactors.h"
#include "columns/StudStrength.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double Exact = 2e-6;  // of a figure, what single precision leaves

void ExpectFigure(double figure, double expected)
{
    EXPECT_NEAR(figure, expected, Exact * expected);
}

StudResult ResultOf(StudEntry stud, Edition edition)
{
    ScriptedUser user;
    const std::optional<StudTest> test = TestStud(stud, edition, user);
    EXPECT_TRUE(test.has_value());
    EXPECT_THAT(user.Told, IsEmpty());
    return test ? test->Result : StudResult{};
}

TEST(StudColumn, IsWorkedOutByHand)
{
    // 2x6 at 16 in., s = 4/3 ft: P = 600 s = 800 lb, w = 20 s = 26.667 plf, M = w 10^2 / 8 = 333.333 ft-lb.
    // A = 8.25 in^2, S = 1.5 x 5.5^2 / 6 = 7.5625 in^3, le/d = 120 / 5.5 = 21.81818.
    // Fb' = 1.3 x 900 x 1.6 x 1.15 = 2152.8, Fc* = 1.1 x 1350 = 1485.
    // FcE = 1.6e6 x 0.3653 x 0.822 / 476.0331 = 1009.263, r = 0.6796384, (1 + r) / 1.6 = 1.049774,
    // Cp = 1.049774 - sqrt(1.102025 - 0.8495480) = 0.5473027.
    // Pa = 1485 x Cp x 8.25 = 6705.142, fc = 800 / 8.25 = 96.96970, Fc' = 1485 Cp = 812.7444.
    // fb = 333.333 x 12 / 7.5625 = 528.9256; (fc/Fc')^2 = 0.01423540, 1 - fc/FcE = 0.9039203,
    // 528.9256 / (2152.8 x 0.9039203) = 0.2718069: together 0.2860423.
    // RB = sqrt(120 x 5.5 / 2.25) = 17.12698, FbE = 1.6e6 x 0.43836 / 293.3333 = 2391.055.
    StudEntry stud = PlainStud();
    stud.RepWindStud = true;
    const StudResult result = ResultOf(stud, Edition::Nds2018);
    ExpectFigure(result.P, 800);
    ExpectFigure(result.R1, 133.33333);
    ExpectFigure(result.MaxMoment, 333.33333);
    ExpectFigure(result.MaxMomentAtFt, 4.95);
    ExpectFigure(result.CFb, 1.3);
    ExpectFigure(result.CFc, 1.1);
    ExpectFigure(result.Cr, 1.15);
    ExpectFigure(result.FbPrime, 2152.8);
    ExpectFigure(result.Slenderness, 21.818182);
    ExpectFigure(result.FcE, 1009.26302);
    ExpectFigure(result.FcStar, 1485);
    ExpectFigure(result.Cp, 0.54730265);
    ExpectFigure(result.AllowableAxial, 6705.1416);
    ExpectFigure(result.FcActual, 96.969697);
    ExpectFigure(result.FcPrime, 812.74444);
    ExpectFigure(result.FbActual, 528.92562);
    ExpectFigure(result.Interaction.value(), 0.28604231);
    ExpectFigure(result.RB, 17.126977);
    ExpectFigure(result.FbE, 2391.0545);
    EXPECT_TRUE(result.Passes());
}

TEST(StudColumn, BucklesByTheRulesOfItsEdition)
{
    // Before 2005 FcE = 1.6e6 x 0.3 / 476.0331 = 1008.333 and FbE = 1.6e6 x 0.439 / 293.3333 = 2394.545;
    // r = 0.6790123, Cp = 1.049383 - sqrt(1.101204 - 0.8487654) = 0.5469500.
    for (const Edition edition : {Edition::Nds1997, Edition::Nds2001, Edition::None}) {
        const StudResult result = ResultOf(PlainStud(), edition);
        ExpectFigure(result.FcE, 1008.33333);
        ExpectFigure(result.Cp, 0.54694998);
        ExpectFigure(result.FbE, 2394.5455);
    }
    for (const Edition edition : {Edition::Nds2005, Edition::Nds2012, Edition::Nds2015}) {
        const StudResult result = ResultOf(PlainStud(), edition);
        ExpectFigure(result.FcE, 1009.26302);
        ExpectFigure(result.FbE, 2391.0545);
    }
}

TEST(StudColumn, LeavesDurationOutOfTheAxialLineAlone)
{
    // Cd 1.6: Fc* = 2376, r = 0.4247740, Cp = 0.8904837 - sqrt(0.7929613 - 0.5309675) = 0.3786304;
    // Pa = 1485 x Cp x 8.25 = 4638.696 lb without Cd, Fc' = 2376 Cp = 899.6259 psi with it. 4800 lb are
    // beyond the one, and at 581.8 psi with a fourth of the wind within the other.
    StudEntry stud = PlainStud();
    stud.AxialDurTextbox = "1.6";
    stud.AxialPLFtextbox = "";
    stud.Wind[0] = "5";
    stud.AxialPointTextbox = "4638.6";
    EXPECT_TRUE(ResultOf(stud, Edition::Nds2018).Passes());
    stud.AxialPointTextbox = "4800";
    const StudResult result = ResultOf(stud, Edition::Nds2018);
    ExpectFigure(result.AllowableAxial, 4638.6962);
    ExpectFigure(result.FcPrime, 899.62592);
    EXPECT_LT(result.Interaction.value(), 1);
    EXPECT_TRUE(result.AxialFails);
    EXPECT_FALSE(result.Passes());
}

/// 1.5 x 3 in., 12.5 ft high: le/d = 150 / 3 = 50, and with E = 1.0 FcE = 1e6 x 0.3 / 2500 = 120 psi, which
/// P = 120 x 4.5 = 540 lb reach.
StudColumnProblem SlenderStud(float P)
{
    StudColumnProblem stud;
    stud.StudHeight = 12.5F;
    stud.StudSpacing = 12;
    stud.Breadth = 1.5F;
    stud.Depth = 3;
    stud.BaseFb = 1000;
    stud.BaseFc = 1000;
    stud.BaseE = 1;
    stud.AxialPoint = P;
    stud.AxialCd = 1;
    stud.WindCd = 1;
    return stud;
}

StudResult WorkOut(const StudColumnProblem& stud, float maxMoment)
{
    StudMoment moment;
    moment.MaxMoment = maxMoment;
    return WorkOutStud(stud, {}, moment, Edition::Nds1997);
}

TEST(StudColumn, PassesAtASlendernessOf50)
{
    StudColumnProblem stud = SlenderStud(10);
    EXPECT_EQ(WorkOut(stud, 0).Slenderness, 50);
    EXPECT_TRUE(WorkOut(stud, 0).Passes());
    stud.StudHeight = 12.51F;
    EXPECT_TRUE(WorkOut(stud, 0).SlendernessOver50);
    EXPECT_FALSE(WorkOut(stud, 0).Passes());
}

TEST(StudColumn, HasNoInteractionWhereAxialLoadAloneBucklesIt)
{
    EXPECT_TRUE(WorkOut(SlenderStud(539), 1).Interaction.has_value());
    const StudResult at = WorkOut(SlenderStud(540), 1);
    ASSERT_EQ(at.FcActual, at.FcE);
    EXPECT_FALSE(at.Interaction.has_value());
    EXPECT_FALSE(InteractionOf(at).has_value());
    EXPECT_TRUE(at.InteractionFails);
    // Just beyond, the formula's growth of the moment turns below 0, and the figure with it.
    const StudResult beyond = WorkOut(SlenderStud(541), 1000);
    EXPECT_FALSE(beyond.Interaction.has_value());
    EXPECT_TRUE(beyond.InteractionFails);
    EXPECT_LT(InteractionOf(beyond).value(), 0);
    EXPECT_TRUE(IsFinite(beyond));
}

/// 1.5 x 6 in., 10 ft high: S = 9 in^3, RB^2 = 120 x 6 / 2.25 = 320.
StudColumnProblem BentStud(float Fb, float E)
{
    StudColumnProblem stud = SlenderStud(0);
    stud.StudHeight = 10;
    stud.Depth = 6;
    stud.BaseFb = Fb;
    stud.BaseE = E;
    return stud;
}

TEST(StudColumn, PassesAtAnInteractionOf1)
{
    const StudColumnProblem stud = BentStud(1000, 1.5F);  // 750 x 12 / 9 = 1000 psi
    EXPECT_EQ(WorkOut(stud, 750).Interaction, 1.0F);
    EXPECT_TRUE(WorkOut(stud, 750).Passes());
    EXPECT_TRUE(WorkOut(stud, 750.1F).InteractionFails);
    EXPECT_FALSE(WorkOut(stud, 750.1F).Passes());
}

TEST(StudColumn, FailsWhereBendingReachesItsBucklingStress)
{
    const StudColumnProblem stud = BentStud(3000, 0.8F);  // FbE = 0.8e6 x 0.439 / 320 = 1097.5 psi
    EXPECT_TRUE(WorkOut(stud, 823).Passes());
    const StudResult result = WorkOut(stud, 823.125F);  // x 12 / 9 = 1097.5 psi
    EXPECT_EQ(result.FbActual, result.FbE);
    EXPECT_TRUE(result.BendingBuckles);
    EXPECT_FALSE(result.InteractionFails);
    EXPECT_FALSE(result.Passes());
}

struct FactorCase {
    std::string_view Name;
    float Breadth;
    float Depth;
    float CFb;
    float CFc;
    float SpecialCr;
};

void PrintTo(const FactorCase& row, std::ostream* out)
{
    *out << row.Name;
}

class StudFactorTable : public testing::TestWithParam<FactorCase> {};

TEST_P(StudFactorTable, HasTheFactorsOfTheSize)
{
    StudColumnProblem stud;
    stud.Breadth = GetParam().Breadth;
    stud.Depth = GetParam().Depth;
    stud.RepetitiveIBC = true;  // counts for nothing while repetitive use is off
    const StudFactors factors = FindStudFactors(stud).value();
    EXPECT_EQ(factors.CFb, GetParam().CFb);
    EXPECT_EQ(factors.CFc, GetParam().CFc);
    EXPECT_EQ(factors.Cr, 1);
    EXPECT_FALSE(IsDeniedSpecialCr(stud));
    stud.RepetitiveNDS = true;
    EXPECT_EQ(FindStudFactors(stud)->Cr, GetParam().SpecialCr);
    EXPECT_EQ(IsDeniedSpecialCr(stud), GetParam().SpecialCr == 1.15F);
    stud.RepetitiveIBC = false;
    EXPECT_EQ(FindStudFactors(stud)->Cr, 1.15F);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, StudFactorTable,
    testing::Values(
        //         name       breadth depth  CFb   CFc    special Cr
        FactorCase{"2x4", 1.5F, 3.5F, 1.5F, 1.15F, 1.5F}, FactorCase{"3x4", 2.5F, 3.5F, 1.5F, 1.15F, 1.15F},
        FactorCase{"4x4", 3.5F, 3.5F, 1.5F, 1.15F, 1.15F},
        FactorCase{"two 2x4", 3.0F, 3.5F, 1.5F, 1.15F, 1.5F}, FactorCase{"2x6", 1.5F, 5.5F, 1.3F, 1.1F, 1.4F},
        FactorCase{"4x6", 3.5F, 5.5F, 1.3F, 1.1F, 1.15F},
        FactorCase{"three 2x6", 4.5F, 5.5F, 1.3F, 1.1F, 1.4F},
        FactorCase{"2x8", 1.5F, 7.25F, 1.2F, 1.05F, 1.3F}, FactorCase{"3x8", 2.5F, 7.25F, 1.2F, 1.05F, 1.15F},
        FactorCase{"4x8", 3.5F, 7.25F, 1.3F, 1.05F, 1.15F},
        FactorCase{"four 2x8", 6.0F, 7.25F, 1.2F, 1.05F, 1.3F}),
    CaseName);

TEST(StudColumn, OfStudGradeHasFactorsOfItsOwn)
{
    StudEntry stud = PlainStud();
    stud.WindStudCombo = "Hem-Fir Stud";
    stud.DepthCombo = 0;
    StudResult result = ResultOf(stud, Edition::Nds2018);
    EXPECT_EQ(result.CFb, 1.1F);
    EXPECT_EQ(result.CFc, 1.05F);
    stud.DepthCombo = 1;
    stud.BreadthCombo = 2;
    result = ResultOf(stud, Edition::Nds2018);
    EXPECT_EQ(result.CFb, 1);
    EXPECT_EQ(result.CFc, 1);
}

TEST(StudColumn, OfStudGradeEightInchesDeepIsRefused)
{
    ColumnSession columns;
    ScriptedUser user;
    columns.Stud = PlainStud();
    ASSERT_EQ(CalculateStud(columns, Edition::Nds2018, user), Outcome::Done);
    columns.Stud.WindStudCombo = "DF-L Stud";
    columns.Stud.DepthCombo = 2;
    columns.Stud.BreadthCombo = 1;
    columns.Stud.RepWindStud = true;
    columns.Stud.RepIBCCheck = true;
    EXPECT_EQ(CalculateStud(columns, Edition::Nds2018, user), Outcome::Refused);
    EXPECT_THAT(user.Told,
                ElementsAre(RefusalOf(
                    "Stud grade members with an 8 inch depth will default to Grade No. 3 values. We "
                    "recommend that you select a No.2 grade or select a shallower stud depth.",
                    "DepthCombo")));
    EXPECT_TRUE(columns.Stud.RepIBCCheck);
    ASSERT_TRUE(columns.StudRun.has_value());  // of the run before
    EXPECT_EQ(columns.StudRun->Entry, PlainStud());
}

TEST(StudColumn, UnchecksTheSpecialFactorOfWhatIsNoTwoBy)
{
    StudEntry stud = PlainStud();
    stud.BreadthCombo = 2;
    stud.RepWindStud = true;
    stud.RepIBCCheck = true;
    ScriptedUser user;
    const std::optional<StudTest> test = TestStud(stud, Edition::Nds2018, user);
    EXPECT_THAT(user.Told, ElementsAre(AlertOf(
                               "This is not a 2x member and doesn't qualify for special IBC repetitive use "
                               "factors.  The NDS Repetitive use factor is reset to the normal 1.15 and "
                               "the IBC factor has been unchecked for you.",
                               "RepIBCCheck")));
    EXPECT_FALSE(stud.RepIBCCheck);
    ASSERT_TRUE(test.has_value());
    EXPECT_EQ(test->Entry, stud);
    EXPECT_FALSE(test->Problem.RepetitiveIBC);
    EXPECT_EQ(test->Result.Cr, 1.15F);
    ExpectFigure(test->Result.FbPrime, 2152.8);
}

TEST(StudColumn, IsRefusedWhereItsFiguresAreNoNumbers)
{
    constexpr std::string_view notFinite =
        "The stud could not be worked out, because a load, a length or a value is far too large or too small.";
    StudEntry tooShort = PlainStud();
    tooShort.WindStudHt = tooShort.End[0] = "1e-40";
    StudEntry tooHeavy = PlainStud();
    tooHeavy.AxialPointTextbox = "1e39";
    StudEntry tooWindy = PlainStud();
    tooWindy.Wind[0] = "1e38";
    for (const StudEntry& stud : {tooShort, tooHeavy, tooWindy}) {
        ColumnSession columns;
        columns.Stud = stud;
        ScriptedUser user;
        EXPECT_EQ(CalculateStud(columns, Edition::Nds2018, user), Outcome::Refused);
        EXPECT_THAT(user.Told, ElementsAre(RefusalOf(notFinite)));
        EXPECT_FALSE(columns.StudRun.has_value());
    }
}

TEST(StudColumn, KeepsWhatItWasWorkedOutFrom)
{
    ColumnSession columns;
    columns.Stud = PlainStud();
    columns.Stud.BreadthCombo = 9;  // of no list
    columns.Stud.WindStudSpacing = "";
    ScriptedUser user;
    EXPECT_EQ(CalculateStud(columns, Edition::Nds2012, user), Outcome::Done);
    ASSERT_TRUE(columns.StudRun.has_value());
    const StudTest& test = *columns.StudRun;
    EXPECT_EQ(test.Nds, Edition::Nds2012);
    EXPECT_EQ(test.Entry.WindStudSpacing, "12");
    EXPECT_EQ(test.Problem.Breadth, 1.5F);
    ExpectFigure(test.Result.P, 600);
    ExpectFigure(test.Stations[100].Moment, 250);  // 20 x 10^2 / 8
}

}  // namespace
}  // namespace kordavan
