#pragma once

#include <vector>

#include "core/Message.h"
#include "design/SteelRow.h"
#include "design/SteelState.h"

namespace kordavan {

/// Tries the shapes of the family in their order and keeps the first sixteen that pass: depth as asked for,
/// bending and deflections up to their limits, shear stress below its limit.
///
/// The span moment alone decides in bending. Refused where the shears of an overhanging beam cannot be
/// compared; then there are no candidates.
Outcome ScanSteelCandidates(const SteelBeam& steel, UserPort& user, std::vector<SteelSlot>& slots);

}  // namespace kordavan
