#include "core/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>

namespace kordavan {

namespace {

constexpr bool IsBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

constexpr bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t at)
{
    while (at < text.size() && IsDigit(text[at])) {
        ++at;
    }
    return at;
}

struct LeadingNumber {
    double Value = 0;
    std::size_t End = 0;  // one past the last character of the number
    bool Found = false;
};

/// End of the exponent that begins at `at`, or `at` when there is none.
std::size_t SkipExponent(std::string_view text, std::size_t at)
{
    if (at >= text.size() || std::string_view("eEdD").find(text[at]) == std::string_view::npos) {
        return at;
    }
    std::size_t digits = at + 1;
    if (digits < text.size() && (text[digits] == '+' || text[digits] == '-')) {
        ++digits;
    }
    const std::size_t end = SkipDigits(text, digits);
    return end > digits ? end : at;
}

std::errc Read(std::string_view spelled, double& value)
{
    return std::from_chars(spelled.data(), spelled.data() + spelled.size(), value).ec;
}

LeadingNumber Convert(std::string_view text, std::size_t begin, std::size_t end)
{
    LeadingNumber number{.Value = 0, .End = end, .Found = false};
    const std::string_view spelled = text.substr(begin, end - begin);
    if (spelled.find_first_of("dD") == std::string_view::npos) {
        number.Found = Read(spelled, number.Value) == std::errc{};
    } else {
        std::string withE(spelled);
        std::replace_if(
            withE.begin(), withE.end(), [](char c) { return c == 'd' || c == 'D'; }, 'e');
        number.Found = Read(withE, number.Value) == std::errc{};
    }
    if (!number.Found) {
        number.Value = 0;
    }
    return number;
}

LeadingNumber ScanNumber(std::string_view text)
{
    std::size_t at = 0;
    while (at < text.size() && IsBlank(text[at])) {
        ++at;
    }
    std::size_t begin = at;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
        begin = text[at] == '+' ? at + 1 : at;
        ++at;
    }
    const std::size_t wholeEnd = SkipDigits(text, at);
    std::size_t digits = wholeEnd - at;
    std::size_t end = wholeEnd;
    if (end < text.size() && text[end] == '.') {
        const std::size_t fractionEnd = SkipDigits(text, end + 1);
        digits += fractionEnd - end - 1;
        end = fractionEnd;
    }
    if (digits == 0) {
        return {};
    }
    return Convert(text, begin, SkipExponent(text, end));
}

struct NumberFormat {
    int LeastWhole = 0;     // whole digits always shown
    int LeastFraction = 0;  // decimals always shown
    int MostFraction = 0;   // decimals shown at most
    bool HasPoint = false;
    bool Grouped = false;
};

NumberFormat ReadFormat(std::string_view format)
{
    NumberFormat read;
    for (const char c : format) {
        if (c == '.') {
            read.HasPoint = true;
        } else if (c == ',') {
            read.Grouped = true;
        } else if (read.HasPoint) {
            ++read.MostFraction;
            if (c == '0') {
                read.LeastFraction = read.MostFraction;
            }
        } else if (c == '0' || read.LeastWhole > 0) {
            ++read.LeastWhole;
        }
    }
    return read;
}

/// Decimal digits d1 d2 d3 ... of a magnitude 0.d1d2d3... x 10^Exponent.
struct Decimal {
    std::array<char, 24> Digits{};
    int Count = 0;
    int Exponent = 0;
};

constexpr int SignificantDigits = 15;  // of a double, beyond which its digits are noise of its binary form

using NumberBuffer = std::array<char, 40>;

const char* SpellScientific(NumberBuffer& text, float magnitude)
{
    return std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific)
        .ptr;
}

const char* SpellScientific(NumberBuffer& text, double magnitude)
{
    return std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific,
                         SignificantDigits - 1)
        .ptr;
}

template <typename Float>
Decimal DecimalOf(Float magnitude)
{
    NumberBuffer text{};
    const char* const end = SpellScientific(text, magnitude);
    Decimal decimal;
    const char* at = text.data();
    for (; at != end && *at != 'e'; ++at) {
        if (*at != '.') {
            decimal.Digits[static_cast<std::size_t>(decimal.Count++)] = *at;
        }
    }
    ++at;
    if (at != end && *at == '+') {
        ++at;
    }
    std::from_chars(at, end, decimal.Exponent);
    ++decimal.Exponent;
    return decimal;
}

