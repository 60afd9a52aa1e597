#pragma once

#include <string>
#include <vector>

#include "Sweep.h"

namespace kordavan::Verification {

/// The differences from beam theory as an SVG drawing: curves of the simple span above, ranges of all
/// deflections below.
std::string DrawChart(const std::vector<SweepGroup>& sweep);

}  // namespace kordavan::Verification
