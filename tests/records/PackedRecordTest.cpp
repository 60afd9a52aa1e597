#include "records/PackedRecord.h"

#include <gmock/gmock.h>

#include <array>
#include <stdexcept>

#include "records/RecordBytes.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

constexpr std::array Fields{
    IntegerField("Tag", 0), TextField("Name", 2, 5),     FloatField("Load", 7, 3), FlagField("Wet", 19),
    ReservedBytes(21, 2),   TextField("Note", 23, 4, 2), FloatField("End", 31),
};
constexpr RecordLayout Layout{.Size = 35, .Fields = Fields};
static_assert(Layout.IsWhole());

constexpr std::array GapFields{IntegerField("Tag", 0), FlagField("Wet", 3)};
constexpr std::array OverlapFields{FloatField("Load", 0), FlagField("Wet", 3)};
static_assert(!RecordLayout{.Size = 5, .Fields = GapFields}.IsWhole());
static_assert(!RecordLayout{.Size = 5, .Fields = OverlapFields}.IsWhole());
static_assert(!RecordLayout{.Size = 36, .Fields = Fields}.IsWhole());

constexpr std::array PlyFields{IntegerField("Fb", 0), TextField("Name", 2, 3)};
constexpr RecordLayout Ply{.Size = 5, .Fields = PlyFields};
constexpr std::array PliesFields{
    IntegerField("Tag", 0),
    PartField("Plies", 2, Ply, 4, {.First = 1, .Count = 2}),
    FloatField("End", 12),
};
constexpr RecordLayout Plies{.Size = 16, .Fields = PliesFields};
static_assert(Plies.IsWhole());

constexpr RecordLayout LongPly{.Size = 6, .Fields = PlyFields};
constexpr std::array LongPlyFields{PartField("Plies", 0, LongPly, 1)};
constexpr std::array WideGapFields{PartField("Plies", 0, Ply, 4, {.First = 3, .Count = 2})};
static_assert(!RecordLayout{.Size = 6, .Fields = LongPlyFields}.IsWhole());
static_assert(!RecordLayout{.Size = 10, .Fields = WideGapFields}.IsWhole());

constexpr std::string_view HandBytes(
    "\x29\xF8"  // -2007
    "Oak  "     //
    "\x00\x00\xC0\x3F"
    "\x00\x00\x00\xC0"
    "\x00\x00\x20\x3E"  // 1.5, -2, 0.15625
    "\xFF\xFF"          //
    "\x07\x08"          // reserved
    "ab  "
    " cd "               //
    "\x00\x00\xC8\x42",  // 100
    35);

constexpr std::string_view BlankBytes(
    "\0\0"
    "     "
    "\0\0\0\0"
    "\0\0\0\0"
    "\0\0\0\0"
    "\0\0"
    "\0\0"
    "    "
    "    "
    "\0\0\0\0",
    35);

TEST(PackedRecord, ReadsEveryTypeAtItsPlaceLowByteFirst)
{
    const PackedRecord record(Layout, HandBytes);
    EXPECT_EQ(record.Integer("Tag"), -2007);
    EXPECT_EQ(record.Text("Name"), "Oak");
    EXPECT_EQ(record.Float("Load", 0), 1.5F);
    EXPECT_EQ(record.Float("Load", 1), -2.0F);
    EXPECT_EQ(record.Float("Load", 2), 0.15625F);
    EXPECT_TRUE(record.Flag("Wet"));
    EXPECT_EQ(record.Text("Note", 0), "ab");
    EXPECT_EQ(record.Text("Note", 1), " cd");  // blanks before a text are its own
    EXPECT_EQ(record.Float("End"), 100.0F);
}

TEST(PackedRecord, WritesEveryTypeAtItsPlaceLowByteFirst)
{
    PackedRecord record(Layout);
    EXPECT_EQ(FirstDifference(record.Bytes(), BlankBytes), "");
    record.SetInteger("Tag", -2007);
    record.SetText("Name", "Oak");
    record.SetFloat("Load", 1.5F, 0);
    record.SetFloat("Load", -2.0F, 1);
    record.SetFloat("Load", 0.15625F, 2);
    record.SetFlag("Wet", true);
    record.SetText("Note", "ab", 0);
    record.SetText("Note", " cd", 1);
    record.SetFloat("End", 100.0F);
    std::string expected(HandBytes);
    expected[21] = expected[22] = '\0';
    EXPECT_EQ(FirstDifference(record.Bytes(), expected), "");
    record.SetFlag("Wet", false);
    EXPECT_EQ(record.Bytes().substr(19, 2), std::string(2, '\0'));
}

TEST(PackedRecord, CutsALongTextAndFillsAShortOne)
{
    PackedRecord record(Layout);
    record.SetText("Name", "Red Oak");
    EXPECT_EQ(record.Bytes().substr(2, 6), std::string("Red O\0", 6));
    EXPECT_EQ(record.Text("Name"), "Red O");
    record.SetText("Name", "Fir");  // nothing of the longer text stays
    EXPECT_EQ(record.Bytes().substr(2, 5), "Fir  ");
    record.SetText("Name", "\u00E9\u20AC\u00F1\u00E9\u00E9\u00E9");  // characters count, not bytes of UTF-8
    EXPECT_EQ(record.Bytes().substr(2, 6), std::string("\xE9\x80\xF1\xE9\xE9\0", 6));
    EXPECT_EQ(record.Text("Name"), "\u00E9\u20AC\u00F1\u00E9\u00E9");
}

