#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "columns/ColumnProblem.h"
#include "columns/ColumnResult.h"

namespace kordavan {

inline constexpr std::size_t ColumnWidthCount = 4;

using ColumnThicknesses = std::array<float, ColumnGrid::ThicknessCount>;  // net D1, in.
using ColumnWidths = std::array<float, ColumnWidthCount>;                 // net D2, in.

/// The thicknesses D1 that the search tries.
const ColumnThicknesses& ColumnThicknessesOf(ColumnType type);

/// The widths D2 that it tries with a thickness, in their order. 0.5 in. stands for a width that is not made.
const ColumnWidths& ColumnWidthsOf(ColumnType type, ColumnValueGroup group, std::size_t thickness);

/// Nominal width, in.: "4", "6", "8" or "10"; empty for a width of no list.
std::string_view NominalWidth(float net);

}  // namespace kordavan
