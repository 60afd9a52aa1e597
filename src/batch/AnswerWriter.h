#pragma once

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <string_view>
#include <vector>

#include "batch/Json.h"
#include "core/Message.h"

namespace kordavan {

/// Writes one answer as a JSON object. Numbers go out in the fewest digits that read back the same float or
/// double, null where they are not finite.
class AnswerWriter {
public:
    explicit AnswerWriter(rapidjson::StringBuffer& buffer) : json(buffer) {}

    void BeginObject() { json.StartObject(); }
    void BeginObject(std::string_view name);
    void EndObject() { json.EndObject(); }
    void BeginArray() { json.StartArray(); }
    void BeginArray(std::string_view name);
    void EndArray() { json.EndArray(); }

    void Field(std::string_view name, std::string_view text);
    void Field(std::string_view name, float value);
    void Field(std::string_view name, double value);
    void Field(std::string_view name, int value);
    void Field(std::string_view name, bool flag);
    void Field(std::string_view name, const JsonValue& value);

    void Item(float value);
    void Item(double value);
    void Item(bool flag);
    void Item(std::string_view text) { Text(text); }

    void Messages(std::string_view name, const std::vector<Message>& messages);
    void MessageField(std::string_view name, const Message& message);

private:
    void Key(std::string_view name);
    void Text(std::string_view text);
    void WriteMessage(const Message& message);
    template <typename Number>
    void WriteNumber(Number value);

    rapidjson::Writer<rapidjson::StringBuffer> json;
};

}  // namespace kordavan
