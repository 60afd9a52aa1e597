#include "core/NdsEdition.h"

#include <gtest/gtest.h>

namespace kordavan {
namespace {

TEST(NdsEdition, FlagsAndYearsNameTheSameEdition)
{
    for (const std::string_view year : {"1997", "2001", "2005", "2012", "2015", "2018"}) {
        const Edition edition = EditionOfYear(year);
        EXPECT_EQ(EditionInForce(EditionFlags(edition)), edition) << year;
        EXPECT_EQ(EditionYear(edition), year);
    }
    EXPECT_EQ(EditionOfYear("1991"), Edition::None);
    EXPECT_EQ(EditionInForce(NdsEdition{}), Edition::None);
}

TEST(NdsEdition, TakesTheFirstInItsOwnOrderWhereSeveralFlagsAreOn)
{
    EXPECT_EQ(EditionInForce({.Nds1997 = true, .Nds2018 = true}), Edition::Nds1997);
    EXPECT_EQ(EditionInForce({.Nds2012 = true, .Nds2015 = true}), Edition::Nds2012);
    EXPECT_EQ(EditionInForce({.Nds2005 = true, .Nds2018 = true}), Edition::Nds2018);
    EXPECT_EQ(EditionInForce({.Nds2001 = true, .Nds2005 = true}), Edition::Nds2005);
}

}  // namespace
}  // namespace kordavan
