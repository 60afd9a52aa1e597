#include "records/DataRecordFile.h"

#include <gmock/gmock.h>

#include <set>
#include <vector>

#include "records/RecordBytes.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

constexpr std::string_view WrongRecordText =
    "The file you have selected does not contain a Kordavan Data Record.  Please check to see if you "
    "selected the appropriate file type.\n\n"
    "Beam Data Records have a default extension of *.DAT\n\n"
    "Custom Value files have an extension of *.VAL\n"
    "Criteria files have an extension of *.CRI\n"
    "Column Data Records have an extension of *.COL";

/// The tag, all texts blank, no steel.
RecordBytes BlankRecord(int tag = 556)
{
    return RecordBytes(4809).Short(0, tag).Blanks(2, 4565).Blanks(4569, 230);
}

/// "cell 13" in Label13 and so on: every cell has something of its own.
DataSheet DistinctSheet()
{
    DataSheet sheet;
    for (std::size_t label = 1; label < DataSheet::LabelCount; ++label) {
        sheet[label] = "cell " + std::to_string(label);
    }
    sheet.Label133Missing = "second header line";
    for (std::size_t k = 0; k < ReportNoteCount; ++k) {
        sheet.ReportNotes[k] = "note " + std::to_string(k);
    }
    return sheet;
}

const RecordHeading BarnHeading{.Project = "Barn", .Description = "Ridge beam", .BeamId = "B-1"};

Outcome OpenBytes(std::string_view bytes, DataSheet& sheet, UserPort& user)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("a.Dat");
    PutFile(path, bytes);
    const Outcome outcome = OpenDataRecord(path, sheet, user);
    EXPECT_EQ(FileBytes(path), bytes);
    EXPECT_EQ(folder.FileCount(), 1U);
    return outcome;
}

/// A sheet as such bytes show it where another record stood before.
DataSheet Opened(const RecordBytes& bytes, DataSheet sheet)
{
    ScriptedUser user;
    EXPECT_EQ(OpenBytes(bytes.All(), sheet, user), Outcome::Done);
    EXPECT_THAT(user.Told, IsEmpty());
    return sheet;
}

struct SlotCase {
    std::size_t Label;
    std::size_t Offset;
    std::size_t Length;
};

class DataRecordSlotTest : public testing::TestWithParam<SlotCase> {};

TEST_P(DataRecordSlotTest, HoldsTheTextOfItsCellCutAtItsLength)
{
    const auto [label, offset, length] = GetParam();
    const std::string full = std::string(length - 4, 'x') + "in\xB2.";
    const std::string shown = std::string(length - 4, 'x') + "in\u00B2.";
    DataSheet sheet;
    sheet[label] = shown + "cut";
    const RecordBytes bytes = BlankRecord().Text(offset, full);
    EXPECT_EQ(FirstDifference(MakeDataRecord(sheet, {}).Bytes(), bytes.All()), "");
    EXPECT_EQ(Opened(bytes, {})[label], shown);
    EXPECT_EQ(Opened(BlankRecord().Text(offset, " x"), {})[label], " x");  // trimmed on the right alone
}

// Slot n of the blocks stands at n times the length behind their beginning: Label49 at 462 + 36 x 20 = 1182,
// Label131 at 1202 + 70 x 20 = 2602, Label168 at 2842 + 34 x 20 = 3522, Label38 at 462 + 25 x 20 = 962.
INSTANTIATE_TEST_SUITE_P(
    Labels, DataRecordSlotTest,
    testing::Values(SlotCase{4, 182, 60}, SlotCase{5, 242, 110}, SlotCase{6, 352, 110}, SlotCase{13, 462, 20},
                    SlotCase{38, 962, 20}, SlotCase{49, 1182, 20}, SlotCase{61, 1202, 20},
                    SlotCase{107, 2122, 20}, SlotCase{131, 2602, 20}, SlotCase{132, 2622, 110},
                    SlotCase{134, 2842, 20}, SlotCase{167, 3502, 20}, SlotCase{168, 3522, 20},
                    SlotCase{169, 3542, 30}, SlotCase{170, 3572, 30}, SlotCase{173, 3602, 20},
                    SlotCase{174, 3622, 20}, SlotCase{53, 3642, 20}, SlotCase{177, 4372, 20},
                    SlotCase{175, 4392, 20}, SlotCase{187, 4412, 115}, SlotCase{133, 4527, 20},
                    SlotCase{12, 4547, 20}, SlotCase{188, 4569, 20}, SlotCase{191, 4629, 20},
                    SlotCase{192, 4649, 50}, SlotCase{194, 4749, 50}));

