#pragma once

#include <optional>
#include <string>

#include "core/Message.h"
#include "records/RecoveryCopy.h"

namespace kordavan {

/// Asks whether the entries of a copy that was left behind are wanted back. A Yes puts them in the place of
/// the work at hand; the copy stays until the next one is written. A No deletes it. One that cannot be read
/// is told and set aside, with nothing taken from it.
/// @return the name of the form that was in front; none where nothing was taken
std::optional<std::string> OfferRecovery(const std::string& path, const WorkAtHand& work, UserPort& user);

}  // namespace kordavan
