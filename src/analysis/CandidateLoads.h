#pragma once

#include "analysis/AnalysisResult.h"
#include "analysis/SectionProps.h"
#include "core/BeamNumbers.h"

namespace kordavan {

/// Adds the self-weight of a candidate to the applied loads in closed form; nothing is iterated.
///
/// On a simple span the self-weight moment w L^2 / 8 is added to the peak wherever that lies; on an
/// overhanging beam w x^2 / 2 is added, x being MaxMomentAtFt.
CandidateLoadResult ComputeCandidateLoads(const BeamNumbers& beam, const SectionProps& section,
                                          const AppliedLoadResult& applied);

}  // namespace kordavan
