#include "materials/Sizes.h"

#include <gtest/gtest.h>

#include <string>

#include "support/CaseName.h"

namespace kordavan {
namespace {

struct BreadthCase {
    SizeFamily Family;
    std::string_view Text;
    double Net;  // 0 where it is no size
};

class BreadthTest : public testing::TestWithParam<BreadthCase> {};

TEST_P(BreadthTest, IsFoundByItsExactText)
{
    const auto breadth = FindBreadth(GetParam().Family, GetParam().Text);
    EXPECT_EQ(breadth ? breadth->Net : 0, GetParam().Net) << GetParam().Text;
}

INSTANTIATE_TEST_SUITE_P(
    Texts, BreadthTest,
    testing::Values(
        BreadthCase{SizeFamily::Listed, "2x", 1.5}, BreadthCase{SizeFamily::Listed, "(3) 2x", 4.5},
        BreadthCase{SizeFamily::Listed, "(3)2x", 0}, BreadthCase{SizeFamily::Listed, "2X", 0},
        BreadthCase{SizeFamily::Listed, "2", 0}, BreadthCase{SizeFamily::Listed, "14x", 13.5},
        BreadthCase{SizeFamily::Listed, "10-1/2x", 10.5},
        BreadthCase{SizeFamily::CustomTimber, "10-1/2x", 10}, BreadthCase{SizeFamily::Listed, "10 1/2x", 0},
        BreadthCase{SizeFamily::Listed, "10-1/2", 0}, BreadthCase{SizeFamily::Listed, "7x", 0},
        BreadthCase{SizeFamily::CustomTimber, "7x", 6.5},
        BreadthCase{SizeFamily::CustomTimber, "13-1/2x", 13}, BreadthCase{SizeFamily::Custom4x, "2x", 0},
        BreadthCase{SizeFamily::GlulamHeader, "5-1/2x", 5.5},
        BreadthCase{SizeFamily::CustomSouthernPineGlulam, "8-3/4x", 0},
        BreadthCase{SizeFamily::Listed, "", 0}),
    CaseName);

struct DepthCase {
    SizeFamily Family;
    std::string_view Breadth;
    std::string_view Text;
    double Net;  // 0 where it is no size
    double NextSmaller;
    std::string_view NextSmallerText;
    std::string_view NextLargerText;
};

class DepthTest : public testing::TestWithParam<DepthCase> {};

TEST_P(DepthTest, IsFoundWithItsNeighbours)
{
    const DepthCase& c = GetParam();
    const auto breadth = FindBreadth(c.Family, c.Breadth);
    ASSERT_TRUE(breadth);
    const auto depth = FindDepth(c.Family, *breadth, c.Text);
    ASSERT_EQ(depth.has_value(), c.Net > 0) << c.Breadth << " " << c.Text;
    if (depth) {
        EXPECT_EQ(depth->Net, c.Net);
        EXPECT_EQ(depth->NextSmaller, c.NextSmaller);
        EXPECT_EQ(depth->NextSmallerText, c.NextSmallerText);
        EXPECT_EQ(depth->NextLargerText, c.NextLargerText);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, DepthTest,
    testing::Values(DepthCase{SizeFamily::Listed, "2x", "4", 3.5, 0, "", "6"},
                    DepthCase{SizeFamily::Listed, "2x", "8", 7.25, 5.5, "6", "10"},
                    DepthCase{SizeFamily::Listed, "(4) 2x", "14", 13.25, 11.25, "12", ""},
                    DepthCase{SizeFamily::Listed, "3x", "16", 0, 0, "", ""},
                    DepthCase{SizeFamily::Listed, "4x", "16", 15.25, 13.25, "14", ""},
                    DepthCase{SizeFamily::Listed, "6x", "4", 0, 0, "", ""},
                    DepthCase{SizeFamily::Listed, "6x", "6", 5.5, 0, "", "8"},
                    DepthCase{SizeFamily::Listed, "6x", "8", 7.5, 5.5, "6", "10"},
                    DepthCase{SizeFamily::Listed, "10x", "10", 9.5, 0, "", "12"},
                    DepthCase{SizeFamily::Listed, "10x", "12", 11.5, 9.5, "10", "14"},
                    DepthCase{SizeFamily::Listed, "14x", "12", 11.5, 0, "", "14"},
                    DepthCase{SizeFamily::Listed, "14x", "16", 15.5, 13.5, "14", ""},
                    DepthCase{SizeFamily::Listed, "5-1/8x", "9", 9, 0, "", "10-1/2"},
                    DepthCase{SizeFamily::Listed, "5-1/8x", "54", 54, 52.5, "52-1/2", ""},
                    DepthCase{SizeFamily::Listed, "5-1/8x", "11", 0, 0, "", ""},
                    DepthCase{SizeFamily::SouthernPineListed, "5-1/8x", "9-5/8", 9.625, 0, "", "11"},
                    DepthCase{SizeFamily::SouthernPineListed, "5-1/8x", "30-1/4", 30.25, 28.875, "28-7/8",
                              ""},
                    DepthCase{SizeFamily::SouthernPineListed, "5-1/8x", "12", 0, 0, "", ""},
                    DepthCase{SizeFamily::GlulamHeader, "3-1/2x", "18", 18, 16.5, "16-1/2", ""},
                    DepthCase{SizeFamily::CustomTimber, "6x", "11-1/2", 11, 10, "10-1/2", "12-1/2"},
                    DepthCase{SizeFamily::CustomTimber, "5-1/2x", "6", 5.5, 0, "", "7"},
                    DepthCase{SizeFamily::CustomTimber, "5x", "5", 4.5, 0, "", "6"},
                    DepthCase{SizeFamily::CustomTimber, "5x", "36", 35.5, 34.5, "35", ""}),
    CaseName);

}  // namespace
}  // namespace kordavan
