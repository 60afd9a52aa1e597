#include "records/ColumnDesk.h"

#include <gmock/gmock.h>

#include "columns/ColumnCriteria.h"
#include "columns/SteelColumn.h"
#include "columns/WoodColumn.h"
#include "records/RecordBytes.h"
#include "records/RecordDay.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

constexpr auto Wood = ColumnRecordKind::Wood;
constexpr auto Steel = ColumnRecordKind::Steel;

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view WoodNotKept = "The record of the wood column has been neither saved nor printed.";

/// A post of 10000 lb and 8 ft as wood and as a pipe, both tested, neither on record.
struct ColumnsAtWork {
    ColumnsAtWork()
    {
        beam.Header = {.Heading1 = "Timber & Sons", .Heading2 = "Engineers", .Initialbox = "JD"};
        beam.NoteClipboard[0] = "Mine.";
        columns.Identity = {.ColumnProj = "Barn", .columnID = "C-1", .ColumnDescription = "corner post"};
        columns.Entry.cReacText = "10000";
        columns.Entry.cHTtext = columns.Entry.cD1text = columns.Entry.cD2text = "8";
        columns.Entry.cFcText = "1350";
        columns.Entry.cEtext = "1.6";
        columns.Entry.ColSpeciesCombo = "DF-L #2";
        ScriptedUser user;
        EXPECT_EQ(CalculateSteelColumn(columns, user), Outcome::Done);
        columns.StlColSizeText = SteelColumnRows()[0].Size;
        columns.StlColGrade = SteelColumnRows()[0].TypeAndGrade;
        EXPECT_EQ(ReportEnteredSteelColumn(columns, user), Outcome::Done);
        EXPECT_EQ(CalculateWoodColumn(columns, Edition::Nds2018, user), Outcome::Done);
        TestWood("5.5");
        EXPECT_THAT(user.Told, IsEmpty());
    }

    void TestWood(std::string_view D2)
    {
        ScriptedUser user;
        columns.ColD1Text = "3.5";
        columns.ColD2Text = D2;
        EXPECT_EQ(TestEnteredColumn(columns, Edition::Nds2018, user), Outcome::Done);
    }

    const ColumnSheet& Select(ColumnRecordKind kind)
    {
        ScriptedUser user;
        EXPECT_EQ(SelectColumnForRecord(columns, beam, kind, Day, user), Outcome::Done);
        EXPECT_THAT(user.Told, IsEmpty());
        return ColumnRecordOf(columns, kind).Sheet;
    }

    Session beam;
    ColumnSession columns;
};

std::string HeadOf(const ColumnSheet& sheet)
{
    return sheet[1] + "|" + sheet[2] + "|" + sheet[3] + "|" + sheet[4] + "|" + sheet[5] + "|" + sheet[6] +
           "|" + sheet[7];
}

std::string TextOf(const RecordHeading& heading)
{
    return heading.Heading1 + "|" + heading.Heading2 + "|" + heading.Project + "|" + heading.Description +
           "|" + heading.BeamId + "|" + heading.Initials + "|" + heading.Date;
}

/// A record of another column, as its file brings it, without initials.
ColumnSheet OldRecord()
{
    ColumnSheet sheet;
    sheet[3] = "Old house";
    sheet[5] = "P9";
    sheet[6] = "Prepared by:";
    sheet[7] = "Date: 5/12/99";
    sheet[12] = "(2) 2x 6 DF-L #1";
    sheet.ReportNotes[2] = "Old note.";
    return sheet;
}

TEST(ColumnDesk, RefusesARecordOfNothingTested)
{
    ColumnSession columns;
    ScriptedUser user;
    EXPECT_EQ(SelectColumnForRecord(columns, {}, Wood, Day, user), Outcome::Refused);
    EXPECT_EQ(SelectColumnForRecord(columns, {}, Steel, Day, user), Outcome::Refused);
    constexpr std::string_view text = "Please test a column size first, then select it for the record.";
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(text, "ColD1Text"), RefusalOf(text, "StlColSizeText")));
    EXPECT_EQ(columns.WoodRecord, ColumnRecordOnShow{});
    EXPECT_EQ(columns.SteelRecord, ColumnRecordOnShow{});
}

