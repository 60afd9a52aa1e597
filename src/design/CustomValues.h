#pragma once

#include <optional>

#include "core/Message.h"
#include "design/Member.h"
#include "materials/Species.h"

namespace kordavan {

/// The user's own values as numbers, Fc-perp rounded to a whole psi; 0 for one that is beyond a 32-bit float,
/// for Fc-perp beyond 16 bits.
DesignValues ReadCustomValues(const CustomEntry& custom);

/// Refuses a size factor exponent of a composite product of the user's own that is no number from 0 up to 1.
Outcome CheckSclExponent(const MemberEntry& entry, SpeciesGroup group, UserPort& user);

/// Refuses values of zero or less, each with the box to fill; members of listed values have none to check.
Outcome CheckOwnValues(const std::optional<DesignValues>& values, UserPort& user);

}  // namespace kordavan
