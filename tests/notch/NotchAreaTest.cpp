#include "notch/NotchCheck.h"

#include <gtest/gtest.h>

#include <cmath>

#include "notch/NotchBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

/// Area of a circle of diameter d up to a height of dn, by strips of the chord.
double StripArea(double d, double dn)
{
    constexpr int strips = 200000;
    double area = 0;
    for (int strip = 0; strip < strips; ++strip) {
        const double fromCentre = (strip + 0.5) * dn / strips - d / 2;
        area += 2 * std::sqrt(d * d / 4 - fromCentre * fromCentre) * dn / strips;
    }
    return area;
}

TEST(NotchArea, OfALogIsTheCircleLessItsSegment)
{
    // 0.7854 d^2 is the circle to 5 digits: the area is off by as much, at most 4e-6 of d^2.
    for (const double dn : {15.99, 12.0, 9.0, 8.001, 8.0}) {
        NotchProblem problem = ReadNotchProblem(PlainNotch(Log), 2005);
        problem.Depth = 16;
        problem.DepthAtNotch = dn;
        EXPECT_NEAR(AreaAtNotch(problem), StripArea(16, dn), 4e-6 * 256 + 1e-5) << dn;
        EXPECT_FALSE(TrueAreaOfDeepCut(problem).has_value());
    }
}

TEST(NotchArea, OfALogCutBelowItsCentreIsToldTooGreatAndSoIsTheTruth)
{
    for (const double dn : {7.999, 7.0, 2.0, 0.01}) {
        NotchProblem problem = ReadNotchProblem(PlainNotch(Log), 2005);
        problem.Depth = 16;
        problem.DepthAtNotch = dn;
        const double remains = StripArea(16, dn);
        EXPECT_NEAR(AreaAtNotch(problem), 0.7854 * 256 + remains, 1e-5) << dn;
        ASSERT_TRUE(TrueAreaOfDeepCut(problem).has_value());
        EXPECT_NEAR(*TrueAreaOfDeepCut(problem), remains, 1e-5) << dn;
        problem.MemberType = Glulam;
        EXPECT_FALSE(TrueAreaOfDeepCut(problem).has_value());
    }
}

struct MinimumCase {
    std::string_view Name;
    NotchMember Member;
    NotchType Notch;
    std::int16_t Year;
    double Depth;
    double Dn;
    MinimumDnRule Rule;
};

class NotchMinimum : public testing::TestWithParam<MinimumCase> {};

TEST_P(NotchMinimum, FollowsMemberNotchAndYear)
{
    const MinimumCase& test = GetParam();
    NotchProblem problem = ReadNotchProblem(PlainNotch(test.Member, test.Notch), test.Year);
    problem.Depth = test.Depth;
    const NotchResult result = WorkOutNotch(problem);
    ExpectFigure(result.MinimumDn, test.Dn);
    EXPECT_EQ(result.Rule, test.Rule);
}

using Rule = MinimumDnRule;
INSTANTIATE_TEST_SUITE_P(
    Rules, NotchMinimum,
    testing::Values(MinimumCase{"sawn", Sawn, Tension, 2005, 10, 7.5, Rule::ThreeQuarters},
                    MinimumCase{"sawn compression", Sawn, Compression, 2005, 10, 7.5, Rule::ThreeQuarters},
                    MinimumCase{"sawn tapered", Sawn, Tapered, 1997, 10, 7.5, Rule::ThreeQuarters},
                    MinimumCase{"log", Log, Tension, 1997, 16, 12, Rule::ThreeQuarters},
                    MinimumCase{"log tapered", Log, Tapered, 2005, 16, 12, Rule::ThreeQuarters},
                    MinimumCase{"glulam compression", Glulam, Compression, 2005, 24, 14.4, Rule::ThreeFifths},
                    MinimumCase{"glulam tapered", Glulam, Tapered, 1997, 24, 7.992, Rule::OneThird},
                    MinimumCase{"glulam 1997", Glulam, Tension, 1997, 24, 21.6, Rule::NineTenths},
                    MinimumCase{"glulam 2001", Glulam, Tension, 2001, 24, 21, Rule::LessThreeInches},
                    MinimumCase{"glulam 2005", Glulam, Tension, 2005, 24, 21, Rule::LessThreeInches},
                    MinimumCase{"just under 30", Glulam, Tension, 2005, 29.9, 26.9, Rule::LessThreeInches},
                    MinimumCase{"alike at 30", Glulam, Tension, 2005, 30, 27, Rule::NineTenths},
                    MinimumCase{"beyond 30", Glulam, Tension, 2005, 36, 32.4, Rule::NineTenths},
                    MinimumCase{"glulam 2018", Glulam, Tension, 2018, 24, 21.6, Rule::NineTenths}),
    CaseName);

struct DepthCase {
    std::string_view Name;
    NotchMember Member;
    NotchType Notch;
    std::int16_t Year;
    std::string Depth;
    std::string Dn;
    NotchVerdict Verdict;
};

class NotchDepth : public testing::TestWithParam<DepthCase> {};

TEST_P(NotchDepth, PassesAtItsLeast)
{
    const DepthCase& test = GetParam();
    NotchEntry entry = PlainNotch(test.Member, test.Notch);
    entry.MaxVtextbox = "100";
    entry.depthtextbox = test.Depth;
    entry.dnTextbox = test.Dn;
    const NotchResult result = ResultOf(entry, test.Year);
    EXPECT_EQ(result.Verdict, test.Verdict);
    EXPECT_EQ(result.Verdict == NotchVerdict::DepthFails, std::stod(test.Dn) < result.MinimumDn);
}

// 0.9 x 10.5 and 0.333 x 36 are a hair above 9.45 and 11.988 in binary numbers.
INSTANTIATE_TEST_SUITE_P(
    Limits, NotchDepth,
    testing::Values(
        DepthCase{"below", Sawn, Tension, 2005, "9.25", "6.9374", NotchVerdict::DepthFails},
        DepthCase{"at", Sawn, Tension, 2005, "9.25", "6.9375", NotchVerdict::Passes},
        DepthCase{"above", Sawn, Tension, 2005, "9.25", "6.9376", NotchVerdict::Passes},
        DepthCase{"compression still 3 4", Sawn, Compression, 1997, "10", "7.4", NotchVerdict::DepthFails},
        DepthCase{"nine tenths", Glulam, Tension, 1997, "10.5", "9.45", NotchVerdict::Passes},
        DepthCase{"below nine tenths", Glulam, Tension, 1997, "10.5", "9.4499", NotchVerdict::DepthFails},
        DepthCase{"a third", Glulam, Tapered, 2005, "36", "11.988", NotchVerdict::Passes},
        DepthCase{"three fifths", Glulam, Compression, 2005, "18", "10.8", NotchVerdict::Passes}),
    CaseName);

}  // namespace
}  // namespace kordavan
