#include "analysis/Shear.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

#include "analysis/LoadView.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr double RectangleShearFactor = 1.5;
constexpr double RoundShearFactor = 1.33333;

/// The part of a point load that is left out when it stands nearer to the support than the depth D.
double PointInside(const BeamNumbers& beam, double load, double fromSupport, double D)
{
    if (fromSupport >= D) {
        return 0;
    }
    return beam.Nds == Edition::Nds1997 ? load : load * (D - fromSupport) / D;
}

/// Length of a partial load within D of the support it is measured from. One that ends exactly at D takes 0.
double LengthInsideStart(double begin, double end, double D)
{
    if (begin < D && end > D) {
        return D - begin;
    }
    return begin < D && end < D ? end - begin : 0;
}

/// The same at the far support, E being the span less D. One that begins exactly at E takes 0.
double LengthInsideEnd(double begin, double end, double E)
{
    if (E < end && E > begin) {
        return end - E;
    }
    return E < end && E < begin ? end - begin : 0;
}

double LoadInsideStart(const BeamNumbers& beam, const LoadSlots& slots, double D)
{
    const LoadView loads = TotalLoads(beam.Loads);
    double inside = 0;
    for (std::size_t k = slots.Points.First; k < slots.Points.End; ++k) {
        inside += PointInside(beam, loads.Point[k], loads.Distance[k], D);
    }
    for (std::size_t k = slots.Partials.First; k < slots.Partials.End; ++k) {
        inside += loads.Partial[k] * LengthInsideStart(loads.Begin[k], loads.End[k], D);
    }
    return inside;
}

double LoadInsideEnd(const BeamNumbers& beam, const LoadSlots& slots, double D)
{
    const LoadView loads = TotalLoads(beam.Loads);
    double inside = 0;
    for (std::size_t k = slots.Points.First; k < slots.Points.End; ++k) {
        inside += PointInside(beam, loads.Point[k], beam.Span - loads.Distance[k], D);
    }
    for (std::size_t k = slots.Partials.First; k < slots.Partials.End; ++k) {
        inside += loads.Partial[k] * LengthInsideEnd(loads.Begin[k], loads.End[k], beam.Span - D);
    }
    return inside;
}

/// Three shears of an overhanging beam: at R1, and at R2 on the span's and on the overhang's side, lb.
struct OverhangShears {
    double AtR1;
    double AtR2Span;
    double AtR2Tip;
};

/// The largest; ties go to R1, then to the span's side of R2. None when they cannot be compared.
std::optional<double> Largest(const OverhangShears& shears)
{
    const auto [r1, span, tip] = shears;
    if (span <= r1 && tip <= r1) {
        return r1;
    }
    if (span >= r1 && tip <= span) {
        return span;
    }
    if (tip > r1 && span < tip) {
        return tip;
    }
    return std::nullopt;
}

void OverhangShear(const BeamNumbers& beam, double D, const AppliedLoadResult& applied,
                   const CandidateLoadResult& loads, ShearResult& result)
{
    const double w = loads.SelfWeightPlf;
    const double overhangShear = applied.OverhangLoadSum + beam.Overhang * w;
    const double spanSide = loads.R2Total - overhangShear;
    const double tipSide = loads.R2Total - spanSide;
    const std::optional<double> greatest = Largest({loads.R1Total, spanSide, tipSide});
    if (!greatest) {
        result.Fault = ShearFault::NoMaximum;
        return;
    }
    result.ShearMax = Single(*greatest);

    const LoadSlots& onSpan = SlotsOnSpan(beam.Support);
    const double uniformInside = (w + beam.Loads.UNIF) * D;
    const OverhangShears reduced{
        .AtR1 = loads.R1Total - (uniformInside + LoadInsideStart(beam, onSpan, D)),
        .AtR2Span = spanSide - (uniformInside + LoadInsideEnd(beam, onSpan, D)),
        .AtR2Tip = tipSide - (w * D + LoadInsideStart(beam, OverhangSlots, D)),
    };
    const std::optional<double> greatestReduced = Largest(reduced);
    if (!greatestReduced) {
        result.Fault = ShearFault::NoReducedMaximum;
    }
    result.ShearReduced = Single(greatestReduced.value_or(0));
}

void SimpleSpanShear(const BeamNumbers& beam, double D, const CandidateLoadResult& loads, ShearResult& result)
{
    const LoadSlots& onSpan = SlotsOnSpan(beam.Support);
    const double uniformInside = (loads.SelfWeightPlf + beam.Loads.UNIF) * D;
    const double atLeft = loads.R1Total - (uniformInside + LoadInsideStart(beam, onSpan, D));
    const double atRight = loads.R2Total - (uniformInside + LoadInsideEnd(beam, onSpan, D));
    result.ShearMax = std::max(loads.R1Total, loads.R2Total);
    result.ShearReduced = Single(std::max(atLeft, atRight));
}

void HipValleyShear(const BeamNumbers& beam, double D, const CandidateLoadResult& loads, ShearResult& result)
{
    const double L = beam.Span;
    const double W = beam.IncreasingTotalLoad;
    const double fromTriangle = 2 * W / 3 - std::abs(W / 3 - (L - D) * (L - D) * W / (L * L));
    result.ShearMax = std::max(loads.R1Total, loads.R2Total);
    result.ShearReduced =
        Single(result.ShearMax - (fromTriangle + (loads.SelfWeightPlf + beam.Loads.IncUnifTL) * D));
}

void ContinuousShear(const BeamNumbers& beam, double D, const CandidateLoadResult& loads, ShearResult& result)
{
    const double w = beam.Loads.UNIF;
    const double s = loads.SelfWeightPlf;
    constexpr double threeSpanShear = 0.6;
    result.ShearMax =
        beam.ThreeSpan ? Single((beam.Span * w + s * beam.Span) * threeSpanShear) : loads.R2Total / 2;
    result.ShearReduced = Single(result.ShearMax - (s + w) * D);
}

double DesignMoment(const BeamNumbers& beam, const CandidateLoadResult& loads)
{
    return beam.IsOverhanging() ? std::max(loads.MaxMomentFtLb, loads.OverhangMomentTotal)
                                : loads.MaxMomentFtLb;
}

}  // namespace

ShearResult ComputeShear(const BeamNumbers& beam, const SectionProps& section,
                         const AllowableStresses& allowable, const AppliedLoadResult& applied,
                         const CandidateLoadResult& loads)
{
    ShearResult result;
    result.SectionRequired = Single(DesignMoment(beam, loads) * InchesPerFoot / allowable.FbPrime);
    const double D = section.D / InchesPerFoot;
    switch (beam.Support) {
        case SupportCondition::SimpleSpan:
            SimpleSpanShear(beam, D, loads, result);
            break;
        case SupportCondition::Overhanging:
            OverhangShear(beam, D, applied, loads, result);
            break;
        case SupportCondition::HipValley:
            HipValleyShear(beam, D, loads, result);
            break;
        case SupportCondition::MultipleSpans:
            ContinuousShear(beam, D, loads, result);
            break;
    }
    const double k = section.Round ? RoundShearFactor : RectangleShearFactor;
    const double V = beam.ReduceShear ? result.ShearReduced : result.ShearMax;
    result.ShearStressActual = Single(k * V / section.A);
    result.AreaRequired = Single(k * V / allowable.FvPrime);
    return result;
}

}  // namespace kordavan
