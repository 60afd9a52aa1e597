#include "design/VolumeFactor.h"

#include <gtest/gtest.h>

#include <string>

#include "support/CaseName.h"

namespace kordavan {
namespace {

TEST(VolumeFactor, IsOneForTheReferenceBeam)
{
    EXPECT_EQ(VolumeFactor(21, {5.125, 12}, VolumeExponent(false), 1), 1);
}

TEST(VolumeFactor, FollowsTheVolumeOfTheBeam)
{
    // 6-3/4 x 24 on 30 ft: 0.7 * 0.5 * 0.759259 = 0.265741; ^0.1 = 0.87588, ^0.05 = 0.93589
    EXPECT_NEAR(VolumeFactor(30, {6.75, 24}, VolumeExponent(false), 1), 0.87588, 1e-5);
    EXPECT_NEAR(VolumeFactor(30, {6.75, 24}, VolumeExponent(true), 1), 0.93589, 1e-5);
    EXPECT_NEAR(VolumeFactor(30, {6.75, 24}, VolumeExponent(false), 1.09), 0.95471, 1e-5);
}

TEST(VolumeFactor, IsNeverAboveOne)
{
    EXPECT_EQ(VolumeFactor(10, {3.125, 9}, VolumeExponent(false), 1), 1);
    EXPECT_EQ(VolumeFactor(21, {5.125, 12}, VolumeExponent(false), 1.09), 1);
}

struct LoadingCase {
    std::string_view Name;
    double First;   // place of 1000 lb, ft of 30
    double Second;  // place of another, 0 for none
    double SecondLoad;
    double KL;
};

class LoadingConstantTest : public testing::TestWithParam<LoadingCase> {};

TEST_P(LoadingConstantTest, LooksAtPointLoadsAlone)
{
    BeamNumbers beam;
    beam.Span = 30;  // fifths of 6 ft
    beam.Nds = Edition::Nds1997;
    beam.Loads.PT[1] = 1000;
    beam.Loads.DIS[1] = GetParam().First;
    beam.Loads.PT[4] = GetParam().SecondLoad;
    beam.Loads.DIS[4] = GetParam().Second;
    EXPECT_EQ(LoadingConstant(beam), GetParam().KL) << GetParam().Name;
    beam.Nds = Edition::Nds2001;
    EXPECT_EQ(LoadingConstant(beam), 1);
    beam.Nds = Edition::Nds1997;
    beam.Loads.UNIF = 1;
    EXPECT_EQ(LoadingConstant(beam), 1) << "with a uniform load";
    beam.Loads.UNIF = 0;
    beam.Loads.PAR[0] = 1;
    EXPECT_EQ(LoadingConstant(beam), 1) << "with a partial load";
    beam.Loads.PAR[0] = 0;
    beam.Support = SupportCondition::Overhanging;
    EXPECT_EQ(LoadingConstant(beam), 1) << "with an overhang";
}

INSTANTIATE_TEST_SUITE_P(
    Loads, LoadingConstantTest,
    testing::Values(
        LoadingCase{"midspan", 15, 0, 0, 1.09}, LoadingCase{"at the edge of the middle", 13.5, 0, 0, 1.09},
        LoadingCase{"just outside it", 13.4, 0, 0, 1}, LoadingCase{"third points", 10, 20, 1000, 0.96},
        LoadingCase{"third points, told from the far end", 20, 10, 1000, 0.96},
        LoadingCase{"edges of the thirds", 9, 21, 1000, 0.96}, LoadingCase{"unequal loads", 10, 20, 900, 1},
        LoadingCase{"one off its third", 10, 22, 1000, 1}, LoadingCase{"both in one third", 10, 11, 1000, 1}),
    CaseName);

TEST(LoadingConstant, TakesNoThreePointLoads)
{
    BeamNumbers beam;
    beam.Span = 30;
    beam.Nds = Edition::Nds1997;
    for (std::size_t k = 0; k < 3; ++k) {
        beam.Loads.PT[k] = 500;
        beam.Loads.DIS[k] = 15;
    }
    EXPECT_EQ(LoadingConstant(beam), 1);
}

}  // namespace
}  // namespace kordavan
