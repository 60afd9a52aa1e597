#include "design/SteelRegime.h"

#include "core/BeamNumbers.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

BendingRegime Compact(const SteelCriteria& criteria, float maxMoment, double Lc)
{
    const float Fb = criteria.Allowable.FbCompact;
    return {.LcApplies = true,
            .LuApplies = false,
            .FbAllowed = Fb,
            .RequiredS = Single(maxMoment * InchesPerFoot / Fb),
            .LimitFt = Lc};
}

BendingRegime Limited(const SteelCriteria& criteria, float maxMoment, double Lu)
{
    const float Fb = criteria.Allowable.FbLimited;
    return {.LcApplies = false,
            .LuApplies = true,
            .FbAllowed = Fb,
            .RequiredS = Single(maxMoment * InchesPerFoot / Fb),
            .LimitFt = Lu};
}

}  // namespace

BendingRegime ChooseBendingRegime(const SteelCriteria& criteria, const SteelShape& shape, float maxMoment)
{
    if (criteria.Family == SteelFamily::Tube || IsPlate(criteria.Family)) {
        return Compact(criteria, maxMoment, 0);
    }
    const double Lc = criteria.ksi50 ? shape.Lc50 : shape.Lc36;
    const double Lu = criteria.ksi50 ? shape.Lu50 : shape.Lu36;
    const BendingRegime compact = Compact(criteria, maxMoment, Lc);
    const BendingRegime limited = Limited(criteria, maxMoment, Lu);
    const bool withinLc = Lc > 0 && Lc >= criteria.ProposedUBL;
    const bool withinLu = Lu >= criteria.ProposedUBL;
    if (withinLc && PassesBending(compact, shape)) {
        return compact;
    }
    if (withinLu && PassesBending(limited, shape)) {
        return limited;
    }
    if (withinLc) {
        return compact;
    }
    return withinLu ? limited : BendingRegime{};
}

bool PassesBending(const BendingRegime& regime, const SteelShape& shape)
{
    return regime.Applies() && Single(shape.SectionModulus) >= regime.RequiredS;
}

std::string UnbracedLimitText(const BendingRegime& regime)
{
    if (regime.LimitFt <= 0) {
        return {};
    }
    return (regime.LcApplies ? "Lc = " : "Lu = ") + FormatNumber(regime.LimitFt, "#.0#");
}

}  // namespace kordavan
