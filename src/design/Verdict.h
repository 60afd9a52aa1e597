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

/// The deflection that a member may have by what it is made of, in.: 5/16 in. for TimberStrand rim board up
/// to 7-1/4 in. deep, by its maker's guide; without limit for all others.
double ProductDeflectionLimit(const MemberCandidate& member, double depth);

/// A next smaller size against what is asked of it.
struct SmallerSize {
    float Section;  // in3
    float SectionReq;
    float Area;  // in2
    float AreaReq;
    double Growth;          // of deflection: the candidate's I over the smaller size's
    double MostDeflection;  // that its product may have, in.
};

bool PassesAsSmaller(const SmallerSize& smaller, const DeflectionResult& deflection);

}  // namespace kordavan
