#include "design/VolumeFactor.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "core/NumberText.h"

namespace kordavan {

namespace {

/// A stretch of the span in fifths of it, both ends included.
struct Band {
    double From;
    double To;
};

constexpr Band Middle{2.25, 2.75};
constexpr Band FirstThird{1.5, 2.0};
constexpr Band SecondThird{3.0, 3.5};

bool LiesIn(const Band& band, double place, double span)
{
    const double fifth = span / 5;
    return place >= band.From * fifth && place <= band.To * fifth;
}

struct PointLoad {
    double Load;   // lb
    double Place;  // ft
};

/// The point loads of a beam that carries at most two and nothing else.
struct PointsAlone {
    std::array<PointLoad, 2> Points{};
    std::size_t Count = 0;
};

PointsAlone FindPointsAlone(const LoadNumbers& loads)
{
    PointsAlone found;
    const bool onlyPoints = loads.UNIF == 0 && std::all_of(loads.PAR.begin(), loads.PAR.end(),
                                                           [](double load) { return load == 0; });
    if (!onlyPoints) {
        return found;
    }
    for (std::size_t k = 0; k < PointSlotCount; ++k) {
        if (loads.PT[k] == 0) {
            continue;
        }
        if (found.Count == found.Points.size()) {
            return {};
        }
        found.Points[found.Count++] = {loads.PT[k], loads.DIS[k]};
    }
    return found;
}

bool StandAtThirdPoints(const PointsAlone& loads, double span)
{
    const auto [first, second] = loads.Points;
    return (LiesIn(FirstThird, first.Place, span) && LiesIn(SecondThird, second.Place, span)) ||
           (LiesIn(SecondThird, first.Place, span) && LiesIn(FirstThird, second.Place, span));
}

}  // namespace

double LoadingConstant(const BeamNumbers& beam, PointPair pair)
{
    if (beam.Nds != Edition::Nds1997 || beam.IsOverhanging() || beam.IsContinuous()) {
        return 1;
    }
    const PointsAlone loads = FindPointsAlone(beam.Loads);
    if (loads.Count == 1 && LiesIn(Middle, loads.Points[0].Place, beam.Span)) {
        return 1.09;
    }
    const bool isPair =
        loads.Count == 2 && (pair == PointPair::Any || loads.Points[0].Load == loads.Points[1].Load);
    return isPair && StandAtThirdPoints(loads, beam.Span) ? 0.96 : 1;
}

double VolumeExponent(bool southernPine)
{
    return southernPine ? 1.0 / 20 : 1.0 / 10;
}

float VolumeFactor(double lengthFt, NetSize size, double exponent, double loadingConstant)
{
    const double volume = 21 / lengthFt * (12 / size.D) * (5.125 / size.B);
    return Single(std::min(std::pow(volume, exponent) * loadingConstant, 1.0));
}

}  // namespace kordavan
