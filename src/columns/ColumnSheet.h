#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "design/DataSheet.h"

namespace kordavan {

/// The cells of a wood or steel column's record by the numbers of their labels: what the screen, the page,
/// the file and the clipboard show. A cell that does not apply is empty.
struct ColumnSheet {
    static constexpr std::size_t LabelCount = 87;  // Label1 to Label86; the first stays empty

    std::array<std::string, LabelCount> Labels;
    std::string SheathNote;  // of a wood column
    std::string Sheathnote2;
    ReportNoteLines ReportNotes;

    std::string& operator[](std::size_t label) { return Labels[label]; }
    const std::string& operator[](std::size_t label) const { return Labels[label]; }

    bool operator==(const ColumnSheet&) const = default;
};

/// A column's record on the screen.
struct ColumnRecordOnShow {
    ColumnSheet Sheet;
    ColumnSheet OwnSheet;    // of the size tested, while a loaded one is on show
    bool HasOwn = false;     // a size has been selected for the record
    bool FromDisk = false;   // only text, of a column that may be another
    bool IsUnsaved = false;  // selected and neither saved nor printed since

    bool operator==(const ColumnRecordOnShow&) const = default;
};

}  // namespace kordavan
