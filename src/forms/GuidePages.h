#pragma once

#include <array>
#include <string_view>

namespace kordavan {

/// The pages of the user guide that forms lead to.
enum class GuidePage {
    Contents,
    Criteria,
    Loads,
    Hips,
    MultipleSpans,
    WoodSelection,
    OwnSections,
    Steel,
    Report,
    LoadDiagram,
    DataRecord,
    Printing,
    WoodColumns,
    WoodColumnSizes,
    SteelColumns,
    SteelColumnSizes,
    Studs,
    ColumnRecords,
    Notch,
    NotchReport,
    Settings,
    Calculator,
    Notes,
    Keys
};

/// Where a page lies in the guide: its file, and a heading of it where several forms share the file. Written
/// as links of the guide are.
struct GuidePlace {
    GuidePage Page;
    std::string_view Link;
};

inline constexpr std::array GuidePlaces{
    GuidePlace{GuidePage::Contents, "README.md"},
    GuidePlace{GuidePage::Criteria, "criteria.md"},
    GuidePlace{GuidePage::Loads, "loads.md"},
    GuidePlace{GuidePage::Hips, "hips.md"},
    GuidePlace{GuidePage::MultipleSpans, "multiple-spans.md"},
    GuidePlace{GuidePage::WoodSelection, "selection.md"},
    GuidePlace{GuidePage::OwnSections, "own-sections.md"},
    GuidePlace{GuidePage::Steel, "steel.md#the-selection"},
    GuidePlace{GuidePage::Report, "report.md"},
    GuidePlace{GuidePage::LoadDiagram, "load-diagram.md"},
    GuidePlace{GuidePage::DataRecord, "data-record.md"},
    GuidePlace{GuidePage::Printing, "printing.md"},
    GuidePlace{GuidePage::WoodColumns, "wood-columns.md"},
    GuidePlace{GuidePage::WoodColumnSizes, "wood-columns.md#choosing-a-size"},
    GuidePlace{GuidePage::SteelColumns, "steel-columns.md"},
    GuidePlace{GuidePage::SteelColumnSizes, "steel-columns.md#choosing-a-size"},
    GuidePlace{GuidePage::Studs, "studs.md"},
    GuidePlace{GuidePage::ColumnRecords, "column-records.md"},
    GuidePlace{GuidePage::Notch, "notch.md"},
    GuidePlace{GuidePage::NotchReport, "notch.md#the-notch-report"},
    GuidePlace{GuidePage::Settings, "settings.md"},
    GuidePlace{GuidePage::Calculator, "tools.md#the-calculator"},
    GuidePlace{GuidePage::Notes, "tools.md#the-note-clipboard"},
    GuidePlace{GuidePage::Keys, "keys.md"},
};

/// The place of a page.
constexpr std::string_view LinkOf(GuidePage page)
{
    return GuidePlaces[static_cast<std::size_t>(page)].Link;
}

constexpr bool GuidePlacesAreInOrder()
{
    for (std::size_t k = 0; k < GuidePlaces.size(); ++k) {
        if (static_cast<std::size_t>(GuidePlaces[k].Page) != k) {
            return false;
        }
    }
    return GuidePlaces.size() == static_cast<std::size_t>(GuidePage::Keys) + 1;
}
static_assert(GuidePlacesAreInOrder());

}  // namespace kordavan
