#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "materials/Sizes.h"

namespace kordavan {

/// A breadth that a product is made in, single or of several plies, with its depths from small to large.
struct SclSize {
    std::string_view Breadth;
    std::span<const std::string_view> Depths;
};

/// A structural composite lumber product. Its design values are the maker's to publish and the user's to
/// enter.
struct SclProduct {
    std::string_view Name;
    std::string_view LVLname;        // the maker's line
    std::string_view boisenote;      // a remark on the product
    std::span<const SclSize> Sizes;  // in the order of its quick picks; none of the user's own products
    double DeepExponent = 0;         // of the size factor (12/d)^x from 12 in. up
    double ShallowExponent = 0;      // and below 12 in.
    bool UsesVolumeFactor = false;   // in place of the size factor
    bool IsRepetitive = true;        // bending may be raised for repetitive use
    float DensityFactor = 0;         // unit weight in pcf over 144
    double ShallowLimit = 0;         // deflection that its maker allows up to 7-1/4 in. deep, in.; 0 for none
};

inline constexpr std::size_t SclProductCount = 26;

/// Two products are the user's own, with a name and a size factor exponent.
inline constexpr std::size_t FirstCustomScl = 23;
inline constexpr std::size_t CustomSclCount = 2;

constexpr bool IsCustomScl(std::size_t product)
{
    return product >= FirstCustomScl && product < FirstCustomScl + CustomSclCount;
}

/// The products in the order of their list, by which files know them.
std::span<const SclProduct, SclProductCount> SclProducts();

/// All breadths in which composite lumber can be written; "(2) 1-3/4x" is two plies of 1-3/4 in.
std::span<const Breadth> SclBreadths();

/// True when the product comes in the breadth; the user's own come in all.
bool IsMadeIn(std::size_t product, std::string_view breadth);

/// The depths of a product in a breadth; in one that it is not made in, all its depths, and every depth there
/// is of the user's own products.
std::vector<DepthChoice> SclDepths(std::size_t product, std::string_view breadth);

/// A depth written exactly so, if composite lumber has it, with its neighbours among the product's.
std::optional<Depth> FindSclDepth(std::size_t product, std::string_view breadth, std::string_view text);

}  // namespace kordavan
