#include "records/CustomValuesFile.h"

#include <gmock/gmock.h>

#include <array>
#include <tuple>
#include <utility>

#include "records/RecordBytes.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

constexpr std::string_view ForSclText =
    "Please use the Save Default button to save SCL values. Use 'File, Save Values' for solid lumber and "
    "glu-lams only.";
constexpr std::string_view UnfitValuesText =
    "A Custom Value file cannot hold what is in this box: it is no number, or too large.  Please change it "
    "and save again.";
constexpr std::string_view WrongValuesText =
    "The selected file does not contain Kordavan Custom Values.  Please check to see if you selected the "
    "appropriate file.\n"
    "\n"
    "Custom Value files have an extension of *.VAL\n"
    "Beam Criteria files have a default extension of *.CRI\n"
    "Column Data Records have an extension of *.COL\n"
    "Beam Data Records have the default extension of *.DAT\n"
    "\n"
    "You may have saved the file you are looking for under another filename or file type.";
constexpr std::string_view ChangeText =
    "Return to form 1, on the menu bar select Options, select Set defaults, change the NDS version, select "
    "Save Defaults, and return to this form and re-load the values.";
constexpr std::string_view TimberText =
    "Criteria chosen in Form 1 is inappropriate for 6x members. Repetitive use does not apply to 6x beams.  "
    "Please select a different breadth group or change the repetitive use criteria in Form 1.";

/// The right tag, a blank text, all else 0.
RecordBytes BlankValues()
{
    RecordBytes bytes(66);
    bytes.Short(0, -1).Blanks(18, 30);
    return bytes;
}

/// A glulam header of Southern Pine.
RecordBytes HeaderValues()
{
    RecordBytes bytes = BlankValues();
    bytes.Float(2, 2400).Float(6, 265.5F).Float(10, 650).Float(14, 1.8F).Text(18, "24F-V4 \xBD in. lams");
    return bytes.On(48).On(58);
}

MemberEntry HeaderEntry()
{
    MemberEntry entry;
    entry.SpeciesText = "24F-V4 \u00BD in. lams";
    entry.Custom.Fb = "2400";
    entry.Custom.Fv = "265.5";
    entry.Custom.FcPerp = "650";
    entry.Custom.E = "1.8";
    entry.Custom.CustomIngradeSP = true;
    entry.Custom.WidGLBHDR = true;
    return entry;
}

/// An entry with something in every box that a file may change or must leave.
MemberEntry OldMember()
{
    MemberEntry entry;
    entry.BreadthText = "5-1/8x";
    entry.DepthText = "12";
    entry.SpeciesText = "Hackberry #1";
    entry.Custom.Fb = "900";
    entry.Custom.Fv = "150";
    entry.Custom.FcPerp = "405";
    entry.Custom.E = "1.1";
    entry.Custom.Wid6x = entry.Custom.SPG = entry.Custom.Roundoption = true;
    entry.Custom.MSRCheckbox = entry.Custom.MELCheckbox = true;
    entry.Custom.Diam = "8";
    entry.Custom.Exponent = "0.1";
    return entry;
}

/// Every box and option, to be compared.
auto Boxes(const MemberEntry& entry)
{
    const CustomEntry& custom = entry.Custom;
    return std::tuple(entry.BreadthText, entry.DepthText, entry.SpeciesText, custom.Fb, custom.Fv,
                      custom.FcPerp, custom.E, custom.Diam, custom.Exponent, custom.Wid2x, custom.Wid4x,
                      custom.Wid6x, custom.WidGLB, custom.WidGLBHDR, custom.SPG, custom.CustomIngradeSP,
                      custom.MSRCheckbox, custom.MELCheckbox, custom.Roundoption);
}

/// Somebody who has answered the question about the edition by Yes.
struct AgreeingUser : ScriptedUser {
    AgreeingUser() { WillAnswer(true); }
};

Outcome LoadBytes(std::string_view bytes, Session& session, UserPort& user)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("a.Val");
    PutFile(path, bytes);
    const Outcome outcome = LoadCustomValues(session, path, user);
    EXPECT_EQ(FileBytes(path), bytes);
    EXPECT_EQ(folder.FileCount(), 1U);
    return outcome;
}

