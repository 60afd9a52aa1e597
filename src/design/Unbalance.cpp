#include "design/Unbalance.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/NumberText.h"
#include "design/EntryAdjustment.h"
#include "design/LiveLoadChecks.h"

namespace kordavan {

namespace {

constexpr std::string_view NothingToRemoveTitle = "Kordavan Unbalanced Loads";

/// One load: the boxes of its total and live value, and the place where the live value waits.
struct LoadBoxes {
    std::string* Total;
    std::string* Live;
    std::string* SavedLive;
};

using PartOfBeam = std::vector<LoadBoxes>;

void AddPoints(Session& session, SlotRange slots, PartOfBeam& part)
{
    LoadSet& loads = session.Problem.Loads;
    for (std::size_t k = slots.First; k < slots.End; ++k) {
        part.push_back({&loads.PT[k], &loads.LPT[k], &session.Unbalanced.SavedLivePoint[k]});
    }
}

void AddPartials(Session& session, SlotRange slots, PartOfBeam& part)
{
    LoadSet& loads = session.Problem.Loads;
    for (std::size_t k = slots.First; k < slots.End; ++k) {
        part.push_back({&loads.PAR[k], &loads.LPAR[k], &session.Unbalanced.SavedLivePartial[k]});
    }
}

PartOfBeam OverhangOf(Session& session)
{
    PartOfBeam part;
    AddPoints(session, OverhangSlots.Points, part);
    AddPartials(session, OverhangSlots.Partials, part);
    return part;
}

PartOfBeam BackspanOf(Session& session)
{
    LoadSet& loads = session.Problem.Loads;
    PartOfBeam part{{&loads.UNIF, &loads.LUNIF, &session.Unbalanced.SavedLiveUniform}};
    AddPoints(session, BackspanSlots.Points, part);
    AddPartials(session, BackspanSlots.Partials, part);
    return part;
}

void RemoveLive(const PartOfBeam& part)
{
    for (const LoadBoxes& load : part) {
        *load.SavedLive = *load.Live;
        if (!load.Live->empty()) {
            *load.Total = LoadText(Val(*load.Total) - Val(*load.Live));
            load.Live->clear();
        }
    }
}

bool CanRestore(const PartOfBeam& part)
{
    return std::all_of(part.begin(), part.end(), [](const LoadBoxes& load) {
        return std::isfinite(Val(*load.Total) + Val(*load.SavedLive));
    });
}

void RestoreLive(const PartOfBeam& part)
{
    for (const LoadBoxes& load : part) {
        *load.Live = *load.SavedLive;
        if (!load.SavedLive->empty()) {
            *load.Total = LoadText(Val(*load.Total) + Val(*load.SavedLive));
        }
        load.SavedLive->clear();
    }
}

struct UnbalanceTexts {
    std::string_view DoneTitle;
    std::string_view NothingToRemove;
    std::string_view Removed;
    std::string_view Restored;
    std::string_view Fault;
};

constexpr UnbalanceTexts OverhangTexts{
    .DoneTitle = "Kordavan Unbalanced Overhang",
    .NothingToRemove = "There are no live loads to remove from the Overhang.",
    .Removed =
        "Live loads have been removed from Overhang.\n"
        "Click 'OK Calculate' to test member with these loads removed. Watch deflection at Backspan.",
    .Restored = "Live Loads on the Overhang have been restored.",
    .Fault = "Error unbalancing loads on overhang.",
};

constexpr UnbalanceTexts BackspanTexts{
    .DoneTitle = "Kordavan Unbalanced Backspan",
    .NothingToRemove = "There are no live loads to remove from the backspan.",
    .Removed =
        "Live loads have been removed from Backspan. \n"
        "Click 'OK Calculate' to test member with these loads removed. Watch for uplift at R1.",
    .Restored = "Live Loads on the backspan have been restored.",
    .Fault = "Error unbalancing loads on span.",
};

Message Titled(Message message, std::string_view title)
{
    message.Title = title;
    return message;
}

Outcome Unbalance(Session& session, const PartOfBeam& part, const UnbalanceTexts& texts, UserPort& user)
{
    const bool nothingToRemove =
        std::all_of(part.begin(), part.end(), [](const LoadBoxes& load) { return load.Live->empty(); });
    if (nothingToRemove) {
        return Refuse(user, Titled(Refusal(texts.NothingToRemove), NothingToRemoveTitle));
    }
    if (const auto fault = LiveAboveTotal(ReadBeamNumbers(session.Problem).Loads)) {
        return Refuse(user, *fault);
    }
    RemoveLive(part);
    user.Tell(Titled(Alert(texts.Removed), texts.DoneTitle));
    return Outcome::Done;
}

Outcome Restore(Session& session, const PartOfBeam& part, const UnbalanceTexts& texts, UserPort& user)
{
    if (const auto fault = LiveAboveTotal(ReadBeamNumbers(session.Problem).Loads)) {
        return Refuse(user, *fault);
    }
    if (!CanRestore(part)) {
        return Refuse(user, Refusal(texts.Fault));
    }
    RestoreLive(part);
    user.Tell(Titled(Alert(texts.Restored), texts.DoneTitle));
    return Outcome::Done;
}

/// Toggles one part of the beam, whose state is `isOut`.
Outcome Toggle(Session& session, const PartOfBeam& part, const UnbalanceTexts& texts, bool& isOut,
               UserPort& user)
{
    const Outcome outcome =
        isOut ? Restore(session, part, texts, user) : Unbalance(session, part, texts, user);
    if (outcome == Outcome::Done) {
        isOut = !isOut;
    }
    return outcome;
}

}  // namespace

Outcome ToggleOverhangLiveLoads(Session& session, UserPort& user)
{
    UnbalancedLoads& unbalanced = session.Unbalanced;
    return unbalanced.Span ? Outcome::Refused
                           : Toggle(session, OverhangOf(session), OverhangTexts, unbalanced.Overhang, user);
}

Outcome ToggleSpanLiveLoads(Session& session, UserPort& user)
{
    UnbalancedLoads& unbalanced = session.Unbalanced;
    return unbalanced.Overhang ? Outcome::Refused
                               : Toggle(session, BackspanOf(session), BackspanTexts, unbalanced.Span, user);
}

}  // namespace kordavan
