#include "records/CustomPostFile.h"

#include <gmock/gmock.h>

#include "records/FileDialogs.h"
#include "records/RecordBytes.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

constexpr std::string_view WrongPostText =
    "Cannot load the selected values. Please verify you are loading Custom Wood Post values with the *.CPV "
    "extension";
constexpr std::string_view UnfitEText =
    "A Custom Post Value file cannot hold this E: it is no number, or too large.  Please change it and save "
    "again.";
constexpr std::string_view UnfitFcText =
    "A Custom Post Value file cannot hold this Fc: it is no whole number, or too large.  Please change it and "
    "save again.";
constexpr std::string_view NoEText = "Please document your custom species E with a value.";
constexpr std::string_view NoFcText = "Please document your custom species Fc with a value.";
constexpr std::string_view IsCustomText =
    "Please document your custom species and grade by replacing the word 'Custom' in the species list box.";
constexpr std::string_view NoSpeciesText =
    "Please document your custom species and grade in the species list box.";

/// Tag 100, Fc 1450 = 0x05AA, E 1.75 = 0x3FE00000, 22 characters and 8 blanks.
std::string HackberryBytes()
{
    return std::string("\x64\0\xAA\x05\0\0\xE0\x3F", 8) + "Hackberry \xBD in. boards        ";
}

ColumnEntry Hackberry()
{
    ColumnEntry entry;
    entry.cFcText = "1450";
    entry.cEtext = "1.75";
    entry.ColSpeciesCombo = "Hackberry \u00BD in. boards";
    return entry;
}

/// An entry with something in boxes that a file may change or must leave.
ColumnEntry OldPost()
{
    ColumnEntry entry;
    entry.cReacText = "9000";
    entry.cFcText = "1700";
    entry.cEtext = "1.9";
    entry.ColSpeciesCombo = "DF-L Select";
    entry.Type = ColumnType::NailedBuiltUp;
    return entry;
}

TEST(CustomPost, IsWrittenAtItsPlacesAndReadAgain)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("hackberry.CPV");
    ScriptedUser user;
    EXPECT_EQ(SaveCustomPost(Hackberry(), path, user), Outcome::Done);
    EXPECT_THAT(user.Told, ElementsAre(AllOf(AlertOf("Custom post values saved to disk as " + path),
                                             Field(&Message::Icon, MessageIcon::Information))));
    EXPECT_EQ(HackberryBytes().size(), 38U);
    EXPECT_EQ(FirstDifference(FileBytes(path), HackberryBytes()), "");
    EXPECT_EQ(folder.FileCount(), 1U);
    ColumnEntry loaded = OldPost();
    ScriptedUser silent;
    EXPECT_EQ(LoadCustomPost(path, loaded, silent), Outcome::Done);
    EXPECT_THAT(silent.Told, IsEmpty());
    ColumnEntry expected = Hackberry();
    expected.cReacText = "9000";
    expected.Type = ColumnType::NailedBuiltUp;
    EXPECT_EQ(loaded, expected);
}

TEST(CustomPost, OfALongNameIsCut)
{
    ColumnEntry entry = Hackberry();
    entry.ColSpeciesCombo = "Hackberry from the north slope, dense";
    EXPECT_EQ(MakeCustomPostRecord(entry).Text("SpeciesText"), "Hackberry from the north slope");
}

struct UnsavablePostCase {
    std::string_view Name;
    std::string ColumnEntry::*Text;
    std::string Typed;
    std::string_view Message;
    std::string_view Focus;
};

class UnsavablePostTest : public testing::TestWithParam<UnsavablePostCase> {};

TEST_P(UnsavablePostTest, IsRefusedBeforeAnyFileIsTouched)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("a.CPV");
    PutFile(path, "old");
    ColumnEntry entry = Hackberry();
    entry.*GetParam().Text = GetParam().Typed;
    ScriptedUser user;
    EXPECT_EQ(CheckCustomPostSavable(entry, user), Outcome::Refused);
    EXPECT_EQ(SaveCustomPost(entry, path, user), Outcome::Refused);
    const auto refusal = RefusalOf(GetParam().Message, GetParam().Focus);
    EXPECT_THAT(user.Told, ElementsAre(refusal, refusal));
    EXPECT_EQ(FileBytes(path), "old");
    EXPECT_EQ(folder.FileCount(), 1U);
}

constexpr auto Species = &ColumnEntry::ColSpeciesCombo;
constexpr auto E = &ColumnEntry::cEtext;
constexpr auto Fc = &ColumnEntry::cFcText;

