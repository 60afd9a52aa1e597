#pragma once

#include <string>
#include <string_view>

#include "columns/ColumnChecks.h"
#include "columns/ColumnProblem.h"
#include "columns/ColumnSession.h"
#include "core/Message.h"
#include "core/NdsEdition.h"
#include "design/Session.h"

namespace kordavan {

/// Takes the picked name with its base values. "Custom" clears the values for entry; a name without values in
/// the group keeps what stands there.
void PickColumnSpecies(ColumnEntry& entry, std::string_view name, Edition edition);

/// What is to be said of the name in the entry: that the values of a Southern Pine name are those of timbers.
/// Empty once the user has typed others, and for all other names.
std::string ColumnSpeciesNote(const ColumnEntry& entry, Edition edition);

/// Values picked from the tables follow the edition that comes into force; typed ones stay.
void ChangeColumnEdition(ColumnEntry& entry, Edition from, Edition to);

/// Lets the picked values of all kinds follow another edition in force.
void FollowEdition(ColumnSession& columns, Edition inForce);

/// Which reaction of the current beam a column is to carry.
struct ReactionChoice {
    bool IsSecond = false;
    bool IsDoubled = false;
};

/// Takes a reaction of the beam as the axial load: with the weight of the member tested last, or of the
/// applied loads while none is. Refused while nothing has been calculated.
Outcome ImportReaction(const Session& beam, const ReactionChoice& choice, ColumnEntry& entry, UserPort& user);

/// The OK command of the wood face: checks the entries and searches the grid of sizes; a size tested before
/// is withdrawn. A refusal changes nothing but the mark of a braced plane D1.
Outcome CalculateWoodColumn(ColumnSession& columns, Edition edition, UserPort& user);

/// A blank column of every kind, without searches and tests; face, project and records stay.
void StartNewColumn(ColumnSession& columns);

}  // namespace kordavan
