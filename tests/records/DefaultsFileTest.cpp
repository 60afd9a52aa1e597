#include "records/DefaultsFile.h"

#include <gmock/gmock.h>

#include <limits>

#include "design/NewBeam.h"
#include "records/RecordBytes.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

constexpr std::string_view AnotherKindText =
    "A new Default Values file has been created for you.  You may set your default preferences at the menu "
    "bar of Form 1 by selecting OPTIONS, select SET DEFAULTS, and fill in your preferences.   PLEASE NOTE: "
    "ARIAL font is recommended for print-outs.";
constexpr std::string_view OtherFontText =
    "Please Note: Arial is the recommended printout font. You have selected another font that may or may not "
    "display well on your printouts.";
constexpr std::string_view DefaultsSavedText = "Your default settings were recorded and are ready for use.";

/// The right tag, blank texts, all else 0.
RecordBytes BlankDefaults()
{
    RecordBytes bytes(322);
    bytes.Short(0, 4321).Blanks(2, 228).Blanks(236, 30);
    return bytes;
}

RecordBytes FilledDefaults()
{
    RecordBytes bytes = BlankDefaults();
    bytes.Text(2, "Timber & Sons").Text(112, "Caf\xE9 Street 5").Text(222, "JD");
    bytes.On(230).Short(232, 5).On(234).Text(236, "Arial");
    bytes.Float(266, 40).Float(270, 25).Float(274, 12.5F).Float(282, 100);
    bytes.Float(286, 52).Float(290, 40).Float(294, 22.25F).Float(302, 115);
    bytes.On(306).On(314).Short(318, 1).Short(320, 1);
    return bytes;
}

DefaultSettings FilledSettings()
{
    DefaultSettings settings;
    settings.DefHead1 = "Timber & Sons";
    settings.DefHead2 = "Caf\u00E9 Street 5";
    settings.DefInitials = "JD";
    settings.DefCombo = 5;
    settings.Def600 = true;
    settings.FontCombo = "Arial";
    settings.LoadPairs = {{{"40", "52"}, {"25", "40"}, {"12.5", "22.25"}, {"0", "0"}, {"100", "115"}}};
    settings.Def50ksi = true;
    settings.CenterFormCheckbox = true;
    settings.DefaultPrinterCheckbox = true;
    return settings;
}

void ExpectSettings(const DefaultSettings& actual, const DefaultSettings& expected)
{
    EXPECT_EQ(actual.DefHead1, expected.DefHead1);
    EXPECT_EQ(actual.DefHead2, expected.DefHead2);
    EXPECT_EQ(actual.DefInitials, expected.DefInitials);
    EXPECT_EQ(actual.DefCombo, expected.DefCombo);
    EXPECT_EQ(actual.Def600, expected.Def600);
    EXPECT_EQ(actual.FontCombo, expected.FontCombo);
    for (std::size_t k = 0; k < LoadPairCount; ++k) {
        EXPECT_EQ(actual.LoadPairs[k].Live, expected.LoadPairs[k].Live) << k;
        EXPECT_EQ(actual.LoadPairs[k].Total, expected.LoadPairs[k].Total) << k;
    }
    EXPECT_EQ(actual.Def50ksi, expected.Def50ksi);
    EXPECT_EQ(actual.CenterFormCheckbox, expected.CenterFormCheckbox);
    EXPECT_EQ(actual.DefaultPrinterCheckbox, expected.DefaultPrinterCheckbox);
}

