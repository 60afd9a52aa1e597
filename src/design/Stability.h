#pragma once

#include "core/BeamNumbers.h"
#include "core/Message.h"
#include "materials/Species.h"

namespace kordavan {

/// Slenderness of one unbraced length and its stability factor.
struct SlendernessResult {
    float CL = 1;
    float LuIn = 0;  // unbraced length, in.
    float LeIn = 0;  // effective length, in.
    double Rb = 0;   // slenderness ratio
    bool RbOver50 = false;
    float KbE = 0;  // coefficient of E'/Rb^2
    float FbE = 0;  // critical buckling stress, psi
    float FbEOverFbStar = 0;
};

struct StabilityResult {
    SlendernessResult Span;
    SlendernessResult Overhang;
};

/// Which lumber the buckling coefficient is for.
enum class BucklingClass { VisuallyGraded, MachineGraded, Glulam };

/// Emin over E of visually graded lumber: 1 - 1.645 COV of its E, over 1.66, times 1.03 (NDS appendix D.4).
inline constexpr double VisualEminOverE = 0.3653;

/// Coefficient of E'/Rb^2 in the critical buckling stress of bending members. Source: NDS 1997 and 2001,
/// 3.3.3.8 (KbE); from NDS 2005 on 1.2 Emin (3.3.3.8).
double BucklingCoefficient(bool isPre2005, BucklingClass material);

/// Whether messages speak of the candidate or of the next smaller size.
enum class StabilityRun { Candidate, NextSmaller };

struct StabilityInput {
    NetSize Size;
    BucklingClass Class = BucklingClass::VisuallyGraded;
    double EAdj = 0;    // millions of psi
    double FbStar = 0;  // psi, above 0
    StabilityRun Run = StabilityRun::Candidate;
};

/// Beam stability factor of span and overhang, NDS 3.3.3.
///
/// Exempt, with both factors 1 and all else 0: a beam without unbraced lengths, of equal breadth and depth,
/// or continuous over several spans. What cannot be worked out is told and leaves a factor of 1.
StabilityResult ComputeStability(const BeamNumbers& beam, const StabilityInput& input, UserPort& user);

}  // namespace kordavan
