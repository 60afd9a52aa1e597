#include "design/LoadingConditions.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "core/NumberText.h"
#include "design/UnbracedEntry.h"

namespace kordavan {

namespace {

constexpr std::string_view NoLoadPairs =
    "There are no load pairs to step through. Please enter them by Options, Set Defaults.";

void ClearHipLoads(LoadSet& loads)
{
    for (std::string* text :
         {&loads.IncTL, &loads.IncLL, &loads.IncUnifTL, &loads.IncUnifLL, &loads.Trib1, &loads.Trib2}) {
        text->clear();
    }
}

void ClearUniformCalculator(LoadSet& loads)
{
    loads.Text1.clear();
    loads.Text2.clear();
    loads.Tribute.clear();
}

void ForgetAdjustments(Session& session)
{
    session.Unbalanced = {};
    session.Restore = {};
}

bool IsBlankPair(const LoadPair& pair)
{
    return Val(pair.Live) == 0 && Val(pair.Total) == 0;
}

bool IsSameLoad(std::string_view box, std::string_view of)
{
    return Val(box) == Val(of);
}

bool Matches(const LoadPair& boxes, const LoadPair& pair)
{
    const bool liveFits = boxes.Live.empty() || IsSameLoad(boxes.Live, pair.Live);
    const bool totalFits = boxes.Total.empty() || IsSameLoad(boxes.Total, pair.Total);
    return liveFits && totalFits;
}

}  // namespace

void SwitchSupport(Session& session, SupportCondition support)
{
    BeamProblem& problem = session.Problem;
    if (problem.Support == support) {
        return;
    }
    const bool wasFixed = FixedUnbracedLength(problem).has_value();
    problem.Support = support;
    ForgetAdjustments(session);
    ClearUniformLoad(problem.Loads);
    ClearPointLoads(problem.Loads);
    ClearPartialLoads(problem.Loads);
    ClearPartialCalculatorRows(problem.Loads);
    ClearHipLoads(problem.Loads);
    problem.CantUBLtext.clear();
    if (const std::optional<std::string_view> fixed = FixedUnbracedLength(problem)) {
        problem.UBLtext = *fixed;
    } else if (wasFixed) {
        problem.UBLtext.clear();
    }
    if (support == SupportCondition::MultipleSpans) {
        problem.CantUBLtext = problem.UBLtext;
        problem.ThreeSpan = false;
    }
    if (support == SupportCondition::HipValley) {
        ClearUniformCalculator(problem.Loads);
    }
}

void ClearPointRow(LoadSet& loads, std::size_t slot)
{
    loads.PT[slot].clear();
    loads.LPT[slot].clear();
    loads.DIS[slot].clear();
}

void ClearPartialRow(LoadSet& loads, std::size_t slot)
{
    loads.PAR[slot].clear();
    loads.LPAR[slot].clear();
    loads.BEGP[slot].clear();
    loads.ENDP[slot].clear();
}

void ClearPartialCalculatorRow(LoadSet& loads, std::size_t slot)
{
    loads.PSF[slot].clear();
    loads.LPSF[slot].clear();
    loads.TribPSF[slot].clear();
}

void ClearPartialCalculatorRows(LoadSet& loads)
{
    for (std::size_t slot = 0; slot < PartialSlotCount; ++slot) {
        ClearPartialCalculatorRow(loads, slot);
    }
}

void ClearUniformLoad(LoadSet& loads)
{
    loads.UNIF.clear();
    loads.LUNIF.clear();
}

void ClearPointLoads(LoadSet& loads)
{
    for (std::size_t slot = 0; slot < PointSlotCount; ++slot) {
        ClearPointRow(loads, slot);
    }
}

void ClearPartialLoads(LoadSet& loads)
{
    for (std::size_t slot = 0; slot < PartialSlotCount; ++slot) {
        ClearPartialRow(loads, slot);
    }
}

std::string_view NextDuration(std::string_view text)
{
    constexpr std::array<std::string_view, 4> factors{"1.00", "1.15", "1.25", "0.90"};
    const auto* const found = std::find(factors.begin(), factors.end(), text);
    const bool hasNext = found != factors.end() && found + 1 != factors.end();
    return hasNext ? *(found + 1) : factors.front();
}

void StepDeflectionLimits(Session& session)
{
    session.DeflectionLimitsInHand = (session.DeflectionLimitsInHand + 1) % DeflectionLimitCycle.size();
    const DeflectionLimits& limits = DeflectionLimitCycle[session.DeflectionLimitsInHand];
    session.Problem.LMaxDefl = limits.LMaxDefl;
    session.Problem.MaxDefl = limits.MaxDefl;
}

LoadPair NextLoadPair(std::span<const LoadPair> pairs, const LoadPair& boxes)
{
    std::vector<LoadPair> cycle;
    std::copy_if(pairs.begin(), pairs.end(), std::back_inserter(cycle),
                 [](const LoadPair& pair) { return !IsBlankPair(pair); });
    if (cycle.empty()) {
        return boxes;
    }
    cycle.emplace_back();
    if (IsBlankPair(boxes)) {
        return cycle.front();
    }
    const auto found = std::find_if(cycle.begin(), cycle.end() - 1,
                                    [&](const LoadPair& pair) { return Matches(boxes, pair); });
    return found == cycle.end() - 1 ? cycle.front() : *(found + 1);
}

Outcome StepLoadPair(std::span<const LoadPair> pairs, std::string& live, std::string& total, UserPort& user)
{
    if (std::all_of(pairs.begin(), pairs.end(), IsBlankPair)) {
        return Refuse(user, Refusal(NoLoadPairs));
    }
    const LoadPair next = NextLoadPair(pairs, {.Live = live, .Total = total});
    live = next.Live;
    total = next.Total;
    return Outcome::Done;
}

}  // namespace kordavan
