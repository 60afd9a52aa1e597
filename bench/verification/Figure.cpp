#include "Figure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace kordavan::Verification {

namespace {

constexpr int SignificantDigits = 6;

}  // namespace

std::string Fixed(double value, int decimals)
{
    std::array<char, 64> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, decimals)
            .ptr;
    const std::string text(digits.data(), end);
    const bool isZero = text.find_first_not_of("-0.") == std::string::npos;
    return isZero && text.front() == '-' ? text.substr(1) : text;
}

std::string Figure(double value)
{
    const int beforePoint = value == 0 ? 1 : static_cast<int>(std::floor(std::log10(std::abs(value)))) + 1;
    const int decimals = std::max(0, SignificantDigits - beforePoint);
    std::string text = Fixed(value, decimals);
    if (decimals > 0) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') {
            text.pop_back();
        }
    }
    return text;
}

std::string Signed(double percent, int decimals)
{
    const std::string text = Fixed(percent, decimals);
    const bool isZero = text.find_first_not_of("0.") == std::string::npos;
    return isZero || text.front() == '-' ? text : "+" + text;
}

}  // namespace kordavan::Verification
