#pragma once

#include <optional>
#include <string>

#include "records/FileDialogs.h"

namespace kordavan {

/// Ask the person for a file to open, or to save to; none when cancelled.
std::optional<std::string> AskFileToOpen(const FileDialogText& text);
std::optional<std::string> AskFileToSave(const FileDialogText& text);

}  // namespace kordavan
