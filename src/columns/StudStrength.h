#pragma once

#include <optional>

#include "columns/StudFactors.h"
#include "columns/StudMoment.h"
#include "columns/StudProblem.h"
#include "columns/StudResult.h"
#include "core/NdsEdition.h"

namespace kordavan {

/// Strength of a stud as a column across its depth and as a beam under wind: NDS 3.6.3 and 3.7.1, 3.9.2, and
/// the buckling stress of 3.3.3. The axial load is held against the strength without duration of load, the
/// interaction against that with it.
StudResult WorkOutStud(const StudColumnProblem& problem, const StudFactors& factors, const StudMoment& moment,
                       Edition edition);

/// NDS equation 3.9-3 as it stands, of a result's stresses. Beyond FcE it still gives a figure, which says
/// nothing of a stud that axial load alone buckles; none at FcE.
std::optional<float> InteractionOf(const StudResult& result);

/// Whether every figure is a number; without it the result says nothing.
bool IsFinite(const StudResult& result);

}  // namespace kordavan
