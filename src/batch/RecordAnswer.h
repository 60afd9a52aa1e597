#pragma once

#include "batch/AnswerWriter.h"
#include "design/DataSheet.h"

namespace kordavan {

/// The cells of a Data Record by the names of their labels, and its notes.
void WriteRecord(const DataSheet& sheet, AnswerWriter& answer);

}  // namespace kordavan
