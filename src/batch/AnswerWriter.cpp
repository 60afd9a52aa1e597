#include "batch/AnswerWriter.h"

#include <array>
#include <charconv>
#include <cmath>

namespace kordavan {

namespace {

std::string_view KindText(MessageKind kind)
{
    switch (kind) {
        case MessageKind::Refusal:
            return "refusal";
        case MessageKind::Alert:
            return "alert";
        case MessageKind::Question:
            return "question";
    }
    return {};
}

}  // namespace

void AnswerWriter::BeginObject(std::string_view name)
{
    Key(name);
    json.StartObject();
}

void AnswerWriter::BeginArray(std::string_view name)
{
    Key(name);
    json.StartArray();
}

void AnswerWriter::Field(std::string_view name, std::string_view text)
{
    Key(name);
    Text(text);
}

void AnswerWriter::Field(std::string_view name, float value)
{
    Key(name);
    Item(value);
}

void AnswerWriter::Field(std::string_view name, double value)
{
    Key(name);
    Item(value);
}

void AnswerWriter::Field(std::string_view name, int value)
{
    Key(name);
    json.Int(value);
}

void AnswerWriter::Field(std::string_view name, bool flag)
{
    Key(name);
    json.Bool(flag);
}

void AnswerWriter::Field(std::string_view name, const JsonValue& value)
{
    Key(name);
    value.Accept(json);
}

void AnswerWriter::Item(float value)
{
    WriteNumber(value);
}

void AnswerWriter::Item(double value)
{
    WriteNumber(value);
}

void AnswerWriter::Item(bool flag)
{
    json.Bool(flag);
}

void AnswerWriter::Messages(std::string_view name, const std::vector<Message>& messages)
{
    BeginArray(name);
    for (const Message& message : messages) {
        WriteMessage(message);
    }
    EndArray();
}

void AnswerWriter::MessageField(std::string_view name, const Message& message)
{
    Key(name);
    WriteMessage(message);
}

void AnswerWriter::Key(std::string_view name)
{
    json.Key(name.data(), static_cast<rapidjson::SizeType>(name.size()));
}

void AnswerWriter::Text(std::string_view text)
{
    json.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}

void AnswerWriter::WriteMessage(const Message& message)
{
    json.StartObject();
    Field("kind", KindText(message.Kind));
    Field("title", std::string_view(message.Title));
    Field("text", std::string_view(message.Text));
    if (!message.Focus.empty()) {
        Field("focus", std::string_view(message.Focus));
    }
    json.EndObject();
}

template <typename Number>
void AnswerWriter::WriteNumber(Number value)
{
    if (!std::isfinite(value)) {
        json.Null();
        return;
    }
    std::array<char, 32> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value);
    json.RawValue(text.data(), static_cast<std::size_t>(end - text.data()), rapidjson::kNumberType);
}

}  // namespace kordavan
