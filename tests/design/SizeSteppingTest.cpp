#include "design/SizeStepping.h"

#include <gtest/gtest.h>

#include <string>

#include "design/DesignBuilder.h"

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

}  // namespace
}  // namespace kordavan
