#pragma once

#include <array>

#include "records/PackedRecord.h"

namespace kordavan {

inline constexpr std::array DefaultsRecordFields{
    IntegerField("RecordTag", 0),
    TextField("DefHead1", 2, 110),
    TextField("DefHead2", 112, 110),
    TextField("DefInitials", 222, 8),
    FlagField("defINGRADE", 230),
    IntegerField("DefCombo", 232),
    FlagField("Def600", 234),
    TextField("FontCombo", 236, 30),
    FloatField("Livedefault", 266, 5),
    FloatField("TotalLoadDefault", 286, 5),
    FlagField("Def50ksi", 306),
    ReservedBytes(308, 2),
    FlagField("OptionNDS05", 310),
    FlagField("OptionNDS12", 312),
    FlagField("OptionNDS15", 314),
    FlagField("OptionNDS18", 316),
    IntegerField("CenterFormCheckbox", 318),
    IntegerField("DefaultPrinterCheckbox", 320),
};

/// The record of the defaults file.
inline constexpr RecordLayout DefaultsLayout{.Size = 322, .Fields = DefaultsRecordFields};
static_assert(DefaultsLayout.IsWhole());

inline constexpr std::int16_t DefaultsTag = 4321;

}  // namespace kordavan
