#pragma once

#include <array>
#include <cstdint>

#include "records/LabelFields.h"

namespace kordavan {

// clang-format off
inline constexpr auto DataRecordFields = JoinFields(
    std::array{IntegerField("RecordTag", 0)},
    LabelFields<1, 4>(2, 60),         // project, description, beam identification, date
    LabelFields<5, 6>(242, 110),      // member, attributes
    LabelFields<13, 49>(462, 20),
    LabelFields<61, 131>(1202, 20),
    LabelFields<132>(2622, 110),      // the header lines
    std::array{TextField("Label133Missing", 2732, 110)},
    LabelFields<134, 168>(2842, 20),
    LabelFields<169, 170>(3542, 30),  // initials, backspan note
    LabelFields<173, 174>(3602, 20),  // lateral support
    LabelFields<53>(3642, 20),        // caption of the live reaction 2
    std::array{TextField("ReportNotes", 3662, 85, 7)},
    LabelFields<176>(4257, 115),      // heading of the bearing at point loads
    LabelFields<177>(4372, 20),       // factor cells
    LabelFields<175>(4392, 20),
    LabelFields<187>(4412, 115),
    LabelFields<133>(4527, 20),       // bearing at reaction 2
    LabelFields<12>(4547, 20),        // caption of the span, empty in older files
    std::array{FlagField("SteelRecord", 4567)},
    LabelFields<188, 191>(4569, 20),  // stability
    LabelFields<192, 194>(4649, 50),
    std::array{ReservedBytes(4799, 10)});
// clang-format on

/// The record of a beam's Data Record file: the texts of the sheet's cells.
inline constexpr RecordLayout DataRecordLayout{.Size = 4809, .Fields = DataRecordFields};
static_assert(DataRecordLayout.IsWhole());

/// Labels whose slots stay blank: their captions stand on every sheet, or follow from the rest of it.
inline constexpr std::array<std::size_t, 14> BlankSlots{19, 20, 21,  22,  30,  32,  33,
                                                        39, 47, 108, 142, 150, 151, 166};

/// The tag that is written, and that of files from before steel and stability were recorded.
inline constexpr std::int16_t DataRecordTag = 556;
inline constexpr std::int16_t OldDataRecordTag = 555;

}  // namespace kordavan
