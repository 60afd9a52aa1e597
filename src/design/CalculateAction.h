#pragma once

#include "core/Message.h"
#include "core/Progress.h"
#include "design/Session.h"

namespace kordavan {

/// The gate between entry and design: reminders, checks, courtesy alerts, adjustment of the load entries and
/// the analysis of the applied loads.
///
/// The loads in the entries are those of the analysis afterwards, until RestoreEntries puts them back. A
/// refusal tells one message and changes nothing, but for a uniform load that the person has asked to be
/// worked out.
Outcome CalculateAction(Session& session, UserPort& user, const Progress& progress = {});

}  // namespace kordavan
