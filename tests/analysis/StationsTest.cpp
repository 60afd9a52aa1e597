#include "analysis/Stations.h"

#include <gtest/gtest.h>

#include "support/CaseName.h"

namespace kordavan {
namespace {

struct PlaceCase {
    double Length;
    double Place;
    int FirstBeyond;
    int LastBefore;
};

class StationPlaceTest : public testing::TestWithParam<PlaceCase> {};

TEST_P(StationPlaceTest, CountsAStationOnThePlaceOnNeitherSide)
{
    const PlaceCase& c = GetParam();
    const StationLine line{c.Length, 200};
    EXPECT_EQ(line.FirstBeyond(c.Place), c.FirstBeyond);
    EXPECT_EQ(line.LastBefore(c.Place), c.LastBefore);
}

// 14 ft in 200 steps of 0.07 ft: 100 * 0.07 is more than 7 in binary, and yet station 100 stands at 7 ft; 2.3
// * 200 is less than 46 * 10.
INSTANTIATE_TEST_SUITE_P(Places, StationPlaceTest,
                         testing::Values(PlaceCase{14, 7, 101, 99}, PlaceCase{14, 7.001, 101, 100},
                                         PlaceCase{14, 6.999, 100, 99}, PlaceCase{14, 0, 1, -1},
                                         PlaceCase{14, 14, 201, 199}, PlaceCase{14, 20, 201, 200},
                                         PlaceCase{0.3, 0.0015, 2, 0}, PlaceCase{10, 0.7, 15, 13},
                                         PlaceCase{10, 2.3, 47, 45}, PlaceCase{14, 4.9, 71, 69},
                                         PlaceCase{16, 1e300, 201, 200}),
                         CaseName);

TEST(StationSums, EqualTheSumsStationByStation)
{
    const StationLine line{12, 200};
    const double begin = 2.5;
    const double end = 9.12;  // on station 152, which is not counted
    double first = 0;
    double second = 0;
    double third = 0;
    double count = 0;
    for (int i = 42; i <= 151; ++i) {  // 2.5 ft is 41.67 steps
        count += 1;
        first += i;
        second += i * i;
        third += static_cast<double>(i) * i * i;
    }
    const StationSums sums = SumStationsBetween(line, begin, end);
    EXPECT_EQ(sums.Count, count);
    EXPECT_EQ(sums.First, first);
    EXPECT_EQ(sums.Second, second);
    EXPECT_EQ(sums.Third, third);
}

TEST(StationSums, AreZeroWhereNoStationLiesBetween)
{
    EXPECT_EQ(SumStationsBetween({12, 200}, 3.001, 3.059).Count, 0);
    EXPECT_EQ(SumStationsBetween({12, 200}, 5, 4).Count, 0);
}

}  // namespace
}  // namespace kordavan
