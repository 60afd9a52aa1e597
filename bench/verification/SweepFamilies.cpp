#include "Sweep.h"

namespace kordavan::Verification {

namespace {

constexpr double SpanFt = 10;  // span L of every beam but those that vary it

ElasticCurve ElasticCurveOf(const SweepBeam& beam)
{
    return ElasticCurve(TheoryOf(beam));
}

double EndOf(const SweepBeam& beam)
{
    return beam.Spans * beam.Span + beam.Overhang;
}

double ExactSpanDeflection(const SweepBeam& beam)
{
    return ElasticCurveOf(beam).GreatestDeflection(0, beam.Spans * beam.Span);
}

double ExactTipDeflection(const SweepBeam& beam)
{
    return ElasticCurveOf(beam).Deflection(EndOf(beam));
}

/// What the loads on the overhang alone do to the tip.
double ExactTipDrop(const SweepBeam& beam)
{
    SweepBeam alone = beam;
    alone.UNIF = 0;
    alone.Points.clear();
    alone.Partials.clear();
    return ExactTipDeflection(alone);
}

double ExactSpanMoment(const SweepBeam& beam)
{
    return ElasticCurveOf(beam).GreatestMoment(0, beam.Span);
}

const Measure SpanDeflection{"deflection", "analysis.LiveDeflIn", ExactSpanDeflection, {}};
const Measure TipDeflection{"deflection of the tip", "analysis.TipLiveDeflIn", ExactTipDeflection, {}};
const Measure TipOfDrop{"deflection of the tip, % of the drop by the load on the overhang alone",
                        "analysis.TipLiveDeflIn", ExactTipDeflection, ExactTipDrop};
const Measure LoadMoment{"moment of the loads", "analysis.MaxMomentStation", ExactSpanMoment, {}};
const Measure MomentWithWeight{"moment with self-weight", "analysis.MaxMomentFtLb", ExactSpanMoment, {}};
const Measure SupportMoment{"moment at R2",
                            "analysis.MaxMomentFtLb",
                            [](const SweepBeam& beam) { return -ElasticCurveOf(beam).Moment(beam.Span); },
                            {}};
const Measure SecondReaction{"reaction R2",
                             "analysis.R2Total",
                             [](const SweepBeam& beam) { return ElasticCurveOf(beam).Reaction(1); },
                             {}};

SweepBeams OnePoint(bool withWeight)
{
    return {"one point load", "a / L", 0.05, 0.5, 18, [withWeight](double a) {
                return SweepBeam{.WithWeight = withWeight, .Points = {{1000, a * SpanFt}}};
            }};
}

const SweepBeams TwoPoints{"two equal point loads, a from each end", "a / L", 0.05, 0.45, 16, [](double a) {
                               return SweepBeam{.Points = {{1000, a * SpanFt}, {1000, SpanFt - a * SpanFt}}};
                           }};
const SweepBeams TwoPointsOneSide{
    "two equal point loads in one half, at a and a + 0.1 L", "a / L", 0.05, 0.4, 14, [](double a) {
        return SweepBeam{.Points = {{1000, a * SpanFt}, {1000, (a + 0.1) * SpanFt}}};
    }};
const SweepBeams PointAndUniform{
    "one point load and a uniform load of its weight", "a / L", 0.05, 0.5, 18, [](double a) {
        return SweepBeam{.UNIF = 1000 / SpanFt, .Points = {{1000, a * SpanFt}}};
    }};
const SweepBeams PartialFromSupport{
    "partial load from a support", "length / L", 0.1, 1, 18, [](double length) {
        return SweepBeam{.Partials = {{100, 100, 0, length * SpanFt}}};
    }};
const SweepBeams PartialAtMidspan{
    "partial load about midspan", "length / L", 0.1, 0.9, 16, [](double length) {
        return SweepBeam{.Partials = {{100, 100, (1 - length) / 2 * SpanFt, (1 + length) / 2 * SpanFt}}};
    }};
const SweepBeams PartialMoved{
    "partial load 0.2 L long, moved along", "centre / L", 0.1, 0.5, 16, [](double centre) {
        return SweepBeam{.Partials = {{100, 100, (centre - 0.1) * SpanFt, (centre + 0.1) * SpanFt}}};
    }};
const SweepBeams Hip{
    "hip or valley, with 0 to 100 plf of uniform load", "uniform load in plf", 0, 100, 10, [](double plf) {
        return SweepBeam{.UNIF = plf, .HipPsf = 40};
    }};
const SweepBeams Uniform{"uniform load, span 4 to 24 ft", "span in ft", 4, 24, 10, [](double span) {
                             return SweepBeam{.Span = span, .UNIF = 100};
                         }};

SweepGroup SimpleSpans()
{
    return {
        "Simple span",
        {Compare(OnePoint(false), SpanDeflection, -1, 23), Compare(TwoPoints, SpanDeflection, -1, 26),
         Compare(PartialFromSupport, SpanDeflection, 0, 16), Compare(PartialAtMidspan, SpanDeflection, -6, 6),
         Compare(PartialMoved, SpanDeflection, -3, 13), Compare(TwoPointsOneSide, SpanDeflection, -1, 16),
         Compare(PointAndUniform, SpanDeflection, -1, 7), Compare(Hip, SpanDeflection, 0, 2.5),
         Compare(Uniform, SpanDeflection, -0.2, 0), Compare(OnePoint(false), LoadMoment, -0.01, 0.001),
         Compare(TwoPointsOneSide, LoadMoment, -0.01, 0.001),
         Compare(PartialFromSupport, LoadMoment, -0.01, 0.001),
         Compare(PartialMoved, LoadMoment, -0.01, 0.001), Compare(Hip, LoadMoment, -0.01, 1),
         Compare(OnePoint(true), MomentWithWeight, -0.01, 28),
         Compare(PartialMoved, SecondReaction, -0.001, 0.001)}};
}

SweepBeam UniformSpan(double c)
{
    return {.Overhang = c * SpanFt, .UNIF = 100, .TipPoints = {{1, c * SpanFt}}};
}

SweepBeam UniformThroughout(double c, bool withWeight)
{
    return {.Overhang = c * SpanFt,
            .UNIF = 100,
            .WithWeight = withWeight,
            .TipPartials = {{100, 100, 0, c * SpanFt}}};
}

const SweepBeams UniformOnSpan{"uniform load on the span alone", "overhang / L", 0.1, 0.5, 8, UniformSpan};
const SweepBeams PointAtTip{"point load at the tip", "overhang / L", 0.1, 0.5, 8, [](double c) {
                                return SweepBeam{.Overhang = c * SpanFt, .TipPoints = {{1000, c * SpanFt}}};
                            }};
const SweepBeams PointsOnOverhang{
    "two equal point loads, at the tip and half way", "overhang / L", 0.1, 0.5, 8, [](double c) {
        return SweepBeam{.Overhang = c * SpanFt, .TipPoints = {{1000, c * SpanFt}, {1000, c * SpanFt / 2}}};
    }};
const SweepBeams PartialOnOverhang{
    "partial load over the whole overhang", "overhang / L", 0.1, 0.5, 8, [](double c) {
        return SweepBeam{.Overhang = c * SpanFt, .TipPartials = {{100, 100, 0, c * SpanFt}}};
    }};
const SweepBeams PartialNearTip{
    "partial load on the outer half of the overhang", "overhang / L", 0.1, 0.5, 8, [](double c) {
        return SweepBeam{.Overhang = c * SpanFt, .TipPartials = {{100, 100, c * SpanFt / 2, c * SpanFt}}};
    }};
const SweepBeams PointOnBackspan{
    "point load on the span, overhang 0.3 L", "a / L", 0.1, 0.9, 16, [](double a) {
        return SweepBeam{
            .Overhang = 0.3 * SpanFt, .Points = {{1000, a * SpanFt}}, .TipPoints = {{1, 0.3 * SpanFt}}};
    }};
const SweepBeams PartialOnBackspan{
    "partial load 0.4 L long on the span, overhang 0.3 L", "centre / L", 0.2, 0.8, 12, [](double centre) {
        return SweepBeam{.Overhang = 0.3 * SpanFt,
                         .TipPoints = {{1, 0.3 * SpanFt}},
                         .Partials = {{100, 100, (centre - 0.2) * SpanFt, (centre + 0.2) * SpanFt}}};
    }};

const SweepBeams HeavyBackspan{"point load on the span, overhang 0.3 L", "a / L", 0.1, 0.9, 16, [](double a) {
                                   return SweepBeam{.Overhang = 0.3 * SpanFt,
                                                    .WithWeight = true,
                                                    .Points = {{1000, a * SpanFt}},
                                                    .TipPoints = {{1, 0.3 * SpanFt}}};
                               }};

SweepBeams Throughout(bool withWeight)
{
    return {"uniform load on span and overhang", "overhang / L", 0.1, 0.4, 6, [withWeight](double c) {
                return UniformThroughout(c, withWeight);
            }};
}

SweepGroup OverhangingBeams()
{
    return {
        "Overhanging beam",
        {Compare(UniformOnSpan, SpanDeflection, -0.2, 0), Compare(UniformOnSpan, TipDeflection, -0.01, 0.01),
         Compare(PointAtTip, SpanDeflection, -0.01, 0.01), Compare(PointAtTip, TipDeflection, -0.01, 0.01),
         Compare(PointsOnOverhang, TipDeflection, -17, 0),
         Compare(PartialOnOverhang, SpanDeflection, -1.1, 0),
         Compare(PartialOnOverhang, TipDeflection, -82, 0), Compare(PartialNearTip, TipDeflection, -84, 0),
         Compare(PointOnBackspan, SpanDeflection, -1, 18),
         Compare(PointOnBackspan, TipDeflection, -0.01, 0.01),
         Compare(PartialOnBackspan, SpanDeflection, -0.2, 6),
         Compare(PartialOnBackspan, TipDeflection, -1.3, 0),
         Compare(Throughout(false), SpanDeflection, -2.5, 0), Compare(Throughout(false), TipOfDrop, -82, 0),
         Compare(Throughout(false), LoadMoment, -0.01, 0.001),
         Compare(Throughout(true), MomentWithWeight, -0.4, 0),
         Compare(HeavyBackspan, MomentWithWeight, -6, 68),
         Compare(PointOnBackspan, SecondReaction, -0.001, 0.001)}};
}

SweepGroup ContinuousSpans()
{
    const SweepBeams two{"two equal spans of 4 to 16 ft", "span in ft", 4, 16, 6, [](double span) {
                             return SweepBeam{.Span = span, .Spans = 2, .UNIF = 100};
                         }};
    const SweepBeams three{"three equal spans of 4 to 16 ft", "span in ft", 4, 16, 6, [](double span) {
                               return SweepBeam{.Span = span, .Spans = 3, .UNIF = 100};
                           }};
    return {"Equal spans, uniform load",
            {Compare(two, SpanDeflection, -0.5, 0.5), Compare(two, SupportMoment, -0.001, 0.001),
             Compare(two, SecondReaction, -0.001, 0.001), Compare(three, SpanDeflection, -0.5, 0.5),
             Compare(three, SupportMoment, -0.001, 0.001), Compare(three, SecondReaction, -0.001, 0.001)}};
}

}  // namespace

std::vector<SweepGroup> RunSweep()
{
    return {SimpleSpans(), OverhangingBeams(), ContinuousSpans()};
}

}  // namespace kordavan::Verification
