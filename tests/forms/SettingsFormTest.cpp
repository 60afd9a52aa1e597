#include <QComboBox>
#include <QFile>

#include "forms/WalkFixture.h"
#include "records/DefaultsFile.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

constexpr std::string_view Saved = "Your default settings were recorded and are ready for use.";
constexpr std::string_view OtherFont =
    "Please Note: Arial is the recommended printout font. You have selected another font that may or may not "
    "display well on your printouts.";
constexpr std::string_view LiveFault = "Please enter a valid numeric value for the Live Load PSF setting";
constexpr std::string_view TotalFault = "Please enter a valid numeric value for the Total Load PSF setting";

class SettingsFormTest : public WalkFixture {
protected:
    SettingsFormTest() { Open(); }

    void Open()
    {
        Choose("MnuDefaults");
        Settle();
    }

    std::string FrontName() { return Text(Front().objectName()); }
    std::string Title() { return Text(Front().windowTitle()); }
    bool IsChosen(const std::string& option) { return Find<QAbstractButton>(option).isChecked(); }

    void PickFrom(const std::string& name, const QString& item)
    {
        auto& list = Find<QComboBox>(name);
        list.setCurrentText(item);
        Q_EMIT list.activated(list.currentIndex());
        Q_EMIT list.textActivated(list.currentText());
    }

    std::string Shown(const std::string& name) { return Text(Find<QComboBox>(name).currentText()); }

