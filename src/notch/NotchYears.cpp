#include "notch/NotchYears.h"

#include <algorithm>

namespace kordavan {

namespace {

// What each line selects, by a list older than the one that is shown. The last selects nothing.
constexpr std::array<std::int16_t, 3> ClickedYears{2005, 2001, 1997};

struct YearRow {
    Edition Nds;
    std::int16_t Year;
    std::optional<std::size_t> Line;
};

constexpr std::array Years{
    YearRow{Edition::Nds2018, 2018, 0},
    YearRow{Edition::Nds2015, 2015, 1},
    YearRow{Edition::Nds2012, 2012, 2},
    YearRow{Edition::Nds2005, 2005, 3},
    YearRow{Edition::Nds2001, 2001, std::nullopt},
    YearRow{Edition::Nds1997, 1997, std::nullopt},
};

}  // namespace

NotchYears OpeningNotchYears(Edition edition)
{
    const auto* const row = std::find_if(Years.begin(), Years.end(),
                                         [edition](const YearRow& year) { return year.Nds == edition; });
    return row == Years.end() ? NotchYears{} : NotchYears{.NdsYear = row->Year, .Line = row->Line};
}

void ClickNotchYear(NotchYears& years, std::size_t line, UserPort& user)
{
    if (line >= ClickedYears.size()) {
        user.Tell(Alert("No NDS year selected.", "NDSyearList"));
        return;
    }
    years = {.NdsYear = ClickedYears[line], .Line = line};
}

bool HasNotchRule(std::int16_t ndsYear)
{
    return std::find(ClickedYears.begin(), ClickedYears.end(), ndsYear) != ClickedYears.end();
}

std::string NotchYearText(const NotchYears& years)
{
    const std::string inForce = "In force: NDS " + std::to_string(years.NdsYear) + ".";
    return HasNotchRule(years.NdsYear) ? inForce : inForce + " No rule: not computed.";
}

}  // namespace kordavan
