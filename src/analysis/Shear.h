#pragma once

#include "analysis/AnalysisResult.h"
#include "analysis/SectionProps.h"
#include "core/BeamNumbers.h"

namespace kordavan {

/// Allowable stresses against which section and area are worked out, psi.
struct AllowableStresses {
    double FbPrime = 0;
    double FvPrime = 0;
};

/// Greatest shear, shear at the member's depth from the supports, stress and required section and area.
///
/// Within its depth from a support a point load is left out in full under NDS 1997 and in proportion to its
/// nearness under later editions (NDS 3.4.3.1). Both shears are always worked out; ReduceShear chooses which
/// of them makes the stress.
ShearResult ComputeShear(const BeamNumbers& beam, const SectionProps& section,
                         const AllowableStresses& allowable, const AppliedLoadResult& applied,
                         const CandidateLoadResult& loads);

}  // namespace kordavan
