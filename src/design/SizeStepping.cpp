#include "design/SizeStepping.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "core/NumberText.h"
#include "core/SizeText.h"
#include "materials/SclProducts.h"
#include "materials/Sizes.h"
#include "materials/Species.h"

namespace kordavan {

namespace {

constexpr std::array<std::string_view, 10> SawnBreadths{"2x", "(2) 2x", "4x",  "(3) 2x", "(4) 2x",
                                                        "6x", "8x",     "10x", "12x",    "14x"};

/// Stands beside the sawn ladder: up from it leads to the two-ply member, down to none.
constexpr std::string_view ThreeInch = "3x";

/// The breadths of a product from small to large.
std::vector<std::string_view> ProductBreadths(std::size_t product)
{
    std::vector<Breadth> breadths;
    breadths.reserve(SclProducts()[product].Sizes.size());
    for (const SclSize& size : SclProducts()[product].Sizes) {
        breadths.push_back(*FindBreadth(SizeFamily::Composite, size.Breadth));
    }
    std::sort(breadths.begin(), breadths.end(),
              [](const Breadth& a, const Breadth& b) { return a.Net < b.Net; });
    std::vector<std::string_view> texts;
    texts.reserve(breadths.size());
    for (const Breadth& breadth : breadths) {
        texts.push_back(breadth.Text);
    }
    return texts;
}

template <typename Ladder>
std::vector<std::string_view> Rungs(const Ladder& ladder)
{
    return {ladder.begin(), ladder.end()};
}

/// The breadths that a member of this family is stepped through; a timber of the user's own is stepped in
/// depth alone.
std::vector<std::string_view> LadderOf(const MemberCandidate& member, SpeciesGroup group)
{
    switch (member.Family) {
        case SizeFamily::Composite:
            return ProductBreadths(member.Product);
        case SizeFamily::CustomTimber:
        case SizeFamily::Custom4x:
            return {};
        case SizeFamily::GlulamHeader:
        case SizeFamily::CustomGlulam:
        case SizeFamily::CustomSouthernPineGlulam:
            return BreadthTexts(member.Family);
        case SizeFamily::Listed:
        case SizeFamily::SouthernPineListed:
        case SizeFamily::Custom2x:
            break;
    }
    return member.BreadthKey == BreadthKey::Glulam ? Rungs(GlulamLadderOf(group)) : Rungs(SawnBreadths);
}

/// Steps that the ladders would allow and that are not offered.
struct ClosedStep {
    SizeStep Step;
    std::string_view Breadth;
    std::string_view Depth;
};

constexpr std::array ClosedSteps{
    ClosedStep{SizeStep::BreadthUp, "4x", "4"},
    ClosedStep{SizeStep::BreadthDown, "6x", "16"},
};

bool IsClosed(SizeStep step, const MemberCandidate& member)
{
    return std::any_of(ClosedSteps.begin(), ClosedSteps.end(), [&](const ClosedStep& closed) {
        return closed.Step == step && closed.Breadth == member.BreadthText &&
               closed.Depth == member.DepthText;
    });
}

/// The rungs above a breadth from the nearest on.
std::span<const std::string_view> RungsAbove(std::span<const std::string_view> ladder,
                                             std::string_view breadth)
{
    if (breadth == ThreeInch) {
        return ladder.subspan(1);
    }
    const auto found = std::find(ladder.begin(), ladder.end(), breadth);
    return found == ladder.end() ? std::span<const std::string_view>{} : std::span(found + 1, ladder.end());
}

std::span<const std::string_view> RungsBelow(std::span<const std::string_view> ladder,
                                             std::string_view breadth)
{
    const auto found = std::find(ladder.begin(), ladder.end(), breadth);
    return found == ladder.end() ? std::span<const std::string_view>{} : std::span(ladder.begin(), found);
}

bool IsListed(SizeFamily family)
{
    return family == SizeFamily::Listed || family == SizeFamily::SouthernPineListed;
}

bool HasDepth(const MemberCandidate& member, const Breadth& breadth)
{
    if (member.Family != SizeFamily::Composite) {
        return FindDepth(member.Family, breadth, member.DepthText).has_value();
    }
    const std::vector<DepthChoice> depths = SclDepths(member.Product, breadth.Text);
    return std::any_of(depths.begin(), depths.end(),
                       [&member](const DepthChoice& depth) { return depth.Text == member.DepthText; });
}

/// The member on this rung, if its depth and species exist there.
std::optional<MemberEntry> OnRung(std::string_view rung, const MemberEntry& entry,
                                  const MemberCandidate& member)
{
    const std::optional<Breadth> breadth = FindBreadth(member.Family, rung);
    if (!breadth || !HasDepth(member, *breadth)) {
        return std::nullopt;
    }
    MemberEntry stepped = entry;
    stepped.BreadthText = rung;
    stepped.DepthText = member.DepthText;
    if (IsListed(member.Family)) {
        const SpeciesRow* const species = FindSpeciesForBreadth(breadth->Key, member.SpeciesText);
        if (species == nullptr) {
            return std::nullopt;
        }
        stepped.SpeciesText = species->SpeciesName;
    }
    return stepped;
}

template <typename Rungs>
std::optional<MemberEntry> FirstOn(const Rungs& begin, const Rungs& end, const MemberEntry& entry,
                                   const MemberCandidate& member)
{
    for (auto rung = begin; rung != end; ++rung) {
        if (std::optional<MemberEntry> stepped = OnRung(*rung, entry, member)) {
            return stepped;
        }
    }
    return std::nullopt;
}

/// The member at another depth; the size boxes may have gone on to an untested pick.
std::optional<MemberEntry> WithDepth(const MemberEntry& entry, const MemberCandidate& member,
                                     std::string_view depth)
{
    if (depth.empty()) {
        return std::nullopt;
    }
    MemberEntry stepped = entry;
    stepped.BreadthText = member.BreadthText;
    stepped.DepthText = depth;
    if (IsListed(member.Family)) {
        stepped.SpeciesText = member.SpeciesText;
    }
    return stepped;
}

/// Timbers and poles of the user's own grow and shrink by an inch between these depths, in.
constexpr double LeastSteppedDepth = 6;
constexpr double MostSteppedDepth = 35;

bool IsSteppedByInches(const MemberCandidate& member)
{
    return member.Round || member.Family == SizeFamily::CustomTimber;
}

bool IsPastItsSteps(SizeStep step, const MemberCandidate& member)
{
    const double depth = member.Round ? member.D : InchesOf(member.DepthText);
    return (step == SizeStep::DepthUp && depth >= MostSteppedDepth) ||
           (step == SizeStep::DepthDown && depth < LeastSteppedDepth);
}

std::optional<MemberEntry> StepDiameter(SizeStep step, const MemberEntry& entry,
                                        const MemberCandidate& member)
{
    const bool isUp = step == SizeStep::DepthUp;
    if (!isUp && step != SizeStep::DepthDown) {
        return std::nullopt;
    }
    MemberEntry stepped = entry;
    stepped.Custom.Diam = PlainNumber(member.D + (isUp ? 1.0 : -1.0));
    return stepped;
}

}  // namespace

std::optional<MemberEntry> StepSize(SizeStep step, const MemberEntry& entry, const MemberCandidate& member,
                                    SpeciesGroup group)
{
    if (IsClosed(step, member) || (IsSteppedByInches(member) && IsPastItsSteps(step, member))) {
        return std::nullopt;
    }
    if (member.Round) {
        return StepDiameter(step, entry, member);
    }
    const std::vector<std::string_view> ladder = LadderOf(member, group);
    switch (step) {
        case SizeStep::DepthUp:
            return WithDepth(entry, member, member.NextLargerDepthText);
        case SizeStep::DepthDown:
            return WithDepth(entry, member, member.NextSmallerDepthText);
        case SizeStep::BreadthUp: {
            const auto rungs = RungsAbove(ladder, member.BreadthText);
            return FirstOn(rungs.begin(), rungs.end(), entry, member);
        }
        case SizeStep::BreadthDown: {
            const auto rungs = RungsBelow(ladder, member.BreadthText);
            return FirstOn(rungs.rbegin(), rungs.rend(), entry, member);
        }
    }
    return std::nullopt;
}

}  // namespace kordavan
