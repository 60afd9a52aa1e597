#include "core/NdsEdition.h"

#include <array>

namespace kordavan {

namespace {

struct EditionRow {
    Edition Value;
    bool NdsEdition::*Flag;
    std::string_view Year;
};

constexpr std::array Editions{
    EditionRow{Edition::Nds1997, &NdsEdition::Nds1997, "1997"},
    EditionRow{Edition::Nds2012, &NdsEdition::Nds2012, "2012"},
    EditionRow{Edition::Nds2015, &NdsEdition::Nds2015, "2015"},
    EditionRow{Edition::Nds2018, &NdsEdition::Nds2018, "2018"},
    EditionRow{Edition::Nds2005, &NdsEdition::Nds2005, "2005"},
    EditionRow{Edition::Nds2001, &NdsEdition::Nds2001, "2001"},
};

}  // namespace

NdsEdition EditionFlags(Edition edition)
{
    NdsEdition flags;
    for (const EditionRow& row : Editions) {
        flags.*row.Flag = row.Value == edition;
    }
    return flags;
}

Edition EditionInForce(const NdsEdition& flags)
{
    for (const EditionRow& row : Editions) {
        if (flags.*row.Flag) {
            return row.Value;
        }
    }
    return Edition::None;
}

std::string_view EditionYear(Edition edition)
{
    for (const EditionRow& row : Editions) {
        if (row.Value == edition) {
            return row.Year;
        }
    }
    return {};
}

Edition EditionOfYear(std::string_view year)
{
    for (const EditionRow& row : Editions) {
        if (row.Year == year) {
            return row.Value;
        }
    }
    return Edition::None;
}

}  // namespace kordavan
