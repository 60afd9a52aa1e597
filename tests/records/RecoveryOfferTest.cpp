#include "records/RecoveryOffer.h"

#include <gmock/gmock.h>

#include "records/RecordBytes.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::ElementsAre;

class RecoveryOfferTest : public testing::Test {
protected:
    void Leave(const std::string& project)
    {
        Session left;
        left.Problem.Proj = project;
        left.Problem.Span = "14";
        const std::string lines = EntryLines({left, columns, notch});
        PutFile(path, MakeRecoveryCopy({"Saturday, March 7, 2026 at 2:32 PM", "Form18"}, lines));
    }

    std::optional<std::string> Offer() { return OfferRecovery(path, {session, columns, notch}, user); }

    TemporaryFolder folder;
    std::string path = folder.Path("Kordavan recovery 1.txt");
    Session session;
    ColumnSession columns;
    NotchSession notch;
    ScriptedUser user;
};

TEST_F(RecoveryOfferTest, TakesTheEntriesOnYesAndKeepsTheCopy)
{
    Leave("Barn");
    user.WillAnswer(true);
    EXPECT_EQ(Offer(), "Form18");
    EXPECT_EQ(session.Problem.Span, "14");
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_EQ(user.Told.back().Text,
              "Kordavan did not end properly the last time. The entries were kept on Saturday, March 7, 2026 "
              "at 2:32 PM.\nProject: Barn\n\nDo you wish to have them back? With No they are deleted.");
    EXPECT_FALSE(user.Told.back().IsRisky);
}

TEST_F(RecoveryOfferTest, DeletesTheCopyOnNo)
{
    Leave("");
    user.WillAnswer(false);
    EXPECT_EQ(Offer(), std::nullopt);
    EXPECT_EQ(session.Problem.Span, "");
    EXPECT_EQ(folder.FileCount(), 0U);
}

struct UnfitCase {
    std::string_view Name;
    std::string_view Copy;
    std::string_view Why;
};

class UnfitCopyTest : public RecoveryOfferTest, public testing::WithParamInterface<UnfitCase> {};

TEST_P(UnfitCopyTest, IsToldAndSetAside)
{
    PutFile(path, GetParam().Copy);
    session.Problem.Span = "9";
    EXPECT_EQ(Offer(), std::nullopt);
    const std::string aside = folder.Path("Kordavan recovery 1 set aside.txt");
    EXPECT_THAT(user.Told, ElementsAre(AlertOf("Kordavan did not end properly the last time. Its recovery "
                                               "copy of the entries cannot be used: " +
                                               std::string(GetParam().Why) +
                                               "\nNothing was taken from it. It is kept as\n    " + aside)));
    EXPECT_EQ(session.Problem.Span, "9");
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(FileBytes(aside), GetParam().Copy);
}

INSTANTIATE_TEST_SUITE_P(
    Copies, UnfitCopyTest,
    testing::Values(UnfitCase{"damaged", "Kordavan recovery copy 1\nBeam.Problem.Span=14\n",
                              "it is damaged."},
                    UnfitCase{"empty", "", "it is damaged."},
                    UnfitCase{"newer", "Kordavan recovery copy 2\nBeam.Problem.Span=14\nEnd\n",
                              "it was made by a newer version of Kordavan."},
                    UnfitCase{"foreign", "[Settings]\n", "it is none of Kordavan's."}),
    CaseName);

TEST_F(RecoveryOfferTest, TellsACopyThatCannotBeRead)
{
    std::filesystem::create_directory(path);
    EXPECT_EQ(Offer(), std::nullopt);
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_THAT(user.Told.back().Text, testing::HasSubstr("cannot be used: Is a directory\nNothing"));
    EXPECT_FALSE(std::filesystem::exists(path));
}

}  // namespace
}  // namespace kordavan
