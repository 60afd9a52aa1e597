#include "notch/NotchCheck.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "notch/NotchBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

constexpr std::optional<double> None;

struct ShearCase {
    std::string_view Name;
    NotchMember Member;
    NotchType Notch;
    std::int16_t Year;
    std::string E;
    std::optional<double> Fv;
    std::optional<double> V;
};

class NotchShear : public testing::TestWithParam<ShearCase> {};

TEST_P(NotchShear, FollowsTheRuleOfItsYear)
{
    const ShearCase& test = GetParam();
    NotchEntry entry = PlainNotch(test.Member, test.Notch);
    entry.eTextbox = test.E;
    const NotchResult result = ResultOf(entry, test.Year);
    ExpectFigure(result.CriticalFv, test.Fv);
    ExpectFigure(result.AllowableV, test.V);
    EXPECT_EQ(result.ResultIsV, test.V.has_value());
    ExpectFigure(result.RatioPercent, test.V ? 2000 / *test.V * 100 : *test.Fv / 180 * 100);
}

// V = 2000 lb, b 3.5, d 10, dn 8 in., Fv' = 180 psi, 2/3 Fv' = 120.00006 psi.
// Rectangle: An = 28; 3 V / (2 An) = 107.142857, by d / dn = 1.25 133.928571; 120.00006 An = 3360.00168, by
// 0.8^2 2150.4010752. Over a setback of 8: d - (2 / 8) 8 = 8 in. carry, as An does; of 4: 9 in.:
// 3 V / (2 x 3.5 x 9) = 95.2380952, 120.00006 x 3.5 x 9 = 3780.00189.
// Log: r = 5, 3 in. above the centre the half chord is 4 and the angle 2 atan(4 / 3) = 106.2602047 degrees;
// sector 23.18238045, less 12 leaves a segment of 11.18238045: An = 78.54 - 11.18238045 = 67.35761955.
// 3000 / An = 44.5383911, by 1.25 55.6729888; 120.00006 An = 8082.9183874, by 0.64 5173.0677680.
INSTANTIATE_TEST_SUITE_P(
    Rules, NotchShear,
    testing::Values(ShearCase{"sawn tension", Sawn, Tension, 1997, "4", 937.5 / 7, None},
                    ShearCase{"sawn tension", Sawn, Tension, 2001, "4", None, 2150.4010752},
                    ShearCase{"sawn tension", Sawn, Tension, 2005, "4", None, 2150.4010752},
                    ShearCase{"glulam tension", Glulam, Tension, 1997, "", 937.5 / 7, None},
                    ShearCase{"glulam tension", Glulam, Tension, 2001, "", None, 2150.4010752},
                    ShearCase{"glulam tension", Glulam, Tension, 2005, "", None, 2150.4010752},
                    ShearCase{"e blank", Sawn, Compression, 1997, "", 600.0 / 7, None},
                    ShearCase{"e blank", Sawn, Compression, 2005, " ", None, 4200.0021},
                    ShearCase{"e zero", Sawn, Compression, 2001, "0", None, 4200.0021},
                    ShearCase{"e 4", Glulam, Compression, 1997, "4", 2000.0 / 21, None},
                    ShearCase{"e 4", Glulam, Compression, 2001, "4", None, 3780.00189},
                    ShearCase{"e 4", Sawn, Compression, 2005, "4", None, 3780.00189},
                    ShearCase{"e is dn", Sawn, Compression, 1997, "8", 750.0 / 7, None},
                    ShearCase{"e is dn", Sawn, Compression, 2001, "8", None, 3360.00168},
                    ShearCase{"e is dn", Glulam, Compression, 2005, "8", None, 3360.00168},
                    ShearCase{"e above dn", Sawn, Compression, 1997, "8.001", 750.0 / 7, None},
                    ShearCase{"e above dn", Glulam, Compression, 2001, "8.001", 750.0 / 7, None},
                    ShearCase{"e above dn", Sawn, Compression, 2005, "8.001", 750.0 / 7, None},
                    ShearCase{"sawn tapered", Sawn, Tapered, 1997, "", 750.0 / 7, None},
                    ShearCase{"sawn tapered", Sawn, Tapered, 2001, "4", None, 3360.00168},
                    ShearCase{"glulam tapered", Glulam, Tapered, 1997, "", 750.0 / 7, None},
                    ShearCase{"glulam tapered", Glulam, Tapered, 2005, "", None, 3360.00168},
                    ShearCase{"log tension", Log, Tension, 1997, "", 55.672988818, None},
                    ShearCase{"log tension", Log, Tension, 2001, "", None, 5173.067767969},
                    ShearCase{"log tension", Log, Tension, 2005, "", None, 5173.067767969},
                    ShearCase{"log by its b", Log, Compression, 1997, "4", 2000.0 / 21, None},
                    ShearCase{"log by its b", Log, Compression, 2005, "4", None, 3780.00189},
                    ShearCase{"log e above dn", Log, Compression, 1997, "9", 44.538391054, None},
                    ShearCase{"log e above dn", Log, Compression, 2005, "9", 44.538391054, None},
                    ShearCase{"log tapered", Log, Tapered, 1997, "", 44.538391054, None},
                    ShearCase{"log tapered", Log, Tapered, 2001, "", None, 8082.918387452}),
    CaseName);

