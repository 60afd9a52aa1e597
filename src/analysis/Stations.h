#pragma once

#include <cstddef>

namespace kordavan {

/// Evenly spaced stations along a length: station i stands at i * Length / Steps, i from 0 to Steps.
///
/// Whether a place lies before or beyond a station is decided as its decimals read, not by their rounding in
/// binary, so that a load exactly on a station is neither.
struct StationLine {
    double Length = 0;  // ft
    int Steps = 0;

    /// The first station beyond a place (0 or more), Steps + 1 when there is none.
    int FirstBeyond(double place) const;

    /// The last station before a place (0 or more), -1 when there is none.
    int LastBefore(double place) const;
};

/// Sums of i, i^2 and i^3 over the stations strictly between two places.
struct StationSums {
    double Count = 0;
    double First = 0;
    double Second = 0;
    double Third = 0;
};

StationSums SumStationsBetween(const StationLine& line, double begin, double end);

}  // namespace kordavan
