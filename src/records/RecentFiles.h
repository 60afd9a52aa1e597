#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kordavan {

inline constexpr std::string_view RecentFilesName = "Kordavan recent files.txt";
inline constexpr std::size_t MostRecentFiles = 8;

/// The beams opened and saved last, the latest first; a list that cannot be read is an empty one.
std::vector<std::string> ReadRecentFiles(const std::string& listPath);

/// Puts a file at the head of the list. The list is a history: one that cannot be written is let go.
std::vector<std::string> AddRecentFile(const std::string& listPath, const std::string& file);

/// Where the files of fixed name lie: in the program's folder, or, where that cannot be written or is a bin,
/// which many programs and users share, in the user's own, which is made if need be.
std::string FolderOfFixedFiles(const std::string& programFolder, const std::string& userFolder);

}  // namespace kordavan
