#pragma once

#include <rapidjson/document.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kordavan {

using JsonValue = rapidjson::Value;

/// A request that cannot be understood: what is wrong, and where. Never leaves the answering of its line.
class InvalidRequest : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Where a value stands in its request; spelled out, as "criteria.PT[2]", only when something is wrong there.
class FieldPath {
public:
    explicit FieldPath(std::string_view fieldName, const FieldPath* outerPath = nullptr)
        : name(fieldName), outer(outerPath)
    {
    }

    FieldPath Field(std::string_view fieldName) const { return FieldPath(fieldName, this); }
    FieldPath Item(std::size_t itemIndex) const;

    /// Throws InvalidRequest with the path and the fault.
    [[noreturn]] void Fail(std::string_view fault) const;

private:
    std::string Text() const;

    std::string_view name;
    const FieldPath* outer;
    std::size_t index = 0;
    bool isItem = false;
};

/// The name of an object's member.
std::string_view NameOf(const JsonValue::Member& member);

/// The member of this name, or none.
const JsonValue* FindMember(const JsonValue& object, std::string_view name);

/// Fails where a request has a field that its task does not know.
void RefuseUnknownFields(const JsonValue& request, std::span<const std::string_view> known);

/// The text of an entry: a JSON text as it is, a number as one would type it.
std::string EntryText(const JsonValue& value, const FieldPath& path);

bool FlagOf(const JsonValue& value, const FieldPath& path);

std::string_view TextOf(const JsonValue& value, const FieldPath& path);

/// A whole number that 16 bits hold.
std::int16_t ShortOf(const JsonValue& value, const FieldPath& path);

/// A number that a 32-bit float holds.
float FloatOf(const JsonValue& value, const FieldPath& path);

/// A whole number from 0 up to `most`.
int PositionOf(const JsonValue& value, int most, const FieldPath& path);

/// An array of at most so many items.
const JsonValue& ArrayOf(const JsonValue& value, std::size_t most, const FieldPath& path);

const JsonValue& ObjectOf(const JsonValue& value, const FieldPath& path);

}  // namespace kordavan
