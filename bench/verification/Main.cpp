#include <algorithm>
#include <array>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>

#include "Manual.h"

namespace {

using kordavan::Verification::Manual;

struct ManualFile {
    std::filesystem::path Path;
    const std::string& Content;
};

std::array<ManualFile, 3> FilesOf(const Manual& manual, const std::filesystem::path& docs)
{
    return {ManualFile{docs / "verification.md", manual.Text},
            ManualFile{docs / "verification.jsonl", manual.Requests},
            ManualFile{docs / "images" / "verification.svg", manual.Chart}};
}

std::string ContentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

/// Tells where a file no longer says what the program finds.
bool IsTrue(const ManualFile& file)
{
    const std::string held = ContentOf(file.Path);
    if (held == file.Content) {
        return true;
    }
    const auto differ = std::mismatch(held.begin(), held.end(), file.Content.begin(), file.Content.end());
    const auto line = 1 + std::count(held.begin(), differ.first, '\n');
    std::cerr << file.Path.string() << ":" << line
              << ": is not what the program finds; write it anew with kordavan-verification "
              << file.Path.parent_path().string() << "\n";
    return false;
}

bool Write(const ManualFile& file)
{
    std::ofstream output(file.Path, std::ios::binary);
    output << file.Content;
    output.close();
    if (!output) {
        std::cerr << file.Path.string() << ": cannot be written\n";
    }
    return !output.fail();
}

bool Run(bool checks, const std::filesystem::path& docs)
{
    const Manual manual = kordavan::Verification::MakeManual();
    for (const std::string& fault : manual.Faults) {
        std::cerr << fault << "\n";
    }
    bool isGood = manual.Faults.empty();
    for (const ManualFile& file : FilesOf(manual, docs)) {
        isGood = (checks ? IsTrue(file) : Write(file)) && isGood;
    }
    return isGood;
}

}  // namespace

/// Writes the verification manual into a folder of documents, or with --check compares it with what is there.
int main(int argc, char** argv)
{
    const bool checks = argc == 3 && std::string_view(argv[1]) == "--check";
    if (argc != 2 && !checks) {
        std::cerr << "usage: kordavan-verification [--check] DOCS\n";
        return 2;
    }
    try {
        return Run(checks, argv[argc - 1]) ? 0 : 1;
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << "\n";
        return 1;
    }
}
