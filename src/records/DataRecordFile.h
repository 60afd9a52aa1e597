#pragma once

#include <string>

#include "core/Message.h"
#include "design/DataSheet.h"
#include "records/PackedRecord.h"

namespace kordavan {

/// The sheet as a record. A text longer than its slot is cut; captions that stand on every sheet are not
/// stored.
PackedRecord MakeDataRecord(const DataSheet& sheet, const RecordHeading& heading);

/// Refuses a record whose tag is none of a Data Record.
Outcome CheckDataRecordTag(const PackedRecord& record, UserPort& user);

/// Shows a record with the right tag, and its notes, on the sheet. The heading comes without prefixes, each
/// slot in the cell of its own number. A caption that the record does not hold stays as it stands, but for
/// that of the bearing and those that steel hides.
void RestoreDataSheet(const PackedRecord& record, DataSheet& sheet);

/// Saves the sheet and tells how it is loaded again. A fault is told, and leaves the old file whole.
Outcome SaveDataRecord(const DataSheet& sheet, const RecordHeading& heading, const std::string& path,
                       UserPort& user);

/// Shows the record of a file on the sheet. A file that cannot be read, or that is no Data Record, is refused
/// with nothing changed.
Outcome OpenDataRecord(const std::string& path, DataSheet& sheet, UserPort& user);

}  // namespace kordavan
