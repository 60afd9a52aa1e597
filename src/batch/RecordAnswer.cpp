#include "batch/RecordAnswer.h"

#include <ctime>
#include <string>

namespace kordavan {

CalendarDay LocalToday()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    constexpr int firstYear = 1900;
    return {.Year = local.tm_year + firstYear, .Month = local.tm_mon + 1, .Day = local.tm_mday};
}

void WriteRecord(const DataSheet& sheet, AnswerWriter& answer)
{
    answer.BeginObject("record");
    for (std::size_t label = 1; label < DataSheet::LabelCount; ++label) {
        answer.Field("Label" + std::to_string(label), std::string_view(sheet[label]));
    }
    answer.Field("Label133Missing", std::string_view(sheet.Label133Missing));
    answer.BeginArray("ReportNotes");
    for (const std::string& note : sheet.ReportNotes) {
        answer.Item(std::string_view(note));
    }
    answer.EndArray();
    answer.EndObject();
}

}  // namespace kordavan
