#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "core/Message.h"
#include "core/NdsEdition.h"
#include "notch/NotchResult.h"
#include "notch/NotchSession.h"

namespace kordavan {

/// The checks of a notch's entries in their order; the first that fails is told, names its box and ends them.
Outcome ValidateNotch(const NotchEntry& entry, UserPort& user);

/// Works a notch out, NDS 3.4.3.2 and 4.4.3 and 5.4.5 in the year's edition. Nothing is checked; entries that
/// passed their checks divide by zero only where one is so small that a product of it is 0.
NotchResult WorkOutNotch(const NotchProblem& problem);

/// Area of a section at its notch, in^2.
double AreaAtNotch(const NotchProblem& problem);

/// The least depth that must remain at a notch, and the rule that gives it.
struct LeastNotchDepth {
    double Dn = 0;  // in.
    MinimumDnRule Rule = MinimumDnRule::ThreeQuarters;
};

LeastNotchDepth FindLeastNotchDepth(const NotchProblem& problem);

/// What really remains of a log that is cut below its centre, in^2: there the area that the check works with
/// is greater than that of the whole log. None elsewhere.
std::optional<double> TrueAreaOfDeepCut(const NotchProblem& problem);

/// Checks, works out and keeps the run. Refused, with the last run kept, where an entry fails its check or
/// the arithmetic gives no finite number.
Outcome CalculateNotch(NotchSession& notch, UserPort& user);

/// The species that can be picked for a member, by the names of their tables, each once.
std::vector<std::string_view> NotchSpeciesNames(NotchMember member);

/// Takes a picked name with its base Fv, where the tables have one for the member; another name keeps the
/// value.
void PickNotchSpecies(NotchEntry& entry, std::string_view name, Edition edition);

}  // namespace kordavan
