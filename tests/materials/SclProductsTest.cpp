#include "materials/SclProducts.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <string>

#include "core/SizeText.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

struct ProductRow {
    std::string_view Name;
    std::string_view MakersLine;
    std::string_view Breadths;
    double DeepExponent;
    double ShallowExponent;
    double UnitWeight;  // pcf
};

/// From the makers' guides; products without an exponent take a volume factor or their own.
constexpr std::array<ProductRow, SclProductCount> Rows{
    ProductRow{"2.0E BC Versa-Lam 2800", "Boise LVL 2800",
               "1-3/4x, 2-5/8x, (2) 1-3/4x, (3) 1-3/4x, (4) 1-3/4x", 1.0 / 9, 1.0 / 9, 37},
    ProductRow{"2.0E BC Versa-Lam 3100", "Boise LVL 3100", "3-1/2x, 5-1/4x, 7x", 1.0 / 9, 1.0 / 9, 37},
    ProductRow{"1.9E TJ Microllam LVL", "Trus Joist LVL", "1-3/4x, (2) 1-3/4x, (3) 1-3/4x, (4) 1-3/4x", 0.136,
               0.136, 37},
    ProductRow{"2.0E TJ Parallam W.S. PSL", "Trus Joist PSL", "2-11/16x, 3-1/2x, 5-1/4x, 7x", 1.0 / 9,
               1.0 / 9, 45},
    ProductRow{"2.0E TJ Parallam E.S. PSL", "Trus Joist PSL", "2-11/16x, 3-1/2x, 5-1/4x, 7x", 1.0 / 9,
               1.0 / 9, 45},
    ProductRow{"2.1E PW LVL", "Pacific Woodtech LVL", "1-3/4x, 3-1/2x", 0.2, 0.2, 38},
    ProductRow{"2.1E BL onCenter LVL", "Blue Linx LVL", "1-3/4x, (2) 1-3/4x", 0.2, 0.125, 38},
    ProductRow{"1.9E LP SolidStart LVL", "Lousiana Pacific LVL", "1-3/4x, (2) 1-3/4x, (3) 1-3/4x, (4) 1-3/4x",
               1.0 / 7, 1.0 / 9, 36},
    ProductRow{"2.0E LP SolidStart LVL", "Lousiana Pacific LVL", "1-3/4x, (2) 1-3/4x, (3) 1-3/4x, (4) 1-3/4x",
               1.0 / 7, 1.0 / 9, 36},
    ProductRow{"1.5E LP SolidStart LVL", "Lousiana Pacific LVL", "1-3/4x, (2) 1-3/4x, (3) 1-3/4x, (4) 1-3/4x",
               1.0 / 7, 1.0 / 9, 36},
    ProductRow{"1.3E TJ TimberStrand LSL", "Trus Joist LSL", "3-1/2x", 0.092, 0.092, 38},
    ProductRow{"Disc. 1.5E TJ TimberStrand LSL", "Trus Joist LSL", "3-1/2x, 1-3/4x, 5-1/4x", 0.092, 0.092,
               38},
    ProductRow{"1.55E TJ TimberStrand LSL", "Trus Joist LSL", "3-1/2x, 1-3/4x, 5-1/4x", 0.092, 0.092, 38},
    ProductRow{"20F-1.6E CC NordicLam LSL", "Chantiers Chibougamau LSL", "1-3/4x, 2-1/2x, 3-1/2x, 5-1/2x", 0,
               0, 35},
    ProductRow{"24F-1.9E CC NordicLam LSL", "Chantiers Chibougamau LSL", "1-3/4x, 2-1/2x, 3-1/2x, 5-1/2x, 7x",
               0, 0, 35},
    ProductRow{"30F-2.2E CC NordicLam LSL", "Chantiers Chibougamau LSL", "3-1/2x, 5-1/2x, 7x", 0, 0, 37},
    ProductRow{"2.0E WF West Fraser LVL", "West Fraser LVL", "1-3/4x, (2) 1-3/4x, (3) 1-3/4x, (4) 1-3/4x",
               0.136, 0.136, 37},
    ProductRow{"1.8E WF West Fraser LVL", "West Fraser LVL", "1-3/4x, (2) 1-3/4x, (3) 1-3/4x, (4) 1-3/4x",
               0.136, 0.136, 37},
    ProductRow{"1.7E WF West Fraser LVL", "West Fraser LVL", "3-1/2x, 1-3/4x", 0.111111, 0.111111, 37},
    ProductRow{"1.3E WF West Fraser LVL", "West Fraser LVL", "1-1/4x, (2) 1-1/4x, (3) 1-1/4x, (4) 1-1/4x",
               0.111111, 0.111111, 37},
    ProductRow{"1.5E RFP RigidLam LVL", "Roseburg Forest Products LVL",
               "1-3/4x, (2) 1-3/4x, (3) 1-3/4x, (4) 1-3/4x", 0.125, 0.125, 37},
    ProductRow{"2.0E RFP RigidLam LVL", "Roseburg Forest Products LVL",
               "1-3/4x, (2) 1-3/4x, (3) 1-3/4x, (4) 1-3/4x", 0.125, 0.125, 37},
    ProductRow{"2.1E RB Rosboro BigBeam LSL", "Rosboro BigBeam Hybrid LSL", "3-1/2x, 5-1/2x, 7x", 0, 0, 37},
    ProductRow{"Custom SCL #1", "For SCL's Only, not for Glu-lam products.", "", 0, 0, 37.5},
    ProductRow{"Custom SCL #2", "For SCL's Only, not for Glu-lam products.", "", 0, 0, 37.5},
    ProductRow{"1.8E RB Rosboro X-Beam GLB", "Rosboro X-Beam Glu-Lam", "3-1/2x, 5-1/2x, 6-3/4x, 8-3/4x", 0, 0,
               35},
};