TEST(CustomValues, AreWrittenAtTheirPlacesAndReadAgain)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("header.VAL");
    Session saved;
    saved.Problem.Combo1 = SpeciesGroup::Custom;
    saved.Entry = HeaderEntry();
    AgreeingUser user;
    EXPECT_EQ(SaveCustomValues(saved, path, user), Outcome::Done);
    EXPECT_THAT(user.Told, IsEmpty());
    EXPECT_EQ(FirstDifference(FileBytes(path), HeaderValues().All()), "");
    EXPECT_EQ(folder.FileCount(), 1U);
    Session loaded;
    loaded.Entry = OldMember();
    EXPECT_EQ(LoadCustomValues(loaded, path, user), Outcome::Done);
    MemberEntry expected = HeaderEntry();  // sizes and laminations were those of another family
    expected.Custom.Diam = "8";
    expected.Custom.Exponent = "0.1";
    EXPECT_EQ(Boxes(loaded.Entry), Boxes(expected));
}

TEST(CustomValues, HaveAPlaceForEachFlag)
{
    constexpr std::array<std::pair<std::size_t, bool CustomEntry::*>, 9> flags{{
        {48, &CustomEntry::CustomIngradeSP},
        {50, &CustomEntry::Wid2x},
        {52, &CustomEntry::Wid4x},
        {54, &CustomEntry::Wid6x},
        {56, &CustomEntry::WidGLB},
        {58, &CustomEntry::WidGLBHDR},
        {60, &CustomEntry::Roundoption},
        {62, &CustomEntry::MSRCheckbox},
        {64, &CustomEntry::MELCheckbox},
    }};
    for (const auto& [offset, flag] : flags) {
        MemberEntry entry;
        entry.Custom.*flag = true;
        const std::string bytes = BlankValues().On(offset).All();
        EXPECT_EQ(FirstDifference(MakeCustomValuesRecord(entry).Record.Bytes(), bytes), "") << offset;
        Session session;
        AgreeingUser user;
        EXPECT_EQ(LoadBytes(bytes, session, user), Outcome::Done);
        EXPECT_EQ(Boxes(session.Entry), Boxes(entry)) << offset;
    }
}

struct ValueCase {
    std::string_view Name;
    std::string Typed;
    float Held;
    std::string_view Shown;
};

class CustomNumberTest : public testing::TestWithParam<ValueCase> {};

TEST_P(CustomNumberTest, IsHeldAsAFloatAndShownPlainly)
{
    const ValueCase& c = GetParam();
    MemberEntry entry;
    entry.Custom.E = c.Typed;
    const CustomValuesRecordMade made = MakeCustomValuesRecord(entry);
    EXPECT_EQ(made.UnfitBox, "");
    EXPECT_EQ(FirstDifference(made.Record.Bytes(), BlankValues().Float(14, c.Held).All()), "");
    AgreeingUser user;
    RestoreCustomValues(made.Record, entry);
    EXPECT_EQ(entry.Custom.E, c.Shown);
}

INSTANTIATE_TEST_SUITE_P(Texts, CustomNumberTest,
                         testing::Values(ValueCase{"decimal", "1.6", 1.6F, "1.6"},
                                         ValueCase{"more than a float", "1.60000001", 1.6F, "1.6"},
                                         ValueCase{"negative", "-1.5", -1.5F, "-1.5"},
                                         ValueCase{"largest", "3.4e38", 3.4e38F, "3.4e+38"},
                                         ValueCase{"zero", "0.0", 0, ""}, ValueCase{"empty", "", 0, ""},
                                         ValueCase{"blanks", "  ", 0, ""}),
                         CaseName);

struct UnsavableValuesCase {
    std::string_view Name;
    void (*Spoil)(Session&);
    std::string_view Text;
    std::string_view Focus;
};

class UnsavableValuesTest : public testing::TestWithParam<UnsavableValuesCase> {};

