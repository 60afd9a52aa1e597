#include "records/RecordDesk.h"

#include <gmock/gmock.h>

#include "design/DesignBuilder.h"

namespace kordavan {
namespace {

constexpr CalendarDay Day{.Year = 2026, .Month = 3, .Day = 7};

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

TEST(RecordDesk, KeepsALoadedRecordUntilItIsLeft)
{
    Session session = TestedSession();
    ScriptedUser user;
    session.Record.FromDisk = true;
    session.Record.Sheet[1] = "Old house";
    session.Record.Sheet[5] = "DF-L #1  4x 12 in.";
    ShowRecord(session, Day, user);
    EXPECT_EQ(session.Record.Sheet[5], "DF-L #1  4x 12 in.");
    PrepareHeading(session, Day);
    EXPECT_EQ(session.Record.Heading.Project, "Old house");
    user.WillAnswer(false);
    EXPECT_EQ(LeaveForReport(session, user), Outcome::Refused);
    EXPECT_THAT(user.Told[0].Text, testing::HasSubstr("It will be lost if you go to the Report Form3."));
    user.WillAnswer(true);
    EXPECT_EQ(LeaveForCriteria(session, user), Outcome::Done);
    EXPECT_THAT(user.Told[1].Text, testing::HasSubstr("It will be lost if you go to the Criteria Form1."));
    EXPECT_FALSE(session.Record.FromDisk);
    EXPECT_EQ(LeaveForReport(session, user), Outcome::Done);
}

TEST(RecordDesk, AsksForNotesWhereThereAreAny)
{
    Session session;
    ScriptedUser user;
    EXPECT_FALSE(AskToPrintNotes(session, user));
    session.Record.Sheet.ReportNotes[6] = "last";
    user.WillAnswer(true);
    EXPECT_TRUE(AskToPrintNotes(session, user));
    user.WillAnswer(false);
    EXPECT_FALSE(AskToPrintNotes(session, user));
}

}  // namespace
}  // namespace kordavan
