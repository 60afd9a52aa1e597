#include "design/NewBeam.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "core/NumberText.h"
#include "design/EntryAdjustment.h"
#include "design/LoadingConditions.h"
#include "design/UnbracedEntry.h"

namespace kordavan {

namespace {

constexpr std::string_view EntriesNotSaved = "The entries of this beam have not been saved.";

constexpr std::string_view SaveWorkTitle = "SAVE YOUR WORK REMINDER";
constexpr std::string_view SaveWork =
    "Starting a new beam calculation removes the current beam data from memory.\n"
    "If you have NOT saved your work, select YES and then save by one of these methods:\n"
    "1. Print the Data Record.\n"
    "2. Copy the Data Record to another application (see Help for this procedure).\n"
    "3. Save the Beam Criteria (in Form1) by selecting from the menu, FILE, SAVE BEAM.\n"
    "4. Save the Data Record as a text file by selecting from the data record menu, FILE, SAVE...\n"
    "        NEED TO SAVE YOUR WORK?";
constexpr std::string_view SaveNotesTitle = "SAVE YOUR NOTES REMINDER";
constexpr std::string_view SaveNotes = "Do you wish to retain your notes for the next beam?";

bool AskUnder(std::string_view title, std::string_view text, UserPort& user)
{
    Message question = Question(text);
    question.Title = title;
    return user.Ask(question);
}

bool HasNotes(const ReportNoteLines& notes)
{
    return std::any_of(notes.begin(), notes.end(), [](const std::string& line) { return !line.empty(); });
}

/// The psf calculators only serve to fill load boxes.
BeamProblem WithoutCalculators(BeamProblem problem)
{
    LoadSet& loads = problem.Loads;
    loads.Tribute.clear();
    loads.Text1.clear();
    loads.Text2.clear();
    ClearPartialCalculatorRows(loads);
    return problem;
}

void AskAboutNotes(Session& session, UserPort& user)
{
    if (HasNotes(session.NoteClipboard) && !AskUnder(SaveNotesTitle, SaveNotes, user)) {
        session.NoteClipboard = {};
    }
}

Outcome AskToLoseEntries(const Session& session, std::string_view question, UserPort& user)
{
    if (!HasUnsavedEntries(session)) {
        return Outcome::Done;
    }
    const std::string text = std::string(EntriesNotSaved) + "\n" + std::string(question);
    return user.Ask(RiskyQuestion(text)) ? Outcome::Done : Outcome::Refused;
}

}  // namespace

void StartNewBeam(Session& session)
{
    const BeamProblem& old = session.Problem;
    BeamProblem fresh;
    fresh.Combo1 = old.Combo1;
    fresh.MaxDefl = old.MaxDefl;
    fresh.LMaxDefl = old.LMaxDefl;
    fresh.INGRADE = old.INGRADE;
    fresh.Proj = old.Proj;
    if (const std::optional<std::string_view> fixed = FixedUnbracedLength(fresh)) {
        fresh.UBLtext = *fixed;
    }
    session.Problem = std::move(fresh);
    session.KeptProblem = session.Problem;
    session.Selection.reset();
    session.IncreasingTotalLoad = 0;
    session.IncreasingLiveLoad = 0;
    session.Unbalanced = {};
    session.Restore = {};
    session.SteelPicks = {};
    session.Record = {};
    session.Entry.ShapeName.clear();
}

Outcome OfferNewBeam(Session& session, UserPort& user)
{
    if (AskToLoseEntries(session, "Do you wish to start a new beam?", user) != Outcome::Done) {
        return Outcome::Refused;
    }
    AskAboutNotes(session, user);
    StartNewBeam(session);
    return Outcome::Done;
}

Outcome OfferNewBeamAfterReport(Session& session, UserPort& user)
{
    if (AskUnder(SaveWorkTitle, SaveWork, user)) {
        return Outcome::Refused;
    }
    AskAboutNotes(session, user);
    StartNewBeam(session);
    return Outcome::Done;
}

Outcome OfferToOpen(const Session& session, UserPort& user)
{
    return AskToLoseEntries(session, "Do you wish to open another beam?", user);
}

bool HasUnsavedEntries(const Session& session)
{
    return WithoutCalculators(TypedEntries(session)) != WithoutCalculators(session.KeptProblem);
}

Message ExitQuestion(const Session& session, int minutesUsed, std::string_view otherWork)
{
    std::string text = "You have used Kordavan for " + PlainNumber(static_cast<double>(minutesUsed)) +
                       " minutes. Do you wish to exit?";
    if (HasUnsavedEntries(session)) {
        text += "\n";
        text += EntriesNotSaved;
    }
    if (!otherWork.empty()) {
        text += "\n";
        text += otherWork;
    }
    return RiskyQuestion(text);
}

}  // namespace kordavan
