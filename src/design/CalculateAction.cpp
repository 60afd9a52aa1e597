#include "design/CalculateAction.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "analysis/AppliedLoads.h"
#include "core/NumberText.h"
#include "design/CriteriaChecks.h"
#include "design/EntryAdjustment.h"
#include "design/LiveLoadChecks.h"
#include "design/LoadTools.h"
#include "design/OwnSelection.h"

namespace kordavan {

namespace {

constexpr std::string_view TributaryReminder =
    "Did you intend to calculate the Uniform Load PLF using the tributary load and PSF?\n"
    "Select YES and Kordavan will calc the uniform load before proceeding.";
constexpr std::string_view LongOverhang =
    "The overhang length is greater than half of the backspan length.\n"
    "Do you wish to proceed with this calculation?\n"
    "Please note that Kordavan has difficulty displaying such a long overhang in the loading diagram.";
constexpr std::string_view UnbracedBeyondOverhang =
    "The overhang's UNBRACED LENGTH may not be longer than the overhang.\n"
    "Either increase the overhang or decrease the unbraced length of the overhang.";
constexpr std::string_view OnlyDeadLoad =
    "Attention:  No live loads have been entered, therefore the Total Loads entered will be treated as only "
    "Dead Load.\n"
    "You should check the Dead Load only with a Duration of Load set to 0.9 to see if it is the critical "
    "load combination.";
constexpr std::string_view LargeDeadLoad =
    "Attention:  Your Dead Load is large relative to the total load.\n"
    "You should check the Dead Load only with a Duration of Load set to 0.9 to see if it is the critical "
    "load combination.";
constexpr std::string_view SlopedDeadLoad =
    "Slope Adjustment is checked and no live loads are entered. All total loads are assumed to be entirely "
    "Dead Loads and will be increased for the slope of the roof.";
constexpr std::string_view LiveAboveTotalOverall =
    "The overall live load is Larger than the overall total load.  Please re-check the load entries.";
constexpr std::string_view FaultTitle = "Kordavan Error: Form 1";
constexpr std::string_view Overflow =
    "Overflow: the loads or lengths entered are too large to be calculated.";

constexpr int ChecksReached = 10;
constexpr int AnalysisReached = 98;
constexpr int AllReached = 100;

constexpr float WoodDensityFactor = 0.243F;  // plf per in2: 35 lb per cubic foot
constexpr float SteelDensityFactor = 1.0F;

BeamNumbers ReadNumbers(const Session& session, const BeamProblem& problem)
{
    BeamNumbers beam = ReadBeamNumbers(problem);
    beam.Nds = EditionInForce(session.Nds);
    beam.IncreasingTotalLoad = session.IncreasingTotalLoad;
    beam.IncreasingLiveLoad = session.IncreasingLiveLoad;
    beam.SlopeFactor = RafterSlopeFactor(problem);
    beam.DensityFactor = beam.IsSteel() ? SteelDensityFactor : WoodDensityFactor;
    return beam;
}

Outcome RemindOfTributary(Session& session, UserPort& user)
{
    const LoadSet& loads = session.Problem.Loads;
    const bool forgotten = !loads.Tribute.empty() && !loads.Text2.empty() && loads.UNIF.empty();
    return forgotten && user.Ask(Question(TributaryReminder)) ? MultiplyTributary(session, user)
                                                              : Outcome::Done;
}

/// Overhang by comparing the texts as texts, so that "9" is beyond "10"; the question about long overhangs is
/// asked of this length, the design uses the largest number.
double OverhangByText(const LoadSet& loads)
{
    const std::array<std::string_view, 4> reaches{loads.DIS[4], loads.DIS[5], loads.ENDP[3], loads.ENDP[4]};
    return Val(*std::max_element(reaches.begin(), reaches.end()));
}

Outcome CheckOverhang(const BeamProblem& problem, const BeamNumbers& beam, UserPort& user)
{
    if (!beam.IsOverhanging()) {
        return Outcome::Done;
    }
    const double overhang = OverhangByText(problem.Loads);
    if (2 * overhang > beam.Span && !user.Ask(Question(LongOverhang))) {
        return Outcome::Refused;
    }
    return beam.CantUBL > overhang ? Refuse(user, Refusal(UnbracedBeyondOverhang, "CantUBLtext"))
                                   : Outcome::Done;
}

void AlertToDeadLoad(const BeamProblem& problem, const LoadTotals& totals, UserPort& user)
{
    constexpr double largeShare = 0.85;
    if (problem.Dur == "0.90") {
        return;
    }
    if (totals.Live == 0) {
        user.Tell(Alert(OnlyDeadLoad));
    } else if (totals.Total * largeShare <= totals.Total - totals.Live) {
        user.Tell(Alert(LargeDeadLoad));
    }
}

Outcome CheckLoads(const BeamProblem& problem, const BeamNumbers& beam, UserPort& user)
{
    const LoadTotals totals = SumLoads(beam);
    AlertToDeadLoad(problem, totals, user);
    if (const std::optional<Message> finding = CheckDeflectionLimits(beam)) {
        return Refuse(user, *finding);
    }
    if (problem.Roofbutton && !HasLiveLoad(beam.Loads)) {
        user.Tell(Alert(SlopedDeadLoad));
    }
    if (totals.Total < totals.Live) {
        return Refuse(user, AttentionRefusal(LiveAboveTotalOverall, "UNIF"));
    }
    if (const std::optional<Message> finding = LiveAboveTotal(beam.Loads)) {
        return Refuse(user, *finding);
    }
    return Outcome::Done;
}

Outcome RefuseOverflow(UserPort& user)
{
    Message fault = Marked(Refusal(Overflow), MessageIcon::Warning);
    fault.Title = FaultTitle;
    return Refuse(user, fault);
}

/// Adjusts a copy of the entries and analyses it; the session takes both when the results are numbers.
Outcome AdjustAndAnalyse(Session& session, UserPort& user, const Progress& progress)
{
    progress.Reach(ChecksReached);
    BeamProblem adjusted = session.Problem;
    EntriesToRestore restore = session.Restore;
    AdjustEntries(adjusted, RafterSlopeFactor(adjusted), restore);
    const BeamNumbers beam = ReadNumbers(session, adjusted);
    StationTable stations;
    const AppliedLoadResult applied =
        ComputeAppliedLoads(beam, session.Analysis.InflectionFt, stations, progress);
    progress.Reach(AnalysisReached);
    if (!IsFinite(beam.Loads) || !IsFinite(applied)) {
        return RefuseOverflow(user);
    }
    session.Problem = std::move(adjusted);
    session.Restore = std::move(restore);
    session.Numbers = beam;
    session.Stations = stations;
    session.Analysis = AnalysisResult{};
    static_cast<AppliedLoadResult&>(session.Analysis) = applied;
    if (beam.Group != SpeciesGroup::Custom) {
        DiscardOwnValues(session.Entry);
    }
    session.Record.CanBeRefilled = false;
    session.Record.FromDisk = false;
    session.Record.HeaderChanged = false;
    progress.Reach(AllReached);
    return Outcome::Done;
}

}  // namespace

Outcome CalculateAction(Session& session, UserPort& user, const Progress& progress)
{
    if (RemindOfTributary(session, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    const BeamNumbers beam = ReadNumbers(session, session.Problem);
    if (const std::optional<Message> finding = CheckCriteria(session.Problem, beam)) {
        return Refuse(user, *finding);
    }
    if (CheckOverhang(session.Problem, beam, user) != Outcome::Done ||
        CheckLoads(session.Problem, beam, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    return AdjustAndAnalyse(session, user, progress);
}

}  // namespace kordavan
