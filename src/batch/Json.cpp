#include "batch/Json.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/Message.h"
#include "core/NumberText.h"

namespace kordavan {

FieldPath FieldPath::Item(std::size_t itemIndex) const
{
    FieldPath item(*this);
    item.index = itemIndex;
    item.isItem = true;
    return item;
}

void FieldPath::Fail(std::string_view fault) const
{
    throw InvalidRequest(Text() + ": " + std::string(fault));
}

std::string FieldPath::Text() const
{
    std::string text = outer == nullptr ? std::string{} : outer->Text() + ".";
    text += isItem ? BoxName(name, index) : std::string(name);
    return text;
}

std::string_view NameOf(const JsonValue::Member& member)
{
    return {member.name.GetString(), member.name.GetStringLength()};
}

const JsonValue* FindMember(const JsonValue& object, std::string_view name)
{
    const auto found = object.FindMember(
        JsonValue(rapidjson::StringRef(name.data(), static_cast<rapidjson::SizeType>(name.size()))));
    return found == object.MemberEnd() ? nullptr : &found->value;
}

void RefuseUnknownFields(const JsonValue& request, std::span<const std::string_view> known)
{
    for (const JsonValue::Member& member : request.GetObject()) {
        const std::string_view name = NameOf(member);
        if (std::find(known.begin(), known.end(), name) == known.end()) {
            FieldPath(name).Fail("no such field in this task");
        }
    }
}

std::string EntryText(const JsonValue& value, const FieldPath& path)
{
    if (value.IsString()) {
        return {value.GetString(), value.GetStringLength()};
    }
    if (value.IsInt64()) {
        return std::to_string(value.GetInt64());
    }
    if (value.IsNumber()) {
        return PlainNumber(value.GetDouble());
    }
    path.Fail("a text or a number is expected");
}

bool FlagOf(const JsonValue& value, const FieldPath& path)
{
    if (!value.IsBool()) {
        path.Fail("true or false is expected");
    }
    return value.GetBool();
}

std::string_view TextOf(const JsonValue& value, const FieldPath& path)
{
    if (!value.IsString()) {
        path.Fail("a text is expected");
    }
    return {value.GetString(), value.GetStringLength()};
}

std::int16_t ShortOf(const JsonValue& value, const FieldPath& path)
{
    constexpr int least = std::numeric_limits<std::int16_t>::min();
    constexpr int most = std::numeric_limits<std::int16_t>::max();
    if (!value.IsInt() || value.GetInt() < least || value.GetInt() > most) {
        path.Fail("a whole number from -32768 to 32767 is expected");
    }
    return static_cast<std::int16_t>(value.GetInt());
}

float FloatOf(const JsonValue& value, const FieldPath& path)
{
    if (!value.IsNumber() || !std::isfinite(Single(value.GetDouble()))) {
        path.Fail("a number that a 32-bit float can hold is expected");
    }
    return Single(value.GetDouble());
}

int PositionOf(const JsonValue& value, int most, const FieldPath& path)
{
    if (!value.IsInt() || value.GetInt() < 0 || value.GetInt() > most) {
        path.Fail("a whole number from 0 to " + std::to_string(most) + " is expected");
    }
    return value.GetInt();
}

const JsonValue& ArrayOf(const JsonValue& value, std::size_t most, const FieldPath& path)
{
    if (!value.IsArray()) {
        path.Fail("an array is expected");
    }
    if (value.Size() > most) {
        path.Fail("at most " + std::to_string(most) + " items are expected");
    }
    return value;
}

const JsonValue& ObjectOf(const JsonValue& value, const FieldPath& path)
{
    if (!value.IsObject()) {
        path.Fail("an object is expected");
    }
    return value;
}

}  // namespace kordavan
