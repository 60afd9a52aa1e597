#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "columns/StudProblem.h"
#include "core/Message.h"
#include "core/NdsEdition.h"

namespace kordavan {

/// The checks of a stud's entries in their order; the first that fails is told, names its box and ends them.
/// A missing spacing becomes 12 in. with a note; a missing duration factor is filled in and ends the run.
Outcome ValidateStudProblem(StudEntry& entry, UserPort& user);

/// The base values of a row as the boxes show them.
struct StudBaseTexts {
    std::string Fb;  // psi
    std::string Fc;  // psi
    std::string E;   // millions of psi
};

/// The base values of a name; none for "Custom" and names of no row.
std::optional<StudBaseTexts> FindStudBaseTexts(std::string_view name, Edition edition);

/// Takes the picked name with its base values; "Custom" clears them, a name of no row keeps them.
void PickStudSpecies(StudEntry& entry, std::string_view name, Edition edition);

/// Values picked from the table follow the edition that comes into force; typed ones stay.
void ChangeStudEdition(StudEntry& entry, Edition from, Edition to);

}  // namespace kordavan
