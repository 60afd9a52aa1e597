#pragma once

#include <optional>

#include "core/BeamNumbers.h"
#include "core/Message.h"

namespace kordavan {

/// The first load whose live part is larger than its total, as the refusal to tell: point loads, then partial
/// loads, then the uniform load.
std::optional<Message> LiveAboveTotal(const LoadNumbers& loads);

/// A refusal of the kind that begins with a line of its own, "Attention:", and bears the warning sign.
Message AttentionRefusal(std::string_view text, std::string_view focus);

}  // namespace kordavan
