#include "analysis/Shear.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/AppliedLoads.h"
#include "analysis/BeamBuilder.h"
#include "analysis/CandidateLoads.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

/// 12 in. deep, so that D is 1 ft; area 36 in2; weightless.
SectionProps FootDeep()
{
    return RectangleProps({.B = 3, .D = 12}, {.NoWeight = true, .DensityFactor = 0, .SlopeFactor = 1});
}

ShearResult ShearOf(const BeamNumbers& beam, const SectionProps& section = FootDeep())
{
    StationTable table;
    const AppliedLoadResult applied = ComputeAppliedLoads(beam, 0, table);
    const CandidateLoadResult loads = ComputeCandidateLoads(beam, section, applied);
    return ComputeShear(beam, section, {.FbPrime = 1000, .FvPrime = 100}, applied, loads);
}

void ExpectShear(double actual, double expected)
{
    EXPECT_NEAR(actual, expected, 1e-5 * std::abs(expected) + 1e-4);
}

TEST(Shear, UniformLoadWithinTheDepthIsLeftOut)
{
    BeamNumbers beam = BeamOf(10);
    beam.Loads.UNIF = 100;
    const ShearResult shear = ShearOf(beam);
    ExpectShear(shear.ShearMax, 500);
    ExpectShear(shear.ShearReduced, 400);
    ExpectShear(shear.SectionRequired, 1250 * 12 / 1000.0);
    ExpectShear(shear.ShearStressActual, 1.5 * 500 / 36);  // not asked to reduce
    ExpectShear(shear.AreaRequired, 1.5 * 500 / 100);
}

TEST(Shear, ReducedShearMakesTheStressWhenAskedFor)
{
    BeamNumbers beam = BeamOf(10);
    beam.Loads.UNIF = 100;
    beam.ReduceShear = true;
    ExpectShear(ShearOf(beam).AreaRequired, 1.5 * 400 / 100);
}

struct PointCase {
    std::string_view Name;
    Edition Code;
    double Place;
    double Reduced;
};

class PointInsideDepthTest : public testing::TestWithParam<PointCase> {};

TEST_P(PointInsideDepthTest, IsLeftOutByTheEditionsRule)
{
    BeamNumbers beam = BeamOf(10);
    beam.Nds = GetParam().Code;
    SetPoint(beam, 0, 1000, GetParam().Place);
    ExpectShear(ShearOf(beam).ShearReduced, GetParam().Reduced);
}

// R1 = 1000 (10 - a) / 10. At 0.5 ft R1 = 950: 1997 leaves out all 1000, so that R2 = 50 governs; later
// editions leave out 1000 (1 - 0.5) / 1 = 500. At exactly D nothing is left out. At 9.25 ft R2 = 925, less
// 250.
INSTANTIATE_TEST_SUITE_P(Places, PointInsideDepthTest,
                         testing::Values(PointCase{"1997 in full", Edition::Nds1997, 0.5, 50},
                                         PointCase{"2001 in proportion", Edition::Nds2001, 0.5, 450},
                                         PointCase{"2018 in proportion", Edition::Nds2018, 0.5, 450},
                                         PointCase{"at the depth", Edition::Nds1997, 1, 900},
                                         PointCase{"far end 1997", Edition::Nds1997, 9.25, 75},
                                         PointCase{"far end later", Edition::Nds2005, 9.25, 675}),
                         CaseName);

struct PartialCase {
    std::string_view Name;
    double Begin;
    double End;
    double LeftOut;  // ft of 200 plf
};

class PartialInsideDepthTest : public testing::TestWithParam<PartialCase> {};

TEST_P(PartialInsideDepthTest, IsLeftOutByLength)
{
    const PartialCase& c = GetParam();
    BeamNumbers beam = BeamOf(10);
    SetPartial(beam, 0, 200, c.Begin, c.End);
    const double load = 200 * (c.End - c.Begin);
    const double r1 = load * (10 - (c.Begin + c.End) / 2) / 10;
    const double r2 = load - r1;
    const bool atStart = c.End <= 5;
    const double expected =
        std::max(r1 - (atStart ? 200 * c.LeftOut : 0), r2 - (atStart ? 0 : 200 * c.LeftOut));
    ExpectShear(ShearOf(beam).ShearReduced, expected);
}

