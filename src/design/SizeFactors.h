#pragma once

#include <string_view>

#include "core/SpeciesGroup.h"
#include "materials/Sizes.h"

namespace kordavan {

/// A sawn size and what its size factor hangs on.
struct SizeFactorQuery {
    BreadthKey Key;
    std::string_view DepthText;  // nominal
    std::string_view Species;
    SpeciesGroup Group;
    bool SoPineLowered;  // Southern Pine values since 2012
};

/// Size factor CF of dimension lumber and timbers in bending; 1 for a depth that is in no table.
float SawnSizeFactor(const SizeFactorQuery& query);

/// Size factor of a timber by its net depth: (12/d)^(1/9) above 12 in., else 1.
float TimberSizeFactor(double d);

/// Size factor of a round member: that of the square of equal area, for diameters above 13.5 in.
float RoundSizeFactor(double diameter);

}  // namespace kordavan
