#include <QComboBox>
#include <QPushButton>
#include <fstream>

#include "forms/WalkFixture.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

class ColumnFormTest : public WalkFixture {
protected:
    ColumnFormTest()
    {
        Choose("MnuColumns");
        Settle();
    }

    /// 10 ft high, braced at 5 ft in plane D1, of dimension lumber.
    void EnterColumn()
    {
        Type("cReacText", "4000");
        Type("cHTtext", "10");
        Type("cD1text", "5");
        Type("cD2text", "10");
        Pick("DF-L #2");
    }

    void Pick(const std::string& name)
    {
        auto& list = Find<QComboBox>("ColSpeciesCombo");
        const int row = list.findText(Text(name));
        ASSERT_GE(row, 0) << name;
        list.setCurrentIndex(row);
        Q_EMIT list.activated(row);
    }

    void TypeSpecies(const std::string& name)
    {
        auto& list = Find<QComboBox>("ColSpeciesCombo");
        list.setFocus();
        list.lineEdit()->selectAll();
        QTest::keyClick(&list, Qt::Key_Delete);
        QTest::keyClicks(&list, Text(name));
    }

    std::string Species() { return Text(Find<QComboBox>("ColSpeciesCombo").currentText()); }
    bool IsSeen(const std::string& name) { return Find<QWidget>(name).isVisible(); }
    std::string FrontName() { return Text(Front().objectName()); }

    void CalculateBeam()
    {
        Choose("MnuCriteria");
        Type("Span", "12");
        Type("UNIF", "300");
        Type("LUNIF", "200");
        Click("CmdOK");
        Choose("MnuCriteria");
        Choose("MnuColumns");
        Settle();
        user.Told.clear();
    }
};

TEST_F(ColumnFormTest, StandsBesideTheBeam)
{
    EXPECT_EQ(FrontName(), "Form18");
    EXPECT_EQ(Text(Front().windowTitle()), " Kordavan Column Criteria Form 1");
    EXPECT_EQ(FocusName(), "ColumnProj");
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), "Form1");
}

TEST_F(ColumnFormTest, EachFaceShowsItsOwn)
{
    const std::vector<std::string> shared{"cReacText", "cHTtext",      "cModeText",
                                          "cD1text",   "ColumnSketch", "CmdOK"};
    const std::vector<std::string> wood{"ResetKf",      "cD2text",      "cDurText",        "cWetButton",
                                        "ColIncised",   "CSolidButton", "FramingButton",   "cFcText",
                                        "cEtext",       "ColDurHelp",   "ColSpeciesCombo", "Loadpostbutton",
                                        "CNailedButton"};
    const std::vector<std::string> studs{"WindFrame", "StudOKCalcbutton", "StudReportbutton", "WindA"};
    const auto expectSeen = [this](const std::vector<std::string>& names, bool isSeen) {
        for (const std::string& name : names) {
            EXPECT_EQ(IsSeen(name), isSeen) << name;
        }
    };
    expectSeen(shared, true);
    expectSeen(wood, true);
    expectSeen(studs, false);
    Click("SteelButton");
    expectSeen(shared, true);
    expectSeen(wood, false);
    expectSeen(studs, false);
    Click("StudButton");
    expectSeen(shared, false);
    expectSeen(wood, false);
    expectSeen(studs, true);
    EXPECT_TRUE(IsSeen("ColumnProj"));
}

TEST_F(ColumnFormTest, EnterOfAnyBoxCalculates)
{
    EnterColumn();
    Box("cHTtext").setFocus();
    Key(Qt::Key_Return);
    EXPECT_EQ(FrontName(), "Form20");
    EXPECT_TRUE(user.Told.empty());
}

TEST_F(ColumnFormTest, EnterInTheSpeciesKeepsValuesThatWereTyped)
{
    EnterColumn();
    Type("cFcText", "1200");
    Find<QComboBox>("ColSpeciesCombo").setFocus();
    Key(Qt::Key_Return);
    EXPECT_EQ(FrontName(), "Form20");
    EXPECT_EQ(columns.Entry.cFcText, "1200");
}

TEST_F(ColumnFormTest, ANameTypedToItsEndBringsItsValues)
{
    EnterColumn();
    TypeSpecies("Hem-Fir #1");
    Key(Qt::Key_Return);
    EXPECT_EQ(FrontName(), "Form20");
    EXPECT_EQ(columns.Entry.cFcText, "1300");
    EXPECT_TRUE(user.Told.empty());
}

TEST_F(ColumnFormTest, SteelNeedsItsFourBoxesAlone)
{
    Click("SteelButton");
    Type("cReacText", "20000");
    Type("cHTtext", "10");
    Type("cD1text", "10");
    Key(Qt::Key_Return);
    EXPECT_EQ(FrontName(), "Form10");
    EXPECT_TRUE(user.Told.empty());
}

/// A check of the wood face: an entry of the good column that is spoilt, and where the message leads to.
struct RefusalCase {
    const char* Name;
    const char* Box;
    const char* Entered;
    const char* Focus;
};

class ColumnRefusalTest : public ColumnFormTest, public testing::WithParamInterface<RefusalCase> {};

