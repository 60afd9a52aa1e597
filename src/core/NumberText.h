#pragma once

#include <string>
#include <string_view>

namespace kordavan {

/// Rounds to the 32-bit float in which results are kept.
constexpr float Single(double value)
{
    return static_cast<float>(value);
}

/// The number at the beginning of a text: blanks, sign, digits, point, exponent; what follows is ignored,
/// so "1,200" reads as 1. Reads 0 where the text does not begin with a number a double can hold.
double Val(std::string_view text);

/// True when the whole text, blanks around it aside, is one finite number. Empty text is not.
bool IsNumeric(std::string_view text);

/// A number by a format text of '#', '0', ',' and one '.': '0' always shows a digit, '#' only one that is
/// there, a ',' among the whole digits asks for thousands commas. Halves are rounded away from zero as the
/// number reads in decimal, at most 15 digits of it (2.675 by "0.00" is "2.68"). A value that is not finite
/// gives an empty text.
std::string FormatNumber(double value, std::string_view format);
std::string FormatNumber(float value, std::string_view format);

/// A number as one would type it: at most 15 significant digits for a double, the shortest text that reads
/// back the same for a float; no exponent between 1e-4 and 1e15. Not finite gives an empty text.
std::string PlainNumber(double value);
std::string PlainNumber(float value);

}  // namespace kordavan
