#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace kordavan {

inline constexpr std::size_t LoadPairCount = 5;

/// A pair of commonly used uniform loads, as text.
struct LoadPair {
    std::string Live;
    std::string Total;

    bool operator==(const LoadPair&) const = default;
};

/// The user's standing choices, as the settings screen shows them. The edition chosen there is that of the
/// session.
struct DefaultSettings {
    std::string DefHead1;  // lines at the head of a print-out
    std::string DefHead2;
    std::string DefInitials;
    int DefCombo = 0;     // list position of the material group to start with
    bool Def600 = false;  // print at 600 dpi
    std::string FontCombo;
    std::array<LoadPair, LoadPairCount> LoadPairs{};  // psf
    bool Def50ksi = false;
    bool CenterFormCheckbox = false;
    bool DefaultPrinterCheckbox = false;
};

}  // namespace kordavan
