#include "design/SizeStepping.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "materials/Sizes.h"
#include "materials/Species.h"

namespace kordavan {

namespace {

constexpr std::array<std::string_view, 10> SawnBreadths{"2x", "(2) 2x", "4x",  "(3) 2x", "(4) 2x",
                                                        "6x", "8x",     "10x", "12x",    "14x"};

/// Stands beside the sawn ladder: up from it leads to the two-ply member, down to none.
constexpr std::string_view ThreeInch = "3x";

std::span<const std::string_view> LadderOf(const MemberCandidate& member, SpeciesGroup group)
{
    if (member.BreadthKey != BreadthKey::Glulam) {
        return SawnBreadths;
    }
    return GlulamLadderOf(group);
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

/// The member on this rung, if its depth and species exist there.
std::optional<MemberEntry> OnRung(std::string_view rung, const MemberEntry& entry,
                                  const MemberCandidate& member)
{
    const std::optional<Breadth> breadth = FindBreadth(member.Family, rung);
    if (!breadth || !FindDepth(member.Family, *breadth, member.DepthText)) {
        return std::nullopt;
    }
    const SpeciesRow* const species = FindSpeciesForBreadth(breadth->Key, member.SpeciesText);
    if (species == nullptr) {
        return std::nullopt;
    }
    MemberEntry stepped = entry;
    stepped.BreadthText = rung;
    stepped.DepthText = member.DepthText;
    stepped.SpeciesText = species->SpeciesName;
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
    stepped.SpeciesText = member.SpeciesText;
    return stepped;
}

}  // namespace

std::optional<MemberEntry> StepSize(SizeStep step, const MemberEntry& entry, const MemberCandidate& member,
                                    SpeciesGroup group)
{
    if (IsClosed(step, member)) {
        return std::nullopt;
    }
    const std::span<const std::string_view> ladder = LadderOf(member, group);
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
