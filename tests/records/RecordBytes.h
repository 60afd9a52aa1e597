#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>

namespace kordavan {

/// The bytes of a file put together by hand, offset by offset; zeros where nothing is put.
class RecordBytes {
public:
    explicit RecordBytes(std::size_t size) : bytes(size, '\0') {}

    const std::string& All() const { return bytes; }

    RecordBytes& Blanks(std::size_t offset, std::size_t length)
    {
        bytes.replace(offset, length, length, ' ');
        return *this;
    }

    RecordBytes& Text(std::size_t offset, std::string_view text)
    {
        bytes.replace(offset, text.size(), text);
        return *this;
    }

    RecordBytes& Short(std::size_t offset, int value)
    {
        return Low(offset, static_cast<std::uint32_t>(value), 2);
    }

    RecordBytes& Float(std::size_t offset, float value)
    {
        return Low(offset, std::bit_cast<std::uint32_t>(value), 4);
    }

    RecordBytes& On(std::size_t offset) { return Text(offset, "\xFF\xFF"); }

private:
    RecordBytes& Low(std::size_t offset, std::uint32_t value, std::size_t count)
    {
        for (std::size_t k = 0; k < count; ++k) {
            bytes.at(offset + k) = static_cast<char>(value >> (8 * k) & 0xFFU);
        }
        return *this;
    }

    std::string bytes;
};

/// Where two files differ first, in words; empty when they are the same.
inline std::string FirstDifference(std::string_view actual, std::string_view expected)
{
    const auto [at, other] = std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
    if (at == actual.end() && other == expected.end()) {
        return {};
    }
    return "at byte " + std::to_string(at - actual.begin()) + " of " + std::to_string(actual.size()) +
           ", expected " + std::to_string(expected.size()) + " bytes";
}

/// A folder of the test's own, gone with it.
class TemporaryFolder {
public:
    TemporaryFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "kordavan-records-XXXXXX").string();
        EXPECT_NE(mkdtemp(name.data()), nullptr);
        folder = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(folder, ignored);
    }

    std::string Path() const { return folder.string(); }
    std::string Path(std::string_view name) const { return (folder / name).string(); }

    std::size_t FileCount() const
    {
        const std::filesystem::directory_iterator files(folder);
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }

private:
    std::filesystem::path folder;
};

inline void PutFile(const std::string& path, std::string_view bytes)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    ASSERT_TRUE(file) << path;
}

inline std::string FileBytes(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace kordavan
