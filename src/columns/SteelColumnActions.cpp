#include <algorithm>
#include <cmath>

#include "columns/ColumnCriteria.h"
#include "columns/SteelColumn.h"

namespace kordavan {

namespace {

constexpr std::string_view SizeBox = "StlColSizeText";
constexpr std::string_view GradeBox = "StlColGrade";

constexpr std::string_view EnterSize = "Please enter a steel column size above.";
constexpr std::string_view EnterListedSize =
    "Please enter a steel column size that matches a size from the Kordavan database.";
constexpr std::string_view HowToEnter =
    "  Click on a 'quick pick' button under Square Tubes or Round Pipe. You may edit the column size by typing "
    "in any valid square or round column size available in Kordavan.  To see available sizes, click on the "
    "raised gray square next to the 'Size' above.";
constexpr std::string_view NoMatch =
    "Kordavan could not find a match in the database for the size entered. Please click the small, gray, "
    "raised button next to 'Size' to see a list of acceptable entries.";
constexpr std::string_view TooLarge =
    "Overflow: the load or the unbraced length entered is too large for this size to be calculated.";

bool IsFinite(const SteelColumnResult& result)
{
    return std::isfinite(result.KLoverR) && std::isfinite(result.RequiredArea) &&
           std::isfinite(result.ActualStress);
}

std::string_view WithoutBlanksAround(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view{}
                                           : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string RefusalText(std::string_view request)
{
    return std::string(request) + std::string(HowToEnter);
}

/// Tells what is wrong with a size and grade that no row has.
Outcome RefuseUnlisted(std::string_view size, UserPort& user)
{
    const auto rows = SteelColumnRows();
    const bool isListed =
        std::any_of(rows.begin(), rows.end(), [size](const SteelColumnRow& row) { return row.Size == size; });
    return isListed ? Refuse(user, Refusal(NoMatch, GradeBox))
                    : Refuse(user, Refusal(RefusalText(EnterListedSize), SizeBox));
}

}  // namespace

const std::string& PickedSteelSize(const SteelColumnPicks& picks, SteelColumnKind kind, std::size_t tube)
{
    switch (kind) {
        case SteelColumnKind::Standard:
            return picks.StdRndBut;
        case SteelColumnKind::ExtraStrong:
            return picks.ExtraRndbut;
        case SteelColumnKind::DoubleExtraStrong:
            return picks.DblRndBut;
        case SteelColumnKind::Tube:
            break;
    }
    return picks.TubeCol.at(tube);
}

Outcome CalculateSteelColumn(ColumnSession& columns, UserPort& user)
{
    if (ValidateColumnProblem(columns.Entry, ColumnFace::Steel, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    columns.SteelProblem = ReadSteelColumnProblem(columns.Entry);
    columns.SteelPicks = SearchSteelColumns(columns.SteelProblem);
    columns.StlColSizeText.clear();
    columns.StlColGrade.clear();
    columns.SteelTest.reset();
    return Outcome::Done;
}

Outcome PickSteelColumn(ColumnSession& columns, SteelColumnKind kind, std::size_t tube, UserPort& user)
{
    columns.StlColSizeText = PickedSteelSize(columns.SteelPicks, kind, tube);
    if (columns.StlColSizeText.empty()) {
        columns.StlColGrade.clear();
        columns.SteelTest.reset();
        return Outcome::Done;
    }
    columns.StlColGrade = SteelColumnRows()[RowsOfKind(kind).First].TypeAndGrade;
    return ReportEnteredSteelColumn(columns, user);
}

Outcome ReportEnteredSteelColumn(ColumnSession& columns, UserPort& user)
{
    const std::string_view size = WithoutBlanksAround(columns.StlColSizeText);
    const std::string_view grade = WithoutBlanksAround(columns.StlColGrade);
    if (size.empty() || grade.empty()) {
        return Refuse(user, Refusal(RefusalText(EnterSize), size.empty() ? SizeBox : GradeBox));
    }
    const auto rows = SteelColumnRows();
    const auto row = std::find_if(rows.begin(), rows.end(), [size, grade](const SteelColumnRow& candidate) {
        return candidate.Size == size && candidate.TypeAndGrade == grade;
    });
    if (row == rows.end()) {
        return RefuseUnlisted(size, user);
    }
    const auto place = static_cast<std::size_t>(row - rows.begin());
    const SteelColumnResult result = WorkOutSteelColumn(columns.SteelProblem, place);
    if (!IsFinite(result)) {
        return Refuse(user, Refusal(TooLarge, SizeBox));
    }
    columns.SteelTest = SteelColumnTest{.Problem = columns.SteelProblem,
                                        .Result = result,
                                        .Size = std::string(row->Size),
                                        .TypeAndGrade = std::string(row->TypeAndGrade)};
    return Outcome::Done;
}

}  // namespace kordavan
