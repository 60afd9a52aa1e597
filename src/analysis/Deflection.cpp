#include "analysis/Deflection.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "analysis/ContinuousSpan.h"
#include "analysis/EquivalentLoads.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

/// 5/384, to the digits of the trade's formula.
constexpr double SimpleSpanCoefficient = 0.013;

/// Span lift by a uniform load on the overhang: half of the lift by an end moment.
constexpr double OverhangUniformLift = 0.03208;

struct BeamInches {
    double Span;
    double Overhang;
    double EI;  // lb-in2
};

double SpanCoefficient(const BeamNumbers& beam)
{
    return beam.IsContinuous() ? CoefficientsOf(beam).Deflection : SimpleSpanCoefficient;
}

double SpanDeflection(const BeamNumbers& beam, const BeamInches& in, double selfWeight,
                      const DeflectionLoads& pass)
{
    const double down =
        in.Span * in.Span * in.Span * SpanCoefficient(beam) * (selfWeight * beam.Span + pass.OnSpan);
    const double selfLift =
        in.Span * in.Span * in.Overhang * in.Overhang * (selfWeight / InchesPerFoot) * OverhangUniformLift;
    return (down - (pass.SpanLift + selfLift)) / in.EI;
}

double TipDeflection(const BeamInches& in, double selfWeight, const DeflectionLoads& pass)
{
    const double cubed = in.Overhang * in.Overhang * in.Overhang;
    const double selfDrop = cubed * (selfWeight / InchesPerFoot) / 24 * (3 * in.Overhang + 4 * in.Span);
    const double selfLift = UniformTipLift(in.Span, in.Overhang, selfWeight);
    return (pass.TipDrop + selfDrop - (pass.TipLift + selfLift)) / in.EI;
}

float LengthOver(double lengthIn, double deflectionIn)
{
    return deflectionIn == 0 ? 0 : Single(lengthIn / deflectionIn);
}

float CreepFactorOf(const BeamNumbers& beam)
{
    if (beam.IsSteel()) {
        return 1.0F;
    }
    return beam.Wet ? 2.0F : 1.5F;
}

float WithCreep(double total, float live, float creep)
{
    return Single((total - live) * creep + live);
}

void ComputeSpan(const BeamNumbers& beam, const BeamInches& in, double selfWeight,
                 const AppliedLoadResult& applied, DeflectionResult& result)
{
    if (applied.HasLiveDeflFlag) {
        result.LiveDeflIn = Single(SpanDeflection(beam, in, 0, applied.Deflecting.Live));
        result.AllowLiveDeflIn = Single(in.Span / beam.LMaxDefl);
        result.LiveDeflRatio = LengthOver(in.Span, result.LiveDeflIn);
    }
    result.TotalDeflIn = WithCreep(SpanDeflection(beam, in, selfWeight, applied.Deflecting.Total),
                                   result.LiveDeflIn, result.CreepFactor);
    result.DeadDeflIn = result.TotalDeflIn - result.LiveDeflIn;
    result.AllowTotalDeflIn = Single(in.Span / beam.MaxDefl);
    result.TotalDeflRatio = LengthOver(in.Span, result.TotalDeflIn);
}

void ComputeTip(const BeamNumbers& beam, const BeamInches& in, double selfWeight,
                const AppliedLoadResult& applied, DeflectionResult& result)
{
    const double twiceOverhang = 2 * in.Overhang;
    if (applied.HasLiveDeflFlag) {
        result.TipLiveDeflIn = Single(TipDeflection(in, 0, applied.Deflecting.Live));
        result.AllowTipLiveDeflIn = Single(twiceOverhang / beam.LMaxDefl);
        result.TipLiveDeflRatio = LengthOver(twiceOverhang, result.TipLiveDeflIn);
    }
    result.TipDeflIn = WithCreep(TipDeflection(in, selfWeight, applied.Deflecting.Total),
                                 result.TipLiveDeflIn, result.CreepFactor);
    result.TipDeadDeflIn = result.TipDeflIn - result.TipLiveDeflIn;
    result.AllowTipDeflIn = Single(twiceOverhang / beam.MaxDefl);
    result.TipDeflRatio = LengthOver(twiceOverhang, result.TipDeflIn);
}

}  // namespace

DeflectionResult ComputeDeflection(const BeamNumbers& beam, const SectionProps& section,
                                   double EPrimeMillions, const AppliedLoadResult& applied,
                                   const CandidateLoadResult& loads)
{
    const BeamInches in{.Span = InchesPerFoot * beam.Span,
                        .Overhang = InchesPerFoot * beam.Overhang,
                        .EI = EPrimeMillions * PsiPerMillion * section.I};
    DeflectionResult result;
    result.CreepFactor = CreepFactorOf(beam);
    ComputeSpan(beam, in, loads.SelfWeightPlf, applied, result);
    if (beam.IsOverhanging()) {
        ComputeTip(beam, in, loads.SelfWeightPlf, applied, result);
    }
    return result;
}

bool IsFinite(const DeflectionResult& result)
{
    const std::array values{result.TotalDeflIn,     result.LiveDeflIn,       result.TipDeflIn,
                            result.TipLiveDeflIn,   result.AllowTotalDeflIn, result.AllowLiveDeflIn,
                            result.TotalDeflRatio,  result.LiveDeflRatio,    result.TipDeflRatio,
                            result.TipLiveDeflRatio};
    return std::all_of(values.begin(), values.end(), [](float value) { return std::isfinite(value); });
}

}  // namespace kordavan
