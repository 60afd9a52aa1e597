#include "analysis/AppliedLoads.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "analysis/ContinuousSpan.h"
#include "analysis/EquivalentLoads.h"
#include "analysis/LoadView.h"
#include "analysis/StationFill.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr int StationsReached = 95;

double PartialLoad(const LoadView& loads, std::size_t k)
{
    return loads.Partial[k] * (loads.End[k] - loads.Begin[k]);
}

double PartialCentre(const LoadView& loads, std::size_t k)
{
    return (loads.End[k] - loads.Begin[k]) / 2 + loads.Begin[k];
}

double SumPoints(const LoadView& loads)
{
    double sum = 0;
    for (const double load : loads.Point) {
        sum += load;
    }
    return sum;
}

double SumPartials(const LoadView& loads)
{
    double sum = 0;
    for (std::size_t k = 0; k < PartialSlotCount; ++k) {
        sum += PartialLoad(loads, k);
    }
    return sum;
}

/// Moment about R2 of what lies between R1 and R2, ft-lb.
double SpanMomentAboutR2(double span, const LoadView& loads, const LoadSlots& slots)
{
    double moment = loads.Uniform * span * (span / 2);
    for (std::size_t k = slots.Points.First; k < slots.Points.End; ++k) {
        moment += loads.Point[k] * (span - loads.Distance[k]);
    }
    for (std::size_t k = slots.Partials.First; k < slots.Partials.End; ++k) {
        moment += PartialLoad(loads, k) * (span - PartialCentre(loads, k));
    }
    return moment;
}

/// Moment about R2 of what lies on the overhang, ft-lb.
double OverhangMomentAboutR2(const LoadView& loads)
{
    double moment = 0;
    for (std::size_t k = OverhangSlots.Points.First; k < OverhangSlots.Points.End; ++k) {
        moment += loads.Point[k] * loads.Distance[k];
    }
    for (std::size_t k = OverhangSlots.Partials.First; k < OverhangSlots.Partials.End; ++k) {
        moment += PartialLoad(loads, k) * PartialCentre(loads, k);
    }
    return moment;
}

double OverhangLoad(const LoadView& loads)
{
    double sum = 0;
    for (std::size_t k = OverhangSlots.Points.First; k < OverhangSlots.Points.End; ++k) {
        sum += loads.Point[k];
    }
    for (std::size_t k = OverhangSlots.Partials.First; k < OverhangSlots.Partials.End; ++k) {
        sum += PartialLoad(loads, k);
    }
    return sum;
}

double ReactionAtR1(const BeamNumbers& beam, const LoadView& loads)
{
    const double overhangMoment = beam.IsOverhanging() ? OverhangMomentAboutR2(loads) : 0;
    return (SpanMomentAboutR2(beam.Span, loads, SlotsOnSpan(beam.Support)) - overhangMoment) / beam.Span;
}

void AnalyseOverhang(const BeamNumbers& beam, float previousInflectionFt, const StationTable& table,
                     AppliedLoadResult& result)
{
    const LoadView total = TotalLoads(beam.Loads);
    result.OverhangFt = Single(beam.Overhang);
    result.OverhangLoadSum = Single(OverhangLoad(total));
    result.OverhangMomentApplied = Single(OverhangMomentAboutR2(total));
    result.MaxMomentApplied = std::max(result.MaxMomentStation, result.OverhangMomentApplied);
    result.InflectionFt = LastNegativeMoment(table).value_or(previousInflectionFt);
}

void AnalyseContinuous(const BeamNumbers& beam, AppliedLoadResult& result)
{
    const ContinuousCoefficients coefficient = CoefficientsOf(beam);
    const double w = beam.Loads.UNIF;
    const double wl = beam.Loads.LUNIF;
    const double L = beam.Span;
    result.R1Applied = Single(coefficient.R1 * w * L);
    result.R2Applied = Single(coefficient.R2 * w * L);
    result.R1Live = Single(coefficient.R1 * wl * L);
    result.R2Live = Single(coefficient.R2 * wl * L);
    result.MaxMomentApplied = Single(coefficient.Moment * L * L * w);
}

