#include "columns/ColumnSizes.h"

#include <algorithm>

namespace kordavan {

namespace {

constexpr ColumnThicknesses SawnThicknesses{1.5F, 3.5F, 5.5F, 7.5F, 9.5F};
constexpr ColumnThicknesses PlyThicknesses{1.5F, 3.0F, 4.5F, 6.0F, 7.5F};

constexpr ColumnWidths DimensionWidths{3.5F, 5.5F, 7.25F, 9.25F};
constexpr ColumnWidths NoWidths{0.5F, 0.5F, 0.5F, 0.5F};

using WidthsByThickness = std::array<ColumnWidths, ColumnGrid::ThicknessCount>;

constexpr WidthsByThickness PostWidths{{
    NoWidths,                  // 1.5
    NoWidths,                  // 3.5
    {5.5F, 5.5F, 7.5F, 7.5F},  // 5.5
    {5.5F, 5.5F, 7.5F, 9.5F},  // 7.5
    {7.5F, 7.5F, 7.5F, 9.5F},  // 9.5
}};

constexpr WidthsByThickness StringerWidths{{
    NoWidths,                  // 1.5
    NoWidths,                  // 3.5
    {9.5F, 9.5F, 9.5F, 9.5F},  // 5.5
    NoWidths,                  // 7.5
    {5.5F, 5.5F, 5.5F, 5.5F},  // 9.5
}};

/// Timbers with values of dimension lumber have no list of their own: the widths of dimension lumber.
constexpr WidthsByThickness FramingWidths{
    {NoWidths, NoWidths, DimensionWidths, DimensionWidths, DimensionWidths}};

struct NominalRow {
    float Net;
    std::string_view Nominal;
};

constexpr std::array NominalWidths{
    NominalRow{3.5F, "4"}, NominalRow{5.5F, "6"},   NominalRow{7.25F, "8"},
    NominalRow{7.5F, "8"}, NominalRow{9.25F, "10"}, NominalRow{9.5F, "10"},
};

const WidthsByThickness& TimberWidths(ColumnValueGroup group)
{
    switch (group) {
        case ColumnValueGroup::PostAndTimber:
            return PostWidths;
        case ColumnValueGroup::BeamAndStringer:
            return StringerWidths;
        case ColumnValueGroup::DimensionLumber:
            break;
    }
    return FramingWidths;
}

}  // namespace

const ColumnThicknesses& ColumnThicknessesOf(ColumnType type)
{
    return IsBuiltUp(type) ? PlyThicknesses : SawnThicknesses;
}

const ColumnWidths& ColumnWidthsOf(ColumnType type, ColumnValueGroup group, std::size_t thickness)
{
    return type == ColumnType::SolidSawn6x ? TimberWidths(group)[thickness] : DimensionWidths;
}

std::string_view NominalWidth(float net)
{
    const auto row = std::find_if(NominalWidths.begin(), NominalWidths.end(),
                                  [net](const NominalRow& r) { return r.Net == net; });
    return row == NominalWidths.end() ? std::string_view{} : row->Nominal;
}

}  // namespace kordavan
