#include "columns/ColumnCriteria.h"

#include <algorithm>
#include <optional>

#include "columns/ColumnSpecies.h"
#include "columns/StudCriteria.h"
#include "columns/WoodColumn.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

/// The base values of the entry's name, if it has any.
std::optional<ColumnBaseValues> ValuesOf(const ColumnEntry& entry, Edition edition)
{
    return FindColumnValues(entry.ColSpeciesCombo, entry.ValueGroup, edition);
}

std::string FcText(const ColumnBaseValues& values)
{
    return PlainNumber(values.Fc);
}

std::string EText(const ColumnBaseValues& values)
{
    return FormatNumber(values.E, "0.0");
}

}  // namespace

void PickColumnSpecies(ColumnEntry& entry, std::string_view name, Edition edition)
{
    entry.ColSpeciesCombo = name;
    if (name == CustomSpecies) {
        entry.cFcText.clear();
        entry.cEtext.clear();
    } else if (const std::optional<ColumnBaseValues> values = ValuesOf(entry, edition)) {
        entry.cFcText = FcText(*values);
        entry.cEtext = EText(*values);
    }
}

std::string ColumnSpeciesNote(const ColumnEntry& entry, Edition edition)
{
    const std::optional<ColumnBaseValues> values = ValuesOf(entry, edition);
    const bool isTold =
        values && values->IsTimberRow && (entry.cFcText == FcText(*values) || entry.cEtext == EText(*values));
    return isTold ? "Southern Pine has no values of dimension lumber here: Fc and E are those of timbers."
                  : std::string{};
}

void ChangeColumnEdition(ColumnEntry& entry, Edition from, Edition to)
{
    const std::optional<ColumnBaseValues> before = ValuesOf(entry, from);
    const std::optional<ColumnBaseValues> after = ValuesOf(entry, to);
    if (before && after && entry.cFcText == FcText(*before)) {
        entry.cFcText = FcText(*after);
    }
}

void FollowEdition(ColumnSession& columns, Edition inForce)
{
    if (columns.ValuesOf && columns.ValuesOf != inForce) {
        ChangeColumnEdition(columns.Entry, *columns.ValuesOf, inForce);
        ChangeStudEdition(columns.Stud, *columns.ValuesOf, inForce);
    }
    columns.ValuesOf = inForce;
}

Outcome ImportReaction(const Session& beam, const ReactionChoice& choice, ColumnEntry& entry, UserPort& user)
{
    const AnalysisResult& analysis = beam.Analysis;
    const bool isTested = analysis.ShearMax > 0;
    const float R1 = isTested ? analysis.R1Total : analysis.R1Applied;
    const float R2 = isTested ? analysis.R2Total : analysis.R2Applied;
    const float governingShear = isTested ? analysis.ShearMax : std::max(R1, R2);
    if (governingShear <= 0) {
        return Refuse(user, Refusal("Cannot import reaction. Data Record is empty.", "cReacText"));
    }
    const float reaction = choice.IsSecond ? R2 : R1;
    entry.cReacText = choice.IsDoubled ? FormatNumber(2 * reaction, "####") : FormatNumber(reaction, "###0");
    return Outcome::Done;
}

Outcome CalculateWoodColumn(ColumnSession& columns, Edition edition, UserPort& user)
{
    if (ValidateColumnProblem(columns.Entry, ColumnFace::Wood, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    columns.Problem = ReadColumnProblem(columns.Entry);
    columns.Carried = ColumnFactors{};
    columns.ColD1Text.clear();
    columns.ColD2Text.clear();
    columns.WoodTest.reset();
    columns.Grid = SearchColumnGrid(columns.Problem, edition, columns.Carried);
    return Outcome::Done;
}

void StartNewColumn(ColumnSession& columns)
{
    columns.Identity.columnID.clear();
    columns.Identity.ColumnDescription.clear();
    columns.Entry = {};
    columns.Stud = {};
    columns.KeptStud = {};
    columns.Problem = {};
    columns.Carried = {};
    columns.Grid = {};
    columns.ColD1Text.clear();
    columns.ColD2Text.clear();
    columns.WoodTest.reset();
    columns.SteelProblem = {};
    columns.SteelPicks = {};
    columns.StlColSizeText.clear();
    columns.StlColGrade.clear();
    columns.SteelTest.reset();
    columns.StudRun.reset();
}

}  // namespace kordavan
