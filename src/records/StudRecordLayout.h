#pragma once

#include <array>
#include <cstdint>

#include "records/PackedRecord.h"

namespace kordavan {

// clang-format off
inline constexpr std::array StudRecordFields{
    IntegerField("RecordTag", 0),
    TextField("ColumnProj", 2, 35),
    TextField("ColumnDescription", 37, 30),
    TextField("columnID", 67, 25),
    TextField("AxialPLFtextbox", 92, 8),
    TextField("WindA", 100, 8), TextField("WindB", 108, 8), TextField("WindC", 116, 8),
    TextField("BegA", 124, 8),  TextField("BegB", 132, 8),  TextField("BegC", 140, 6),  // deliberately shorter
    TextField("EndA", 146, 8),  TextField("EndB", 154, 8),  TextField("EndC", 162, 8),
    TextField("WindStudHt", 170, 8),
    IntegerField("BreadthCombo", 178), IntegerField("DepthCombo", 180),  // list positions
    TextField("WindStudSpacing", 182, 8),
    TextField("WindStudCombo", 190, 30),
    TextField("WindStudFb", 220, 6), TextField("WindStudFc", 226, 6), TextField("WindStudE", 232, 6),
    TextField("AxialPointTextbox", 238, 8), TextField("AxialDurTextbox", 246, 8),
    TextField("DurWindTextbox", 254, 8),
    TextField("RepWindStud", 262, 1), TextField("RepIBCCheck", 263, 1),  // "1" when checked, else "0"
    TextField("ReportNotes", 264, 85, 7),
};
// clang-format on

/// The record of a stud's file: what the boxes of its face hold.
inline constexpr RecordLayout StudRecordLayout{.Size = 859, .Fields = StudRecordFields};
static_assert(StudRecordLayout.IsWhole());

inline constexpr std::int16_t StudRecordTag = 889;

}  // namespace kordavan
