#pragma once

#include "columns/ColumnProblem.h"
#include "columns/ColumnSession.h"
#include "core/Message.h"

namespace kordavan {

/// The checks of a column's entries in their order; the first that fails is told, names its box and ends
/// them. On the way a "0" in plane D1 marks the plane as fully braced, which stays. A steel column has those
/// of load, height, Ke and plane D1 alone. Last, numbers that no column has are refused.
Outcome ValidateColumnProblem(ColumnEntry& entry, ColumnFace face, UserPort& user);

}  // namespace kordavan
