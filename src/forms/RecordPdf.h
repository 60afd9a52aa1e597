#pragma once

#include <QString>
#include <optional>
#include <string>

#include "design/LoadPicture.h"
#include "records/RecordPage.h"

namespace kordavan {

/// Writes a record's page as a PDF file of one sheet, its fonts embedded and its text searchable. The old
/// file is whole until the new one is on disk.
/// @return the fault in the words of the operating system; empty when the file is saved
std::string SavePdf(const std::string& path, const RecordPage& page, const std::optional<LoadPicture>& loads,
                    const QString& family);

}  // namespace kordavan
