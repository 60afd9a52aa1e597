#include <QComboBox>
#include <QPushButton>

#include "forms/WalkFixture.h"
#include "records/SclFile.h"

namespace kordavan {
namespace {

/// 300 plf on 18 ft, in the group of composite lumber or of custom wood.
class OwnFormTest : public WalkFixture {
protected:
    void Open(SpeciesGroup group)
    {
        session.Problem.Combo1 = group;
        session.Problem.Span = "18";
        session.Problem.Loads.LUNIF = "200";
        session.Problem.Loads.UNIF = "300";
        Press("CmdOK");
        ASSERT_EQ(FrontName(), "Form2");
    }

    void Press(const std::string& command)
    {
        Click(command);
        Settle();
    }

    void ChooseProduct(int product)
    {
        auto& list = Find<QComboBox>("Combo1");
        list.setCurrentIndex(product);
        Q_EMIT list.activated(product);
    }

    void TypeValues()
    {
        Type("Text1", "2600");
        Type("Text2", "285");
        Type("Text4", "1.9");
        Type("Text3", "750");
    }

    bool IsSeen(const std::string& name) { return Find<QWidget>(name).isVisible(); }
    bool IsOn(const std::string& name) { return Find<QWidget>(name).isEnabled(); }
    std::string FrontName() { return Text(Front().objectName()); }
    std::string ButtonText(const std::string& name) { return Text(Find<QAbstractButton>(name).text()); }
};

/// By hand: 72 x 12150 / (1.75 x 2600) = 13.87^2, so 14 in. is the least depth in bending.
TEST_F(OwnFormTest, AProductGoesFromItsValuesToItsReport)
{
    Open(SpeciesGroup::Scl);
    EXPECT_EQ(Text(Front().windowTitle()), " Kordavan SCL Form 2");
    ChooseProduct(2);
    EXPECT_EQ(LabelText("LVLname"), "Trus Joist LVL");
    EXPECT_EQ(LabelText("LVLab[1]"), "(2) 1-3/4x");
    EXPECT_EQ(ButtonText("LVLbut[1]"), "");
    EXPECT_FALSE(IsOn("LVLbut[1]"));
    EXPECT_FALSE(IsSeen("LVLbut[4]"));
    TypeValues();
    EXPECT_TRUE(Find<QPushButton>("CmdEnterValues").isDefault());
    Key(Qt::Key_Return);
    EXPECT_TRUE(Find<QPushButton>("CmdTest").isDefault());
    EXPECT_TRUE(IsOn("LVLbut[1]"));
    const std::string depth = ButtonText("LVLbut[0]");
    Press("LVLbut[0]");
    EXPECT_EQ(BoxText("Text6") + " " + BoxText("Text7"), "1-3/4x " + depth);
    EXPECT_EQ(ButtonText("ButG[0]"), "14");
    Press("ButG[3]");
    EXPECT_EQ(BoxText("Text7"), "20");
    Press("CmdTest");
    ASSERT_EQ(FrontName(), "Form5");
    EXPECT_EQ(LabelText("DisplayChoice"), "1-3/4x  20 1.9E TJ Microllam LVL");
    Press("CmdNextSizeDn");
    EXPECT_EQ(LabelText("DisplayChoice"), "1-3/4x  18 1.9E TJ Microllam LVL");
    Press("CmdNextWidth");
    EXPECT_EQ(LabelText("DisplayChoice"), "(2) 1-3/4x  18 1.9E TJ Microllam LVL");
    Key(Qt::Key_Escape);
    EXPECT_EQ(BoxText("Text6") + " " + BoxText("Text7"), "(2) 1-3/4x 18");
    EXPECT_EQ(ButtonText("LVLbut[0]"), depth);
}

TEST_F(OwnFormTest, AnotherValueTakesThePicksBack)
{
    Open(SpeciesGroup::Scl);
    TypeValues();
    Press("CmdEnterValues");
    EXPECT_NE(ButtonText("LVLbut[0]"), "");
    Type("Text1", "1200");
    EXPECT_EQ(ButtonText("LVLbut[0]"), "");
    EXPECT_FALSE(IsSeen("ButG[0]"));
    EXPECT_TRUE(Find<QPushButton>("CmdEnterValues").isDefault());
    Type("Text1", "2600");
    EXPECT_TRUE(Find<QPushButton>("CmdEnterValues").isDefault());
    EXPECT_EQ(ButtonText("LVLbut[0]"), "");
}

TEST_F(OwnFormTest, ValuesOfAProductAreSavedAndFoundAgain)
{
    Open(SpeciesGroup::Scl);
    ChooseProduct(24);
    EXPECT_TRUE(IsSeen("Text8") && IsSeen("Text5"));
    EXPECT_FALSE(IsSeen("LVLbut[0]"));
    TypeValues();
    Press("LVLsavedefault");
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_EQ(user.Told[0].Focus, "Text8");
    Type("Text8", "0.111");
    Type("Text5", "Acme 2.0E LVL");
    Press("LVLsavedefault");
    EXPECT_EQ(user.Told.back().Text, "SCL Custom values have been saved to hard drive.");
    ChooseProduct(0);
    EXPECT_EQ(BoxText("Text1"), "");
    EXPECT_FALSE(IsSeen("Text8") || IsSeen("Text5"));
    ChooseProduct(24);
    EXPECT_EQ(BoxText("Text1") + " " + BoxText("Text4") + " " + BoxText("Text8"), "2600 1.9 0.111");
    Type("Text1", "9");
    Press("LVLLoadDefault");
    EXPECT_EQ(BoxText("Text1"), "2600");

    Choose("MnuSaveCustom");
    EXPECT_THAT(user.Told.back().Text, testing::StartsWith("Please use the Save Default button"));
    EXPECT_TRUE(desktop.DialogTitles.empty());
}

TEST_F(OwnFormTest, NewCriteriaBeginWithTheSavedValues)
{
    SaveSclValues(Text(desktop.Folder.path()), 0,
                  {.Fb = "2800", .Fv = "285", .E = "2.0", .FcPerp = "750", .Exponent = {}, .Name = {}}, user);
    Open(SpeciesGroup::Scl);
    EXPECT_EQ(BoxText("Text1"), "2800");
    EXPECT_NE(ButtonText("LVLbut[0]"), "");
    EXPECT_EQ(FocusName(), "LVLbut[0]");
    ChooseProduct(5);
    TypeValues();
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Find<QWidget>("UBLtext").isEnabled());
    EXPECT_FALSE(IsSeen("Incised"));
    Press("CmdOK");
    EXPECT_EQ(BoxText("Text1"), "2800");
}

TEST_F(OwnFormTest, CustomWoodChoosesAFamily)
{
    Open(SpeciesGroup::Custom);
    EXPECT_EQ(Text(Front().windowTitle()), " Kordavan Custom Values Form 2");
    EXPECT_FALSE(IsSeen("Combo1") || IsSeen("LVLsavedefault"));
    TypeValues();
    Type("Text5", "Ponderosa Sel.");
    Click("WidGLB");
    EXPECT_TRUE(IsOn("SPG"));
    EXPECT_EQ(LabelText("LVLab[3]"), "8-3/4x");
    Click("SPG");
    EXPECT_EQ(LabelText("LVLab[3]"), "8-1/2x");
    Click("Wid6x");
    EXPECT_FALSE(session.Entry.Custom.WidGLB || session.Entry.Custom.SPG);
    Press("CmdEnterValues");
    Type("Text6", "6-1/2x");
    Type("Text7", "11-1/2");
    Press("CmdTest");
    EXPECT_EQ(LabelText("DisplayChoice"), "6-1/2x  11-1/2 in. Ponderosa Sel.");
    Press("CmdNextSize");
    EXPECT_EQ(LabelText("DisplayChoice"), "6-1/2x  12-1/2 in. Ponderosa Sel.");
    EXPECT_FALSE(IsOn("CmdNextWidth") || IsOn("CmdNextWidthDn"));
    Choose("MnuCriteria");
    Settle();
    Press("CmdOK");
    EXPECT_EQ(BoxText("Text5"), "Ponderosa Sel.");
    EXPECT_NE(ButtonText("LVLbut[0]"), "");
}

TEST_F(OwnFormTest, ARoundMemberHasADiameterAlone)
{
    Open(SpeciesGroup::Custom);
    Click("Roundoption");
    EXPECT_FALSE(IsSeen("Text6") || IsSeen("LVLbut[0]") || IsOn("Wid2x"));
    EXPECT_EQ(LabelText("DurationInForce"), "Load duration factor in force: 1.00");
    TypeValues();
    Type("Diam", "12,");
    EXPECT_EQ(user.Told.back().Text, "Please do not enter comma separators.");
    Press("CmdTest");
    ASSERT_EQ(FrontName(), "Form5");
    Press("CmdNextSize");
    EXPECT_THAT(LabelText("DisplayChoice"), testing::StartsWith("13 in. round"));
    Key(Qt::Key_Escape);
    EXPECT_EQ(BoxText("Diam"), "13");
}

TEST_F(OwnFormTest, ValuesOfASpeciesAreSavedAndLoaded)
{
    Open(SpeciesGroup::Custom);
    TypeValues();
    Click("Wid4x");
    Type("Text5", "Ponderosa Sel.");
    desktop.ChosenFile = desktop.PathOf("pine.Val");
    Press("SaveVal");
    Type("Text1", "1");
    Click("Wid2x");
    user.WillAnswer(true);
    Press("LoadVal");
    EXPECT_EQ(desktop.DialogTitles,
              (std::vector<std::string>{"Save Custom Values As", "Open Custom Value File"}));
    EXPECT_EQ(user.Told.back().Title, "Kordavan Courtesy Alert");
    EXPECT_EQ(BoxText("Text1"), "2600");
    EXPECT_TRUE(Find<QAbstractButton>("Wid4x").isChecked());
    EXPECT_FALSE(Find<QAbstractButton>("Wid2x").isChecked());
}

TEST_F(OwnFormTest, MixedGradesAreWarnedOf)
{
    Open(SpeciesGroup::Custom);
    EXPECT_FALSE(IsSeen("GradeWarning"));
    Click("CustomIngradeSP");
    Click("MELCheckbox");
    EXPECT_THAT(LabelText("GradeWarning"), testing::StartsWith("Error: Both So. Pine AND MEL/MSR"));
}

TEST_F(OwnFormTest, RefusalsPointToTheirBox)
{
    Open(SpeciesGroup::Scl);
    Press("CmdEnterValues");
    EXPECT_EQ(FocusName(), "Text1");
    TypeValues();
    Type("Text6", "3.5x");
    Press("CmdTest");
    EXPECT_THAT(user.Told.back().Text, testing::StartsWith("Please check Breadth entry"));
    EXPECT_EQ(FocusName(), "Text6");
}

TEST_F(OwnFormTest, TabRunsFromTheProductToTheTestAndEndsWithTheFiles)
{
    Open(SpeciesGroup::Scl);
    ChooseProduct(2);
    TypeValues();
    Press("CmdEnterValues");
    Find<QComboBox>("Combo1").setFocus();
    for (const std::string name :
         {"Text1", "Text2", "Text4", "Text3", "CmdEnterValues", "LVLbut[0]", "LVLbut[1]", "LVLbut[2]",
          "LVLbut[3]", "Text6", "Text7", "CmdTest", "LVLLoadDefault", "LVLsavedefault"}) {
        Key(Qt::Key_Tab);
        EXPECT_EQ(FocusName(), name);
    }
    Find<QPushButton>("LVLbut[0]").setFocus();
    Key(Qt::Key_Right);
    EXPECT_EQ(FocusName(), "LVLbut[1]");
}

TEST_F(OwnFormTest, CustomWoodNeedsAFamily)
{
    Open(SpeciesGroup::Custom);
    TypeValues();
    Press("CmdEnterValues");
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_THAT(user.Told[0].Text, testing::StartsWith("Please choose the breadths of the member"));
}

}  // namespace
}  // namespace kordavan
