#include "notch/NotchCheck.h"

#include <cmath>
#include <limits>

#include "core/BeamNumbers.h"
#include "notch/NotchYears.h"

namespace kordavan {

namespace {

constexpr double TwoThirds = 0.666667;
constexpr double Percent = 100;
constexpr double RadiansPerDegree = NotchPi / 180;

constexpr std::string_view NotComputed = "Error: Notch requirements could not be calculated.";

double OneIfZero(double factor)
{
    return factor == 0 ? 1 : factor;
}

bool IsFinite(std::optional<double> value)
{
    return std::isfinite(value.value_or(0));
}

bool IsFinite(const NotchResult& result)
{
    return std::isfinite(result.AdjustedFv) && std::isfinite(result.AreaAtNotch) &&
           std::isfinite(result.MinimumDn) && IsFinite(result.CriticalFv) && IsFinite(result.AllowableV) &&
           IsFinite(result.RatioPercent) && IsFinite(result.MinSpan) && IsFinite(result.TaperAngle);
}

/// The part of the breadth's depth that carries shear over a compression notch, NDS 3.4.3.2(e).
double DepthOverSetback(const NotchProblem& problem)
{
    const double d = problem.Depth;
    const double dn = problem.DepthAtNotch;
    return d - ((d - dn) / dn) * problem.NotchSetback;
}

bool IsWithinDn(const NotchProblem& problem)
{
    return problem.NotchSetback <= problem.DepthAtNotch;
}

/// Shear stress at the notch, psi, by the rules of 1997.
double ShearStress(const NotchProblem& problem, double An)
{
    const double V = problem.MaxV;
    if (problem.Notch == NotchType::Tension) {
        return (3 * V / (2 * An)) * (problem.Depth / problem.DepthAtNotch);
    }
    if (problem.Notch == NotchType::Compression && IsWithinDn(problem)) {
        return 3 * V / (2 * problem.Breadth * DepthOverSetback(problem));
    }
    return 3 * V / (2 * An);
}

/// Reaction that the notch allows, lb, by the rules since 2001.
double AllowableReaction(const NotchProblem& problem, double Fv, double An)
{
    if (problem.Notch == NotchType::Tension) {
        const double dnOverD = problem.DepthAtNotch / problem.Depth;
        return (TwoThirds * Fv * An) * (dnOverD * dnOverD);
    }
    if (problem.Notch == NotchType::Compression) {
        return TwoThirds * Fv * problem.Breadth * DepthOverSetback(problem);
    }
    return TwoThirds * Fv * An;
}

/// Since 2001 only a compression notch longer than dn is still checked by its stress.
bool IsCheckedByStress(const NotchProblem& problem)
{
    return problem.NdsYear == 1997 || (problem.Notch == NotchType::Compression && !IsWithinDn(problem));
}

void CheckShear(const NotchProblem& problem, NotchResult& result)
{
    result.ResultIsV = !IsCheckedByStress(problem);
    if (result.ResultIsV) {
        result.AllowableV = AllowableReaction(problem, result.AdjustedFv, result.AreaAtNotch);
        result.RatioPercent = problem.MaxV / *result.AllowableV * Percent;
    } else {
        result.CriticalFv = ShearStress(problem, result.AreaAtNotch);
        result.RatioPercent = *result.CriticalFv / result.AdjustedFv * Percent;
    }
    if (*result.RatioPercent > Percent) {
        result.Verdict = NotchVerdict::RatioFails;
    } else {
        result.Verdict =
            problem.DepthAtNotch >= result.MinimumDn ? NotchVerdict::Passes : NotchVerdict::DepthFails;
    }
}

/// Length of a tapered notch: its setback or, without one, that of the seat's level cut; a rafter no deeper
/// than what remains has none, and rests on the breadth of the wall.
double TaperLengthIn(const NotchProblem& problem)
{
    if (problem.HasSetback) {
        return problem.NotchSetback;
    }
    const double cut = problem.RafterDepth - problem.DepthAtNotch;
    return cut > 0 ? cut / std::sin(RoofAngle(problem.RoofPitch) * RadiansPerDegree) : problem.WallBreadth;
}

/// A dn typed as the least depth reads must not miss it by the last bits of a product: 0.9 x 10.5 is a hair
/// above 9.45.
double WithoutLastBits(double minimum, double dn)
{
    constexpr double lastBits = 4 * std::numeric_limits<double>::epsilon();
    return std::abs(minimum - dn) <= lastBits * dn ? dn : minimum;
}

}  // namespace

NotchResult WorkOutNotch(const NotchProblem& problem)
{
    const LeastNotchDepth least = FindLeastNotchDepth(problem);
    NotchResult result;
    result.AdjustedFv =
        problem.BaseFv * OneIfZero(problem.Cm) * OneIfZero(problem.Ch) * OneIfZero(problem.Cd);
    result.AreaAtNotch = AreaAtNotch(problem);
    result.MinimumDn = WithoutLastBits(least.Dn, problem.DepthAtNotch);
    result.Rule = least.Rule;
    if (problem.Notch == NotchType::Tapered) {
        // The taper must keep out of the middle third of the span.
        result.MinSpan = 3 * TaperLengthIn(problem) / InchesPerFoot;
        result.TaperAngle = RoofAngle(problem.RoofPitch);
    }
    if (HasNotchRule(problem.NdsYear)) {
        CheckShear(problem, result);
    }
    return result;
}

Outcome CalculateNotch(NotchSession& notch, UserPort& user)
{
    if (ValidateNotch(notch.Entry, user) == Outcome::Refused) {
        return Outcome::Refused;
    }
    const NotchProblem problem = ReadNotchProblem(notch.Entry, notch.Years.NdsYear);
    const NotchResult result = WorkOutNotch(problem);
    if (!IsFinite(result)) {
        return Refuse(user, Refusal(NotComputed));
    }
    if (result.IsComputed()) {
        notch.Earlier.reset();
    } else if (notch.Run && notch.Run->Result.IsComputed()) {
        notch.Earlier = notch.Run;
    }
    notch.Run = NotchRun{.Entry = notch.Entry, .Problem = problem, .Result = result};
    return Outcome::Done;
}

}  // namespace kordavan
