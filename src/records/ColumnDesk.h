#pragma once

#include <string>

#include "columns/ColumnSession.h"
#include "core/Message.h"
#include "design/SelectionRecord.h"
#include "design/Session.h"
#include "records/ColumnRecordFile.h"

namespace kordavan {

/// The record of a kind that is on show.
ColumnRecordOnShow& ColumnRecordOf(ColumnSession& columns, ColumnRecordKind kind);

/// Makes the record of the size tested last, with the notes of the clipboard and the heading of the column:
/// of its entries and the standing header, or as it was entered for printing. Refused, with a message, while
/// nothing has been tested.
Outcome SelectColumnForRecord(ColumnSession& columns, const Session& beam, ColumnRecordKind kind,
                              CalendarDay today, UserPort& user);

/// Shows a record that was loaded from a file, and its notes if it has any; the own one comes back once it is
/// left.
void TakeLoadedColumnRecord(ColumnSession& columns, Session& beam, ColumnRecordKind kind,
                            const ColumnSheet& sheet);

/// Leaves a record that was loaded, if it is on show; false where there is no own one to come back to.
bool LeaveLoadedColumnRecord(ColumnSession& columns, ColumnRecordKind kind);

/// Puts the notes of the note clipboard on the sheet.
void BringColumnNotes(ColumnSession& columns, const Session& beam, ColumnRecordKind kind);

/// The record on show has been saved or printed. One that was loaded says nothing of our own.
void MarkColumnRecordKept(ColumnSession& columns, ColumnRecordKind kind);

/// Fills the heading to be printed of what stands on the sheet, or, for a stud, of its entries and the
/// standing header; a heading already entered for that stud stays. An empty date is today's.
void PrepareColumnHeading(ColumnSession& columns, ColumnRecordKind kind, CalendarDay today);
void PrepareStudHeading(ColumnSession& columns, const Session& beam, CalendarDay today);

/// The sheet on show under the heading as it is entered; an empty date is today's.
ColumnSheet HeadedColumnSheet(const ColumnSession& columns, ColumnRecordKind kind, CalendarDay today);

/// Heads the sheet on show by what is entered, and what is selected for the same column later.
void TakeColumnHeading(ColumnSession& columns, ColumnRecordKind kind, CalendarDay today);

/// Keeps the heading entered for the stud.
void TakeStudHeading(ColumnSession& columns, CalendarDay today);

/// The unsaved work of the columns, as the exit question names it; empty when there is none.
std::string UnsavedColumnWork(const ColumnSession& columns);

}  // namespace kordavan
