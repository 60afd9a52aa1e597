#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kordavan {

/// A text of a few characters that can be made at compile time.
class ShortText {
public:
    constexpr void Append(char c) { characters[count++] = c; }
    constexpr std::string_view View() const { return {characters.data(), count}; }

private:
    std::array<char, 12> characters{};
    std::size_t count = 0;
};

constexpr int SixteenthsPerInch = 16;

/// Inches as the trade writes them, whole number, hyphen, fraction: 190 sixteenths are "11-7/8".
constexpr ShortText InchesText(int sixteenths)
{
    const auto appendNumber = [](ShortText& text, int number) {
        int place = 1;
        while (number / place >= 10) {
            place *= 10;
        }
        for (; place > 0; place /= 10) {
            text.Append(static_cast<char>('0' + number / place % 10));
        }
    };
    ShortText text;
    const int whole = sixteenths / SixteenthsPerInch;
    int numerator = sixteenths % SixteenthsPerInch;
    if (whole > 0 || numerator == 0) {
        appendNumber(text, whole);
    }
    if (numerator == 0) {
        return text;
    }
    if (whole > 0) {
        text.Append('-');
    }
    int denominator = SixteenthsPerInch;
    while (numerator % 2 == 0) {
        numerator /= 2;
        denominator /= 2;
    }
    appendNumber(text, numerator);
    text.Append('/');
    appendNumber(text, denominator);
    return text;
}

static_assert(InchesText(190).View() == "11-7/8");

/// Inches of a whole number, a fraction, or both with a hyphen between: "11-7/8" is 11.875.
constexpr double InchesOf(std::string_view text)
{
    double whole = 0;
    double number = 0;
    double numerator = 0;
    for (const char c : text) {
        if (c == '-') {
            whole = number;
            number = 0;
        } else if (c == '/') {
            numerator = number;
            number = 0;
        } else {
            number = 10 * number + (c - '0');
        }
    }
    return numerator > 0 ? whole + numerator / number : number;
}

static_assert(InchesOf("11-7/8") == 11.875 && InchesOf("14") == 14);

/// The same of a decimal; a length between the sixteenths is given as a plain number.
std::string InchesText(double inches);

}  // namespace kordavan
