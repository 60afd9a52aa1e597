#include "records/ColumnRecordFile.h"

#include <gmock/gmock.h>

#include <vector>

#include "records/ColumnRecordLayout.h"
#include "records/RecordBytes.h"
#include "records/StudRecordFile.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;

/// Where a label's text stands in the file.
struct Slot {
    std::size_t Label;
    std::size_t Offset;
    std::size_t Length;
};

/// Two cells of six characters, one after the other.
struct PairOfCells {
    std::size_t Offset;
    std::size_t First;
    std::size_t Second;
};

std::vector<Slot> SlotsOf(std::vector<Slot> slots, const std::vector<PairOfCells>& pairs)
{
    for (const auto [offset, first, second] : pairs) {
        slots.push_back({first, offset, 6});
        slots.push_back({second, offset + 6, 6});
    }
    return slots;
}

struct KindCase {
    std::string_view Name;
    ColumnRecordKind Kind;
    const RecordLayout* Layout;
    std::size_t Size;
    int Tag;
    std::vector<Slot> Slots;
    std::size_t NotesAt;
    std::string_view WrongTag;
    std::string_view Loaded;
};

const KindCase WoodCase{
    .Name = "wood",
    .Kind = ColumnRecordKind::Wood,
    .Layout = &WoodColumnRecordLayout,
    .Size = 1514,
    .Tag = 777,
    .Slots = SlotsOf({{3, 2, 35},
                      {4, 37, 30},
                      {5, 67, 25},
                      {6, 92, 25},
                      {7, 117, 16},
                      {12, 133, 110},
                      {66, 243, 115},
                      {86, 358, 14},
                      {10, 372, 60},
                      {59, 432, 85},
                      {15, 517, 10}},
                     {{527, 17, 19},
                      {539, 23, 29},
                      {551, 30, 36},
                      {563, 38, 39},
                      {575, 40, 41},
                      {587, 48, 49},
                      {599, 50, 51},
                      {611, 52, 54},
                      {623, 55, 60},
                      {635, 61, 67},
                      {647, 68, 69},
                      {659, 70, 71},
                      {671, 75, 76},
                      {683, 77, 80},
                      {695, 81, 82},
                      {707, 83, 84}}),
    .NotesAt = 919,
    .WrongTag =
        "The file you have selected does not contain a Kordavan Column Record.  Please check to see if "
        "you selected the appropriate file.",
    .Loaded =
        "The column data you have loaded is text and the values are not active.  You may print the "
        "report as is, but to edit values you need to re-enter the column criteria in form 1."};

const KindCase SteelCase{
    .Name = "steel",
    .Kind = ColumnRecordKind::Steel,
    .Layout = &SteelColumnRecordLayout,
    .Size = 1156,
    .Tag = 888,
    .Slots = SlotsOf({{3, 2, 35},
                      {4, 37, 30},
                      {5, 67, 25},
                      {6, 92, 25},
                      {7, 117, 16},
                      {10, 133, 110},
                      {12, 243, 85},
                      {59, 328, 85},
                      {15, 413, 10},
                      {84, 555, 6}},
                     {{423, 17, 19},
                      {435, 23, 29},
                      {447, 30, 36},
                      {459, 38, 39},
                      {471, 40, 41},
                      {483, 50, 51},
                      {495, 52, 60},
                      {507, 61, 71},
                      {519, 75, 76},
                      {531, 77, 81},
                      {543, 82, 83}}),
    .NotesAt = 561,
    .WrongTag =
        "The file you have selected does not contain a Kordavan Steel Column Record.  Please check to "
        "see if you selected the appropriate file.",
    .Loaded =
        "The steel column data you have loaded is text and the values are not active.  You may print the "
        "report as is, but to edit values you need to re-enter the column criteria in form 1."};

constexpr std::string_view Extensions =
    "\n\nColumn Records have a default extension of *.COL\n\n"
    "Custom Value files have an extension of *.VAL\n"
    "Beam Data Records have an extension of *.DAT\n"
    "Criteria files have an extension of *.CRI";

/// A text of its own for each number, as long as its field; the last character is a superscript 2.
std::string Distinct(std::size_t number, std::size_t length, std::string_view two)
{
    const std::string begin = std::to_string(number) + "-";
    return begin + std::string(length - begin.size() - 1, 'x') + std::string(two);
}

/// Every cell of the record filled to the last character, and what does not fit behind it.
ColumnSheet FullSheet(const KindCase& c, std::string_view behind)
{
    ColumnSheet sheet;
    for (const auto [label, offset, length] : c.Slots) {
        sheet[label] = Distinct(label, length, "\u00B2") + std::string(behind);
    }
    if (c.Kind == ColumnRecordKind::Wood) {
        sheet.SheathNote = Distinct(101, 125, "\u00B2") + std::string(behind);
        sheet.Sheathnote2 = Distinct(102, 75, "\u00B2") + std::string(behind);
    }
    for (std::size_t k = 0; k < ReportNoteCount; ++k) {
        sheet.ReportNotes[k] = Distinct(900 + k, 85, "\u00B2") + std::string(behind);
    }
    return sheet;
}

