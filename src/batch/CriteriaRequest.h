#pragma once

#include "batch/Json.h"
#include "core/BeamProblem.h"
#include "core/Message.h"

namespace kordavan {

/// Reads the entries of a criteria form into a new problem, each through its box's rule as if typed: what the
/// rule would clear becomes an alert and an empty box.
void ReadCriteria(const JsonValue& criteria, const FieldPath& path, BeamProblem& problem, UserPort& user);

}  // namespace kordavan
