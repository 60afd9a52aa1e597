#include "BeamTheory.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kordavan::Verification {

namespace {

constexpr double CubicInchesPerCubicFoot = 1728;

/// Places at which a greatest value is looked for; between two of them it is missed by less than 1e-7 of
/// itself.
constexpr int Places = 4000;

/// Macaulay's bracket: (x - a)^n right of a, 0 left of it.
double Bracket(double x, double a, int n)
{
    return x > a ? std::pow(x - a, n) : 0.0;
}

double Factorial(int n)
{
    return n == 0 ? 1.0 : n * Factorial(n - 1);
}

/// A line load integrated n times: as shear for 1, as moment for 2, as EI y for 4.
double Integrated(const LineLoad& load, double x, int n)
{
    const double rise = (load.End - load.Begin) / (load.To - load.From);
    return (load.Begin * Bracket(x, load.From, n) - load.End * Bracket(x, load.To, n)) / Factorial(n) +
           rise * (Bracket(x, load.From, n + 1) - Bracket(x, load.To, n + 1)) / Factorial(n + 1);
}

/// All loads of a beam integrated n times.
double Integrated(const ElasticBeam& beam, double x, int n)
{
    double sum = 0;
    for (const PointLoad& load : beam.Points) {
        sum += load.P * Bracket(x, load.At, n - 1) / Factorial(n - 1);
    }
    for (const LineLoad& load : beam.Lines) {
        sum += Integrated(load, x, n);
    }
    return sum;
}

using Equation = std::vector<double>;  // coefficients and, last, the right side

/// Gauss with pivots.
std::vector<double> SolveEquations(std::vector<Equation> equations)
{
    const std::size_t count = equations.size();
    for (std::size_t column = 0; column < count; ++column) {
        std::size_t pivot = column;
        for (std::size_t row = column + 1; row < count; ++row) {
            if (std::abs(equations[row][column]) > std::abs(equations[pivot][column])) {
                pivot = row;
            }
        }
        std::swap(equations[column], equations[pivot]);
        for (std::size_t row = 0; row < count; ++row) {
            const double factor = row == column ? 0 : equations[row][column] / equations[column][column];
            for (std::size_t k = column; k <= count; ++k) {
                equations[row][k] -= factor * equations[column][k];
            }
        }
    }
    std::vector<double> values;
    for (std::size_t row = 0; row < count; ++row) {
        values.push_back(equations[row][count] / equations[row][row]);
    }
    return values;
}

}  // namespace

ElasticCurve::ElasticCurve(ElasticBeam solved) : beam(std::move(solved))
{
    Solve();
}

void ElasticCurve::Solve()
{
    const std::size_t supports = beam.Supports.size();
    const double beyond = beam.Length + 1;  // where everything on the beam lies to the left
    std::vector<Equation> equations;
    for (const double at : beam.Supports) {
        Equation noDeflection;
        for (const double from : beam.Supports) {
            noDeflection.push_back(-Bracket(at, from, 3) / 6);
        }
        noDeflection.insert(noDeflection.end(), {at, 1.0, -Integrated(beam, at, 4)});
        equations.push_back(noDeflection);
    }
    Equation forces(supports, 1.0);
    forces.insert(forces.end(), {0.0, 0.0, Integrated(beam, beyond, 1)});
    equations.push_back(forces);
    Equation momentsBeyondTheEnd;
    for (const double at : beam.Supports) {
        momentsBeyondTheEnd.push_back(beyond - at);
    }
    momentsBeyondTheEnd.insert(momentsBeyondTheEnd.end(), {0.0, 0.0, Integrated(beam, beyond, 2)});
    equations.push_back(momentsBeyondTheEnd);

    reactions = SolveEquations(std::move(equations));
    offset = reactions.back();
    reactions.pop_back();
    slope = reactions.back();
    reactions.pop_back();
}

double ElasticCurve::Moment(double x) const
{
    double moment = -Integrated(beam, x, 2);
    for (std::size_t k = 0; k < reactions.size(); ++k) {
        moment += reactions[k] * Bracket(x, beam.Supports[k], 1);
    }
    return moment;
}

double ElasticCurve::Deflection(double x) const
{
    double curve = slope * x + offset + Integrated(beam, x, 4);
    for (std::size_t k = 0; k < reactions.size(); ++k) {
        curve -= reactions[k] * Bracket(x, beam.Supports[k], 3) / 6;
    }
    return curve * CubicInchesPerCubicFoot / beam.EI;
}

double ElasticCurve::GreatestMoment(double from, double to) const
{
    double greatest = 0;
    for (int i = 0; i <= Places; ++i) {
        greatest = std::max(greatest, Moment(from + (to - from) * i / Places));
    }
    return greatest;
}

double ElasticCurve::GreatestDeflection(double from, double to) const
{
    double greatest = 0;
    for (int i = 0; i <= Places; ++i) {
        const double deflection = Deflection(from + (to - from) * i / Places);
        if (std::abs(deflection) > std::abs(greatest)) {
            greatest = deflection;
        }
    }
    return greatest;
}

}  // namespace kordavan::Verification
