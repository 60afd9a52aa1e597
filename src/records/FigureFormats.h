#pragma once

#include <string_view>

namespace kordavan {

/// How the records of columns, studs and notches write their figures.
inline constexpr std::string_view LengthFormat = "#,##0.0##";
inline constexpr std::string_view FactorFormat = "0.00#";
inline constexpr std::string_view StressFormat = "#,##0.0";

}  // namespace kordavan
