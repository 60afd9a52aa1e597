#pragma once

#include "core/Message.h"
#include "design/Session.h"

namespace kordavan {

/// Captions of the two unbalance buttons; each tells what a press will do.
namespace UnbalanceCaptions {
inline constexpr std::string_view UnbalanceSpan = "Unbalance Span";
inline constexpr std::string_view RestoreSpan = "Restore Span LL";
inline constexpr std::string_view UnbalanceOverhang = "Unbalance OH";
inline constexpr std::string_view RestoreOverhang = "Restore OH LL";
}  // namespace UnbalanceCaptions

/// UBOH: takes the live loads off the overhang of an overhanging beam, or puts them back.
///
/// While one part of the beam is unbalanced the other cannot be: its button is off, and its procedure does
/// nothing. A refusal changes no entry.
Outcome ToggleOverhangLiveLoads(Session& session, UserPort& user);

/// UBSpan: the same for the backspan, uniform load included.
Outcome ToggleSpanLiveLoads(Session& session, UserPort& user);

}  // namespace kordavan
