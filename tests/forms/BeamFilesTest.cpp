#include <filesystem>

#include "forms/WalkFixture.h"
#include "records/RecentFiles.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class BeamFilesTest : public WalkFixture {
protected:
    void EnterBeam()
    {
        Click("OHbutton");
        Type("Proj", "Hilltop");
        Type("Span", "14");
        Type("UNIF", "300");
        Type("LUNIF", "200");
        Type("PT[4]", "600");
        Type("DIS[4]", "4");
        Type("PAR[0]", "120");
        Type("BEGP[0]", "0");
        Type("ENDP[0]", "6");
        Click("Wet");
    }

    void SaveAs(const std::string& name)
    {
        desktop.ChosenFile = desktop.PathOf(name);
        Choose("MnuSaveBeam");
    }

    void Open(const std::string& name)
    {
        desktop.ChosenFile = desktop.PathOf(name);
        Choose("MnuOpenBeam");
    }
};

TEST_F(BeamFilesTest, OpensWhatWasSaved)
{
    EnterBeam();
    const BeamProblem entered = session.Problem;
    SaveAs("deck.CRI");
    EXPECT_THAT(user.Told,
                ElementsAre(AlertOf("Beam Criteria saved to disk as\n    " + desktop.PathOf("deck.CRI"))));
    EXPECT_THAT(desktop.DialogTitles, ElementsAre("Save Beam Criteria As"));
    Choose("MnuNew");
    EXPECT_EQ(BoxText("Span"), "");
    user.Told.clear();
    Open("deck.CRI");
    EXPECT_THAT(user.Told, ElementsAre(AlertOf("This criteria was saved under NDS 2018 standards.")));
    EXPECT_EQ(desktop.DialogTitles.back(), "Open Beam Criteria File");
    EXPECT_EQ(session.Problem, entered);
    EXPECT_EQ(BoxText("Span"), "14");
    EXPECT_EQ(BoxText("BEGP[0]"), "0");
    EXPECT_EQ(BoxText("BEGP[1]"), "");
    EXPECT_TRUE(Find<QAbstractButton>("OHbutton").isChecked());
    EXPECT_TRUE(Find<QAbstractButton>("Wet").isChecked());
}

TEST_F(BeamFilesTest, BringsTheResultLineAndItsDate)
{
    EnterBeam();
    session.Selection =
        SelectionRecord{.MemberChoice = "4x  10 DF-L #2", .MemberStatus = "Fails", .RecordDate = "5/01/24"};
    SaveAs("deck.CRI");
    session.Selection.reset();
    Open("deck.CRI");
    EXPECT_EQ(LabelText("SavePanel"), " Selection:   4x  10 DF-L #2   -  Status: Fails   -  Date: 5/01/24");
    Type("Span", "15");
    EXPECT_EQ(LabelText("SavePanel"), "   Selection:  None");
}

TEST_F(BeamFilesTest, PutsTheEditionOfTheFileInForce)
{
    session.Nds = EditionFlags(Edition::Nds2005);
    SaveAs("old.CRI");
    session.Nds = EditionFlags(Edition::Nds2018);
    Open("old.CRI");
    EXPECT_EQ(Text(Front().windowTitle()), " Kordavan Criteria Form 1  NDS 2005");
}

TEST_F(BeamFilesTest, AsksBeforeUnsavedEntriesAreLost)
{
    SaveAs("empty.CRI");
    EnterBeam();
    user.WillAnswer(false);
    Open("empty.CRI");
    EXPECT_EQ(BoxText("Span"), "14");
    EXPECT_EQ(desktop.DialogTitles.size(), 1U);
    user.WillAnswer(true);
    Open("empty.CRI");
    EXPECT_EQ(BoxText("Span"), "");
}

TEST_F(BeamFilesTest, CancellingADialogChangesNothing)
{
    EnterBeam();
    desktop.ChosenFile.reset();
    Choose("MnuSaveBeam");
    user.WillAnswer(true);
    Choose("MnuOpenBeam");
    EXPECT_EQ(BoxText("Span"), "14");
    EXPECT_EQ(user.Told.size(), 1U);
}

TEST_F(BeamFilesTest, UnbalancedLoadsAreNotSaved)
{
    EnterBeam();
    Type("LPT[4]", "200");
    Click("UBOH");
    Choose("MnuSaveBeam");
    EXPECT_THAT(desktop.DialogTitles, IsEmpty());
    EXPECT_THAT(user.Told.back().Text, HasSubstr("Kordavan cannot save criteria when loads are unbalanced."));
    Click("UBOH");
    SaveAs("deck.CRI");
    EXPECT_THAT(user.Told.back().Text, HasSubstr("Beam Criteria saved to disk as"));
}

TEST_F(BeamFilesTest, ANumberThatNoFileHoldsIsPointedTo)
{
    Type("MaxDefl", "240.5");
    Choose("MnuSaveBeam");
    EXPECT_THAT(desktop.DialogTitles, IsEmpty());
    EXPECT_EQ(FocusName(), "MaxDefl");
}

TEST_F(BeamFilesTest, AFileOfAnotherKindChangesNothing)
{
    EnterBeam();
    SaveAs("deck.CRI");
    const BeamProblem entered = session.Problem;
    desktop.ChosenFile = walk.DefaultsPath();
    Choose("MnuOpenBeam");
    EXPECT_THAT(user.Told.back().Text, HasSubstr("The Beam Criteria for this form could not be loaded."));
    desktop.ChosenFile = desktop.PathOf("no such file.CRI");
    Choose("MnuOpenBeam");
    EXPECT_THAT(user.Told.back().Text, HasSubstr("This file could not be read:"));
    EXPECT_EQ(session.Problem, entered);
}

TEST_F(BeamFilesTest, RemembersTheFilesUsedLast)
{
    EnterBeam();
    SaveAs("first.CRI");
    SaveAs("second & third.CRI");
    auto* const file = qobject_cast<QMenu*>(Front().menuBar()->actions().front()->menu());
    Q_EMIT file->aboutToShow();
    EXPECT_EQ(Text(Find<QAction>("MnuRecent[0]").text()), "&1 second && third.CRI");
    EXPECT_EQ(Text(Find<QAction>("MnuRecent[1]").text()), "&2 first.CRI");
    EXPECT_FALSE(Find<QAction>("MnuRecent[2]").isVisible());
    Choose("MnuNew");
    Choose("MnuRecent[1]");
    EXPECT_EQ(BoxText("Span"), "14");
    EXPECT_EQ(ReadRecentFiles(walk.RecentFilesPath()).front(), desktop.PathOf("first.CRI"));
}

TEST_F(BeamFilesTest, SavedEntriesLeaveWithoutAWord)
{
    EnterBeam();
    SaveAs("deck.CRI");
    user.WillAnswer(false);
    Choose("MnuExit");
    EXPECT_EQ(user.Told.back().Text, "You have used Kordavan for 12 minutes. Do you wish to exit?");
}

TEST_F(BeamFilesTest, SavesLoadsAsTypedAfterASpacedCalculation)
{
    Type("Span", "12");
    Type("UNIF", "100");
    Click("Rep");
    Click("Ctr16");
    Click("CmdOK");
    Key(Qt::Key_Escape);
    SaveAs("joist.CRI");
    Choose("MnuNew");
    Open("joist.CRI");
    EXPECT_EQ(BoxText("UNIF"), "100");
    EXPECT_TRUE(Find<QAbstractButton>("Ctr16").isChecked());
}

}  // namespace
}  // namespace kordavan