    QByteArray File()
    {
        QFile file(Text(walk.DefaultsPath()));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    /// What the program would start with next.
    Session NextStart()
    {
        Session next;
        LoadDefaults(next, walk.DefaultsPath(), user);
        return next;
    }
};

TEST_F(SettingsFormTest, OpensOnTheChoicesOfAFirstRun)
{
    EXPECT_EQ(Title(), " Kordavan Default Settings");
    EXPECT_EQ(FocusName(), "DefHead1");
    EXPECT_TRUE(IsChosen("OptionNDS18"));
    EXPECT_EQ(Shown("DefCombo"), "Hem Fir / DF-Larch");
    EXPECT_EQ(Shown("FontCombo"), "Arial");
    EXPECT_TRUE(IsChosen("CenterFormCheckbox"));
    EXPECT_FALSE(IsChosen("DefaultPrinterCheckbox"));
    EXPECT_TRUE(IsChosen("defINGRADE"));
    EXPECT_FALSE(Find<QWidget>("defINGRADE").isVisible());
    EXPECT_EQ(LabelText("Label10"),
              "To temporarily change the NDS edition, select year above, and then select Close.");
    EXPECT_EQ(Text(Find<QComboBox>("DefCombo").itemText(9)), "Steel Beams");
}

TEST_F(SettingsFormTest, TakesNoMoreThanItsFieldsHold)
{
    const QString tooLong(200, QLatin1Char('x'));
    for (const auto& [box, most] : {std::pair{"DefHead1", 110}, {"DefHead2", 110}, {"DefInitials", 8}}) {
        Type(box, Text(tooLong));
        EXPECT_EQ(Box(box).text().size(), most) << box;
    }
}

struct EditionCase {
    const char* Name;  // of the option
    Edition InForce;
    const char* Title;
};

class EditionOptionTest : public SettingsFormTest, public testing::WithParamInterface<EditionCase> {};

TEST_P(EditionOptionTest, IsInForceAtOnceAndSavedOnlyBySaving)
{
    const EditionCase& option = GetParam();
    const QByteArray before = File();
    Click(option.Name);
    EXPECT_EQ(EditionInForce(session.Nds), option.InForce);
    EXPECT_EQ(IsChosen("defINGRADE"), option.InForce != Edition::Nds1997);
    Click("CmdCancel");
    EXPECT_EQ(Title(), option.Title);
    EXPECT_EQ(File(), before);

    Open();
    EXPECT_TRUE(IsChosen(option.Name));
    Click("CmdSave");
    EXPECT_EQ(Title(), option.Title);
    EXPECT_EQ(EditionInForce(NextStart().Nds), option.InForce);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Options, EditionOptionTest, testing::Values(
    EditionCase{"OptionNDS97", Edition::Nds1997, " Kordavan Criteria Form 1  NDS 1997"},
    EditionCase{"OptionNDS91", Edition::Nds2001, " Kordavan Criteria Form 1  NDS 2001"},
    EditionCase{"OptionNDS05", Edition::Nds2005, " Kordavan Criteria Form 1  NDS 2005"},
    EditionCase{"OptionNDS12", Edition::Nds2012, " Kordavan Criteria Form 1  NDS 2012"},
    EditionCase{"OptionNDS15", Edition::Nds2015, " Kordavan Criteria Form 1  NDS 2015"},
    EditionCase{"OptionNDS18", Edition::Nds2018, " Kordavan Criteria Form 1  NDS 2018"}),
    CaseName);
// clang-format on

TEST_F(SettingsFormTest, AnotherEditionWithdrawsTheSelectionAndTheSameDoesNot)
{
    session.Selection =
        SelectionRecord{.MemberChoice = "4x  10 DF-L #2", .MemberStatus = "OK", .RecordDate = "3/07/26"};
    Click("OptionNDS18");
    EXPECT_TRUE(session.Selection.has_value());
    Click("OptionNDS15");
    EXPECT_FALSE(session.Selection.has_value());
}

TEST_F(SettingsFormTest, ArrowsChooseAmongTheEditions)
{
    Find<QAbstractButton>("OptionNDS18").setFocus();
    Key(Qt::Key_Up);
    EXPECT_EQ(EditionInForce(session.Nds), Edition::Nds2015);
}

TEST_F(SettingsFormTest, AnEditionLeavesTheOtherEntriesAsTyped)
{
    Type("DefHead1", "Hilltop Engineering");
    Click("OptionNDS12");
    EXPECT_EQ(BoxText("DefHead1"), "Hilltop Engineering");
}

TEST_F(SettingsFormTest, SavesEverythingForTheNextStart)
{
    Type("DefHead1", "Hilltop Engineering");
    Type("DefHead2", "12 Mill Road");
    Type("DefInitials", "JW");
    PickFrom("DefCombo", QStringLiteral("Southern Pine"));
    Click("OptionNDS15");
    for (const std::string check : {"Def600", "CenterFormCheckbox", "DefaultPrinterCheckbox", "Def50ksi"}) {
        Click(check);
    }
    Type("Livedefault[4]", "62.5");
    Type("TotalLoadDefault[4]", "80");
    Click("CmdSave");
    EXPECT_THAT(user.Told, ElementsAre(AlertOf(Saved)));
    EXPECT_EQ(FrontName(), "Form1");

    const Session next = NextStart();
    EXPECT_EQ(next.Header.Heading1, "Hilltop Engineering");
    EXPECT_EQ(next.Header.Heading2, "12 Mill Road");
    EXPECT_EQ(next.Header.Initialbox, "JW");
    EXPECT_EQ(next.Problem.Combo1, SpeciesGroup::SouthernPine);
    EXPECT_EQ(EditionInForce(next.Nds), Edition::Nds2015);
    EXPECT_TRUE(next.HighDPI);
    EXPECT_FALSE(next.CenterForms);
    EXPECT_TRUE(next.RestoreDefaultPrinter);
    EXPECT_TRUE(next.Problem.ksi50);
    EXPECT_EQ(next.PrintFont, "Arial");
    EXPECT_EQ(next.Defaults.LoadPairs[4], (LoadPair{.Live = "62.5", .Total = "80"}));
}

TEST_F(SettingsFormTest, AppliesToTheCriteriaAtOnce)
{
    PickFrom("DefCombo", QStringLiteral("SPF / SPF South"));
    Click("OptionNDS05");
    Type("Livedefault[0]", "40");
    Type("TotalLoadDefault[0]", "55");
    Type("Livedefault[1]", "25");
    Type("TotalLoadDefault[1]", "40");
    Key(Qt::Key_Return);
    ASSERT_EQ(FrontName(), "Form1");
    EXPECT_EQ(Title(), " Kordavan Criteria Form 1  NDS 2005");
    EXPECT_EQ(Shown("Combo1"), "SPF / SPF South");
    Click("PLFspin");
    EXPECT_EQ(BoxText("LUNIF") + " " + BoxText("UNIF"), "40 55");
    Click("PLFspin");
    EXPECT_EQ(BoxText("LUNIF") + " " + BoxText("UNIF"), "25 40");
}

TEST_F(SettingsFormTest, SteelTakesTheEditionOutOfTheTitle)
{
    PickFrom("DefCombo", QStringLiteral("Steel Beams"));
    Click("Def50ksi");
    Click("CmdSave");
    EXPECT_EQ(Title(), " Kordavan Criteria Form 1");
    EXPECT_TRUE(session.Problem.ksi50);
}

TEST_F(SettingsFormTest, ClosingForgetsWhatWasEntered)
{
    const QByteArray before = File();
    Type("DefHead1", "Hilltop Engineering");
    Type("Livedefault[0]", "40");
    PickFrom("DefCombo", QStringLiteral("Southern Pine"));
    Click("Def600");
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), "Form1");
    EXPECT_EQ(File(), before);
    EXPECT_FALSE(session.HighDPI);
    Open();
    EXPECT_EQ(BoxText("DefHead1") + BoxText("Livedefault[0]"), "");
    EXPECT_EQ(Shown("DefCombo"), "Hem Fir / DF-Larch");
    EXPECT_FALSE(IsChosen("Def600"));
}

