#pragma once

#include <optional>

#include "columns/ColumnSession.h"
#include "columns/StudMoment.h"
#include "columns/StudProblem.h"
#include "columns/StudResult.h"
#include "core/Message.h"
#include "core/NdsEdition.h"

namespace kordavan {

/// Checks a stud under axial load and wind, NDS 3.6, 3.7, 3.9.2 and 3.3.3. Told and refused: entries that do
/// not pass their checks, a Stud grade 7.25 in. deep, arithmetic without a finite result.
/// @param entry  what a check fills in or unchecks is changed there
std::optional<StudTest> TestStud(StudEntry& entry, Edition edition, UserPort& user);

/// The OK command of the stud face; a refusal leaves the last results.
Outcome CalculateStud(ColumnSession& columns, Edition edition, UserPort& user);

/// Works a stud that was just loaded out again, so that its record can be shown at once. Nothing is told: one
/// whose entries would be refused or changed waits for the OK command.
void RecallStud(ColumnSession& columns, Edition edition);

}  // namespace kordavan
