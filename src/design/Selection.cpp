#include "design/Selection.h"

#include <string>

#include "design/OnceUser.h"
#include "design/TestMember.h"
#include "design/TestReport.h"

namespace kordavan {

QuickPicks StartSelection(Session& session, UserPort& user)
{
    session.Entry.BreadthText.clear();
    session.Entry.DepthText.clear();
    session.Entry.SpeciesText.clear();
    OnceUser once(user);
    return FindQuickPicks(session, once);
}

void TakePick(Session& session, const QuickPick& pick)
{
    if (pick.DepthText.empty()) {
        return;
    }
    session.Entry.BreadthText = pick.BreadthText;
    session.Entry.DepthText = pick.DepthText;
    session.Entry.SpeciesText = pick.SpeciesText;
}

Outcome TestEntered(Session& session, UserPort& user)
{
    return TestMember(session, session.Entry, {}, user);
}

std::optional<MemberEntry> NextEntry(const Session& session, SizeStep step)
{
    return StepSize(step, session.Entry, session.Member.Candidate, session.Numbers.Group);
}

Outcome StepMember(Session& session, SizeStep step, UserPort& user)
{
    const std::optional<MemberEntry> next = NextEntry(session, step);
    if (!next || TestMember(session, *next, {}, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    session.Entry = *next;
    return Outcome::Done;
}

void SelectMember(Session& session, CalendarDay today)
{
    const MemberTestResult& result = session.Member.Result;
    session.Selection =
        SelectionRecord{.MemberChoice = TestedMemberText(session),
                        .MemberStatus = result.Overall == StatusFail ? "Fails" : std::string(result.Overall),
                        .RecordDate = ShortDate(today)};
    session.Record.IsOfSelection = true;
    session.Record.CanBeRefilled = true;
}

}  // namespace kordavan
