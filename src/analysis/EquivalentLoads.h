#pragma once

#include "analysis/AnalysisResult.h"
#include "core/BeamNumbers.h"

namespace kordavan {

/// Turns the loads, total and live, into an equivalent uniform load on the span and, for an overhanging beam,
/// into the lifts and drops of tip and span, all times EI.
///
/// A partial load is cut in strips at the stations (200 steps of the span, 100 of the overhang); the sums
/// over strips are taken in closed form, so the cost does not hang on the number of stations.
DeflectionPasses EquivalentLoads(const BeamNumbers& beam);

/// Tip lift, times EI, by a uniform load of w plf on the span, lb-in3.
double UniformTipLift(double spanIn, double overhangIn, double w);

}  // namespace kordavan