TEST_P(ColumnRefusalTest, LeadsToItsBox)
{
    const RefusalCase& refusal = GetParam();
    EnterColumn();
    if (std::string(refusal.Box) == "ColSpeciesCombo") {
        TypeSpecies(refusal.Entered);
    } else {
        Type(refusal.Box, refusal.Entered);
    }
    const ColumnEntry before = columns.Entry;
    Click("CmdOK");
    EXPECT_EQ(FrontName(), "Form18");
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_EQ(user.Told.front().Kind, MessageKind::Refusal);
    EXPECT_EQ(user.Told.front().Focus, refusal.Focus);
    EXPECT_EQ(FocusName(), refusal.Focus);
    EXPECT_EQ(columns.Entry, before);
}

INSTANTIATE_TEST_SUITE_P(Checks, ColumnRefusalTest,
                         testing::Values(RefusalCase{"NoLoad", "cReacText", "", "cReacText"},
                                         RefusalCase{"NoHeight", "cHTtext", "0", "cHTtext"},
                                         RefusalCase{"NoKe", "cModeText", "", "cModeText"},
                                         RefusalCase{"NoD1", "cD1text", "", "cD1text"},
                                         RefusalCase{"D1OverHeight", "cD1text", "10.5", "cD1text"},
                                         RefusalCase{"NoD2", "cD2text", "", "cD2text"},
                                         RefusalCase{"NoDuration", "cDurText", "0", "cDurText"},
                                         RefusalCase{"D2OverHeight", "cD2text", "11", "cD2text"},
                                         RefusalCase{"NoFc", "cFcText", "", "cFcText"},
                                         RefusalCase{"FcTooLarge", "cFcText", "2500", "cFcText"},
                                         RefusalCase{"ETooSmall", "cEtext", "0.4", "cEtext"},
                                         RefusalCase{"NoSpecies", "ColSpeciesCombo", "", "ColSpeciesCombo"}),
                         CaseName);

TEST_F(ColumnFormTest, AZeroInPlaneD1ChecksItsBoxEvenWhereTheRestIsRefused)
{
    EnterColumn();
    Type("cD1text", "0");
    Type("cD2text", "");
    Click("CmdOK");
    EXPECT_EQ(FocusName(), "cD2text");
    EXPECT_TRUE(Find<QAbstractButton>("ResetKf").isChecked());
}

TEST_F(ColumnFormTest, NoReactionIsThereBeforeABeamIsCalculated)
{
    Click("ImportButton");
    EXPECT_EQ(Text(Find<QAbstractButton>("OptionR1").text()), "Reaction 1");
    EXPECT_EQ(FocusName(), "OptionR1");
    Click("CmdImportOK");
    EXPECT_THAT(user.Told, testing::ElementsAre(testing::Field(
                               &Message::Text, "Cannot import reaction. Data Record is empty.")));
    EXPECT_EQ(BoxText("cReacText"), "");
    Click("ImportButton");
    EXPECT_FALSE(IsSeen("ImportReaction"));
}

/// 300 plf over 12 ft: 1800 lb at each end.
TEST_F(ColumnFormTest, TakesAReactionOfTheBeam)
{
    CalculateBeam();
    Click("ImportButton");
    EXPECT_TRUE(Find<QAbstractButton>("OptionR1").isChecked());
    EXPECT_EQ(Text(Find<QAbstractButton>("OptionR2").text()), "Reaction 2: 1,800 lb");
    Key(Qt::Key_Return);
    EXPECT_EQ(BoxText("cReacText"), "1800");
    EXPECT_FALSE(IsSeen("ImportReaction"));
    EXPECT_EQ(FocusName(), "cReacText");

    Click("ImportButton");
    Click("OptionR2");
    Click("DblReaction");
    Click("CmdImportOK");
    EXPECT_EQ(BoxText("cReacText"), "3600");
}

TEST_F(ColumnFormTest, EnterBesideTheImportFrameCalculates)
{
    CalculateBeam();
    EnterColumn();
    Click("ImportButton");
    Box("cHTtext").setFocus();
    Key(Qt::Key_Return);
    EXPECT_EQ(FrontName(), "Form20");
    EXPECT_EQ(columns.Entry.cReacText, "4000");
}

/// NDS Supplement, table 4A: DF-L No. 2 has Fc 1350 psi and E 1.6 million psi; table 4D, Post and Timber: 700
/// and 1.3.
TEST_F(ColumnFormTest, ANameFillsInItsValues)
{
    Pick("DF-L #2");
    EXPECT_EQ(BoxText("cFcText"), "1350");
    EXPECT_EQ(BoxText("cEtext"), "1.6");
    TypeSpecies("My posts");
    EXPECT_EQ(columns.Entry.ColSpeciesCombo, "My posts");
    EXPECT_EQ(BoxText("cFcText"), "1350");
    Pick("Custom");
    EXPECT_EQ(BoxText("cFcText"), "");
    EXPECT_EQ(BoxText("cEtext"), "");
}

