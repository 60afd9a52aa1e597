#pragma once

#include <optional>

#include "core/BeamNumbers.h"
#include "core/Message.h"

namespace kordavan {

/// The first entry that stands against a calculation, in the order of the form, as the refusal to tell.
std::optional<Message> CheckCriteria(const BeamProblem& problem, const BeamNumbers& beam);

/// Checks of the deflection limits, after the loads are summed.
std::optional<Message> CheckDeflectionLimits(const BeamNumbers& beam);

}  // namespace kordavan
