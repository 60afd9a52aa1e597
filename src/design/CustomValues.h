#pragma once

#include <optional>
#include <string_view>

#include "core/Message.h"
#include "design/Member.h"
#include "materials/Species.h"

namespace kordavan {

/// A value of the user's own: its box, and what is told where it is missing.
struct OwnValue {
    std::string_view Box;
    std::string_view MissingText;
};

namespace OwnValues {
inline constexpr OwnValue Fb{"Text1", "Please enter a value for the Fb."};
inline constexpr OwnValue Fv{"Text2", "Please enter a value for the Fv."};
inline constexpr OwnValue E{"Text4", "Please enter a value for the E."};
inline constexpr OwnValue FcPerp{"Text3", "Please enter a value for the Fc."};
}  // namespace OwnValues

/// The user's own values as numbers, Fc-perp rounded to a whole psi; 0 for one that is beyond a 32-bit float,
/// for Fc-perp beyond 16 bits.
DesignValues ReadCustomValues(const CustomEntry& custom);

/// Refuses a size factor exponent that is no number from 0 up to 1; composite products of the user's own need
/// one.
Outcome CheckSclExponent(std::string_view exponent, UserPort& user);

/// Refuses values of zero or less, each with the box to fill; members of listed values have none to check.
Outcome CheckOwnValues(const std::optional<DesignValues>& values, UserPort& user);

}  // namespace kordavan
