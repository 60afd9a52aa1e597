#include "design/NewBeam.h"

#include <gmock/gmock.h>

#include <vector>

#include "design/DesignBuilder.h"
#include "design/EntryAdjustment.h"
#include "design/LoadTools.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::Each;
using testing::ElementsAre;

constexpr std::string_view UnsavedQuestion =
    "The entries of this beam have not been saved.\nDo you wish to start a new beam?";
constexpr std::string_view WorkTitle = "SAVE YOUR WORK REMINDER";
constexpr std::string_view WorkQuestion =
    "Starting a new beam calculation removes the current beam data from memory.\n"
    "If you have NOT saved your work, select YES and then save by one of these methods:\n"
    "1. Print the Data Record.\n"
    "2. Copy the Data Record to another application (see Help for this procedure).\n"
    "3. Save the Beam Criteria (in Form1) by selecting from the menu, FILE, SAVE BEAM.\n"
    "4. Save the Data Record as a text file by selecting from the data record menu, FILE, SAVE...\n"
    "        NEED TO SAVE YOUR WORK?";
constexpr std::string_view NotesTitle = "SAVE YOUR NOTES REMINDER";
constexpr std::string_view NotesQuestion = "Do you wish to retain your notes for the next beam?";

auto QuestionOf(std::string_view title, std::string_view text)
{
    return testing::AllOf(MessageOf(MessageKind::Question, text, ""),
                          testing::Field("Title", &Message::Title, title));
}

/// No entry is that of a new beam.
BeamProblem FilledProblem()
{
    BeamProblem problem;
    problem.Proj = "Barn";
    problem.ID = "B1";
    problem.Descrip = "ridge";
    problem.Span = "16";
    problem.UBLtext = "4";
    problem.CantUBLtext = "2";
    problem.Dur = "1.25";
    problem.MaxDefl = "180";
    problem.LMaxDefl = "";
    problem.Support = SupportCondition::Overhanging;
    problem.ThreeSpan = true;
    problem.Rep = problem.Wet = problem.Incised = problem.Reducechk = true;
    problem.NoWeight = problem.Roofbutton = problem.ksi50 = true;
    problem.Spacing = RepetitiveSpacing::Ctr16;
    problem.Pitchtext = "5";
    problem.INGRADE = false;
    problem.Combo1 = SpeciesGroup::Steel;
    problem.Family = SteelFamily::Tube;
    problem.DepCombo = "12";
    problem.Loads.UNIF = "100";
    SetPoint(problem, 4, "500", "3", "300");
    SetPartial(problem, 0, "40", "0", "6", "20");
    problem.Loads.IncTL = problem.Loads.Trib1 = problem.Loads.Text2 = problem.Loads.TribPSF[4] = "10";
    problem.Loads.Areas[3] = problem.Loads.CalctheSpan = true;
    return problem;
}

Session WorkedSession()
{
    Session session;
    session.Problem = FilledProblem();
    session.Nds = EditionFlags(Edition::Nds2012);
    session.Restore.LoadsMultipliedFlag = true;
    session.Restore.HipLoadsGrown = true;
    session.Restore.SavedIncTL = "8";
    session.Unbalanced.Overhang = true;
    session.Unbalanced.SavedLivePoint[4] = "200";
    session.IncreasingTotalLoad = 2000;
    session.IncreasingLiveLoad = 1250;
    session.Selection = SelectionRecord{"4x  10 DF-L #2", "OK", "1/02/26"};
    session.NoteClipboard[2] = "see sheet 4";
    return session;
}

TEST(StartNewBeam, KeepsGroupLimitsSwitchAndProjectAlone)
{
    BeamProblem expected;
    expected.Combo1 = SpeciesGroup::Steel;
    expected.MaxDefl = "180";
    expected.LMaxDefl = "";
    expected.INGRADE = false;
    expected.Proj = "Barn";
    Session session = WorkedSession();
    StartNewBeam(session);
    EXPECT_TRUE(session.Problem == expected);
    EXPECT_EQ(session.Problem.Dur, "1.00");
    EXPECT_EQ(session.Problem.Support, SupportCondition::SimpleSpan);
    EXPECT_EQ(EditionInForce(session.Nds), Edition::Nds2012);
    EXPECT_EQ(session.NoteClipboard[2], "see sheet 4");
}

