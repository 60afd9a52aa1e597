#pragma once

#include <string_view>

#include "core/Message.h"
#include "design/Session.h"

namespace kordavan {

/// Where a shape is named: on the selection screen, or by stepping on the report.
enum class SteelTestMode { FromSelection, FromStepping };

/// How a test ended. A beam whose shears cannot be compared leads back to its criteria.
enum class SteelTestEnd { Done, Refused, BackToCriteria };

/// Tests the named shape of the family in hand, whether it passes or fails, on the beam of the session.
///
/// Needs a calculate action and PrepareSteel before. Its results replace those of the last test; a refused
/// test, whose message the user hears, leaves them as they were. Section and shear pass on equality.
SteelTestEnd TestNamedShape(Session& session, std::string_view name, SteelTestMode mode, UserPort& user);

/// Reads what the shapes are held to from the entries.
void PrepareSteel(Session& session);

}  // namespace kordavan
