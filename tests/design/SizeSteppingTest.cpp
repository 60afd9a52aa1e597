#include "design/SizeStepping.h"

#include <gtest/gtest.h>

#include <string>

#include "design/DesignBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

std::string Stepped(SizeStep step, const MemberEntry& entry,
                    SpeciesGroup group = SpeciesGroup::HemFirDouglasFir)
{
    ScriptedUser user;
    MemberCandidate member;
    EXPECT_EQ(IdentifyMember(entry, group, user, member), Outcome::Done);
    const auto stepped = StepSize(step, entry, member, group);
    return stepped ? stepped->BreadthText + " by " + stepped->DepthText + " " + stepped->SpeciesText : "";
}

struct StepCase {
    SizeStep Step;
    std::string_view Breadth;
    std::string_view Depth;
    std::string_view To;  // empty where the button is off
};

class SawnStepTest : public testing::TestWithParam<StepCase> {};

TEST_P(SawnStepTest, GoesAlongItsLadder)
{
    const StepCase& c = GetParam();
    const std::string stepped = Stepped(c.Step, Member(c.Breadth, c.Depth, "DF-L #2"));
    EXPECT_EQ(stepped, c.To.empty() ? "" : std::string(c.To) + " DF-L #2") << c.Breadth << " by " << c.Depth;
}

constexpr auto Up = SizeStep::BreadthUp;
constexpr auto Down = SizeStep::BreadthDown;

INSTANTIATE_TEST_SUITE_P(
    Breadths, SawnStepTest,
    testing::Values(StepCase{Up, "2x", "10", "(2) 2x by 10"}, StepCase{Up, "(2) 2x", "10", "4x by 10"},
                    StepCase{Up, "4x", "10", "(3) 2x by 10"}, StepCase{Up, "(3) 2x", "10", "(4) 2x by 10"},
                    StepCase{Up, "(4) 2x", "10", "6x by 10"}, StepCase{Up, "6x", "10", "8x by 10"},
                    StepCase{Up, "12x", "16", "14x by 16"}, StepCase{Up, "14x", "16", ""},
                    StepCase{Up, "4x", "16", "6x by 16"},  // no built-up 2x16
                    StepCase{Up, "4x", "4", ""}, StepCase{Up, "(4) 2x", "4", ""},
                    StepCase{Up, "3x", "8", "(2) 2x by 8"}, StepCase{Down, "2x", "10", ""},
                    StepCase{Down, "3x", "10", ""}, StepCase{Down, "4x", "10", "(2) 2x by 10"},
                    StepCase{Down, "(3) 2x", "10", "4x by 10"}, StepCase{Down, "6x", "10", "(4) 2x by 10"},
                    StepCase{Down, "6x", "16", ""}, StepCase{Down, "4x", "16", ""},
                    StepCase{Down, "14x", "14", "12x by 14"}));

INSTANTIATE_TEST_SUITE_P(Depths, SawnStepTest,
                         testing::Values(StepCase{SizeStep::DepthUp, "2x", "12", "2x by 14"},
                                         StepCase{SizeStep::DepthUp, "2x", "14", ""},
                                         StepCase{SizeStep::DepthUp, "4x", "14", "4x by 16"},
                                         StepCase{SizeStep::DepthDown, "2x", "4", ""},
                                         StepCase{SizeStep::DepthDown, "8x", "8", ""},
                                         StepCase{SizeStep::DepthDown, "8x", "10", "8x by 8"}));

TEST(SizeStepping, OfGlulamsEndsAtTheLastWidthOfTheGroup)
{
    constexpr std::string_view fir = "GLB 24F-V4 DF/DF";
    EXPECT_EQ(Stepped(Up, Member("6-3/4x", "12", fir)), "8-3/4x by 12 GLB 24F-V4 DF/DF");
    EXPECT_EQ(Stepped(Up, Member("10-3/4x", "12", fir)), "");
    EXPECT_EQ(Stepped(Down, Member("3-1/8x", "12", fir)), "");
    constexpr std::string_view pine = "GLB 24F-V3 SP/SP";
    EXPECT_EQ(Stepped(Up, Member("6-3/4x", "11", pine), SpeciesGroup::SouthernPine),
              "8-1/2x by 11 GLB 24F-V3 SP/SP");
    EXPECT_EQ(Stepped(Up, Member("10-1/2x", "11", pine), SpeciesGroup::SouthernPine), "");
    EXPECT_EQ(Stepped(SizeStep::DepthUp, Member("5-1/8x", "11", pine), SpeciesGroup::SouthernPine),
              "5-1/8x by 12-3/8 GLB 24F-V3 SP/SP");
}

TEST(SizeStepping, TakesTheNamesOfSouthernPineTimbers)
{
    const SpeciesGroup pine = SpeciesGroup::SouthernPine;
    EXPECT_EQ(Stepped(Up, Member("(4) 2x", "10", "So. Pine #2"), pine), "6x by 10 So. Pine #2 SR");
    EXPECT_EQ(Stepped(Down, Member("6x", "10", "So. Pine #2 SR"), pine), "(4) 2x by 10 So. Pine #2");
    EXPECT_EQ(Stepped(Up, Member("(4) 2x", "10", "So. Pine #2 KD 15%"), pine), "");  // no such timbers
}

struct OwnStepCase {
    std::string_view Name;
    SizeStep Step;
    bool CustomEntry::*Family;
    std::string_view Breadth;
    std::string_view Depth;
    std::string_view To;  // empty where the button is off
};

class CustomStepTest : public testing::TestWithParam<OwnStepCase> {};

