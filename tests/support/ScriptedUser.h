#pragma once

#include <gmock/gmock.h>

#include <ostream>
#include <queue>
#include <string_view>
#include <vector>

#include "core/Message.h"

namespace kordavan {

inline void PrintTo(const Message& message, std::ostream* out)
{
    *out << "{" << message.Title << ": " << message.Text << " -> " << message.Focus << "}";
}

/// A person whose answers are known ahead, and who remembers every word. An unexpected question fails the
/// test.
class ScriptedUser : public UserPort {
public:
    void Tell(const Message& message) override { Told.push_back(message); }

    bool Ask(const Message& question) override
    {
        Told.push_back(question);
        if (answers.empty()) {
            ADD_FAILURE() << "unexpected question: " << question.Text;
            return false;
        }
        const bool answer = answers.front();
        answers.pop();
        return answer;
    }

    void WillAnswer(bool yes) { answers.push(yes); }

    std::vector<Message> Told;

private:
    std::queue<bool> answers;
};

inline auto MessageOf(MessageKind kind, std::string_view text, std::string_view focus)
{
    using testing::Field;
    return testing::AllOf(Field("Kind", &Message::Kind, kind), Field("Text", &Message::Text, text),
                          Field("Focus", &Message::Focus, focus));
}

inline auto RefusalOf(std::string_view text, std::string_view focus = "")
{
    return MessageOf(MessageKind::Refusal, text, focus);
}

inline auto AlertOf(std::string_view text, std::string_view focus = "")
{
    return MessageOf(MessageKind::Alert, text, focus);
}

}  // namespace kordavan
