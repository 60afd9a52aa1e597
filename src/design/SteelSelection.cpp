#include "design/SteelSelection.h"

#include <algorithm>

#include "design/SteelScan.h"

namespace kordavan {

namespace {

void DiscardPicks(Session& session)
{
    session.SteelPicks.Slots.clear();
    session.SteelPicks.SecondPageShown = false;
    session.Entry.ShapeName.clear();
}

/// The candidate one step away from the shape tested last.
const SteelSlot* NextSlot(const Session& session, SteelStep step)
{
    const std::vector<SteelSlot>& slots = session.SteelPicks.Slots;
    const auto tested = std::find_if(slots.begin(), slots.end(), [&session](const SteelSlot& slot) {
        return slot.StlPick == session.Steel.ShapeName;
    });
    if (tested == slots.end()) {
        return nullptr;
    }
    if (step == SteelStep::Back) {
        return tested == slots.begin() ? nullptr : &*(tested - 1);
    }
    return tested + 1 == slots.end() ? nullptr : &*(tested + 1);
}

}  // namespace

Outcome OpenSteelSelection(Session& session, UserPort& user)
{
    SteelSelection& picks = session.SteelPicks;
    PrepareSteel(session);
    if (picks.FoundFor != session.Problem) {
        DiscardPicks(session);
    }
    picks.FoundFor = session.Problem;
    if (!picks.Slots.empty()) {
        return Outcome::Done;
    }
    return ScanSteelCandidates(
        {.Beam = session.Numbers, .Applied = session.Analysis, .Criteria = picks.Criteria}, user,
        picks.Slots);
}

const SteelSlot* SlotOnLine(const SteelSelection& picks, std::size_t line)
{
    const std::size_t slot = picks.SecondPageShown ? line + SteelPageLines : line;
    return line < SteelPageLines && slot < picks.Slots.size() ? &picks.Slots[slot] : nullptr;
}

bool HasSecondPage(const SteelSelection& picks)
{
    return picks.Slots.size() > SteelPageLines;
}

void ShowMoreShapes(SteelSelection& picks)
{
    picks.SecondPageShown = HasSecondPage(picks);
}

void ShowFirstShapes(SteelSelection& picks)
{
    picks.SecondPageShown = false;
}

void TakeSteelPick(Session& session, std::size_t line)
{
    if (const SteelSlot* const slot = SlotOnLine(session.SteelPicks, line)) {
        session.Entry.ShapeName = slot->StlPick;
    }
}

SteelTestEnd TestEnteredShape(Session& session, UserPort& user)
{
    return TestNamedShape(session, session.Entry.ShapeName, SteelTestMode::FromSelection, user);
}

bool CanStepShape(const Session& session, SteelStep step)
{
    return NextSlot(session, step) != nullptr;
}

SteelTestEnd StepShape(Session& session, SteelStep step, UserPort& user)
{
    const SteelSlot* const next = NextSlot(session, step);
    if (next == nullptr) {
        return SteelTestEnd::Refused;
    }
    const SteelTestEnd end = TestNamedShape(session, next->StlPick, SteelTestMode::FromStepping, user);
    if (end == SteelTestEnd::Done) {
        session.Entry.ShapeName = next->StlPick;
    }
    return end;
}

}  // namespace kordavan