/// Loads the defaults from these bytes into the session.
void LoadBytes(std::string_view bytes, Session& session, ScriptedUser& user)
{
    const TemporaryFolder folder;
    PutFile(folder.Path(DefaultsFileName), bytes);
    LoadDefaults(session, folder.Path(DefaultsFileName), user);
    EXPECT_EQ(FileBytes(folder.Path(DefaultsFileName)), bytes);  // loading never writes into a file
    EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(LoadDefaults, TakesEveryChoice)
{
    Session session;
    ScriptedUser user;
    LoadBytes(FilledDefaults().All(), session, user);
    EXPECT_THAT(user.Told, IsEmpty());
    ExpectSettings(session.Defaults, FilledSettings());
    EXPECT_EQ(session.Header.Heading1, "Timber & Sons");
    EXPECT_EQ(session.Header.Heading2, "Caf\u00E9 Street 5");
    EXPECT_EQ(session.Header.Initialbox, "JD");
    EXPECT_EQ(session.Problem.Combo1, SpeciesGroup::SouthernPine);
    EXPECT_TRUE(session.Problem.INGRADE);
    EXPECT_TRUE(session.Problem.ksi50);
    EXPECT_TRUE(session.HighDPI);
    EXPECT_EQ(session.PrintFont, "Arial");
    EXPECT_TRUE(session.CenterForms);
    EXPECT_TRUE(session.RestoreDefaultPrinter);
    EXPECT_EQ(EditionInForce(session.Nds), Edition::Nds2015);
    EXPECT_FALSE(HasUnsavedEntries(session));
}

TEST(LoadDefaults, TakesAShortFileAsFarAsItGoes)
{
    Session session;
    ScriptedUser user;
    LoadBytes(FilledDefaults().All().substr(0, 273), session, user);
    EXPECT_THAT(user.Told, IsEmpty());
    EXPECT_EQ(session.Defaults.DefInitials, "JD");
    EXPECT_EQ(session.Defaults.LoadPairs[0].Live, "40");
    EXPECT_EQ(session.Defaults.LoadPairs[1].Live, "0");
    EXPECT_FALSE(session.Defaults.Def50ksi);
}

void ExpectFirstRun(const Session& session)
{
    EXPECT_EQ(EditionInForce(session.Nds), Edition::Nds2018);
    EXPECT_FALSE(session.Nds.Nds2005);
    EXPECT_TRUE(session.CenterForms);
    DefaultSettings expected;
    expected.CenterFormCheckbox = true;
    ExpectSettings(session.Defaults, expected);
    EXPECT_EQ(session.Header.Heading1, "");
    EXPECT_EQ(session.Problem.Combo1, SpeciesGroup::HemFirDouglasFir);
    EXPECT_FALSE(session.RestoreDefaultPrinter);
    EXPECT_FALSE(HasUnsavedEntries(session));
}

TEST(LoadDefaults, OfAFirstRunMakesAnEmptyFileAndSaysNothing)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path(DefaultsFileName);
    for (int run = 1; run <= 2; ++run) {  // the second finds the empty file of the first
        Session session;
        session.Nds = EditionFlags(Edition::Nds2005);
        ScriptedUser user;
        LoadDefaults(session, path, user);
        EXPECT_THAT(user.Told, IsEmpty());
        ExpectFirstRun(session);
        EXPECT_EQ(FileBytes(path), "");
        EXPECT_EQ(folder.FileCount(), 1U);
    }
}

TEST(LoadDefaults, WhereNoFileCanBeMadeSaysNothingEither)
{
    const TemporaryFolder folder;
    Session session;
    ScriptedUser user;
    LoadDefaults(session, folder.Path("gone/settings.ini"), user);
    EXPECT_THAT(user.Told, IsEmpty());
    ExpectFirstRun(session);
}

TEST(LoadDefaults, TellsAFileThatCannotBeRead)
{
    const TemporaryFolder folder;
    Session session;
    ScriptedUser user;
    LoadDefaults(session, folder.Path(), user);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf("This file could not be read:\n    " + folder.Path() +
                                                 "\nIs a directory")));
    ExpectFirstRun(session);
}

struct OtherTagCase {
    std::string_view Name;
    int Tag;
};

class OtherTagTest : public testing::TestWithParam<OtherTagCase> {};

TEST_P(OtherTagTest, IsToldAndNothingIsTaken)
{
    Session session;
    session.Nds = EditionFlags(Edition::Nds2005);
    session.Header.Heading1 = "as it was";
    ScriptedUser user;
    LoadBytes(FilledDefaults().Short(0, GetParam().Tag).All(), session, user);
    EXPECT_THAT(user.Told, ElementsAre(AllOf(RefusalOf(AnotherKindText),
                                             Field(&Message::Icon, MessageIcon::Information))));
    ExpectSettings(session.Defaults, DefaultSettings{});
    EXPECT_EQ(session.Header.Heading1, "as it was");
    EXPECT_EQ(session.Problem.Combo1, SpeciesGroup::HemFirDouglasFir);
    EXPECT_EQ(EditionInForce(session.Nds), Edition::Nds2005);
    EXPECT_FALSE(session.CenterForms);
    EXPECT_FALSE(session.HighDPI);
}