TEST_P(UnsavableValuesTest, AreRefusedBeforeAnyFileIsTouched)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("a.VAL");
    PutFile(path, "old");
    Session session;
    session.Entry = HeaderEntry();
    GetParam().Spoil(session);
    ScriptedUser user;
    EXPECT_EQ(CheckCustomValuesSavable(session, user), Outcome::Refused);
    EXPECT_EQ(SaveCustomValues(session, path, user), Outcome::Refused);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(GetParam().Text, GetParam().Focus),
                                       RefusalOf(GetParam().Text, GetParam().Focus)));
    EXPECT_EQ(FileBytes(path), "old");
    EXPECT_EQ(folder.FileCount(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Sessions, UnsavableValuesTest,
    testing::Values(
        UnsavableValuesCase{"SCL", [](Session& s) { s.Problem.Combo1 = SpeciesGroup::Scl; }, ForSclText, ""},
        UnsavableValuesCase{"Fb too large", [](Session& s) { s.Entry.Custom.Fb = "1e39"; }, UnfitValuesText,
                            "Text1"},
        UnsavableValuesCase{"Fv a word", [](Session& s) { s.Entry.Custom.Fv = "high"; }, UnfitValuesText,
                            "Text2"},
        UnsavableValuesCase{"Fc with a comma", [](Session& s) { s.Entry.Custom.FcPerp = "1,200"; },
                            UnfitValuesText, "Text3"},
        UnsavableValuesCase{"two of them", [](Session& s) { s.Entry.Custom.Fv = s.Entry.Custom.E = "x"; },
                            UnfitValuesText, "Text2"}),
    CaseName);

TEST(CustomValues, ThatCannotBeSavedOrReadAreToldWithTheReason)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("gone/a.VAL");
    Session session;
    session.Entry = OldMember();
    ScriptedUser user;
    EXPECT_EQ(SaveCustomValues(session, path, user), Outcome::Refused);
    EXPECT_EQ(LoadCustomValues(session, path, user), Outcome::Refused);
    EXPECT_THAT(
        user.Told,
        ElementsAre(RefusalOf("This file could not be saved; what stood in it is unchanged:\n    " + path +
                              "\nNo such file or directory"),
                    RefusalOf("This file could not be read:\n    " + path + "\nNo such file or directory")));
    EXPECT_EQ(Boxes(session.Entry), Boxes(OldMember()));
    EXPECT_EQ(folder.FileCount(), 0U);
}

struct WrongValuesCase {
    std::string_view Name;
    std::string Bytes;
    std::string_view Text = WrongValuesText;
    MessageIcon Icon = MessageIcon::Warning;
};

class WrongValuesTest : public testing::TestWithParam<WrongValuesCase> {};

TEST_P(WrongValuesTest, ChangeNothing)
{
    Session session;
    session.Entry = OldMember();
    session.Problem.Rep = true;
    ScriptedUser user;
    EXPECT_EQ(LoadBytes(GetParam().Bytes, session, user), Outcome::Refused);
    EXPECT_THAT(user.Told, ElementsAre(AllOf(RefusalOf(GetParam().Text), Field(&Message::Title, "Kordavan"),
                                             Field(&Message::Icon, GetParam().Icon))));
    EXPECT_EQ(Boxes(session.Entry), Boxes(OldMember()));
}

constexpr std::string_view NoNumberBytes("\0\0\xC0\x7F", 4);
constexpr std::string_view InfiniteBytes("\0\0\x80\xFF", 4);

INSTANTIATE_TEST_SUITE_P(
    Files, WrongValuesTest,
    testing::Values(
        WrongValuesCase{"empty", ""}, WrongValuesCase{"half a tag", "\xFF"},
        WrongValuesCase{"no tag", HeaderValues().Short(0, 0).All()},
        WrongValuesCase{"tag without its sign", HeaderValues().Short(0, 1).All()},
        WrongValuesCase{"criteria", HeaderValues().Short(0, -2007).All()},
        WrongValuesCase{"text", "Hackberry"},
        WrongValuesCase{"Fb no number", HeaderValues().Text(2, NoNumberBytes).All(),
                        "This Custom Value file holds a value that is no number (Fb), so it was not "
                        "loaded.",
                        MessageIcon::None},
        WrongValuesCase{"E infinite", HeaderValues().Text(14, InfiniteBytes).All(),
                        "This Custom Value file holds a value that is no number (E), so it was not "
                        "loaded.",
                        MessageIcon::None}),
    CaseName);

