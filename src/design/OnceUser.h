#pragma once

#include <set>
#include <string>

#include "core/Message.h"

namespace kordavan {

/// Passes on each text once; what every cell of the quick picks meets is not told two dozen times.
class OnceUser : public UserPort {
public:
    explicit OnceUser(UserPort& port) : user(port) {}

    void Tell(const Message& message) override
    {
        if (told.insert(message.Text).second) {
            user.Tell(message);
        }
    }

    bool Ask(const Message& question) override { return user.Ask(question); }

private:
    UserPort& user;
    std::set<std::string> told;
};

}  // namespace kordavan
