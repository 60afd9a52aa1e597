#include "analysis/EquivalentLoads.h"

#include <cstddef>

#include "analysis/Stations.h"

namespace kordavan {

namespace {

constexpr int SpanSteps = 200;
constexpr int OverhangSteps = 100;

/// A point load P at a makes as much midspan deflection as a total uniform load of 6.35 P a (L - a) / L^2.
constexpr double PointToUniform = 6.35;

/// A moment M at R2 lifts the span by 0.06415 M L^2 / EI at most (1/(9 sqrt 3)).
constexpr double EndMomentLift = 0.06415;

void AddSpanPoint(double P, double a, double L, double overhangIn, DeflectionLoads& sums)
{
    const double aIn = InchesPerFoot * a;
    const double spanIn = InchesPerFoot * L;
    sums.OnSpan += PointToUniform * P * a * (L - a) / (L * L);
    sums.TipLift += aIn * P * (spanIn - aIn) * overhangIn / (6 * spanIn) * (aIn + spanIn);
}

/// A strip at station i carries w dx lb at x = i dx; the sums below run over i, i^2 and i^3.
void AddSpanPartial(double w, const StationSums& i, double L, double overhangIn, DeflectionLoads& sums)
{
    const double dx = L / SpanSteps;
    const double spanIn = InchesPerFoot * L;
    const double dxIn = spanIn / SpanSteps;
    sums.OnSpan += PointToUniform * w * dx * dx * (L * i.First - dx * i.Second) / (L * L);
    const double sumOfCubics = dxIn * spanIn * spanIn * i.First - dxIn * dxIn * dxIn * i.Third;
    sums.TipLift += dx * w * overhangIn * sumOfCubics / (6 * spanIn);
}

void AddOverhangPoint(double P, double a, double spanIn, DeflectionLoads& sums)
{
    const double aIn = InchesPerFoot * a;
    sums.TipDrop += aIn * aIn * P / 3 * (aIn + spanIn);
    sums.SpanLift += spanIn * spanIn * aIn * P * EndMomentLift;
}

/// The strip's last factor is the overhang less its own place, unlike that of a point load.
void AddOverhangPartial(double w, const StationSums& i, double spanIn, double overhangIn, DeflectionLoads& sums)
{
    const double dcIn = overhangIn / OverhangSteps;
    const double sumOfCubics = dcIn * dcIn * (overhangIn * i.Second - dcIn * i.Third);
    sums.TipDrop += w * dcIn / 3 * sumOfCubics;
    sums.SpanLift += spanIn * spanIn * (dcIn / InchesPerFoot * w) * (dcIn * i.First) * EndMomentLift;
}

void AddOverhang(const LoadView& loads, double spanIn, double overhangFt, DeflectionLoads& sums)
{
    const StationLine line{overhangFt, OverhangSteps};
    for (std::size_t k = FirstOverhangPoint; k < PointSlotCount; ++k) {
        if (loads.Point[k] > 0) {
            AddOverhangPoint(loads.Point[k], loads.Distance[k], spanIn, sums);
        }
    }
    for (std::size_t k = FirstOverhangPartial; k < PartialSlotCount; ++k) {
        if (loads.Partial[k] > 0) {
            AddOverhangPartial(loads.Partial[k], SumStationsBetween(line, loads.Begin[k], loads.End[k]), spanIn,
                               InchesPerFoot * overhangFt, sums);
        }
    }
}

}  // namespace

double UniformTipLift(double spanIn, double overhangIn, double w)
{
    return spanIn * spanIn * spanIn * (w / InchesPerFoot) * overhangIn / 24;
}

DeflectionLoads EquivalentLoads(const BeamNumbers& beam, const LoadView& loads, double overhangFt)
{
    const double L = beam.Span;
    const double spanIn = InchesPerFoot * L;
    const double overhangIn = InchesPerFoot * overhangFt;
    DeflectionLoads sums;
    sums.OnSpan = loads.Uniform * L;
    if (beam.IsContinuous()) {
        return sums;
    }
    sums.TipLift = UniformTipLift(spanIn, overhangIn, loads.Uniform);
    const SpanSlots slots = SlotsOnSpan(beam.Support);
    const StationLine line{L, SpanSteps};
    for (std::size_t k = 0; k < slots.Points; ++k) {
        if (loads.Point[k] > 0) {
            AddSpanPoint(loads.Point[k], loads.Distance[k], L, overhangIn, sums);
        }
    }
    for (std::size_t k = 0; k < slots.Partials; ++k) {
        if (loads.Partial[k] > 0) {
            AddSpanPartial(loads.Partial[k], SumStationsBetween(line, loads.Begin[k], loads.End[k]), L, overhangIn,
                           sums);
        }
    }
    if (beam.IsOverhanging()) {
        AddOverhang(loads, spanIn, overhangFt, sums);
    }
    return sums;
}

}  // namespace kordavan
