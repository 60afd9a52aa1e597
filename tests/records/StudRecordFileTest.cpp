#include "records/StudRecordFile.h"

#include <gmock/gmock.h>

#include <vector>

#include "records/RecordBytes.h"
#include "records/StudRecordLayout.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;

constexpr std::string_view WrongStudText =
    "The file you have selected does not contain a Kordavan Stud Column Record.  Please check to see if you "
    "selected the appropriate file.\n\n"
    "Column Records have a default extension of *.COL\n\n"
    "Custom Value files have an extension of *.VAL\n"
    "Beam Data Records have an extension of *.DAT\n"
    "Criteria files have an extension of *.CRI";
constexpr std::string_view LoadedText =
    "The stud column data you have loaded may printed by selecting the Report Button.";

/// A text box of the record, where it stands, and how much of it.
struct TextSlot {
    std::string_view Name;
    std::size_t Offset;
    std::size_t Length;
    std::string& (*Of)(StudRecord& record);
};

const std::vector<TextSlot> TextSlots{
    {"ColumnProj", 2, 35, [](StudRecord& r) -> std::string& { return r.Identity.ColumnProj; }},
    {"ColumnDescription", 37, 30, [](StudRecord& r) -> std::string& { return r.Identity.ColumnDescription; }},
    {"columnID", 67, 25, [](StudRecord& r) -> std::string& { return r.Identity.columnID; }},
    {"AxialPLFtextbox", 92, 8, [](StudRecord& r) -> std::string& { return r.Entry.AxialPLFtextbox; }},
    {"WindA", 100, 8, [](StudRecord& r) -> std::string& { return r.Entry.Wind[0]; }},
    {"WindB", 108, 8, [](StudRecord& r) -> std::string& { return r.Entry.Wind[1]; }},
    {"WindC", 116, 8, [](StudRecord& r) -> std::string& { return r.Entry.Wind[2]; }},
    {"BegA", 124, 8, [](StudRecord& r) -> std::string& { return r.Entry.Beg[0]; }},
    {"BegB", 132, 8, [](StudRecord& r) -> std::string& { return r.Entry.Beg[1]; }},
    {"BegC", 140, 6, [](StudRecord& r) -> std::string& { return r.Entry.Beg[2]; }},
    {"EndA", 146, 8, [](StudRecord& r) -> std::string& { return r.Entry.End[0]; }},
    {"EndB", 154, 8, [](StudRecord& r) -> std::string& { return r.Entry.End[1]; }},
    {"EndC", 162, 8, [](StudRecord& r) -> std::string& { return r.Entry.End[2]; }},
    {"WindStudHt", 170, 8, [](StudRecord& r) -> std::string& { return r.Entry.WindStudHt; }},
    {"WindStudSpacing", 182, 8, [](StudRecord& r) -> std::string& { return r.Entry.WindStudSpacing; }},
    {"WindStudCombo", 190, 30, [](StudRecord& r) -> std::string& { return r.Entry.WindStudCombo; }},
    {"WindStudFb", 220, 6, [](StudRecord& r) -> std::string& { return r.Entry.WindStudFb; }},
    {"WindStudFc", 226, 6, [](StudRecord& r) -> std::string& { return r.Entry.WindStudFc; }},
    {"WindStudE", 232, 6, [](StudRecord& r) -> std::string& { return r.Entry.WindStudE; }},
    {"AxialPointTextbox", 238, 8, [](StudRecord& r) -> std::string& { return r.Entry.AxialPointTextbox; }},
    {"AxialDurTextbox", 246, 8, [](StudRecord& r) -> std::string& { return r.Entry.AxialDurTextbox; }},
    {"DurWindTextbox", 254, 8, [](StudRecord& r) -> std::string& { return r.Entry.DurWindTextbox; }},
    {"note 1", 264, 85, [](StudRecord& r) -> std::string& { return r.ReportNotes[0]; }},
    {"note 7", 774, 85, [](StudRecord& r) -> std::string& { return r.ReportNotes[6]; }},
};

std::string Distinct(const TextSlot& slot)
{
    const std::string begin = std::to_string(slot.Offset);
    return begin + std::string(slot.Length - begin.size(), 'x');
}

/// Every box filled to the last character, and what does not fit behind it.
StudRecord FullStud(std::string_view behind)
{
    StudRecord record;
    for (const TextSlot& slot : TextSlots) {
        slot.Of(record) = Distinct(slot) + std::string(behind);
    }
    record.Entry.BreadthCombo = 5;
    record.Entry.DepthCombo = 2;
    record.Entry.RepIBCCheck = true;
    return record;
}

