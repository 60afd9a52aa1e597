#include "core/Message.h"

namespace kordavan {

namespace {

Message Compose(MessageKind kind, std::string_view text, std::string_view focus)
{
    Message message;
    message.Kind = kind;
    message.Text = text;
    message.Focus = focus;
    return message;
}

}  // namespace

Message Refusal(std::string_view text, std::string_view focus)
{
    return Compose(MessageKind::Refusal, text, focus);
}

Message Alert(std::string_view text, std::string_view focus)
{
    return Compose(MessageKind::Alert, text, focus);
}

Message Question(std::string_view text)
{
    return Compose(MessageKind::Question, text, {});
}

Message RiskyQuestion(std::string_view text)
{
    Message question = Question(text);
    question.IsRisky = true;
    return question;
}

Message Marked(Message message, MessageIcon icon)
{
    message.Icon = icon;
    return message;
}

Outcome Refuse(UserPort& user, const Message& message)
{
    user.Tell(message);
    return Outcome::Refused;
}

std::string BoxName(std::string_view array, std::size_t index)
{
    std::string name(array);
    name.push_back('[');
    name += std::to_string(index);
    name.push_back(']');
    return name;
}

}  // namespace kordavan
