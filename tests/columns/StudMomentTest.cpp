#include "columns/StudMoment.h"

#include <gtest/gtest.h>

namespace kordavan {
namespace {

struct Wind {
    float Psf;
    float Beg;
    float End;
};

/// A stud that carries a foot of wall, so that psf are plf.
StudColumnProblem StudUnder(float height, const std::array<Wind, WindLoadCount>& winds)
{
    StudColumnProblem stud;
    stud.StudHeight = height;
    stud.StudSpacing = 12;
    for (std::size_t load = 0; load < WindLoadCount; ++load) {
        stud.Wind[load] = winds[load].Psf;
        stud.Beg[load] = winds[load].Beg;
        stud.End[load] = winds[load].End;
    }
    return stud;
}

std::string WarningOf(const StudColumnProblem& stud)
{
    const StudMoment moment = ComputeStudMoment(stud);
    StudTest test;
    test.Stations = moment.Stations;
    test.Result.MaxMoment = moment.MaxMoment;
    return StudMomentWarning(test);
}

TEST(StudMoment, OfWindOverTheWholeHeight)
{
    // 20 psf at 16 in. is w = 26.667 plf: R1 = w H / 2 = 120 lb, M = w H^2 / 8 = 270 ft-lb at 4.5 ft; the
    // place is that of the station before it, 99 x 9 / 200 = 4.455 ft.
    StudColumnProblem stud = StudUnder(9, {{{20, 0, 9}, {}, {}}});
    stud.StudSpacing = 16;
    const StudMoment moment = ComputeStudMoment(stud);
    EXPECT_FLOAT_EQ(moment.R1, 120);
    EXPECT_FLOAT_EQ(moment.MaxMoment, 270);
    EXPECT_FLOAT_EQ(moment.MaxMomentAtFt, 4.455F);
    EXPECT_FLOAT_EQ(moment.Stations[50].Moment, 202.5F);  // w x (H - x) / 2 at 2.25 ft
    EXPECT_EQ(moment.Stations.front().Moment, 0);
    EXPECT_EQ(moment.Stations.back().Moment, 0);
    EXPECT_EQ(WarningOf(stud), "");
}

TEST(StudMoment, OfWindOnTheLowerPart)
{
    // 30 plf over the lower 4 of 10 ft: R1 = 120 x 8 / 10 = 96 lb, no shear at 96 / 30 = 3.2 ft, where
    // M = R1^2 / (2 w) = 153.6 ft-lb; the station before is at 3.15 ft. Above, M = 24 (10 - x).
    const StudMoment moment = ComputeStudMoment(StudUnder(10, {{{30, 0, 4}, {}, {}}}));
    EXPECT_FLOAT_EQ(moment.R1, 96);
    EXPECT_FLOAT_EQ(moment.MaxMoment, 153.6F);
    EXPECT_FLOAT_EQ(moment.MaxMomentAtFt, 3.15F);
    EXPECT_FLOAT_EQ(moment.Stations[160].At, 8);
    EXPECT_FLOAT_EQ(moment.Stations[160].Moment, 48);
}

TEST(StudMoment, AddsUpOverTheLoads)
{
    constexpr Wind A{20, 0, 7.3F};
    constexpr Wind B{-12, 2.1F, 9};
    constexpr Wind C{35, 6.4F, 12};
    const StudMoment all = ComputeStudMoment(StudUnder(12, {A, B, C}));
    const StudMoment mirrored =
        ComputeStudMoment(StudUnder(12, {{{20, 12 - 7.3F, 12}, {-12, 3, 12 - 2.1F}, {35, 0, 12 - 6.4F}}}));
    const std::array each{ComputeStudMoment(StudUnder(12, {A, {}, {}})),
                          ComputeStudMoment(StudUnder(12, {{{}, B, {}}})),
                          ComputeStudMoment(StudUnder(12, {{{}, {}, C}}))};
    EXPECT_NEAR(all.R1, each[0].R1 + each[1].R1 + each[2].R1, 1e-4);
    EXPECT_NEAR(all.R1 + mirrored.R1, 20 * 7.3 - 12 * 6.9 + 35 * 5.6, 1e-4);  // the whole load
    for (std::size_t k = 0; k < StudStationCount; ++k) {
        const float sum =
            each[0].Stations[k].Moment + each[1].Stations[k].Moment + each[2].Stations[k].Moment;
        ASSERT_NEAR(all.Stations[k].Moment, sum, 1e-3) << k;
        ASSERT_NEAR(all.Stations[k].Moment, mirrored.Stations[StudStationCount - 1 - k].Moment, 1e-3) << k;
        for (std::size_t load = 0; load < WindLoadCount; ++load) {
            ASSERT_EQ(all.Stations[k].Contributions[load], each[load].Stations[k].Contributions[load]);
        }
    }
}

TEST(StudMoment, LeavesOutALoadOfNoExtent)
{
    const StudMoment with = ComputeStudMoment(StudUnder(10, {{{30, 0, 4}, {500, 5, 5}, {}}}));
    EXPECT_FLOAT_EQ(with.R1, 96);
    EXPECT_FLOAT_EQ(with.MaxMoment, 153.6F);
}

TEST(StudMoment, WorksWithTheLastRiseAndSaysSo)
{
    // 40 plf to 3 ft, 15 plf of suction from 3.5 to 6.5 ft, 10 plf from 7 ft up: R1 = (120 x 8.5 - 45 x 5 +
    // 30 x 1.5) / 10 = 84 lb. First top at 84 / 40 = 2.1 ft: 84^2 / 80 = 88.2 ft-lb. The shear is -36 lb from
    // 3 ft on, 9 lb from 6.5 ft on, and none again at 7.9 ft, where M = 18 + 9 x 0.9 / 2 = 22.05 ft-lb.
    const StudColumnProblem stud = StudUnder(10, {{{40, 0, 3}, {-15, 3.5F, 6.5F}, {10, 7, 10}}});
    const StudMoment moment = ComputeStudMoment(stud);
    EXPECT_FLOAT_EQ(moment.R1, 84);
    EXPECT_FLOAT_EQ(moment.Stations[42].Moment, 88.2F);
    EXPECT_FLOAT_EQ(moment.MaxMoment, 22.05F);
    EXPECT_FLOAT_EQ(moment.MaxMomentAtFt, 7.85F);
    EXPECT_EQ(
        WarningOf(stud),
        "The moment goes to 88.2 ft-lb at 2.10 ft, beyond the 22.1 ft-lb that the check works with: check "
        "the stud by hand for it.");
}

TEST(StudMoment, OfSuctionIsNotWorkedWith)
{
    const StudColumnProblem stud = StudUnder(12, {{{-1000, 0, 12}, {}, {}}});
    EXPECT_EQ(ComputeStudMoment(stud).MaxMoment, 0);
    EXPECT_EQ(
        WarningOf(stud),
        "The moment goes to -18,000.0 ft-lb at 6.00 ft, beyond the 0.0 ft-lb that the check works with: "
        "check the stud by hand for it.");
}

TEST(StudMoment, OnALevelStretchIsFoundAtItsBeginning)
{
    // 30 plf on the lowest and the uppermost 2 of 10 ft: 60 ft-lb between them; station 40 is at 2 ft.
    const StudColumnProblem stud = StudUnder(10, {{{30, 0, 2}, {30, 8, 10}, {}}});
    const StudMoment moment = ComputeStudMoment(stud);
    EXPECT_FLOAT_EQ(moment.MaxMoment, 60);
    EXPECT_FLOAT_EQ(moment.MaxMomentAtFt, 1.95F);
    EXPECT_EQ(WarningOf(stud), "");
}

}  // namespace
}  // namespace kordavan
