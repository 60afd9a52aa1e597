#pragma once

#include "batch/AnswerWriter.h"
#include "batch/Json.h"

namespace kordavan {

/// Answers a request to read a record file, or to write one, by the names of the record's fields.
void AnswerReadRecord(const JsonValue& request, const JsonValue* id, AnswerWriter& answer);
void AnswerWriteRecord(const JsonValue& request, const JsonValue* id, AnswerWriter& answer);

}  // namespace kordavan
