#include "design/SteelScan.h"

#include "analysis/Deflection.h"
#include "core/NumberText.h"
#include "design/Verdict.h"

namespace kordavan {

namespace {

constexpr std::string_view ScannedShearError = "Max V Error, Steel form22";

std::string UsedText(double used, double allowed)
{
    constexpr double whole = 100;
    return FormatNumber(Single(used / allowed * whole), "#0") + "%";
}

std::string LimitText(SteelFamily family, const BendingRegime& regime)
{
    if (family == SteelFamily::Tube) {
        return "any OK";
    }
    return IsPlate(family) ? "0" : UnbracedLimitText(regime);
}

SteelSlot SlotOf(const SteelCriteria& criteria, const SteelShape& shape, const BendingRegime& regime,
                 const ShearResult& shear)
{
    return {.StlPick = shape.ShapeName,
            .StlDepLab = shape.DepthText,
            .StlWidLab = shape.BreadthText,
            .UBLlab = LimitText(criteria.Family, regime),
            .StlSecPerct = UsedText(regime.RequiredS, shape.SectionModulus),
            .StlShearPerct = UsedText(shear.ShearStressActual, criteria.Allowable.FvSteel)};
}

}  // namespace

Outcome ScanSteelCandidates(const SteelBeam& steel, UserPort& user, std::vector<SteelSlot>& slots)
{
    const SteelCriteria& criteria = steel.Criteria;
    slots.clear();
    for (const SteelShape& shape : ShapesOf(criteria.Family)) {
        if (!HasSection(shape) || !IsWithinDepth(criteria, shape.ActualDepth)) {
            continue;
        }
        const SectionProps section = SteelSection(shape, steel.Beam.NoWeight);
        const CandidateLoadResult loads = ComputeSteelLoads(steel, section);
        const BendingRegime regime = ChooseBendingRegime(criteria, shape, loads.MaxMomentFtLb);
        if (!PassesBending(regime, shape)) {
            continue;
        }
        const ShearResult shear = ComputeSteelShear(steel, section, regime, loads);
        if (shear.Fault == ShearFault::NoMaximum) {
            slots.clear();
            return Refuse(user, Refusal(ScannedShearError));
        }
        if (!(shear.ShearStressActual < criteria.Allowable.FvSteel) ||
            !MeetsDeflectionLimits(ComputeDeflection(steel.Beam, section, SteelE, steel.Applied, loads))) {
            continue;
        }
        slots.push_back(SlotOf(criteria, shape, regime, shear));
        if (slots.size() == SteelSlotCount) {
            break;
        }
    }
    return Outcome::Done;
}

}  // namespace kordavan
