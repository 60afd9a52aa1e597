#include "batch/AnswerOutcome.h"

namespace kordavan {

void WriteHead(const JsonValue* id, std::string_view status, AnswerWriter& answer)
{
    if (id != nullptr) {
        answer.Field("id", *id);
    }
    answer.Field("status", status);
}

void WriteOutcome(const JsonValue* id, const CollectingUser& user, bool isDone, AnswerWriter& answer)
{
    WriteHead(id, isDone ? "done" : "refused", answer);
    answer.Messages("messages", user.Heard());
    if (!isDone && !user.Heard().empty()) {
        answer.MessageField("refusal", user.Heard().back());
    }
}

}  // namespace kordavan
