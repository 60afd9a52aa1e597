#pragma once

#include "core/Message.h"

namespace kordavan {

/// Nobody is told.
class SilentUser : public UserPort {
public:
    void Tell(const Message& /*message*/) override {}
    bool Ask(const Message& /*question*/) override { return false; }
};

}  // namespace kordavan
