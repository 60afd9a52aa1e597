#include "FuzzKit.h"
#include "design/BeamCurves.h"
#include "design/CalculateAction.h"
#include "design/LoadDiagram.h"
#include "design/LoadPicture.h"
#include "design/TestMember.h"
#include "records/CriteriaLayout.h"
#include "records/CriteriaRecord.h"
#include "records/DataRecordPage.h"
#include "records/DataSheetFill.h"

namespace kordavan {
namespace {

constexpr CalendarDay Today{.Year = 2026, .Month = 3, .Day = 7};

/// What was read can be saved, and reads again as the same.
void CheckRoundTrip(const Session& session)
{
    const CriteriaRecordMade made = MakeCriteriaRecord(session, Today);
    MustHold(made.UnfitBox.empty(), "a beam that was read can be saved");
    Session again;
    SteadyUser user;
    MustHold(CheckCriteriaTag(made.Record, user) == Outcome::Done, "a saved beam has its tag");
    MustHold(RestoreCriteria(made.Record, again, user) == Outcome::Done, "a saved beam can be read");
    MustHold(again.Problem == session.Problem, "a saved beam reads as it was");
    MustHold(MakeCriteriaRecord(again, Today).Record.Bytes() == made.Record.Bytes(),
             "a beam is saved the same each time");
}

/// The walk from the entries to the page, as far as they let it go.
void WalkToThePage(Session& session, bool saysYes)
{
    SteadyUser user(saysYes);
    DescribePicture(ReadLoadPicture(session));
    if (CalculateAction(session, user) != Outcome::Done) {
        MustHold(user.MessageCount > 0, "a refusal says why");
        return;
    }
    DescribePicture(PictureOfCalculated(session.Numbers));
    if (session.Numbers.IsSteel() || TestMember(session, session.Entry, {}, user) != Outcome::Done) {
        return;
    }
    ComputeCurves(session, CurveLoads::Total);
    const RecordPage page = LayOutDataRecord(FillDataRecord(session, Today, user), {});
    MustHold(!PlainTextOf(page).empty(), "a page has text");
}

}  // namespace
}  // namespace kordavan

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kordavan;
    const PackedRecord record(CriteriaLayout, InputBytes(data, size));
    Session session;
    session.Problem.Proj = "Shed";
    const BeamProblem before = session.Problem;
    SteadyUser user;
    if (CheckCriteriaTag(record, user) != Outcome::Done ||
        RestoreCriteria(record, session, user) != Outcome::Done) {
        MustHold(user.MessageCount == 1, "a refusal says why, once");
        MustHold(session.Problem == before, "a refused file changes nothing");
        return 0;
    }
    TellCriteriaEdition(record, user);
    CheckRoundTrip(session);
    WalkToThePage(session, size % 2 == 0);
    return 0;
}
