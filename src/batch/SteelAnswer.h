#pragma once

#include "batch/AnswerWriter.h"
#include "design/Session.h"
#include "design/SteelTexts.h"

namespace kordavan {

/// Size, state and verdict of the shape tested last.
void WriteSteelTest(const Session& session, AnswerWriter& answer);

/// The candidates of a scan, in their order.
void WriteSteelSlots(const SteelSelection& picks, AnswerWriter& answer);

/// The texts of the steel selection screen.
void WriteSteelLabels(const SteelSelectionTexts& texts, AnswerWriter& answer);

}  // namespace kordavan
