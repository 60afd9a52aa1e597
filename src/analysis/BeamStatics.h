#pragma once

#include <vector>

namespace kordavan {

/// A force across the beam, positive downwards; a reaction is negative.
struct PointForce {
    double At = 0;    // ft from R1
    double Load = 0;  // lb
};

/// A force spread along the beam; its intensity changes evenly from one end to the other.
struct SpreadForce {
    double Begin = 0;  // ft from R1
    double End = 0;
    double AtBegin = 0;  // plf
    double AtEnd = 0;
};

struct BeamForces {
    std::vector<PointForce> Points;
    std::vector<SpreadForce> Spreads;
};

/// What is carried across a section of the beam.
struct SectionForces {
    double Shear = 0;   // lb, of all forces to the left, positive upwards
    double Moment = 0;  // ft-lb, positive where the beam sags
};

/// A point force acts to the right of its place.
enum class Side { Left, Right };

/// True for places that are the same but for the rounding of their decimals in binary.
bool IsSamePlace(double a, double b);

/// Shear and moment just beside a place x, ft from R1, of the forces to its left.
SectionForces SumUpTo(const BeamForces& forces, double x, Side side);

/// The reactions at R1, x = 0, and at R2 that balance the forces on a beam of this length, which may reach
/// beyond R2.
std::vector<PointForce> BalancingReactions(const BeamForces& forces, double R2At, double length);

/// A place of the beam with all that the diagrams show of it.
struct BeamPoint {
    double X = 0;           // ft from R1
    double Shear = 0;       // lb
    double Moment = 0;      // ft-lb
    double Slope = 0;       // of the elastic line, none
    double Deflection = 0;  // in., positive downwards
};

/// Sets slope and deflection from shear and moment: M / EI integrated twice, with no deflection at R1 and R2.
///
/// Between two points the moment is the cubic that has their moments and shears, which is exact for loads
/// that are spread evenly or rise evenly.
/// @param points  in order from R1, one of them at R2; two stand where the shear steps
/// @param EI      lb-in2, greater than 0
void Deflect(std::vector<BeamPoint>& points, double R2At, double EI);

}  // namespace kordavan
