#pragma once

#include "analysis/AnalysisResult.h"
#include "analysis/SectionProps.h"
#include "core/BeamNumbers.h"

namespace kordavan {

/// Deflections of a candidate by equivalent uniform loads, with creep on the part that is not live.
/// @param EPrimeMillions  adjusted modulus of elasticity, millions of psi
DeflectionResult ComputeDeflection(const BeamNumbers& beam, const SectionProps& section,
                                   double EPrimeMillions, const AppliedLoadResult& applied,
                                   const CandidateLoadResult& loads);

/// False when E or I is so small, or a load so large, that a deflection is no finite number.
bool IsFinite(const DeflectionResult& result);

}  // namespace kordavan
