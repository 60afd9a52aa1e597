#include "columns/ColumnScreen.h"

#include <algorithm>

#include "columns/ColumnCriteria.h"
#include "columns/SilentUser.h"
#include "columns/StudMoment.h"
#include "columns/WoodColumnReport.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

/// By the import itself, so that what is shown is what it would enter.
std::string ReactionText(const Session& beam, bool isSecond)
{
    const std::string name = isSecond ? "Reaction 2" : "Reaction 1";
    ColumnEntry entry;
    SilentUser user;
    const bool isKnown =
        ImportReaction(beam, {.IsSecond = isSecond, .IsDoubled = false}, entry, user) == Outcome::Done;
    return isKnown ? name + ": " + FormatNumber(Val(entry.cReacText), "#,##0") + " lb" : name;
}

std::string LastTestText(const std::string& member, bool passes)
{
    return "Tested last: " + member + ", " + std::string(passes ? ColumnStatus::Ok : ColumnStatus::Fail);
}

std::string WoodLine(const ColumnSession& columns, Edition edition)
{
    std::string line = edition == Edition::None ? "No edition" : "NDS " + std::string(EditionYear(edition));
    if (columns.WoodTest) {
        line += "     " +
                LastTestText(ReportWoodColumn(*columns.WoodTest).Member, columns.WoodTest->Result.Passes);
    }
    return line;
}

std::string SteelLine(const ColumnSession& columns)
{
    if (!columns.SteelTest) {
        return {};
    }
    const SteelColumnTest& test = *columns.SteelTest;
    return LastTestText(test.Size + " " + test.TypeAndGrade, test.Result.Passes());
}

std::string ResultLine(const ColumnSession& columns, Edition edition)
{
    switch (columns.Face) {
        case ColumnFace::Wood:
            return WoodLine(columns, edition);
        case ColumnFace::Steel:
            return SteelLine(columns);
        case ColumnFace::Studs:
            break;
    }
    return {};
}

}  // namespace

ColumnScreen DescribeColumnScreen(const ColumnSession& columns, const Session& beam)
{
    const Edition edition = EditionInForce(beam.Nds);
    ColumnScreen screen;
    screen.HasWood = columns.Face == ColumnFace::Wood;
    screen.HasStuds = columns.Face == ColumnFace::Studs;
    screen.Reactions = {ReactionText(beam, false), ReactionText(beam, true)};
    screen.SpeciesNote = ColumnSpeciesNote(columns.Entry, edition);
    screen.ResultLine = ResultLine(columns, edition);
    if (columns.StudRun) {
        const StudTest& run = *columns.StudRun;
        screen.HasStudRun = true;
        screen.StudPasses = run.Result.Passes();
        screen.StudStatusLabel = screen.StudPasses ? StudStatus::Adequate : StudStatus::Fails;
        screen.HasStudChanged = run.Entry != columns.Stud || run.Nds != edition;
        screen.StudWarning = StudMomentWarning(run);
    }
    return screen;
}

std::string NextAxialDuration(const std::string& text)
{
    constexpr std::array<std::string_view, 4> factors{"1.0", "1.15", "1.25", "1.6"};
    const auto current = std::find(factors.begin(), factors.end(), text);
    const bool isLast = current == factors.end() || current + 1 == factors.end();
    return std::string(isLast ? factors.front() : *(current + 1));
}

Outcome OfferNewColumn(ColumnSession& columns, const std::string& unsaved, UserPort& user)
{
    if (!unsaved.empty() && !user.Ask(RiskyQuestion(unsaved + "\n\nBegin a new column?"))) {
        return Outcome::Refused;
    }
    StartNewColumn(columns);
    return Outcome::Done;
}

Outcome OfferToOpenStud(const ColumnSession& columns, UserPort& user)
{
    const bool isUnsaved = columns.Stud != columns.KeptStud;
    const bool mayOpen = !isUnsaved || user.Ask(RiskyQuestion("The entries of the stud have not been "
                                                              "saved.\n\nOpen another in their place?"));
    return mayOpen ? Outcome::Done : Outcome::Refused;
}

}  // namespace kordavan
