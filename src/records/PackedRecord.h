#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kordavan {

/// How a field of a packed record is stored: integers of 16 bits, flags as integers of 0 and -1, floats of 32
/// bits, all little-endian; texts in Windows ANSI, filled up with blanks; parts with fields of their own.
enum class FieldType { Integer, Flag, Float, Text, Part, Reserved };

struct RecordLayout;

/// Elements of an array that are counted but have no bytes in the record.
struct ArrayGap {
    std::size_t First = 0;
    std::size_t Count = 0;
};

/// One field, or an array of such fields, of a packed record.
struct RecordField {
    std::string_view Name;
    FieldType Type;
    std::size_t Offset;  // bytes from the beginning of the file
    std::size_t Length;  // bytes of one element
    std::size_t Count = 1;
    const RecordLayout* PartLayout = nullptr;  // of each element, where they are parts
    ArrayGap Gap{};

    constexpr std::size_t HeldCount() const { return Count - Gap.Count; }
    constexpr std::size_t End() const { return Offset + Length * HeldCount(); }

    constexpr bool Holds(std::size_t index) const
    {
        return index < Count && (index < Gap.First || index >= Gap.First + Gap.Count);
    }

    /// Where an element begins that the record holds.
    constexpr std::size_t Place(std::size_t index) const
    {
        return Offset + Length * (index < Gap.First ? index : index - Gap.Count);
    }
};

constexpr RecordField IntegerField(std::string_view name, std::size_t offset)
{
    return {.Name = name, .Type = FieldType::Integer, .Offset = offset, .Length = 2};
}

constexpr RecordField FlagField(std::string_view name, std::size_t offset)
{
    return {.Name = name, .Type = FieldType::Flag, .Offset = offset, .Length = 2};
}

constexpr RecordField FloatField(std::string_view name, std::size_t offset, std::size_t count = 1)
{
    return {.Name = name, .Type = FieldType::Float, .Offset = offset, .Length = 4, .Count = count};
}

constexpr RecordField TextField(std::string_view name, std::size_t offset, std::size_t length,
                                std::size_t count = 1)
{
    return {.Name = name, .Type = FieldType::Text, .Offset = offset, .Length = length, .Count = count};
}

constexpr RecordField ReservedBytes(std::size_t offset, std::size_t length)
{
    return {.Name = {}, .Type = FieldType::Reserved, .Offset = offset, .Length = length};
}

/// The fields of a record in their order, without gaps.
struct RecordLayout {
    std::size_t Size;
    std::span<const RecordField> Fields;

    /// True when each field begins where the one before ends, and the last ends the record; the same of the
    /// parts within.
    constexpr bool IsWhole() const
    {
        std::size_t end = 0;
        for (const RecordField& field : Fields) {
            if (field.Offset != end || !HasWholeElements(field)) {
                return false;
            }
            end = field.End();
        }
        return end == Size;
    }

private:
    static constexpr bool HasWholeElements(const RecordField& field)
    {
        return field.Gap.First + field.Gap.Count <= field.Count &&
               (field.Type != FieldType::Part ||
                (field.PartLayout->Size == field.Length && field.PartLayout->IsWhole()));
    }
};

/// An array of parts, but for those in the gap.
constexpr RecordField PartField(std::string_view name, std::size_t offset, const RecordLayout& part,
                                std::size_t count, ArrayGap gap = {})
{
    return {.Name = name,
            .Type = FieldType::Part,
            .Offset = offset,
            .Length = part.Size,
            .Count = count,
            .PartLayout = &part,
            .Gap = gap};
}

/// The field of this name, or none.
const RecordField* FindRecordField(const RecordLayout& layout, std::string_view name);

/// The bytes of one record, read and written by the names of its fields. A name that the layout has not, or
/// an index past the end of an array, is a mistake of the caller and throws std::out_of_range.
class PackedRecord {
public:
    /// All texts blank, all numbers 0.
    explicit PackedRecord(const RecordLayout& recordLayout);

    /// As much of the record as there is; an element cut by the end reads as blank, a part from its cut
    /// element on. What lies behind the record is none of it.
    PackedRecord(const RecordLayout& recordLayout, std::string_view fileBytes);

    const RecordLayout& Layout() const { return *layout; }
    const std::string& Bytes() const { return bytes; }

    int Integer(std::string_view name) const;
    bool Flag(std::string_view name) const { return Integer(name) != 0; }
    float Float(std::string_view name, std::size_t index = 0) const;

    /// UTF-8, without the blanks at its end.
    std::string Text(std::string_view name, std::size_t index = 0) const;

    /// One part as a record of its own; a blank one from the gap of its array.
    PackedRecord Part(std::string_view name, std::size_t index) const;

    void SetInteger(std::string_view name, std::int16_t value);
    void SetFlag(std::string_view name, bool value) { SetInteger(name, value ? FlagOn : FlagOff); }
    void SetFloat(std::string_view name, float value, std::size_t index = 0);

    /// Cut at the length of the field.
    void SetText(std::string_view name, std::string_view text, std::size_t index = 0);

    void SetPart(std::string_view name, std::size_t index, const PackedRecord& part);

private:
    static constexpr std::int16_t FlagOff = 0;
    static constexpr std::int16_t FlagOn = -1;

    std::size_t Place(std::string_view name, std::size_t index) const;
    const RecordField& Field(std::string_view name) const;
    const RecordField& FieldOfParts(std::string_view name, std::size_t index) const;
    void FillWithBlanks(const RecordField& field);
    void Fill(const RecordField& field, std::string_view held);

    const RecordLayout* layout;
    std::string bytes;
};

}  // namespace kordavan
