#include "core/NumberText.h"

#include <gtest/gtest.h>

#include <limits>
#include <string_view>

#include "support/CaseName.h"

namespace kordavan {
namespace {

struct FormatCase {
    std::string_view Name;
    double Value;
    std::string_view Format;
    std::string_view Text;
};

class FormatNumberTest : public testing::TestWithParam<FormatCase> {};

TEST_P(FormatNumberTest, ShowsTheNumberByItsFormat)
{
    const FormatCase& c = GetParam();
    EXPECT_EQ(FormatNumber(c.Value, c.Format), c.Text) << c.Name;
}

INSTANTIATE_TEST_SUITE_P(
    Formats, FormatNumberTest,
    testing::Values(FormatCase{"thousands and cents", 1234.5, "#,##0.00", "1,234.50"},
                    FormatCase{"a million in groups", 1234567.891, "#,##0.00", "1,234,567.89"},
                    FormatCase{"zero keeps its digit", 0, "#,##0.00", "0.00"},
                    FormatCase{"zero in a lone # is empty", 0, "####", ""},
                    FormatCase{"zero in grouped # is empty", 0, "#,###", ""},
                    FormatCase{"less than a half is nothing", 0.4, "####", ""},
                    FormatCase{"more digits than signs", 123456, "####", "123456"},
                    FormatCase{"no group below a thousand", 999, "#,###", "999"},
                    FormatCase{"group after rounding up", 999.5, "#,###", "1,000"},
                    FormatCase{"a 0 at the end shows both decimals", 0.1, "0.#0", "0.10"},
                    FormatCase{"no whole digit asked, none shown", 0.5, "#.0#", ".5"},
                    FormatCase{"second decimal where there is one", 5.25, "#.0#", "5.25"},
                    FormatCase{"first decimal always", 7, "##0.0#", "7.0"},
                    FormatCase{"three decimals at most, two at least", 1.5, "#0.00#", "1.50"},
                    FormatCase{"third decimal where there is one", 0.8125, "#0.00#", "0.813"},
                    FormatCase{"trailing nought of rounding goes", 1.2003, "##0.0##", "1.2"},
                    FormatCase{"plain whole", 240, "###0", "240"},
                    FormatCase{"zero of a 0 pattern", 0, "###0", "0"},
                    FormatCase{"leading noughts", 5, "000", "005"},
                    FormatCase{"negative", -38.4, "###0", "-38"},
                    FormatCase{"no negative zero", -0.001, "0.00", "0.00"},
                    FormatCase{"large number without exponent", 1e20, "#0", "100000000000000000000"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(Halves, FormatNumberTest,
                         testing::Values(FormatCase{"half goes away from zero", 2.5, "#0", "3"},
                                         FormatCase{"negative half too", -2.5, "#0", "-3"},
                                         FormatCase{"half of an even digit", 0.125, "0.00", "0.13"},
                                         FormatCase{"half as it reads, not as it is stored", 2.675, "0.00",
                                                    "2.68"},
                                         FormatCase{"half but for binary noise", 72.8 / 1.6, "####", "46"},
                                         FormatCase{"just below a half", 2.4999999, "#0", "2"},
                                         FormatCase{"half below the first decimal", 0.005, "0.00", "0.01"},
                                         FormatCase{"carry through nines", 9.996, "0.00", "10.00"},
                                         FormatCase{"far below the last decimal", 0.0004, "0.00", "0.00"}),
                         CaseName);

TEST(FormatNumber, ReadsAFloatInItsOwnDigits)
{
    // 2.675F is 2.67499995...; as a float it reads 2.675.
    EXPECT_EQ(FormatNumber(2.675F, "0.00"), "2.68");
}

TEST(FormatNumber, LeavesWhatIsNotFiniteEmpty)
{
    EXPECT_EQ(FormatNumber(std::numeric_limits<double>::quiet_NaN(), "0.00"), "");
    EXPECT_EQ(FormatNumber(std::numeric_limits<double>::infinity(), "0.00"), "");
}

struct ValCase {
    std::string_view Text;
    double Value;
    bool Numeric;
};

class ReadNumberTest : public testing::TestWithParam<ValCase> {};

TEST_P(ReadNumberTest, ReadsTheLeadingNumber)
{
    EXPECT_EQ(Val(GetParam().Text), GetParam().Value) << GetParam().Text;
}

TEST_P(ReadNumberTest, TellsWhetherAllOfItIsANumber)
{
    EXPECT_EQ(IsNumeric(GetParam().Text), GetParam().Numeric) << GetParam().Text;
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ReadNumberTest,
    testing::Values(ValCase{"", 0, false}, ValCase{"14", 14, true}, ValCase{"  14.25 ", 14.25, true},
                    ValCase{"+3", 3, true}, ValCase{"-3.5", -3.5, true}, ValCase{".5", 0.5, true},
                    ValCase{"5.", 5, true}, ValCase{".", 0, false}, ValCase{"-", 0, false},
                    ValCase{"1,200", 1, false}, ValCase{"12 ft", 12, false}, ValCase{"Any", 0, false},
                    ValCase{"1e3", 1000, true}, ValCase{"1d3", 1000, true}, ValCase{"2E", 2, false},
                    ValCase{"2e+", 2, false}, ValCase{"1.5.2", 1.5, false}, ValCase{"--1", 0, false},
                    ValCase{"1e999", 0, false}, ValCase{"NaN", 0, false}, ValCase{"inf", 0, false},
                    ValCase{"0x10", 0, false}, ValCase{"13' 3\"", 13, false}),
    CaseName);

TEST(PlainNumber, WritesANumberAsOneWouldTypeIt)
{
    EXPECT_EQ(PlainNumber(44.00000000000001), "44");  // 40 psf x 1.1 ft in binary
    EXPECT_EQ(PlainNumber(60.66515), "60.66515");
    EXPECT_EQ(PlainNumber(0.5), "0.5");
    EXPECT_EQ(PlainNumber(-0.0), "0");
    EXPECT_EQ(PlainNumber(1000000.0), "1000000");
    EXPECT_EQ(PlainNumber(0.1F), "0.1");
    EXPECT_EQ(PlainNumber(100000.0F), "100000");
    EXPECT_EQ(PlainNumber(std::numeric_limits<double>::infinity()), "");
}

}  // namespace
}  // namespace kordavan
