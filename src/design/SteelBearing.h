#pragma once

#include <array>

#include "analysis/AnalysisResult.h"
#include "core/BeamNumbers.h"
#include "design/SteelCriteria.h"
#include "materials/SteelShapes.h"

namespace kordavan {

/// What a shape needs to bear on: lengths in inches; at the supports of flitch plates, whose lumber bears,
/// areas in square inches.
struct SteelBearing {
    float R1 = 0;
    float R2 = 0;
    std::array<float, PointSlotCount> AtPoints{};  // under each point load; 0 where the web needs none
};

/// Least bearing lengths by web yielding and web crippling, the larger of both.
///
/// AISC Manual, Allowable Stress Design, 9th edition, K1.3 and K1.4, solved for N with k, tf, tw and d in
/// inches and R in kips:
///   yielding   R = 0.66 Fy (N + 5 k) tw, at an end 2.5 k for 5 k
///   crippling  R = 67.5 tw^2 [1 + 3 (N / d) (tw / tf)^1.5] sqrt(Fy tf / tw), at an end 34 for 67.5
/// R1 and the R2 of a beam that stops there bear at an end, every other R2 inside; there N is k at least.
/// A point load yields the web as at an end up to d from the end of the beam, and cripples it so under d/2.
SteelBearing ComputeSteelBearing(const BeamNumbers& beam, const SteelCriteria& criteria,
                                 const SteelShape& shape, const CandidateLoadResult& loads);

}  // namespace kordavan
