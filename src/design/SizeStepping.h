#pragma once

#include <optional>

#include "design/Member.h"
#include "design/Session.h"

namespace kordavan {

enum class SizeStep { DepthUp, DepthDown, BreadthUp, BreadthDown };

/// The member one step away from a tested one, or none where there is none to step to.
///
/// Depths go along the ladder of the breadth; breadths along the ladder of sawn members ("2x", "(2) 2x",
/// "4x", "(3) 2x" ... "14x") or of glulams, at the depth in hand. A rung that has not this depth or not this
/// species is passed over; timbers of Southern Pine take the names of their own.
std::optional<MemberEntry> StepSize(SizeStep step, const MemberEntry& entry, const MemberCandidate& member,
                                    SpeciesGroup group);

}  // namespace kordavan
