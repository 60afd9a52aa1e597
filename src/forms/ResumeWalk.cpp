#include "forms/ResumeWalk.h"

#include <algorithm>
#include <array>

#include "columns/StudColumn.h"
#include "design/CriteriaScreen.h"
#include "forms/Form.h"
#include "records/ResumeWork.h"

namespace kordavan {

namespace {

Outcome ResumeCalculation(Walk& walk)
{
    const Outcome outcome = CalculateAgain(walk.CurrentSession());
    if (outcome == Outcome::Done) {
        ++walk.AnalysisCount;
    }
    return outcome;
}

/// The criteria lead to the Data Record, and on to the report, while a member is on record.
void ResumeCriteria(Walk& walk)
{
    if (DescribeCriteriaScreen(walk.CurrentSession()).HasRecord && ResumeCalculation(walk) == Outcome::Done) {
        TestAgain(walk.CurrentSession());
    }
    walk.Go(Screen::Criteria);
}

/// A selection begins anew with each analysis and empties its boxes.
void ResumeSelection(Walk& walk, Screen place)
{
    Session& session = walk.CurrentSession();
    if (ResumeCalculation(walk) != Outcome::Done) {
        walk.Go(Screen::Criteria);
        return;
    }
    const MemberEntry entry = session.Entry;
    walk.Go(walk.SelectionScreen());
    session.Entry = entry;
    walk.Front()->Activate();
    const bool isBeyond = place == Screen::TestReport || place == Screen::Record;
    if (isBeyond && TestAgain(session) == Outcome::Done) {
        walk.Go(place);
    }
}

void ResumeColumn(Walk& walk, Screen place)
{
    const Edition edition = EditionInForce(walk.CurrentSession().Nds);
    if (place == Screen::StudRecord) {
        RecallStud(walk.Columns(), edition);
        place = walk.Columns().StudRun ? place : Screen::Columns;
    } else {
        CalculateAgain(walk.Columns(), edition);
    }
    walk.Go(place);
}

void ResumeEntries(Walk& walk, Screen place)
{
    walk.Go(place);
}

struct ResumeRow {
    std::string_view Form;
    Screen Place;
    void (*Resume)(Walk&, Screen);
};

// Any other form leads to the criteria.
constexpr std::array ResumeRows{
    ResumeRow{"Form3", Screen::WoodSelection, ResumeSelection},
    ResumeRow{"Form22", Screen::SteelSelection, ResumeSelection},
    ResumeRow{"Form2", Screen::OwnSelection, ResumeSelection},
    ResumeRow{"Form5", Screen::TestReport, ResumeSelection},
    ResumeRow{"Form6", Screen::Record, ResumeSelection},
    ResumeRow{"Form18", Screen::Columns, ResumeEntries},
    ResumeRow{"Form20", Screen::WoodColumns, ResumeColumn},
    ResumeRow{"Form10", Screen::SteelColumns, ResumeColumn},
    ResumeRow{"Form19", Screen::WoodColumnRecord, ResumeColumn},
    ResumeRow{"Form23", Screen::SteelColumnRecord, ResumeColumn},
    ResumeRow{"Form28", Screen::StudRecord, ResumeColumn},
    ResumeRow{"FormOstrimane", Screen::Notch, ResumeEntries},
    ResumeRow{"NotchReport", Screen::Notch, ResumeEntries},
};

}  // namespace

void ResumeWalk(Walk& walk, std::string_view form)
{
    const auto* const row = std::find_if(ResumeRows.begin(), ResumeRows.end(),
                                         [form](const ResumeRow& each) { return each.Form == form; });
    if (row == ResumeRows.end()) {
        ResumeCriteria(walk);
    } else {
        row->Resume(walk, row->Place);
    }
}

}  // namespace kordavan
