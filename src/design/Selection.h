#pragma once

#include <optional>

#include "core/Message.h"
#include "design/QuickPicks.h"
#include "design/Session.h"
#include "design/SizeStepping.h"

namespace kordavan {

/// Opens the selection on a new analysis: the size boxes are emptied and the quick picks found. What their
/// tests have to say is told once.
QuickPicks StartSelection(Session& session, UserPort& user);

/// Fills the size boxes from a quick pick; an empty cell changes nothing.
void TakePick(Session& session, const QuickPick& pick);

/// Tests the member in the size boxes.
Outcome TestEntered(Session& session, UserPort& user);

/// The sizes one step away from the member tested last; none where a step leads nowhere.
std::optional<MemberEntry> NextEntry(const Session& session, SizeStep step);

/// Tests the size one step away and writes it into the size boxes. A refused test, or a step that leads
/// nowhere, changes nothing.
Outcome StepMember(Session& session, SizeStep step, UserPort& user);

/// Puts the member tested last on record.
void SelectMember(Session& session, CalendarDay today);

}  // namespace kordavan