void DropTrailing(Decimal& decimal, char digit)
{
    while (decimal.Count > 0 && decimal.Digits[static_cast<std::size_t>(decimal.Count - 1)] == digit) {
        --decimal.Count;
    }
}

void RoundUpLastDigit(Decimal& decimal)
{
    DropTrailing(decimal, '9');
    if (decimal.Count > 0) {
        ++decimal.Digits[static_cast<std::size_t>(decimal.Count - 1)];
        return;
    }
    decimal.Digits[0] = '1';
    decimal.Count = 1;
    ++decimal.Exponent;
}

/// Keeps so many digits, halves rounded up; fewer than none leaves zero.
void RoundToCount(Decimal& decimal, int count)
{
    if (count < 0) {
        decimal.Count = 0;
    } else if (count < decimal.Count) {
        const bool up = decimal.Digits[static_cast<std::size_t>(count)] >= '5';
        decimal.Count = count;
        if (up) {
            RoundUpLastDigit(decimal);
        }
    }
    DropTrailing(decimal, '0');
    if (decimal.Count == 0) {
        decimal.Exponent = 0;
    }
}

char DigitAt(const Decimal& decimal, int place)
{
    const int index = decimal.Exponent - 1 - place;
    return index >= 0 && index < decimal.Count ? decimal.Digits[static_cast<std::size_t>(index)] : '0';
}

void AppendWhole(std::string& text, const Decimal& decimal, const NumberFormat& format)
{
    for (int place = std::max(decimal.Exponent, format.LeastWhole) - 1; place >= 0; --place) {
        text.push_back(DigitAt(decimal, place));
        if (format.Grouped && place > 0 && place % 3 == 0) {
            text.push_back(',');
        }
    }
}

void AppendFraction(std::string& text, const Decimal& decimal, const NumberFormat& format)
{
    if (!format.HasPoint) {
        return;
    }
    text.push_back('.');
    const int lastDigit = decimal.Count - decimal.Exponent;
    const int shown = std::clamp(lastDigit, format.LeastFraction, format.MostFraction);
    for (int place = 1; place <= shown; ++place) {
        text.push_back(DigitAt(decimal, -place));
    }
}

template <typename Float>
std::string Format(Float value, std::string_view format)
{
    if (!std::isfinite(value)) {
        return {};
    }
    const NumberFormat read = ReadFormat(format);
    Decimal decimal = DecimalOf(std::abs(value));
    RoundToCount(decimal, decimal.Exponent + read.MostFraction);
    std::string text;
    if (value < 0 && decimal.Count > 0) {
        text.push_back('-');
    }
    AppendWhole(text, decimal, read);
    AppendFraction(text, decimal, read);
    return text;
}

constexpr double LeastWithoutExponent = 1e-4;
constexpr double MostWithoutExponent = 1e15;

/// Bounds are compared as the number's own type holds them: a float of 0.0001 is below the double.
template <typename Number>
bool ReadsWithoutExponent(Number value)
{
    const Number magnitude = std::abs(value);
    return magnitude == 0 || (magnitude >= static_cast<Number>(LeastWithoutExponent) &&
                              magnitude < static_cast<Number>(MostWithoutExponent));
}

}  // namespace

double Val(std::string_view text)
{
    return text.empty() ? 0 : ScanNumber(text).Value;
}

bool IsNumeric(std::string_view text)
{
    const LeadingNumber number = ScanNumber(text);
    return number.Found &&
           std::all_of(text.begin() + static_cast<std::ptrdiff_t>(number.End), text.end(), IsBlank);
}

std::string FormatNumber(double value, std::string_view format)
{
    return Format(value, format);
}

std::string FormatNumber(float value, std::string_view format)
{
    return Format(value, format);
}

std::string PlainNumber(double value)
{
    if (!std::isfinite(value)) {
        return {};
    }
    NumberBuffer text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value == 0 ? 0.0 : value,
                                            std::chars_format::general, SignificantDigits);
    return {text.data(), end};
}

std::string PlainNumber(float value)
{
    if (!std::isfinite(value)) {
        return {};
    }
    const auto notation =
        ReadsWithoutExponent(value) ? std::chars_format::fixed : std::chars_format::scientific;
    NumberBuffer text{};
    const auto [end, error] =
        std::to_chars(text.data(), text.data() + text.size(), value == 0 ? 0.0F : value, notation);
    return {text.data(), end};
}

}  // namespace kordavan
