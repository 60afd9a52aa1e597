#include "analysis/Deflection.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/AppliedLoads.h"
#include "analysis/BeamBuilder.h"
#include "analysis/CandidateLoads.h"
#include "core/NumberText.h"

namespace kordavan {
namespace {

/// E I of 1e6 psi times 1000 in4, weightless unless told.
SectionProps StiffSection(float selfWeightPlf = 0)
{
    SectionProps section;
    section.I = 1000;
    section.SelfWeightPlf = selfWeightPlf;
    return section;
}

constexpr double EI = 1e9;

DeflectionResult DeflectionOf(const BeamNumbers& beam, float selfWeightPlf = 0)
{
    StationTable table;
    const SectionProps section = StiffSection(selfWeightPlf);
    const AppliedLoadResult applied = ComputeAppliedLoads(beam, 0, table);
    return ComputeDeflection(beam, section, 1.0, applied, ComputeCandidateLoads(beam, section, applied));
}

/// Steel has no creep, so that what is worked out is what comes out.
BeamNumbers WithoutCreep(BeamNumbers beam)
{
    beam.Group = SpeciesGroup::Steel;
    return beam;
}

void ExpectWithin(double actual, double expected, double relative)
{
    EXPECT_NEAR(actual, expected, relative * std::abs(expected));
}

constexpr double Exact = 2e-6;

TEST(Deflection, UniformLoadIsThirteenThousandths)
{
    BeamNumbers beam = WithoutCreep(BeamOf(10));
    beam.Loads.UNIF = 100;
    // 0.013 W L^3 / E I with W = 1000 lb, L = 120 in.; the closed form has 5/384 = 0.01302
    ExpectWithin(DeflectionOf(beam).TotalDeflIn, 0.013 * 1000 * 1728000 / EI, Exact);
    ExpectWithin(DeflectionOf(beam).TotalDeflIn, 5.0 / 384 * 1000 * 1728000 / EI, 0.002);
}

TEST(Deflection, PointLoadAtMidspanComesWithinOnePercentOfTheClosedForm)
{
    BeamNumbers beam = WithoutCreep(BeamOf(10));
    SetPoint(beam, 0, 1000, 5);
    ExpectWithin(DeflectionOf(beam).TotalDeflIn, 0.013 * 1728000 * 6.35 * 1000 * 25 / 100 / EI, Exact);
    ExpectWithin(DeflectionOf(beam).TotalDeflIn, 1000.0 * 1728000 / 48 / EI, 0.01);
}

TEST(Deflection, PartialLoadIsTheSumOfItsStrips)
{
    BeamNumbers beam = WithoutCreep(BeamOf(10));
    SetPartial(beam, 0, 120, 2, 7);
    const double dx = 10.0 / 200;
    double equivalent = 0;
    for (int i = 0; i <= 200; ++i) {
        if (i * 5 > 200 && i * 5 < 700) {  // 2 ft < x < 7 ft, in hundredths
            equivalent += (10 - i * dx) * (6.35 * 120 * dx * dx * i) / 100;
        }
    }
    ExpectWithin(DeflectionOf(beam).TotalDeflIn, 0.013 * 1728000 * equivalent / EI, Exact);
}

TEST(Deflection, CreepWorksOnTheDeadPartAlone)
{
    BeamNumbers beam = BeamOf(10);
    beam.Loads.UNIF = 100;
    beam.Loads.LUNIF = 60;
    const double live = 0.013 * 600 * 1728000 / EI;
    const double dead = 0.013 * 400 * 1728000 / EI;
    const DeflectionResult dry = DeflectionOf(beam);
    ExpectWithin(dry.LiveDeflIn, live, Exact);
    ExpectWithin(dry.DeadDeflIn, 1.5 * dead, Exact);
    ExpectWithin(dry.TotalDeflIn, live + 1.5 * dead, Exact);
    ExpectWithin(dry.TotalDeflRatio, 120 / (live + 1.5 * dead), Exact);
    EXPECT_EQ(dry.AllowTotalDeflIn, 0.5F);
    beam.Wet = true;
    ExpectWithin(DeflectionOf(beam).DeadDeflIn, 2 * dead, Exact);
}

TEST(Deflection, WithoutLiveLoadHasNoLiveFiguresAndAllOfItCreeps)
{
    BeamNumbers beam = BeamOf(10);
    beam.Loads.UNIF = 100;
    const DeflectionResult result = DeflectionOf(beam);
    EXPECT_EQ(result.LiveDeflIn, 0);
    EXPECT_EQ(result.AllowLiveDeflIn, 0);
    EXPECT_EQ(result.LiveDeflRatio, 0);
    ExpectWithin(result.TotalDeflIn, 1.5 * 0.013 * 1000 * 1728000 / EI, Exact);
}

TEST(Deflection, ContinuousBeamsFollowThePublishedDiagrams)
{
    BeamNumbers beam = WithoutCreep(BeamOf(10, SupportCondition::MultipleSpans));
    beam.Loads.UNIF = 90;
    ExpectWithin(DeflectionOf(beam, 10).TotalDeflIn, 1000.0 * 1728000 / 185 / EI, Exact);
    beam.ThreeSpan = true;
    ExpectWithin(DeflectionOf(beam, 10).TotalDeflIn, 4 * 1000.0 * 1728000 / 581 / EI, Exact);
    // The handbooks' 0.0069 w L^4 / E I
    ExpectWithin(DeflectionOf(beam, 10).TotalDeflIn, 0.0069 * 1000.0 * 1728000 / EI, 0.003);
}

/// 10 ft span, 4 ft overhang, loads as told by each test.
BeamNumbers OverhangingBeam()
{
    return WithoutCreep(BeamOf(10, SupportCondition::Overhanging));
}

TEST(TipDeflection, PointLoadAtTheTipDropsItAndLiftsTheSpan)
{
    BeamNumbers beam = OverhangingBeam();
    SetPoint(beam, 4, 500, 4);
    const DeflectionResult result = DeflectionOf(beam);
    // P a^2 (L + a) / (3 E I), a = 48 in.
    ExpectWithin(result.TipDeflIn, 500.0 * 48 * 48 * (120 + 48) / 3 / EI, Exact);
    // Lift of the span by the moment P a at R2: 0.06415 M L^2 / (E I)
    ExpectWithin(result.TotalDeflIn, -0.06415 * 500 * 48 * 120 * 120 / EI, Exact);
    EXPECT_EQ(result.AllowTipDeflIn, 0.4F);  // twice the overhang over 240
    ExpectWithin(result.TipDeflRatio, 96 / result.TipDeflIn, Exact);
}

TEST(TipDeflection, UniformLoadOnTheSpanLiftsTheTip)
{
    BeamNumbers beam = OverhangingBeam();
    beam.Loads.UNIF = 120;
    SetPoint(beam, 4, 1e-6, 4);  // the overhang reaches to its last load
    // w L^3 a / (24 E I) with w = 10 lb per in.
    ExpectWithin(DeflectionOf(beam).TipDeflIn, -10.0 * 1728000 * 48 / 24 / EI, 1e-4);
}

TEST(TipDeflection, PointLoadOnTheSpanLiftsTheTip)
{
    BeamNumbers beam = OverhangingBeam();
    SetPoint(beam, 0, 1000, 6);
    SetPoint(beam, 4, 1e-6, 4);
    // P a (L - a)(L + a) c / (6 E I L), a = 72 in.
    ExpectWithin(DeflectionOf(beam).TipDeflIn, -1000.0 * 72 * 48 * 192 * 48 / (6 * 120.0) / EI, 1e-4);
}

TEST(TipDeflection, PartialLoadsAreTheSumsOfTheirStrips)
{
    BeamNumbers beam = OverhangingBeam();
    SetPartial(beam, 0, 100, 2, 8);
    SetPartial(beam, 3, 80, 1, 4);
    double lift = 0;
    double equivalent = 0;
    for (int i = 41; i <= 159; ++i) {  // 2 ft < 0.05 i < 8 ft
        const double s = i * 0.6;
        lift += 0.05 * 100 * s * (120 - s) * 48 * (s + 120) / (6 * 10 * 12.0);
        equivalent += (10 - 0.05 * i) * (6.35 * 100 * 0.0025 * i) / 100;
    }
    double drop = 0;
    double spanLift = 0;
    for (int i = 26; i <= 99;
         ++i) {  // 1 ft < 0.04 i < 4 ft; the station at the load's very end does not count
        const double t = 12 * 4.0 * i / 100;
        drop += t * t * (80 * 12 * 4.0 / 100) / 3 * (48 - t);
        spanLift += 14400 * (0.04 * 80) * t * 0.06415;
    }
    const DeflectionResult result = DeflectionOf(beam);
    ExpectWithin(result.TipDeflIn, (drop - lift) / EI, 1e-5);
    ExpectWithin(result.TotalDeflIn, (0.013 * 1728000 * equivalent - spanLift) / EI, 1e-5);
}

TEST(TipDeflection, StationAtTheVeryEndOfALoadDoesNotCountHoweverItsDecimalsRound)
{
    BeamNumbers beam = OverhangingBeam();
    SetPartial(beam, 3, 100, 0, 2.3);  // no 32-bit float is 2.3
    const double c = 27.6;             // in.
    double drop = 0;
    for (int i = 1; i <= 99; ++i) {
        const double t = c * i / 100;
        drop += t * t * c / 3 * (c - t);  // 100 plf * c / 100
    }
    ExpectWithin(DeflectionOf(beam).TipDeflIn, drop / EI, 1e-5);
    // Span lift: sum of t = 4950 c / 100
    ExpectWithin(DeflectionOf(beam).TotalDeflIn, -14400 * 2.3 * 49.5 * c * 0.06415 / EI, 1e-5);
}

TEST(TipDeflection, SelfWeightActsOnBothSides)
{
    BeamNumbers beam = OverhangingBeam();
    SetPoint(beam, 4, 1e-6, 4);
    const double w = 24;  // plf: 2 lb per in.
    const double drop = 48.0 * 48 * 48 * 2 / 24 * (3 * 48 + 4 * 120);
    const double lift = 1728000.0 * 2 * 48 / 24;
    const DeflectionResult result = DeflectionOf(beam, static_cast<float>(w));
    ExpectWithin(result.TipDeflIn, (drop - lift) / EI, 1e-4);
    ExpectWithin(result.TotalDeflIn, (1728000 * 0.013 * w * 10 - 14400.0 * 48 * 48 * 2 * 0.03208) / EI, 1e-4);
}

TEST(TipDeflection, LiveLoadsMakeASecondPassWithoutSelfWeight)
{
    BeamNumbers beam = BeamOf(10, SupportCondition::Overhanging);
    SetPoint(beam, 4, 500, 4, 200);
    const DeflectionResult result = DeflectionOf(beam, 0);
    const double per = 48.0 * 48 * 168 / 3 / EI;
    ExpectWithin(result.TipLiveDeflIn, 200 * per, Exact);
    ExpectWithin(result.TipDeadDeflIn, 1.5 * 300 * per, 1e-5);
    EXPECT_EQ(result.AllowTipLiveDeflIn, Single(96.0 / 360));
}

TEST(Deflection, SeesWhatIsNotFinite)
{
    BeamNumbers beam = BeamOf(10);
    beam.Loads.UNIF = 100;
    StationTable table;
    const AppliedLoadResult applied = ComputeAppliedLoads(beam, 0, table);
    const SectionProps section = StiffSection();
    EXPECT_FALSE(IsFinite(
        ComputeDeflection(beam, section, 0, applied, ComputeCandidateLoads(beam, section, applied))));
}

}  // namespace
}  // namespace kordavan
