#include <QComboBox>
#include <QGraphicsEffect>
#include <QListWidget>

#include "forms/StatusColor.h"
#include "forms/StatusSign.h"
#include "forms/WalkFixture.h"

namespace kordavan {
namespace {

using testing::ElementsAre;

class NotchFormTest : public WalkFixture {
protected:
    NotchFormTest()
    {
        session.Nds = EditionFlags(Edition::Nds2005);
        Choose("MnuNotch");
        Settle();
    }

    QListWidget& List(const std::string& name) { return Find<QListWidget>(name); }

    void ClickLine(const std::string& name, int row)
    {
        QListWidget& list = List(name);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
        Settle();
    }

    void Pick(const std::string& name)
    {
        auto& species = Find<QComboBox>("SpeciesCombo");
        const int row = species.findText(Text(name));
        ASSERT_GE(row, 0) << name;
        species.setCurrentIndex(row);
        Q_EMIT species.activated(row);
    }

    /// 4x12 cut to 10 in.: An = 35 in2, Vr' = 2/3 x 180 x 35 x (10 / 11.25)^2 = 3318.5 lb, minimum dn 8.44
    /// in.
    void EnterNotch()
    {
        Type("MaxVtextbox", "3000");
        Type("breadthtextbox", "3.5");
        Type("depthtextbox", "11.25");
        Pick("DF-L #2");
        Type("dnTextbox", "10");
    }

