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

inline constexpr std::size_t SteelColumnRowCount = 27;

/// The catalogue: pipes by weight class, then tubes, each by size.
std::span<const SteelColumnRow, SteelColumnRowCount> SteelColumnRows();

/// The kinds of quick picks.
enum class SteelColumnKind { Standard, ExtraStrong, DoubleExtraStrong, Tube };

/// The rows of a kind in the catalogue.
struct SteelColumnRange {
    std::size_t First;
    std::size_t Count;
};

SteelColumnRange RowsOfKind(SteelColumnKind kind);

/// True of the rows that are tubes.
bool IsSteelTube(std::size_t row);

/// The types and grades of the catalogue, each once.
std::vector<std::string_view> SteelColumnGrades();

/// All sizes by type and grade, as a text to read.
std::string SteelColumnSizeList();

inline constexpr std::string_view NoSelfWeight =
    "Column self weight is ignored in Kordavan calculations because it is negligible in regards to the "
    "allowable loads.";

inline constexpr double SteelColumnE = 29000;           // ksi
inline constexpr float GreatestSteelSlenderness = 200;  // Kl/r

/// Numbers of the entries; a text that is none reads as 0.
SteelColumnProblem ReadSteelColumnProblem(const ColumnEntry& entry);

/// Slenderness and stress of one row, AISC ASD chapter E. Figures too large to be held are not finite.
SteelColumnResult WorkOutSteelColumn(const SteelColumnProblem& problem, std::size_t row);

/// The first rows of each kind that carry the load with something to spare.
SteelColumnPicks SearchSteelColumns(const SteelColumnProblem& problem);

/// The size that a quick pick shows.
/// @param tube  which of the square tubes
const std::string& PickedSteelSize(const SteelColumnPicks& picks, SteelColumnKind kind, std::size_t tube);

/// The OK command of the steel face: checks the entries and searches the sizes; the boxes of the size and the
/// report before are emptied. A refusal leaves the sizes and the report before.
Outcome CalculateSteelColumn(ColumnSession& columns, UserPort& user);

/// Puts the size of a quick pick into the boxes and reports on it; an empty pick empties both and the report.
/// @param tube  which of the three, of the tubes alone
Outcome PickSteelColumn(ColumnSession& columns, SteelColumnKind kind, std::size_t tube, UserPort& user);

/// Reports on the size in the boxes; a refusal leaves the report before. Blanks around a text do not count.
Outcome ReportEnteredSteelColumn(ColumnSession& columns, UserPort& user);

/// One shown text of the report, by its meaning.
struct SteelReportLine {
    std::string_view Name;
    std::string Text;
};

/// The texts of the report, in their order.
std::vector<SteelReportLine> SteelReportTexts(const SteelColumnTest& test);

}  // namespace kordavan
