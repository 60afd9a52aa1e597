#include <QTimer>

#include "forms/QtDesktop.h"
#include "forms/WalkFixture.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class WalkTest : public WalkFixture {
protected:
    std::string FrontName() { return Text(Front().objectName()); }

    void EnterSimpleBeam()
    {
        Type("Span", "14");
        Type("LUNIF", "200");
        Type("UNIF", "300");
    }

    /// From the criteria by Enter, the first pick by Enter, the test by Enter.
    void WalkToTheReport()
    {
        Box("Span").setFocus();
        Key(Qt::Key_Return);
        ASSERT_EQ(FrontName(), "Form3");
        Key(Qt::Key_Return);
        EXPECT_EQ(FocusName(), "CmdOK");
        Key(Qt::Key_Return);
        ASSERT_EQ(FrontName(), "Form5");
    }

    void SelectAndReturn()
    {
        Key(Qt::Key_Return);
        ASSERT_EQ(FrontName(), "Form6");
        Choose("MnuCriteria");
        Settle();
        ASSERT_EQ(FrontName(), "Form1");
        EXPECT_THAT(LabelText("SavePanel"), HasSubstr(" Selection:   "));
        EXPECT_THAT(LabelText("SavePanel"), HasSubstr("   -  Status: OK   -  Date: 3/07/26"));
    }
};

TEST_F(WalkTest, SimpleSpanByKeyboardAlone)
{
    EnterSimpleBeam();
    WalkToTheReport();
    // The member weighs 4.5 x 13.25 x 0.243 = 14.49 plf: (300 + 14.49) x 14 / 2 = 2,201 lb.
    EXPECT_EQ(LabelText("DisplayChoice"), "(3) 2x  14 HF #2");
    EXPECT_EQ(LabelText("Label10"), "Reactions: R1 TL = 2201   R2 TL = 2201");
    EXPECT_EQ(LabelText("SecStatus"), "OK");
    SelectAndReturn();
    EXPECT_EQ(BoxText("UNIF"), "300");
}

TEST_F(WalkTest, OverhangShowsItsRowsAndReminder)
{
    Click("OHbutton");
    EnterSimpleBeam();
    Type("LPT[4]", "100");
    Type("PT[4]", "300");
    Type("DIS[4]", "3");
    WalkToTheReport();
    EXPECT_TRUE(Find<QLabel>("Unbalancedlabel").isVisible());
    EXPECT_FALSE(LabelText("OHDeflReq").empty());
    EXPECT_FALSE(LabelText("OHLDeflReq").empty());
    SelectAndReturn();
    EXPECT_EQ(BoxText("PT[4]"), "300");
}

TEST_F(WalkTest, HipReturnsWithItsRoofLoadsAsTyped)
{
    Click("IncButton");
    Type("Span", "14.14");
    Type("IncLL", "25");
    Type("IncTL", "40");
    Type("Trib1", "10");
    Type("Trib2", "10");
    Click("Roofbutton");
    Type("Pitchtext", "6");
    Click("Areas[0]");
    Click("IncCalcButton");
    WalkToTheReport();
    EXPECT_FALSE(Find<QLabel>("Unbalancedlabel").isVisible());
    SelectAndReturn();
    EXPECT_EQ(BoxText("IncTL"), "40");
    EXPECT_TRUE(Find<QAbstractButton>("IncCalcButton").isEnabled());
}

TEST_F(WalkTest, ThreeSpans)
{
    Click("Multibutton");
    Click("ThreeSpan");
    EnterSimpleBeam();
    WalkToTheReport();
    EXPECT_EQ(LabelText("OHDeflReq"), "");
    SelectAndReturn();
    EXPECT_TRUE(Find<QAbstractButton>("ThreeSpan").isChecked());
}

struct SpacingCase {
    const char* Name;
    const char* Option;
    const char* Uniform;   // as typed
    const char* Returned;  // after the walk
};

class SpacingReturnTest : public WalkFixture, public testing::WithParamInterface<SpacingCase> {};

/// Loads come back divided by the spacing's factor, of 16 and 19.2 in. to whole pounds.
TEST_P(SpacingReturnTest, PutsTheLoadsBack)
{
    Type("Span", "12");
    Type("LUNIF", "40");
    Type("UNIF", GetParam().Uniform);
    Type("PT[0]", "100");
    Type("DIS[0]", "5");
    Click("Rep");
    Click(GetParam().Option);
    Click("CmdOK");
    ASSERT_EQ(Text(Front().objectName()), "Form3");
    EXPECT_NE(session.Problem.Loads.PT[0], "100");
    Key(Qt::Key_Escape);
    ASSERT_EQ(Text(Front().objectName()), "Form1");
    EXPECT_EQ(BoxText("UNIF"), GetParam().Returned);
    EXPECT_EQ(BoxText("LUNIF"), "40");
    EXPECT_EQ(BoxText("PT[0]"), "100");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Spacings, SpacingReturnTest, testing::Values(
    SpacingCase{"Sixteen", "Ctr16", "55", "55"},
    SpacingCase{"SixteenRounds", "Ctr16", "55.5", "56"},
    SpacingCase{"NineteenPointTwo", "Ctr19", "55", "55"},
    SpacingCase{"TwentyFour", "ctr24", "55.5", "55.5"}),
    [](const auto& test) { return std::string(test.param.Name); });
// clang-format on

