#pragma once

#include <string_view>

#include "core/Message.h"
#include "design/Session.h"

namespace kordavan {

/// Empties the problem for a new beam; material group, deflection limits, in-grade switch and project stay,
/// as does the note clipboard.
void StartNewBeam(Session& session);

/// A new beam from the criteria form: entries that are not saved, and notes, are asked about first. Refused
/// when the person would rather keep the entries.
Outcome OfferNewBeam(Session& session, UserPort& user);

/// A new beam from a finished one: reminds of the ways to save it. Refused when the person wants to save
/// first.
Outcome OfferNewBeamAfterReport(Session& session, UserPort& user);

/// Asks before another beam takes the place of entries that are not saved. Refused when the person would
/// rather keep them.
Outcome OfferToOpen(const Session& session, UserPort& user);

/// True when the entries, as typed, are not those last saved or those that a new beam begins with.
bool HasUnsavedEntries(const Session& session);

/// The question before the program ends.
/// @param otherWork  sentences on what is unsaved beside the beam; empty when there is nothing
Message ExitQuestion(const Session& session, int minutesUsed, std::string_view otherWork = {});

}  // namespace kordavan
