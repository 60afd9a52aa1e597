#pragma once

#include <array>
#include <cstdint>

#include "records/LabelFields.h"

namespace kordavan {

// clang-format off
inline constexpr auto WoodColumnRecordFields = JoinFields(
    std::array{IntegerField("RecordTag", 0)},
    LabelFields<3>(2, 35),     // project
    LabelFields<4>(37, 30),    // description
    LabelFields<5>(67, 25),    // column identification
    LabelFields<6>(92, 25),    // initials
    LabelFields<7>(117, 16),   // date
    LabelFields<12>(133, 110), // member
    LabelFields<66>(243, 115), // attributes
    LabelFields<86>(358, 14),  // status
    LabelFields<10>(372, 60),  // species and grade
    LabelFields<59>(432, 85),  // governing plane
    LabelFields<15>(517, 10),  // axial load
    ListedLabelFields(527, 6, std::array<std::size_t, 32>{
        17, 19,  23, 29,  30, 36,  38, 39,  40, 41,  48, 49,  50, 51,  52, 54,
        55, 60,  61, 67,  68, 69,  70, 71,  75, 76,  77, 80,  81, 82,  83, 84}),
    std::array{TextField("SheathNote", 719, 125), TextField("Sheathnote2", 844, 75),
               TextField("ReportNotes", 919, 85, 7)});

inline constexpr auto SteelColumnRecordFields = JoinFields(
    std::array{IntegerField("RecordTag", 0)},
    LabelFields<3>(2, 35),     // project
    LabelFields<4>(37, 30),    // description
    LabelFields<5>(67, 25),    // column identification
    LabelFields<6>(92, 25),    // initials
    LabelFields<7>(117, 16),   // date
    LabelFields<10>(133, 110), // member
    LabelFields<12>(243, 85),  // attributes
    LabelFields<59>(328, 85),  // note
    LabelFields<15>(413, 10),  // reaction
    ListedLabelFields(423, 6, std::array<std::size_t, 23>{
        17, 19,  23, 29,  30, 36,  38, 39,  40, 41,  50, 51,
        52, 60,  61, 71,  75, 76,  77, 81,  82, 83,  84}),
    std::array{TextField("ReportNotes", 561, 85, 7)});
// clang-format on

/// The record of a wood column's file: the texts of the sheet's cells.
inline constexpr RecordLayout WoodColumnRecordLayout{.Size = 1514, .Fields = WoodColumnRecordFields};
static_assert(WoodColumnRecordLayout.IsWhole());

/// The same of a steel column.
inline constexpr RecordLayout SteelColumnRecordLayout{.Size = 1156, .Fields = SteelColumnRecordFields};
static_assert(SteelColumnRecordLayout.IsWhole());

inline constexpr std::int16_t WoodColumnTag = 777;
inline constexpr std::int16_t SteelColumnTag = 888;

}  // namespace kordavan
