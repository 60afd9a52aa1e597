#pragma once

#include <array>

#include "records/PackedRecord.h"

namespace kordavan {

inline constexpr std::array CustomValuesRecordFields{
    IntegerField("RecordTag", 0),     FloatField("Fb", 2),          FloatField("Fv", 6),
    FloatField("FcPerp", 10),         FloatField("E", 14),          TextField("SpeciesText", 18, 30),
    FlagField("CustomIngradeSP", 48), FlagField("Wid2x", 50),       FlagField("Wid4x", 52),
    FlagField("Wid6x", 54),           FlagField("WidGLB", 56),      FlagField("WidGLBHDR", 58),
    FlagField("Roundoption", 60),     FlagField("MSRCheckbox", 62), FlagField("MELCheckbox", 64),
};

/// The record of a custom value file.
inline constexpr RecordLayout CustomValuesLayout{.Size = 66, .Fields = CustomValuesRecordFields};
static_assert(CustomValuesLayout.IsWhole());

inline constexpr std::int16_t CustomValuesTag = -1;

}  // namespace kordavan