INSTANTIATE_TEST_SUITE_P(Tags, OtherTagTest,
                         testing::Values(OtherTagCase{"none", 0}, OtherTagCase{"criteria", -2007},
                                         OtherTagCase{"data record", 555}, OtherTagCase{"below", 4320},
                                         OtherTagCase{"negative", -4321}),
                         CaseName);

struct DefaultEditionCase {
    std::string_view Name;
    bool InGrade;
    std::vector<std::size_t> Options;  // offsets of the options that are on
    Edition InForce;
};

class DefaultEditionTest : public testing::TestWithParam<DefaultEditionCase> {};

TEST_P(DefaultEditionTest, IsThatOfTheOptions)
{
    const DefaultEditionCase& c = GetParam();
    RecordBytes bytes = BlankDefaults();
    bytes.Short(230, c.InGrade ? -1 : 0);
    for (const std::size_t offset : c.Options) {
        bytes.On(offset);
    }
    Session session;
    session.Problem.INGRADE = false;
    ScriptedUser user;
    LoadBytes(bytes.All(), session, user);
    EXPECT_EQ(EditionInForce(session.Nds), c.InForce);
    EXPECT_EQ(session.Nds.Nds1997, !c.InGrade);
    EXPECT_TRUE(session.Problem.INGRADE);
}

INSTANTIATE_TEST_SUITE_P(Options, DefaultEditionTest,
                         testing::Values(DefaultEditionCase{"2005", true, {310}, Edition::Nds2005},
                                         DefaultEditionCase{"2012", true, {312}, Edition::Nds2012},
                                         DefaultEditionCase{"2015", true, {314}, Edition::Nds2015},
                                         DefaultEditionCase{"2018", true, {316}, Edition::Nds2018},
                                         DefaultEditionCase{"none", true, {}, Edition::Nds2001},
                                         DefaultEditionCase{"1997", false, {}, Edition::Nds1997},
                                         DefaultEditionCase{
                                             "1997 beside 2018", false, {316}, Edition::Nds1997}),
                         CaseName);

struct SwitchCase {
    std::string_view Name;
    int CenterFormCheckbox;
    int DefaultPrinterCheckbox;
    bool Centers;   // from off
    bool Restores;  // from off
    bool CentersFromOn;
    bool RestoresFromOn;
};

class SwitchTest : public testing::TestWithParam<SwitchCase> {};

TEST_P(SwitchTest, OfThePrinterIsClearedByTheOtherBox)
{
    const SwitchCase& c = GetParam();
    const RecordBytes bytes =
        BlankDefaults().Short(318, c.CenterFormCheckbox).Short(320, c.DefaultPrinterCheckbox);
    for (const bool wasOn : {false, true}) {
        Session session;
        session.CenterForms = session.RestoreDefaultPrinter = wasOn;
        ScriptedUser user;
        LoadBytes(bytes.All(), session, user);
        EXPECT_EQ(session.CenterForms, wasOn ? c.CentersFromOn : c.Centers) << wasOn;
        EXPECT_EQ(session.RestoreDefaultPrinter, wasOn ? c.RestoresFromOn : c.Restores) << wasOn;
    }
}

INSTANTIATE_TEST_SUITE_P(Boxes, SwitchTest,
                         testing::Values(SwitchCase{"both off", 0, 0, false, false, false, false},
                                         SwitchCase{"printer", 0, 1, false, true, false, true},
                                         SwitchCase{"centring", 1, 0, true, false, true, true},
                                         SwitchCase{"both on", 1, 1, true, true, true, true},
                                         SwitchCase{"printer unclear", 0, 2, false, false, false, false},
                                         SwitchCase{"centring unclear", 2, 0, false, false, true, true},
                                         SwitchCase{"both flags", -1, -1, false, false, true, true}),
                         CaseName);

TEST(LoadDefaults, TakesNoMaterialThatDoesNotExist)
{
    for (const int absurd : {-1, 10, 32767, -32768}) {
        Session session;
        ScriptedUser user;
        LoadBytes(FilledDefaults().Short(232, absurd).All(), session, user);
        EXPECT_EQ(session.Problem.Combo1, SpeciesGroup::HemFirDouglasFir) << absurd;
        EXPECT_EQ(session.Defaults.DefCombo, 0) << absurd;
        EXPECT_EQ(session.Header.Initialbox, "JD");  // the rest is taken
    }
}

