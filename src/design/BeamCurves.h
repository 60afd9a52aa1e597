#pragma once

#include <vector>

#include "analysis/BeamStatics.h"
#include "design/Session.h"

namespace kordavan {

enum class CurveLoads { Total, Live };

/// Shear, moment and deflection along the analysed beam.
struct BeamCurves {
    double Length = 0;                 // ft, from R1 to the last support or the tip of the overhang
    std::vector<PointForce> Supports;  // their reactions, negative as they act upwards
    std::vector<BeamPoint> Points;     // in order; two where the shear steps
    bool HasDeflection = false;        // a member has been tested
};

/// True once a member has been tested on the beam as it was calculated last.
bool IsMemberTested(const Session& session);

/// The analysed beam with its live loads in place of the whole ones.
BeamNumbers LiveLoadsAlone(const BeamNumbers& beam);

/// The curves of the beam as it was calculated last; none before the first calculation.
///
/// Whole loads have the weight of the member tested last with them, live loads stand alone. Points stand at
/// the 201 stations of the span, or of each of several spans, at a hundred of an overhang, wherever a load
/// or its end stands, and where shear, moment or slope is zero. At the stations of a simple or overhanging
/// beam the applied loads are read from the station table; beside them, and elsewhere, from the same statics.
/// Several spans have the reactions of the closed forms. The load of a hip or valley rises from R1 to R2,
/// though its design goes by an equivalent uniform load. The deflection is elastic, by the adjusted E and the
/// I of the member tested last, and has no creep.
BeamCurves ComputeCurves(const Session& session, CurveLoads loads);

/// What a cursor reads at a place.
struct CurveReading {
    BeamPoint Left;  // the same as Right but where the shear steps
    BeamPoint Right;
};

/// The curves at a place, ft from R1, between two points evenly divided; places off the beam read its ends.
/// The curves must have points.
CurveReading ReadCurves(const BeamCurves& curves, double x);

/// Where the moment is largest, upwards or downwards, ft from R1; 0 without points.
double PlaceOfGreatestMoment(const BeamCurves& curves);

/// The point that is so many places, to the left when negative, from a place; at most the ends of the beam.
double StepAlong(const BeamCurves& curves, double x, int places);

}  // namespace kordavan