RecordBytes FullBytes()
{
    RecordBytes bytes(859);
    bytes.Short(0, 889).Blanks(264, 595).Short(178, 5).Short(180, 2).Text(262, "01");
    for (const TextSlot& slot : TextSlots) {
        bytes.Text(slot.Offset, Distinct(slot));
    }
    return bytes;
}

void ExpectSame(const StudRecord& actual, const StudRecord& expected)
{
    EXPECT_EQ(actual.Identity, expected.Identity);
    EXPECT_TRUE(actual.Entry == expected.Entry);
    EXPECT_EQ(actual.ReportNotes, expected.ReportNotes);
}

/// A column at work that no refused file may touch.
ColumnSession WorkedColumns()
{
    ColumnSession columns;
    columns.Identity.ColumnProj = "Shed";
    columns.Stud.WindStudHt = "9";
    columns.StudRun = StudTest{};
    return columns;
}

Outcome OpenBytes(std::string_view bytes, ColumnSession& columns, ReportNoteLines& notes, UserPort& user)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("a.Wsc");
    PutFile(path, bytes);
    const Outcome outcome = OpenStudRecord(path, columns, notes, user);
    EXPECT_EQ(FileBytes(path), bytes);
    EXPECT_EQ(folder.FileCount(), 1U);
    return outcome;
}

TEST(StudRecord, HoldsEveryBoxAtItsPlaceCutAtItsLength)
{
    EXPECT_EQ(FirstDifference(MakeStudRecord(FullStud("cut")).Bytes(), FullBytes().All()), "");
    ExpectSame(ReadStudRecord(PackedRecord(StudRecordLayout, FullBytes().All())), FullStud(""));
}

TEST(StudRecord, OfANewStudIsBlankButForItsDurationsAndChecks)
{
    RecordBytes bytes(859);
    bytes.Short(0, 889).Blanks(2, 176).Blanks(182, 80).Text(246, "1.0").Text(254, "1.6").Text(262, "00");
    EXPECT_EQ(FirstDifference(MakeStudRecord({}).Bytes(), bytes.Blanks(264, 595).All()), "");
}

TEST(StudRecord, ReadsPositionsThatDoNotExistAsTheFirst)
{
    struct PositionCase {
        int Breadth;
        int Depth;
        int ShownBreadth;
        int ShownDepth;
    };
    for (const auto& [breadth, depth, shownBreadth, shownDepth] :
         {PositionCase{0, 0, 0, 0}, PositionCase{5, 2, 5, 2}, PositionCase{6, 3, 0, 0},
          PositionCase{-1, -1, 0, 0}, PositionCase{-32768, 32767, 0, 0}}) {
        const RecordBytes bytes = FullBytes().Short(178, breadth).Short(180, depth);
        const StudEntry entry = ReadStudRecord(PackedRecord(StudRecordLayout, bytes.All())).Entry;
        EXPECT_EQ(entry.BreadthCombo, shownBreadth) << breadth;
        EXPECT_EQ(entry.DepthCombo, shownDepth) << depth;
    }
}

TEST(StudRecord, ChecksWhatIsAOneAlone)
{
    for (const std::string_view held : {"00", "01", "10", "11", "  ", "2-"}) {
        const RecordBytes bytes = FullBytes().Text(262, held);
        const StudEntry entry = ReadStudRecord(PackedRecord(StudRecordLayout, bytes.All())).Entry;
        EXPECT_EQ(entry.RepWindStud, held[0] == '1') << held;
        EXPECT_EQ(entry.RepIBCCheck, held[1] == '1') << held;
    }
}

/// At every length each box is there whole, or not at all.
TEST(StudRecord, OfACutFileIsReadAsFarAsItGoes)
{
    const std::string bytes = FullBytes().All();
    for (std::size_t end = 2; end <= bytes.size(); ++end) {
        StudRecord expected = FullStud("");
        for (const TextSlot& slot : TextSlots) {
            slot.Of(expected) = slot.Offset + slot.Length <= end ? slot.Of(expected) : "";
        }
        expected.Entry.BreadthCombo = end < 180 ? 0 : 5;
        expected.Entry.DepthCombo = end < 182 ? 0 : 2;
        expected.Entry.RepIBCCheck = end >= 264;
        ExpectSame(ReadStudRecord(PackedRecord(StudRecordLayout, std::string_view(bytes).substr(0, end))),
                   expected);
        ASSERT_FALSE(testing::Test::HasFailure()) << end << " bytes";
    }
}