TEST(LoadDefaults, TakesNoLoadThatIsNoNumber)
{
    constexpr float infinite = std::numeric_limits<float>::infinity();
    constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();
    Session session;
    ScriptedUser user;
    LoadBytes(FilledDefaults().Float(266, noNumber).Float(270, infinite).Float(286, -infinite).All(), session,
              user);
    EXPECT_EQ(session.Defaults.LoadPairs[0], (LoadPair{"", ""}));
    EXPECT_EQ(session.Defaults.LoadPairs[1], (LoadPair{"", "40"}));
    EXPECT_EQ(session.Defaults.LoadPairs[2], (LoadPair{"12.5", "22.25"}));
}

TEST(SaveDefaults, WritesEveryChoiceWithTheEditionInForce)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path(DefaultsFileName);
    Session session;
    session.Nds = EditionFlags(Edition::Nds2015);
    ScriptedUser user;
    EXPECT_EQ(SaveDefaults(session, FilledSettings(), path, user), Outcome::Done);
    EXPECT_THAT(user.Told, ElementsAre(AlertOf(DefaultsSavedText)));
    EXPECT_EQ(FirstDifference(FileBytes(path), FilledDefaults().All()), "");
    EXPECT_EQ(folder.FileCount(), 1U);
}

struct OldFileCase {
    std::string_view Name;
    std::string Old;
    std::string New;
};

class OldDefaultsTest : public testing::TestWithParam<OldFileCase> {};

TEST_P(OldDefaultsTest, KeepTheirReservedBytesAndWhatFollows)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path(DefaultsFileName);
    PutFile(path, GetParam().Old);
    Session session;
    session.Nds = EditionFlags(Edition::Nds2015);
    ScriptedUser user;
    EXPECT_EQ(SaveDefaults(session, FilledSettings(), path, user), Outcome::Done);
    EXPECT_EQ(FirstDifference(FileBytes(path), GetParam().New), "");
}

INSTANTIATE_TEST_SUITE_P(
    Files, OldDefaultsTest,
    testing::Values(OldFileCase{"of its kind", BlankDefaults().Text(308, "\xAB\xCD").On(310).All(),
                                FilledDefaults().Text(308, "\xAB\xCD").All()},
                    OldFileCase{"with more behind", BlankDefaults().Text(308, "\xAB\xCD").All() + "more",
                                FilledDefaults().Text(308, "\xAB\xCD").All() + "more"},
                    OldFileCase{"of another kind", BlankDefaults().Short(0, 555).Text(308, "xx").All(),
                                FilledDefaults().All()},
                    OldFileCase{"empty", "", FilledDefaults().All()},
                    OldFileCase{"cut", BlankDefaults().All().substr(0, 309), FilledDefaults().All()}),
    CaseName);

struct SavedEditionCase {
    std::string_view Name;
    Edition InForce;
    bool InGrade;
    std::size_t Option;  // the offset of the one that is on; 0 for none
};

class SavedEditionTest : public testing::TestWithParam<SavedEditionCase> {};

TEST_P(SavedEditionTest, IsInForceAgainAtTheNextStart)
{
    const SavedEditionCase& c = GetParam();
    const TemporaryFolder folder;
    const std::string path = folder.Path(DefaultsFileName);
    Session session;
    session.Nds = EditionFlags(c.InForce);
    DefaultSettings settings;
    settings.FontCombo = "Arial";
    ScriptedUser user;
    EXPECT_EQ(SaveDefaults(session, settings, path, user), Outcome::Done);
    EXPECT_EQ(EditionInForce(session.Nds), c.InForce);
    RecordBytes expected = BlankDefaults();
    expected.Short(230, c.InGrade ? -1 : 0).Text(236, "Arial");
    if (c.Option != 0) {
        expected.On(c.Option);
    }
    EXPECT_EQ(FirstDifference(FileBytes(path), expected.All()), "");
    Session next;
    LoadDefaults(next, path, user);
    EXPECT_EQ(EditionInForce(next.Nds), c.InForce);
}