TEST_F(SettingsFormTest, LeavesTheEntriesOfTheBeamAlone)
{
    Key(Qt::Key_Escape);
    Type("Span", "14");
    Type("UNIF", "300");
    Open();
    Click("OptionNDS12");
    Key(Qt::Key_Return);
    EXPECT_EQ(BoxText("Span") + " " + BoxText("UNIF"), "14 300");
}

struct LoadTextCase {
    const char* Name;
    const char* Box;
    const char* Typed;
    std::string_view Fault;  // empty where the text may stay
};

class LoadTextTest : public SettingsFormTest, public testing::WithParamInterface<LoadTextCase> {};

TEST_P(LoadTextTest, IsJudgedOnLeavingItsBox)
{
    const LoadTextCase& load = GetParam();
    Type(load.Box, load.Typed);
    EXPECT_THAT(user.Told, IsEmpty()) << "while it is typed";
    Key(Qt::Key_Tab);
    EXPECT_EQ(BoxText(load.Box), load.Typed);
    if (load.Fault.empty()) {
        EXPECT_THAT(user.Told, IsEmpty());
        EXPECT_NE(FocusName(), load.Box);
    } else {
        EXPECT_THAT(user.Told, ElementsAre(AlertOf(load.Fault, load.Box)));
        EXPECT_EQ(FocusName(), load.Box);
        EXPECT_EQ(Text(Box(load.Box).selectedText()), load.Typed);
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, LoadTextTest, testing::Values(
    LoadTextCase{"Number", "Livedefault[0]", "12.5", {}},
    LoadTextCase{"Zero", "TotalLoadDefault[3]", "0", {}},
    LoadTextCase{"Empty", "Livedefault[2]", "", {}},
    LoadTextCase{"BelowZero", "Livedefault[2]", "-1", LiveFault},
    LoadTextCase{"Word", "TotalLoadDefault[4]", "forty", TotalFault},
    LoadTextCase{"NumberWithUnit", "TotalLoadDefault[0]", "55 psf", TotalFault}),
    CaseName);
// clang-format on

TEST_F(SettingsFormTest, ClickingAwayFromAFaultBringsTheCaretBack)
{
    Type("Livedefault[0]", "-");
    QTest::mouseClick(&Box("TotalLoadDefault[3]"), Qt::LeftButton);
    Settle();
    EXPECT_THAT(user.Told, ElementsAre(AlertOf(LiveFault, "Livedefault[0]")));
    EXPECT_EQ(FocusName(), "Livedefault[0]");
}

TEST_F(SettingsFormTest, LeavingAFaultByAMnemonicBringsTheCaretBack)
{
    Type("Livedefault[0]", "-");
    Key(Qt::Key_K, Qt::AltModifier);
    EXPECT_THAT(user.Told, ElementsAre(AlertOf(LiveFault, "Livedefault[0]")));
    EXPECT_EQ(FocusName(), "Livedefault[0]");
}

TEST_F(SettingsFormTest, TwoFaultsAreToldOneByOne)
{
    session.Defaults.LoadPairs[0] = {.Live = "-1", .Total = "-2"};
    Front().Activate();
    Box("Livedefault[0]").setFocus();
    Key(Qt::Key_Tab);
    EXPECT_THAT(user.Told, ElementsAre(AlertOf(LiveFault, "Livedefault[0]")));
    Type("Livedefault[0]", "10");
    Key(Qt::Key_Tab);
    EXPECT_EQ(user.Told.size(), 1U);
    Key(Qt::Key_Tab);
    EXPECT_EQ(user.Told.size(), 2U);
    EXPECT_EQ(FocusName(), "TotalLoadDefault[0]");
}

TEST_F(SettingsFormTest, SavingWithAFaultTellsItOnce)
{
    const QByteArray before = File();
    Type("TotalLoadDefault[1]", "x");
    Click("CmdSave");
    Settle();
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(TotalFault, "TotalLoadDefault[1]")));
    EXPECT_EQ(FrontName(), "Form13");
    EXPECT_EQ(FocusName(), "TotalLoadDefault[1]");
    EXPECT_EQ(File(), before);
}

