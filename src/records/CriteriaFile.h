#pragma once

#include <string>

#include "core/Message.h"
#include "design/Session.h"

namespace kordavan {

inline constexpr std::string_view CriteriaExtension = "CRI";

/// Refuses to save while live loads are out of the entries, or while an entry holds a number that a criteria
/// file cannot. Asked before the person is asked for a file.
Outcome CheckCriteriaSavable(const Session& session, UserPort& user);

/// Saves the beam, tells so, and keeps its entries as the saved ones. A fault is told, and leaves the old
/// file whole.
Outcome SaveCriteriaFile(Session& session, const std::string& path, CalendarDay today, UserPort& user);

/// Replaces the beam of the session by that of a file. A file that cannot be read, or that is no criteria
/// file, is refused with nothing changed.
Outcome LoadCriteriaFile(Session& session, const std::string& path, UserPort& user);

}  // namespace kordavan
