#include "records/ResumeWork.h"

#include <gmock/gmock.h>

#include "design/CalculateAction.h"
#include "design/DesignBuilder.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

Session CalculatedSession()
{
    Session session;
    session.Problem.Span = "14";
    session.Problem.Loads.UNIF = "300";
    session.Problem.Loads.LUNIF = "200";
    session.Problem.Rep = true;
    session.Problem.Spacing = RepetitiveSpacing::Ctr24;
    ScriptedUser user;
    EXPECT_EQ(CalculateAction(session, user), Outcome::Done);
    session.Entry = Member("4x", "10", "DF-L #2");
    session.Record.IsOfSelection = true;
    session.Record.Sheet[1] = "Project: Barn";
    return session;
}

/// As a recovery leaves it: entries without results.
Session WithoutResults(const Session& session)
{
    Session left = session;
    left.Numbers = {};
    left.Analysis = {};
    left.Stations = {};
    return left;
}

TEST(CalculateAgain, GivesTheResultsThatWereThere)
{
    const Session before = CalculatedSession();
    Session session = WithoutResults(before);
    EXPECT_EQ(CalculateAgain(session), Outcome::Done);
    EXPECT_EQ(session.Problem, before.Problem);
    EXPECT_EQ(session.Problem.Loads.UNIF, "600");  // 300 x 2 for 24 in.
    EXPECT_EQ(session.Analysis.R1Applied, before.Analysis.R1Applied);
    EXPECT_EQ(session.Entry.DepthText, "10");
    EXPECT_TRUE(session.Record.IsOfSelection);
    EXPECT_EQ(session.Record.Sheet[1], "Project: Barn");
    EXPECT_EQ(TestAgain(session), Outcome::Done);
    EXPECT_GT(session.Analysis.ShearMax, 0);
    EXPECT_EQ(session.Record.Sheet[1], "Project: Barn");
}

TEST(CalculateAgain, LeavesTheTributaryLengthThatWasDeclined)
{
    Session session;
    session.Problem.Span = "14";
    session.Problem.Loads.PT[0] = session.Problem.Loads.LPT[0] = "1000";
    session.Problem.Loads.DIS[0] = "7";
    session.Problem.Loads.Tribute = "8";
    session.Problem.Loads.Text2 = "55";
    EXPECT_EQ(CalculateAgain(session), Outcome::Done);
    EXPECT_EQ(session.Problem.Loads.UNIF, "");
    EXPECT_EQ(session.Problem.Loads.Tribute, "8");
    EXPECT_EQ(session.Analysis.R1Applied, 500);  // half of the load at midspan
}

TEST(CalculateAgain, ChangesNothingWhereEntriesAreRefused)
{
    Session session = CalculatedSession();
    session.Problem.Span = "";
    const Session before = session;
    EXPECT_EQ(CalculateAgain(session), Outcome::Refused);
    EXPECT_EQ(session.Problem, before.Problem);
    EXPECT_EQ(session.Entry.DepthText, "10");
    session.Entry.DepthText = "no size";
    EXPECT_EQ(TestAgain(session), Outcome::Refused);
}

TEST(CalculateAgain, KeepsTheSizeOfAColumn)
{
    ColumnSession columns;
    ColumnEntry& entry = columns.Entry;
    entry.cReacText = "8000";
    entry.cHTtext = entry.cD1text = entry.cD2text = "8";
    entry.cFcText = "1300";
    entry.cEtext = "1.6";
    entry.ColSpeciesCombo = "DF-L #2";
    columns.ColD1Text = "3.5";
    columns.ColD2Text = "5.5";
    CalculateAgain(columns, Edition::Nds2018);
    EXPECT_EQ(columns.ColD1Text + " " + columns.ColD2Text, "3.5 5.5");
    EXPECT_EQ(columns.Problem.Reaction, 8000);
    EXPECT_FALSE(columns.Grid.ColDep[2].empty());
    entry.cReacText = "";
    columns.Problem.Reaction = 0;
    CalculateAgain(columns, Edition::Nds2018);
    EXPECT_EQ(columns.ColD1Text, "3.5");
    EXPECT_EQ(columns.Problem.Reaction, 0);
}

}  // namespace
}  // namespace kordavan
