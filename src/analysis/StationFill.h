#pragma once

#include <optional>

#include "analysis/StationTable.h"
#include "core/BeamNumbers.h"
#include "core/Progress.h"

namespace kordavan {

/// Fills the whole table with moment and shear of the applied loads between R1 and R2; of a continuous beam
/// the stations' places alone.
/// @param reaction  R1 of the applied loads, lb
/// @param progress  reaches 20 + k^2 with point load k, 55 and 55 + k^2 with the partial loads
void FillStations(const BeamNumbers& beam, double reaction, StationTable& table,
                  const Progress& progress = {});

/// Where the moment rises for the last time; zeroes where it never does.
struct MomentPeak {
    float Moment = 0;         // at the top of that rise, ft-lb
    float StationBefore = 0;  // ft from R1; self-weight of an overhanging beam is added by this place
};

MomentPeak FindPeak(const StationTable& table);

/// The place of the last station with a negative moment, ft from R1.
std::optional<float> LastNegativeMoment(const StationTable& table);

}  // namespace kordavan
