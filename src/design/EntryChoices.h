#pragma once

#include <string_view>
#include <vector>

#include "core/BeamNumbers.h"

namespace kordavan {

/// The exact texts that the size boxes of the selection screen take, for the person to choose from.
std::vector<std::string_view> BreadthChoices(const BeamNumbers& beam);

/// The depths of the breadth entered; those of every breadth while it is none.
std::vector<std::string_view> DepthChoices(const BeamNumbers& beam, std::string_view breadthText);

/// All species and grades of the group, those that come in the breadth entered before the others.
std::vector<std::string_view> SpeciesChoices(const BeamNumbers& beam, std::string_view breadthText);

}  // namespace kordavan
