#pragma once

#include "core/Message.h"
#include "design/Session.h"

namespace kordavan {

/// Fills the sheet from the member tested last and the beam it was tested on. Shapes of steel without a
/// bending regime, and user's values of two kinds at once, are told; the sheet is filled all the same.
DataSheet FillDataRecord(const Session& session, CalendarDay today, UserPort& user);

}  // namespace kordavan
