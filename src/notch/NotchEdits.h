#pragma once

#include "notch/NotchSession.h"

namespace kordavan {

/// The edition of the year that is in force for a notch.
Edition EditionOfNotch(const NotchYears& years);

/// Another edition in force takes the place of the year that was chosen here.
void FollowEdition(NotchSession& notch, Edition inForce);

/// What an edit brings with it: a base Fv that the tables gave for its name becomes the one they give now, by
/// member, size and year; and a notch that has become tapered has no setback.
void FollowNotchEdit(NotchSession& notch, const NotchEntry& before, const NotchYears& yearsBefore);

}  // namespace kordavan
