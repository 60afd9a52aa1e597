#pragma once

#include "batch/AnswerWriter.h"
#include "design/DataSheet.h"
#include "design/SelectionRecord.h"

namespace kordavan {

/// Today by the clock and the time zone of this machine.
CalendarDay LocalToday();

/// The cells of a Data Record by the names of their labels, and its notes.
void WriteRecord(const DataSheet& sheet, AnswerWriter& answer);

}  // namespace kordavan
