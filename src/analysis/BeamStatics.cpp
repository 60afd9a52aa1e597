#include "analysis/BeamStatics.h"

#include <algorithm>
#include <cmath>

#include "core/BeamNumbers.h"

namespace kordavan {

namespace {

/// The part of a spread force that lies to the left of x.
SectionForces SumSpread(const SpreadForce& force, double x)
{
    const double length = std::min(x, force.End) - force.Begin;
    if (length <= 0) {
        return {};
    }
    const double a = force.AtBegin;
    const double b = a + (force.AtEnd - a) * length / (force.End - force.Begin);
    const double load = (a + b) / 2 * length;
    const double aboutBegin = length * length * (a + 2 * b) / 6;
    return {.Shear = -load, .Moment = -(load * (x - force.Begin) - aboutBegin)};
}

/// Takes the elastic line from one point to the next.
void Step(const BeamPoint& from, double EI, BeamPoint& to)
{
    const double h = to.X - from.X;
    const double turn = h / 2 * (from.Moment + to.Moment) + h * h / 12 * (from.Shear - to.Shear);
    const double sag =
        h * h / 20 * (7 * from.Moment + 3 * to.Moment) + h * h * h / 60 * (3 * from.Shear - 2 * to.Shear);
    to.Slope = from.Slope - turn / EI;
    to.Deflection = from.Deflection + from.Slope * h - sag / EI;
}

}  // namespace

bool IsSamePlace(double a, double b)
{
    constexpr double binaryNoise = 1e-9;  // ft
    return std::abs(a - b) <= binaryNoise;
}

SectionForces SumUpTo(const BeamForces& forces, double x, Side side)
{
    SectionForces sum;
    for (const PointForce& force : forces.Points) {
        const bool acts = IsSamePlace(force.At, x) ? side == Side::Right : force.At < x;
        if (acts) {
            sum.Shear -= force.Load;
            sum.Moment -= force.Load * (x - force.At);
        }
    }
    for (const SpreadForce& force : forces.Spreads) {
        const SectionForces part = SumSpread(force, x);
        sum.Shear += part.Shear;
        sum.Moment += part.Moment;
    }
    return sum;
}

std::vector<PointForce> BalancingReactions(const BeamForces& forces, double R2At, double length)
{
    const SectionForces all = SumUpTo(forces, length, Side::Right);
    const double load = -all.Shear;
    const double aboutR1 = load * length + all.Moment;
    const double R2 = aboutR1 / R2At;
    return {{.At = 0, .Load = R2 - load}, {.At = R2At, .Load = -R2}};
}

void Deflect(std::vector<BeamPoint>& points, double R2At, double EI)
{
    const double EIFt = EI / (InchesPerFoot * InchesPerFoot);  // lb-ft2
    double fallAtR2 = 0;                                       // ft, of a line that leaves R1 level
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i].Slope = points[i].Deflection = 0;
        if (i > 0) {
            Step(points[i - 1], EIFt, points[i]);
        }
        if (IsSamePlace(points[i].X, R2At)) {
            fallAtR2 = points[i].Deflection;
        }
    }
    const double slopeAtR1 = -fallAtR2 / R2At;
    for (BeamPoint& point : points) {
        point.Slope += slopeAtR1;
        point.Deflection = InchesPerFoot * (point.Deflection + slopeAtR1 * point.X);
    }
}

}  // namespace kordavan
