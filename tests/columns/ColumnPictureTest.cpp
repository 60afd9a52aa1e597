#include "columns/ColumnPicture.h"

#include <gtest/gtest.h>

#include "columns/ColumnEntries.h"

namespace kordavan {
namespace {

TEST(ColumnPicture, ShowsBothPlanesOfWood)
{
    ColumnEntry entry = WorkingColumn();
    entry.Type = ColumnType::BoltedBuiltUp;
    entry.cD1text = "0";
    entry.cModeText = "0.8";
    const ColumnPicture picture = ReadColumnPicture(entry, ColumnFace::Wood);
    EXPECT_EQ(picture.PlyCount, 2);
    EXPECT_TRUE(picture.D1.IsBraced);
    EXPECT_EQ(picture.D2.Unbraced, 8);
    // le = 0.8 * 8 ft * 12
    EXPECT_EQ(
        DescribeColumn(picture),
        "Bolted Built-up 2xs column, 8 ft high, carrying 7000 lb. Plane D1: fully braced. Plane D2: 8 ft "
        "unbraced, le = 76.8 in.");
}

TEST(ColumnPicture, ShowsSteelInOnePlane)
{
    const ColumnPicture picture = ReadColumnPicture(WorkingColumn(), ColumnFace::Steel);
    EXPECT_TRUE(picture.IsSteel);
    EXPECT_FALSE(picture.D2.IsKnown);
    EXPECT_EQ(
        DescribeColumn(picture),
        "Steel pipe or tube column, 8 ft high, carrying 7000 lb. Both planes: 8 ft unbraced, le = 96 in.");
}

TEST(ColumnPicture, LeavesOutWhatCannotBeRead)
{
    ColumnEntry entry;
    EXPECT_EQ(DescribeColumn(ReadColumnPicture(entry, ColumnFace::Wood)),
              "Solid Sawn 2x or 4x column, no height yet, no load yet. Plane D1: its unbraced length is not "
              "entered. Plane D2: its unbraced length is not entered.");
    for (const char* const text : {"-8", "eight", "1e999", "nan"}) {
        entry.cHTtext = entry.cReacText = entry.cD1text = text;
        const ColumnPicture picture = ReadColumnPicture(entry, ColumnFace::Wood);
        EXPECT_EQ(picture.Height, 0) << text;
        EXPECT_EQ(picture.LoadText, "") << text;
        EXPECT_FALSE(picture.D1.IsKnown) << text;
    }
    entry.cD1text = "8";
    for (const char* const Ke : {"", "none", "1e308"}) {
        entry.cModeText = Ke;
        const ColumnPicture picture = ReadColumnPicture(entry, ColumnFace::Wood);
        EXPECT_EQ(picture.D1.LengthText, "8 ft unbraced");
        EXPECT_EQ(picture.D1.EffectiveText, "") << Ke;
    }
}

}  // namespace
}  // namespace kordavan