INSTANTIATE_TEST_SUITE_P(Places, PartialInsideDepthTest,
                         testing::Values(PartialCase{"over the depth", 0, 4, 1},
                                         PartialCase{"begins inside", 0.25, 4, 0.75},
                                         PartialCase{"wholly inside", 0.25, 0.75, 0.5},
                                         PartialCase{"ends exactly at the depth, kept", 0, 1, 0},
                                         PartialCase{"beyond", 2, 4, 0},
                                         PartialCase{"far end over", 6, 10, 1},
                                         PartialCase{"far end wholly inside", 9.25, 9.75, 0.5},
                                         PartialCase{"far end begins exactly there, kept", 9, 10, 0}),
                         CaseName);

TEST(Shear, HipValleyLeavesOutTheTriangleBesideR2)
{
    BeamNumbers beam = BeamOf(10, SupportCondition::HipValley);
    beam.IncreasingTotalLoad = 3000;
    beam.Loads.IncUnifTL = 10;
    beam.Loads.UNIF = 317.92;
    const ShearResult shear = ShearOf(beam);
    ExpectShear(shear.ShearMax, 2050);
    // V at 9 ft of the triangle: |1000 - 81 * 3000 / 100| = 1430; left out 2000 - 1430 = 570, and 10 plf * 1
    // ft
    ExpectShear(shear.ShearReduced, 2050 - 570 - 10);
}

TEST(Shear, OverhangTakesTheLargestOfItsThreeSections)
{
    BeamNumbers beam = BeamOf(10, SupportCondition::Overhanging);
    beam.Loads.UNIF = 100;
    SetPoint(beam, 4, 600, 2);
    SetPoint(beam, 5, 400, 0.5);
    // Overhang moment 1400: R1 = 500 - 140 = 360, R2 = 1640; overhang side 1000, span side 640
    const ShearResult shear = ShearOf(beam);
    ExpectShear(shear.ShearMax, 1000);
    // Overhang side at 1 ft: 400 lb at 0.5 ft loses half; the uniform load stops at R2
    ExpectShear(shear.ShearReduced, 800);
}

TEST(Shear, OverhangSpanSideLosesItsUniformLoadToo)
{
    BeamNumbers beam = BeamOf(10, SupportCondition::Overhanging);
    beam.Loads.UNIF = 300;
    SetPoint(beam, 4, 100, 2);
    // R1 = 1500 - 20 = 1480; R2 = 1620, span side 1520
    const ShearResult shear = ShearOf(beam);
    ExpectShear(shear.ShearMax, 1520);
    ExpectShear(shear.ShearReduced, 1220);
}

TEST(Shear, OverhangThatCannotBeComparedHasNoMaximum)
{
    BeamNumbers beam = BeamOf(10, SupportCondition::Overhanging);
    SetPoint(beam, 4, 1e300, 1);
    SetPoint(beam, 5, 1e300, 1);
    EXPECT_EQ(ShearOf(beam).Fault, ShearFault::NoMaximum);
}

TEST(Shear, ContinuousBeamsAreLargestAtTheFirstInteriorSupport)
{
    BeamNumbers beam = BeamOf(12, SupportCondition::MultipleSpans);
    beam.Loads.UNIF = 100;
    ExpectShear(ShearOf(beam).ShearMax, 750);  // 0.625 w L
    ExpectShear(ShearOf(beam).ShearReduced, 650);
    beam.ThreeSpan = true;
    ExpectShear(ShearOf(beam).ShearMax, 720);  // 0.6 w L
}

TEST(Shear, RoundMembersHaveTheFactorOfACircle)
{
    BeamNumbers beam = BeamOf(10);
    beam.Loads.UNIF = 100;
    const SectionProps round = RoundProps(12, {.NoWeight = true, .DensityFactor = 0, .SlopeFactor = 1});
    ExpectShear(round.A, 113.0976);  // 0.7854 * 144
    ExpectShear(ShearOf(beam, round).ShearStressActual, 1.33333 * 500 / 113.0976);
}

TEST(Sections, FollowTheirFormulas)
{
    const WeightBasis wood{.NoWeight = false, .DensityFactor = 0.243F, .SlopeFactor = 1.25F};
    const SectionProps joist = RectangleProps({.B = 1.5, .D = 9.25}, wood);
    ExpectShear(joist.S, 21.390625);  // NDS Supplement table 1B: 21.39
    ExpectShear(joist.I, 98.931641);  // 98.93
    ExpectShear(joist.SelfWeightPlf, 13.875 * 0.243 * 1.25);
    const SectionProps log = RoundProps(10, wood);
    ExpectShear(log.S, 98.1746);
    ExpectShear(log.I, 490.873);
    ExpectShear(log.SelfWeightPlf, 78.54 * 0.243 * 1.25);
}

}  // namespace
}  // namespace kordavan
