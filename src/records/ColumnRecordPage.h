#pragma once

#include "columns/ColumnSession.h"
#include "columns/ColumnSheet.h"
#include "records/RecordPage.h"

namespace kordavan {

/// Lay a column's record out on one sheet.
RecordPage LayOutWoodColumnRecord(const ColumnSheet& sheet, const PageOptions& options);
RecordPage LayOutSteelColumnRecord(const ColumnSheet& sheet, const PageOptions& options);

/// A stud's record, with room for the diagram of its wind and moment.
RecordPage LayOutStudRecord(const StudTest& test, const RecordHeading& heading, const ReportNoteLines& notes,
                            const PageOptions& options);

}  // namespace kordavan