TEST_F(WalkTest, SlopedTotalsComeBackWithoutRepetitiveUse)
{
    EnterSimpleBeam();
    Click("Roofbutton");
    Type("Pitchtext", "12");
    Click("CmdOK");
    EXPECT_NE(session.Problem.Loads.UNIF, "300");
    Key(Qt::Key_Escape);
    EXPECT_EQ(BoxText("UNIF"), "300");
}

TEST_F(WalkTest, RefusalLeavesEverythingAndPointsToTheBox)
{
    Type("Span", "14");
    Type("PT[2]", "500");
    Click("CmdOK");
    EXPECT_THAT(user.Told,
                ElementsAre(RefusalOf("Please enter a Distance from the starting reaction for the Point Load",
                                      "DIS[2]")));
    EXPECT_EQ(FrontName(), "Form1");
    EXPECT_EQ(FocusName(), "DIS[2]");
    EXPECT_EQ(BoxText("PT[2]"), "500");
    EXPECT_FALSE(Find<QWidget>("Form4").isVisible());
}

TEST_F(WalkTest, ReminderWritesTheUniformLoad)
{
    Type("Span", "14");
    Type("Text1", "40");
    Type("Text2", "55");
    Type("Tribute", "8");
    user.WillAnswer(true);
    Click("CmdOK");
    EXPECT_EQ(FrontName(), "Form3");
    EXPECT_EQ(session.Problem.Loads.UNIF, "440");
}

TEST_F(WalkTest, FormLeftIsHiddenAndKeepsItsPicks)
{
    EnterSimpleBeam();
    Form& criteria = Front();
    WalkToTheReport();
    EXPECT_FALSE(criteria.isVisible());
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), "Form3");
    EXPECT_FALSE(BoxText("Text1").empty());
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), "Form1");
    EXPECT_EQ(LabelText("SavePanel"), "   Selection:  None");
}

TEST_F(WalkTest, NewBeamAsksAboutUnsavedEntries)
{
    EnterSimpleBeam();
    user.WillAnswer(false);
    Choose("MnuNew");
    EXPECT_EQ(BoxText("Span"), "14");
    user.WillAnswer(true);
    Choose("MnuNew");
    EXPECT_EQ(BoxText("Span") + BoxText("UNIF"), "");
    EXPECT_EQ(FocusName(), "Proj");
}

TEST_F(WalkTest, NewBeamFromTheReportRemindsFirst)
{
    EnterSimpleBeam();
    WalkToTheReport();
    user.WillAnswer(true);
    Choose("MnuNew");
    EXPECT_EQ(FrontName(), "Form5");
    user.WillAnswer(false);
    Choose("MnuNew");
    EXPECT_EQ(FrontName(), "Form1");
    EXPECT_EQ(BoxText("Span"), "");
}

TEST_F(WalkTest, EndsOnlyOnYes)
{
    user.WillAnswer(false);
    Front().close();
    EXPECT_FALSE(desktop.HasEnded);
    EXPECT_TRUE(Front().isVisible());
    EXPECT_EQ(user.Told.back().Text, "You have used Kordavan for 12 minutes. Do you wish to exit?");
    columns.Stud.WindStudHt = "9";
    user.WillAnswer(false);
    Choose("MnuExit");
    EXPECT_THAT(user.Told.back().Text, HasSubstr("exit?\nThe entries of the stud have not been saved."));
    EXPECT_FALSE(desktop.HasEnded);
    user.WillAnswer(true);
    Choose("MnuExit");
    EXPECT_TRUE(desktop.HasEnded);
}

/// With the desk itself: leaving the program must neither ask again nor be held up by a window.
TEST(ExitTest, EndsTheProgramAtOnce)
{
    Session session;
    ColumnSession columns;
    NotchSession notch;
    ScriptedUser user;
    QtDesktop desktop;
    Walk walk(session, columns, notch, user, desktop);
    walk.Go(Screen::Criteria);
    walk.ShowBeside(Screen::Notes);
    user.WillAnswer(true);
    bool isStuck = false;
    QTimer::singleShot(0, [&walk] { walk.Front()->close(); });
    QTimer::singleShot(2000, [&isStuck] {
        isStuck = true;
        QApplication::exit();
    });
    QApplication::exec();
    EXPECT_FALSE(isStuck);
    EXPECT_EQ(user.Told.size(), 1U);
}

TEST_F(WalkTest, ClosingASideWindowAsksNothing)
{
    for (const Screen screen : {Screen::Notes, Screen::Calculator, Screen::HipDiagram}) {
        walk.ShowBeside(screen);
        EXPECT_TRUE(walk.FormOf(screen).isVisible());
        walk.FormOf(screen).close();
        EXPECT_FALSE(walk.FormOf(screen).isVisible());
    }
    EXPECT_THAT(user.Told, IsEmpty());
    EXPECT_FALSE(desktop.HasEnded);
}

TEST_F(WalkTest, OpensTheFileExplorer)
{
    Choose("MnuExplorer");
    EXPECT_EQ(desktop.ExplorersOpened, 1);
}

TEST_F(WalkTest, HelpButtonsOfTheConditionsOpenDiagramsBeside)
{
    Click("Command3D2");
    EXPECT_TRUE(walk.FormOf(Screen::OverhangDiagram).isVisible());
    EXPECT_EQ(FrontName(), "Form1");
    EXPECT_THAT(user.Told, SizeIs(0));
}

}  // namespace
}  // namespace kordavan
