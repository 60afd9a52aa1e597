#include "design/LoadTools.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>

#include "core/NumberText.h"
#include "design/EntryAdjustment.h"

namespace kordavan {

namespace {

constexpr std::string_view NumbersTooLarge = "The numbers entered are too large to be multiplied.";

constexpr std::string_view SpanReplaced =
    "The Span Auto-calc feature is currently selected. Kordavan is replacing your previous Span entry with "
    "our calculated Span...";
constexpr std::string_view NoAreaSelected =
    " Please select at least one 'area' on roof plan diagram to be include in the area calculation. The "
    "white squares are checkboxes and at least one must be 'checked'.";

/// Total of the triangular load times this, over the span, is the uniform load of equal moment.
constexpr double EquivalentUniformFactor = 1.0264;

Outcome CheckHipEntries(const BeamProblem& problem, UserPort& user)
{
    const LoadSet& loads = problem.Loads;
    if (Val(loads.IncTL) == 0) {
        return Refuse(user, Refusal("Please enter a total (Live + Dead) load in PSF.", "IncTL"));
    }
    if (problem.Roofbutton && Val(loads.IncLL) == 0) {
        return Refuse(user, Refusal("The Roof Slope Adjustment is checked. Please enter the Live Load in PSF "
                                    "so Kordavan can complete the calculation.",
                                    "IncLL"));
    }
    if (Val(loads.Trib1) <= 0 || Val(loads.Trib2) <= 0) {
        return Refuse(
            user, Refusal("Please enter distances (lengths) for the tributary area calculation.", "Trib1"));
    }
    return Outcome::Done;
}

Outcome SettleHipSpan(BeamProblem& problem, UserPort& user)
{
    const double diagonal = std::hypot(Val(problem.Loads.Trib1), Val(problem.Loads.Trib2));
    if (problem.Loads.CalctheSpan) {
        const std::string span = FormatNumber(diagonal, "###.0#");
        if (!problem.Span.empty() && problem.Span != span) {
            user.Tell(Alert(SpanReplaced));
        }
        problem.Span = span;
    }
    if (Val(problem.Span) == 0) {
        return Refuse(user, Refusal("Please enter a Span or select the Span Auto-calc feature.", "Span"));
    }
    return Outcome::Done;
}

std::string GrownLoad(const std::string& total, const std::string& live, double slopeFactor)
{
    return Val(total) == 0 ? std::string{}
                           : FormatNumber(WithSlope(Val(total), Val(live), slopeFactor), "##.0#");
}

/// What the tool will write, worked out before anything is.
struct HipValleyLoads {
    std::string IncTL;
    std::string IncUnifTL;
    double TotalLoad = 0;  // lb
    double LiveLoad = 0;
    double UNIF = 0;  // plf
    double LUNIF = 0;
};

HipValleyLoads EquivalentHipLoads(const Session& session)
{
    const BeamProblem& problem = session.Problem;
    const LoadSet& loads = problem.Loads;
    HipValleyLoads hip{.IncTL = loads.IncTL, .IncUnifTL = loads.IncUnifTL};
    if (problem.Roofbutton) {
        const double slope = RafterSlopeFactor(problem);
        hip.IncTL = GrownLoad(loads.IncTL, loads.IncLL, slope);
        hip.IncUnifTL = GrownLoad(loads.IncUnifTL, loads.IncUnifLL, slope);
    }
    const auto quarters = std::count(loads.Areas.begin(), loads.Areas.end(), true);
    const double area =
        Val(loads.Trib1) * Val(loads.Trib2) * static_cast<double>(quarters) / PlanQuarterCount;
    const double live = Val(loads.IncLL);
    const double toUniform = EquivalentUniformFactor / Val(problem.Span);
    hip.TotalLoad = Val(hip.IncTL) * area;
    hip.LiveLoad = live > 0 ? live * area : session.IncreasingLiveLoad;
    hip.UNIF = hip.TotalLoad * toUniform + Val(hip.IncUnifTL);
    hip.LUNIF = live > 0 ? hip.LiveLoad * toUniform + Val(loads.IncUnifLL) : 0;
    return hip;
}

void WriteHipLoads(const HipValleyLoads& hip, Session& session)
{
    LoadSet& loads = session.Problem.Loads;
    session.Restore.SavedIncTL = loads.IncTL;
    session.Restore.SavedIncUnifTL = loads.IncUnifTL;
    session.Restore.HipLoadsGrown = session.Problem.Roofbutton;
    loads.IncTL = hip.IncTL;
    loads.IncUnifTL = hip.IncUnifTL;
    loads.UNIF = LoadText(hip.UNIF);
    loads.LUNIF = LoadText(hip.LUNIF);
    session.IncreasingTotalLoad = Single(hip.TotalLoad);
    session.IncreasingLiveLoad = Single(hip.LiveLoad);
}

}  // namespace

Outcome MultiplyTributary(Session& session, UserPort& user)
{
    LoadSet& loads = session.Problem.Loads;
    const double length = Val(loads.Tribute);
    const double total = Val(loads.Text2);
    const double live = Val(loads.Text1);
    if (length == 0) {
        return Refuse(user, Refusal(" Please enter a tributary length in feet.", "Tribute"));
    }
    if (total == 0) {
        return Refuse(user, Refusal(" Please enter a total load (LL+DL) in PSF.", "Text2"));
    }
    if (total < live) {
        return Refuse(user, Refusal("Your Live Load entry is greater than your total load (LL+DL) entry.  "
                                    "Please adjust as necessary.",
                                    "Text2"));
    }
    if (!std::isfinite(total * length)) {
        return Refuse(user, Refusal(NumbersTooLarge, "Tribute"));
    }
    loads.LUNIF = LoadText(live * length);
    loads.UNIF = LoadText(total * length);
    session.Multiplied = loads;
    return Outcome::Done;
}

Outcome InsertPartialLoads(BeamProblem& problem, UserPort& user)
{
    LoadSet products = problem.Loads;
    for (std::size_t k = 0; k < PartialSlotCount; ++k) {
        const double length = Val(products.TribPSF[k]);
        if (length <= 0) {
            continue;
        }
        const double total = Val(products.PSF[k]);
        const double live = Val(products.LPSF[k]);
        if (!std::isfinite(total * length) || !std::isfinite(live * length)) {
            return Refuse(user, Refusal(NumbersTooLarge, BoxName("TribPSF", k)));
        }
        if (total > 0) {
            products.PAR[k] = LoadText(total * length);
        }
        if (live > 0) {
            products.LPAR[k] = LoadText(live * length);
        }
    }
    problem.Loads = std::move(products);
    return Outcome::Done;
}

void ClearPartialCalculator(BeamProblem& problem)
{
    problem.Loads.PSF = {};
    problem.Loads.LPSF = {};
    problem.Loads.TribPSF.fill("0");
}

Outcome CalculateHipValley(Session& session, UserPort& user)
{
    BeamProblem& problem = session.Problem;
    if (session.Restore.HipLoadsGrown) {
        return Outcome::Refused;
    }
    if (CheckHipEntries(problem, user) != Outcome::Done || SettleHipSpan(problem, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    const auto& areas = problem.Loads.Areas;
    if (std::find(areas.begin(), areas.end(), true) == areas.end()) {
        return Refuse(user, Refusal(NoAreaSelected, BoxName("Areas", 0)));
    }
    const HipValleyLoads hip = EquivalentHipLoads(session);
    const bool isFinite = std::isfinite(Single(hip.TotalLoad)) && std::isfinite(Single(hip.LiveLoad)) &&
                          std::isfinite(hip.UNIF) && std::isfinite(hip.LUNIF);
    if (!isFinite) {
        return Refuse(user, Refusal(NumbersTooLarge, "Trib1"));
    }
    WriteHipLoads(hip, session);
    return Outcome::Done;
}

void RestoreIncreasingLoads(Session& session)
{
    session.IncreasingTotalLoad = 0;
    session.IncreasingLiveLoad = 0;
    const BeamProblem& problem = session.Problem;
    const LoadSet& loads = problem.Loads;
    if (problem.Support != SupportCondition::HipValley) {
        return;
    }
    const double fromUniform = Val(problem.Span) / EquivalentUniformFactor;
    const double beside = problem.Roofbutton
                              ? Val(GrownLoad(loads.IncUnifTL, loads.IncUnifLL, RafterSlopeFactor(problem)))
                              : Val(loads.IncUnifTL);
    session.IncreasingTotalLoad = Single((Val(loads.UNIF) - beside) * fromUniform);
    if (!loads.LUNIF.empty()) {
        session.IncreasingLiveLoad = Single((Val(loads.LUNIF) - Val(loads.IncUnifLL)) * fromUniform);
    }
}

}  // namespace kordavan
