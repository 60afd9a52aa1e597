#include "materials/SclProducts.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string>

#include "core/SizeText.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

TEST(SclProducts, HaveNamesOfTheirOwn)
{
    std::set<std::string_view> names;
    for (const SclProduct& product : SclProducts()) {
        EXPECT_TRUE(names.insert(product.Name).second) << product.Name;
        EXPECT_FALSE(product.LVLname.empty()) << product.Name;
    }
    EXPECT_EQ(SclProducts()[10].Name, "1.3E TJ TimberStrand LSL");
    EXPECT_EQ(SclProducts()[FirstCustomScl].Name, "Custom SCL #1");
    EXPECT_EQ(SclProducts()[25].LVLname, "Rosboro X-Beam Glu-Lam");
}

TEST(SclProducts, ComeInBreadthsThatCanBeWritten)
{
    std::size_t sizes = 0;
    for (const SclProduct& product : SclProducts()) {
        for (const SclSize& size : product.Sizes) {
            EXPECT_TRUE(FindBreadth(SizeFamily::Composite, size.Breadth)) << product.Name << size.Breadth;
            ++sizes;
        }
    }
    EXPECT_EQ(sizes, 84U);
}

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

/// Unit weights in pcf, by product.
TEST(SclProducts, WeighWhatTheirMakersSay)
{
    constexpr std::array<double, SclProductCount> pcf{37, 37, 37, 45, 45, 38, 38, 36, 36, 36, 38,   38,   38,
                                                      35, 35, 37, 37, 37, 37, 37, 37, 37, 37, 37.5, 37.5, 35};
    for (std::size_t product = 0; product < SclProductCount; ++product) {
        EXPECT_NEAR(SclProducts()[product].DensityFactor, pcf[product] / 144, 2e-5) << product;
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
