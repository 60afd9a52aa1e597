#include "records/SclFile.h"

#include <gmock/gmock.h>

#include "records/RecordBytes.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

constexpr std::string_view SclSavedText = "SCL Custom values have been saved to hard drive.";
constexpr std::string_view UnfitSclText =
    "An SCL value file cannot hold the number in this box: it is too large, or an Fb, Fv or Fc that is no "
    "whole number.  Please change it and save again.";
constexpr std::string_view ExponentText =
    "Please enter a decimal value for the Cf Size factor that is less than one.";
constexpr std::string_view NameText = "Please enter the manufacturer's name and grade.";

/// The bytes of one product's values.
constexpr std::size_t ListedLength = 10;
constexpr std::size_t OwnLength = 44;

RecordBytes BlankListed()
{
    return RecordBytes(244).Short(0, 113);
}

RecordBytes BlankOwn()
{
    return RecordBytes(92).Short(0, 2000).Blanks(18, 30).Blanks(62, 30);
}

SclValues ListedValues()
{
    return {.Fb = "2900", .Fv = "285", .E = "2.0", .FcPerp = "750", .Exponent = "", .Name = ""};
}

SclValues OwnProduct()
{
    return {.Fb = "2650",
            .Fv = "290",
            .E = "1.9",
            .FcPerp = "32767",
            .Exponent = "0.125",
            .Name = "Caf\u00E9 LVL 1.9E"};
}

/// The same bytes with the values at an offset.
RecordBytes WithListed(RecordBytes bytes, std::size_t at)
{
    return bytes.Short(at, 2900).Short(at + 2, 285).Float(at + 4, 2).Short(at + 8, 750);
}

RecordBytes WithOwn(RecordBytes bytes, std::size_t at)
{
    bytes.Short(at, 2650).Short(at + 2, 290).Float(at + 4, 1.9F).Short(at + 8, 32767).Float(at + 10, 0.125F);
    return bytes.Blanks(at + 14, 30).Text(at + 14, "Caf\xE9 LVL 1.9E");
}

struct PlaceCase {
    std::string_view Name;
    std::size_t Product;
    std::size_t Offset;

    bool IsOwn() const { return Product == 23 || Product == 24; }
    std::string_view File() const { return IsOwn() ? "KordavanCustom.LVL" : "Kordavan23.LVL"; }
    SclValues Values() const { return IsOwn() ? OwnProduct() : ListedValues(); }
    std::size_t Length() const { return IsOwn() ? OwnLength : ListedLength; }
    RecordBytes Blank() const { return IsOwn() ? BlankOwn() : BlankListed(); }
    RecordBytes With(const RecordBytes& bytes) const
    {
        return IsOwn() ? WithOwn(bytes, Offset) : WithListed(bytes, Offset);
    }
};

class SclPlaceTest : public testing::TestWithParam<PlaceCase> {};

TEST_P(SclPlaceTest, IsWrittenInANewFileAndReadAgain)
{
    const PlaceCase& c = GetParam();
    const TemporaryFolder folder;
    ScriptedUser user;
    EXPECT_EQ(SaveSclValues(folder.Path(), c.Product, c.Values(), user), Outcome::Done);
    EXPECT_THAT(user.Told, ElementsAre(AlertOf(SclSavedText)));
    EXPECT_EQ(FirstDifference(FileBytes(folder.Path(c.File())), c.With(c.Blank()).All()), "");
    EXPECT_EQ(folder.FileCount(), 1U);
    EXPECT_EQ(LoadSclValues(folder.Path(), c.Product, user), c.Values());
    EXPECT_EQ(user.Told.size(), 1U);
}

