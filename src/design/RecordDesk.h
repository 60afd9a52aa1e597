#pragma once

#include <string>

#include "core/Message.h"
#include "design/Session.h"

namespace kordavan {

/// Shows the Data Record of the member tested last; one that was loaded from a file stays, and a heading that
/// was entered for printing goes on.
void ShowRecord(Session& session, CalendarDay today, UserPort& user);

/// Fills the heading to be printed: of the criteria and the standing header, or of the loaded record itself.
/// A date already entered stays.
void PrepareHeading(Session& session, CalendarDay today);

/// Empties the heading.
void ClearHeading(Session& session);

/// Heads the sheet by what the heading holds; an empty date is today's.
void TakeHeading(Session& session, CalendarDay today);

/// Asks whether the notes are to be printed, where there are any. A No leaves them out of this print alone.
bool AskToPrintNotes(const Session& session, UserPort& user);

/// Warns that a loaded record is lost on the way to the report, or to the criteria. Refused when the person
/// stays.
Outcome LeaveForReport(Session& session, UserPort& user);
Outcome LeaveForCriteria(Session& session, UserPort& user);

/// The font of print-outs: Arial unless another is chosen.
std::string PrintFontOf(const Session& session);

namespace PrintTexts {
inline constexpr std::string_view ResetOrientation =
    "If you'd like to reset your default printer orientation to Landscape when printing is finished, click "
    "on Print Setup on the menu bar.";
inline constexpr std::string_view NotPrinted =
    "The data record printing was cancelled or could not be printed because an error occurred.";
inline constexpr std::string_view PageFault = "Error at the Print Form 2 procedure.";
inline constexpr std::string_view SaveCriteriaToo =
    "Would you like to now go to Form 1 to save the Criteria for this beam?";
}  // namespace PrintTexts

}  // namespace kordavan
