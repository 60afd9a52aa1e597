#include "columns/ColumnStrength.h"

#include "columns/ColumnStability.h"

namespace kordavan {

namespace {

constexpr float TwoByThickness = 1.5F;
constexpr float FourByThickness = 3.5F;
constexpr float FourInchWidth = 3.5F;  // whose size factor is the greatest

/// Built-up columns, and 2x and 4x of their own thickness.
bool TakesSizeFactor(const ColumnProblem& problem, const ColumnCandidate& candidate)
{
    return IsBuiltUp(problem.Type) || (problem.Type == ColumnType::SolidSawn2xOr4x &&
                                       (candidate.D1 == TwoByThickness || candidate.D1 == FourByThickness));
}

/// In plane D1 the table is read at 4 in., whatever the width.
float WidthForSizeFactor(const ColumnCandidate& candidate)
{
    return candidate.Governing == ColumnPlane::D1 ? FourInchWidth : candidate.D2;
}

float SizeFactor(const ColumnProblem& problem, const ColumnCandidate& candidate, float carriedCF)
{
    if (!TakesSizeFactor(problem, candidate)) {
        return 1;
    }
    return CompressionSizeFactor(WidthForSizeFactor(candidate), problem.StudGrade).value_or(carriedCF);
}

/// Dimension lumber whose sized Fc is no more than this takes no wet reduction, psi.
constexpr double MostFcWithoutWetFactor = 750;

void ApplyWetService(const ColumnProblem& problem, const ColumnCandidate& candidate, ColumnPurpose purpose,
                     ColumnFactors& factors)
{
    if (problem.Type == ColumnType::SolidSawn6x) {
        const bool isRounded = purpose == ColumnPurpose::Search && candidate.Governing == ColumnPlane::D1;
        factors.CmFc = isRounded ? 0.9F : 0.91F;
        return;
    }
    const bool isLow = static_cast<double>(problem.BaseFc) * factors.CF <= MostFcWithoutWetFactor;
    factors.CmFc = isLow ? 1.0F : 0.8F;
    factors.CmE = 0.9F;
}

/// Of built-up columns that buckle across their plies.
float BuiltUpFactor(const ColumnProblem& problem, const ColumnCandidate& candidate)
{
    if (candidate.Governing != ColumnPlane::D1 || problem.D1FullyBraced) {
        return 1;
    }
    switch (problem.Type) {
        case ColumnType::NailedBuiltUp:
            return 0.6F;
        case ColumnType::BoltedBuiltUp:
            return 0.75F;
        case ColumnType::SolidSawn6x:
        case ColumnType::SolidSawn2xOr4x:
            break;
    }
    return 1;
}

}  // namespace

ColumnFactors ColumnFactorsOf(const ColumnProblem& problem, Edition edition, const ColumnCandidate& candidate,
                              ColumnPurpose purpose, const ColumnFactors& carried)
{
    ColumnFactors factors;
    factors.CF = SizeFactor(problem, candidate, carried.CF);
    if (problem.WetUse) {
        ApplyWetService(problem, candidate, purpose, factors);
    }
    if (problem.Incised) {
        factors.CiFc = edition == Edition::Nds1997 ? 0.85F : 0.8F;
        factors.CiE = 0.95F;
    }
    factors.Kf = BuiltUpFactor(problem, candidate);
    return factors;
}

bool KeepsSizeFactor(const ColumnProblem& problem, const ColumnCandidate& candidate)
{
    return TakesSizeFactor(problem, candidate) &&
           !CompressionSizeFactor(WidthForSizeFactor(candidate), problem.StudGrade);
}

}  // namespace kordavan