TEST_P(SclPlaceTest, LeavesEveryOtherByte)
{
    const PlaceCase& c = GetParam();
    const TemporaryFolder folder;
    const std::string path = folder.Path(c.File());
    std::string old(300, 'x');
    old.replace(0, 2, c.Blank().All(), 0, 2);
    PutFile(path, old);
    ScriptedUser user;
    EXPECT_EQ(SaveSclValues(folder.Path(), c.Product, c.Values(), user), Outcome::Done);
    std::string expected = old;
    expected.replace(c.Offset, c.Length(), c.With(c.Blank()).All(), c.Offset, c.Length());
    EXPECT_EQ(FirstDifference(FileBytes(path), expected), "");
}

// Each listed product has 10 bytes after the tag and two unused ones: 4 + 10 k up to product 22. The last
// product follows at once, as the two between are the user's own, with 44 bytes each in the other file.
INSTANTIATE_TEST_SUITE_P(Products, SclPlaceTest,
                         testing::Values(PlaceCase{"first", 0, 4}, PlaceCase{"second", 1, 14},
                                         PlaceCase{"last before the own", 22, 224},
                                         PlaceCase{"last", 25, 234}, PlaceCase{"first own", 23, 4},
                                         PlaceCase{"second own", 24, 48}),
                         CaseName);

TEST(SclValues, AreEmptyWhereNoneAreSaved)
{
    const TemporaryFolder folder;
    ScriptedUser user;
    for (const std::size_t product : {0U, 23U, 25U}) {
        EXPECT_EQ(LoadSclValues(folder.Path(), product, user), SclValues{});
    }
    PutFile(folder.Path(SclFileName), "");
    PutFile(folder.Path(CustomSclFileName), BlankOwn().All());
    for (const std::size_t product : {0U, 23U, 25U}) {
        EXPECT_EQ(LoadSclValues(folder.Path(), product, user), SclValues{});
    }
    EXPECT_THAT(user.Told, IsEmpty());
    EXPECT_EQ(folder.FileCount(), 2U);
}

struct TextCase {
    std::string_view Name;
    RecordBytes Bytes;  // of the first product of one's own
    SclValues Texts;
};

class SclTextTest : public testing::TestWithParam<TextCase> {};

TEST_P(SclTextTest, IsThatOfItsBox)
{
    const TemporaryFolder folder;
    PutFile(folder.Path(CustomSclFileName), GetParam().Bytes.All());
    ScriptedUser user;
    EXPECT_EQ(LoadSclValues(folder.Path(), 23, user), GetParam().Texts);
    EXPECT_THAT(user.Told, IsEmpty());
}

SclValues OnlyE(std::string_view text)
{
    SclValues values;
    values.E = text;
    return values;
}

INSTANTIATE_TEST_SUITE_P(
    Held, SclTextTest,
    testing::Values(
        TextCase{"E with one decimal", BlankOwn().Float(8, 2), OnlyE("2.0")},
        TextCase{"E rounded", BlankOwn().Float(8, 1.55F), OnlyE("1.6")},
        TextCase{"E below one", BlankOwn().Float(8, 0.9F), OnlyE(".9")},
        TextCase{"E no number", BlankOwn().Text(8, std::string_view("\0\0\xC0\x7F", 4)), OnlyE("")},
        TextCase{"negative", BlankOwn().Short(4, -1).Short(6, -32768).Short(12, -750),
                 SclValues{"-1", "-32768", "", "-750", "0", ""}},
        TextCase{"exponent of a ninth", BlankOwn().Float(14, 1.0F / 9),
                 SclValues{"", "", "", "", "0.11111111", ""}},
        TextCase{"exponent infinite", BlankOwn().Text(14, std::string_view("\0\0\x80\x7F", 4)), SclValues{}},
        TextCase{"a full name", BlankOwn().Text(18, "  Riverside Laminated 2.1E 31\x80"),
                 SclValues{"", "", "", "", "", "  Riverside Laminated 2.1E 31\u20AC"}}),
    CaseName);

