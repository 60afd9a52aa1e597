#pragma once

#include <string>

#include "columns/ColumnProblem.h"
#include "core/Message.h"
#include "records/PackedRecord.h"

namespace kordavan {

/// Refuses values that are not documented or not there, or that the record cannot hold. Asked before the
/// person is asked for a file.
Outcome CheckCustomPostSavable(const ColumnEntry& entry, UserPort& user);

PackedRecord MakeCustomPostRecord(const ColumnEntry& entry);
Outcome CheckCustomPost(const PackedRecord& record, UserPort& user);

/// Replaces species, Fc and E by those of a checked record.
void RestoreCustomPost(const PackedRecord& record, ColumnEntry& entry);

/// Saves the user's own post values and tells the name of the file. A fault is told, and leaves the old file
/// whole.
Outcome SaveCustomPost(const ColumnEntry& entry, const std::string& path, UserPort& user);

/// Takes the values of a file. One that cannot be read, or that holds none, is refused with nothing changed.
Outcome LoadCustomPost(const std::string& path, ColumnEntry& entry, UserPort& user);

}  // namespace kordavan
