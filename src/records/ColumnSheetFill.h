#pragma once

#include "columns/ColumnSession.h"
#include "columns/ColumnSheet.h"
#include "design/DataSheet.h"

namespace kordavan {

/// The record of a tested wood size. Its heading comes with prefixes, as it stands on the sheet.
ColumnSheet FillWoodColumnSheet(const WoodColumnTest& test, const RecordHeading& heading,
                                const ReportNoteLines& notes);

/// The same of a steel size.
ColumnSheet FillSteelColumnSheet(const SteelColumnTest& test, const RecordHeading& heading,
                                 const ReportNoteLines& notes);

/// Heads a sheet of our own.
void HeadColumnSheet(const RecordHeading& heading, ColumnSheet& sheet);

/// The heading that stands on a sheet, without prefixes.
RecordHeading HeadingOnColumnSheet(const ColumnSheet& sheet);

}  // namespace kordavan
