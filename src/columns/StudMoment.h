#pragma once

#include <string>

#include "columns/StudProblem.h"
#include "columns/StudResult.h"

namespace kordavan {

/// The wind on a stud as a simple beam of its height.
struct StudMoment {
    StudStationTable Stations{};
    float R1 = 0;             // lb, at the base
    float MaxMoment = 0;      // ft-lb
    float MaxMomentAtFt = 0;  // the station before that moment, ft from the base
};

/// Moment of the wind at 201 stations and its reaction, by statics. The moment worked with is the top of the
/// last rise on the way up, which of two peaks is the upper one even where the lower is greater.
/// @param problem  height above 0; loads within the height
StudMoment ComputeStudMoment(const StudColumnProblem& problem);

/// The station at which the moment is greatest in size, inwards or outwards.
const StudStation& StationOfGreatestMoment(const StudStationTable& stations);

/// What to say where the moment worked with is not the greatest in size: a later, lower peak, or suction.
/// Empty where it is.
std::string StudMomentWarning(const StudTest& test);

}  // namespace kordavan