TEST(CustomValues, OfACutFileAreTakenAsFarAsTheyGo)
{
    Session session;
    session.Entry = OldMember();
    AgreeingUser user;
    EXPECT_EQ(LoadBytes(HeaderValues().All().substr(0, 17), session, user), Outcome::Done);  // within E
    MemberEntry expected = OldMember();
    expected.BreadthText = expected.DepthText = expected.SpeciesText = "";
    expected.Custom = {.Fb = "2400", .Fv = "265.5", .E = "", .FcPerp = "650", .Diam = "8"};
    expected.Custom.Exponent = "0.1";
    EXPECT_EQ(Boxes(session.Entry), Boxes(expected));
}

TEST(CustomValues, OfSeveralFamiliesTakeTheLast)
{
    Session session;
    AgreeingUser user;
    EXPECT_EQ(LoadBytes(BlankValues().On(50).Short(54, 7).On(56).All(), session, user), Outcome::Done);
    MemberEntry expected;
    expected.Custom.WidGLB = true;
    EXPECT_EQ(Boxes(session.Entry), Boxes(expected));
}

struct ValuesEditionCase {
    std::string_view Year;
    std::string_view Procedures;
};

class CustomEditionTest : public testing::TestWithParam<ValuesEditionCase> {};

TEST_P(CustomEditionTest, IsAskedAboutAndTheValuesAreLoadedEitherWay)
{
    const std::string year(GetParam().Year);
    const std::string text = "Courtesy Alert:      Are you loading NDS " + year +
                             " VALUES?\nKordavan is currently set to calculate using NDS " +
                             std::string(GetParam().Procedures) + " procedures.\nIF these are NOT NDS " +
                             year + " values, either revise these values or change the correct NDS Version.";
    const auto question =
        AllOf(MessageOf(MessageKind::Question, text, ""), Field(&Message::Title, "Kordavan Courtesy Alert"));
    const auto hint = AllOf(AlertOf(ChangeText), Field(&Message::Title, "To change the NDS version:"));
    for (const bool answer : {true, false}) {
        Session session;
        session.Nds = EditionFlags(EditionOfYear(year));
        ScriptedUser user;
        user.WillAnswer(answer);
        EXPECT_EQ(LoadBytes(HeaderValues().All(), session, user), Outcome::Done);
        if (answer) {
            EXPECT_THAT(user.Told, ElementsAre(question));
        } else {
            EXPECT_THAT(user.Told, ElementsAre(question, hint));
        }
        EXPECT_EQ(Boxes(session.Entry), Boxes(HeaderEntry()));
        EXPECT_EQ(EditionYear(EditionInForce(session.Nds)), year);
    }
}

INSTANTIATE_TEST_SUITE_P(Editions, CustomEditionTest,
                         testing::Values(ValuesEditionCase{"1997", "1997"}, ValuesEditionCase{"2001", "2001"},
                                         ValuesEditionCase{"2005", "2005"}, ValuesEditionCase{"2012", "2012"},
                                         ValuesEditionCase{"2015", "2005"},  // deliberately
                                         ValuesEditionCase{"2018", "2018"}));

TEST(CustomValues, AreNotAskedAboutWhereNoEditionIsKnown)
{
    Session session;
    session.Nds = {};
    ScriptedUser user;
    EXPECT_EQ(LoadBytes(HeaderValues().All(), session, user), Outcome::Done);
    EXPECT_THAT(user.Told, IsEmpty());
}

TEST(CustomValues, OfTimbersDoNotGoWithRepetitiveUse)
{
    const auto question = Field(&Message::Kind, MessageKind::Question);
    Session session;
    AgreeingUser without;
    EXPECT_EQ(LoadBytes(BlankValues().On(54).All(), session, without), Outcome::Done);
    EXPECT_THAT(without.Told, ElementsAre(question));
    session.Problem.Rep = true;
    AgreeingUser with;
    EXPECT_EQ(LoadBytes(BlankValues().On(54).All(), session, with), Outcome::Done);
    EXPECT_THAT(with.Told, ElementsAre(question, AlertOf(TimberText)));
    EXPECT_TRUE(session.Entry.Custom.Wid6x);
    AgreeingUser narrow;
    EXPECT_EQ(LoadBytes(BlankValues().On(52).All(), session, narrow), Outcome::Done);
    EXPECT_THAT(narrow.Told, ElementsAre(question));
}

}  // namespace
}  // namespace kordavan
