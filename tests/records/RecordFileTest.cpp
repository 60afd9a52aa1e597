#include "records/RecordFile.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <thread>

#include "records/RecordBytes.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view NoSuchFile = "No such file or directory";
constexpr std::string_view IsFolder = "Is a directory";
constexpr std::string_view Denied = "Permission denied";

constexpr std::string_view Record = "the record, new";

bool PermissionsBind()
{
    return geteuid() != 0;
}

/// Ends the test program rather than let it wait for ever.
class Patience {
public:
    explicit Patience(unsigned seconds) { alarm(seconds); }
    Patience(const Patience&) = delete;
    Patience& operator=(const Patience&) = delete;
    ~Patience() { alarm(0); }
};

TEST(ReadRecordFile, GivesAllBytes)
{
    const TemporaryFolder folder;
    const std::string bytes("a\0b\xFF\r\n", 6);
    PutFile(folder.Path("some.CRI"), bytes);
    EXPECT_EQ(ReadRecordFile(folder.Path("some.CRI")).Bytes, bytes);
    PutFile(folder.Path("empty.CRI"), "");
    EXPECT_EQ(ReadRecordFile(folder.Path("empty.CRI")).Bytes, "");
}

TEST(ReadRecordFile, MakesNoFile)
{
    const TemporaryFolder folder;
    const FileRead file = ReadRecordFile(folder.Path("none.CRI"));
    EXPECT_FALSE(file.Bytes);
    EXPECT_EQ(file.Fault, NoSuchFile);
    EXPECT_EQ(folder.FileCount(), 0U);
}

TEST(ReadRecordFile, RefusesWhatIsNoFile)
{
    const Patience patience(30);
    const TemporaryFolder folder;
    const FileRead asFolder = ReadRecordFile(folder.Path());
    EXPECT_FALSE(asFolder.Bytes);
    EXPECT_EQ(asFolder.Fault, IsFolder);
    ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
    const FileRead asPipe = ReadRecordFile(folder.Path("pipe"));  // nobody will ever write into it
    EXPECT_FALSE(asPipe.Bytes);
    EXPECT_EQ(asPipe.Fault, "Invalid argument");
}

TEST(ReadRecordFile, RefusesAFileOverSixteenMebibytes)
{
    constexpr std::size_t most = std::size_t{16} << 20U;
    const TemporaryFolder folder;
    const std::string path = folder.Path("large.CRI");
    PutFile(path, "");
    fs::resize_file(path, most);
    const FileRead largest = ReadRecordFile(path);
    ASSERT_TRUE(largest.Bytes) << largest.Fault;
    EXPECT_EQ(largest.Bytes->size(), most);
    fs::resize_file(path, most + 1);
    const FileRead larger = ReadRecordFile(path);
    EXPECT_FALSE(larger.Bytes);
    EXPECT_EQ(larger.Fault, "File too large");
    EXPECT_EQ(ReplaceRecord(path, Record), "File too large");  // its tail could not be kept
    EXPECT_EQ(fs::file_size(path), most + 1);
}

TEST(ReadRecordFile, TellsAFileThatMayNotBeRead)
{
    if (!PermissionsBind()) {
        GTEST_SKIP() << "permissions do not bind this user";
    }
    const TemporaryFolder folder;
    const std::string path = folder.Path("secret.CRI");
    PutFile(path, "secret");
    fs::permissions(path, fs::perms::none);
    EXPECT_EQ(ReadRecordFile(path).Fault, Denied);
    EXPECT_EQ(ReplaceRecord(path, Record), Denied);
}

struct ReplaceCase {
    std::string_view Name;
    std::string_view Old;
    std::string_view New;
};

class ReplaceRecordTest : public testing::TestWithParam<ReplaceCase> {};

