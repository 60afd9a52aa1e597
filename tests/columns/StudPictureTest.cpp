#include "columns/StudPicture.h"

#include <gtest/gtest.h>

#include "columns/StudBuilder.h"
#include "columns/StudColumn.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

TEST(StudPicture, ShowsStudLoadsAndPlaces)
{
    StudEntry stud = PlainStud();
    stud.AxialPointTextbox = "450.5";
    stud.BreadthCombo = 3;
    stud.Beg[0] = "";
    stud.Wind[2] = "-4.5";
    stud.Beg[2] = "7.5";
    stud.End[2] = "10";
    const StudPicture picture = ReadStudPicture(stud);
    EXPECT_EQ(picture.Height, 10);
    EXPECT_EQ(picture.SizeText, "(2) 2x6 at 16 in. o.c.");
    EXPECT_EQ(picture.AxialText, "1,250.5 lb");
    ASSERT_EQ(picture.Winds.size(), 2U);
    EXPECT_EQ(picture.Winds[0].Text, "A 20 psf, 26.7 plf, 0 to 10 ft");
    EXPECT_EQ(picture.Winds[1].Letter, 'C');
    EXPECT_EQ(picture.Winds[1].Plf, -6);
    EXPECT_EQ(
        DescribeStud(picture),
        "Stud (2) 2x6 at 16 in. o.c., 10 ft high. Axial load 1,250.5 lb. Wind A 20 psf, 26.7 plf, 0 to 10 "
        "ft from the base. Wind C -4.5 psf, -6 plf, 7.5 to 10 ft from the base, suction.");
}

TEST(StudPicture, ShowsWhatCanBeReadWithoutSpacing)
{
    StudEntry stud = PlainStud();
    stud.WindStudSpacing = "16 in.";
    const StudPicture picture = ReadStudPicture(stud);
    EXPECT_EQ(picture.SizeText, "2x6");
    EXPECT_EQ(picture.AxialText, "600 plf of wall");
    ASSERT_EQ(picture.Winds.size(), 1U);
    EXPECT_EQ(picture.Winds[0].Text, "A 20 psf, 0 to 10 ft");
}

TEST(StudPicture, LeavesOutLoadsThatDoNotFitOnTheStud)
{
    StudEntry stud = PlainStud();
    stud.End[0] = "10.1";
    stud.Wind[1] = "5";
    stud.End[1] = "4";  // without a beginning
    stud.Wind[2] = "5";
    stud.Beg[2] = stud.End[2] = "4";
    EXPECT_TRUE(ReadStudPicture(stud).Winds.empty());
    stud = PlainStud();
    for (const char* const height : {"", "0", "-9", "ten", "nan", "1e999"}) {
        stud.WindStudHt = height;
        const StudPicture picture = ReadStudPicture(stud);
        EXPECT_EQ(picture.Height, 0);
        EXPECT_TRUE(picture.Winds.empty());
        EXPECT_EQ(DescribeStud(picture), "Stud 2x6 at 16 in. o.c., no height yet. Axial load 800 lb.");
    }
}

TEST(StudPicture, DescribesTheMomentOfARun)
{
    StudEntry stud = PlainStud();
    ScriptedUser user;
    const std::optional<StudTest> test = TestStud(stud, Edition::Nds2018, user);
    ASSERT_TRUE(test.has_value());
    EXPECT_EQ(DescribeStudMoment(*test),
              "Wind A 20 psf, 26.7 plf, 0 to 10 ft from the base. Reaction at the base 133.3 lb. The moment "
              "worked with is 333.3 ft-lb, at 4.95 ft from the base.");
}

}  // namespace
}  // namespace kordavan
