#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "core/SpeciesGroup.h"

namespace kordavan {

/// A member's size class, by which design values and factors are looked up.
enum class BreadthKey { TwoBy, FourBy, SixBy, Glulam, Composite };

/// "2x", "4x", "6x", "GLB" or "SCL".
std::string_view KeyText(BreadthKey key);

/// Where a member's size is chosen from. One text may stand for different nets in different families:
/// "8-1/2x" is 8.5 in. as a glulam and 8 in. as a custom timber.
enum class SizeFamily {
    Listed,              // sawn lumber, timbers and glulams of the species groups
    SouthernPineListed,  // the same, its glulams of 1-3/8 in. laminations
    Custom2x,            // dimension lumber and built-up 2x
    Custom4x,
    CustomTimber,  // timbers by half inches, nominal less 1/2 in.
    CustomGlulam,
    CustomSouthernPineGlulam,
    GlulamHeader,
    Composite  // whose depths are the product's
};

struct Breadth {
    std::string_view Text;
    double Net;  // in.
    BreadthKey Key;
};

struct Depth {
    double Net = 0;                      // in.
    double NextSmaller = 0;              // net, in.; 0 where there is no smaller size
    std::string_view NextSmallerText{};  // empty where there is none
    std::string_view NextLargerText{};
};

/// The breadths of a family; those of a species group hold the glulams of all woods.
std::span<const Breadth> BreadthsOf(SizeFamily family);

/// Their texts, in the same order.
std::vector<std::string_view> BreadthTexts(SizeFamily family);

/// The glulam breadths of a species group, from small to large.
inline constexpr std::array<std::string_view, 5> GlulamLadder{"3-1/8x", "5-1/8x", "6-3/4x", "8-3/4x",
                                                              "10-3/4x"};
inline constexpr std::array<std::string_view, 5> SouthernPineGlulamLadder{"3-1/8x", "5-1/8x", "6-3/4x",
                                                                          "8-1/2x", "10-1/2x"};

/// The family of sizes that the members of a species group are chosen from.
constexpr SizeFamily FamilyOf(SpeciesGroup group)
{
    return group == SpeciesGroup::SouthernPine ? SizeFamily::SouthernPineListed : SizeFamily::Listed;
}

constexpr const std::array<std::string_view, 5>& GlulamLadderOf(SpeciesGroup group)
{
    return group == SpeciesGroup::SouthernPine ? SouthernPineGlulamLadder : GlulamLadder;
}

/// The breadth written exactly so, or none.
std::optional<Breadth> FindBreadth(SizeFamily family, std::string_view text);

/// The depth written exactly so for a breadth of the family, with its neighbours, or none. A timber has no
/// smaller neighbour below its own nominal breadth.
std::optional<Depth> FindDepth(SizeFamily family, const Breadth& breadth, std::string_view text);

/// A depth that a breadth can have.
struct DepthChoice {
    std::string_view Text;
    double Net;  // in.
};

/// The depths of a breadth from small to large; those of a timber begin at its nominal breadth.
std::vector<DepthChoice> DepthsOf(SizeFamily family, const Breadth& breadth);

}  // namespace kordavan
