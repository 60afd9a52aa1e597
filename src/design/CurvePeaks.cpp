#include "design/CurvePeaks.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace kordavan {

namespace {

constexpr double SamePart = 1e-6;

/// A level top has at least this part of the beam; what is level for less is the rounded top of a curve.
constexpr double LeastLevelPart = 0.01;

class PeakFinder {
public:
    PeakFinder(const BeamCurves& theCurves, double BeamPoint::*theValue) : curves(theCurves), value(theValue)
    {
        for (const BeamPoint& point : curves.Points) {
            greatest = std::max(greatest, point.*value);
            least = std::min(least, point.*value);
        }
        same = SamePart * std::max(greatest, -least);
    }

    CurvePeaks Find() const
    {
        CurvePeaks peaks;
        if (greatest > same) {
            peaks.Greatest = Peak{.Value = greatest, .Where = Settled(Keeping(greatest))};
        }
        if (least < -same) {
            peaks.Least = Peak{.Value = least, .Where = Settled(Keeping(least))};
        }
        peaks.Zeros = Zeros();
        return peaks;
    }

private:
    /// Stretches over which the curve keeps a value.
    std::vector<Stretch> Keeping(double level) const
    {
        std::vector<Stretch> stretches;
        bool keeps = false;
        for (const BeamPoint& point : curves.Points) {
            const bool kept = keeps;
            keeps = std::abs(point.*value - level) <= same;
            if (keeps && !kept) {
                stretches.push_back({point.X, point.X});
            } else if (keeps) {
                stretches.back().To = point.X;
            }
        }
        return stretches;
    }

    std::vector<Stretch> Settled(std::vector<Stretch> stretches) const
    {
        for (Stretch& stretch : stretches) {
            if (stretch.To - stretch.From < LeastLevelPart * curves.Length) {
                stretch.From = stretch.To = (stretch.From + stretch.To) / 2;
            }
        }
        return stretches;
    }

    std::vector<Stretch> Zeros() const
    {
        std::vector<Stretch> zeros = Keeping(0);
        for (std::size_t i = 1; i < curves.Points.size(); ++i) {
            const BeamPoint& a = curves.Points[i - 1];
            const BeamPoint& b = curves.Points[i];
            const bool crosses = std::min(a.*value, b.*value) < -same && std::max(a.*value, b.*value) > same;
            if (crosses) {
                const double x = a.X + (b.X - a.X) * a.*value / (a.*value - b.*value);
                zeros.push_back({x, x});
            }
        }
        const auto touchesEnd = [this](const Stretch& zero) {
            return IsSamePlace(zero.From, 0) || IsSamePlace(zero.To, curves.Length);
        };
        zeros.erase(std::remove_if(zeros.begin(), zeros.end(), touchesEnd), zeros.end());
        std::sort(zeros.begin(), zeros.end(),
                  [](const Stretch& a, const Stretch& b) { return a.From < b.From; });
        return Settled(std::move(zeros));
    }

    const BeamCurves& curves;
    double BeamPoint::*value;
    double greatest = 0;
    double least = 0;
    double same = 0;
};

}  // namespace

CurvePeaks FindPeaks(const BeamCurves& curves, double BeamPoint::*value)
{
    return PeakFinder(curves, value).Find();
}

}  // namespace kordavan
