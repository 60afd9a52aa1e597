#include "design/SteelRow.h"

#include "analysis/CandidateLoads.h"
#include "analysis/Shear.h"
#include "core/NumberText.h"

namespace kordavan {

SectionProps SteelSection(const SteelShape& shape, bool noWeight)
{
    return {.B = shape.WebThickness,
            .D = shape.ActualDepth,
            .Round = false,
            .S = Single(shape.SectionModulus),
            .A = Single(shape.ActualDepth * shape.WebThickness),
            .I = Single(shape.MomentOfInertia),
            .SelfWeightPlf = noWeight ? 0 : Single(shape.WeightPerFoot)};
}

CandidateLoadResult ComputeSteelLoads(const SteelBeam& steel, const SectionProps& section)
{
    return ComputeCandidateLoads(steel.Beam, section, steel.Applied);
}

ShearResult ComputeSteelShear(const SteelBeam& steel, const SectionProps& section,
                              const BendingRegime& regime, const CandidateLoadResult& loads)
{
    const double FvSteel = steel.Criteria.Allowable.FvSteel;
    ShearResult shear = ComputeShear(steel.Beam, section, {.FbPrime = regime.FbAllowed, .FvPrime = FvSteel},
                                     steel.Applied, loads);
    shear.ShearStressActual = Single(shear.ShearMax / (section.D * section.B));
    shear.AreaRequired = Single(shear.ShearMax / FvSteel);
    return shear;
}

}  // namespace kordavan
