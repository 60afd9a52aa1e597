#pragma once

#include <optional>
#include <vector>

#include "design/BeamCurves.h"

namespace kordavan {

/// Where a curve keeps a value: a place, or all the way from one place to another, ft from R1.
struct Stretch {
    double From = 0;
    double To = 0;
};

struct Peak {
    double Value = 0;
    std::vector<Stretch> Where;
};

struct CurvePeaks {
    std::optional<Peak> Greatest;  // above zero
    std::optional<Peak> Least;     // below zero
    std::vector<Stretch> Zeros;    // between the ends of the beam
};

/// The extremes of a curve and where it is zero. Values within a millionth of the largest are the same: the
/// station table has them in single precision.
CurvePeaks FindPeaks(const BeamCurves& curves, double BeamPoint::*value);

}  // namespace kordavan
