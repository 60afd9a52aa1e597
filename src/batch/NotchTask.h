#pragma once

#include "batch/AnswerWriter.h"
#include "batch/Json.h"

namespace kordavan {

/// Answers a request of the task "notch".
void AnswerNotch(const JsonValue& request, const JsonValue* id, AnswerWriter& answer);

}  // namespace kordavan
