#pragma once

#include <string>

#include "core/Message.h"
#include "design/Session.h"
#include "records/PackedRecord.h"

namespace kordavan {

/// The user's own values as a record, and the first box whose text no record can hold (none as a rule).
struct CustomValuesRecordMade {
    PackedRecord Record;
    std::string UnfitBox;
};

CustomValuesRecordMade MakeCustomValuesRecord(const MemberEntry& entry);

/// Refuses a record whose tag is not that of custom values, or that holds a value that is no number.
Outcome CheckCustomValues(const PackedRecord& record, UserPort& user);

/// Replaces the user's own values in the entry by those of a checked record; what it does not hold stays, but
/// for the sizes of another family of breadths.
void RestoreCustomValues(const PackedRecord& record, MemberEntry& entry);

/// Asks whether values just loaded are of the edition in force, and says how to change it where they are not;
/// warns of timbers in repetitive use.
void TellCustomValues(const PackedRecord& record, const Session& session, UserPort& user);

/// Refuses to save values of an SCL product, or a text that a custom value file cannot hold. Asked before the
/// person is asked for a file.
Outcome CheckCustomValuesSavable(const Session& session, UserPort& user);

/// Saves the user's own values. A fault is told, and leaves the old file whole.
Outcome SaveCustomValues(const Session& session, const std::string& path, UserPort& user);

/// Loads the user's own values from a file. One that cannot be read, or that holds none, is refused with
/// nothing changed.
Outcome LoadCustomValues(Session& session, const std::string& path, UserPort& user);

}  // namespace kordavan