struct CutCase {
    std::size_t Length;  // of the file
    std::size_t Whole;   // bytes of it that belong to whole elements
};

class CutRecordTest : public testing::TestWithParam<CutCase> {};

TEST_P(CutRecordTest, IsBlankFromTheCutElementOn)
{
    const auto [length, whole] = GetParam();
    const PackedRecord record(Layout, HandBytes.substr(0, length));
    const std::string expected =
        std::string(HandBytes.substr(0, whole)) + std::string(BlankBytes.substr(whole));
    EXPECT_EQ(FirstDifference(record.Bytes(), expected), "");
}

INSTANTIATE_TEST_SUITE_P(Places, CutRecordTest,
                         testing::Values(CutCase{0, 0}, CutCase{1, 0}, CutCase{2, 2}, CutCase{3, 2},
                                         CutCase{6, 2}, CutCase{7, 7}, CutCase{10, 7}, CutCase{11, 11},
                                         CutCase{13, 11}, CutCase{15, 15}, CutCase{18, 15}, CutCase{19, 19},
                                         CutCase{20, 19}, CutCase{21, 21}, CutCase{22, 21}, CutCase{23, 23},
                                         CutCase{26, 23}, CutCase{27, 27}, CutCase{30, 27}, CutCase{31, 31},
                                         CutCase{32, 31}, CutCase{34, 31}, CutCase{35, 35}));

TEST(PackedRecord, LeavesOutWhatLiesBehindIt)
{
    const PackedRecord record(Layout, std::string(HandBytes) + "a second record");
    EXPECT_EQ(FirstDifference(record.Bytes(), HandBytes), "");
}

TEST(PackedRecord, TakesAnyNumberButZeroForTrue)
{
    for (const int held : {1, -1, 2, 256, -32768}) {
        const PackedRecord record(Layout, RecordBytes(35).Short(19, held).All());
        EXPECT_TRUE(record.Flag("Wet")) << held;
    }
    EXPECT_FALSE(PackedRecord(Layout, RecordBytes(35).All()).Flag("Wet"));
}

constexpr std::string_view PliesBytes(
    "\x01\x00"  //
    "\x02\x00"
    "ab "  //
    "\x03\x00"
    "cde"  //
    "\x00\x00\xC8\x42",
    16);

TEST(PackedRecord, GivesItsPartsAndNoneOfTheGap)
{
    const PackedRecord record(Plies, PliesBytes);
    EXPECT_EQ(FirstDifference(record.Bytes(), PliesBytes), "");
    EXPECT_EQ(record.Part("Plies", 0).Integer("Fb"), 2);
    EXPECT_EQ(record.Part("Plies", 0).Text("Name"), "ab");
    EXPECT_EQ(record.Part("Plies", 3).Integer("Fb"), 3);
    EXPECT_EQ(record.Part("Plies", 3).Text("Name"), "cde");
    EXPECT_EQ(FirstDifference(record.Part("Plies", 1).Bytes(), std::string_view("\0\0   ", 5)), "");
    EXPECT_EQ(FirstDifference(record.Part("Plies", 2).Bytes(), std::string_view("\0\0   ", 5)), "");
}

TEST(PackedRecord, WritesItsPartsOneByOne)
{
    PackedRecord record(Plies);
    EXPECT_EQ(FirstDifference(record.Bytes(), RecordBytes(16).Blanks(4, 3).Blanks(9, 3).All()), "");
    PackedRecord ply(Ply);
    ply.SetInteger("Fb", 3);
    ply.SetText("Name", "cdef");
    record.SetPart("Plies", 3, ply);
    EXPECT_EQ(FirstDifference(record.Bytes(), RecordBytes(16).Blanks(4, 3).Short(7, 3).Text(9, "cde").All()),
              "");
    EXPECT_THROW(record.SetPart("Plies", 1, ply), std::out_of_range);  // in the gap
    EXPECT_THROW(record.SetPart("Plies", 4, ply), std::out_of_range);
    EXPECT_THROW(record.SetPart("End", 0, ply), std::out_of_range);
    EXPECT_THROW(record.SetPart("Plies", 0, PackedRecord(Layout)), std::out_of_range);
    EXPECT_THROW(record.Part("Plies", 4), std::out_of_range);
    EXPECT_THROW(record.Part("Tag", 0), std::out_of_range);
}

TEST(PackedRecord, IsBlankFromTheCutElementOfAPartOn)
{
    const std::string blank = PackedRecord(Plies).Bytes();
    constexpr std::array<CutCase, 7> cuts{{{3, 2}, {4, 4}, {6, 4}, {7, 7}, {8, 7}, {9, 9}, {15, 12}}};
    for (const auto [length, whole] : cuts) {
        const PackedRecord record(Plies, PliesBytes.substr(0, length));
        const std::string expected = std::string(PliesBytes.substr(0, whole)) + blank.substr(whole);
        EXPECT_EQ(FirstDifference(record.Bytes(), expected), "") << length;
    }
}

TEST(PackedRecord, RefusesNamesAndPlacesThatItHasNot)
{
    PackedRecord record(Layout);
    EXPECT_THROW(record.Integer("Span"), std::out_of_range);
    EXPECT_THROW(record.Float("Load", 3), std::out_of_range);
    EXPECT_THROW(record.SetText("Note", "x", 2), std::out_of_range);
    EXPECT_THROW(record.SetText("", "x"), std::out_of_range);  // reserved bytes have no name
}

}  // namespace
}  // namespace kordavan
