#include <QComboBox>
#include <QPushButton>
#include <array>

#include "forms/StatusColor.h"
#include "forms/StatusSign.h"
#include "forms/WalkFixture.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

class StudFormTest : public WalkFixture {
protected:
    StudFormTest()
    {
        Choose("MnuColumns");
        Click("StudButton");
        Settle();
    }

    void List(const std::string& name, int row)
    {
        auto& list = Find<QComboBox>(name);
        list.setCurrentIndex(row);
        Q_EMIT list.activated(row);
    }

    void Pick(const std::string& name)
    {
        const int row = Find<QComboBox>("WindStudCombo").findText(Text(name));
        ASSERT_GE(row, 0) << name;
        List("WindStudCombo", row);
    }

    /// 2x6 at 16 in., 8 ft, 20 psf over the whole height: M = 26.7 x 64 / 8 = 213 ft-lb, fb = 213 x 12 / 7.56
    /// = 339 psi of 1.3 x 900 x 1.6 = 1872; P = 500 x 4/3 = 667 lb, fc = 81 psi. A small part of either.
    void EnterStud()
    {
        Type("WindStudHt", "8");
        Type("WindStudSpacing", "16");
        List("DepthCombo", 1);
        Pick("DF-L #2");
        Type("AxialPLFtextbox", "500");
        Type("WindA", "20");
        Type("BegA", "0");
        Type("EndA", "8");
    }

    bool IsOn(const std::string& name) { return Find<QAbstractButton>(name).isEnabled(); }
    std::string FrontName() { return Text(Front().objectName()); }
};

TEST_F(StudFormTest, EnterChecksTheStud)
{
    EXPECT_FALSE(IsOn("StudReportbutton"));
    EnterStud();
    Key(Qt::Key_Return);
    EXPECT_EQ(FrontName(), "Form18");
    EXPECT_TRUE(user.Told.empty());
    EXPECT_EQ(LabelText("StudStatusLabel"), "Adequate");
    EXPECT_EQ(Find<StatusSign>("StudStatusSign").Shown(), Sign::Passes);
    EXPECT_EQ(LabelText("StudChangedLabel"), "");
    EXPECT_EQ(LabelText("StudWarning"), "");
    ASSERT_TRUE(IsOn("StudReportbutton"));
    Click("StudReportbutton");
    EXPECT_EQ(FrontName(), "Form28");
}

/// 2x4 at 24 in., 12 ft, 40 psf: M = 80 x 144 / 8 = 1440 ft-lb, fb = 1440 x 12 / 3.06 = 5643 psi.
TEST_F(StudFormTest, AFailureStandsOut)
{
    EnterStud();
    List("DepthCombo", 0);
    Type("WindStudHt", "12");
    Type("WindStudSpacing", "24");
    Type("WindA", "40");
    Type("EndA", "12");
    Click("StudOKCalcbutton");
    EXPECT_EQ(LabelText("StudStatusLabel"), "Fails");
    EXPECT_EQ(Find<StatusSign>("StudStatusSign").Shown(), Sign::Fails);
    const auto& label = Find<QLabel>("StudStatusLabel");
    EXPECT_EQ(label.palette().color(QPalette::WindowText), FailColor(label.palette()));
    EXPECT_TRUE(label.font().bold());
    EXPECT_TRUE(IsOn("StudReportbutton"));
}

TEST_F(StudFormTest, AnEditLeavesTheResultAndSaysSo)
{
    EnterStud();
    Click("StudOKCalcbutton");
    Type("WindA", "25");
    EXPECT_EQ(LabelText("StudStatusLabel"), "Adequate");
    EXPECT_EQ(LabelText("StudChangedLabel"), "Entries changed since.");
    EXPECT_TRUE(IsOn("StudReportbutton"));
    Type("WindA", "20");
    EXPECT_EQ(LabelText("StudChangedLabel"), "");
    List("BreadthCombo", 3);
    EXPECT_EQ(LabelText("StudChangedLabel"), "Entries changed since.");
    Type("WindStudHt", "");
    Click("StudOKCalcbutton");
    EXPECT_EQ(user.Told.size(), 1U);
    EXPECT_EQ(LabelText("StudStatusLabel"), "Adequate");
}

TEST_F(StudFormTest, AnotherEditionIsAChangeToo)
{
    EnterStud();
    Click("StudOKCalcbutton");
    Choose("MnuCriteria");
    session.Nds = EditionFlags(Edition::Nds1997);
    Choose("MnuColumns");
    EXPECT_EQ(LabelText("StudChangedLabel"), "Entries changed since.");
}

TEST_F(StudFormTest, SuctionIsNeverAdequateWithoutAWord)
{
    EnterStud();
    Type("WindA", "-20");
    Click("StudOKCalcbutton");
    EXPECT_EQ(Find<StatusSign>("StudStatusSign").Shown(), Sign::Alert);
    EXPECT_TRUE(Find<QWidget>("StudWarningSign").isVisible());
    EXPECT_THAT(LabelText("StudWarning"), testing::HasSubstr("-213.3 ft-lb"));
}

TEST_F(StudFormTest, AMissingSpacingIsFilledIn)
{
    EnterStud();
    Type("WindStudSpacing", "");
    Click("StudOKCalcbutton");
    EXPECT_EQ(user.Told.size(), 1U);
    EXPECT_EQ(BoxText("WindStudSpacing"), "12");
    EXPECT_EQ(LabelText("StudStatusLabel"), "Adequate");
    EXPECT_EQ(LabelText("StudChangedLabel"), "");
}

