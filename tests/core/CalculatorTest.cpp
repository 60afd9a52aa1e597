#include "core/Calculator.h"

#include <gtest/gtest.h>

#include <string_view>

#include "core/FeetInches.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

struct LengthCase {
    std::string_view Text;
    double Feet;  // below 0 where it is no length
};

class FeetOfDrawingTest : public testing::TestWithParam<LengthCase> {};

TEST_P(FeetOfDrawingTest, ReadsFeetInchesAndFractions)
{
    const auto feet = FeetOfDrawing(GetParam().Text);
    ASSERT_EQ(feet.has_value(), GetParam().Feet >= 0) << GetParam().Text;
    if (feet) {
        EXPECT_NEAR(*feet, GetParam().Feet, 1e-12);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Lengths, FeetOfDrawingTest,
    testing::Values(LengthCase{"13' 3-1/2\"", 13 + 3.5 / 12}, LengthCase{"13'3.5\"", 13 + 3.5 / 12},
                    LengthCase{"13' 3 1/2\"", 13 + 3.5 / 12}, LengthCase{"8'", 8}, LengthCase{"8.5'", 8.5},
                    LengthCase{"42\"", 3.5}, LengthCase{"3/4\"", 0.0625}, LengthCase{"0' 7/8\"", 0.875 / 12},
                    LengthCase{"13", -1}, LengthCase{"13' 3", -1}, LengthCase{"13' 3-1/0\"", -1},
                    LengthCase{"'", -1}, LengthCase{"\"", -1}, LengthCase{"3'-2\"", -1},
                    LengthCase{"1//2\"", -1}, LengthCase{"", -1}),
    CaseName);

struct CalculatorCase {
    std::string_view Keys;
    std::string_view Display;
};

class CalculatorTest : public testing::TestWithParam<CalculatorCase> {};

TEST_P(CalculatorTest, ShowsWhatADeskMachineShows)
{
    Calculator calculator;
    for (const char key : GetParam().Keys) {
        calculator.Press(key);
    }
    EXPECT_EQ(calculator.Display(), GetParam().Display) << GetParam().Keys;
}

INSTANTIATE_TEST_SUITE_P(
    Keys, CalculatorTest,
    testing::Values(CalculatorCase{"", "0"}, CalculatorCase{"12.5", "12.5"}, CalculatorCase{"2+3=", "5"},
                    CalculatorCase{"2+3*4=", "20"},  // in the order pressed
                    CalculatorCase{"7-10=", "-3"}, CalculatorCase{"1/3=", "0.3333333333"},
                    CalculatorCase{"1/0=", "Error"}, CalculatorCase{"1/0=5", "Error"},
                    CalculatorCase{"2+3=4", "4"}, CalculatorCase{"2+3=*2=", "10"},
                    CalculatorCase{"13' 3-1/2\"=", "13.2917"}, CalculatorCase{"13' 3-1/2\"*2=", "26.5834"},
                    CalculatorCase{"10'-2=", "Error"},  // no inch mark closes the length
                    CalculatorCase{"10'+2=", "12"}, CalculatorCase{"6\"+1=", "1.5"},
                    CalculatorCase{"1.2.3=", "Error"}, CalculatorCase{"abc", "0"},
                    CalculatorCase{"5==", "5"}),
    CaseName);

TEST(Calculator, KeepsAMemory)
{
    Calculator calculator;
    for (const char key : {'7', '*', '6', '='}) {
        calculator.Press(key);
    }
    calculator.Press(CalculatorKey::MemoryAdd);
    calculator.Press('8');
    calculator.Press(CalculatorKey::MemoryAdd);
    calculator.Press(CalculatorKey::Clear);
    EXPECT_EQ(calculator.Display(), "0");
    EXPECT_TRUE(calculator.HasMemory());
    calculator.Press(CalculatorKey::MemoryRecall);
    EXPECT_EQ(calculator.Display(), "50");
    calculator.Press(CalculatorKey::MemoryClear);
    EXPECT_FALSE(calculator.HasMemory());
}

TEST(Calculator, TakesBackKeysAndEntries)
{
    Calculator calculator;
    for (const char key : {'9', '+', '1', '2'}) {
        calculator.Press(key);
    }
    calculator.Press(CalculatorKey::Backspace);
    EXPECT_EQ(calculator.Display(), "1");
    calculator.Press(CalculatorKey::ClearEntry);
    calculator.Press('5');
    calculator.Press('=');
    EXPECT_EQ(calculator.Display(), "14");
    calculator.Press(CalculatorKey::Backspace);  // a result is not typed
    EXPECT_EQ(calculator.Display(), "14");
}

TEST(Calculator, GivesANumberToInsertWhateverIsShown)
{
    Calculator calculator;
    for (const char key : std::string_view("13' 3-1/2\"")) {
        calculator.Press(key);
    }
    EXPECT_EQ(calculator.ValueText(), "13.2917");
    calculator.Press('/');
    calculator.Press('0');
    calculator.Press('=');
    EXPECT_EQ(calculator.ValueText(), "");
    calculator.Press(CalculatorKey::Clear);
    EXPECT_EQ(calculator.ValueText(), "0");
}

}  // namespace
}  // namespace kordavan
