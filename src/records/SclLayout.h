#pragma once

#include <array>

#include "materials/SclProducts.h"
#include "records/PackedRecord.h"

namespace kordavan {

inline constexpr std::array SclPartFields{
    IntegerField("Fb", 0),
    IntegerField("Fv", 2),
    FloatField("E", 4),
    IntegerField("FcPerp", 8),
};

/// The values of one listed product.
inline constexpr RecordLayout SclPart{.Size = 10, .Fields = SclPartFields};

inline constexpr std::array CustomSclPartFields{
    IntegerField("Fb", 0),     IntegerField("Fv", 2),      FloatField("E", 4),
    IntegerField("FcPerp", 8), FloatField("Exponent", 10), TextField("Name", 14, 30),
};

/// The values of one product of the user's own.
inline constexpr RecordLayout CustomSclPart{.Size = 44, .Fields = CustomSclPartFields};

/// By the list of products, in which the user's own stand before the last.
inline constexpr std::array SclRecordFields{
    IntegerField("RecordTag", 0),
    ReservedBytes(2, 2),
    PartField("Products", 4, SclPart, SclProductCount, {.First = FirstCustomScl, .Count = CustomSclCount}),
};

/// The record of the file with the values of the listed products.
inline constexpr RecordLayout SclLayout{.Size = 244, .Fields = SclRecordFields};
static_assert(SclLayout.IsWhole());

inline constexpr std::int16_t SclTag = 113;

inline constexpr std::array CustomSclRecordFields{
    IntegerField("RecordTag", 0),
    ReservedBytes(2, 2),
    PartField("Products", 4, CustomSclPart, CustomSclCount),
};

/// The record of the file with the user's own products.
inline constexpr RecordLayout CustomSclLayout{.Size = 92, .Fields = CustomSclRecordFields};
static_assert(CustomSclLayout.IsWhole());

inline constexpr std::int16_t CustomSclTag = 2000;

}  // namespace kordavan