INSTANTIATE_TEST_SUITE_P(
    Entries, UnsavablePostTest,
    testing::Values(UnsavablePostCase{"Custom", Species, "Custom", IsCustomText, "ColSpeciesCombo"},
                    UnsavablePostCase{"Custom and a blank", Species, "Custom ", IsCustomText,
                                      "ColSpeciesCombo"},
                    UnsavablePostCase{"no species", Species, "", NoSpeciesText, "ColSpeciesCombo"},
                    UnsavablePostCase{"blank species", Species, "  ", NoSpeciesText, "ColSpeciesCombo"},
                    UnsavablePostCase{"no E", E, "", NoEText, "cEtext"},
                    UnsavablePostCase{"E of letters", E, "high", NoEText, "cEtext"},
                    UnsavablePostCase{"E that a float drops", E, "1e-60", NoEText, "cEtext"},
                    UnsavablePostCase{"E too large", E, "1e39", UnfitEText, "cEtext"},
                    UnsavablePostCase{"E with a unit", E, "1.6 million", UnfitEText, "cEtext"},
                    UnsavablePostCase{"no Fc", Fc, " ", NoFcText, "cFcText"},
                    UnsavablePostCase{"Fc of 0", Fc, "0", NoFcText, "cFcText"},
                    UnsavablePostCase{"Fc with a fraction", Fc, "1450.5", UnfitFcText, "cFcText"},
                    UnsavablePostCase{"Fc with a comma", Fc, "1,450", UnfitFcText, "cFcText"},
                    UnsavablePostCase{"Fc past 16 bits", Fc, "32768", UnfitFcText, "cFcText"}),
    CaseName);

TEST(CustomPost, IsAskedForItsSpeciesThenItsEThenItsFc)
{
    ColumnEntry entry;
    ScriptedUser user;
    CheckCustomPostSavable(entry, user);
    entry.ColSpeciesCombo = "Hackberry";
    CheckCustomPostSavable(entry, user);
    entry.cEtext = "1.6";
    CheckCustomPostSavable(entry, user);
    entry.cFcText = "32767";
    EXPECT_EQ(CheckCustomPostSavable(entry, user), Outcome::Done);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(NoSpeciesText, "ColSpeciesCombo"),
                                       RefusalOf(NoEText, "cEtext"), RefusalOf(NoFcText, "cFcText")));
}

struct WrongPostCase {
    std::string_view Name;
    std::string Bytes;
    std::string_view Text = WrongPostText;
};

class WrongPostTest : public testing::TestWithParam<WrongPostCase> {};

TEST_P(WrongPostTest, ChangesNothing)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("a.CPV");
    PutFile(path, GetParam().Bytes);
    ColumnEntry entry = OldPost();
    ScriptedUser user;
    EXPECT_EQ(LoadCustomPost(path, entry, user), Outcome::Refused);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(GetParam().Text)));
    EXPECT_EQ(entry, OldPost());
    EXPECT_EQ(FileBytes(path), GetParam().Bytes);
}

/// The bytes of a good file, other ones put in at a place.
std::string Spoilt(std::size_t offset, std::string_view bytes)
{
    return HackberryBytes().replace(offset, bytes.size(), bytes);
}

constexpr std::string_view NoNumberText =
    "This Custom Post Value file holds a value that is no number (E), so it was not loaded.";

INSTANTIATE_TEST_SUITE_P(
    Files, WrongPostTest,
    testing::Values(WrongPostCase{"empty", ""}, WrongPostCase{"half a tag", "d"},
                    WrongPostCase{"other tag", Spoilt(0, "\x65")},
                    WrongPostCase{"tag with a high byte", Spoilt(1, "\x01")},
                    WrongPostCase{"custom values", Spoilt(0, "\xFF\xFF")},
                    WrongPostCase{"E no number", Spoilt(4, {"\0\0\xC0\x7F", 4}), NoNumberText},
                    WrongPostCase{"E infinite", Spoilt(4, {"\0\0\x80\xFF", 4}), NoNumberText}),
    CaseName);

TEST(CustomPost, OfACutFileIsTakenAsFarAsItGoes)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("a.CPV");
    PutFile(path, HackberryBytes().substr(0, 7));  // within E
    ColumnEntry entry = OldPost();
    ScriptedUser user;
    EXPECT_EQ(LoadCustomPost(path, entry, user), Outcome::Done);
    EXPECT_EQ(entry.cFcText, "1450");
    EXPECT_EQ(entry.cEtext + entry.ColSpeciesCombo, "");
}

TEST(CustomPost, ThatCannotBeSavedOrReadIsToldWithTheReason)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("gone/a.CPV");
    ColumnEntry entry = Hackberry();
    ScriptedUser user;
    EXPECT_EQ(SaveCustomPost(entry, path, user), Outcome::Refused);
    EXPECT_EQ(LoadCustomPost(path, entry, user), Outcome::Refused);
    EXPECT_THAT(
        user.Told,
        ElementsAre(RefusalOf("This file could not be saved; what stood in it is unchanged:\n    " + path +
                              "\nNo such file or directory"),
                    RefusalOf("This file could not be read:\n    " + path + "\nNo such file or directory")));
    EXPECT_EQ(entry, Hackberry());
}

TEST(CustomPost, IsAskedForByItsOwnDialogs)
{
    EXPECT_EQ(SaveCustomPostDialog.Title, "Save Custom Values As");
    EXPECT_EQ(OpenCustomPostDialog.Title, "Open Custom Post Value File");
    EXPECT_EQ(SaveCustomPostDialog.Filters, "All Files (*.*)|*.*|Kordavan Files (*.CPV)|*.CPV|");
    EXPECT_EQ(OpenCustomPostDialog.Filters, SaveCustomPostDialog.Filters);
}

}  // namespace
}  // namespace kordavan