TEST(StudRecord, FillsTheStudFaceAndWithdrawsTheLastRun)
{
    ColumnSession columns = WorkedColumns();
    ReportNoteLines notes{"mine"};
    ScriptedUser user;
    EXPECT_EQ(OpenBytes(FullBytes().All(), columns, notes, user), Outcome::Done);
    ExpectSame({columns.Identity, columns.Stud, notes}, FullStud(""));
    EXPECT_TRUE(columns.KeptStud == columns.Stud);
    EXPECT_EQ(columns.Face, ColumnFace::Studs);
    EXPECT_FALSE(columns.StudRun);
    EXPECT_THAT(user.Told, ElementsAre(AlertOf(LoadedText)));
}

TEST(StudRecord, WithoutNotesLeavesThePersonsOwn)
{
    ColumnSession columns;
    ReportNoteLines notes{"mine"};
    ScriptedUser user;
    EXPECT_EQ(OpenBytes(FullBytes().Blanks(264, 595).Text(2, "a\tb\x01").All(), columns, notes, user),
              Outcome::Done);
    EXPECT_EQ(notes, ReportNoteLines{"mine"});
    EXPECT_EQ(columns.Identity.ColumnProj.substr(0, 4), "a b ");
}

TEST(StudRecord, OfAnotherTagLeavesTheColumns)
{
    for (const int tag : {0, -1, 100, 556, 777, 888, 890, -2007}) {
        ColumnSession columns = WorkedColumns();
        ReportNoteLines notes{"mine"};
        ScriptedUser user;
        const std::string bytes = FullBytes().Short(0, tag).All();
        EXPECT_EQ(OpenBytes(tag == 0 ? bytes.substr(0, 1) : bytes, columns, notes, user), Outcome::Refused);
        EXPECT_THAT(user.Told, ElementsAre(AllOf(RefusalOf(WrongStudText), Field(&Message::Title, "Kordavan"),
                                                 Field(&Message::Icon, MessageIcon::Warning))));
        EXPECT_EQ(columns.Identity.ColumnProj, "Shed");
        EXPECT_TRUE(columns.Stud == WorkedColumns().Stud && columns.KeptStud == StudEntry{});
        EXPECT_EQ(columns.Face, ColumnFace::Wood);
        EXPECT_TRUE(columns.StudRun);
        EXPECT_EQ(notes, ReportNoteLines{"mine"});
    }
}

TEST(StudRecord, IsSavedWithTheNotesThatAreGiven)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("wall.Wsc");
    PutFile(path, std::string(859, 'x') + "tail");
    const StudRecord full = FullStud("");
    ColumnSession columns;
    columns.Identity = full.Identity;
    columns.Stud = full.Entry;
    ScriptedUser user;
    EXPECT_EQ(SaveStudRecord(columns, {}, path, user), Outcome::Done);
    EXPECT_EQ(FirstDifference(FileBytes(path), FullBytes().Blanks(264, 595).All() + "tail"), "");
    EXPECT_TRUE(columns.KeptStud == columns.Stud);
    EXPECT_THAT(user.Told, ElementsAre(AlertOf("The Stud Column Record has been saved as\n    " + path)));
    EXPECT_EQ(SaveStudRecord(columns, full.ReportNotes, path, user), Outcome::Done);
    EXPECT_EQ(FirstDifference(FileBytes(path), FullBytes().All() + "tail"), "");
    EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(StudRecord, ThatCannotBeSavedOrReadIsToldWithTheReason)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("gone/wall.Wsc");
    ColumnSession columns = WorkedColumns();
    ReportNoteLines notes;
    ScriptedUser user;
    EXPECT_EQ(SaveStudRecord(columns, notes, path, user), Outcome::Refused);
    EXPECT_TRUE(columns.KeptStud == StudEntry{});
    EXPECT_EQ(OpenStudRecord(path, columns, notes, user), Outcome::Refused);
    EXPECT_TRUE(columns.Stud == WorkedColumns().Stud);
    const std::string reason = "\n    " + path + "\nNo such file or directory";
    EXPECT_THAT(
        user.Told,
        ElementsAre(RefusalOf("This file could not be saved; what stood in it is unchanged:" + reason),
                    RefusalOf("This file could not be read:" + reason)));
    EXPECT_EQ(folder.FileCount(), 0U);
}

}  // namespace
}  // namespace kordavan
