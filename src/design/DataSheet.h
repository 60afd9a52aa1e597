#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "design/Session.h"

namespace kordavan {

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

}  // namespace kordavan
