#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kordavan {

/// Characters of a figure's cell on a column's record.
inline constexpr std::size_t FigureLength = 6;

/// A figure that its cell holds whole. Where the format makes it too long it goes without thousands commas,
/// then with fewer decimals, then by a power of ten, such as "4.8E7". Not finite gives an empty text.
std::string CellNumber(double value, std::string_view format, std::size_t length = FigureLength);

/// The same of a stored figure, as its decimals read.
std::string CellNumber(float value, std::string_view format, std::size_t length = FigureLength);

/// A stress in psi: whole pounds, with decimals where there are few of them.
std::string CellStress(float psi);

/// A figure's text that its cell holds whole: without its thousands commas or by a power of ten where it is
/// too long. A text that is no figure stays as it is.
std::string CellText(std::string_view text, std::size_t length = FigureLength);

/// A ratio told in per cent: "over 100%" as ">100%", and one that has no room as ">9999%".
std::string CellPercent(std::string_view text);

}  // namespace kordavan
