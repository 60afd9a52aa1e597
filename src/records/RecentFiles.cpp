#include "records/RecentFiles.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <system_error>

#include "records/RecordFile.h"

namespace kordavan {

std::vector<std::string> ReadRecentFiles(const std::string& listPath)
{
    std::vector<std::string> files;
    std::istringstream lines(ReadRecordFile(listPath).Bytes.value_or(std::string{}));
    for (std::string line; files.size() < MostRecentFiles && std::getline(lines, line);) {
        if (!line.empty()) {
            files.push_back(line);
        }
    }
    return files;
}

std::vector<std::string> AddRecentFile(const std::string& listPath, const std::string& file)
{
    std::vector<std::string> files = ReadRecentFiles(listPath);
    files.erase(std::remove(files.begin(), files.end(), file), files.end());
    files.insert(files.begin(), file);
    files.resize(std::min(files.size(), MostRecentFiles));
    std::string content;
    for (const std::string& each : files) {
        content += each + "\n";
    }
    ReplaceFile(listPath, content);
    return files;
}

std::string FolderOfFixedFiles(const std::string& programFolder, const std::string& userFolder)
{
    const bool isShared = std::filesystem::path(programFolder).filename() == "bin";
    if (!isShared && access(programFolder.c_str(), W_OK) == 0) {
        return programFolder;
    }
    std::error_code ignored;
    std::filesystem::create_directories(userFolder, ignored);
    return userFolder;
}

}  // namespace kordavan
