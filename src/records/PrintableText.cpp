#include "records/PrintableText.h"

#include <algorithm>

namespace kordavan {

std::string PrintableText(const PackedRecord& record, std::string_view name, std::size_t index)
{
    constexpr unsigned char firstPrintable = 0x20;
    constexpr unsigned char deleteMark = 0x7F;
    const auto isControl = [](unsigned char c) { return c < firstPrintable || c == deleteMark; };
    std::string text = record.Text(name, index);
    std::replace_if(text.begin(), text.end(), isControl, ' ');
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

}  // namespace kordavan
