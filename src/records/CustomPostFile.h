#pragma once

#include <string>

#include "columns/ColumnProblem.h"
#include "core/Message.h"
#include "records/PackedRecord.h"

namespace kordavan {

/// Refuses values that are not documented or not there, or that the record cannot hold. Asked before the
/// person is asked for a file.
Outcome CheckCustomPostSavable(const ColumnEntry& entry, UserPort& user);

/// The values as a record; one that it cannot hold reads as 0.
PackedRecord MakeCustomPostRecord(const ColumnEntry& entry);

/// Refuses a record whose tag is not that of custom post values, or that holds an E that is no number.
Outcome CheckCustomPost(const PackedRecord& record, UserPort& user);

/// Replaces species, Fc and E by those of a checked record.
void RestoreCustomPost(const PackedRecord& record, ColumnEntry& entry);

/// Saves the user's own post values and tells the name of the file. A fault is told, and leaves the old file
/// whole.
Outcome SaveCustomPost(const ColumnEntry& entry, const std::string& path, UserPort& user);

/// Takes the values of a file. One that cannot be read, or that holds none, is refused with nothing changed.
Outcome LoadCustomPost(const std::string& path, ColumnEntry& entry, UserPort& user);

}  // namespace kordavan
