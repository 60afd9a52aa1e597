#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "columns/ColumnSession.h"
#include "columns/SteelColumnResult.h"
#include "core/Message.h"

namespace kordavan {

/// A steel pipe or square tube.
struct SteelColumnRow {
    std::string_view Size;
    std::string_view OutsideDimension;  // in.; of a tube both sides
    double WeightPerFoot;               // lb/ft
    double Area;                        // in^2
    double Radius;                      // of gyration, in.
    std::string_view TypeAndGrade;
};

std::span<const SteelColumnRow> SteelColumnRows();

inline constexpr std::string_view NoSelfWeight =
    "Column self weight is ignored in Kordavan calculations because it is negligible in regards to the "
    "allowable loads.";

/// Numbers of the entries; a text that is none reads as 0.
SteelColumnProblem ReadSteelColumnProblem(const ColumnEntry& entry);

/// Slenderness and stress of one row, AISC ASD chapter E.
SteelColumnResult WorkOutSteelColumn(const SteelColumnProblem& problem, std::size_t row);

/// The first row of each kind that carries the load with something to spare.
SteelColumnPicks SearchSteelColumns(const SteelColumnProblem& problem);

/// The OK command of the steel face: checks the entries and searches the sizes; the boxes of the size and the
/// report before are emptied. A refusal changes nothing.
Outcome CalculateSteelColumn(ColumnSession& columns, UserPort& user);

/// The kinds of quick picks.
enum class SteelColumnKind { Standard, ExtraStrong, DoubleExtraStrong, Tube };

/// Puts the size of a quick pick into the boxes and reports on it; an empty pick empties the grade and the
/// report.
/// @param tube  which of the three, of the tubes alone
Outcome PickSteelColumn(ColumnSession& columns, SteelColumnKind kind, std::size_t tube, UserPort& user);

/// Reports on the size in the boxes; a refusal leaves the report before.
Outcome ReportEnteredSteelColumn(ColumnSession& columns, UserPort& user);

/// One shown text of the report, by its meaning.
struct SteelReportLine {
    std::string_view Name;
    std::string Text;
};

/// The texts of the report, in their order.
std::vector<SteelReportLine> SteelReportTexts(const SteelColumnTest& test);

/// The types and grades of the catalogue, each once.
std::vector<std::string_view> SteelColumnGrades();

/// All sizes by type and grade, as a text to read.
std::string SteelColumnSizeList();

}  // namespace kordavan
