#pragma once

#include "core/Message.h"
#include "design/Session.h"

namespace kordavan {

/// Why a quick pick offers no depth.
enum class PickState { Filled, UnderLadder, PastLadder, NonePasses, NotTested, NotEntered };

/// Walks from the depth of an entry to the smallest of its breadth that passes every check of the analysed
/// beam: down while the next smaller size passes, up while the test fails. The entry is left at that depth,
/// the session at its test.
PickState WalkToSmallest(Session& session, MemberEntry& entry, UserPort& user);

}  // namespace kordavan
