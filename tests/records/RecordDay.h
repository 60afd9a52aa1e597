#pragma once

#include "design/SelectionRecord.h"

namespace kordavan {

/// The day on which the records of the tests are made.
inline constexpr CalendarDay Day{.Year = 2026, .Month = 3, .Day = 7};

}  // namespace kordavan
