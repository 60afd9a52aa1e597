#include "records/CriteriaFile.h"

#include "design/EntryAdjustment.h"
#include "records/CriteriaLayout.h"
#include "records/CriteriaRecord.h"
#include "records/RecordFile.h"

namespace kordavan {

namespace {

constexpr std::string_view LoadsUnbalanced =
    "Kordavan cannot save criteria when loads are unbalanced.  Please restore the loads by clicking the "
    "RESTORE button below the point loads entry boxes and then save the criteria.";
constexpr std::string_view UnfitNumber =
    "A Beam Criteria file cannot hold the number in this box: it is too large, or a deflection limit that "
    "is no whole number.  Please change it and save again.";

}  // namespace

Outcome CheckCriteriaSavable(const Session& session, UserPort& user)
{
    if (session.Unbalanced.Span || session.Unbalanced.Overhang) {
        return Refuse(user, Refusal(LoadsUnbalanced));
    }
    const std::string unfitBox = MakeCriteriaRecord(session, {}).UnfitBox;
    return unfitBox.empty() ? Outcome::Done : Refuse(user, Refusal(UnfitNumber, unfitBox));
}

Outcome SaveCriteriaFile(Session& session, const std::string& path, CalendarDay today, UserPort& user)
{
    if (CheckCriteriaSavable(session, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    const CriteriaRecordMade made = MakeCriteriaRecord(session, today);
    if (const std::string fault = ReplaceRecord(path, made.Record.Bytes()); !fault.empty()) {
        return RefuseSaving(path, fault, user);
    }
    session.KeptProblem = TypedEntries(session);
    user.Tell(Alert("Beam Criteria saved to disk as\n    " + path));
    return Outcome::Done;
}

Outcome LoadCriteriaFile(Session& session, const std::string& path, UserPort& user)
{
    const FileRead file = ReadRecordFile(path);
    if (!file.Bytes) {
        return RefuseReading(path, file.Fault, user);
    }
    const PackedRecord record(CriteriaLayout, *file.Bytes);
    if (CheckCriteriaTag(record, user) != Outcome::Done ||
        RestoreCriteria(record, session, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    TellCriteriaEdition(record, user);
    return Outcome::Done;
}

}  // namespace kordavan