TEST(StartNewBeam, LeavesNothingOfTheBeamBefore)
{
    Session session = WorkedSession();
    StartNewBeam(session);
    EXPECT_FALSE(session.Selection);
    EXPECT_FALSE(session.Unbalanced.Overhang);
    EXPECT_THAT(session.Unbalanced.SavedLivePoint, Each(""));
    EXPECT_EQ(session.IncreasingTotalLoad, 0);
    EXPECT_EQ(session.IncreasingLiveLoad, 0);
    EXPECT_FALSE(HasUnsavedEntries(session));
    RestoreEntries(session);
    EXPECT_EQ(session.Problem.Loads, LoadSet{});  // nothing is put back into the new beam
}

struct OfferCase {
    std::string_view Name;
    bool HasEdits;
    bool HasNotes;
    std::vector<bool> Answers;
    Outcome Result;
    bool KeepsNotes;
};

Session OfferedSession(const OfferCase& c)
{
    Session session;
    session.Problem.ID = c.HasEdits ? "B1" : "";
    session.NoteClipboard[6] = c.HasNotes ? "see sheet 4" : "";
    session.Selection = SelectionRecord{"4x  10 DF-L #2", "OK", "1/02/26"};
    return session;
}

class OfferNewBeamTest : public testing::TestWithParam<OfferCase> {};