/// The triangular load rises from R1 to R2; its equivalent uniform load served for the moment only.
void ReplaceHipValleyReactions(const BeamNumbers& beam, AppliedLoadResult& result)
{
    const double L = beam.Span;
    const double W = beam.IncreasingTotalLoad;
    const double Wl = beam.IncreasingLiveLoad;
    result.R1Applied = Single(beam.Loads.IncUnifTL * L / 2 + W / 3);
    result.R2Applied = Single(beam.Loads.IncUnifTL * L / 2 + 2 * W / 3);
    result.R1Live = Single(beam.Loads.IncUnifLL * L / 2 + Wl / 3);
    result.R2Live = Single(beam.Loads.IncUnifLL * L / 2 + 2 * Wl / 3);
}

void StoreTotals(const BeamNumbers& beam, AppliedLoadResult& result)
{
    const LoadTotals totals = SumLoads(beam);
    result.PointTotalSum = Single(totals.PointTotal);
    result.PointLiveSum = Single(totals.PointLive);
    result.PartialTotalSum = Single(totals.PartialTotal);
    result.PartialLiveSum = Single(totals.PartialLive);
    result.TotalAppliedLoad = Single(totals.Total);
    result.TotalAppliedLive = Single(totals.Live);
    result.IncreasingTotalLoad = beam.IncreasingTotalLoad;
    result.IncreasingLiveLoad = beam.IncreasingLiveLoad;
}

}  // namespace

LoadTotals SumLoads(const BeamNumbers& beam)
{
    const LoadView total = TotalLoads(beam.Loads);
    const LoadView live = LiveLoads(beam.Loads);
    LoadTotals sums{.PointTotal = SumPoints(total),
                    .PointLive = SumPoints(live),
                    .PartialTotal = SumPartials(total),
                    .PartialLive = SumPartials(live)};
    if (beam.Support == SupportCondition::HipValley) {
        sums.Total = beam.IncreasingTotalLoad + beam.Loads.IncUnifTL * beam.Span;
        sums.Live = beam.IncreasingLiveLoad + beam.Loads.IncUnifLL * beam.Span;
    } else {
        sums.Total = beam.Loads.UNIF * beam.Span + sums.PartialTotal + sums.PointTotal;
        sums.Live = beam.Loads.LUNIF * beam.Span + sums.PartialLive + sums.PointLive;
    }
    return sums;
}

AppliedLoadResult ComputeAppliedLoads(const BeamNumbers& beam, float previousInflectionFt,
                                      StationTable& table, const Progress& progress)
{
    AppliedLoadResult result;
    StoreTotals(beam, result);
    const double r1 = ReactionAtR1(beam, TotalLoads(beam.Loads));
    const double r1Live = ReactionAtR1(beam, LiveLoads(beam.Loads));
    FillStations(beam, r1, table, progress);
    progress.Reach(StationsReached);
    if (beam.IsContinuous()) {
        AnalyseContinuous(beam, result);
    } else {
        result.R1Applied = Single(r1);
        result.R2Applied = Single(result.TotalAppliedLoad - r1);
        result.R1Live = Single(r1Live);
        result.R2Live = Single(result.TotalAppliedLive - r1Live);
        const MomentPeak peak = FindPeak(table);
        result.MaxMomentStation = peak.Moment;
        result.MaxMomentAtFt = peak.StationBefore;
        result.MaxMomentApplied = peak.Moment;
    }
    if (beam.IsOverhanging()) {
        AnalyseOverhang(beam, previousInflectionFt, table, result);
    } else if (beam.Support == SupportCondition::HipValley) {
        ReplaceHipValleyReactions(beam, result);
    }
    result.HasLiveDeflFlag = HasLiveLoad(beam.Loads);
    result.Deflecting = EquivalentLoads(beam);
    return result;
}

bool IsFinite(const AppliedLoadResult& result)
{
    const std::array values{result.TotalAppliedLoad,
                            result.TotalAppliedLive,
                            result.R1Applied,
                            result.R2Applied,
                            result.R1Live,
                            result.R2Live,
                            result.MaxMomentApplied,
                            result.OverhangLoadSum,
                            result.OverhangFt,
                            result.OverhangMomentApplied,
                            result.PointTotalSum,
                            result.PartialTotalSum,
                            result.IncreasingTotalLoad,
                            result.IncreasingLiveLoad};
    return std::all_of(values.begin(), values.end(), [](float value) { return std::isfinite(value); });
}

}  // namespace kordavan
