#include "analysis/EquivalentLoads.h"

#include <array>
#include <cstddef>

#include "analysis/LoadView.h"
#include "analysis/StationTable.h"
#include "analysis/Stations.h"

namespace kordavan {

namespace {

constexpr int SpanSteps = LastStation;
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
void AddOverhangPartial(double w, const StationSums& i, double spanIn, double overhangIn,
                        DeflectionLoads& sums)
{
    const double dcIn = overhangIn / OverhangSteps;
    const double sumOfCubics = dcIn * dcIn * (overhangIn * i.Second - dcIn * i.Third);
    sums.TipDrop += w * dcIn / 3 * sumOfCubics;
    sums.SpanLift += spanIn * spanIn * (dcIn / InchesPerFoot * w) * (dcIn * i.First) * EndMomentLift;
}

/// One pass over the loads, total or live, and what it comes to.
struct Pass {
    LoadView Loads;
    DeflectionLoads& Sums;
};

using Passes = std::array<Pass, 2>;

void AddSpan(const BeamNumbers& beam, double overhangIn, const Passes& passes)
{
    const double L = beam.Span;
    const LoadSlots& slots = SlotsOnSpan(beam.Support);
    const StationLine line{L, SpanSteps};
    for (const auto& [loads, sums] : passes) {
        for (std::size_t k = slots.Points.First; k < slots.Points.End; ++k) {
            if (loads.Point[k] > 0) {
                AddSpanPoint(loads.Point[k], loads.Distance[k], L, overhangIn, sums);
            }
        }
    }
    for (std::size_t k = slots.Partials.First; k < slots.Partials.End; ++k) {
        if (beam.Loads.PAR[k] <= 0) {
            continue;
        }
        const StationSums strips = SumStationsBetween(line, beam.Loads.BEGP[k], beam.Loads.ENDP[k]);
        for (const auto& [loads, sums] : passes) {
            AddSpanPartial(loads.Partial[k], strips, L, overhangIn, sums);
        }
    }
}

void AddOverhang(const BeamNumbers& beam, const Passes& passes)
{
    const double spanIn = InchesPerFoot * beam.Span;
    const StationLine line{beam.Overhang, OverhangSteps};
    for (const auto& [loads, sums] : passes) {
        for (std::size_t k = OverhangSlots.Points.First; k < OverhangSlots.Points.End; ++k) {
            if (loads.Point[k] > 0) {
                AddOverhangPoint(loads.Point[k], loads.Distance[k], spanIn, sums);
            }
        }
    }
    for (std::size_t k = OverhangSlots.Partials.First; k < OverhangSlots.Partials.End; ++k) {
        if (beam.Loads.PAR[k] <= 0) {
            continue;
        }
        const StationSums strips = SumStationsBetween(line, beam.Loads.BEGP[k], beam.Loads.ENDP[k]);
        for (const auto& [loads, sums] : passes) {
            AddOverhangPartial(loads.Partial[k], strips, spanIn, InchesPerFoot * beam.Overhang, sums);
        }
    }
}

}  // namespace

double UniformTipLift(double spanIn, double overhangIn, double w)
{
    return spanIn * spanIn * spanIn * (w / InchesPerFoot) * overhangIn / 24;
}

DeflectionPasses EquivalentLoads(const BeamNumbers& beam)
{
    DeflectionPasses result;
    const Passes passes{Pass{TotalLoads(beam.Loads), result.Total}, Pass{LiveLoads(beam.Loads), result.Live}};
    const double overhangIn = InchesPerFoot * beam.Overhang;
    for (const auto& [loads, sums] : passes) {
        sums.OnSpan = loads.Uniform * beam.Span;
        sums.TipLift = UniformTipLift(InchesPerFoot * beam.Span, overhangIn, loads.Uniform);
    }
    if (!beam.IsContinuous()) {
        AddSpan(beam, overhangIn, passes);
    }
    if (beam.IsOverhanging()) {
        AddOverhang(beam, passes);
    }
    return result;
}

}  // namespace kordavan