TEST(ColumnDesk, HeadsTheSizeTestedByEntriesAndStandingHeader)
{
    ColumnsAtWork work;
    for (const ColumnRecordKind kind : {Wood, Steel}) {
        const ColumnSheet& sheet = work.Select(kind);
        EXPECT_EQ(HeadOf(sheet),
                  "Timber & Sons|Engineers|Barn|corner post|C-1|Prepared by: JD|Date: 3/07/26");
        EXPECT_EQ(sheet.ReportNotes, work.beam.NoteClipboard);
        const ColumnRecordOnShow& record = ColumnRecordOf(work.columns, kind);
        EXPECT_TRUE(record.HasOwn && record.IsUnsaved && !record.FromDisk);
    }
    EXPECT_EQ(work.columns.WoodRecord.Sheet[36], "5.5");
    EXPECT_NE(work.columns.SteelRecord.Sheet[10], "");
}

TEST(ColumnDesk, KeepsTheHeadingEnteredForThisColumnAlone)
{
    ColumnsAtWork work;
    work.Select(Wood);
    PrepareColumnHeading(work.columns, Wood, Day);
    EXPECT_EQ(TextOf(work.columns.Heading), "Timber & Sons|Engineers|Barn|corner post|C-1|JD|3/07/26");
    work.columns.Heading = {.Project = "Barn, phase 2", .Initials = "KL"};
    TakeColumnHeading(work.columns, Wood, Day);
    constexpr std::string_view head = "||Barn, phase 2|||Prepared by: KL|Date: 3/07/26";
    EXPECT_EQ(HeadOf(work.columns.WoodRecord.Sheet), head);
    EXPECT_EQ(work.columns.WoodRecord.Sheet[36], "5.5");
    work.TestWood("7.25");
    EXPECT_EQ(HeadOf(work.Select(Wood)), head);
    EXPECT_EQ(work.columns.WoodRecord.Sheet[36], "7.25");
    PrepareStudHeading(work.columns, work.beam, Day);
    EXPECT_EQ(TextOf(work.columns.Heading), "||Barn, phase 2|||KL|3/07/26");
    work.columns.Identity.columnID = "C-2";
    EXPECT_EQ(work.Select(Wood)[5], "C-2");
    PrepareStudHeading(work.columns, work.beam, Day);
    EXPECT_EQ(work.columns.Heading.Project, "Barn");
}

TEST(ColumnDesk, HeadsAStudByWhatWasEnteredForIt)
{
    ColumnsAtWork work;
    PrepareStudHeading(work.columns, work.beam, Day);
    EXPECT_EQ(TextOf(work.columns.Heading), "Timber & Sons|Engineers|Barn|corner post|C-1|JD|3/07/26");
    work.columns.Heading = {.Project = "Wall"};
    TakeStudHeading(work.columns, Day);
    work.columns.Heading = {};
    PrepareStudHeading(work.columns, work.beam, Day);
    EXPECT_EQ(TextOf(work.columns.Heading), "||Wall||||3/07/26");
}

TEST(ColumnDesk, ShowsTheHeadingAsItIsTypedWithoutTakingIt)
{
    ColumnsAtWork work;
    const ColumnSheet own = work.Select(Steel);
    work.columns.Heading = {.Description = "prop"};
    EXPECT_EQ(HeadOf(HeadedColumnSheet(work.columns, Steel, Day)), "|||prop||Prepared by: |Date: 3/07/26");
    EXPECT_EQ(work.columns.SteelRecord.Sheet, own);
    EXPECT_EQ(work.columns.Heading.Date, "");
    EXPECT_EQ(work.Select(Steel), own);
}

TEST(ColumnDesk, BringsItsOwnSheetBackBehindALoadedOne)
{
    ColumnsAtWork work;
    const ColumnSheet own = work.Select(Wood);
    TakeLoadedColumnRecord(work.columns, work.beam, Wood, ColumnSheet{});
    EXPECT_EQ(work.beam.NoteClipboard[0], "Mine.");  // one without notes leaves the person's own
    TakeLoadedColumnRecord(work.columns, work.beam, Wood, OldRecord());
    EXPECT_EQ(work.columns.WoodRecord.Sheet, OldRecord());
    EXPECT_TRUE(work.columns.WoodRecord.FromDisk);
    EXPECT_EQ(work.beam.NoteClipboard, OldRecord().ReportNotes);
    EXPECT_TRUE(LeaveLoadedColumnRecord(work.columns, Wood));
    EXPECT_EQ(work.columns.WoodRecord.Sheet, own);
    EXPECT_FALSE(work.columns.WoodRecord.FromDisk);
    EXPECT_TRUE(LeaveLoadedColumnRecord(work.columns, Wood));
    EXPECT_EQ(work.columns.WoodRecord.Sheet, own);
}

