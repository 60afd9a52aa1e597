#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "columns/ColumnProblem.h"
#include "columns/ColumnResult.h"
#include "columns/ColumnSession.h"
#include "core/Message.h"
#include "core/NdsEdition.h"

namespace kordavan {

/// For each thickness the smallest width that carries the load, NDS 3.6 and 3.7, 15.3 for built-up columns.
/// @param carried  factors left by the candidate before, and then by the last of the search
ColumnGrid SearchColumnGrid(const ColumnProblem& problem, Edition edition, ColumnFactors& carried);

/// Tests one size. Texts that are no sizes above 0 are refused, as is what cannot be worked out.
/// @param D1Text  net thickness, in.
/// @param D2Text  net width, in.
std::optional<ColumnResult> TestColumnSize(std::string_view D1Text, std::string_view D2Text,
                                           const ColumnProblem& problem, Edition edition,
                                           ColumnFactors& carried, UserPort& user);

/// Which of the five thicknesses the type of the column offers: the first and the last one's place.
struct ThicknessRange {
    std::size_t First;
    std::size_t Last;

    constexpr bool Has(std::size_t index) const { return index >= First && index <= Last; }
};
ThicknessRange OfferedThicknesses(ColumnType type);

/// What stands over a quick pick, such as "(2) 2x"; empty where the type does not offer it.
std::string_view ThicknessHead(ColumnType type, std::size_t index);

/// Puts the size of a quick pick into the boxes, net; false where the pick is empty.
bool PickColumnSize(ColumnSession& columns, std::size_t index);

/// Tests the size in the boxes for the column last accepted; the test is kept for report and record. A
/// refusal leaves the last test.
Outcome TestEnteredColumn(ColumnSession& columns, Edition edition, UserPort& user);

}  // namespace kordavan
