#include "records/RecentFiles.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include "records/RecordBytes.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(RecentFiles, StandWithTheLatestFirst)
{
    const TemporaryFolder folder;
    const std::string list = folder.Path("list.txt");
    EXPECT_THAT(AddRecentFile(list, "/a.CRI"), ElementsAre("/a.CRI"));
    EXPECT_THAT(AddRecentFile(list, "/b c.CRI"), ElementsAre("/b c.CRI", "/a.CRI"));
    EXPECT_THAT(ReadRecentFiles(list), ElementsAre("/b c.CRI", "/a.CRI"));
    EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(RecentFiles, NameAFileOnce)
{
    const TemporaryFolder folder;
    const std::string list = folder.Path("list.txt");
    PutFile(list, "/a.CRI\n/b.CRI\n/c.CRI\n");
    EXPECT_THAT(AddRecentFile(list, "/b.CRI"), ElementsAre("/b.CRI", "/a.CRI", "/c.CRI"));
    EXPECT_THAT(AddRecentFile(list, "/b.CRI"), ElementsAre("/b.CRI", "/a.CRI", "/c.CRI"));
    EXPECT_EQ(FileBytes(list), "/b.CRI\n/a.CRI\n/c.CRI\n");
}

TEST(RecentFiles, AreEightAtMost)
{
    const TemporaryFolder folder;
    const std::string list = folder.Path("list.txt");
    PutFile(list, "1\n2\n3\n4\n5\n6\n7\n8\n9\n");
    EXPECT_THAT(ReadRecentFiles(list), ElementsAre("1", "2", "3", "4", "5", "6", "7", "8"));
    EXPECT_THAT(AddRecentFile(list, "new"), ElementsAre("new", "1", "2", "3", "4", "5", "6", "7"));
    EXPECT_EQ(FileBytes(list), "new\n1\n2\n3\n4\n5\n6\n7\n");
}

TEST(RecentFiles, PassOverEmptyLinesAndTakeAnUnfinishedOne)
{
    const TemporaryFolder folder;
    const std::string list = folder.Path("list.txt");
    PutFile(list, "\n/a.CRI\n\n/b.CRI");
    EXPECT_THAT(ReadRecentFiles(list), ElementsAre("/a.CRI", "/b.CRI"));
}

TEST(RecentFiles, AreNoneWhereTheListCannotBeRead)
{
    const TemporaryFolder folder;
    EXPECT_THAT(ReadRecentFiles(folder.Path("none.txt")), IsEmpty());
    EXPECT_THAT(ReadRecentFiles(folder.Path()), IsEmpty());
    EXPECT_EQ(folder.FileCount(), 0U);
    EXPECT_THAT(AddRecentFile(folder.Path("gone/list.txt"), "/a.CRI"), ElementsAre("/a.CRI"));
    EXPECT_EQ(folder.FileCount(), 0U);
}

TEST(FixedFiles, LieInTheProgramsFolderWhereItCanBeWritten)
{
    const TemporaryFolder folder;
    EXPECT_EQ(FolderOfFixedFiles(folder.Path(), folder.Path("user")), folder.Path());
    EXPECT_EQ(folder.FileCount(), 0U);
}

TEST(FixedFiles, LieInTheUsersFolderElse)
{
    const TemporaryFolder folder;
    const std::string user = folder.Path("of the/user");
    EXPECT_EQ(FolderOfFixedFiles(folder.Path("gone"), user), user);
    EXPECT_TRUE(std::filesystem::is_directory(user));
    EXPECT_EQ(FolderOfFixedFiles(folder.Path("gone"), user), user);
}

TEST(FixedFiles, LieInTheUsersFolderWhereTheProgramsIsABin)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.Path("bin"));
    EXPECT_EQ(FolderOfFixedFiles(folder.Path("bin"), folder.Path("user")), folder.Path("user"));
}

TEST(FixedFiles, LieInTheUsersFolderWhereTheProgramsIsReadOnly)
{
    if (geteuid() == 0) {
        GTEST_SKIP() << "permissions do not bind this user";
    }
    const TemporaryFolder program;
    const TemporaryFolder user;
    std::filesystem::permissions(program.Path(), std::filesystem::perms{0555});
    EXPECT_EQ(FolderOfFixedFiles(program.Path(), user.Path("kordavan")), user.Path("kordavan"));
}

}  // namespace
}  // namespace kordavan
