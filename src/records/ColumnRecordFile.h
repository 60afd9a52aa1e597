#pragma once

#include <string>
#include <string_view>

#include "columns/ColumnSheet.h"
#include "core/Message.h"
#include "records/FileDialogs.h"
#include "records/PackedRecord.h"

namespace kordavan {

/// The two kinds of column records that hold the texts of a sheet.
enum class ColumnRecordKind { Wood, Steel };

/// The sheet as a record. A text longer than its cell is cut.
/// @param withNotes  no leaves the note lines blank
PackedRecord MakeColumnRecord(const ColumnSheet& sheet, ColumnRecordKind kind, bool withNotes);

/// Refuses a record whose tag is not that of the kind.
Outcome CheckColumnRecordTag(const PackedRecord& record, ColumnRecordKind kind, UserPort& user);

/// Refuses a file of another kind: what it is not, and which extensions the kinds have.
Outcome RefuseColumnFile(std::string_view what, UserPort& user);

/// The sheet of a record with the right tag.
ColumnSheet ReadColumnSheet(const PackedRecord& record, ColumnRecordKind kind);

/// Says what may be done with a record that was loaded.
void TellColumnRecordLoaded(ColumnRecordKind kind, UserPort& user);

/// Asks whether the notes are to be saved too, whether there are any or not; true for Yes.
bool AskToSaveColumnNotes(UserPort& user);

/// Saves the sheet and tells the name of the file. A fault is told, and leaves the old file whole.
Outcome SaveColumnRecord(const ColumnSheet& sheet, ColumnRecordKind kind, bool withNotes,
                         const std::string& path, UserPort& user);

/// Reads the sheet of a file and says what may be done with it. One that cannot be read, or that holds
/// another record, is refused with nothing changed.
Outcome OpenColumnRecord(const std::string& path, ColumnRecordKind kind, ColumnSheet& sheet, UserPort& user);

const FileDialogText& SaveColumnDialog(ColumnRecordKind kind);
const FileDialogText& OpenColumnDialog(ColumnRecordKind kind);

}  // namespace kordavan
