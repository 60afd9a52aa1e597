#pragma once

#include <optional>
#include <string>

#include "columns/ColumnSession.h"
#include "columns/StudProblem.h"
#include "columns/StudResult.h"
#include "core/Message.h"
#include "core/NdsEdition.h"

namespace kordavan {

/// Moment of the wind at 201 stations of a simple beam of the stud's height, its reaction and the top of its
/// last rise, by statics.
struct StudMoment {
    StudStationTable Stations{};
    float R1 = 0;
    float MaxMoment = 0;
    float MaxMomentAtFt = 0;
};
StudMoment ComputeStudMoment(const StudColumnProblem& problem);

/// Checks a stud under axial load and wind, NDS 3.6, 3.7, 3.9.2 and 3.3.3. Told and refused: entries that do
/// not pass their checks, a Stud grade 7.25 in. deep, arithmetic without a finite result.
/// @param entry  what a check fills in or unchecks is changed there
std::optional<StudTest> TestStud(StudEntry& entry, Edition edition, UserPort& user);

/// The OK command of the stud face; a refusal leaves the last results.
Outcome CalculateStud(ColumnSession& columns, Edition edition, UserPort& user);

/// What to say where the moment worked with is not the greatest in size: a later, lower peak, or suction.
/// Empty where it is.
std::string StudMomentWarning(const StudTest& test);

}  // namespace kordavan
