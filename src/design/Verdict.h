#pragma once

#include "analysis/AnalysisResult.h"
#include "core/BeamNumbers.h"
#include "design/MemberTestResult.h"

namespace kordavan {

/// The figures of a test from its analysis, without statuses.
MemberTestResult ResultOf(const AnalysisResult& analysis, const MemberTest& member);

/// Sets the statuses of all checks and of the whole. Figures are compared unrounded and pass on equality.
/// Under NDS 1997 a sawn member that fails in shear alone may pass when free of splits (Ch of 2).
void GiveVerdict(const BeamNumbers& beam, MemberTest& member);

/// True when no deflection, in magnitude, is beyond its limit.
bool MeetsDeflectionLimits(const DeflectionResult& deflection);

/// A next smaller size against what is asked of it.
struct SmallerSize {
    float Section;  // in3
    float SectionReq;
    float Area;  // in2
    float AreaReq;
    double Growth;  // of deflection: the candidate's I over the smaller size's
};

bool PassesAsSmaller(const SmallerSize& smaller, const DeflectionResult& deflection);

}  // namespace kordavan
