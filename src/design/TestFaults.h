#pragma once

#include "core/Message.h"

namespace kordavan {

/// A member so weak, or under such a load, that its deflection is no number.
inline Message DeflectionFault()
{
    return Marked(Refusal("Error in deflection calc"), MessageIcon::Warning);
}

/// Another figure of a member's test that is no number.
inline Message NotFiniteFault()
{
    return Refusal(
        "The member could not be calculated, because a load, a length or a value is far too large or too "
        "small.");
}

}  // namespace kordavan
