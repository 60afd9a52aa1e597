#include "columns/ColumnProblem.h"

#include "columns/ColumnSpecies.h"
#include "core/NumberText.h"

namespace kordavan {

ColumnProblem ReadColumnProblem(const ColumnEntry& entry)
{
    const bool isDimension = entry.ValueGroup == ColumnValueGroup::DimensionLumber;
    return {.Reaction = Single(Val(entry.cReacText)),
            .ColumnHeight = Single(Val(entry.cHTtext)),
            .UnbracedD1 = Single(Val(entry.cD1text)),
            .UnbracedD2 = Single(Val(entry.cD2text)),
            .BaseFc = Single(Val(entry.cFcText)),
            .BaseE = Single(Val(entry.cEtext)),
            .BucklingKe = Single(Val(entry.cModeText)),
            .DurationCd = Single(Val(entry.cDurText)),
            .WetUse = entry.cWetButton,
            .Incised = entry.ColIncised,
            .D1FullyBraced = entry.ResetKf,
            .StudGrade = isDimension && IsStudGrade(entry.ColSpeciesCombo),
            .Type = entry.Type,
            .ValueGroup = entry.ValueGroup,
            .SpeciesGrade = entry.ColSpeciesCombo};
}

}  // namespace kordavan
