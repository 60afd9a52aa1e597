#include "analysis/SectionProps.h"

#include "core/NumberText.h"

namespace kordavan {

namespace {

// pi/32 and pi/64, to the digits that the trade's tables print.
constexpr double RoundModulusFactor = 0.0981746;
constexpr double RoundInertiaFactor = 0.0490873;

float WeightPerFoot(double area, const WeightBasis& weight)
{
    return weight.NoWeight ? 0 : Single(area * weight.DensityFactor * weight.SlopeFactor);
}

}  // namespace

SectionProps RectangleProps(RectangleSize size, const WeightBasis& weight)
{
    const double b = size.B;
    const double d = size.D;
    return {.B = b,
            .D = d,
            .Round = false,
            .S = Single(b * d * d / 6),
            .A = Single(b * d),
            .I = Single(b * d * d * d / 12),
            .SelfWeightPlf = WeightPerFoot(b * d, weight)};
}

SectionProps RoundProps(double diameter, const WeightBasis& weight)
{
    const double d = diameter;
    return {.B = d,
            .D = d,
            .Round = true,
            .S = Single(RoundModulusFactor * d * d * d),
            .A = Single(CircleAreaFactor * d * d),
            .I = Single(RoundInertiaFactor * d * d * d * d),
            .SelfWeightPlf = WeightPerFoot(CircleAreaFactor * d * d, weight)};
}

}  // namespace kordavan