TEST(DataRecord, HoldsHeadingHeaderNotesAndSteelAtTheirPlaces)
{
    DataSheet sheet;
    sheet[1] = "Project: Barn";
    sheet[2] = "Beam ID: B-1";
    sheet[3] = "Description: Ridge beam";
    sheet[176] = "At Point Loads:";
    sheet.Label133Missing = "second header line";
    sheet.ReportNotes[0] = std::string(85, 'n') + "cut";
    sheet.ReportNotes[6] = "last note";
    sheet.IsSteel = true;
    RecordBytes bytes = BlankRecord();
    bytes.Text(2, "Barn").Text(62, "Ridge beam").Text(122, "B-1").Text(2732, "second header line");
    bytes.Text(3662, std::string(85, 'n')).Text(4172, "last note").Text(4257, "At Point Loads:").On(4567);
    EXPECT_EQ(FirstDifference(MakeDataRecord(sheet, BarnHeading).Bytes(), bytes.All()), "");
}

/// True of the cells in the blocks, but for the blank slots, and of those with slots of their own.
bool IsKept(std::size_t label)
{
    const std::set<std::size_t> blank{19, 20, 21, 22, 30, 32, 33, 39, 47, 108, 142, 150, 151, 166};
    const std::set<std::size_t> own{53, 173, 174, 175, 176, 177, 187};
    return blank.count(label) == 0 && (own.count(label) == 1 || label <= 6 || (label >= 12 && label <= 49) ||
                                       (label >= 61 && label <= 170) || (label >= 188 && label <= 194));
}

TEST(DataRecord, HoldsEveryCellButThoseThatStandOnEverySheet)
{
    const PackedRecord record = MakeDataRecord(DistinctSheet(), BarnHeading);
    EXPECT_EQ(record.Bytes().substr(582, 80), std::string(80, ' '));   // Label19 to 22: 462 + 6 x 20
    EXPECT_EQ(record.Bytes().substr(2142, 20), std::string(20, ' '));  // Label108: 1202 + 47 x 20
    DataSheet sheet;
    RestoreDataSheet(record, sheet);
    EXPECT_THAT(std::vector(&sheet[1], &sheet[4]), ElementsAre("Barn", "Ridge beam", "B-1"));
    for (std::size_t label = 4; label < DataSheet::LabelCount; ++label) {
        const bool isShown = IsKept(label) && label != 176;  // a heading of steel
        EXPECT_EQ(sheet[label] == DistinctSheet()[label], isShown) << "Label" << label;
    }
    EXPECT_EQ(sheet.Label133Missing, "second header line");
    EXPECT_EQ(sheet.ReportNotes, DistinctSheet().ReportNotes);
}

struct RecordKindCase {
    std::string_view Name;
    int Tag;
    bool IsMarkedSteel;
    bool IsSteel;
    bool HasStability;
    bool HasSpareCells;
};

class DataRecordKindTest : public testing::TestWithParam<RecordKindCase> {};

TEST_P(DataRecordKindTest, DecidesWhatTheSheetShows)
{
    const RecordKindCase& c = GetParam();
    RecordBytes bytes(4809);
    bytes.Text(0, MakeDataRecord(DistinctSheet(), BarnHeading).Bytes()).Short(0, c.Tag).Blanks(4547, 20);
    bytes.Short(4567, c.IsMarkedSteel ? -1 : 0).Text(582, "of no cell");
    const DataSheet sheet = Opened(bytes, DistinctSheet());
    EXPECT_EQ(sheet.IsSteel, c.IsSteel);
    EXPECT_EQ(sheet[12], "Beam Span");
    EXPECT_EQ(sheet[60], c.IsSteel ? "Min Bearing Length" : "Min Bearing Area");
    EXPECT_EQ(sheet[176], c.IsSteel ? "cell 176" : "");
    EXPECT_EQ(sheet[32], c.IsSteel ? "" : "Cd Duration");
    EXPECT_EQ(sheet[33], c.IsSteel ? "" : "cell 33");  // as it stood
    EXPECT_EQ(sheet[47], c.IsSteel ? "" : "Ch  Shear Stress");
    for (const std::size_t label : {188, 189, 190, 191, 192, 193, 194}) {
        EXPECT_EQ(sheet[label], c.HasStability ? "cell " + std::to_string(label) : "");
    }
    for (const std::size_t label : {182, 183, 184, 185, 200, 201, 202}) {
        EXPECT_EQ(sheet[label], c.HasSpareCells ? "cell " + std::to_string(label) : "");
    }
    EXPECT_EQ(sheet[19], "Fb (psi)");
    EXPECT_EQ(sheet[51], "cell 51");
    EXPECT_EQ(sheet[187], "cell 187");
    EXPECT_EQ(sheet.ReportNotes, DistinctSheet().ReportNotes);
}

