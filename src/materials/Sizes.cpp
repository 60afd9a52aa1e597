#include "materials/Sizes.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "core/NumberText.h"
#include "core/SizeText.h"
#include "materials/SclProducts.h"

namespace kordavan {

namespace {

// Net sizes of dimension lumber and timbers: American Softwood Lumber Standard PS 20, dry and green sizes.
// Glulam widths and laminations: ANSI/AITC A190.1, western species and Southern Pine.
constexpr std::array ListedBreadths{
    Breadth{"2x", 1.5, BreadthKey::TwoBy},        Breadth{"(2) 2x", 3.0, BreadthKey::TwoBy},
    Breadth{"(3) 2x", 4.5, BreadthKey::TwoBy},    Breadth{"(4) 2x", 6.0, BreadthKey::TwoBy},
    Breadth{"3x", 2.5, BreadthKey::TwoBy},        Breadth{"4x", 3.5, BreadthKey::FourBy},
    Breadth{"6x", 5.5, BreadthKey::SixBy},        Breadth{"8x", 7.5, BreadthKey::SixBy},
    Breadth{"10x", 9.5, BreadthKey::SixBy},       Breadth{"12x", 11.5, BreadthKey::SixBy},
    Breadth{"14x", 13.5, BreadthKey::SixBy},      Breadth{"3-1/8x", 3.125, BreadthKey::Glulam},
    Breadth{"5-1/8x", 5.125, BreadthKey::Glulam}, Breadth{"6-3/4x", 6.75, BreadthKey::Glulam},
    Breadth{"8-3/4x", 8.75, BreadthKey::Glulam},  Breadth{"10-3/4x", 10.75, BreadthKey::Glulam},
    Breadth{"8-1/2x", 8.5, BreadthKey::Glulam},   Breadth{"10-1/2x", 10.5, BreadthKey::Glulam},
};

constexpr std::array Custom2xBreadths{
    Breadth{"2x", 1.5, BreadthKey::TwoBy},     Breadth{"(2) 2x", 3.0, BreadthKey::TwoBy},
    Breadth{"3x", 2.5, BreadthKey::TwoBy},     Breadth{"(3) 2x", 4.5, BreadthKey::TwoBy},
    Breadth{"(4) 2x", 6.0, BreadthKey::TwoBy},
};

constexpr std::array Custom4xBreadths{
    Breadth{"4x", 3.5, BreadthKey::FourBy},
};

constexpr std::array CustomTimberBreadths{
    Breadth{"5x", 4.5, BreadthKey::SixBy},   Breadth{"5-1/2x", 5.0, BreadthKey::SixBy},
    Breadth{"6x", 5.5, BreadthKey::SixBy},   Breadth{"6-1/2x", 6.0, BreadthKey::SixBy},
    Breadth{"7x", 6.5, BreadthKey::SixBy},   Breadth{"7-1/2x", 7.0, BreadthKey::SixBy},
    Breadth{"8x", 7.5, BreadthKey::SixBy},   Breadth{"8-1/2x", 8.0, BreadthKey::SixBy},
    Breadth{"9x", 8.5, BreadthKey::SixBy},   Breadth{"9-1/2x", 9.0, BreadthKey::SixBy},
    Breadth{"10x", 9.5, BreadthKey::SixBy},  Breadth{"10-1/2x", 10.0, BreadthKey::SixBy},
    Breadth{"11x", 10.5, BreadthKey::SixBy}, Breadth{"11-1/2x", 11.0, BreadthKey::SixBy},
    Breadth{"12x", 11.5, BreadthKey::SixBy}, Breadth{"12-1/2x", 12.0, BreadthKey::SixBy},
    Breadth{"13x", 12.5, BreadthKey::SixBy}, Breadth{"13-1/2x", 13.0, BreadthKey::SixBy},
    Breadth{"14x", 13.5, BreadthKey::SixBy},
};

constexpr std::array CustomGlulamBreadths{
    Breadth{"3-1/8x", 3.125, BreadthKey::Glulam},  Breadth{"5-1/8x", 5.125, BreadthKey::Glulam},
    Breadth{"6-3/4x", 6.75, BreadthKey::Glulam},   Breadth{"8-3/4x", 8.75, BreadthKey::Glulam},
    Breadth{"10-3/4x", 10.75, BreadthKey::Glulam},
};

constexpr std::array CustomSouthernPineGlulamBreadths{
    Breadth{"3-1/8x", 3.125, BreadthKey::Glulam}, Breadth{"5-1/8x", 5.125, BreadthKey::Glulam},
    Breadth{"6-3/4x", 6.75, BreadthKey::Glulam},  Breadth{"8-1/2x", 8.5, BreadthKey::Glulam},
    Breadth{"10-1/2x", 10.5, BreadthKey::Glulam},
};

constexpr std::array HeaderBreadths{
    Breadth{"3-1/2x", 3.5, BreadthKey::Glulam},
    Breadth{"5-1/2x", 5.5, BreadthKey::Glulam},
};

struct LadderStep {
    ShortText Text;
    double Net = 0;  // in.
};

/// Steps of equal height whose texts are told in sixteenths of an inch; the net is less by `dressing`.
struct EvenSteps {
    int First;
    int Rise;
    double Dressing;
};

template <std::size_t Count>
constexpr std::array<LadderStep, Count> EvenLadder(EvenSteps steps)
{
    std::array<LadderStep, Count> ladder{};
    int sixteenths = steps.First;
    for (LadderStep& step : ladder) {
        step.Text = InchesText(sixteenths);
        step.Net = static_cast<double>(sixteenths) / SixteenthsPerInch - steps.Dressing;
        sixteenths += steps.Rise;
    }
    return ladder;
}

constexpr LadderStep NominalStep(int nominal, double net)
{
    return {InchesText(nominal * SixteenthsPerInch), net};
}

constexpr std::array DimensionLadder{NominalStep(4, 3.5),   NominalStep(6, 5.5),    NominalStep(8, 7.25),
                                     NominalStep(10, 9.25), NominalStep(12, 11.25), NominalStep(14, 13.25),
                                     NominalStep(16, 15.25)};
constexpr std::size_t DimensionStepsOf2x = 6;  // 16 in. is made as 4x only

constexpr std::array TimberLadder{NominalStep(6, 5.5),   NominalStep(8, 7.5),   NominalStep(10, 9.5),
                                  NominalStep(12, 11.5), NominalStep(14, 13.5), NominalStep(16, 15.5)};

constexpr auto GlulamLadder = EvenLadder<31>({.First = 9 * 16, .Rise = 24, .Dressing = 0});
constexpr auto SouthernPineLadder = EvenLadder<16>({.First = 9 * 16 + 10, .Rise = 22, .Dressing = 0});
constexpr auto HeaderLadder = EvenLadder<7>({.First = 9 * 16, .Rise = 24, .Dressing = 0});
constexpr auto CustomTimberLadder = EvenLadder<63>({.First = 5 * 16, .Rise = 8, .Dressing = 0.5});
constexpr std::size_t StepsPerInchOfCustomTimber = 2;

static_assert(GlulamLadder.back().Text.View() == "54");
static_assert(SouthernPineLadder[1].Text.View() == "11" && SouthernPineLadder.back().Text.View() == "30-1/4");
static_assert(HeaderLadder.back().Text.View() == "18");
static_assert(CustomTimberLadder[1].Text.View() == "5-1/2" && CustomTimberLadder.back().Text.View() == "36");

std::span<const LadderStep> GlulamLadderOf(SizeFamily family)
{
    switch (family) {
        case SizeFamily::SouthernPineListed:
        case SizeFamily::CustomSouthernPineGlulam:
            return SouthernPineLadder;
        case SizeFamily::GlulamHeader:
            return HeaderLadder;
        default:
            return GlulamLadder;
    }
}

std::span<const LadderStep> LadderOf(SizeFamily family, BreadthKey key)
{
    switch (key) {
        case BreadthKey::TwoBy:
            return std::span(DimensionLadder).first<DimensionStepsOf2x>();
        case BreadthKey::FourBy:
            return DimensionLadder;
        case BreadthKey::SixBy:
            return family == SizeFamily::CustomTimber ? std::span<const LadderStep>(CustomTimberLadder)
                                                      : std::span<const LadderStep>(TimberLadder);
        case BreadthKey::Glulam:
            return GlulamLadderOf(family);
        case BreadthKey::Composite:
            break;
    }
    return {};
}

bool IsWiderThanDeep(const Breadth& breadth, const LadderStep& step)
{
    return breadth.Key == BreadthKey::SixBy && step.Net < breadth.Net;
}

}  // namespace

std::span<const Breadth> BreadthsOf(SizeFamily family)
{
    switch (family) {
        case SizeFamily::Listed:
        case SizeFamily::SouthernPineListed:
            return ListedBreadths;
        case SizeFamily::Custom2x:
            return Custom2xBreadths;
        case SizeFamily::Custom4x:
            return Custom4xBreadths;
        case SizeFamily::CustomTimber:
            return CustomTimberBreadths;
        case SizeFamily::CustomGlulam:
            return CustomGlulamBreadths;
        case SizeFamily::CustomSouthernPineGlulam:
            return CustomSouthernPineGlulamBreadths;
        case SizeFamily::GlulamHeader:
            return HeaderBreadths;
        case SizeFamily::Composite:
            return SclBreadths();
    }
    return {};
}

std::vector<std::string_view> BreadthTexts(SizeFamily family)
{
    std::vector<std::string_view> texts;
    for (const Breadth& breadth : BreadthsOf(family)) {
        texts.push_back(breadth.Text);
    }
    return texts;
}

std::string_view KeyText(BreadthKey key)
{
    switch (key) {
        case BreadthKey::TwoBy:
            return "2x";
        case BreadthKey::FourBy:
            return "4x";
        case BreadthKey::SixBy:
            return "6x";
        case BreadthKey::Glulam:
            return "GLB";
        case BreadthKey::Composite:
            return "SCL";
    }
    return {};
}

std::optional<Breadth> FindBreadth(SizeFamily family, std::string_view text)
{
    const std::span<const Breadth> breadths = BreadthsOf(family);
    const auto found = std::find_if(breadths.begin(), breadths.end(),
                                    [text](const Breadth& breadth) { return breadth.Text == text; });
    return found == breadths.end() ? std::nullopt : std::optional(*found);
}

std::optional<Depth> FindDepth(SizeFamily family, const Breadth& breadth, std::string_view text)
{
    const std::span<const LadderStep> ladder = LadderOf(family, breadth.Key);
    const auto found = std::find_if(ladder.begin(), ladder.end(),
                                    [text](const LadderStep& step) { return step.Text.View() == text; });
    if (found == ladder.end()) {
        return std::nullopt;
    }
    const auto at = static_cast<std::size_t>(found - ladder.begin());
    const std::size_t stride = family == SizeFamily::CustomTimber ? StepsPerInchOfCustomTimber : 1;
    Depth depth{.Net = found->Net};
    if (at + stride < ladder.size()) {
        depth.NextLargerText = ladder[at + stride].Text.View();
    }
    if (at >= stride) {
        const LadderStep& smaller = ladder[at - stride];
        if (!IsWiderThanDeep(breadth, smaller)) {
            depth.NextSmaller = smaller.Net;
            depth.NextSmallerText = smaller.Text.View();
        }
    }
    return depth;
}

std::vector<DepthChoice> DepthsOf(SizeFamily family, const Breadth& breadth)
{
    std::vector<DepthChoice> depths;
    for (const LadderStep& step : LadderOf(family, breadth.Key)) {
        if (!IsWiderThanDeep(breadth, step)) {
            depths.push_back({step.Text.View(), step.Net});
        }
    }
    return depths;
}

}  // namespace kordavan
