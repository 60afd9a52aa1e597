#include "records/PackedRecord.h"

#include <algorithm>
#include <bit>
#include <stdexcept>

#include "records/AnsiText.h"

namespace kordavan {

namespace {

constexpr unsigned BitsOfByte = 8;
constexpr char Padding = ' ';

template <typename Unsigned>
Unsigned ReadLittleEndian(std::string_view bytes)
{
    Unsigned value = 0;
    for (std::size_t k = 0; k < sizeof(Unsigned); ++k) {
        const auto byte = static_cast<unsigned char>(bytes[k]);
        value = static_cast<Unsigned>(value | static_cast<Unsigned>(byte) << (BitsOfByte * k));
    }
    return value;
}

template <typename Unsigned>
void WriteLittleEndian(Unsigned value, char* bytes)
{
    for (std::size_t k = 0; k < sizeof(Unsigned); ++k) {
        bytes[k] = static_cast<char>(static_cast<unsigned char>(value >> (BitsOfByte * k)));
    }
}

}  // namespace

const RecordField* FindRecordField(const RecordLayout& layout, std::string_view name)
{
    const auto found = std::find_if(layout.Fields.begin(), layout.Fields.end(),
                                    [name](const RecordField& field) { return field.Name == name; });
    return found == layout.Fields.end() || name.empty() ? nullptr : &*found;
}

PackedRecord::PackedRecord(const RecordLayout& recordLayout)
    : layout(&recordLayout), bytes(recordLayout.Size, '\0')
{
    for (const RecordField& field : layout->Fields) {
        FillWithBlanks(field);
    }
}

PackedRecord::PackedRecord(const RecordLayout& recordLayout, std::string_view fileBytes)
    : PackedRecord(recordLayout)
{
    for (const RecordField& field : layout->Fields) {
        Fill(field, fileBytes.substr(std::min(field.Offset, fileBytes.size())));
    }
}

int PackedRecord::Integer(std::string_view name) const
{
    const std::string_view at = std::string_view(bytes).substr(Place(name, 0));
    return std::bit_cast<std::int16_t>(ReadLittleEndian<std::uint16_t>(at));
}

float PackedRecord::Float(std::string_view name, std::size_t index) const
{
    const std::string_view at = std::string_view(bytes).substr(Place(name, index));
    return std::bit_cast<float>(ReadLittleEndian<std::uint32_t>(at));
}

std::string PackedRecord::Text(std::string_view name, std::size_t index) const
{
    std::string_view text = std::string_view(bytes).substr(Place(name, index), Field(name).Length);
    text = text.substr(0, text.find_last_not_of(Padding) + 1);
    return TextOfAnsi(text);
}

PackedRecord PackedRecord::Part(std::string_view name, std::size_t index) const
{
    const RecordField& field = FieldOfParts(name, index);
    return field.Holds(index) ? PackedRecord(*field.PartLayout,
                                             std::string_view(bytes).substr(field.Place(index), field.Length))
                              : PackedRecord(*field.PartLayout);
}

void PackedRecord::SetInteger(std::string_view name, std::int16_t value)
{
    WriteLittleEndian(std::bit_cast<std::uint16_t>(value), bytes.data() + Place(name, 0));
}

void PackedRecord::SetFloat(std::string_view name, float value, std::size_t index)
{
    WriteLittleEndian(std::bit_cast<std::uint32_t>(value), bytes.data() + Place(name, index));
}

void PackedRecord::SetText(std::string_view name, std::string_view text, std::size_t index)
{
    std::string ansi = AnsiOfText(text);
    ansi.resize(Field(name).Length, Padding);
    bytes.replace(Place(name, index), ansi.size(), ansi);
}

void PackedRecord::SetPart(std::string_view name, std::size_t index, const PackedRecord& part)
{
    if (FieldOfParts(name, index).PartLayout != part.layout) {
        throw std::out_of_range("no part of the record's " + std::string(name));
    }
    bytes.replace(Place(name, index), part.bytes.size(), part.bytes);
}

std::size_t PackedRecord::Place(std::string_view name, std::size_t index) const
{
    const RecordField& field = Field(name);
    if (!field.Holds(index)) {
        throw std::out_of_range("no such element of the record's " + std::string(name));
    }
    return field.Place(index);
}

const RecordField& PackedRecord::Field(std::string_view name) const
{
    const RecordField* const field = FindRecordField(*layout, name);
    if (field == nullptr) {
        throw std::out_of_range("the record has no field " + std::string(name));
    }
    return *field;
}

const RecordField& PackedRecord::FieldOfParts(std::string_view name, std::size_t index) const
{
    const RecordField& field = Field(name);
    if (field.Type != FieldType::Part || index >= field.Count) {
        throw std::out_of_range("no such part of the record's " + std::string(name));
    }
    return field;
}

void PackedRecord::FillWithBlanks(const RecordField& field)
{
    const std::size_t size = field.End() - field.Offset;
    if (field.Type == FieldType::Text) {
        bytes.replace(field.Offset, size, size, Padding);
    }
    if (field.Type == FieldType::Part) {
        Fill(field, {});
    }
}

/// @param held  what there is of the field, and perhaps more
void PackedRecord::Fill(const RecordField& field, std::string_view held)
{
    if (field.Type != FieldType::Part) {
        const std::size_t whole = std::min(held.size() / field.Length, field.HeldCount()) * field.Length;
        bytes.replace(field.Offset, whole, held.substr(0, whole));
        return;
    }
    for (std::size_t at = field.Offset; at < field.End(); at += field.Length) {
        bytes.replace(at, field.Length, PackedRecord(*field.PartLayout, held).bytes);
        held.remove_prefix(std::min(field.Length, held.size()));
    }
}

}  // namespace kordavan
