#include "records/RecordDesk.h"

#include <gmock/gmock.h>

#include "design/DesignBuilder.h"
#include "design/Selection.h"
#include "records/RecordDay.h"

namespace kordavan {
namespace {

Session TestedSession()
{
    Session session = PlainSession();
    session.Problem.Proj = "Barn";
    session.Problem.Descrip = "ridge";
    session.Header.Heading1 = "Timber & Sons";
    Calculate(session);
    Tested(session, Member("4x", "10", "DF-L #2"));
    return session;
}

TEST(RecordDesk, HeadsTheSheetByWhatWasEnteredForPrinting)
{
    Session session = TestedSession();
    ScriptedUser user;
    SelectMember(session, Day);
    ShowRecord(session, Day, user);
    PrepareHeading(session, Day);
    EXPECT_EQ(session.Record.Heading.Project, "Barn");
    EXPECT_EQ(session.Record.Heading.Heading1, "Timber & Sons");
    EXPECT_EQ(session.Record.Heading.Date, "3/07/26");
    session.Record.Heading.Project = "Barn, phase 2";
    session.Record.Heading.Date = "";
    TakeHeading(session, Day);
    ShowRecord(session, Day, user);
    EXPECT_EQ(session.Record.Sheet[1], "Project: Barn, phase 2");
    EXPECT_EQ(session.Record.Sheet[4], "Date: 3/07/26");
    ClearHeading(session);
    EXPECT_EQ(session.Record.Heading.Project, "");
    Calculate(session);
    EXPECT_FALSE(session.Record.HeaderChanged);
}

/// A record of another beam, as its file brings it: description and beam in the slots after the project.
DataSheet OldBeamRecord()
{
    DataSheet sheet;
    sheet[1] = "Old house";
    sheet[2] = "porch";
    sheet[3] = "B7";
    sheet[4] = "Date: 5/12/99";
    sheet[5] = "DF-L #1  4x 12 in.";
    sheet[169] = "Prepared by: JD";
    sheet.ReportNotes[2] = "Old note.";
    return sheet;
}

TEST(RecordDesk, KeepsALoadedRecordUntilItIsLeft)
{
    Session session = TestedSession();
    ScriptedUser user;
    TakeLoadedRecord(session, OldBeamRecord());
    ShowRecord(session, Day, user);
    EXPECT_EQ(session.Record.Sheet, OldBeamRecord());
    EXPECT_EQ(session.NoteClipboard[2], "Old note.");
    PrepareHeading(session, Day);
    const RecordHeading& heading = session.Record.Heading;
    EXPECT_EQ(heading.Project + "|" + heading.Description + "|" + heading.BeamId, "Old house|porch|B7");
    EXPECT_EQ(heading.Date + "|" + heading.Initials, "5/12/99|JD");
    user.WillAnswer(false);
    EXPECT_EQ(LeaveForReport(session, user), Outcome::Refused);
    EXPECT_THAT(user.Told[0].Text, testing::HasSubstr("It will be lost if you go to the Report Form3."));
    user.WillAnswer(true);
    EXPECT_EQ(LeaveForCriteria(session, user), Outcome::Done);
    EXPECT_THAT(user.Told[1].Text, testing::HasSubstr("It will be lost if you go to the Criteria Form1."));
    EXPECT_FALSE(session.Record.FromDisk);
    EXPECT_EQ(LeaveForReport(session, user), Outcome::Done);
}

/// The sheet is of the member selected; a member that is only being tried out does not get onto it.
TEST(RecordDesk, KeepsTheSheetOfTheSelectionWhileAnotherMemberIsTested)
{
    Session session = TestedSession();
    ScriptedUser user;
    SelectMember(session, Day);
    ShowRecord(session, Day, user);
    Tested(session, Member("4x", "12", "DF-L #2"));
    session.NoteClipboard[0] = "Paint the ends.";
    ShowRecord(session, Day, user);
    EXPECT_EQ(session.Record.Sheet[5], "DF-L #2  4x 10 in.");
    EXPECT_EQ(session.Record.Sheet.ReportNotes[0], "Paint the ends.");
    SelectMember(session, Day);
    ShowRecord(session, Day, user);
    EXPECT_EQ(session.Record.Sheet[5], "DF-L #2  4x 12 in.");
}

/// After a calculation the sheet stands as it was, under the heading that it was printed with.
TEST(RecordDesk, HeadsAnOlderSheetAsItStands)
{
    Session session = TestedSession();
    ScriptedUser user;
    SelectMember(session, Day);
    ShowRecord(session, Day, user);
    PrepareHeading(session, Day);
    session.Record.Heading.Project = "Barn, phase 2";
    TakeHeading(session, Day);
    Calculate(session);
    PrepareHeading(session, Day);
    const RecordHeading& heading = session.Record.Heading;
    EXPECT_EQ(heading.Project + "|" + heading.Description + "|" + heading.Heading1,
              "Barn, phase 2|ridge|Timber & Sons");
}

TEST(RecordDesk, BringsItsOwnSheetBackBehindALoadedOne)
{
    Session session = TestedSession();
    session.NoteClipboard[0] = "Mine.";
    ScriptedUser user;
    SelectMember(session, Day);
    ShowRecord(session, Day, user);
    Calculate(session);
    const DataSheet own = session.Record.Sheet;
    TakeLoadedRecord(session, DataSheet{});
    EXPECT_EQ(session.NoteClipboard[0], "Mine.");
    TakeLoadedRecord(session, OldBeamRecord());
    user.WillAnswer(true);
    LeaveForCriteria(session, user);
    EXPECT_EQ(session.Record.Sheet, own);
    EXPECT_TRUE(session.Record.IsOfSelection);
}

TEST(RecordDesk, AsksForNotesWhereThereAreAny)
{
    Session session;
    ScriptedUser user;
    EXPECT_FALSE(AskToPrintNotes(session, user));
    session.NoteClipboard[6] = "last";
    user.WillAnswer(true);
    EXPECT_TRUE(AskToPrintNotes(session, user));
    user.WillAnswer(false);
    EXPECT_FALSE(AskToPrintNotes(session, user));
}

}  // namespace
}  // namespace kordavan