TEST(SclProducts, AreThoseOfTheMakersGuides)
{
    for (std::size_t k = 0; k < SclProductCount; ++k) {
        const SclProduct& product = SclProducts()[k];
        std::string breadths;
        for (const SclSize& size : product.Sizes) {
            breadths += breadths.empty() ? "" : ", ";
            breadths += size.Breadth;
        }
        EXPECT_EQ(product.Name, Rows[k].Name);
        EXPECT_EQ(product.LVLname, Rows[k].MakersLine) << k;
        EXPECT_EQ(breadths, Rows[k].Breadths) << k;
        EXPECT_EQ(product.DeepExponent, Rows[k].DeepExponent) << k;
        EXPECT_EQ(product.ShallowExponent, Rows[k].ShallowExponent) << k;
        EXPECT_NEAR(product.DensityFactor, Rows[k].UnitWeight / 144, 2e-5) << k;
        EXPECT_EQ(IsCustomScl(k), product.Sizes.empty()) << k;
    }
}

/// The greatest and the least depth, and how many there are.
struct DepthRange {
    std::size_t Product;
    std::string_view Breadth;
    std::string_view Least;
    std::string_view Greatest;
    std::size_t Count;
};

class SclDepthRangeTest : public testing::TestWithParam<DepthRange> {};

TEST_P(SclDepthRangeTest, IsTheMakers)
{
    const std::vector<DepthChoice> depths = SclDepths(GetParam().Product, GetParam().Breadth);
    EXPECT_EQ(depths.front().Text, GetParam().Least);
    EXPECT_EQ(depths.back().Text, GetParam().Greatest);
    EXPECT_EQ(depths.size(), GetParam().Count);
}

INSTANTIATE_TEST_SUITE_P(
    Products, SclDepthRangeTest,
    testing::Values(DepthRange{0, "1-3/4x", "5-1/2", "24", 11}, DepthRange{1, "3-1/2x", "5-1/2", "24", 11},
                    DepthRange{2, "1-3/4x", "5-1/2", "20", 10}, DepthRange{3, "2-11/16x", "9-1/4", "18", 7},
                    DepthRange{4, "2-11/16x", "9-1/4", "18", 7}, DepthRange{5, "1-3/4x", "5-1/2", "24", 12},
                    DepthRange{6, "1-3/4x", "7-1/4", "24", 11}, DepthRange{7, "1-3/4x", "7-1/4", "18", 8},
                    DepthRange{8, "1-3/4x", "7-1/4", "18", 8}, DepthRange{9, "1-3/4x", "7-1/4", "18", 8},
                    DepthRange{10, "3-1/2x", "4-3/8", "11-1/4", 6},
                    DepthRange{11, "3-1/2x", "9-1/4", "16", 6}, DepthRange{12, "3-1/2x", "9-1/4", "16", 6},
                    DepthRange{13, "1-3/4x", "9-1/2", "24", 8}, DepthRange{14, "1-3/4x", "9-1/2", "24", 8},
                    DepthRange{15, "3-1/2x", "9-1/2", "24", 8}, DepthRange{16, "1-3/4x", "7-1/4", "24", 11},
                    DepthRange{17, "1-3/4x", "7-1/4", "24", 11}, DepthRange{18, "3-1/2x", "7-1/4", "24", 11},
                    DepthRange{19, "1-1/4x", "9-1/2", "24", 8}, DepthRange{20, "1-3/4x", "5-1/2", "24", 11},
                    DepthRange{21, "1-3/4x", "5-1/2", "24", 11}, DepthRange{22, "3-1/2x", "9", "24", 15},
                    DepthRange{22, "5-1/2x", "9", "30", 19}, DepthRange{22, "7x", "9", "30", 19},
                    DepthRange{23, "", "4-3/8", "36", 33}, DepthRange{24, "", "4-3/8", "36", 33},
                    DepthRange{25, "3-1/2x", "6", "24", 17}, DepthRange{25, "5-1/2x", "6", "30", 21},
                    DepthRange{25, "6-3/4x", "7-1/2", "36", 24}, DepthRange{25, "8-3/4x", "9", "36", 23}));

