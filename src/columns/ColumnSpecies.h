#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "columns/ColumnProblem.h"
#include "core/NdsEdition.h"

namespace kordavan {

/// The name that stands for values of the user's own.
inline constexpr std::string_view CustomSpecies = "Custom";

/// Reference values of dimension lumber, 2 to 4 in. thick.
struct DimensionValues {
    std::string_view Name;
    float Fc;  // psi, parallel to grain
    float E;   // millions of psi
    float Fc1997;
    float Fb;
};

/// Base values of a column.
struct ColumnBaseValues {
    float Fc = 0;  // psi
    float E = 0;   // millions of psi
    bool IsTimberRow =
        false;  // a Southern Pine name among dimension lumber, whose values are those of timbers
};

/// The names offered for a group of values, in the order of their tables, "Custom" last.
std::vector<std::string_view> ColumnSpeciesNames(ColumnValueGroup group);

/// The values of a name in a group; none for "Custom" and names that the group does not have.
std::optional<ColumnBaseValues> FindColumnValues(std::string_view name, ColumnValueGroup group,
                                                 Edition edition);

/// The names offered for studs, "Custom" last.
std::vector<std::string_view> StudSpeciesNames();

/// The row of dimension lumber with this name, or none.
const DimensionValues* FindDimensionValues(std::string_view name);

/// Whether the name is one of the Stud grades of dimension lumber.
bool IsStudGrade(std::string_view name);

/// Fc of a row in an edition, psi.
float FcOfEdition(const DimensionValues& row, Edition edition);

}  // namespace kordavan
