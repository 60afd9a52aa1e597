#pragma once

#include <vector>

#include "core/Message.h"

namespace kordavan {

/// A person who hears everything and gives one answer to every question.
class CollectingUser : public UserPort {
public:
    void AnswerWith(bool answersYes) { yes = answersYes; }

    void Tell(const Message& message) override { heard.push_back(message); }

    bool Ask(const Message& question) override
    {
        heard.push_back(question);
        return yes;
    }

    const std::vector<Message>& Heard() const { return heard; }

private:
    bool yes = true;
    std::vector<Message> heard;
};

}  // namespace kordavan
