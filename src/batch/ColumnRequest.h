#pragma once

#include "batch/Json.h"
#include "columns/ColumnProblem.h"
#include "core/NdsEdition.h"

namespace kordavan {

/// Reads the entries of a column; base values that are absent are those of the species. Fails on fields that
/// are unknown or of a wrong type.
void ReadColumnEntry(const JsonValue& column, const FieldPath& path, Edition edition, ColumnEntry& entry);

}  // namespace kordavan
