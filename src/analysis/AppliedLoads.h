#pragma once

#include "analysis/AnalysisResult.h"
#include "analysis/StationTable.h"
#include "core/BeamNumbers.h"
#include "core/Progress.h"

namespace kordavan {

/// Analyses the entered loads of any support condition, without self-weight, and fills the station table.
///
/// The loads are those of the beam as adjusted for slope and spacing; Span must be above 0. The moment comes
/// from the table (200 steps over the span between R1 and R2), that of several spans from closed forms.
/// @param previousInflectionFt  kept when an overhanging beam has no negative moment at any station
AppliedLoadResult ComputeAppliedLoads(const BeamNumbers& beam, float previousInflectionFt,
                                      StationTable& table, const Progress& progress = {});

struct LoadTotals {
    double PointTotal = 0;    // lb
    double PointLive = 0;     // lb
    double PartialTotal = 0;  // lb
    double PartialLive = 0;   // lb
    double Total = 0;         // everything on one span, lb
    double Live = 0;          // lb
};

/// Sums of the entered loads. A hip or valley beam counts its increasing load and the uniform load beside it,
/// not the equivalent uniform load that stands in UNIF.
LoadTotals SumLoads(const BeamNumbers& beam);

/// False when an entry is so large that a result is beyond a 32-bit float.
bool IsFinite(const AppliedLoadResult& result);

}  // namespace kordavan