/// Plies multiply the breadth of one.
TEST(SclBreadths, AreWhatTheySay)
{
    for (const Breadth& breadth : SclBreadths()) {
        std::string_view text = breadth.Text;
        double plies = 1;
        if (text.front() == '(') {
            plies = text[1] - '0';
            text.remove_prefix(4);
        }
        text.remove_suffix(1);
        EXPECT_EQ(breadth.Net, plies * InchesOf(text)) << breadth.Text;
    }
}

TEST(SclDepths, RiseAndAreWrittenInTheTradesWay)
{
    for (std::size_t product = 0; product < SclProductCount; ++product) {
        std::vector<std::string_view> breadths{""};
        for (const SclSize& size : SclProducts()[product].Sizes) {
            breadths.push_back(size.Breadth);
        }
        for (const std::string_view breadth : breadths) {
            double last = 0;
            for (const DepthChoice& depth : SclDepths(product, breadth)) {
                EXPECT_GT(depth.Net, last) << product << depth.Text;
                EXPECT_EQ(InchesText(depth.Net), depth.Text);
                EXPECT_TRUE(FindSclDepth(FirstCustomScl, "", depth.Text)) << depth.Text;
                last = depth.Net;
            }
            EXPECT_GT(last, 0) << product << breadth;
        }
    }
}

struct NeighbourCase {
    std::size_t Product;
    std::string_view Breadth;
    std::string_view Depth;
    std::string_view Smaller;
    std::string_view Larger;
};

class SclNeighbourTest : public testing::TestWithParam<NeighbourCase> {};

TEST_P(SclNeighbourTest, AreTheProducts)
{
    const NeighbourCase& c = GetParam();
    const std::optional<Depth> depth = FindSclDepth(c.Product, c.Breadth, c.Depth);
    ASSERT_TRUE(depth);
    EXPECT_EQ(depth->NextSmallerText, c.Smaller);
    EXPECT_EQ(depth->NextLargerText, c.Larger);
    EXPECT_EQ(depth->NextSmaller, c.Smaller.empty() ? 0 : InchesOf(c.Smaller));
}

INSTANTIATE_TEST_SUITE_P(Depths, SclNeighbourTest,
                         testing::Values(NeighbourCase{0, "1-3/4x", "9-1/2", "9-1/4", "11-1/4"},
                                         NeighbourCase{0, "1-3/4x", "5-1/2", "", "7-1/4"},
                                         NeighbourCase{0, "1-3/4x", "24", "20", ""},
                                         NeighbourCase{5, "3-1/2x", "24", "22", ""},
                                         NeighbourCase{14, "1-3/4x", "9-1/4", "", "9-1/2"},
                                         NeighbourCase{25, "6-3/4x", "7-1/2", "", "9"},
                                         NeighbourCase{25, "3-1/2x", "7-1/2", "6", "9"},
                                         NeighbourCase{23, "7x", "22", "21", "22-1/2"}));

TEST(FindSclDepth, RefusesWhatCompositeLumberDoesNotHave)
{
    for (const std::string_view text : {"", "10", "9 1/2", "9-1/2 ", "11.875", "37"}) {
        EXPECT_FALSE(FindSclDepth(2, "1-3/4x", text)) << text;
    }
}

}  // namespace
}  // namespace kordavan
