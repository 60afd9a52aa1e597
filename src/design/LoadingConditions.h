#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "core/Message.h"
#include "design/Session.h"

namespace kordavan {

/// Changes the support condition: all loads go, their live parts taken out for a moment too, and the unbraced
/// boxes become those of the new condition. Nothing happens when it is the condition already.
void SwitchSupport(Session& session, SupportCondition support);

void ClearPointRow(LoadSet& loads, std::size_t slot);
void ClearPartialRow(LoadSet& loads, std::size_t slot);
void ClearPartialCalculatorRow(LoadSet& loads, std::size_t slot);
void ClearPartialCalculatorRows(LoadSet& loads);
void ClearUniformLoad(LoadSet& loads);
void ClearPointLoads(LoadSet& loads);
void ClearPartialLoads(LoadSet& loads);

/// The duration factor after this one: "1.00", "1.15", "1.25", "0.90" and back; "1.00" after any other text.
std::string_view NextDuration(std::string_view text);

/// Deflection limits, live and total, as the adjusting button offers them.
struct DeflectionLimits {
    std::string_view LMaxDefl;
    std::string_view MaxDefl;
};

inline constexpr std::array DeflectionLimitCycle{
    DeflectionLimits{"", "360"},    DeflectionLimits{"", "240"},    DeflectionLimits{"360", "240"},
    DeflectionLimits{"480", "240"}, DeflectionLimits{"240", "180"},
};

/// Writes the next pair of limits; the cycle begins at the pair that a new problem has, whatever the boxes
/// hold.
void StepDeflectionLimits(Session& session);

/// The pair after the one in the boxes: the first when both are empty or "0", empty texts after the last. A
/// pair is the one in the boxes also when one of the two boxes is empty; pairs of two zeroes are passed over,
/// and with no others the boxes stay as they are.
LoadPair NextLoadPair(std::span<const LoadPair> pairs, const LoadPair& boxes);

/// Writes the next pair into two load boxes. Refused when there is no pair to step through.
Outcome StepLoadPair(std::span<const LoadPair> pairs, std::string& live, std::string& total, UserPort& user);

}  // namespace kordavan
