#pragma once

#include "analysis/AnalysisResult.h"
#include "analysis/SectionProps.h"
#include "core/BeamNumbers.h"
#include "design/SteelCriteria.h"
#include "design/SteelRegime.h"
#include "materials/SteelShapes.h"

namespace kordavan {

/// The beam on which shapes are tested.
struct SteelBeam {
    const BeamNumbers& Beam;
    const AppliedLoadResult& Applied;
    const SteelCriteria& Criteria;
};

/// Section of a shape as the analysis takes it: A is the web, which carries the shear.
SectionProps SteelSection(const SteelShape& shape, bool noWeight);

/// Applied loads with the self-weight of a section.
CandidateLoadResult ComputeSteelLoads(const SteelBeam& steel, const SectionProps& section);

/// Greatest shear, its stress V / (d tw), and the section and web that are required. The larger of the
/// moments in the span and at the overhang sets the section.
ShearResult ComputeSteelShear(const SteelBeam& steel, const SectionProps& section,
                              const BendingRegime& regime, const CandidateLoadResult& loads);

}  // namespace kordavan
