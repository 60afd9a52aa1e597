#pragma once

#include "batch/AnswerWriter.h"
#include "batch/Json.h"

namespace kordavan {

/// Answers a request of the task "stud".
void AnswerStud(const JsonValue& request, const JsonValue* id, AnswerWriter& answer);

}  // namespace kordavan