INSTANTIATE_TEST_SUITE_P(Editions, SavedEditionTest,
                         testing::Values(SavedEditionCase{"1997", Edition::Nds1997, false, 0},
                                         SavedEditionCase{"2001", Edition::Nds2001, true, 0},
                                         SavedEditionCase{"2005", Edition::Nds2005, true, 310},
                                         SavedEditionCase{"2012", Edition::Nds2012, true, 312},
                                         SavedEditionCase{"2015", Edition::Nds2015, true, 314},
                                         SavedEditionCase{"2018", Edition::Nds2018, true, 316}),
                         CaseName);

struct FontCase {
    std::string_view Font;
    bool IsRecommended;
};

class FontTest : public testing::TestWithParam<FontCase> {};

TEST_P(FontTest, OtherThanArialIsSavedAfterAWarning)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path(DefaultsFileName);
    DefaultSettings settings;
    settings.FontCombo = GetParam().Font;
    Session session;
    ScriptedUser user;
    EXPECT_EQ(SaveDefaults(session, settings, path, user), Outcome::Done);
    if (GetParam().IsRecommended) {
        EXPECT_THAT(user.Told, ElementsAre(AlertOf(DefaultsSavedText)));
    } else {
        EXPECT_THAT(user.Told, ElementsAre(AlertOf(OtherFontText), AlertOf(DefaultsSavedText)));
    }
    EXPECT_EQ(session.PrintFont, GetParam().Font);
    const std::string blanks(30 - GetParam().Font.size(), ' ');
    EXPECT_EQ(FileBytes(path).substr(236, 30), std::string(GetParam().Font) + blanks);
}

INSTANTIATE_TEST_SUITE_P(Fonts, FontTest,
                         testing::Values(FontCase{"Arial", true}, FontCase{"ARIAL", true},
                                         FontCase{"arial", true}, FontCase{"aRIAL", false},
                                         FontCase{"Arial Narrow", false}, FontCase{"Courier", false},
                                         FontCase{"", false}),
                         CaseName);

TEST(SaveDefaults, AppliesTheChoicesAtOnce)
{
    const TemporaryFolder folder;
    Session session;
    session.Problem.INGRADE = false;
    session.Problem.Incised = true;
    session.Selection = SelectionRecord{"4x  10 DF-L #2", "OK", "1/02/26"};
    ScriptedUser user;
    EXPECT_EQ(SaveDefaults(session, FilledSettings(), folder.Path(DefaultsFileName), user), Outcome::Done);
    ExpectSettings(session.Defaults, FilledSettings());
    EXPECT_EQ(session.Header.Heading2, "Caf\u00E9 Street 5");
    EXPECT_EQ(session.Header.Initialbox, "JD");
    EXPECT_EQ(session.Problem.Combo1, SpeciesGroup::SouthernPine);
    EXPECT_TRUE(session.Problem.INGRADE);
    EXPECT_FALSE(session.Problem.Incised);
    EXPECT_FALSE(session.Problem.ksi50);  // steel alone takes it
    EXPECT_TRUE(session.HighDPI);
    EXPECT_TRUE(session.CenterForms);
    EXPECT_TRUE(session.RestoreDefaultPrinter);
    EXPECT_FALSE(session.Selection);
}

TEST(SaveDefaults, SwitchesOffWhatIsOffAndGivesSteelItsGrade)
{
    const TemporaryFolder folder;
    Session session;
    session.CenterForms = session.RestoreDefaultPrinter = session.HighDPI = true;
    DefaultSettings settings;
    settings.FontCombo = "Arial";
    settings.DefCombo = 9;
    settings.Def50ksi = true;
    ScriptedUser user;
    EXPECT_EQ(SaveDefaults(session, settings, folder.Path(DefaultsFileName), user), Outcome::Done);
    EXPECT_FALSE(session.CenterForms);
    EXPECT_FALSE(session.RestoreDefaultPrinter);
    EXPECT_FALSE(session.HighDPI);
    EXPECT_EQ(session.Problem.Combo1, SpeciesGroup::Steel);
    EXPECT_TRUE(session.Problem.ksi50);
}

