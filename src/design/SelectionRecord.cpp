#include "design/SelectionRecord.h"

#include <string_view>

#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr std::string_view NoSelection = "   Selection:  None";

struct LineParts {
    std::string_view Selection;
    std::string_view Status;
    std::string_view Date;
};

std::string ResultLine(const std::optional<SelectionRecord>& selection, const LineParts& parts)
{
    if (!selection) {
        return std::string(NoSelection);
    }
    std::string line(parts.Selection);
    line += selection->MemberChoice;
    if (!selection->MemberStatus.empty()) {
        line += parts.Status;
        line += selection->MemberStatus;
        line += parts.Date;
        line += selection->RecordDate;
    }
    return line;
}

}  // namespace

std::string CriteriaResultLine(const std::optional<SelectionRecord>& selection)
{
    return ResultLine(selection,
                      {.Selection = " Selection:   ", .Status = "   -  Status: ", .Date = "   -  Date: "});
}

std::string WoodResultLine(const std::optional<SelectionRecord>& selection)
{
    return ResultLine(selection,
                      {.Selection = " Selection: ", .Status = "  - Status: ", .Date = " - Date: "});
}

std::string ShortDate(CalendarDay day)
{
    constexpr int century = 100;
    return FormatNumber(static_cast<double>(day.Month), "#0") + "/" +
           FormatNumber(static_cast<double>(day.Day), "00") + "/" +
           FormatNumber(static_cast<double>(day.Year % century), "00");
}

}  // namespace kordavan
