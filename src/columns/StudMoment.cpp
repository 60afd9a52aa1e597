#include "columns/StudMoment.h"

#include <algorithm>
#include <cmath>

#include "core/BeamNumbers.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

struct WindOnStud {
    double w;  // plf
    double Beg;
    double End;

    double Length() const { return End - Beg; }
};

WindOnStud WindOf(const StudColumnProblem& problem, std::size_t load)
{
    const double s = problem.StudSpacing / InchesPerFoot;
    return {.w = problem.Wind[load] * s, .Beg = problem.Beg[load], .End = problem.End[load]};
}

/// Moment of a whole load about the top, ft-lb.
double MomentAboutTop(const WindOnStud& wind, double H)
{
    return (wind.Length() / 2 + (H - wind.End)) * wind.Length() * wind.w;
}

/// Moment at x of the part of a load below x, ft-lb.
double MomentBelow(const WindOnStud& wind, double x)
{
    if (x <= wind.Beg) {
        return 0;
    }
    if (x <= wind.End) {
        return (x - wind.Beg) / 2 * (x - wind.Beg) * wind.w;
    }
    return (x - (wind.Length() / 2 + wind.Beg)) * wind.Length() * wind.w;
}

void FindLastRise(StudMoment& moment)
{
    for (std::size_t k = 1; k + 1 < StudStationCount; ++k) {
        if (moment.Stations[k + 1].Moment > moment.Stations[k].Moment) {
            moment.MaxMomentAtFt = moment.Stations[k].At;
            moment.MaxMoment = moment.Stations[k + 1].Moment;
        }
    }
}

}  // namespace

StudMoment ComputeStudMoment(const StudColumnProblem& problem)
{
    const double H = problem.StudHeight;
    const std::array winds{WindOf(problem, 0), WindOf(problem, 1), WindOf(problem, 2)};
    double aboutTop = 0;
    for (const WindOnStud& wind : winds) {
        aboutTop += MomentAboutTop(wind, H);
    }
    const double R1 = aboutTop / H;

    StudMoment moment;
    moment.R1 = Single(R1);
    for (std::size_t k = 0; k < StudStationCount; ++k) {
        const double x = H / (StudStationCount - 1) * static_cast<double>(k);
        StudStation& station = moment.Stations[k];
        double M = R1 * x;
        for (std::size_t load = 0; load < WindLoadCount; ++load) {
            const double contribution = MomentBelow(winds[load], x);
            station.Contributions[load] = Single(contribution);
            M -= contribution;
        }
        station.At = Single(x);
        station.Moment = Single(M);
    }
    moment.Stations.back().Moment = 0;  // nothing but rounding is left at the support
    FindLastRise(moment);
    return moment;
}

const StudStation& StationOfGreatestMoment(const StudStationTable& stations)
{
    return *std::max_element(
        stations.begin(), stations.end(),
        [](const StudStation& a, const StudStation& b) { return std::abs(a.Moment) < std::abs(b.Moment); });
}

std::string StudMomentWarning(const StudTest& test)
{
    constexpr double rounding = 1e-5;
    const StudStation& greatest = StationOfGreatestMoment(test.Stations);
    const float worked = test.Result.MaxMoment;
    if (std::abs(greatest.Moment) <= worked * (1 + rounding)) {
        return {};
    }
    return "The moment goes to " + FormatNumber(greatest.Moment, "#,##0.0") + " ft-lb at " +
           FormatNumber(greatest.At, "#,##0.00") + " ft, beyond the " + FormatNumber(worked, "#,##0.0") +
           " ft-lb that the check works with: check the stud by hand for it.";
}

}  // namespace kordavan
