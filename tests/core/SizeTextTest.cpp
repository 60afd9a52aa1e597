#include "core/SizeText.h"

#include <gtest/gtest.h>

namespace kordavan {
namespace {

TEST(InchesText, WritesFractionsInTheirLowestTerms)
{
    EXPECT_EQ(InchesText(11.875), "11-7/8");
    EXPECT_EQ(InchesText(9.25), "9-1/4");
    EXPECT_EQ(InchesText(2.6875), "2-11/16");
    EXPECT_EQ(InchesText(12.0), "12");
    EXPECT_EQ(InchesText(0.5), "1/2");
    EXPECT_EQ(InchesText(0.0), "0");
}

TEST(InchesText, WritesALengthBetweenSixteenthsAsAPlainNumber)
{
    EXPECT_EQ(InchesText(9.3), "9.3");
    EXPECT_EQ(InchesText(1e9), "1000000000");
}

}  // namespace
}  // namespace kordavan
