#pragma once

#include <string>

#include "core/Message.h"
#include "design/Session.h"
#include "records/PackedRecord.h"

namespace kordavan {

/// A session's beam as a record, and the first box whose number no record can hold (none as a rule).
struct CriteriaRecordMade {
    PackedRecord Record;
    std::string UnfitBox;
};

/// The beam of a session, its loads as typed: what a calculation or the hips and valleys tool has written
/// into the boxes is put back in the record. The record's date is that of the selection on record, or
/// today's.
CriteriaRecordMade MakeCriteriaRecord(const Session& session, CalendarDay today);

/// Refuses a record whose tag is none of a criteria file.
Outcome CheckCriteriaTag(const PackedRecord& record, UserPort& user);

/// Replaces the beam of a session by that of a record with the right tag. A number that is not finite, or a
/// material that does not exist, is refused with nothing changed.
///
/// What a file does not hold is as in a new beam, except that files of the first generation leave `Incised`,
/// `ksi50`, the notes and the edition as they are.
Outcome RestoreCriteria(const PackedRecord& record, Session& session, UserPort& user);

/// Tells under which edition a record was saved; records that hold no editions tell nothing.
void TellCriteriaEdition(const PackedRecord& record, UserPort& user);

}  // namespace kordavan
