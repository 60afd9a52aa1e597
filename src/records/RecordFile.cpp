#include "records/RecordFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <system_error>
#include <thread>

namespace kordavan {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t LargestFile = std::size_t{16} << 20U;  // bytes; a record file has a few thousand
constexpr mode_t NewFileMode = 0666;                         // less what the user masks
constexpr int MostNamesTried = 100;

std::string FaultText(int error)
{
    return std::generic_category().message(error);
}

/// An open file, closed with its owner.
class OpenFile {
public:
    explicit OpenFile(int openDescriptor) : descriptor(openDescriptor) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() { Close(); }

    bool IsOpen() const { return descriptor >= 0; }
    int Descriptor() const { return descriptor; }

    /// 0, or the error that closing brought to light.
    int Close()
    {
        const int closing = descriptor;
        descriptor = -1;
        return closing >= 0 && close(closing) != 0 ? errno : 0;
    }

private:
    int descriptor;
};

/// 0, or the error that stopped the writing.
int WriteAll(int descriptor, std::string_view content)
{
    while (!content.empty()) {
        const ssize_t written = write(descriptor, content.data(), content.size());
        if (written < 0 && errno != EINTR) {
            return errno;
        }
        if (written == 0) {
            return EIO;
        }
        content.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
    return fsync(descriptor) != 0 ? errno : 0;
}

/// Renaming is durable once the folder is on disk; a file system that cannot flush folders has done what it
/// can.
void FlushFolder(const fs::path& folder)
{
    const OpenFile opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.IsOpen()) {
        fsync(opened.Descriptor());
    }
}

/// The file itself where the path is a link to one.
fs::path TargetOf(const std::string& path)
{
    std::error_code ignored;
    fs::path target = fs::canonical(path, ignored);
    if (!target.empty()) {
        return target;
    }
    const fs::path link = fs::read_symlink(path, ignored);
    return link.empty() ? fs::path(path) : fs::path(path).parent_path() / link;
}

fs::path FolderOf(const fs::path& target)
{
    return target.has_parent_path() ? target.parent_path() : fs::path(".");
}

/// A file that may not be written must not be replaced either, though its folder would let us.
int CheckReplaceable(const fs::path& target, std::optional<mode_t>& mode)
{
    struct stat status {};
    if (stat(target.c_str(), &status) != 0) {
        return errno == ENOENT ? 0 : errno;
    }
    if (S_ISDIR(status.st_mode)) {
        return EISDIR;
    }
    if (!S_ISREG(status.st_mode)) {
        return EINVAL;
    }
    mode = status.st_mode & static_cast<mode_t>(ACCESSPERMS);
    return access(target.c_str(), W_OK) != 0 ? errno : 0;
}

/// Makes a file of a new name in the folder, whatever else runs there.
int MakeTemporary(const fs::path& folder, std::string& name)
{
    const std::size_t thread = std::hash<std::thread::id>{}(std::this_thread::get_id());
    const std::string beginning =
        ".kordavan-" + std::to_string(getpid()) + "-" + std::to_string(thread) + "-";
    for (int tried = 0; tried < MostNamesTried; ++tried) {
        name = folder / (beginning + std::to_string(tried));
        const int descriptor = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, NewFileMode);
        if (descriptor >= 0 || errno != EEXIST) {
            return descriptor;
        }
    }
    return -1;
}

/// Writes a temporary file and renames it over the target; gives the error that stopped it, or 0.
/// @param mode  of the file replaced; none for a new one
int WriteAndRename(const fs::path& target, std::string_view content, std::optional<mode_t> mode)
{
    std::string temporary;
    OpenFile file(MakeTemporary(FolderOf(target), temporary));
    if (!file.IsOpen()) {
        return errno;
    }
    int error = WriteAll(file.Descriptor(), content);
    if (error == 0 && mode && fchmod(file.Descriptor(), *mode) != 0) {
        error = errno;
    }
    const int closing = file.Close();
    if (error == 0) {
        error = closing;
    }
    if (error == 0 && rename(temporary.c_str(), target.c_str()) != 0) {
        error = errno;
    }
    if (error != 0) {
        unlink(temporary.c_str());
        return error;
    }
    FlushFolder(FolderOf(target));
    return 0;
}

Message FileRefusal(std::string_view what, const std::string& path, const std::string& fault)
{
    Message message = Refusal(std::string(what) + "\n    " + path + "\n" + fault);
    message.Icon = MessageIcon::Warning;
    return message;
}

}  // namespace

FileRead ReadRecordFile(const std::string& path)
{
    const OpenFile file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (!file.IsOpen() || fstat(file.Descriptor(), &status) != 0) {
        return {.Bytes = std::nullopt, .Fault = FaultText(errno)};
    }
    if (!S_ISREG(status.st_mode)) {
        return {.Bytes = std::nullopt, .Fault = FaultText(S_ISDIR(status.st_mode) ? EISDIR : EINVAL)};
    }
    std::string bytes;
    std::array<char, 4096> block{};
    while (true) {
        const ssize_t count = read(file.Descriptor(), block.data(), block.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return {.Bytes = std::nullopt, .Fault = FaultText(errno)};
        }
        if (count == 0) {
            return {.Bytes = std::move(bytes), .Fault = {}};
        }
        bytes.append(block.data(), static_cast<std::size_t>(count));
        if (bytes.size() > LargestFile) {
            return {.Bytes = std::nullopt, .Fault = FaultText(EFBIG)};
        }
    }
}

std::string ReplaceRecord(const std::string& path, std::string_view record)
{
    std::string content(record);
    std::error_code ignored;
    if (fs::exists(path, ignored)) {
        const FileRead old = ReadRecordFile(path);
        if (!old.Bytes) {
            return old.Fault;
        }
        if (old.Bytes->size() > record.size()) {
            content += old.Bytes->substr(record.size());
        }
    }
    return ReplaceFile(path, content);
}

std::string ReplaceFile(const std::string& path, std::string_view content)
{
    const fs::path target = TargetOf(path);
    std::optional<mode_t> mode;
    int error = CheckReplaceable(target, mode);
    if (error == 0) {
        error = WriteAndRename(target, content, mode);
    }
    return error == 0 ? std::string{} : FaultText(error);
}

Outcome RefuseReading(const std::string& path, const std::string& fault, UserPort& user)
{
    return Refuse(user, FileRefusal("This file could not be read:", path, fault));
}

Outcome RefuseSaving(const std::string& path, const std::string& fault, UserPort& user)
{
    return Refuse(user,
                  FileRefusal("This file could not be saved; what stood in it is unchanged:", path, fault));
}

}  // namespace kordavan