RecordBytes FullRecord(const KindCase& c)
{
    RecordBytes bytes(c.Size);
    bytes.Short(0, c.Tag);
    for (const auto [label, offset, length] : c.Slots) {
        bytes.Text(offset, Distinct(label, length, "\xB2"));
    }
    if (c.Kind == ColumnRecordKind::Wood) {
        bytes.Text(719, Distinct(101, 125, "\xB2")).Text(844, Distinct(102, 75, "\xB2"));
    }
    for (std::size_t k = 0; k < ReportNoteCount; ++k) {
        bytes.Text(c.NotesAt + 85 * k, Distinct(900 + k, 85, "\xB2"));
    }
    return bytes;
}

Outcome OpenBytes(std::string_view bytes, ColumnRecordKind kind, ColumnSheet& sheet, UserPort& user)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("a");
    PutFile(path, bytes);
    const Outcome outcome = OpenColumnRecord(path, kind, sheet, user);
    EXPECT_EQ(FileBytes(path), bytes);
    EXPECT_EQ(folder.FileCount(), 1U);
    return outcome;
}

class ColumnRecordTest : public testing::TestWithParam<KindCase> {};

TEST_P(ColumnRecordTest, HoldsEveryCellAtItsPlaceCutAtItsLength)
{
    const KindCase& c = GetParam();
    ColumnSheet sheet = FullSheet(c, "cut");
    sheet[1] = sheet[2] = "header lines have no place";
    EXPECT_EQ(FirstDifference(MakeColumnRecord(sheet, c.Kind, true).Bytes(), FullRecord(c).All()), "");
}

TEST_P(ColumnRecordTest, IsShownAsItIsHeldAndSaysThatItIsOnlyText)
{
    const KindCase& c = GetParam();
    ColumnSheet sheet;
    sheet[1] = sheet[13] = "of the sheet before";
    ScriptedUser user;
    EXPECT_EQ(OpenBytes(FullRecord(c).All() + "tail", c.Kind, sheet, user), Outcome::Done);
    EXPECT_EQ(sheet, FullSheet(c, ""));
    EXPECT_THAT(user.Told, ElementsAre(AlertOf(c.Loaded)));
}

TEST_P(ColumnRecordTest, LeavesTheNotesBlankWhereTheyAreDeclined)
{
    const KindCase& c = GetParam();
    const RecordBytes bytes = FullRecord(c).Blanks(c.NotesAt, 595);
    EXPECT_EQ(FirstDifference(MakeColumnRecord(FullSheet(c, ""), c.Kind, false).Bytes(), bytes.All()), "");
}

TEST_P(ColumnRecordTest, IsTrimmedOnTheRightAndShowsBlanksForWhatIsNoText)
{
    const KindCase& c = GetParam();
    RecordBytes bytes(c.Size);
    bytes.Short(0, c.Tag).Blanks(2, c.Size - 2).Text(2, "  a\n\tb").Text(c.NotesAt, std::string("\0c\r", 3));
    ColumnSheet sheet;
    ScriptedUser user;
    EXPECT_EQ(OpenBytes(bytes.All(), c.Kind, sheet, user), Outcome::Done);
    ColumnSheet expected;
    expected[3] = "  a  b";
    expected.ReportNotes[0] = " c";
    EXPECT_EQ(sheet, expected);
}

/// At every length each cell is there whole, or not at all.
TEST_P(ColumnRecordTest, OfACutFileIsShownAsFarAsItGoes)
{
    const KindCase& c = GetParam();
    const std::string bytes = FullRecord(c).All();
    const ColumnSheet full = FullSheet(c, "");
    for (std::size_t end = 2; end <= c.Size; ++end) {
        ColumnSheet expected = full;
        for (const auto [label, offset, length] : c.Slots) {
            expected[label] = offset + length <= end ? full[label] : "";
        }
        expected.SheathNote = end < 719 + 125 ? "" : full.SheathNote;
        expected.Sheathnote2 = end < 844 + 75 ? "" : full.Sheathnote2;
        for (std::size_t k = 0; k < ReportNoteCount; ++k) {
            expected.ReportNotes[k] = c.NotesAt + 85 * (k + 1) <= end ? full.ReportNotes[k] : "";
        }
        const PackedRecord record(*c.Layout, std::string_view(bytes).substr(0, end));
        ASSERT_EQ(ReadColumnSheet(record, c.Kind), expected) << end << " bytes";
    }
}