TEST(NotchCheck, WorksNoShearOutWhereTheYearHasNoRule)
{
    for (const NotchType notch : {Tension, Compression, Tapered}) {
        for (const std::int16_t year : std::array<std::int16_t, 3>{2012, 2015, 2018}) {
            const NotchResult result = ResultOf(PlainNotch(Sawn, notch), year);
            EXPECT_FALSE(result.IsComputed());
            EXPECT_FALSE(result.CriticalFv || result.AllowableV || result.RatioPercent);
            EXPECT_EQ(result.AdjustedFv, 180);
            EXPECT_EQ(result.AreaAtNotch, 28);
            EXPECT_EQ(result.MinimumDn, 7.5);
            EXPECT_EQ(result.MinSpan.has_value(), notch == Tapered);
        }
    }
}

struct FactorCase {
    std::string_view Name;
    NotchMember Member;
    std::string Depth;
    bool IsWet;
    double Cm;
};

class NotchFactors : public testing::TestWithParam<FactorCase> {};

TEST_P(NotchFactors, MultiplyFv)
{
    const FactorCase& test = GetParam();
    NotchEntry entry = PlainNotch(test.Member);
    entry.depthtextbox = test.Depth;
    entry.dnTextbox = "4";
    entry.WetUseCheckbox = test.IsWet;
    EXPECT_EQ(ReadNotchProblem(entry, 2005).Cm, test.Cm);
    ExpectFigure(ResultOf(entry, 2005).AdjustedFv, 180 * test.Cm);
    entry.NoSplitCheckbox = true;
    EXPECT_EQ(ReadNotchProblem(entry, 2005).Ch, 2);
    constexpr std::array durations{1.0, 1.15, 1.25, 0.9};
    for (std::size_t line = 0; line < durations.size(); ++line) {
        entry.DurListbox = static_cast<int>(line);
        ExpectFigure(ResultOf(entry, 2005).AdjustedFv, 360 * test.Cm * durations[line]);
    }
}

INSTANTIATE_TEST_SUITE_P(WetUse, NotchFactors,
                         testing::Values(FactorCase{"dry", Glulam, "10", false, 1.0},
                                         FactorCase{"sawn", Sawn, "10", true, 0.97},
                                         FactorCase{"thin log", Log, "4.99", true, 0.97},
                                         FactorCase{"log of 5", Log, "5", true, 1.0},
                                         FactorCase{"thick log", Log, "5.01", true, 1.0},
                                         FactorCase{"glulam", Glulam, "10", true, 0.875}),
                         CaseName);

TEST(NotchCheck, TakesAFactorOf0As1)
{
    NotchProblem problem = ReadNotchProblem(PlainNotch(), 2005);
    problem.Cm = problem.Cd = 0;
    problem.Ch = 0;
    EXPECT_EQ(WorkOutNotch(problem).AdjustedFv, 180);
}

TEST(NotchCheck, FailsAboveARatioOf100AndThenWhateverDnIs)
{
    // 2/3 x 180 x 3.5 x 8 by 0.666667 allows 3360.00168 lb; V = 2688 lb with 1997 in tension gives 180 psi.
    NotchProblem problem = ReadNotchProblem(PlainNotch(Sawn, Tension), 1997);
    problem.MaxV = 2688;
    EXPECT_EQ(WorkOutNotch(problem).RatioPercent, 100);
    EXPECT_EQ(WorkOutNotch(problem).Verdict, NotchVerdict::Passes);
    problem.MaxV = 2688.01;
    EXPECT_EQ(WorkOutNotch(problem).Verdict, NotchVerdict::RatioFails);
    problem.DepthAtNotch = 5;
    EXPECT_EQ(WorkOutNotch(problem).Verdict, NotchVerdict::RatioFails);
    problem.Notch = Tapered;
    problem.NdsYear = 2005;
    problem.DepthAtNotch = 8;
    problem.MaxV = 3360;
    EXPECT_EQ(WorkOutNotch(problem).Verdict, NotchVerdict::Passes);
    problem.MaxV = 3360.01;
    EXPECT_EQ(WorkOutNotch(problem).Verdict, NotchVerdict::RatioFails);
}

TEST(NotchCheck, KeepsATaperOutOfTheMiddleThird)
{
    // Three times the setback, or the level cut: (9.25 - 8) / sin 45 = 1.767767 in., by 3 / 12 0.4419417 ft.
    NotchEntry entry = PlainNotch(Sawn, Tapered);
    ExpectFigure(ResultOf(entry, 2005).MinSpan, 1.25 * std::sqrt(2) / 4);
    ExpectFigure(ResultOf(entry, 2005).TaperAngle, 45);
    entry.eTextbox = "4";
    ExpectFigure(ResultOf(entry, 2005).MinSpan, 1);
    entry.eTextbox = "0";
    entry.rdTextbox = "8";  // no cut: the wall's 5.5 in.
    ExpectFigure(ResultOf(entry, 2005).MinSpan, 1.375);
    entry.NotchListBox = 0;
    EXPECT_FALSE(ResultOf(entry, 2005).MinSpan || ResultOf(entry, 2005).TaperAngle);
}

TEST(NotchCheck, TakesAPitchAbove24AsDegrees)
{
    ExpectFigure(RoofAngle(4), 18.434948822922);   // tan = 1 / 3
    ExpectFigure(RoofAngle(24), 63.434948822922);  // tan = 2
    ExpectFigure(RoofAngle(24.5), 24.5);
}

}  // namespace
}  // namespace kordavan
