#include "design/CriteriaScreen.h"

#include <algorithm>
#include <array>

#include "design/EntryAdjustment.h"
#include "design/LoadingConditions.h"
#include "design/Unbalance.h"
#include "design/UnbracedEntry.h"

namespace kordavan {

namespace {

/// The entries from which the equivalent load of a hip or valley is worked out.
constexpr std::array<std::string_view, 10> HipEntries{"Span",       "IncTL",    "IncLL", "IncUnifTL",
                                                      "IncUnifLL",  "Trib1",    "Trib2", "CalctheSpan",
                                                      "Roofbutton", "Pitchtext"};
constexpr std::string_view Quarters = "Areas[";

bool IsHipEntry(std::string_view box)
{
    return box.starts_with(Quarters) ||
           std::find(HipEntries.begin(), HipEntries.end(), box) != HipEntries.end();
}

/// Puts back what the slope has grown, but for the box that now holds what the person typed.
void RestoreOtherHipLoads(Session& session, std::string_view edited)
{
    const LoadSet typed = session.Problem.Loads;
    RestoreHipLoads(session);
    if (edited == "IncTL") {
        session.Problem.Loads.IncTL = typed.IncTL;
    } else if (edited == "IncUnifTL") {
        session.Problem.Loads.IncUnifTL = typed.IncUnifTL;
    }
}

std::string TitleOf(const Session& session)
{
    std::string title = " Kordavan Criteria Form 1";
    const Edition edition = EditionInForce(session.Nds);
    const BeamProblem& problem = session.Problem;
    if (problem.INGRADE && edition != Edition::None && problem.Combo1 != SpeciesGroup::Steel) {
        title += "  NDS ";
        title += EditionYear(edition);
    }
    return title;
}

LoadTables TablesOf(SupportCondition support)
{
    switch (support) {
        case SupportCondition::SimpleSpan:
        case SupportCondition::Overhanging:
            return LoadTables::PointAndPartial;
        case SupportCondition::HipValley:
            return LoadTables::HipValley;
        case SupportCondition::MultipleSpans:
            return LoadTables::MultipleSpans;
    }
    return LoadTables::PointAndPartial;
}

}  // namespace

CriteriaScreen DescribeCriteriaScreen(const Session& session)
{
    const BeamProblem& problem = session.Problem;
    const UnbalancedLoads& unbalanced = session.Unbalanced;
    const bool isContinuous = problem.Support == SupportCondition::MultipleSpans;
    const bool isHip = problem.Support == SupportCondition::HipValley;
    CriteriaScreen screen;
    screen.Title = TitleOf(session);
    screen.SavePanel = CriteriaResultLine(session.Selection);
    screen.HasRecord = session.Selection && session.Record.IsOfSelection;
    screen.UBLlabel = isContinuous ? "Assumed fully braced" : "Unbraced length in ft";
    screen.HasUnbracedLength = !FixedUnbracedLength(problem);
    screen.HasOverhang = problem.Support == SupportCondition::Overhanging;
    screen.HasSteel = problem.Combo1 == SpeciesGroup::Steel;
    screen.HasIncising = IsIncisable(problem.Combo1);
    screen.UnbracedUnit = screen.HasOverhang ? "ft, backspan" : "ft";
    screen.UBSpan = {
        .Caption = unbalanced.Span ? UnbalanceCaptions::RestoreSpan : UnbalanceCaptions::UnbalanceSpan,
        .IsPressed = unbalanced.Span,
        .IsEnabled = !unbalanced.Overhang};
    screen.UBOH = {.Caption = unbalanced.Overhang ? UnbalanceCaptions::RestoreOverhang
                                                  : UnbalanceCaptions::UnbalanceOverhang,
                   .IsPressed = unbalanced.Overhang,
                   .IsEnabled = !unbalanced.Span};
    screen.Tables = TablesOf(problem.Support);
    screen.PLFspin = isHip ? "ETL" : "PLF";
    screen.CanCalculateHipLoad = isHip && !session.Restore.HipLoadsGrown;
    screen.MustCalculateHipLoad = screen.CanCalculateHipLoad && problem.Loads.UNIF.empty();
    screen.IsMultiplied = session.Multiplied == problem.Loads;
    if (isContinuous) {
        screen.EqualReactions = problem.ThreeSpan ? "Note: R1 = R4, R2 = R3" : "Note: R1 = R3";
    }
    return screen;
}

void EntryEdited(Session& session, std::string_view box)
{
    session.Selection.reset();
    if (box == "Rep" && !session.Problem.Rep) {
        session.Problem.Spacing = RepetitiveSpacing::None;
    }
    if (session.Problem.Support == SupportCondition::HipValley && IsHipEntry(box)) {
        RestoreOtherHipLoads(session, box);
        ClearUniformLoad(session.Problem.Loads);
    }
}

Outcome ChangeEntries(Session& session, UserPort& user, const SessionChange& change)
{
    const BeamProblem before = session.Problem;
    const Outcome outcome = change(session, user);
    if (session.Problem != before) {
        session.Selection.reset();
    }
    return outcome;
}

}  // namespace kordavan