TEST_P(ColumnRecordTest, OfAnotherTagLeavesTheSheet)
{
    const KindCase& c = GetParam();
    const std::string text = std::string(c.WrongTag) + std::string(Extensions);
    for (const int tag : {0, -1, 100, 556, 776, 777, 778, 888, 889, 4321, -2007}) {
        if (tag == c.Tag) {
            continue;
        }
        const std::string bytes = FullRecord(c).Short(0, tag).All();
        ColumnSheet sheet = FullSheet(c, "!");
        ScriptedUser user;
        EXPECT_EQ(OpenBytes(tag == 0 ? bytes.substr(0, 1) : bytes, c.Kind, sheet, user), Outcome::Refused);
        EXPECT_THAT(user.Told, ElementsAre(AllOf(RefusalOf(text), Field(&Message::Title, "Kordavan"),
                                                 Field(&Message::Icon, MessageIcon::Warning))));
        EXPECT_EQ(sheet, FullSheet(c, "!"));
    }
}

TEST_P(ColumnRecordTest, IsSavedOverTheFirstRecordOfAFile)
{
    const KindCase& c = GetParam();
    const TemporaryFolder folder;
    const std::string path = folder.Path("post");
    PutFile(path, std::string(c.Size, 'x') + "tail");
    ScriptedUser user;
    EXPECT_EQ(SaveColumnRecord(FullSheet(c, ""), c.Kind, true, path, user), Outcome::Done);
    EXPECT_THAT(user.Told, ElementsAre(AlertOf("The Column Record has been saved as\n    " + path)));
    EXPECT_EQ(FirstDifference(FileBytes(path), FullRecord(c).All() + "tail"), "");
    EXPECT_EQ(folder.FileCount(), 1U);
}

TEST_P(ColumnRecordTest, ThatCannotBeSavedOrReadIsToldWithTheReason)
{
    const KindCase& c = GetParam();
    const TemporaryFolder folder;
    PutFile(folder.Path("file"), "old");
    const std::string path = folder.Path("file/post");
    ColumnSheet sheet = FullSheet(c, "");
    ScriptedUser user;
    EXPECT_EQ(SaveColumnRecord(sheet, c.Kind, true, path, user), Outcome::Refused);
    EXPECT_EQ(OpenColumnRecord(path, c.Kind, sheet, user), Outcome::Refused);
    const std::string reason = "\n    " + path + "\nNot a directory";
    EXPECT_THAT(
        user.Told,
        ElementsAre(RefusalOf("This file could not be saved; what stood in it is unchanged:" + reason),
                    RefusalOf("This file could not be read:" + reason)));
    EXPECT_EQ(sheet, FullSheet(c, ""));
    EXPECT_EQ(FileBytes(folder.Path("file")), "old");
}

INSTANTIATE_TEST_SUITE_P(Kinds, ColumnRecordTest, testing::Values(WoodCase, SteelCase), CaseName);

TEST(ColumnRecord, AsksAboutTheNotesInTheWordsOfItsKind)
{
    ScriptedUser user;
    user.WillAnswer(true);
    user.WillAnswer(false);
    EXPECT_TRUE(AskToSaveColumnNotes(user));
    EXPECT_FALSE(AskToSaveStudNotes(user));
    EXPECT_EQ(user.Told[0].Text, "Would you like to save your notes as part of this column record?");
    EXPECT_EQ(user.Told[1].Text, "Would you like to save your notes as part of this stud column record?");
}

struct DialogCase {
    std::string_view Name;
    const FileDialogText* Dialog;
    std::string_view Title;
    std::string_view Extension;
    std::string_view DefaultExtension;
};

class ColumnDialogTest : public testing::TestWithParam<DialogCase> {};

TEST_P(ColumnDialogTest, ShowsTheFilesOfItsKind)
{
    const DialogCase& c = GetParam();
    const std::string pattern = "*." + std::string(c.Extension);
    EXPECT_EQ(c.Dialog->Title, c.Title);
    EXPECT_EQ(c.Dialog->FileName, pattern);
    EXPECT_EQ(c.Dialog->DefaultExtension, c.DefaultExtension);
    EXPECT_EQ(c.Dialog->Filters, "All Files (*.*)|*.*|Kordavan Files (" + pattern + ")|" + pattern + "|");
    EXPECT_EQ(c.Dialog->SelectedFilter, 2);
}

INSTANTIATE_TEST_SUITE_P(Dialogs, ColumnDialogTest,
                         testing::Values(DialogCase{"save wood", &SaveColumnDialog(ColumnRecordKind::Wood),
                                                    "Save Column Record As", "Col", "Col"},
                                         DialogCase{"open wood", &OpenColumnDialog(ColumnRecordKind::Wood),
                                                    "Open Column Record", "Col", ""},
                                         DialogCase{"save steel", &SaveColumnDialog(ColumnRecordKind::Steel),
                                                    "Save Steel Column Record As", "SCo", "SCo"},
                                         DialogCase{"open steel", &OpenColumnDialog(ColumnRecordKind::Steel),
                                                    "Open Steel Column Record", "SCo", ""},
                                         DialogCase{"save stud", &SaveStudColumnDialog,
                                                    "Save Stud Column Record As", "Wsc", "Wsc"},
                                         DialogCase{"open stud", &OpenStudColumnDialog,
                                                    "Open Stud Column Record", "Wsc", ""}),
                         CaseName);

}  // namespace
}  // namespace kordavan
