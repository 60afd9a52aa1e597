#include "analysis/CandidateLoads.h"

#include "analysis/ContinuousSpan.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

void AddToSimpleSpan(double w, double L, const AppliedLoadResult& applied, CandidateLoadResult& loads)
{
    loads.R1Total = Single(w * L / 2 + applied.R1Applied);
    loads.R2Total = Single(w * L / 2 + applied.R2Applied);
    loads.MaxMomentFtLb = Single(w * L * L / 8 + applied.MaxMomentApplied);
}

void AddToOverhangingBeam(double w, double L, double c, const AppliedLoadResult& applied,
                          CandidateLoadResult& loads)
{
    const double x = applied.MaxMomentAtFt;
    loads.R1Total = Single((L * L - c * c) * (w / (2 * L)) + applied.R1Applied);
    loads.R2Total = Single((L + c) * (L + c) * (w / (2 * L)) + applied.R2Applied);
    loads.MaxMomentFtLb = Single(x / 2 * w * x + applied.MaxMomentStation);
    loads.OverhangMomentTotal = Single(w * c * (c / 2) + applied.OverhangMomentApplied);
}

void AddToContinuousBeam(double w, double L, const ContinuousCoefficients& coefficient,
                         const AppliedLoadResult& applied, CandidateLoadResult& loads)
{
    loads.R1Total = Single(coefficient.R1 * w * L + applied.R1Applied);
    loads.R2Total = Single(coefficient.R2 * w * L + applied.R2Applied);
    loads.MaxMomentFtLb = Single(coefficient.Moment * L * L * w + applied.MaxMomentApplied);
}

}  // namespace

CandidateLoadResult ComputeCandidateLoads(const BeamNumbers& beam, const SectionProps& section,
                                          const AppliedLoadResult& applied)
{
    const double w = section.SelfWeightPlf;
    const double L = beam.Span;
    CandidateLoadResult loads;
    loads.SelfWeightPlf = section.SelfWeightPlf;
    loads.SelfWeightTotal = Single((L + beam.Overhang) * w);
    loads.TotalLoadWithSelf = applied.TotalAppliedLoad + loads.SelfWeightTotal;
    switch (beam.Support) {
        case SupportCondition::SimpleSpan:
        case SupportCondition::HipValley:
            AddToSimpleSpan(w, L, applied, loads);
            break;
        case SupportCondition::Overhanging:
            AddToOverhangingBeam(w, L, beam.Overhang, applied, loads);
            break;
        case SupportCondition::MultipleSpans:
            AddToContinuousBeam(w, L, CoefficientsOf(beam), applied, loads);
            break;
    }
    return loads;
}

}  // namespace kordavan
