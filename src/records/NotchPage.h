#pragma once

#include "design/DataSheet.h"
#include "notch/NotchResult.h"
#include "records/RecordPage.h"

namespace kordavan {

/// Lays the report of a notch check out on one sheet, with room for a sketch of the notched end.
RecordPage LayOutNotchReport(const NotchRun& run, const RecordHeading& heading, const ReportNoteLines& notes,
                             const PageOptions& options);

}  // namespace kordavan
