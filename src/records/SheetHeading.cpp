#include "records/SheetHeading.h"

namespace kordavan {

std::string WithoutPrefix(std::string_view text, std::string_view prefix)
{
    if (!prefix.empty() && text == prefix.substr(0, prefix.size() - 1)) {
        return {};
    }
    return std::string(text.starts_with(prefix) ? text.substr(prefix.size()) : text);
}

void WriteHeadCells(std::span<const HeadCell> head, const RecordHeading& heading,
                    std::span<std::string> sheet)
{
    for (const HeadCell& cell : head) {
        sheet[cell.Label] = std::string(cell.Prefix) + heading.*cell.Text;
    }
}

RecordHeading ReadHeadCells(std::span<const HeadCell> head, std::span<const std::string> sheet)
{
    RecordHeading heading;
    for (const HeadCell& cell : head) {
        heading.*cell.Text = WithoutPrefix(sheet[cell.Label], cell.Prefix);
    }
    return heading;
}

void DateHeading(RecordHeading& heading, CalendarDay today)
{
    if (heading.Date.empty()) {
        heading.Date = ShortDate(today);
    }
}

}  // namespace kordavan
