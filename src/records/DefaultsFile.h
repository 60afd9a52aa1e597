#pragma once

#include <string>
#include <string_view>

#include "core/Message.h"
#include "core/NdsEdition.h"
#include "design/Session.h"
#include "records/PackedRecord.h"

namespace kordavan {

inline constexpr std::string_view DefaultsFileName = "Kordavan2024.ini";

/// Reads the standing choices into a session that is about to start. A file that does not exist is made,
/// empty; an empty one gives the choices of a first run. A file of another kind is told, and nothing is taken
/// from it.
void LoadDefaults(Session& session, const std::string& path, UserPort& user);

/// Refuses a record whose tag is not that of the defaults.
Outcome CheckDefaultsTag(const PackedRecord& record, UserPort& user);

/// Saves the standing choices with the edition in force, and applies them to the session at once. A fault is
/// told and leaves file and session as they were.
Outcome SaveDefaults(Session& session, const DefaultSettings& settings, const std::string& path,
                     UserPort& user);

/// The choices as the settings screen opens with them.
DefaultSettings SettingsToShow(const Session& session);

/// Puts an edition in force at once, saved or not; the selection on record is withdrawn, as it was found
/// under another.
void ChooseEdition(Session& session, Edition edition);

/// What is wrong with the text of a load pair's box; empty when it may stay.
enum class LoadPairSide { Live, Total };
std::string_view LoadPairFault(std::string_view text, LoadPairSide side);

}  // namespace kordavan
