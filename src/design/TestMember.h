#pragma once

#include "design/Session.h"

namespace kordavan {

/// How a test is meant.
struct TestOptions {
    bool QuietTest = false;  // one of many: repetitive use is no reason to refuse a timber or glulam
};

/// Tests one member of wood, sawn, glued or composite, of listed or of the user's own values, on the beam of
/// the session.
///
/// Needs a calculate action before. Its results replace those of the last test; a refused test, whose message
/// the user hears, leaves them as they were. Every check passes on equality.
Outcome TestMember(Session& session, const MemberEntry& entry, TestOptions options, UserPort& user);

}  // namespace kordavan
