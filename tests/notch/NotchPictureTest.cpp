#include "notch/NotchPicture.h"

#include <gtest/gtest.h>

#include "notch/NotchBuilder.h"

namespace kordavan {
namespace {

constexpr NotchYears Of2005{.NdsYear = 2005, .Line = 0};

TEST(NotchPicture, ShowsACompressionNotchWithItsSizes)
{
    NotchEntry entry = PlainNotch(NotchMember::Glulam, NotchType::Compression);
    entry.eTextbox = "4";
    const NotchPicture picture = ReadNotchPicture(entry, Of2005);
    EXPECT_EQ(picture.Depth, 10);
    EXPECT_EQ(picture.DepthAtNotch, 8);
    EXPECT_EQ(picture.MinimumDn, 6);
    EXPECT_EQ(picture.Setback, 4);
    EXPECT_EQ(picture.SeatAngle, 0);
    EXPECT_EQ(DescribeNotchPicture(picture),
              "Glu-Lam, Rectangular, 3.5 in. broad and 10 in. deep. Compression Notch, dn 8 in., minimum 6.0 "
              "in., e 4 in. V 2000 lb.");
}

TEST(NotchPicture, ShowsASeatCutWithItsAngle)
{
    NotchEntry entry = PlainNotch(NotchMember::SawnRound, NotchType::Tapered);
    entry.eTextbox = "4";
    const NotchPicture picture = ReadNotchPicture(entry, Of2005);
    EXPECT_EQ(picture.Setback, 0);
    EXPECT_EQ(picture.RafterDepth, 9.25);
    EXPECT_EQ(picture.WallBreadth, 5.5);
    EXPECT_NEAR(picture.SeatAngle, 45, 1e-9);
    EXPECT_EQ(picture.AngleText, "45.0\u00B0");
    EXPECT_EQ(
        DescribeNotchPicture(picture),
        "Solid Sawn, Round (Log), 10 in. in diameter. Tapered Notch, dn 8 in., minimum 7.5 in., rd 9.25 "
        "in., t 5.5 in., roof angle 45.0 degrees. V 2000 lb.");
}

TEST(NotchPicture, FollowsTheMinimumOfTheYear)
{
    const NotchEntry entry = PlainNotch(NotchMember::Glulam);
    EXPECT_EQ(ReadNotchPicture(entry, Of2005).MinimumText, "minimum 7.0 in.");
    EXPECT_EQ(ReadNotchPicture(entry, {.NdsYear = 1997, .Line = 2}).MinimumText, "minimum 9.0 in.");
}

TEST(NotchPicture, ShowsNoMoreThanCanBeRead)
{
    NotchEntry entry = PlainNotch(NotchMember::Glulam, NotchType::Tapered);
    for (const char* const text : {"", "0", "-9", "ten", "nan", "1e999"}) {
        entry.MaxVtextbox = entry.breadthtextbox = entry.depthtextbox = entry.dnTextbox = text;
        entry.rdTextbox = entry.rpTextbox = entry.tTextbox = text;
        const NotchPicture picture = ReadNotchPicture(entry, Of2005);
        EXPECT_EQ(picture.Depth + picture.Breadth + picture.DepthAtNotch + picture.MinimumDn, 0) << text;
        EXPECT_EQ(picture.RafterDepth + picture.WallBreadth + picture.SeatAngle, 0) << text;
        EXPECT_EQ(DescribeNotchPicture(picture), "Glu-Lam, Rectangular, no depth yet. Tapered Notch.");
    }
    entry = PlainNotch();
    entry.dnTextbox = "12";
    EXPECT_EQ(ReadNotchPicture(entry, Of2005).DepthAtNotch, 10);
    entry.NotchListBox = entry.MemberListBox = 9;
    EXPECT_EQ(ReadNotchPicture(entry, Of2005).Notch, NotchType::Tension);
}

}  // namespace
}  // namespace kordavan
