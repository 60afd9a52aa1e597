#pragma once

#include <vector>

namespace kordavan::Verification {

/// A point load, lb, at ft from the first end.
struct PointLoad {
    double P;
    double At;
};

/// A load that runs straight from `Begin` plf at `From` ft to `End` plf at `To` ft.
struct LineLoad {
    double Begin;
    double End;
    double From;
    double To;
};

/// A straight elastic beam of one section on rigid supports. Loads act downward.
struct ElasticBeam {
    double Length;                 // ft
    double EI;                     // lb-in2
    std::vector<double> Supports;  // ft from the first end, at least two
    std::vector<PointLoad> Points;
    std::vector<LineLoad> Lines;
};

/// The solution of a beam by the differential equation of the elastic curve, EI y'''' = w, with the supports
/// as unknown forces: no equivalent loads and no stations.
class ElasticCurve {
public:
    explicit ElasticCurve(ElasticBeam solved);

    /// lb, positive upward.
    double Reaction(std::size_t support) const { return reactions[support]; }

    /// ft-lb, positive where the underside is in tension.
    double Moment(double x) const;

    /// in., positive downward.
    double Deflection(double x) const;

    /// The moment with the largest positive value between two places, ft-lb.
    double GreatestMoment(double from, double to) const;

    /// The deflection with the largest magnitude between two places, in., with its sign.
    double GreatestDeflection(double from, double to) const;

private:
    void Solve();

    ElasticBeam beam;
    std::vector<double> reactions;
    double slope = 0;   // of the elastic curve at the first end, times EI, lb-ft2
    double offset = 0;  // of the elastic curve at the first end, times EI, lb-ft3
};

}  // namespace kordavan::Verification