    bool IsOn(const std::string& name) { return Find<QWidget>(name).isEnabled(); }
    bool IsFaded(const std::string& name)
    {
        return Find<QWidget>(name).parentWidget()->graphicsEffect()->isEnabled();
    }
    std::string Words() { return Text(Find<QWidget>("NotchSketch").accessibleDescription()); }
};

TEST_F(NotchFormTest, StandsBesideTheBeam)
{
    EXPECT_EQ(Text(Front().objectName()), "FormOstrimane");
    EXPECT_EQ(Text(Front().windowTitle()), " Kordavan Notch Check");
    EXPECT_EQ(FocusName(), "MaxVtextbox");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Text(Front().objectName()), "Form1");
}

TEST_F(NotchFormTest, EnterChecksTheNotch)
{
    EnterNotch();
    EXPECT_FALSE(IsOn("CmdNotchReport"));
    List("NotchListBox").setFocus();
    Key(Qt::Key_Return);
    EXPECT_THAT(user.Told, testing::IsEmpty());
    EXPECT_EQ(LabelText("AdjFvLabel"), "180.0");
    EXPECT_EQ(LabelText("AnLabel"), "35.0");
    EXPECT_EQ(LabelText("CritLabel"), "Allowable Vr' =");
    EXPECT_EQ(LabelText("CriticalfvLabel"), "3319");
    EXPECT_EQ(LabelText("CritPsiLabel"), "lbs");
    EXPECT_EQ(LabelText("RatioTitle"), "Ratio V / Vr' =");
    EXPECT_EQ(LabelText("RatioLabel"), "90.4");
    EXPECT_EQ(LabelText("MinSpanLabel"), "n/a");
    EXPECT_EQ(LabelText("ShearStatusLabel"), "OK  Fv ratio less than 100%");
    EXPECT_EQ(Find<StatusSign>("NotchSign").Shown(), Sign::Passes);
    Click("CmdNotchReport");
    EXPECT_EQ(&Front(), &walk.FormOf(Screen::NotchPage));
}

TEST_F(NotchFormTest, AFailureStandsOut)
{
    EnterNotch();
    Type("MaxVtextbox", "1000");
    Type("dnTextbox", "8.4");
    Click("OKcalcCmd");
    EXPECT_EQ(LabelText("ShearStatusLabel"), "FAILS!  Actual dn < Minimum dn");
    EXPECT_EQ(Find<StatusSign>("NotchSign").Shown(), Sign::Fails);
    const auto& status = Find<QLabel>("ShearStatusLabel");
    EXPECT_EQ(status.palette().color(QPalette::WindowText), FailColor(status.palette()));
    EXPECT_TRUE(status.font().bold());
}

TEST_F(NotchFormTest, ARefusalLeadsToItsBoxAndKeepsTheResult)
{
    EnterNotch();
    Click("OKcalcCmd");
    Type("dnTextbox", "12");
    Click("OKcalcCmd");
    EXPECT_THAT(user.Told,
                ElementsAre(RefusalOf("The value for Dn (depth remaining at notch) is greater than "
                                      "the depth of the member.",
                                      "dnTextbox")));
    EXPECT_EQ(FocusName(), "dnTextbox");
    EXPECT_EQ(LabelText("CriticalfvLabel"), "3319");
}

TEST_F(NotchFormTest, AnEditFadesTheFigures)
{
    EnterNotch();
    Click("OKcalcCmd");
    EXPECT_FALSE(IsFaded("AnLabel"));
    const auto expectFaded = [this](bool isFaded) {
        EXPECT_EQ(LabelText("NotchChangedLabel"), isFaded ? "Entries changed since." : "");
        EXPECT_EQ(IsFaded("AnLabel"), isFaded);
        EXPECT_EQ(IsFaded("ShearStatusLabel"), isFaded);
    };
    Type("dnTextbox", "9");
    expectFaded(true);
    Type("dnTextbox", "10");
    expectFaded(false);
    ClickLine("DurListbox", 1);
    expectFaded(true);
    Click("OKcalcCmd");
    expectFaded(false);
    ClickLine("NDSyearList", 1);
    expectFaded(true);
}

TEST_F(NotchFormTest, YearsGoByThePlaceThatIsClicked)
{
    const auto expectYear = [this](int row, const std::string& text) {
        EXPECT_EQ(List("NDSyearList").currentRow(), row);
        EXPECT_EQ(LabelText("YearLine"), text);
    };
    expectYear(3, "In force: NDS 2005.");
    ClickLine("NDSyearList", 2);
    expectYear(2, "In force: NDS 1997.");
    List("NDSyearList").setFocus();
    Key(Qt::Key_Up);
    expectYear(1, "In force: NDS 2001.");
    EXPECT_THAT(user.Told, testing::IsEmpty());
    ClickLine("NDSyearList", 3);
    EXPECT_THAT(user.Told, ElementsAre(AlertOf("No NDS year selected.", "NDSyearList")));
    expectYear(1, "In force: NDS 2001.");
}

TEST_F(NotchFormTest, AClickOnTheLineThatIsSelectedCountsToo)
{
    Choose("MnuCriteria");
    session.Nds = EditionFlags(Edition::Nds2018);
    Choose("MnuNotch");
    EXPECT_EQ(LabelText("YearLine"), "In force: NDS 2018. No rule: not computed.");
    EXPECT_EQ(List("NDSyearList").currentRow(), 0);
    List("NDSyearList").setFocus();
    Key(Qt::Key_Space);
    EXPECT_EQ(LabelText("YearLine"), "In force: NDS 2005.");
}

TEST_F(NotchFormTest, TheYearStaysUntilTheEditionInForceChanges)
{
    ClickLine("NDSyearList", 2);
    Choose("MnuCriteria");
    Choose("MnuNotch");
    EXPECT_EQ(LabelText("YearLine"), "In force: NDS 1997.");
    Choose("MnuCriteria");
    session.Nds = EditionFlags(Edition::Nds2001);
    Choose("MnuNotch");
    EXPECT_EQ(LabelText("YearLine"), "In force: NDS 2001.");
    EXPECT_THAT(List("NDSyearList").selectedItems(), testing::IsEmpty());
}

TEST_F(NotchFormTest, WithoutARuleTheEarlierResultFadesAndANoteSaysSo)
{
    EnterNotch();
    Click("OKcalcCmd");
    session.Nds = EditionFlags(Edition::Nds2018);
    Front().Activate();
    Click("OKcalcCmd");
    EXPECT_EQ(LabelText("NotchNote"),
              "NDS 2018 has no rule here: nothing was computed. The result shown is of the run before, under "
              "NDS 2005.");
    EXPECT_TRUE(Find<QWidget>("NotchNoteSign").isVisible());
    EXPECT_EQ(LabelText("CriticalfvLabel"), "3319");
    EXPECT_TRUE(IsFaded("CriticalfvLabel"));
    EXPECT_EQ(LabelText("NotchChangedLabel"), "");
}

TEST_F(NotchFormTest, EachNotchTakesItsOwnEntries)
{
    const std::vector<std::string> tapered{"rdTextbox", "rpTextbox", "tTextbox"};
    const auto expectOn = [&](bool hasSetback, bool isTapered) {
        EXPECT_EQ(IsOn("eTextbox"), hasSetback);
        for (const std::string& box : tapered) {
            EXPECT_EQ(IsOn(box), isTapered) << box;
            EXPECT_TRUE(Find<QWidget>(box).isVisible()) << box;
        }
    };
    expectOn(false, false);
    ClickLine("NotchListBox", 1);
    expectOn(true, false);
    Type("eTextbox", "4");
    ClickLine("NotchListBox", 2);
    expectOn(false, true);
    EXPECT_EQ(BoxText("eTextbox"), "");
    ClickLine("MemberListBox", 1);
    EXPECT_TRUE(IsOn("breadthtextbox"));
}

/// NDS Supplement, tables 4A and 4D, DF-L: Fv 180 psi, of timbers 170; in 1997 95 and 85.
TEST_F(NotchFormTest, AFilledInValueFollowsYearAndSizeAndATypedOneStands)
{
    EnterNotch();
    EXPECT_EQ(BoxText("Fvtextbox"), "180");
    ClickLine("NDSyearList", 2);
    EXPECT_EQ(BoxText("Fvtextbox"), "95");
    ClickLine("MemberListBox", 1);
    EXPECT_EQ(BoxText("Fvtextbox"), "85");
    ClickLine("NDSyearList", 0);
    EXPECT_EQ(BoxText("Fvtextbox"), "170");
    Type("Fvtextbox", "150");
    ClickLine("NDSyearList", 2);
    ClickLine("MemberListBox", 0);
    EXPECT_EQ(BoxText("Fvtextbox"), "150");
}

TEST_F(NotchFormTest, TextsAndSketchFollowEachKeystroke)
{
    Type("depthtextbox", "1");
    EXPECT_EQ(LabelText("DnMinimum"), "3/4d = Minimum dn = 0.75 in.");
    QTest::keyClicks(&Box("depthtextbox"), "2");
    EXPECT_EQ(LabelText("DnMinimum"), "3/4d = Minimum dn = 9.0 in.");
    EXPECT_THAT(Words(), testing::HasSubstr("12 in. deep"));
    ClickLine("MemberListBox", 2);
    Click("WetUseCheckbox");
    EXPECT_EQ(LabelText("DnMinimum"), "d-3in. = Minimum dn = 9.0 in..");
    EXPECT_EQ(LabelText("WetUseLabel"), "Wet Use Factor = 0.875");
    ClickLine("NotchListBox", 2);
    EXPECT_THAT(Words(), testing::HasSubstr("Tapered Notch"));
}

TEST_F(NotchFormTest, ListsShowAllTheirLines)
{
    for (QListWidget* const list : Front().findChildren<QListWidget*>()) {
        if (!list->window()->objectName().startsWith(QLatin1String("FormOstrimane"))) {
            continue;
        }
        for (int row = 0; row < list->count(); ++row) {
            EXPECT_TRUE(list->viewport()->rect().contains(list->visualItemRect(list->item(row))))
                << Text(list->objectName()) << " " << row;
        }
    }
}

}  // namespace
}  // namespace kordavan