TEST_P(OfferNewBeamTest, AsksOnlyAboutWhatWouldBeLost)
{
    const OfferCase& c = GetParam();
    Session session = OfferedSession(c);
    ScriptedUser user;
    for (const bool answer : c.Answers) {
        user.WillAnswer(answer);
    }
    EXPECT_EQ(OfferNewBeam(session, user), c.Result);
    EXPECT_EQ(session.NoteClipboard[6], c.KeepsNotes ? "see sheet 4" : "");
    const bool isRefused = c.Result == Outcome::Refused;
    EXPECT_EQ(session.Problem.ID, isRefused ? "B1" : "");
    EXPECT_EQ(session.Selection.has_value(), isRefused);
    EXPECT_EQ(user.Told.size(), c.Answers.size());
    std::size_t at = 0;
    if (c.HasEdits) {
        EXPECT_THAT(user.Told.at(at++), QuestionOf("Kordavan", UnsavedQuestion));
    }
    if (c.HasNotes && !isRefused) {
        EXPECT_THAT(user.Told.at(at++), QuestionOf(NotesTitle, NotesQuestion));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Offers, OfferNewBeamTest,
    testing::Values(OfferCase{"nothing to lose", false, false, {}, Outcome::Done, false},
                    OfferCase{"edits kept", true, true, {false}, Outcome::Refused, true},
                    OfferCase{"edits given up", true, false, {true}, Outcome::Done, false},
                    OfferCase{"notes retained", true, true, {true, true}, Outcome::Done, true},
                    OfferCase{"notes given up", true, true, {true, false}, Outcome::Done, false},
                    OfferCase{"notes beside saved entries", false, true, {true}, Outcome::Done, true}),
    CaseName);

TEST(OfferNewBeamAfterReport, StaysWhereThePersonWantsToSave)
{
    Session session = WorkedSession();
    ScriptedUser user;
    user.WillAnswer(true);
    EXPECT_EQ(OfferNewBeamAfterReport(session, user), Outcome::Refused);
    EXPECT_THAT(user.Told, ElementsAre(QuestionOf(WorkTitle, WorkQuestion)));
    EXPECT_TRUE(session.Problem == FilledProblem());
    EXPECT_TRUE(session.Selection);
    EXPECT_TRUE(session.Unbalanced.Overhang);
    EXPECT_EQ(session.NoteClipboard[2], "see sheet 4");
}

TEST(OfferNewBeamAfterReport, AsksAboutTheNotesNext)
{
    for (const bool retains : {true, false}) {
        Session session = WorkedSession();
        ScriptedUser user;
        user.WillAnswer(false);
        user.WillAnswer(retains);
        EXPECT_EQ(OfferNewBeamAfterReport(session, user), Outcome::Done);
        EXPECT_THAT(user.Told,
                    ElementsAre(QuestionOf(WorkTitle, WorkQuestion), QuestionOf(NotesTitle, NotesQuestion)));
        EXPECT_EQ(session.NoteClipboard[2], retains ? "see sheet 4" : "");
        EXPECT_EQ(session.Problem.Span, "");
        EXPECT_EQ(session.Problem.Proj, "Barn");
        EXPECT_FALSE(session.Selection);
    }
}

TEST(OfferNewBeamAfterReport, RemindsOfSavedEntriesTooAndNotOfNotesThatAreNone)
{
    Session session;
    ScriptedUser user;
    user.WillAnswer(false);
    EXPECT_EQ(OfferNewBeamAfterReport(session, user), Outcome::Done);
    EXPECT_THAT(user.Told, ElementsAre(QuestionOf(WorkTitle, WorkQuestion)));
}

TEST(UnsavedEntries, AreThoseThatDifferFromTheKeptOnes)
{
    Session session;
    EXPECT_FALSE(HasUnsavedEntries(session));
    session.Problem.Loads.BEGP[1] = "0";
    EXPECT_TRUE(HasUnsavedEntries(session));
    session.Problem.Loads.BEGP[1] = "";
    EXPECT_FALSE(HasUnsavedEntries(session));
    session.Problem.Wet = true;
    EXPECT_TRUE(HasUnsavedEntries(session));
}

struct AdjustmentCase {
    std::string_view Name;
    RepetitiveSpacing Spacing;
    bool HasSlope;
};

class AdjustedEntriesTest : public testing::TestWithParam<AdjustmentCase> {};

TEST_P(AdjustedEntriesTest, AreStillThoseThatWereSaved)
{
    Session session = PlainSession();
    BeamProblem& problem = session.Problem;
    SetPoint(problem, 1, "700", "4", "450");
    SetPartial(problem, 0, "80", "0", "6", "35");
    problem.Rep = true;
    problem.Spacing = GetParam().Spacing;
    problem.Roofbutton = GetParam().HasSlope;
    problem.Pitchtext = "9";
    session.KeptProblem = problem;
    Calculate(session);
    EXPECT_NE(problem.Loads.UNIF, "100");  // the boxes hold what the analysis takes
    EXPECT_FALSE(HasUnsavedEntries(session));
    EXPECT_NE(problem.Loads.UNIF, "100");  // and still do
    problem.Descrip = "ridge";
    EXPECT_TRUE(HasUnsavedEntries(session));
}

INSTANTIATE_TEST_SUITE_P(Adjustments, AdjustedEntriesTest,
                         testing::Values(AdjustmentCase{"16 in", RepetitiveSpacing::Ctr16, false},
                                         AdjustmentCase{"19 in", RepetitiveSpacing::Ctr19, false},
                                         AdjustmentCase{"24 in", RepetitiveSpacing::Ctr24, false},
                                         AdjustmentCase{"slope", RepetitiveSpacing::Ctr12, true},
                                         AdjustmentCase{"slope at 16 in", RepetitiveSpacing::Ctr16, true}),
                         CaseName);

Session SlopedHipSession()
{
    Session session;
    BeamProblem& problem = session.Problem;
    problem.Support = SupportCondition::HipValley;
    problem.Roofbutton = true;
    problem.Pitchtext = "9";
    problem.Loads.IncTL = "40";
    problem.Loads.IncLL = "25";
    problem.Loads.Trib1 = "10";
    problem.Loads.Trib2 = "10";
    problem.Loads.Areas = {true, true, false, false};
    problem.Loads.CalctheSpan = true;
    return session;
}

TEST(UnsavedEntries, AreNotTheHipLoadsThatTheToolHasGrown)
{
    Session session = SlopedHipSession();
    ScriptedUser user;
    EXPECT_EQ(CalculateHipValley(session, user), Outcome::Done);
    Calculate(session);
    RestoreEntries(session);
    session.KeptProblem = session.Problem;  // saved on return
    EXPECT_EQ(CalculateHipValley(session, user), Outcome::Done);
    EXPECT_EQ(session.Problem.Loads.IncTL, "43.75");  // 25 + 15 * 1.25
    EXPECT_FALSE(HasUnsavedEntries(session));
    Calculate(session);
    EXPECT_FALSE(HasUnsavedEntries(session));
}

TEST(ExitQuestion, TellsTheMinutesAndUnsavedEntries)
{
    Session session;
    EXPECT_THAT(ExitQuestion(session, 12),
                QuestionOf("Kordavan", "You have used Kordavan for 12 minutes. Do you wish to exit?"));
    session.Problem.Span = "12";
    EXPECT_THAT(ExitQuestion(session, 0),
                QuestionOf("Kordavan",
                           "You have used Kordavan for 0 minutes. Do you wish to exit?\n"
                           "The entries of this beam have not been saved."));
    EXPECT_THAT(ExitQuestion(session, 0, "Nor has the post.").Text,
                testing::EndsWith("The entries of this beam have not been saved.\nNor has the post."));
    EXPECT_THAT(ExitQuestion({}, 0, "Nor has the post.").Text,
                testing::EndsWith("Do you wish to exit?\nNor has the post."));
}

}  // namespace
}  // namespace kordavan
