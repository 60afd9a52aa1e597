#pragma once

#include <optional>
#include <string>

namespace kordavan {

/// The member chosen last, as the result lines of the screens show it.
struct SelectionRecord {
    std::string MemberChoice;
    std::string MemberStatus;  // "OK", "Fails", or empty where the member must be free of splits
    std::string RecordDate;    // "m/dd/yy"
};

/// Result line of the criteria form, "   Selection:  None" without a record. Without a status it ends before
/// it.
std::string CriteriaResultLine(const std::optional<SelectionRecord>& selection);

/// The same on the selection screen of sawn members and glulams, with blanks of its own.
std::string WoodResultLine(const std::optional<SelectionRecord>& selection);

struct CalendarDay {
    int Year;
    int Month;
    int Day;
};

/// "m/dd/yy": 3/07/26 for the 7th of March 2026.
std::string ShortDate(CalendarDay day);

}  // namespace kordavan
