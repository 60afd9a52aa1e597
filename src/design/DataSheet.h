#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace kordavan {

inline constexpr std::size_t ReportNoteCount = 7;
inline constexpr std::size_t ReportNoteLength = 85;

/// Notes of the person's own for the foot of a record.
using ReportNoteLines = std::array<std::string, ReportNoteCount>;

/// The cells of a beam's Data Record by the numbers of their labels: what the screen, the page, the file and
/// the clipboard show. A cell that does not apply is empty.
struct DataSheet {
    static constexpr std::size_t LabelCount = 203;  // Label1 to Label202; the first stays empty

    std::array<std::string, LabelCount> Labels;
    std::string Label133Missing;  // the second header line
    ReportNoteLines ReportNotes;
    bool IsSteel = false;

    std::string& operator[](std::size_t label) { return Labels[label]; }
    const std::string& operator[](std::size_t label) const { return Labels[label]; }

    bool operator==(const DataSheet&) const = default;
};

/// What a record is headed with, as its boxes hold it, without the prefixes of the sheet.
struct RecordHeading {
    std::string Project{};
    std::string Description{};
    std::string BeamId{};
    std::string Heading1{};  // lines above the record
    std::string Heading2{};
    std::string Date{};
    std::string Initials{};

    bool operator==(const RecordHeading&) const = default;
};

/// The Data Record on the screen.
struct RecordOnShow {
    DataSheet Sheet;
    DataSheet OwnSheet;  // of the selection, while a loaded one is on show
    RecordHeading Heading;
    bool IsOfSelection = false;  // the member of the sheet is the one on record
    bool CanBeRefilled = false;  // that member was the last to be tested
    bool FromDisk = false;       // only text, of a beam that may be another
    bool HeaderChanged = false;  // the sheet is headed by what was entered to print it
};

}  // namespace kordavan
