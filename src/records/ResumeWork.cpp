#include "records/ResumeWork.h"

#include <utility>

#include "columns/ColumnCriteria.h"
#include "columns/SilentUser.h"
#include "columns/SteelColumn.h"
#include "design/CalculateAction.h"
#include "design/EntryAdjustment.h"
#include "design/Selection.h"
#include "design/SteelSelection.h"

namespace kordavan {

namespace {

/// Says Yes to what was asked and agreed to before.
class AgreeingUser : public UserPort {
public:
    void Tell(const Message& /*message*/) override {}
    bool Ask(const Message& /*question*/) override { return true; }
};

}  // namespace

Outcome CalculateAgain(Session& session)
{
    Session again = session;
    AgreeingUser user;
    RestoreEntries(again);
    again.Problem.Loads.Tribute.clear();  // or a uniform load that was not wanted would be worked out now
    if (CalculateAction(again, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    again.Problem.Loads.Tribute = session.Problem.Loads.Tribute;
    if (again.Numbers.IsSteel() && OpenSteelSelection(again, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    again.Entry = std::move(session.Entry);
    again.Record = std::move(session.Record);
    session = std::move(again);
    return Outcome::Done;
}

Outcome TestAgain(Session& session)
{
    const MemberEntry entry = session.Entry;
    const RecordOnShow record = session.Record;
    AgreeingUser user;
    const bool isDone = session.Numbers.IsSteel() ? TestEnteredShape(session, user) == SteelTestEnd::Done
                                                  : TestEntered(session, user) == Outcome::Done;
    session.Entry = entry;
    session.Record = record;
    return isDone ? Outcome::Done : Outcome::Refused;
}

void CalculateAgain(ColumnSession& columns, Edition edition)
{
    ColumnSession again = columns;
    SilentUser user;
    const Outcome outcome = again.Face == ColumnFace::Steel ? CalculateSteelColumn(again, user)
                                                            : CalculateWoodColumn(again, edition, user);
    if (outcome == Outcome::Done) {
        again.ColD1Text = std::move(columns.ColD1Text);
        again.ColD2Text = std::move(columns.ColD2Text);
        again.StlColSizeText = std::move(columns.StlColSizeText);
        again.StlColGrade = std::move(columns.StlColGrade);
        columns = std::move(again);
    }
}

}  // namespace kordavan
