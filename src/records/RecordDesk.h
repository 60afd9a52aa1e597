#pragma once

#include <string>

#include "core/Message.h"
#include "design/Session.h"

namespace kordavan {

/// Fills the Data Record of the selection again, with the heading that was entered for printing. One that was
/// loaded from a file stays, and so does that of a selection after which another member was tested.
void ShowRecord(Session& session, CalendarDay today, UserPort& user);

/// Puts the notes of the note clipboard on the sheet.
void BringNotes(Session& session);

/// Shows a record that was loaded from a file, and its notes if it has any. The sheet of the selection comes
/// back once the loaded one is left.
void TakeLoadedRecord(Session& session, const DataSheet& sheet);

/// Fills the heading to be printed: of the criteria and the standing header, or, where the sheet can no
/// longer be filled again, as it stands on the sheet. One already entered stays.
void PrepareHeading(Session& session, CalendarDay today);

/// Empties the heading.
void ClearHeading(Session& session);

/// The sheet under the heading as it is entered, with the notes; an empty date is today's.
DataSheet HeadedSheet(const Session& session, CalendarDay today);

/// Heads the sheet on show by what is entered.
void TakeHeading(Session& session, CalendarDay today);

/// Asks whether the notes of the note clipboard are to be printed, where there are any. A No leaves them out
/// of this print alone.
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