TEST_F(SettingsFormTest, SavingWithTwoFaultsTellsTheFirst)
{
    session.Defaults.LoadPairs[0] = {.Live = "-1", .Total = "-2"};
    Front().Activate();
    Box("TotalLoadDefault[0]").setFocus();
    Key(Qt::Key_Return);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(LiveFault, "Livedefault[0]")));
    EXPECT_EQ(FocusName(), "Livedefault[0]");
}

TEST_F(SettingsFormTest, AFaultDoesNotHoldBackWhoCloses)
{
    Type("Livedefault[1]", "x");
    Click("CmdCancel");
    Settle();
    EXPECT_EQ(FrontName(), "Form1");
    Open();
    Type("Livedefault[1]", "x");
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), "Form1");
    EXPECT_THAT(user.Told, IsEmpty());
}

TEST_F(SettingsFormTest, WarnsOfAnotherFontAndKeepsIt)
{
    Find<QComboBox>("FontCombo").addItem(QStringLiteral("Another Font"));
    PickFrom("FontCombo", QStringLiteral("Another Font"));
    Click("CmdSave");
    EXPECT_THAT(user.Told, ElementsAre(AlertOf(OtherFont), AlertOf(Saved)));
    EXPECT_EQ(NextStart().PrintFont, "Another Font");
}

TEST_F(SettingsFormTest, ShowsAndKeepsAFontThatTheSystemHasNot)
{
    session.Defaults.FontCombo = "Font of Another Desk";
    Front().Activate();
    EXPECT_EQ(Shown("FontCombo"), "Font of Another Desk");
    Click("CmdSave");
    EXPECT_EQ(NextStart().PrintFont, "Font of Another Desk");
}

TEST_F(SettingsFormTest, OffersNoFontThatTheFileWouldCutOff)
{
    const auto& fonts = Find<QComboBox>("FontCombo");
    for (int k = 0; k < fonts.count(); ++k) {
        EXPECT_LE(fonts.itemText(k).size(), 30) << Text(fonts.itemText(k));
    }
}

TEST_F(SettingsFormTest, ExplainsItself)
{
    Click("Command3D1");
    EXPECT_THAT(user.Told,
                ElementsAre(testing::AllOf(
                    Field("Title", &Message::Title, "DEFAULT SETTINGS"),
                    Field("Icon", &Message::Icon, MessageIcon::Information),
                    AlertOf("Enter a report header and make selections that you want automatically set when "
                            "you start Kordavan.\n\nThese settings are kept in a file called Kordavan201.ini "
                            "located in your Kordavan Software Directory."))));
}

TEST_F(SettingsFormTest, ClosingTheWindowAsksToExit)
{
    user.WillAnswer(false);
    Front().close();
    EXPECT_EQ(user.Told.size(), 1U);
    EXPECT_TRUE(Front().isVisible());
    EXPECT_FALSE(desktop.HasEnded);
}

TEST_F(SettingsFormTest, StaysWhereTheFileCannotBeWritten)
{
    ASSERT_TRUE(desktop.Folder.remove());
    Type("DefHead1", "Hilltop Engineering");
    Click("CmdSave");
    EXPECT_EQ(user.Told.size(), 1U);
    EXPECT_EQ(FrontName(), "Form13");
    EXPECT_EQ(BoxText("DefHead1"), "Hilltop Engineering");
    EXPECT_EQ(session.Header.Heading1, "");
}

TEST_F(SettingsFormTest, TabRunsDownItsColumns)
{
    std::vector<std::string> expected{
        "DefHead1",   "DefHead2", "DefInitials",        "DefCombo",
        "FontCombo",  "Def600",   "CenterFormCheckbox", "DefaultPrinterCheckbox",
        "OptionNDS18"};
    for (std::size_t k = 0; k < LoadPairCount; ++k) {
        expected.push_back(BoxName("Livedefault", k));
        expected.push_back(BoxName("TotalLoadDefault", k));
    }
    expected.insert(expected.end(), {"Def50ksi", "CmdCancel", "CmdSave"});
    for (const std::string& stop : expected) {
        EXPECT_EQ(FocusName(), stop);
        Key(Qt::Key_Tab);
    }
    EXPECT_EQ(FocusName(), expected.front());
}

}  // namespace
}  // namespace kordavan