TEST_F(StudFormTest, TheSpecialFactorIsUncheckedWhereItDoesNotApply)
{
    EnterStud();
    List("BreadthCombo", 1);
    Click("RepWindStud");
    Click("RepIBCCheck");
    Click("StudOKCalcbutton");
    EXPECT_FALSE(Find<QAbstractButton>("RepIBCCheck").isChecked());
    EXPECT_TRUE(Find<QAbstractButton>("RepWindStud").isChecked());
}

/// NDS Supplement, table 4A, DF-L Stud: Fb 700, Fc 850, E 1.4.
TEST_F(StudFormTest, ANameFillsInItsValues)
{
    Pick("DF-L Stud");
    EXPECT_EQ(BoxText("WindStudFb"), "700");
    EXPECT_EQ(BoxText("WindStudFc"), "850");
    EXPECT_EQ(BoxText("WindStudE"), "1.4");
    Pick("Custom");
    EXPECT_EQ(BoxText("WindStudFb"), "");
}

TEST_F(StudFormTest, TheButtonStepsThroughDurations)
{
    std::vector<std::string> factors;
    for (int step = 0; step < 5; ++step) {
        factors.push_back(BoxText("AxialDurTextbox"));
        Click("AxialDurCycle");
    }
    EXPECT_THAT(factors, testing::ElementsAre("1.0", "1.15", "1.25", "1.6", "1.0"));
}

struct StudRefusalCase {
    const char* Name;
    const char* Box;
    const char* Entered;
    const char* Focus;
};

class StudRefusalTest : public StudFormTest, public testing::WithParamInterface<StudRefusalCase> {};

TEST_P(StudRefusalTest, LeadsToItsBox)
{
    const StudRefusalCase& refusal = GetParam();
    EnterStud();
    Type(refusal.Box, refusal.Entered);
    Click("StudOKCalcbutton");
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_EQ(user.Told.front().Kind, MessageKind::Refusal);
    EXPECT_EQ(FocusName(), refusal.Focus);
    EXPECT_EQ(LabelText("StudStatusLabel"), "");
}

INSTANTIATE_TEST_SUITE_P(
    Checks, StudRefusalTest,
    testing::Values(StudRefusalCase{"NoHeight", "WindStudHt", "", "WindStudHt"},
                    StudRefusalCase{"NoAxial", "AxialPLFtextbox", "", "AxialPLFtextbox"},
                    StudRefusalCase{"NoWind", "WindA", "", "WindA"},
                    StudRefusalCase{"NoEnd", "EndA", "", "EndA"},
                    StudRefusalCase{"NoBegOfB", "WindB", "5", "BegB"},
                    StudRefusalCase{"NoFb", "WindStudFb", "", "WindStudFb"},
                    StudRefusalCase{"FcTooLarge", "WindStudFc", "2300", "WindStudFc"},
                    StudRefusalCase{"NoAxialDuration", "AxialDurTextbox", "", "AxialDurTextbox"},
                    StudRefusalCase{"NoWindDuration", "DurWindTextbox", "0", "DurWindTextbox"},
                    StudRefusalCase{"BeyondTop", "EndA", "8.5", "EndA"}),
    CaseName);

TEST_F(StudFormTest, KeepsAStudWithItsNotesInAFile)
{
    EnterStud();
    Type("columnID", "W1");
    session.NoteClipboard[0] = "north wall";
    desktop.ChosenFile = desktop.PathOf("wall.Wsc");
    user.WillAnswer(true);
    Click("SaveStudbutton");
    const StudEntry saved = columns.Stud;

    Type("WindA", "30");
    session.NoteClipboard = {};
    user.WillAnswer(false);
    Click("LoadStudbutton");
    EXPECT_EQ(BoxText("WindA"), "30");
    Click("WoodButton");
    user.WillAnswer(true);
    Choose("MnuLoadStud");
    EXPECT_EQ(columns.Stud, saved);
    EXPECT_EQ(BoxText("WindA"), "20");
    EXPECT_EQ(BoxText("columnID"), "W1");
    EXPECT_EQ(session.NoteClipboard[0], "north wall");
    EXPECT_TRUE(Find<QWidget>("WindFrame").isVisible());
    EXPECT_EQ(FocusName(), "WindStudHt");
    EXPECT_EQ(LabelText("StudStatusLabel"), "Adequate");
    EXPECT_TRUE(IsOn("StudReportbutton"));  // as the message on loading says
    EXPECT_THAT(desktop.DialogTitles,
                testing::ElementsAre("Save Stud Column Record As", "Open Stud Column Record"));
}

TEST_F(StudFormTest, AnUnfinishedStudOfAFileIsNotReported)
{
    EnterStud();
    Click("StudOKCalcbutton");
    Type("WindStudSpacing", "");
    desktop.ChosenFile = desktop.PathOf("half.Wsc");
    user.WillAnswer(false);
    Click("SaveStudbutton");
    const std::size_t told = user.Told.size();
    Click("LoadStudbutton");
    EXPECT_EQ(user.Told.size(), told + 1);  // what may be done with it
    EXPECT_EQ(BoxText("WindStudSpacing"), "");
    EXPECT_FALSE(IsOn("StudReportbutton"));
}

TEST_F(StudFormTest, SketchSaysWhatIsTyped)
{
    const auto words = [this] { return Text(Find<QWidget>("StudSketch").accessibleDescription()); };
    EXPECT_THAT(words(), testing::HasSubstr("no height yet"));
    EnterStud();
    Type("WindB", "-10");
    Type("BegB", "2");
    Type("EndB", "6");
    EXPECT_THAT(words(), testing::AllOf(testing::HasSubstr("8 ft high"), testing::HasSubstr("A 20 psf"),
                                        testing::HasSubstr("suction")));
    EXPECT_FALSE(Find<QWidget>("StudSketch").grab().isNull());
}

}  // namespace
}  // namespace kordavan
