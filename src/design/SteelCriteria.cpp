#include "design/SteelCriteria.h"

#include <algorithm>
#include <array>

#include "core/NumberText.h"

namespace kordavan {

namespace {

struct AllowableRow {
    bool Ksi50;
    bool IsTube;
    SteelAllowables Allowable;
};

constexpr std::array AllowableRows{
    //           50 ksi tube    Fy     0.66 Fy  0.60 Fy 0.40 Fy
    AllowableRow{false, true, {46000, 27600.0F, 27600, 18400}},
    AllowableRow{false, false, {36000, 23760.0F, 21600, 14400}},
    AllowableRow{true, true, {50000, 30000.0F, 30000, 20000}},
    AllowableRow{true, false, {50000, 33000.0F, 30000, 20000}},
};

double DepthLimitOf(std::string_view depCombo)
{
    return depCombo == "All" ? NoDepthLimit : Val(depCombo) + NoDepthLimit;
}

}  // namespace

SteelAllowables AllowablesOf(SteelFamily family, bool ksi50)
{
    const bool isTube = family == SteelFamily::Tube;
    const auto* const row = std::find_if(
        AllowableRows.begin(), AllowableRows.end(),
        [=](const AllowableRow& entry) { return entry.Ksi50 == ksi50 && entry.IsTube == isTube; });
    return row->Allowable;
}

SteelCriteria SteelCriteriaOf(const BeamProblem& problem)
{
    return {.Family = problem.Family,
            .ksi50 = problem.ksi50,
            .Allowable = AllowablesOf(problem.Family, problem.ksi50),
            .ProposedUBL = ProposedUnbracedLength(problem),
            .DepthLimit = DepthLimitOf(problem.DepCombo)};
}

double ProposedUnbracedLength(const BeamProblem& problem)
{
    if (problem.UBLtext == AnyUnbracedLength || problem.Support == SupportCondition::MultipleSpans) {
        return 0;
    }
    const double span = Val(problem.UBLtext);
    return problem.Support == SupportCondition::Overhanging ? std::max(span, Val(problem.CantUBLtext)) : span;
}

bool IsWithinDepth(const SteelCriteria& criteria, double actualDepth)
{
    return criteria.DepthLimit == NoDepthLimit || actualDepth <= criteria.DepthLimit;
}

}  // namespace kordavan
