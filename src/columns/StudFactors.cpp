#include "columns/StudFactors.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "columns/ColumnStability.h"

namespace kordavan {

namespace {

struct StudFactorRow {
    float Depth;                   // net, in.
    float CFb;                     // No. 2 and better, 2 and 3 in. thick
    float CFb4x;                   // the same, 4 in. thick
    std::optional<float> CFbStud;  // Stud grade
    float SpecialCr;               // 2x pieces in walls under wind
};

// Size factors: NDS Supplement, Table 4A, adjustment factors. Special Cr: IBC, Table 2306.2.1.
constexpr std::array FactorRows{
    //            depth  CFb   4x    Stud          Cr
    StudFactorRow{3.5F, 1.5F, 1.5F, 1.1F, 1.5F},
    StudFactorRow{5.5F, 1.3F, 1.3F, 1.0F, 1.4F},
    StudFactorRow{7.25F, 1.2F, 1.3F, std::nullopt, 1.3F},
};

constexpr float RepetitiveCr = 1.15F;  // NDS 4.3.9
constexpr float PieceBreadth = 1.5F;   // net, in., of a 2x
constexpr float FourByBreadth = 3.5F;

const StudFactorRow* FindRow(float depth)
{
    const auto* const row =
        std::find_if(FactorRows.begin(), FactorRows.end(),
                     [depth](const StudFactorRow& entry) { return entry.Depth == depth; });
    return row == FactorRows.end() ? nullptr : row;
}

bool IsOfWholePieces(float breadth)
{
    return std::fmod(breadth, PieceBreadth) == 0;
}

std::optional<float> BendingSizeFactor(const StudFactorRow& row, const StudColumnProblem& problem)
{
    if (problem.StudGrade) {
        return row.CFbStud;
    }
    return problem.Breadth == FourByBreadth ? row.CFb4x : row.CFb;
}

float RepetitiveFactor(const StudFactorRow& row, const StudColumnProblem& problem)
{
    if (!problem.RepetitiveNDS) {
        return 1;
    }
    return problem.RepetitiveIBC && IsOfWholePieces(problem.Breadth) ? row.SpecialCr : RepetitiveCr;
}

}  // namespace

std::optional<StudFactors> FindStudFactors(const StudColumnProblem& problem)
{
    const StudFactorRow* const row = FindRow(problem.Depth);
    const std::optional<float> CFb = row == nullptr ? std::nullopt : BendingSizeFactor(*row, problem);
    const std::optional<float> CFc = CompressionSizeFactor(problem.Depth, problem.StudGrade);
    if (!CFb || !CFc) {
        return std::nullopt;
    }
    return StudFactors{.CFb = *CFb, .CFc = *CFc, .Cr = RepetitiveFactor(*row, problem)};
}

bool IsDeniedSpecialCr(const StudColumnProblem& problem)
{
    return problem.RepetitiveNDS && problem.RepetitiveIBC && !IsOfWholePieces(problem.Breadth);
}

}  // namespace kordavan
