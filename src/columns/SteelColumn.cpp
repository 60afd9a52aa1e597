#include "columns/SteelColumn.h"

#include <algorithm>

#include "core/BeamNumbers.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr double PoundsPerKip = 1000;

// Four decimals, deliberately: allowable stresses agree with those of old sheets.
constexpr double Pi = 3.1416;

constexpr std::string_view NoneWork =
    "None of the column sizes in the Kordavan database meet the requirements.";

/// What the standard says of a steel: AISC ASD, Cc = sqrt(2 pi^2 E / Fy) as printed.
struct SteelGrade {
    float Fy;  // ksi
    float Cc;  // none
};

constexpr SteelGrade PipeSteel{.Fy = 36, .Cc = 126.1F};
constexpr SteelGrade TubeSteel{.Fy = 46, .Cc = 111.5F};

/// Allowable compression, ksi: AISC ASD equations E2-1 up to Cc and E2-2 beyond.
double AllowableStress(double KLr, const SteelGrade& steel)
{
    const double Cc = steel.Cc;
    if (KLr <= Cc) {
        const double safety = 5.0 / 3 + 3 * KLr / (8 * Cc) - KLr * KLr * KLr / (8 * Cc * Cc * Cc);
        return (1 - KLr * KLr / (2 * Cc * Cc)) * steel.Fy / safety;
    }
    return 12 * Pi * Pi * SteelColumnE / (23 * KLr * KLr);
}

/// The sizes of a kind that carry the load and are not loaded in full, each name once, in catalogue order.
std::vector<std::string_view> SuitableSizes(const SteelColumnProblem& problem, SteelColumnKind kind)
{
    std::vector<std::string_view> sizes;
    const SteelColumnRange range = RowsOfKind(kind);
    for (std::size_t k = range.First; k < range.First + range.Count; ++k) {
        const SteelColumnRow& row = SteelColumnRows()[k];
        const SteelColumnResult result = WorkOutSteelColumn(problem, k);
        const bool suits = result.SlendernessPasses && result.RequiredArea < Single(row.Area);
        if (suits && std::find(sizes.begin(), sizes.end(), row.Size) == sizes.end()) {
            sizes.push_back(row.Size);
        }
    }
    return sizes;
}

std::string FirstOf(const std::vector<std::string_view>& sizes)
{
    return sizes.empty() ? std::string{} : std::string(sizes.front());
}

}  // namespace

SteelColumnProblem ReadSteelColumnProblem(const ColumnEntry& entry)
{
    return {.Reaction = Val(entry.cReacText),
            .UnbracedLength = Val(entry.cD1text) * InchesPerFoot,
            .K = Val(entry.cModeText),
            .ColumnHeight = Val(entry.cHTtext)};
}

SteelColumnResult WorkOutSteelColumn(const SteelColumnProblem& problem, std::size_t row)
{
    const SteelColumnRow& size = SteelColumnRows()[row];
    const SteelGrade& steel = IsSteelTube(row) ? TubeSteel : PipeSteel;
    SteelColumnResult result;
    result.Row = row;
    result.Fy = steel.Fy;
    result.Cc = steel.Cc;
    result.KLoverR = Single(problem.K * problem.UnbracedLength / size.Radius);
    result.SlendernessPasses = result.KLoverR <= GreatestSteelSlenderness;

    const double Fa = AllowableStress(result.KLoverR, steel);
    const double P = problem.Reaction / PoundsPerKip;
    result.Fa = Single(Fa);
    result.RequiredArea = Single(P / Fa);
    result.ActualStress = Single(P / size.Area);
    result.AreaPasses = result.RequiredArea <= Single(size.Area);
    return result;
}

SteelColumnPicks SearchSteelColumns(const SteelColumnProblem& problem)
{
    SteelColumnPicks picks;
    picks.StdRndBut = FirstOf(SuitableSizes(problem, SteelColumnKind::Standard));
    picks.ExtraRndbut = FirstOf(SuitableSizes(problem, SteelColumnKind::ExtraStrong));
    picks.DblRndBut = FirstOf(SuitableSizes(problem, SteelColumnKind::DoubleExtraStrong));
    const std::vector<std::string_view> tubes = SuitableSizes(problem, SteelColumnKind::Tube);
    for (std::size_t k = 0; k < std::min(tubes.size(), picks.TubeCol.size()); ++k) {
        picks.TubeCol[k] = tubes[k];
    }
    const bool hasNone = picks == SteelColumnPicks{};
    picks.Label60 = hasNone ? NoneWork : std::string_view{};
    return picks;
}

}  // namespace kordavan
