#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace kordavan {

/// A member's size class, by which design values and factors are looked up.
enum class BreadthKey { TwoBy, FourBy, SixBy, Glulam };

/// "2x", "4x", "6x" or "GLB".
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
    GlulamHeader
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
