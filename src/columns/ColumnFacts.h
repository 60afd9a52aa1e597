#pragma once

#include <string>
#include <vector>

#include "columns/ColumnProblem.h"
#include "columns/SteelColumnResult.h"
#include "core/NdsEdition.h"

namespace kordavan {

/// What a size has to carry, one fact to a text such as "Axial load 8,000 lb": load, height, effective
/// lengths, edition, species and grade.
std::vector<std::string> WoodColumnFacts(const ColumnProblem& problem, Edition edition);

/// The same of a steel column: reaction, K, unbraced length.
std::vector<std::string> SteelColumnFacts(const SteelColumnProblem& problem);

}  // namespace kordavan
