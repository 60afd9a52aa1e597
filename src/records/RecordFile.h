#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/Message.h"

namespace kordavan {

/// What a file held, or why it could not be read, in the words of the operating system.
struct FileRead {
    std::optional<std::string> Bytes;
    std::string Fault;
};

/// Reads a file whole. Never makes one; a folder and a file larger than any record file are refused.
FileRead ReadRecordFile(const std::string& path);

/// Puts a record at the beginning of a file, new or old; what stood behind the first record of an old file
/// stays.
///
/// The new content goes to a temporary file beside the old one, is flushed to disk and renamed over it: after
/// a crash, a full disk or any refusal the old file is whole.
/// @return the fault in the words of the operating system; empty when the record is saved
std::string ReplaceRecord(const std::string& path, std::string_view record);

/// The same for the whole content of a file.
std::string ReplaceFile(const std::string& path, std::string_view content);

/// Tell that a file could not be read or saved, and why.
Outcome RefuseReading(const std::string& path, const std::string& fault, UserPort& user);
Outcome RefuseSaving(const std::string& path, const std::string& fault, UserPort& user);

}  // namespace kordavan
