#pragma once

#include "core/Message.h"

class QMessageBox;

namespace kordavan {

/// Speaks to the person by beep and message box, one at a time.
class DialogUser : public UserPort {
public:
    void Tell(const Message& message) override;
    bool Ask(const Message& question) override;

private:
    int Show(QMessageBox& box, const Message& message);

    bool isSpeaking = false;
};

}  // namespace kordavan