TEST(SaveDefaults, LeavesFileAndSessionAtAFault)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("gone/settings.ini");
    Session session;
    session.Header.Heading1 = "as it was";
    ScriptedUser user;
    EXPECT_EQ(SaveDefaults(session, FilledSettings(), path, user), Outcome::Refused);
    EXPECT_THAT(user.Told,
                ElementsAre(RefusalOf("This file could not be saved; what stood in it is unchanged:\n    " +
                                      path + "\nNo such file or directory")));
    ExpectSettings(session.Defaults, DefaultSettings{});
    EXPECT_EQ(session.Header.Heading1, "as it was");
    EXPECT_EQ(session.Problem.Combo1, SpeciesGroup::HemFirDouglasFir);
    EXPECT_FALSE(session.CenterForms);
}

TEST(SaveDefaults, RefusesALoadThatIsNoNumber)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path(DefaultsFileName);
    PutFile(path, "old");
    Session session;
    DefaultSettings settings = FilledSettings();
    settings.LoadPairs[2].Live = "4o";
    ScriptedUser user;
    EXPECT_EQ(SaveDefaults(session, settings, path, user), Outcome::Refused);
    settings.LoadPairs[2].Live = "40";
    settings.LoadPairs[4].Total = "-5";
    EXPECT_EQ(SaveDefaults(session, settings, path, user), Outcome::Refused);
    EXPECT_THAT(user.Told,
                ElementsAre(RefusalOf("Please enter a valid numeric value for the Live Load PSF setting",
                                      "Livedefault[2]"),
                            RefusalOf("Please enter a valid numeric value for the Total Load PSF setting",
                                      "TotalLoadDefault[4]")));
    EXPECT_EQ(FileBytes(path), "old");
    ExpectSettings(session.Defaults, DefaultSettings{});
}

struct LoadPairCase {
    std::string_view Text;
    bool Stands;
};

class LoadPairFaultTest : public testing::TestWithParam<LoadPairCase> {};

TEST_P(LoadPairFaultTest, NamesTheSideOfTheBox)
{
    const auto [text, stands] = GetParam();
    EXPECT_EQ(LoadPairFault(text, LoadPairSide::Live),
              stands ? "" : "Please enter a valid numeric value for the Live Load PSF setting");
    EXPECT_EQ(LoadPairFault(text, LoadPairSide::Total),
              stands ? "" : "Please enter a valid numeric value for the Total Load PSF setting");
}

INSTANTIATE_TEST_SUITE_P(Texts, LoadPairFaultTest,
                         testing::Values(LoadPairCase{"", true}, LoadPairCase{"0", true},
                                         LoadPairCase{"40", true}, LoadPairCase{"12.5", true},
                                         LoadPairCase{".5", true}, LoadPairCase{"3e38", true},
                                         LoadPairCase{"-1", false}, LoadPairCase{"-0.01", false},
                                         LoadPairCase{"forty", false}, LoadPairCase{"40 psf", false},
                                         LoadPairCase{"1,200", false}, LoadPairCase{"4e38", false},
                                         LoadPairCase{"1e300", false}, LoadPairCase{"1e999", false},
                                         LoadPairCase{"nan", false}, LoadPairCase{"inf", false}),
                         CaseName);

TEST(SettingsToShow, NameArialWhereNoFontIsChosen)
{
    Session session;
    session.Defaults = FilledSettings();
    session.Defaults.FontCombo = "";
    ExpectSettings(SettingsToShow(session), FilledSettings());
    session.Defaults.FontCombo = "Courier";
    EXPECT_EQ(SettingsToShow(session).FontCombo, "Courier");
}

TEST(ChooseEdition, PutsOneEditionInForceAndWithdrawsTheSelection)
{
    Session session;
    session.Nds.Nds1997 = session.Nds.Nds2012 = true;
    session.Selection = SelectionRecord{"4x  10 DF-L #2", "OK", "1/02/26"};
    ChooseEdition(session, Edition::Nds2015);
    EXPECT_EQ(EditionInForce(session.Nds), Edition::Nds2015);
    EXPECT_FALSE(session.Nds.Nds1997 || session.Nds.Nds2001 || session.Nds.Nds2005 || session.Nds.Nds2012 ||
                 session.Nds.Nds2018);
    EXPECT_FALSE(session.Selection);
}

}  // namespace
}  // namespace kordavan
