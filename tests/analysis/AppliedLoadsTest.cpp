#include "analysis/AppliedLoads.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/BeamBuilder.h"
#include "analysis/CandidateLoads.h"

namespace kordavan {
namespace {

constexpr double Relative = 1e-6;

void ExpectClose(double actual, double expected)
{
    EXPECT_NEAR(actual, expected, Relative * std::abs(expected) + 1e-6);
}

struct Analysed {
    StationTable Table;
    AppliedLoadResult Result;
};

Analysed Analyse(const BeamNumbers& beam, float previousInflection = 0)
{
    Analysed analysed;
    analysed.Result = ComputeAppliedLoads(beam, previousInflection, analysed.Table);
    return analysed;
}

float MomentAt(const Analysed& analysed, std::size_t station)
{
    return analysed.Table[StationColumn::Moment][station];
}

float ShearAt(const Analysed& analysed, std::size_t station)
{
    return analysed.Table[StationColumn::Shear][station];
}

TEST(SimpleSpan, UniformLoadPeaksAtMidspan)
{
    BeamNumbers beam = BeamOf(14);
    beam.Loads.UNIF = 60;
    beam.Loads.LUNIF = 40;
    const Analysed analysed = Analyse(beam);
    ExpectClose(analysed.Result.R1Applied, 420);  // w L / 2
    ExpectClose(analysed.Result.R2Live, 280);
    ExpectClose(analysed.Result.MaxMomentApplied, 1470);  // w L^2 / 8
    ExpectClose(analysed.Result.MaxMomentAtFt, 6.93);     // one step of 0.07 ft short of 7 ft
    EXPECT_EQ(ShearAt(analysed, 100), 0);
}

TEST(SimpleSpan, PointLoadOnAStationActsFromTheNextOneOn)
{
    BeamNumbers beam = BeamOf(10);
    SetPoint(beam, 2, 1000, 4);
    const Analysed analysed = Analyse(beam);
    ExpectClose(analysed.Result.R1Applied, 600);          // P (L - a) / L
    ExpectClose(analysed.Result.R2Applied, 400);          // P a / L
    ExpectClose(analysed.Result.MaxMomentApplied, 2400);  // P a (L - a) / L
    EXPECT_EQ(ShearAt(analysed, 80), 600);                // x = 4 ft
    EXPECT_EQ(ShearAt(analysed, 81), -400);
    EXPECT_EQ(analysed.Table.ForSlot(StationColumn::PointMoment, 2)[80], 0);
    ExpectClose(analysed.Table.ForSlot(StationColumn::PointMoment, 2)[81], 50);  // 1000 lb at 0.05 ft
    EXPECT_EQ(analysed.Table.ForSlot(StationColumn::PointShear, 2)[81], 1000);
    EXPECT_EQ(analysed.Table.ForSlot(StationColumn::PointMoment, 1)[200], 0);
}

TEST(SimpleSpan, PartialLoadFollowsStatics)
{
    BeamNumbers beam = BeamOf(12);
    SetPartial(beam, 0, 100, 3, 9, 60);  // 600 lb about midspan
    const Analysed analysed = Analyse(beam);
    ExpectClose(analysed.Result.R1Applied, 300);
    ExpectClose(analysed.Result.R1Live, 180);
    // At 6 ft: 300 * 6 - 100 * 3 * 1.5 = 1350
    ExpectClose(MomentAt(analysed, 100), 1350);
    // At 10.5 ft, beyond the load: 300 * 10.5 - 600 * 4.5 = 450
    ExpectClose(MomentAt(analysed, 175), 450);
    ExpectClose(ShearAt(analysed, 175), -300);
    ExpectClose(MomentAt(analysed, 200), 0);
}

TEST(SimpleSpan, AMirroredBeamSwapsItsReactions)
{
    BeamNumbers beam = BeamOf(18);
    SetPoint(beam, 0, 1500, 4, 900);
    SetPartial(beam, 0, 80, 1, 7, 50);
    beam.Loads.UNIF = 30;
    BeamNumbers mirrored = BeamOf(18);
    SetPoint(mirrored, 5, 1500, 14, 900);
    SetPartial(mirrored, 4, 80, 11, 17, 50);
    mirrored.Loads.UNIF = 30;
    const AppliedLoadResult one = Analyse(beam).Result;
    const AppliedLoadResult other = Analyse(mirrored).Result;
    ExpectClose(one.R1Applied, other.R2Applied);
    ExpectClose(one.R2Live, other.R1Live);
    ExpectClose(one.MaxMomentApplied, other.MaxMomentApplied);
    ExpectClose(one.R1Applied + one.R2Applied, 1500 + 480 + 540);
}

TEST(SimpleSpan, ALevelStretchOfMomentHasNoFalsePeak)
{
    BeamNumbers beam = BeamOf(14);
    SetPoint(beam, 0, 700, 3.5);
    SetPoint(beam, 1, 700, 10.5);
    const AppliedLoadResult result = Analyse(beam).Result;
    ExpectClose(result.MaxMomentApplied, 2450);  // P a
    ExpectClose(result.MaxMomentAtFt, 3.43);     // one step before the first load, nowhere on the level
}

TEST(SimpleSpan, AMomentThatNeverRisesLeavesZero)
{
    // The rise ends within the first step, which the search does not look at.
    BeamNumbers beam = BeamOf(20);
    SetPoint(beam, 0, 1000, 0.05);
    const AppliedLoadResult result = Analyse(beam).Result;
    EXPECT_EQ(result.MaxMomentStation, 0);
    EXPECT_EQ(result.MaxMomentApplied, 0);
    ExpectClose(result.R1Applied, 997.5);
}

TEST(HipValley, ReactionsKeepTheTriangleAndTheMomentTheEquivalentLoad)
{
    BeamNumbers beam = BeamOf(15, SupportCondition::HipValley);
    beam.IncreasingTotalLoad = 1500;
    beam.IncreasingLiveLoad = 900;
    beam.Loads.IncUnifTL = 20;
    beam.Loads.IncUnifLL = 10;
    beam.Loads.UNIF = 122.64;  // 1500 * 1.0264 / 15 + 20
    const AppliedLoadResult result = Analyse(beam).Result;
    ExpectClose(result.R1Applied, 650);   // 20 * 15 / 2 + 1500 / 3
    ExpectClose(result.R2Applied, 1150);  // 20 * 15 / 2 + 2 * 1500 / 3
    ExpectClose(result.R1Live, 375);
    ExpectClose(result.R2Live, 675);
    ExpectClose(result.TotalAppliedLoad, 1800);
    ExpectClose(result.MaxMomentApplied, 122.64 * 15 * 15 / 8);
}

BeamNumbers OverhangingDeck()
{
    BeamNumbers beam = BeamOf(12, SupportCondition::Overhanging);
    beam.Loads.UNIF = 100;
    beam.Loads.LUNIF = 60;
    SetPoint(beam, 4, 500, 4, 300);
    SetPartial(beam, 3, 100, 0, 4, 60);
    return beam;
}

TEST(Overhang, ReactionsTakeMomentsAboutR2)
{
    const AppliedLoadResult result = Analyse(OverhangingDeck()).Result;
    // Span 1200 lb at 6 ft = 7200; overhang 500 * 4 + 400 * 2 = 2800; R1 = 4400 / 12
    ExpectClose(result.R1Applied, 4400.0 / 12);
    ExpectClose(result.R2Applied, 2100 - 4400.0 / 12);
    ExpectClose(result.R1Live, (4320 - 1680) / 12.0);
    ExpectClose(result.OverhangMomentApplied, 2800);
    ExpectClose(result.OverhangLoadSum, 900);
    ExpectClose(result.OverhangFt, 4);
    EXPECT_EQ(result.MaxMomentApplied, result.OverhangMomentApplied);  // span peak R1^2 / (2 w) = 672
}

TEST(Overhang, InflectionIsTheLastStationWithNegativeMoment)
{
    const Analysed analysed = Analyse(OverhangingDeck());
    ExpectClose(analysed.Result.InflectionFt, 11.94);  // station 199 of 0.06 ft
    EXPECT_LT(MomentAt(analysed, 199), 0);
}

TEST(Overhang, InflectionOfTheCalculationBeforeStaysWithoutANegativeMoment)
{
    BeamNumbers beam = BeamOf(12, SupportCondition::Overhanging);
    beam.Loads.UNIF = 500;
    SetPoint(beam, 4, 1, 1);  // too light to turn any station's moment
    EXPECT_EQ(Analyse(beam, 7.5F).Result.InflectionFt, 7.5F);
    EXPECT_EQ(Analyse(BeamOf(12), 7.5F).Result.InflectionFt, 0);
}

TEST(Overhang, LoadOnTheTipAloneLiftsR1)
{
    BeamNumbers beam = BeamOf(10, SupportCondition::Overhanging);
    SetPoint(beam, 5, 800, 2.5);
    const AppliedLoadResult result = Analyse(beam).Result;
    ExpectClose(result.R1Applied, -200);
    ExpectClose(result.R2Applied, 1000);
    EXPECT_EQ(result.MaxMomentStation, 0);
    ExpectClose(result.MaxMomentApplied, 2000);
}

TEST(Overhang, LengthIsTheLargestNumber)
{
    LoadNumbers loads;
    loads.DIS[4] = 9;
    loads.DIS[5] = 10;
    loads.ENDP[3] = 3;
    EXPECT_EQ(OverhangLength(loads), 10);
    loads.ENDP[4] = 12.5;
    EXPECT_EQ(OverhangLength(loads), 12.5);
}

struct ContinuousCase {
    bool ThreeSpan;
    double R1;
    double R2;
    double Moment;
};

class ContinuousSpanTest : public testing::TestWithParam<ContinuousCase> {};

TEST_P(ContinuousSpanTest, FollowsThePublishedDiagrams)
{
    BeamNumbers beam = BeamOf(12, SupportCondition::MultipleSpans);
    beam.ThreeSpan = GetParam().ThreeSpan;
    beam.Loads.UNIF = 100;
    beam.Loads.LUNIF = 50;
    const Analysed analysed = Analyse(beam);
    ExpectClose(analysed.Result.R1Applied, GetParam().R1);
    ExpectClose(analysed.Result.R2Applied, GetParam().R2);
    ExpectClose(analysed.Result.R1Live, GetParam().R1 / 2);
    ExpectClose(analysed.Result.MaxMomentApplied, GetParam().Moment);
    ExpectClose(analysed.Table[StationColumn::Position][200], 12);
    EXPECT_EQ(MomentAt(analysed, 100), 0);
}

// w L = 1200 lb, w L^2 = 14400 ft-lb
INSTANTIATE_TEST_SUITE_P(Spans, ContinuousSpanTest,
                         testing::Values(ContinuousCase{false, 450, 1500, 1800},
                                         ContinuousCase{true, 480, 1320, 1440}));

TEST(AppliedLoads, ATableUsedBeforeKeepsNothingOfIt)
{
    BeamNumbers loaded = BeamOf(12);
    SetPoint(loaded, 0, 900, 2);
    SetPartial(loaded, 4, 70, 1, 8);
    BeamNumbers plain = BeamOf(12);
    plain.Loads.UNIF = 10;
    Analysed used = Analyse(loaded);
    ComputeAppliedLoads(plain, 0, used.Table);
    const Analysed fresh = Analyse(plain);
    for (std::size_t column = 0; column < StationColumnCount; ++column) {
        for (std::size_t i = 0; i < StationCount; ++i) {
            ASSERT_EQ(used.Table.ForSlot(StationColumn::Position, column)[i],
                      fresh.Table.ForSlot(StationColumn::Position, column)[i])
                << "column " << column << " station " << i;
        }
    }
}

TEST(AppliedLoads, OverflowIsSeen)
{
    BeamNumbers beam = BeamOf(1e30);
    beam.Loads.UNIF = 1e30;
    EXPECT_FALSE(IsFinite(Analyse(beam).Result));
    EXPECT_TRUE(IsFinite(Analyse(OverhangingDeck()).Result));
}

SectionProps SectionWeighing(float plf)
{
    SectionProps section;
    section.SelfWeightPlf = plf;
    return section;
}

TEST(CandidateLoads, SelfWeightOfASimpleSpanIsAddedAtMidspan)
{
    BeamNumbers beam = BeamOf(10);
    SetPoint(beam, 0, 1000, 2);
    const AppliedLoadResult applied = Analyse(beam).Result;
    const CandidateLoadResult loads = ComputeCandidateLoads(beam, SectionWeighing(8), applied);
    ExpectClose(loads.R1Total, 840);         // 800 + 8 * 10 / 2
    ExpectClose(loads.MaxMomentFtLb, 1700);  // 1600 at 2 ft + 8 * 100 / 8, wherever the peak lies
    ExpectClose(loads.TotalLoadWithSelf, 1080);
}

TEST(CandidateLoads, SelfWeightOfAnOverhangingBeamReachesItsTip)
{
    const BeamNumbers beam = OverhangingDeck();
    const AppliedLoadResult applied = Analyse(beam).Result;
    const CandidateLoadResult loads = ComputeCandidateLoads(beam, SectionWeighing(10), applied);
    ExpectClose(loads.R1Total, 4400.0 / 12 + 1280.0 / 24);         // (144 - 16) * 10 / 24
    ExpectClose(loads.R2Total, 2100 - 4400.0 / 12 + 2560.0 / 24);  // 16 * 16 * 10 / 24
    ExpectClose(loads.R1Total + loads.R2Total, 2100 + 160);
    ExpectClose(loads.OverhangMomentTotal, 2800 + 80);
    // The peak stands at 366.67 / 100 = 3.667 ft; station 61 of 0.06 ft is the last rise, 60 the one before.
    // 366.667 * 3.66 - 50 * 3.66^2 = 672.22; 10 * 3.6^2 / 2 = 64.8
    EXPECT_NEAR(loads.MaxMomentFtLb, 672.22 + 64.8, 0.005);
}

TEST(CandidateLoads, ContinuousBeamsTakeSelfWeightLikeTheirLoad)
{
    BeamNumbers beam = BeamOf(12, SupportCondition::MultipleSpans);
    beam.Loads.UNIF = 90;
    const CandidateLoadResult loads = ComputeCandidateLoads(beam, SectionWeighing(10), Analyse(beam).Result);
    ExpectClose(loads.R2Total, 1500);  // as 100 plf
    ExpectClose(loads.MaxMomentFtLb, 1800);
    ExpectClose(loads.SelfWeightTotal, 120);  // of one span
}

}  // namespace
}  // namespace kordavan