TEST_F(ColumnFormTest, AnotherGroupHasOtherNamesAndValues)
{
    Pick("DF-L #2");
    Click("TimberButton");
    EXPECT_EQ(Species(), "DF-L #2");
    EXPECT_EQ(BoxText("cFcText"), "700");
    EXPECT_EQ(BoxText("cEtext"), "1.3");
    auto& list = Find<QComboBox>("ColSpeciesCombo");
    EXPECT_LT(list.findText(QStringLiteral("DF-L Stud")), 0);
    EXPECT_EQ(Text(list.itemText(list.count() - 1)), "Custom");
    TypeSpecies("My posts");
    Click("FramingButton");
    EXPECT_EQ(Species(), "My posts");
    EXPECT_EQ(BoxText("cFcText"), "700");
}

TEST_F(ColumnFormTest, SouthernPineAmongDimensionLumberIsTold)
{
    EXPECT_EQ(LabelText("ColSpeciesNote"), "");
    Pick("Southern Pine #2");
    EXPECT_NE(LabelText("ColSpeciesNote"), "");
    Click("TimberButton");
    EXPECT_EQ(LabelText("ColSpeciesNote"), "");
}

/// Table 4A: Fc of Hem-Fir No. 1 is 1300 psi, and was 1350 psi in 1997.
TEST_F(ColumnFormTest, PickedValuesFollowTheEdition)
{
    Pick("Hem-Fir #1");
    EXPECT_EQ(BoxText("cFcText"), "1300");
    Choose("MnuCriteria");
    session.Nds = EditionFlags(Edition::Nds1997);
    Choose("MnuColumns");
    EXPECT_EQ(BoxText("cFcText"), "1350");
    EXPECT_EQ(LabelText("ColumnPanel"), "NDS 1997");
    Type("cFcText", "1234");
    Choose("MnuCriteria");
    session.Nds = EditionFlags(Edition::Nds2018);
    Choose("MnuColumns");
    EXPECT_EQ(BoxText("cFcText"), "1234");
}

TEST_F(ColumnFormTest, ANewColumnAsksAboutUnsavedWork)
{
    EnterColumn();
    Choose("MnuNewCol");
    EXPECT_EQ(BoxText("cReacText"), "");
    EXPECT_EQ(Species(), "");
    EXPECT_TRUE(user.Told.empty());

    Type("ColumnProj", "House");
    EnterColumn();
    Click("StudButton");
    Type("WindStudHt", "8");
    user.WillAnswer(false);
    Choose("MnuNewCol");
    EXPECT_TRUE(user.Told.back().IsRisky);
    EXPECT_EQ(BoxText("WindStudHt"), "8");
    EXPECT_EQ(BoxText("cReacText"), "4000");
    user.WillAnswer(true);
    Choose("MnuNewCol");
    EXPECT_EQ(BoxText("WindStudHt"), "");
    EXPECT_EQ(BoxText("cReacText"), "");
    EXPECT_EQ(BoxText("ColumnProj"), "House");
}

TEST_F(ColumnFormTest, KeepsValuesInAFile)
{
    Click("SavePostbutton");
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_EQ(FocusName(), "ColSpeciesCombo");
    EXPECT_TRUE(desktop.DialogTitles.empty());

    TypeSpecies("Local oak");
    Type("cFcText", "1000");
    Type("cEtext", "1.1");
    desktop.ChosenFile = desktop.PathOf("oak.CPV");
    Click("SavePostbutton");
    Pick("DF-L #2");
    Click("Loadpostbutton");
    EXPECT_EQ(Species(), "Local oak");
    EXPECT_EQ(BoxText("cFcText"), "1000");
    EXPECT_EQ(BoxText("cEtext"), "1.1");
    EXPECT_THAT(desktop.DialogTitles,
                testing::ElementsAre("Save Custom Values As", "Open Custom Post Value File"));
}

TEST_F(ColumnFormTest, AFileThatIsNoColumnRecordChangesNothing)
{
    EnterColumn();
    desktop.ChosenFile = desktop.PathOf("other.Col");
    std::ofstream(*desktop.ChosenFile) << "not a record";
    Choose("MnuLoadWdCol");
    Choose("MnuLdStlCol");
    EXPECT_EQ(user.Told.size(), 2U);
    EXPECT_EQ(FrontName(), "Form18");
    EXPECT_THAT(desktop.DialogTitles, testing::ElementsAre("Open Column Record", "Open Steel Column Record"));
}

TEST_F(ColumnFormTest, SketchSaysWhatIsTyped)
{
    const auto words = [this] { return Text(Find<QWidget>("ColumnSketch").accessibleDescription()); };
    EXPECT_THAT(words(), testing::HasSubstr("no height yet"));
    EnterColumn();
    EXPECT_THAT(words(), testing::AllOf(testing::HasSubstr("10 ft high"), testing::HasSubstr("4000 lb"),
                                        testing::HasSubstr("Plane D1: 5 ft unbraced, le = 60 in.")));
    Click("SteelButton");
    EXPECT_THAT(words(), testing::Not(testing::HasSubstr("D2")));
    EXPECT_FALSE(Find<QWidget>("ColumnSketch").grab().isNull());
}

}  // namespace
}  // namespace kordavan
