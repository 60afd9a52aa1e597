#include <QComboBox>
#include <QListWidget>
#include <QPushButton>

#include "forms/WalkFixture.h"

namespace kordavan {
namespace {

class SteelFormTest : public WalkFixture {
protected:
    SteelFormTest()
    {
        ChooseMaterial("Steel Beams");
        Type("Span", "18");
        Type("UBLtext", "4");
        Type("LUNIF", "200");
        Type("UNIF", "300");
    }

    void ChooseMaterial(const std::string& name)
    {
        auto& list = Find<QComboBox>("Combo1");
        const int row = list.findText(Text(name));
        ASSERT_GE(row, 0);
        Q_EMIT list.activated(row);
    }

    void ChooseDepth(const std::string& depth)
    {
        auto& list = Find<QComboBox>("DepCombo");
        list.setCurrentText(Text(depth));
        Q_EMIT list.activated(list.currentIndex());
    }

    void Press(const std::string& command)
    {
        Click(command);
        Settle();
    }

    bool IsOn(const std::string& name) { return Find<QAbstractButton>(name).isEnabled(); }
    bool IsSeen(const std::string& name) { return Find<QWidget>(name).isVisible(); }
    std::string FrontName() { return Text(Front().objectName()); }

    std::vector<std::string> Picks()
    {
        std::vector<std::string> names;
        for (std::size_t line = 0; line < SteelPageLines; ++line) {
            names.push_back(Text(Find<QPushButton>(Text(ArrayName("StlPick", line))).text()));
        }
        return names;
    }
};

TEST_F(SteelFormTest, CriteriaShowTheSteelFrameAlone)
{
    EXPECT_TRUE(IsSeen("SteelFrame"));
    EXPECT_FALSE(IsSeen("Incised"));
    EXPECT_EQ(Text(Front().windowTitle()), " Kordavan Criteria Form 1");
    ChooseMaterial("Southern Pine");
    EXPECT_FALSE(IsSeen("SteelFrame"));
    Click("Incised");
    ChooseMaterial("Steel Beams");
    EXPECT_FALSE(session.Problem.Incised);
}

TEST_F(SteelFormTest, TubesAndPlatesFixTheUnbracedLength)
{
    Click("TUbutton");
    EXPECT_EQ(BoxText("UBLtext"), "Any");
    EXPECT_FALSE(Box("UBLtext").isEnabled());
    Click("DblPLbutton");
    EXPECT_EQ(BoxText("UBLtext"), "0");
    EXPECT_FALSE(Box("UBLtext").isEnabled());
    Click("MCbutton");
    EXPECT_EQ(session.Problem.Family, SteelFamily::MC);
    EXPECT_EQ(BoxText("UBLtext"), "");
    EXPECT_TRUE(Box("UBLtext").isEnabled());
}

/// W 8x 10: M = (300 + 10) x 18^2 / 8 = 12555 ft-lb; S = 12555 x 12 / 23760 = 6.34 of 7.81 in3, 81 %;
/// V = 310 x 9 = 2790 lb over 7.89 x 0.17 in2 is 2080 of 14400 psi, 14 %.
TEST_F(SteelFormTest, CandidatesStandOnTwoPages)
{
    Press("CmdOK");
    ASSERT_EQ(FrontName(), "Form22");
    EXPECT_EQ(Text(Front().windowTitle()), " Kordavan Steel Selection Form 2");
    EXPECT_EQ(LabelText("StlMoment"), "Max Moment = 12,150 ft-lbs");
    EXPECT_EQ(LabelText("StlPanel"), "Proposed Max Unbraced Length is 4 ft");
    EXPECT_EQ(FocusName(), "StlPick[0]");
    EXPECT_EQ(Picks().front(), "W 8x 10");
    EXPECT_EQ(LabelText("UBLlab[0]"), "Lc = 4.2");
    EXPECT_EQ(LabelText("StlSecPerct[0]"), "81%");
    EXPECT_EQ(LabelText("StlShearPerct[0]"), "14%");
    EXPECT_FALSE(IsSeen("Backbutton"));

    const std::vector<std::string> first = Picks();
    Key(Qt::Key_PageDown);
    EXPECT_NE(Picks().front(), first.front());
    EXPECT_FALSE(IsSeen("Morebutton"));
    Key(Qt::Key_PageDown);
    EXPECT_TRUE(IsSeen("Backbutton"));
    Press("Backbutton");
    EXPECT_EQ(Picks(), first);
}

TEST_F(SteelFormTest, ReportLeadsBackToThePageThatWasLeft)
{
    Press("CmdOK");
    Press("Morebutton");
    const std::string shape = Picks()[1];
    Press("StlPick[1]");
    ASSERT_EQ(FrontName(), "Form5");
    EXPECT_EQ(LabelText("DisplayChoice"), shape);
    EXPECT_EQ(LabelText("GradeLabel"), "   36 ksi Wide Flange Steel");
    EXPECT_FALSE(IsSeen("CmdNextSize"));
    EXPECT_FALSE(IsSeen("CmdNextWidthDn"));
    Choose("backmnu");
    Settle();
    ASSERT_EQ(FrontName(), "Form22");
    EXPECT_EQ(Picks()[1], shape);
    EXPECT_EQ(BoxText("StlChoice"), shape);
}

TEST_F(SteelFormTest, ReportStepsThroughTheCandidates)
{
    Press("CmdOK");
    const std::vector<std::string> picks = Picks();
    Press("StlPick[0]");
    EXPECT_FALSE(IsOn("StlBack"));
    Press("StlForward");
    EXPECT_EQ(LabelText("DisplayChoice"), picks[1]);
    EXPECT_TRUE(IsOn("StlBack"));
    Key(Qt::Key_Plus);
    EXPECT_EQ(LabelText("DisplayChoice"), picks[2]);
    Key(Qt::Key_Minus);
    Find<QPushButton>("StlBack").setFocus();
    Press("StlBack");
    EXPECT_EQ(LabelText("DisplayChoice"), picks[0]);
    EXPECT_EQ(FocusName(), "StlForward");
    for (int step = 0; IsOn("StlForward") && step < 20; ++step) {
        Press("StlForward");
    }
    EXPECT_EQ(LabelText("DisplayChoice"), session.SteelPicks.Slots.back().StlPick);
}

TEST_F(SteelFormTest, AnyOtherSizeMayBeTyped)
{
    Press("CmdOK");
    Type("StlChoice", "W 36x 230");
    Key(Qt::Key_Return);
    ASSERT_EQ(FrontName(), "Form5");
    EXPECT_EQ(LabelText("DisplayChoice"), "W 36x 230");
    EXPECT_FALSE(IsOn("StlBack"));
    EXPECT_FALSE(IsOn("StlForward"));
}

struct RefusedSize {
    std::string_view Size;
    std::string_view Begin;  // of the message
};

class RefusedSizeTest : public SteelFormTest, public testing::WithParamInterface<RefusedSize> {};

TEST_P(RefusedSizeTest, LeavesTheSelection)
{
    Press("CmdOK");
    Type("StlChoice", std::string(GetParam().Size));
    Press("CmdOK");
    EXPECT_EQ(FrontName(), "Form22");
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_THAT(user.Told.front().Text, testing::StartsWith(std::string(GetParam().Begin)));
    EXPECT_EQ(BoxText("StlChoice"), GetParam().Size);
    EXPECT_EQ(session.Steel.ShapeName, "");
}

constexpr std::string_view NoMatch = "Your Steel selection does not match any sizes";

INSTANTIATE_TEST_SUITE_P(Sizes, RefusedSizeTest,
                         testing::Values(RefusedSize{"", NoMatch}, RefusedSize{"W12x30", NoMatch},
                                         RefusedSize{"S 8x 18.4", NoMatch}, RefusedSize{"xx", NoMatch},
                                         RefusedSize{"W 12x 14 or so", NoMatch}));

/// No W shape has an Lu of 18 ft under 18 lb/ft; W 6x 9 has 6.7 ft.
TEST_F(SteelFormTest, UnbracedBeyondEveryRegimeIsRefused)
{
    Type("UBLtext", "18");
    Press("CmdOK");
    Type("StlChoice", "W 6x 9");
    Press("CmdOK");
    EXPECT_EQ(FrontName(), "Form22");
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_THAT(user.Told.front().Text,
                testing::StartsWith("Proposed Unbraced length for Lc or Lu is too large."));
}

TEST_F(SteelFormTest, TellsWhenNothingPasses)
{
    ChooseDepth("4");
    Press("CmdOK");
    EXPECT_EQ(LabelText("StlStatis"), "No beams from the database meet the requirements");
    EXPECT_THAT(Picks(), testing::Each(""));
    EXPECT_FALSE(IsOn("StlPick[0]"));
    EXPECT_FALSE(IsOn("Morebutton"));
    EXPECT_EQ(FocusName(), "StlChoice");
}

TEST_F(SteelFormTest, ASizeIsTakenFromTheDatabase)
{
    Click("CFbutton");
    Press("CmdOK");
    Press("Steeldatabasecmd");
    auto& dialog = Find<QWidget>("SteelDatabase");
    EXPECT_EQ(Text(dialog.windowTitle()), "Kordavan Steel Database");
    auto& sizes = FindIn<QListWidget>(dialog, "SteelSizes");
    EXPECT_EQ(sizes.count(), 29);
    sizes.setCurrentRow(28);
    QTest::keyClick(&sizes, Qt::Key_Return);
    EXPECT_EQ(BoxText("StlChoice"), "C 15x 33.9");
    EXPECT_EQ(FrontName(), "Form22");
}

TEST_F(SteelFormTest, NewCriteriaDiscardTheShapesOfTheOld)
{
    Press("CmdOK");
    Press("Morebutton");
    Press("StlPick[0]");
    Choose("MnuCriteria");
    Settle();
    EXPECT_EQ(BoxText("UBLtext"), "4");
    Click("SFbutton");
    Press("CmdOK");
    EXPECT_EQ(Picks().front().front(), 'S');
    EXPECT_EQ(BoxText("StlChoice"), "");
    EXPECT_FALSE(IsSeen("Backbutton"));
    Key(Qt::Key_Escape);
    ChooseMaterial("Southern Pine");
    Press("CmdOK");
    EXPECT_EQ(FrontName(), "Form3");
}

TEST_F(SteelFormTest, TheShapeGoesOnRecord)
{
    Press("CmdOK");
    Press("StlPick[0]");
    Press("Command2");
    Choose("MnuCriteria");
    EXPECT_EQ(LabelText("SavePanel"), " Selection:   W 8x 10   -  Status: OK   -  Date: 3/07/26");
}

}  // namespace
}  // namespace kordavan
