#include "Engine.h"

#include <rapidjson/stringbuffer.h>

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <system_error>

#include "batch/AnswerLine.h"

namespace kordavan::Verification {

namespace {

/// The number in a text, as 4.3 in "Lc = 4.3 ft" and 0.8 in "R1= 0.8 in2".
double NumberIn(std::string_view text)
{
    const std::size_t equals = text.find('=');
    const std::size_t begin = text.find_first_of("0123456789", equals == std::string_view::npos ? 0 : equals);
    double value = 0;
    if (begin == std::string_view::npos ||
        std::from_chars(text.data() + begin, text.data() + text.size(), value).ec != std::errc()) {
        throw std::runtime_error("no number in \"" + std::string(text) + "\"");
    }
    return value;
}

std::size_t ItemNumber(std::string_view step)
{
    std::size_t item = 0;
    std::from_chars(step.data(), step.data() + step.size(), item);
    return item;
}

}  // namespace

Answer::Answer(std::string_view request)
{
    rapidjson::StringBuffer buffer;
    AnswerLine(request, buffer);
    document.Parse(buffer.GetString(), buffer.GetSize());
    if (document.HasParseError() || Text("status") != "done") {
        throw std::runtime_error(std::string(request) + "\nis answered with\n" + buffer.GetString());
    }
}

double Answer::Number(std::string_view place) const
{
    const rapidjson::Value& value = Find(place);
    if (value.IsNumber()) {
        return value.GetDouble();
    }
    if (value.IsString()) {
        return NumberIn({value.GetString(), value.GetStringLength()});
    }
    throw std::runtime_error("no figure at " + std::string(place));
}

std::string Answer::Text(std::string_view place) const
{
    const rapidjson::Value& value = Find(place);
    if (!value.IsString()) {
        throw std::runtime_error("no text at " + std::string(place));
    }
    return {value.GetString(), value.GetStringLength()};
}

const rapidjson::Value& Answer::Find(std::string_view place) const
{
    const rapidjson::Value* value = &document;
    for (std::string_view rest = place; !rest.empty();) {
        const std::string_view step = rest.substr(0, rest.find('.'));
        rest.remove_prefix(std::min(rest.size(), step.size() + 1));
        if (value->IsArray() && ItemNumber(step) < value->Size()) {
            value = &(*value)[static_cast<rapidjson::SizeType>(ItemNumber(step))];
            continue;
        }
        const auto member =
            value->IsObject() ? value->FindMember(std::string(step).c_str()) : document.MemberEnd();
        if (!value->IsObject() || member == value->MemberEnd()) {
            throw std::runtime_error("nothing answered at " + std::string(place));
        }
        value = &member->value;
    }
    return *value;
}

}  // namespace kordavan::Verification