TEST(ColumnDesk, HasNothingBehindALoadedRecordAlone)
{
    ColumnsAtWork work;
    TakeLoadedColumnRecord(work.columns, work.beam, Steel, OldRecord());
    EXPECT_EQ(UnsavedColumnWork(work.columns), "");
    EXPECT_FALSE(LeaveLoadedColumnRecord(work.columns, Steel));
    EXPECT_EQ(work.columns.SteelRecord, ColumnRecordOnShow{});
    TakeLoadedColumnRecord(work.columns, work.beam, Steel, OldRecord());
    work.Select(Steel);
    EXPECT_FALSE(work.columns.SteelRecord.FromDisk);
    EXPECT_TRUE(LeaveLoadedColumnRecord(work.columns, Steel));
    EXPECT_NE(work.columns.SteelRecord.Sheet, ColumnSheet{});
}

/// Printing a loaded record again must not put its heading over the column in hand, nor the other way round.
TEST(ColumnDesk, HeadsALoadedRecordByItself)
{
    ColumnsAtWork work;
    work.Select(Wood);
    work.columns.Heading = {.Project = "Barn, phase 2"};
    TakeColumnHeading(work.columns, Wood, Day);
    TakeLoadedColumnRecord(work.columns, work.beam, Wood, OldRecord());
    PrepareColumnHeading(work.columns, Wood, Day);
    EXPECT_EQ(TextOf(work.columns.Heading), "||Old house||P9||5/12/99");
    work.columns.Heading.Initials = "KL";
    TakeColumnHeading(work.columns, Wood, Day);
    EXPECT_EQ(HeadOf(work.columns.WoodRecord.Sheet), "||Old house||P9|Prepared by: KL|Date: 5/12/99");
    EXPECT_EQ(work.Select(Wood)[3], "Barn, phase 2");
    EXPECT_EQ(work.Select(Steel)[3], "Barn, phase 2");
}

TEST(ColumnDesk, BringsTheNotesAsTheyStand)
{
    ColumnsAtWork work;
    work.Select(Wood);
    work.beam.NoteClipboard[6] = "Paint the foot.";
    BringColumnNotes(work.columns, work.beam, Wood);
    EXPECT_EQ(work.columns.WoodRecord.Sheet.ReportNotes, work.beam.NoteClipboard);
}

TEST(ColumnDesk, NamesWhatIsUnsavedUntilItIsKept)
{
    ColumnsAtWork work;
    EXPECT_EQ(UnsavedColumnWork(work.columns), "");
    work.Select(Wood);
    EXPECT_EQ(UnsavedColumnWork(work.columns), WoodNotKept);
    work.Select(Steel);
    work.columns.Stud.RepWindStud = true;
    EXPECT_EQ(UnsavedColumnWork(work.columns),
              "The entries of the stud have not been saved.\n" + std::string(WoodNotKept) +
                  "\nThe record of the steel column has been neither saved nor printed.");
    MarkColumnRecordKept(work.columns, Steel);
    work.columns.KeptStud = work.columns.Stud;
    TakeLoadedColumnRecord(work.columns, work.beam, Wood, OldRecord());
    MarkColumnRecordKept(work.columns, Wood);  // a copy of the loaded one is none of our own
    EXPECT_EQ(UnsavedColumnWork(work.columns), WoodNotKept);
    LeaveLoadedColumnRecord(work.columns, Wood);
    MarkColumnRecordKept(work.columns, Wood);
    EXPECT_EQ(UnsavedColumnWork(work.columns), "");
}

/// What is saved and loaded again is the sheet, but for the header lines, which the record has no place for.
TEST(ColumnDesk, SavesWhatIsOnShow)
{
    const TemporaryFolder folder;
    ColumnsAtWork work;
    for (const ColumnRecordKind kind : {Wood, Steel}) {
        ColumnSheet own = work.Select(kind);
        ColumnSheet loaded;
        ScriptedUser user;
        ASSERT_EQ(SaveColumnRecord(own, kind, true, folder.Path("a"), user), Outcome::Done);
        ASSERT_EQ(OpenColumnRecord(folder.Path("a"), kind, loaded, user), Outcome::Done);
        own[1] = own[2] = "";
        EXPECT_EQ(loaded, own);
    }
}

}  // namespace
}  // namespace kordavan
