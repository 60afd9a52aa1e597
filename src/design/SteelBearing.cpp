#include "design/SteelBearing.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr double PoundsPerKip = 1000;

/// Compression perpendicular to grain of the lumber beside a flitch plate, psi.
constexpr double LumberBearing = 405;

/// The rules with their grade worked in: A is 2.5 or 5 times 0.66 Fy and B 0.66 Fy; C is 34 or 67.5 times
/// sqrt(Fy) and D three times C, cut to whole numbers.
struct WebConstants {
    double A;  // ksi
    double B;  // ksi
    double C;  // ksi
    double D;  // ksi
};

constexpr WebConstants End36{59.4, 23.76, 204, 612};
constexpr WebConstants Inside36{118.8, 23.76, 405, 1215};
constexpr WebConstants End50{82.5, 33, 240, 721};
/// B stays that of 36 ksi, which asks for the longer bearing.
constexpr WebConstants Inside50{165, 23.76, 476, 1431};

enum class WebPlace { End, Inside };

const WebConstants& ConstantsOf(bool ksi50, WebPlace place)
{
    if (place == WebPlace::End) {
        return ksi50 ? End50 : End36;
    }
    return ksi50 ? Inside50 : Inside36;
}

/// N against yielding of the web, in., under R kips; below 0 where the fillets spread the load enough.
double YieldingLength(const WebConstants& constants, const SteelShape& shape, double R)
{
    const double tw = shape.WebThickness;
    return (R - constants.A * shape.KDistance * tw) / (constants.B * tw);
}

/// N against crippling of the web, in., under R kips.
double CripplingLength(const WebConstants& constants, const SteelShape& shape, double R)
{
    const double tw = shape.WebThickness;
    const double tf = shape.FlangeThickness;
    const double withoutBearing = constants.C * std::pow(tw, 1.5) * std::sqrt(tf);
    return (R - withoutBearing) / (constants.D * tw * tw * tw / tf / shape.ActualDepth);
}

float SupportLength(const SteelCriteria& criteria, const SteelShape& shape, float reaction, WebPlace place)
{
    const WebConstants& constants = ConstantsOf(criteria.ksi50, place);
    const double R = reaction / PoundsPerKip;
    return Single(std::max(
        {YieldingLength(constants, shape, R), CripplingLength(constants, shape, R), shape.KDistance}));
}

/// Feet from a point load to the nearer end of the beam.
double DistanceToEnd(const BeamNumbers& beam, std::size_t slot)
{
    const bool isOnOverhang = slot >= SlotsOnSpan(beam.Support).Points.End;
    const double place = beam.Loads.DIS[slot] + (isOnOverhang ? beam.Span : 0);
    return std::min(place, beam.Span + beam.Overhang - place);
}

float PointLength(const BeamNumbers& beam, const SteelCriteria& criteria, const SteelShape& shape,
                  std::size_t slot)
{
    const double R = beam.Loads.PT[slot] / PoundsPerKip;
    if (R <= 0) {
        return 0;
    }
    const double distance = DistanceToEnd(beam, slot) * InchesPerFoot;
    const WebPlace yielding = distance > shape.ActualDepth ? WebPlace::Inside : WebPlace::End;
    const WebPlace crippling = distance >= shape.ActualDepth / 2 ? WebPlace::Inside : WebPlace::End;
    return Single(std::max({YieldingLength(ConstantsOf(criteria.ksi50, yielding), shape, R),
                            CripplingLength(ConstantsOf(criteria.ksi50, crippling), shape, R), 0.0}));
}

/// A support that is lifted needs none.
float LumberArea(float reaction)
{
    return Single(std::max(0.0, reaction / LumberBearing));
}

}  // namespace

SteelBearing ComputeSteelBearing(const BeamNumbers& beam, const SteelCriteria& criteria,
                                 const SteelShape& shape, const CandidateLoadResult& loads)
{
    SteelBearing bearing;
    if (IsPlate(criteria.Family)) {
        bearing.R1 = LumberArea(loads.R1Total);
        bearing.R2 = LumberArea(loads.R2Total);
        return bearing;
    }
    const bool goesOnBeyondR2 = beam.IsOverhanging() || beam.IsContinuous();
    bearing.R1 = SupportLength(criteria, shape, loads.R1Total, WebPlace::End);
    bearing.R2 =
        SupportLength(criteria, shape, loads.R2Total, goesOnBeyondR2 ? WebPlace::Inside : WebPlace::End);
    if (!beam.IsContinuous()) {
        for (std::size_t slot = 0; slot < PointSlotCount; ++slot) {
            bearing.AtPoints[slot] = PointLength(beam, criteria, shape, slot);
        }
    }
    return bearing;
}

}  // namespace kordavan
