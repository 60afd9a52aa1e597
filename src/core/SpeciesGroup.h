#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace kordavan {

/// Material groups in the order of their list on the criteria form; the value is the list position.
enum class SpeciesGroup {
    HemFirDouglasFir,
    CedarWesternWoods,
    EasternSpecies,
    DouglasFirSouthNorth,
    SprucePineFir,
    SouthernPine,
    Oak,
    Scl,
    Custom,
    Steel
};

struct SpeciesGroupRow {
    SpeciesGroup Group;
    std::string_view Text;  // in the list
    int Number;             // the group's own number, older than the order of the list
};

inline constexpr std::array SpeciesGroups{
    SpeciesGroupRow{SpeciesGroup::HemFirDouglasFir, "Hem Fir / DF-Larch", 0},
    SpeciesGroupRow{SpeciesGroup::CedarWesternWoods, "Cedar / Western Woods", 3},
    SpeciesGroupRow{SpeciesGroup::EasternSpecies, "Eastern Species", 4},
    SpeciesGroupRow{SpeciesGroup::DouglasFirSouthNorth, "DF South / DF North", 1},
    SpeciesGroupRow{SpeciesGroup::SprucePineFir, "SPF / SPF South", 2},
    SpeciesGroupRow{SpeciesGroup::SouthernPine, "Southern Pine", 5},
    SpeciesGroupRow{SpeciesGroup::Oak, "Red Oak / White Oak", 6},
    SpeciesGroupRow{SpeciesGroup::Scl, "SCL Beams (LVL, PSL, LSL)", 7},
    SpeciesGroupRow{SpeciesGroup::Custom, "Custom Wood Values", 8},
    SpeciesGroupRow{SpeciesGroup::Steel, "Steel Beams", 9},
};

/// Groups whose design values the user enters.
constexpr bool HasOwnValues(SpeciesGroup group)
{
    return group == SpeciesGroup::Scl || group == SpeciesGroup::Custom;
}

/// Composite lumber and steel are never incised.
constexpr bool IsIncisable(SpeciesGroup group)
{
    return group != SpeciesGroup::Scl && group != SpeciesGroup::Steel;
}

constexpr bool SpeciesGroupsStandInListOrder()
{
    for (std::size_t position = 0; position < SpeciesGroups.size(); ++position) {
        if (static_cast<std::size_t>(SpeciesGroups[position].Group) != position) {
            return false;
        }
    }
    return true;
}
static_assert(SpeciesGroupsStandInListOrder());

}  // namespace kordavan
