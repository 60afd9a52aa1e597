#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "design/DataSheet.h"
#include "records/PackedRecord.h"

namespace kordavan {

/// The letters of a label's name, which outlive the field that bears it.
struct LabelLetters {
    std::array<char, 8> Letters{'L', 'a', 'b', 'e', 'l'};
    std::size_t Length = 5;

    constexpr std::string_view Name() const { return {Letters.data(), Length}; }
};

constexpr LabelLetters SpellLabel(std::size_t label)
{
    LabelLetters name;
    for (std::size_t unit : {100, 10, 1}) {
        if (label >= unit) {
            name.Letters.at(name.Length++) = static_cast<char>('0' + label / unit % 10);
        }
    }
    return name;
}

inline constexpr auto LabelNames = [] {
    std::array<LabelLetters, DataSheet::LabelCount> names{};
    for (std::size_t label = 0; label < names.size(); ++label) {
        names[label] = SpellLabel(label);
    }
    return names;
}();

/// "Label13" of 13; the number is that of a sheet's cell.
constexpr std::string_view LabelName(std::size_t label)
{
    return LabelNames.at(label).Name();
}

/// One field for each label from the first to the last: texts of one length, one after the other.
template <std::size_t First, std::size_t Last = First>
constexpr auto LabelFields(std::size_t offset, std::size_t length)
{
    std::array<RecordField, Last - First + 1> fields{};
    for (std::size_t k = 0; k < fields.size(); ++k) {
        fields[k] = TextField(LabelName(First + k), offset + k * length, length);
    }
    return fields;
}

/// One field for each label listed: texts of one length, one after the other.
template <std::size_t Count>
constexpr auto ListedLabelFields(std::size_t offset, std::size_t length,
                                 const std::array<std::size_t, Count>& labels)
{
    std::array<RecordField, Count> fields{};
    for (std::size_t k = 0; k < Count; ++k) {
        fields[k] = TextField(LabelName(labels[k]), offset + k * length, length);
    }
    return fields;
}

/// The fields of a record whose description has runs of labels in it.
template <std::size_t... Counts>
constexpr auto JoinFields(const std::array<RecordField, Counts>&... runs)
{
    std::array<RecordField, (Counts + ...)> fields{};
    auto next = fields.begin();
    ((next = std::copy(runs.begin(), runs.end(), next)), ...);
    return fields;
}

}  // namespace kordavan
