#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "core/Message.h"

namespace kordavan {

/// Ends the run, and so reports its input, where something does not hold.
inline void MustHold(bool holds, std::string_view what)
{
    if (!holds) {
        std::fprintf(stderr, "does not hold: %.*s\n", static_cast<int>(what.size()), what.data());
        std::abort();
    }
}

/// The input in a block of memory of just its size, so that reading past its end shows.
inline std::string InputBytes(const std::uint8_t* data, std::size_t size)
{
    return {data, data + size};
}

/// A person who hears every message and answers every question alike.
class SteadyUser : public UserPort {
public:
    explicit SteadyUser(bool saysYes = true) : yes(saysYes) {}

    void Tell(const Message& message) override
    {
        MustHold(!message.Text.empty(), "a message has words");
        ++MessageCount;
    }

    bool Ask(const Message& question) override
    {
        Tell(question);
        return yes;
    }

    int MessageCount = 0;

private:
    bool yes;
};

/// A folder in memory, where the machine has such, for readers that take a path; gone with its owner.
class ScratchFolder {
public:
    ScratchFolder()
    {
        const std::filesystem::path memory = "/dev/shm";
        const bool hasMemory = std::filesystem::is_directory(memory);
        std::string name =
            ((hasMemory ? memory : std::filesystem::temp_directory_path()) / "kordavan-fuzz-XXXXXX").string();
        MustHold(mkdtemp(name.data()) != nullptr, "there is a scratch folder");
        folder = name;
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    std::string Path() const { return folder.string(); }

    /// Puts a file of these bytes there.
    std::string Put(std::string_view name, std::string_view bytes) const
    {
        std::string path = (folder / name).string();
        std::ofstream file(path, std::ios::binary | std::ios::trunc);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        file.close();
        MustHold(!file.fail(), "a scratch file is written");
        return path;
    }

private:
    std::filesystem::path folder;
};

}  // namespace kordavan
