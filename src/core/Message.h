#pragma once

#include <string>
#include <string_view>

namespace kordavan {

inline constexpr std::string_view ProgramName = "Kordavan";

/// A refusal stops the run, an alert lets it go on, a question decides by Yes or No.
enum class MessageKind { Refusal, Alert, Question };

enum class MessageIcon { None, Warning, Information };

/// What the person is told: plain words and, for a refusal, the box to look at ("PT[2]", or none).
struct Message {
    MessageKind Kind = MessageKind::Alert;
    std::string Title{ProgramName};
    std::string Text;
    std::string Focus;
    MessageIcon Icon = MessageIcon::None;
    bool IsRisky = false;  // a Yes loses something, so No is offered first
};

Message Refusal(std::string_view text, std::string_view focus = {});
Message Alert(std::string_view text, std::string_view focus = {});
Message Question(std::string_view text);

/// A question whose Yes loses something.
Message RiskyQuestion(std::string_view text);

/// The message with another icon.
Message Marked(Message message, MessageIcon icon);

enum class Outcome { Done, Refused };

/// The one way by which engine and screens speak to the person at the desk.
class UserPort {
public:
    UserPort() = default;
    UserPort(const UserPort&) = delete;
    UserPort& operator=(const UserPort&) = delete;
    virtual ~UserPort() = default;

    virtual void Tell(const Message& message) = 0;
    virtual bool Ask(const Message& question) = 0;  // true for Yes
};

/// Tells the message and gives Refused, for the caller to return.
Outcome Refuse(UserPort& user, const Message& message);

/// The name of a member of a control array, such as "PT[2]".
std::string BoxName(std::string_view array, std::size_t index);

}  // namespace kordavan
