#pragma once

#include "design/DataSheet.h"
#include "records/RecordPage.h"

namespace kordavan {

/// What a page shows besides its sheet.
struct PageOptions {
    bool HighDpi = false;    // finer lines and tints
    bool HasNotes = true;    // the notes stand at its foot
    bool HasDiagram = true;  // the loads are known, not only their texts
};

/// Lays the Data Record out on one sheet.
RecordPage LayOutDataRecord(const DataSheet& sheet, const PageOptions& options);

}  // namespace kordavan
