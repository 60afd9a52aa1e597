#pragma once

#include "design/SelectionRecord.h"
#include "design/Session.h"
#include "notch/NotchSession.h"

namespace kordavan {

/// Fills the heading of a notch's report: of the beam at work and the standing header, as the notch has no
/// entries for it. A heading that was entered stays, until the beam or the header is another.
void PrepareNotchHeading(NotchSession& notch, const Session& beam, CalendarDay today);

/// Keeps the heading that was entered; an empty date is today's.
void TakeNotchHeading(NotchSession& notch, const Session& beam, CalendarDay today);

/// The heading as it is entered, with a date.
RecordHeading DatedNotchHeading(const NotchSession& notch, CalendarDay today);

}  // namespace kordavan
