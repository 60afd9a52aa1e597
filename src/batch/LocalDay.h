#pragma once

#include "design/SelectionRecord.h"

namespace kordavan {

/// Today by the clock and the time zone of this machine.
CalendarDay LocalToday();

}  // namespace kordavan