TEST(SclValues, OfACutFileAreTakenAsFarAsTheyGo)
{
    const TemporaryFolder folder;
    ScriptedUser user;
    PutFile(folder.Path(SclFileName), WithListed(BlankListed(), 4).All().substr(0, 11));
    EXPECT_EQ(LoadSclValues(folder.Path(), 0, user), (SclValues{"2900", "285", "", "", "", ""}));
    EXPECT_EQ(LoadSclValues(folder.Path(), 25, user), SclValues{});
    EXPECT_THAT(user.Told, IsEmpty());
    EXPECT_EQ(SaveSclValues(folder.Path(), 25, ListedValues(), user), Outcome::Done);
    EXPECT_EQ(FirstDifference(FileBytes(folder.Path(SclFileName)),
                              WithListed(BlankListed(), 234).Short(4, 2900).Short(6, 285).All()),
              "");
}

struct RefusedSclCase {
    std::string_view Name;
    std::size_t Product;
    void (*Spoil)(SclValues&);
    std::string_view Text;
    std::string_view Focus;
};

class RefusedSclTest : public testing::TestWithParam<RefusedSclCase> {};

TEST_P(RefusedSclTest, IsNotSaved)
{
    const TemporaryFolder folder;
    PutFile(folder.Path(SclFileName), BlankListed().All());
    SclValues values = OwnProduct();
    GetParam().Spoil(values);
    ScriptedUser user;
    EXPECT_EQ(SaveSclValues(folder.Path(), GetParam().Product, values, user), Outcome::Refused);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(GetParam().Text, GetParam().Focus)));
    EXPECT_EQ(FileBytes(folder.Path(SclFileName)), BlankListed().All());
    EXPECT_EQ(folder.FileCount(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Checks, RefusedSclTest,
    testing::Values(
        RefusedSclCase{"all empty", 0, [](SclValues& v) { v = {}; }, "Please enter a value for the Fb.",
                       "Text1"},
        RefusedSclCase{"Fb a word", 0, [](SclValues& v) { v.Fb = "2900 psi"; },
                       "Please enter a value for the Fb.", "Text1"},
        RefusedSclCase{"Fv before E", 25, [](SclValues& v) { v.Fv = v.E = "0"; },
                       "Please enter a value for the Fv.", "Text2"},
        RefusedSclCase{"E before Fc", 23, [](SclValues& v) { v.E = v.FcPerp = "-1"; },
                       "Please enter a value for the E.", "Text4"},
        RefusedSclCase{"E below all floats", 1, [](SclValues& v) { v.E = "1e-60"; },
                       "Please enter a value for the E.", "Text4"},
        RefusedSclCase{"Fc before the exponent", 24, [](SclValues& v) { v.FcPerp = v.Exponent = ""; },
                       "Please enter a value for the Fc.", "Text3"},
        RefusedSclCase{"exponent empty", 23, [](SclValues& v) { v.Exponent = v.Name = ""; }, ExponentText,
                       "Text8"},
        RefusedSclCase{"exponent of one", 24, [](SclValues& v) { v.Exponent = "1"; }, ExponentText, "Text8"},
        RefusedSclCase{"exponent of one as a float", 24, [](SclValues& v) { v.Exponent = "0.999999999"; },
                       ExponentText, "Text8"},
        RefusedSclCase{"exponent negative", 23, [](SclValues& v) { v.Exponent = "-0.1"; }, ExponentText,
                       "Text8"},
        RefusedSclCase{"exponent a fraction", 23, [](SclValues& v) { v.Exponent = "1/9"; }, ExponentText,
                       "Text8"},
        RefusedSclCase{"name blank", 23, [](SclValues& v) { v.Name = "  "; }, NameText, "Text5"},
        RefusedSclCase{"Fb past 16 bits", 0, [](SclValues& v) { v.Fb = "32768"; }, UnfitSclText, "Text1"},
        RefusedSclCase{"Fv with a fraction", 0, [](SclValues& v) { v.Fv = "285.5"; }, UnfitSclText, "Text2"},
        RefusedSclCase{"E past a float", 24, [](SclValues& v) { v.E = "1e39"; }, UnfitSclText, "Text4"},
        RefusedSclCase{"Fc past 16 bits", 24, [](SclValues& v) { v.FcPerp = "1e300"; }, UnfitSclText,
                       "Text3"},
        RefusedSclCase{"no such product", 26, [](SclValues& /*v*/) {}, "Error saving your Custom SCL values.",
                       ""}),
    CaseName);

TEST(SclValues, OfAListedProductNeedNoExponentAndNoName)
{
    const TemporaryFolder folder;
    ScriptedUser user;
    SclValues values = ListedValues();
    values.Exponent = "2";
    EXPECT_EQ(SaveSclValues(folder.Path(), 0, values, user), Outcome::Done);
    values = OwnProduct();
    values.Exponent = "0";  // a size factor of 1 at every depth
    EXPECT_EQ(SaveSclValues(folder.Path(), 23, values, user), Outcome::Done);
    EXPECT_EQ(LoadSclValues(folder.Path(), 23, user).Exponent, "0");
}

struct WrongSclCase {
    std::string_view Name;
    std::size_t Product;
    std::string_view File;
    std::string Bytes;
};

class WrongSclTest : public testing::TestWithParam<WrongSclCase> {};

TEST_P(WrongSclTest, GivesNothingAndIsNotOverwritten)
{
    const TemporaryFolder folder;
    PutFile(folder.Path(GetParam().File), GetParam().Bytes);
    const std::string text =
        std::string(GetParam().File) +
        " does not contain Kordavan SCL Values.  Please check to see if another file was "
        "saved under this name.";
    const std::string saving = "Error saving your Custom SCL values.\n" + text;
    ScriptedUser user;
    EXPECT_EQ(LoadSclValues(folder.Path(), GetParam().Product, user), SclValues{});
    EXPECT_EQ(SaveSclValues(folder.Path(), GetParam().Product, OwnProduct(), user), Outcome::Refused);
    EXPECT_THAT(user.Told,
                ElementsAre(AllOf(RefusalOf(text), Field(&Message::Icon, MessageIcon::Warning)),
                            AllOf(RefusalOf(saving), Field(&Message::Icon, MessageIcon::Warning))));
    EXPECT_EQ(FileBytes(folder.Path(GetParam().File)), GetParam().Bytes);
    EXPECT_EQ(folder.FileCount(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Files, WrongSclTest,
    testing::Values(WrongSclCase{"the other of the two", 0, SclFileName, BlankOwn().All()},
                    WrongSclCase{"the one of the two", 24, CustomSclFileName, BlankListed().All()},
                    WrongSclCase{"no tag", 25, SclFileName, std::string(244, '\0')},
                    WrongSclCase{"half a tag", 22, SclFileName, "q"},
                    WrongSclCase{"swapped tag", 23, CustomSclFileName,
                                 RecordBytes(92).Text(0, "\x07\xD0").All()}),
    CaseName);

TEST(SclValues, TellWhyAFileCannotBeReadOrSaved)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path(SclFileName);
    std::filesystem::create_directory(path);
    ScriptedUser user;
    EXPECT_EQ(LoadSclValues(folder.Path(), 3, user), SclValues{});
    EXPECT_EQ(SaveSclValues(folder.Path(), 3, ListedValues(), user), Outcome::Refused);
    EXPECT_EQ(SaveSclValues(folder.Path("gone"), 3, ListedValues(), user), Outcome::Refused);
    EXPECT_THAT(user.Told,
                ElementsAre(RefusalOf("This file could not be read:\n    " + path + "\nIs a directory"),
                            RefusalOf("Error saving your Custom SCL values.\nIs a directory"),
                            RefusalOf("Error saving your Custom SCL values.\nNo such file or directory")));
    EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(SclValues, OfAProductThatIsNotInTheListAreNone)
{
    const TemporaryFolder folder;
    ScriptedUser user;
    EXPECT_EQ(LoadSclValues(folder.Path(), 26, user), SclValues{});
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf("Error, not able to load values. form2.combo1")));
}

}  // namespace
}  // namespace kordavan