TEST_P(ReplaceRecordTest, WritesTheFirstRecordAlone)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("beam.CRI");
    PutFile(path, GetParam().Old);
    EXPECT_EQ(ReplaceRecord(path, Record), "");
    EXPECT_EQ(FileBytes(path), GetParam().New);
    EXPECT_EQ(folder.FileCount(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    OldFiles, ReplaceRecordTest,
    testing::Values(ReplaceCase{"empty", "", Record}, ReplaceCase{"shorter", "old", Record},
                    ReplaceCase{"of one record", "the record, old", Record},
                    ReplaceCase{"longer", "the record, old and more", "the record, new and more"}),
    CaseName);

TEST(ReplaceRecord, MakesANewFile)
{
    const TemporaryFolder folder;
    EXPECT_EQ(ReplaceRecord(folder.Path("new.CRI"), Record), "");
    EXPECT_EQ(FileBytes(folder.Path("new.CRI")), Record);
    EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(ReplaceRecord, KeepsTheModeOfTheFile)
{
    for (const fs::perms mode : {fs::perms{0600}, fs::perms{0664}, fs::perms{0755}}) {
        const TemporaryFolder folder;
        const std::string path = folder.Path("beam.CRI");
        PutFile(path, "old");
        fs::permissions(path, mode);
        EXPECT_EQ(ReplaceRecord(path, Record), "");
        EXPECT_EQ(FileBytes(path), Record);
        EXPECT_EQ(fs::status(path).permissions(), mode);
    }
}

TEST(ReplaceRecord, WritesThroughALink)
{
    const TemporaryFolder folder;
    const TemporaryFolder elsewhere;
    const std::string target = elsewhere.Path("beam.CRI");
    const std::string link = folder.Path("link.CRI");
    PutFile(target, "the record, old and more");
    fs::create_symlink(target, link);
    EXPECT_EQ(ReplaceRecord(link, Record), "");
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_FALSE(fs::is_symlink(target));
    EXPECT_EQ(FileBytes(target), "the record, new and more");
    EXPECT_EQ(folder.FileCount() + elsewhere.FileCount(), 2U);
}

TEST(ReplaceRecord, TakesANameWithoutAFolder)
{
    const TemporaryFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    const std::string fault = ReplaceRecord("beam.CRI", Record);
    fs::current_path(before);
    EXPECT_EQ(fault, "");
    EXPECT_EQ(FileBytes(folder.Path("beam.CRI")), Record);
}

TEST(ReplaceRecord, LeavesAloneWhatIsNoFile)
{
    const Patience patience(30);
    const TemporaryFolder folder;
    fs::create_directory(folder.Path("beam.CRI"));
    EXPECT_EQ(ReplaceRecord(folder.Path("beam.CRI"), Record), IsFolder);
    EXPECT_TRUE(fs::is_directory(folder.Path("beam.CRI")));
    ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(ReplaceRecord(folder.Path("pipe"), Record), "Invalid argument");
    EXPECT_EQ(ReplaceFile(folder.Path("pipe"), Record), "Invalid argument");
    EXPECT_TRUE(fs::is_fifo(folder.Path("pipe")));
    EXPECT_EQ(folder.FileCount(), 2U);
}

TEST(ReplaceRecord, TellsAVanishedFolder)
{
    const TemporaryFolder folder;
    EXPECT_EQ(ReplaceRecord(folder.Path("gone/beam.CRI"), Record), NoSuchFile);
    EXPECT_EQ(ReplaceRecord("", Record), NoSuchFile);
    EXPECT_EQ(folder.FileCount(), 0U);
}

TEST(ReplaceRecord, LeavesAReadOnlyFileWhole)
{
    if (!PermissionsBind()) {
        GTEST_SKIP() << "permissions do not bind this user";
    }
    const TemporaryFolder folder;
    const std::string path = folder.Path("beam.CRI");
    PutFile(path, "old");
    fs::permissions(path, fs::perms{0444});
    EXPECT_EQ(ReplaceRecord(path, Record), Denied);
    EXPECT_EQ(FileBytes(path), "old");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms{0444});
    EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(ReplaceRecord, LeavesAReadOnlyFolderAlone)
{
    if (!PermissionsBind()) {
        GTEST_SKIP() << "permissions do not bind this user";
    }
    const TemporaryFolder folder;
    const std::string path = folder.Path("beam.CRI");
    PutFile(path, "old");
    fs::permissions(folder.Path(), fs::perms{0555});
    EXPECT_EQ(ReplaceRecord(path, Record), Denied);
    EXPECT_EQ(ReplaceRecord(folder.Path("new.CRI"), Record), Denied);
    EXPECT_EQ(FileBytes(path), "old");
    EXPECT_EQ(folder.FileCount(), 1U);
}

/// A disk that takes so many bytes of a file and no more.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : before(signal(SIGXFSZ, SIG_IGN))
    {
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &unlimited), 0);
        const rlimit limited{.rlim_cur = bytes, .rlim_max = unlimited.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limited), 0);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &unlimited);
        signal(SIGXFSZ, before);
    }