TEST_P(CustomStepTest, GoesAlongTheLadderOfItsFamily)
{
    const OwnStepCase& c = GetParam();
    MemberEntry entry = Member(c.Breadth, c.Depth, "Own");
    entry.Custom.*c.Family = true;
    const std::string stepped = Stepped(c.Step, entry, SpeciesGroup::Custom);
    EXPECT_EQ(stepped, c.To.empty() ? "" : std::string(c.To) + " Own");
}

constexpr auto Deeper = SizeStep::DepthUp;
constexpr auto Shallower = SizeStep::DepthDown;

INSTANTIATE_TEST_SUITE_P(
    Sizes, CustomStepTest,
    testing::Values(OwnStepCase{"past 4x", Up, &CustomEntry::Wid2x, "(2) 2x", "10", "(3) 2x by 10"},
                    OwnStepCase{"back past 4x", Down, &CustomEntry::Wid2x, "(3) 2x", "10", "(2) 2x by 10"},
                    OwnStepCase{"4x alone", Up, &CustomEntry::Wid4x, "4x", "10", ""},
                    OwnStepCase{"header", Up, &CustomEntry::WidGLBHDR, "3-1/2x", "12", "5-1/2x by 12"},
                    OwnStepCase{"last header", Up, &CustomEntry::WidGLBHDR, "5-1/2x", "12", ""},
                    OwnStepCase{"glulam", Up, &CustomEntry::WidGLB, "6-3/4x", "18", "8-3/4x by 18"},
                    OwnStepCase{"timber by inches", Deeper, &CustomEntry::Wid6x, "6x", "9-1/2",
                                "6x by 10-1/2"},
                    OwnStepCase{"timber back", Shallower, &CustomEntry::Wid6x, "5x", "6", "5x by 5"},
                    OwnStepCase{"timber under 6", Shallower, &CustomEntry::Wid6x, "5x", "5-1/2", ""},
                    OwnStepCase{"timber to 35", Deeper, &CustomEntry::Wid6x, "8x", "34-1/2", "8x by 35-1/2"},
                    OwnStepCase{"timber at 35", Deeper, &CustomEntry::Wid6x, "8x", "35", ""},
                    OwnStepCase{"timber breadth", Up, &CustomEntry::Wid6x, "6x", "12", ""}),
    CaseName);

struct ProductStepCase {
    std::string_view Name;
    SizeStep Step;
    std::size_t Product;
    std::string_view Breadth;
    std::string_view Depth;
    std::string_view To;
};

class ProductStepTest : public testing::TestWithParam<ProductStepCase> {};

TEST_P(ProductStepTest, GoesThroughTheSizesOfTheProduct)
{
    const ProductStepCase& c = GetParam();
    MemberEntry entry = Member(c.Breadth, c.Depth, "");
    entry.Product = c.Product;
    const std::string stepped = Stepped(c.Step, entry, SpeciesGroup::Scl);
    EXPECT_EQ(stepped, c.To.empty() ? "" : std::string(c.To) + " ");
}

// Product 11 is listed 3-1/2x, 1-3/4x, 5-1/4x; product 25 has 6 in. in its two lesser breadths alone.
INSTANTIATE_TEST_SUITE_P(
    Sizes, ProductStepTest,
    testing::Values(ProductStepCase{"by net size", Up, 11, "1-3/4x", "14", "3-1/2x by 14"},
                    ProductStepCase{"on", Up, 11, "3-1/2x", "14", "5-1/4x by 14"},
                    ProductStepCase{"down", Down, 11, "3-1/2x", "14", "1-3/4x by 14"},
                    ProductStepCase{"least", Down, 11, "1-3/4x", "14", ""},
                    ProductStepCase{"plies", Up, 2, "(2) 1-3/4x", "14", "(3) 1-3/4x by 14"},
                    ProductStepCase{"with the depth", Up, 25, "3-1/2x", "6", "5-1/2x by 6"},
                    ProductStepCase{"without the depth", Up, 25, "5-1/2x", "6", ""},
                    ProductStepCase{"deeper", Deeper, 2, "1-3/4x", "11-7/8", "1-3/4x by 14"},
                    ProductStepCase{"deepest", Deeper, 2, "1-3/4x", "20", ""},
                    ProductStepCase{"shallower", Shallower, 10, "3-1/2x", "9-1/4", "3-1/2x by 8-5/8"},
                    ProductStepCase{"shallowest", Shallower, 10, "3-1/2x", "4-3/8", ""},
                    ProductStepCase{"own product", Up, 23, "3-1/2x", "14", ""}),
    CaseName);

TEST(StepSize, OfAPoleChangesItsDiameter)
{
    const auto stepped = [](SizeStep step, std::string_view diameter) {
        MemberEntry entry;
        entry.Custom.Roundoption = true;
        entry.Custom.Diam = diameter;
        MemberCandidate member;
        ScriptedUser user;
        EXPECT_EQ(IdentifyMember(entry, SpeciesGroup::Custom, user, member), Outcome::Done);
        const auto next = StepSize(step, entry, member, SpeciesGroup::Custom);
        return next ? next->Custom.Diam : "";
    };
    EXPECT_EQ(stepped(Deeper, "12.5"), "13.5");
    EXPECT_EQ(stepped(Shallower, "6"), "5");
    EXPECT_EQ(stepped(Shallower, "5.9"), "");
    EXPECT_EQ(stepped(Deeper, "34.9"), "35.9");
    EXPECT_EQ(stepped(Deeper, "35"), "");
    EXPECT_EQ(stepped(Up, "12"), "");
}

}  // namespace
}  // namespace kordavan
