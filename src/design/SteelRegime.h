#pragma once

#include <string>

#include "design/SteelCriteria.h"
#include "materials/SteelShapes.h"

namespace kordavan {

/// The bending stress that a shape is allowed at the proposed unbraced length.
///
/// Up to Lc a compact shape takes 0.66 Fy, up to Lu every shape takes 0.60 Fy; beyond Lu there is no regime.
/// Both flags false means none.
struct BendingRegime {
    bool LcApplies = false;
    bool LuApplies = false;
    float FbAllowed = 0;  // psi
    float RequiredS = 0;  // in3
    double LimitFt = 0;   // the Lc or Lu that applies; 0 where no unbraced length is tested

    bool Applies() const { return LcApplies || LuApplies; }
};

/// Chooses the regime in which the shape passes, 0.66 Fy first; where it passes in none, the first that its
/// unbraced length lets it have. A length equal to the limit is within it.
/// @param maxMoment  span moment with self-weight, ft-lb
BendingRegime ChooseBendingRegime(const SteelCriteria& criteria, const SteelShape& shape, float maxMoment);

/// True when the shape has a regime and the section that it asks for.
bool PassesBending(const BendingRegime& regime, const SteelShape& shape);

/// "Lc = 7.1" or "Lu = 11.5", ft; empty where no unbraced length is tested.
std::string UnbracedLimitText(const BendingRegime& regime);

}  // namespace kordavan