INSTANTIATE_TEST_SUITE_P(Records, DataRecordKindTest,
                         testing::Values(RecordKindCase{"wood", 556, false, false, true, true},
                                         RecordKindCase{"steel", 556, true, true, false, true},
                                         RecordKindCase{"old", 555, false, false, false, false},
                                         RecordKindCase{"old, where the flag means nothing", 555, true, false,
                                                        false, false}),
                         CaseName);

TEST(DataRecord, OfWoodShowsTheFactorThatSteelHid)
{
    const DataSheet steel = Opened(BlankRecord().On(4567), {});
    EXPECT_EQ(steel[33], "");
    EXPECT_EQ(Opened(BlankRecord(), steel)[33], "Cr Repetitive");
}

TEST(DataRecord, ShowsBlanksForWhatIsNoText)
{
    const RecordBytes bytes = BlankRecord().Text(242, "a\n\tb").Text(3662, std::string("\0c\r", 3));
    const DataSheet sheet = Opened(bytes, {});
    EXPECT_EQ(sheet[5], "a  b");
    EXPECT_EQ(sheet.ReportNotes[0], " c");
}

TEST(DataRecord, OfACutFileIsShownAsFarAsItGoes)
{
    struct CutCase {
        std::size_t Length;
        std::size_t Last;  // label of the last cell that is whole, and of the next
        std::size_t Cut;
    };
    const std::string bytes = MakeDataRecord(DistinctSheet(), {}).Bytes();
    for (const auto [length, last, cut] : {CutCase{481, 6, 13}, CutCase{482, 13, 14}, CutCase{3661, 174, 53},
                                           CutCase{4546, 187, 133}, CutCase{4798, 193, 194}}) {
        DataSheet sheet = DistinctSheet();
        ScriptedUser user;
        EXPECT_EQ(OpenBytes(std::string_view(bytes).substr(0, length), sheet, user), Outcome::Done);
        EXPECT_EQ(sheet[last], "cell " + std::to_string(last));
        EXPECT_EQ(sheet[cut], "");
    }
}

TEST(DataRecord, OfAnotherTagLeavesTheSheet)
{
    for (const std::string& bytes : {std::string{}, std::string("\x2C"), BlankRecord(554).All(),
                                     BlankRecord(557).All(), BlankRecord(-2007).All()}) {
        DataSheet sheet = DistinctSheet();
        ScriptedUser user;
        EXPECT_EQ(OpenBytes(bytes, sheet, user), Outcome::Refused);
        EXPECT_THAT(user.Told,
                    ElementsAre(AllOf(RefusalOf(WrongRecordText), Field(&Message::Title, "Kordavan"),
                                      Field(&Message::Icon, MessageIcon::Warning))));
        EXPECT_EQ(sheet, DistinctSheet());
    }
}

TEST(DataRecord, IsSavedWithAWordOnHowToLoadIt)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("ridge.Dat");
    PutFile(path, std::string(4809, 'x') + "tail");
    ScriptedUser user;
    EXPECT_EQ(SaveDataRecord({}, {}, path, user), Outcome::Done);
    EXPECT_THAT(user.Told,
                ElementsAre(AlertOf(
                    "The Data Record has been saved as\n"
                    "    " +
                    path +
                    "\n"
                    "Please Note: To reload this saved Data Record file you MUST have the Data Record Page "
                    "open. You may calculate a fictious beam, if necessary, to get to the data record page. "
                    "Select FILE from the menu bar, then select LOAD RECORD...\n"
                    "ATTENTION: If you anticipate making changes to the loads or other criteria for this "
                    "member in the future, SAVE this beam's CRITERIA (form 1).")));
    EXPECT_EQ(FirstDifference(FileBytes(path), BlankRecord().All() + "tail"), "");
    EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(DataRecord, ThatCannotBeSavedOrReadIsToldWithTheReason)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("gone/a.Dat");
    DataSheet sheet = DistinctSheet();
    ScriptedUser user;
    EXPECT_EQ(SaveDataRecord(sheet, BarnHeading, path, user), Outcome::Refused);
    EXPECT_EQ(OpenDataRecord(path, sheet, user), Outcome::Refused);
    const std::string reason = "\n    " + path + "\nNo such file or directory";
    EXPECT_THAT(
        user.Told,
        ElementsAre(RefusalOf("This file could not be saved; what stood in it is unchanged:" + reason),
                    RefusalOf("This file could not be read:" + reason)));
    EXPECT_EQ(sheet, DistinctSheet());
    EXPECT_EQ(folder.FileCount(), 0U);
}

}  // namespace
}  // namespace kordavan
