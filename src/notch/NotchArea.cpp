#include <cmath>

#include "notch/NotchCheck.h"

namespace kordavan {

namespace {

constexpr double WholeCircle = 0.7854;  // of its diameter squared
constexpr double FullTurn = 360;        // degrees
constexpr double HalfTurn = 180;

/// A log of radius r with a segment of height h cut off, in.
struct CutLog {
    double R;
    double H;

    double ToCentre() const { return R - H; }  // below 0 where the cut is beyond the centre
    double HalfChord() const { return std::sqrt(R * R - ToCentre() * ToCentre()); }
};

CutLog LogOf(const NotchProblem& problem)
{
    return {.R = problem.Depth / 2, .H = problem.Depth - problem.DepthAtNotch};
}

double CentralAngle(const CutLog& log)
{
    if (log.ToCentre() == 0) {
        return HalfTurn;
    }
    return 2 * std::atan(log.HalfChord() / log.ToCentre()) * (HalfTurn / NotchPi);
}

/// Area of the segment cut off. Beyond the centre it is below 0.
double SegmentCutOff(const CutLog& log)
{
    const double sector = (CentralAngle(log) / FullTurn) * NotchPi * log.R * log.R;
    return sector - log.HalfChord() * log.ToCentre();
}

}  // namespace

double AreaAtNotch(const NotchProblem& problem)
{
    if (problem.MemberType != NotchMember::SawnRound) {
        return problem.Breadth * problem.DepthAtNotch;
    }
    return WholeCircle * problem.Depth * problem.Depth - SegmentCutOff(LogOf(problem));
}

std::optional<double> TrueAreaOfDeepCut(const NotchProblem& problem)
{
    const CutLog log = LogOf(problem);
    if (problem.MemberType != NotchMember::SawnRound || log.ToCentre() >= 0) {
        return std::nullopt;
    }
    return SegmentCutOff({.R = log.R, .H = problem.DepthAtNotch});
}

LeastNotchDepth FindLeastNotchDepth(const NotchProblem& problem)
{
    const double d = problem.Depth;
    if (problem.MemberType != NotchMember::Glulam) {
        return {.Dn = 0.75 * d, .Rule = MinimumDnRule::ThreeQuarters};
    }
    if (problem.Notch == NotchType::Compression) {
        return {.Dn = 0.6 * d, .Rule = MinimumDnRule::ThreeFifths};
    }
    if (problem.Notch == NotchType::Tapered) {
        return {.Dn = 0.333 * d, .Rule = MinimumDnRule::OneThird};
    }
    const bool hasMostCut = problem.NdsYear == 2001 || problem.NdsYear == 2005;
    if (hasMostCut && d - 3 < 0.9 * d) {
        return {.Dn = d - 3, .Rule = MinimumDnRule::LessThreeInches};
    }
    return {.Dn = 0.9 * d, .Rule = MinimumDnRule::NineTenths};
}

}  // namespace kordavan
