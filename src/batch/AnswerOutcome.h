#pragma once

#include <string_view>

#include "batch/AnswerWriter.h"
#include "batch/CollectingUser.h"
#include "batch/Json.h"

namespace kordavan {

/// The id, if the request has one, and the status.
void WriteHead(const JsonValue* id, std::string_view status, AnswerWriter& answer);

/// Status, messages and, where the run was refused, the message that did it, which is always the last.
void WriteOutcome(const JsonValue* id, const CollectingUser& user, bool isDone, AnswerWriter& answer);

}  // namespace kordavan
