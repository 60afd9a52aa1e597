#pragma once

#include <array>

#include "records/PackedRecord.h"

namespace kordavan {

inline constexpr std::array CustomPostRecordFields{
    IntegerField("RecordTag", 0),
    IntegerField("Fc", 2),
    FloatField("E", 4),
    TextField("SpeciesText", 8, 30),
};

/// The record of a custom post value file.
inline constexpr RecordLayout CustomPostLayout{.Size = 38, .Fields = CustomPostRecordFields};
static_assert(CustomPostLayout.IsWhole());

inline constexpr std::int16_t CustomPostTag = 100;

}  // namespace kordavan
