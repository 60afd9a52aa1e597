#include "batch/RecordAnswer.h"

#include <string>

namespace kordavan {

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
