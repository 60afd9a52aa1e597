#pragma once

#include "core/BeamNumbers.h"

namespace kordavan {

/// Coefficients of a beam over two or three equal spans under a uniform load, for w L, w L^2 and
/// w L^4 / (E I). R1 is the end support, R2 the first interior one.
/// Source: AISC Manual of Steel Construction, Beam Diagrams and Formulas, continuous beams of equal spans.
struct ContinuousCoefficients {
    double R1;
    double R2;
    double Moment;
    double Deflection;
};

constexpr ContinuousCoefficients CoefficientsOf(const BeamNumbers& beam)
{
    return beam.ThreeSpan ? ContinuousCoefficients{0.4, 1.1, 0.1, 4.0 / 581}
                          : ContinuousCoefficients{0.375, 1.25, 0.125, 1.0 / 185};
}

}  // namespace kordavan
