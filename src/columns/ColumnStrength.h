#pragma once

#include "columns/ColumnProblem.h"
#include "columns/ColumnResult.h"
#include "core/NdsEdition.h"

namespace kordavan {

/// What a size is worked out for. The two differ in wet service of timbers and in one edition's buckling.
enum class ColumnPurpose { Search, Test };

/// A size and the plane in which it buckles first.
struct ColumnCandidate {
    float D1 = 0;  // net, in.
    float D2 = 0;
    ColumnPlane Governing = ColumnPlane::Neither;
};

/// Adjustment factors of a candidate, NDS Supplement tables 4A and 4D, NDS 4.3.8 and 15.3.2. A candidate that
/// can buckle in neither plane takes those of plane D2.
/// @param carried  the factors of the candidate before: a width without a size factor keeps that one
ColumnFactors ColumnFactorsOf(const ColumnProblem& problem, Edition edition, const ColumnCandidate& candidate,
                              ColumnPurpose purpose, const ColumnFactors& carried);

/// Whether the size factor is that of the candidate before.
bool KeepsSizeFactor(const ColumnProblem& problem, const ColumnCandidate& candidate);

}  // namespace kordavan
