#pragma once

#include "design/DataSheet.h"
#include "records/RecordPage.h"

namespace kordavan {

/// Lays the Data Record out on one sheet.
RecordPage LayOutDataRecord(const DataSheet& sheet, const PageOptions& options);

}  // namespace kordavan
