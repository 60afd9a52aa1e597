#pragma once

#include <vector>

#include "Manual.h"
#include "Sweep.h"

namespace kordavan::Verification {

/// Adds what checks the yardstick itself: the elastic curve beside closed formulas.
void WriteYardstick(const std::string& number, Manual& manual);

/// Adds the tables of the sweep, and notes a difference that leaves the limits of its family as a fault.
void WriteSweep(const std::vector<SweepGroup>& sweep, Manual& manual);

}  // namespace kordavan::Verification
