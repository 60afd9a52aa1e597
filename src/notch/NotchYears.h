#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/Message.h"
#include "core/NdsEdition.h"

namespace kordavan {

inline constexpr std::array<std::string_view, 4> NotchYearLines{"2018", "2015", "2012", "2005"};

/// The edition that a notch check works by, and the line of the list that is selected, if any is.
struct NotchYears {
    std::int16_t NdsYear = 2018;
    std::optional<std::size_t> Line = 0;

    bool operator==(const NotchYears&) const = default;
};

/// Those of an edition as the screen opens: 1997 and 2001 have no line. Without an edition it is 2018.
NotchYears OpeningNotchYears(Edition edition);

/// A click on a line. What it selects goes by a list older than the one that is shown: 2005, 2001, 1997; the
/// last line is told to select none and leaves the year.
void ClickNotchYear(NotchYears& years, std::size_t line, UserPort& user);

/// Whether notches have a rule under the year here: 1997, 2001 and 2005.
bool HasNotchRule(std::int16_t ndsYear);

/// Which year is in force, and whether it has a rule.
std::string NotchYearText(const NotchYears& years);

}  // namespace kordavan
