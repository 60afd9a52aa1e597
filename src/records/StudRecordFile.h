#pragma once

#include <string>

#include "columns/ColumnSession.h"
#include "core/Message.h"
#include "design/DataSheet.h"
#include "records/PackedRecord.h"

namespace kordavan {

/// What a stud record holds.
struct StudRecord {
    ColumnIdentity Identity;
    StudEntry Entry;
    ReportNoteLines ReportNotes;
};

PackedRecord MakeStudRecord(const StudRecord& record);
Outcome CheckStudRecordTag(const PackedRecord& record, UserPort& user);

/// A list position that does not exist reads as the first.
StudRecord ReadStudRecord(const PackedRecord& record);

/// Says what may be done with a record that was loaded.
void TellStudRecordLoaded(UserPort& user);

/// Asks whether the notes are to be saved too, whether there are any or not; true for Yes.
bool AskToSaveStudNotes(UserPort& user);

/// Saves the entries of the stud face with the notes, or blank ones, and tells the name of the file. A fault
/// is told, and leaves the old file whole.
Outcome SaveStudRecord(ColumnSession& columns, const ReportNoteLines& notes, const std::string& path,
                       UserPort& user);

/// Fills the stud face from a file and says what may be done with it; the last run of another stud is
/// withdrawn. One that cannot be read, or that holds another record, is refused with nothing changed.
/// @param notes  replaced where the record has any
Outcome OpenStudRecord(const std::string& path, ColumnSession& columns, ReportNoteLines& notes,
                       UserPort& user);

}  // namespace kordavan
