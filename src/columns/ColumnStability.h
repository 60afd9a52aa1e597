#pragma once

#include <optional>

#include "core/NdsEdition.h"

namespace kordavan {

/// Whether buckling is worked out with the reduced modulus Emin, as from NDS 2005 on.
constexpr bool IsNds2005Plus(Edition edition)
{
    return edition != Edition::None && !IsPre2005(edition);
}

/// Coefficient KcE of E'/(le/d)^2 in the critical buckling stress FcE of visually graded lumber. From NDS
/// 2005 on 0.822 of Emin, which is 0.3653 of E (NDS 3.7.1.5, appendix D.4); 0.3 before.
double EulerColumnCoefficient(bool isNds2005Plus);

/// Greatest slenderness le/d of a column (NDS 3.7.1.4).
inline constexpr double MostColumnSlenderness = 50;

/// c of the column stability factor, sawn lumber (NDS 3.7.1.5).
inline constexpr double SawnColumnC = 0.8;

/// Column stability factor Cp of sawn lumber, without Kf (NDS 3.7.1.5).
/// @param ratio  FcE / Fc*, not negative
double ColumnStabilityFactor(double ratio);

/// Size factor of Fc of dimension lumber by its net width, in. (NDS Supplement, table 4A). None for a width
/// that the table does not have.
std::optional<float> CompressionSizeFactor(float width, bool isStudGrade);

}  // namespace kordavan
