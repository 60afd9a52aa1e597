#include "forms/WalkFixture.h"

namespace kordavan {
namespace {

using testing::HasSubstr;

class SelectionFormTest : public WalkFixture {
protected:
    /// A 14 ft span under 200 plf live, 300 plf total: M = 300 x 14^2 / 8 = 7,350 ft-lb, R = 2,100 lb.
    void Calculate(SpeciesGroup group = SpeciesGroup::HemFirDouglasFir)
    {
        session.Problem.Combo1 = group;
        session.Problem.Span = "14";
        session.Problem.Loads.LUNIF = "200";
        session.Problem.Loads.UNIF = "300";
        Click("CmdOK");
        Settle();
    }

    QAbstractButton& Cell(std::size_t index) { return Find<QAbstractButton>(BoxName("ht", index)); }
};

TEST_F(SelectionFormTest, TellsTheLoadsAndTheEdition)
{
    Calculate();
    EXPECT_EQ(Text(Front().windowTitle()), " Kordavan Selection Form 2");
    EXPECT_EQ(LabelText("LabelINGRADE"), "Using NDS 2018 Values");
    EXPECT_EQ(LabelText("MOMENT"), "7,350 ft-lbs");
    EXPECT_EQ(LabelText("Reac1"), "Reaction 1 = 2,100");
    EXPECT_EQ(LabelText("Reac2"), "Reaction 2 = 2,100");
    EXPECT_EQ(LabelText("WoodStatisPanel"), "   Selection:  None");
    EXPECT_EQ(LabelText("TestedLine"),
              "Your selection must always be tested. Make your selection and click OK Test.");
    EXPECT_EQ(BoxText("Text1") + BoxText("Text2") + BoxText("Text3"), "");
}

TEST_F(SelectionFormTest, HeadsTheGlulamsBySpecies)
{
    Calculate();
    EXPECT_EQ(LabelText("Label16"), "8-3/4x");
    EXPECT_EQ(LabelText("Label17"), "10-3/4x");
    Key(Qt::Key_Escape);
    Calculate(SpeciesGroup::SouthernPine);
    EXPECT_EQ(LabelText("Label13"), "3-1/8x");
    EXPECT_EQ(LabelText("Label16"), "8-1/2x");
    EXPECT_EQ(LabelText("Label17"), "10-1/2x");
}

TEST_F(SelectionFormTest, APickFillsTheBoxesAndTestsNothing)
{
    Calculate();
    Click("ht[4]");
    EXPECT_EQ(BoxText("Text1"), "4x");
    EXPECT_EQ(BoxText("Text2"), Text(Cell(4).text()));
    EXPECT_EQ(BoxText("Text3"), "HF #2");
    EXPECT_EQ(FocusName(), "CmdOK");
    EXPECT_EQ(Text(Front().objectName()), "Form3");
}

TEST_F(SelectionFormTest, SouthernPineTimbersTakeTheirOwnNames)
{
    Calculate(SpeciesGroup::SouthernPine);
    Click("ht[14]");
    EXPECT_EQ(BoxText("Text1"), "6x");
    EXPECT_EQ(BoxText("Text3"), "So. Pine #2 SR");
}

TEST_F(SelectionFormTest, EmptyCellsStayInPlaceAndSayWhy)
{
    Calculate();
    ASSERT_EQ(Text(Cell(0).text()), "");
    EXPECT_FALSE(Cell(0).isEnabled());
    EXPECT_TRUE(Cell(0).isVisible());
    EXPECT_FALSE(Cell(0).toolTip().isEmpty());
    EXPECT_NE(Cell(0).toolTip(), Cell(2).toolTip());
}

TEST_F(SelectionFormTest, ArrowsMoveOverTheFilledCells)
{
    Calculate();
    EXPECT_EQ(FocusName(), "ht[2]");
    Key(Qt::Key_Right);
    EXPECT_EQ(FocusName(), "ht[3]");
    Key(Qt::Key_Right);
    Key(Qt::Key_Down);
    EXPECT_EQ(FocusName(), "ht[6]");
    Key(Qt::Key_Space);
    EXPECT_EQ(BoxText("Text1"), "4x");
    EXPECT_EQ(BoxText("Text3"), "HF #1");
}

TEST_F(SelectionFormTest, RepetitiveUseFadesTimbersAndGlulams)
{
    Click("Rep");
    Calculate();
    constexpr const char* explanation = "Glu-lams and 6x's do not qualify for the 'repetitive use' modifier.";
    EXPECT_EQ(LabelText("RepQualify"), explanation);
    EXPECT_THAT(Text(Cell(5).toolTip()), HasSubstr(explanation));
    EXPECT_THAT(Text(Cell(19).toolTip()), HasSubstr(explanation));
    EXPECT_TRUE(Cell(5).isEnabled());
    EXPECT_THAT(Text(Cell(2).toolTip()), testing::Not(HasSubstr(explanation)));
    Click("ht[5]");
    Click("CmdOK");
    EXPECT_EQ(Text(Front().objectName()), "Form3");
    EXPECT_EQ(user.Told.back().Kind, MessageKind::Refusal);
}

TEST_F(SelectionFormTest, RefusesATextThatIsNoSizeAndPointsToIt)
{
    Calculate();
    Type("Text1", "4 x");
    Type("Text2", "10");
    Type("Text3", "HF #2");
    Key(Qt::Key_Return);
    EXPECT_EQ(Text(Front().objectName()), "Form3");
    ASSERT_FALSE(user.Told.empty());
    EXPECT_EQ(user.Told.back().Kind, MessageKind::Refusal);
    EXPECT_EQ(FocusName(), "Text1");
    EXPECT_EQ(BoxText("Text1"), "4 x");
}

TEST_F(SelectionFormTest, ANewAnalysisEmptiesTheBoxes)
{
    Calculate();
    Click("ht[4]");
    Key(Qt::Key_Escape);
    session.Problem.Loads.UNIF = "100";
    session.Problem.Loads.LUNIF = "60";
    Click("CmdOK");
    EXPECT_EQ(BoxText("Text1"), "");
    EXPECT_EQ(LabelText("MOMENT"), "2,450 ft-lbs");
}

}  // namespace
}  // namespace kordavan