private:
    rlimit unlimited{};
    void (*before)(int);
};

std::string FaultOnFullDisk(const std::string& path, std::string_view record, rlim_t bytes)
{
    const FullDisk disk(bytes);
    return ReplaceRecord(path, record);
}

TEST(ReplaceRecord, ThatDoesNotFitOnTheDiskLeavesNoTrace)
{
    const std::string record(10000, 'r');
    for (const rlim_t bytes : {0, 1, 4096, 9999}) {
        const TemporaryFolder folder;
        const std::string path = folder.Path("beam.CRI");
        PutFile(path, "old");
        EXPECT_EQ(FaultOnFullDisk(path, record, bytes), "File too large") << bytes;
        EXPECT_EQ(FaultOnFullDisk(folder.Path("new.CRI"), record, bytes), "File too large") << bytes;
        EXPECT_EQ(FileBytes(path), "old") << bytes;
        EXPECT_EQ(folder.FileCount(), 1U) << bytes;
        EXPECT_EQ(FaultOnFullDisk(path, record, 10000), "");
        EXPECT_EQ(FileBytes(path), record);
    }
}

TEST(ReplaceFile, KeepsNothingOfTheOldFile)
{
    const TemporaryFolder folder;
    PutFile(folder.Path("list.txt"), "a longer old list");
    EXPECT_EQ(ReplaceFile(folder.Path("list.txt"), "new"), "");
    EXPECT_EQ(FileBytes(folder.Path("list.txt")), "new");
    EXPECT_EQ(folder.FileCount(), 1U);
}

/// Saves two records by turns until it is killed, or until a fault ends it.
[[noreturn]] void SaveForEver(const std::string& path, const std::string& one, const std::string& other)
{
    while (ReplaceRecord(path, other).empty() && ReplaceRecord(path, one).empty()) {
    }
    _exit(1);
}

ino_t FileNumber(const std::string& path)
{
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    return status.st_ino;
}

/// Waits until somebody has saved the file; a saved one is another file of the same name.
bool IsSavedSoon(const std::string& path, ino_t before)
{
    for (int k = 0; k < 20000; ++k) {
        if (FileNumber(path) != before) {
            return true;
        }
        std::this_thread::sleep_for(std::chrono::microseconds(500));
    }
    return false;
}

TEST(ReplaceRecord, KilledOnItsWayLeavesOneOfTheTwoFilesWhole)
{
    constexpr std::size_t length = 200000;
    constexpr int kills = 25;
    const TemporaryFolder folder;
    const std::string path = folder.Path("beam.CRI");
    const std::string one(length, '1');
    const std::string other(length, '2');
    const std::string tail = "and what stands behind it";
    for (int k = 0; k < kills; ++k) {
        PutFile(path, one + tail);
        const ino_t before = FileNumber(path);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            SaveForEver(path, one, other);
        }
        const bool isSaved = IsSavedSoon(path, before);
        std::this_thread::sleep_for(std::chrono::microseconds(k * 370));
        kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(isSaved);
        EXPECT_TRUE(WIFSIGNALED(status));  // it was still saving
        const std::string bytes = FileBytes(path);
        EXPECT_TRUE(bytes == one + tail || bytes == other + tail) << "kill " << k << ", " << bytes.size();
    }
}

TEST(FileRefusals, TellPathAndFaultWithAWarning)
{
    ScriptedUser user;
    EXPECT_EQ(RefuseReading("/a/b.CRI", "Some fault", user), Outcome::Refused);
    EXPECT_EQ(RefuseSaving("/a/b.CRI", "Some fault", user), Outcome::Refused);
    EXPECT_THAT(user.Told,
                testing::ElementsAre(RefusalOf("This file could not be read:\n    /a/b.CRI\nSome fault"),
                                     RefusalOf("This file could not be saved; what stood in it is "
                                               "unchanged:\n    /a/b.CRI\nSome fault")));
    EXPECT_THAT(user.Told, testing::Each(testing::Field(&Message::Icon, MessageIcon::Warning)));
}

}  // namespace
}  // namespace kordavan
