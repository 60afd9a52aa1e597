#include "columns/ColumnSpecies.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace kordavan {

namespace {

struct TimberValues {
    std::string_view Name;
    float FcStringer;  // psi, as Beam and Stringer
    float E;           // millions of psi
    float FcPost;      // psi, as Post and Timber
};

// NDS Supplement, Design Values for Wood Construction, tables 4D and 4A. Odd, and kept: White Oak #2 of
// dimension lumber has E 8.9, and Hem-Fir #1 an Fc lower than that of 1997.
// clang-format off
constexpr std::array Timbers{
    //           species and grade          B&S     E     P&T
    TimberValues{"DF-L Select",             1100, 1.6F,  1150},
    TimberValues{"DF-L #1",                  925, 1.6F,  1000},
    TimberValues{"DF-L #2",                  600, 1.3F,   700},
    TimberValues{"DF-L North Select",       1100, 1.6F,  1150},
    TimberValues{"DF-L North #1",            925, 1.6F,  1000},
    TimberValues{"DF-L North #2",            600, 1.3F,   700},
    TimberValues{"DF-L South Select",       1000, 1.2F,  1050},
    TimberValues{"DF-L South #1",            850, 1.2F,   925},
    TimberValues{"DF-L South #2",            550, 1.0F,   650},
    TimberValues{"Hem-Fir Select",           925, 1.3F,   975},
    TimberValues{"Hem-Fir #1",               750, 1.3F,   850},
    TimberValues{"Hem-Fir #2",               500, 1.1F,   575},
    TimberValues{"Hem-Fir North Select",     900, 1.3F,   950},
    TimberValues{"Hem-Fir North #1",         750, 1.3F,   850},
    TimberValues{"Hem-Fir North #2",         475, 1.1F,   575},
    TimberValues{"Eastern Hem-Tam Select",   950, 1.2F,  1000},
    TimberValues{"Eastern Hem-Tam #1",       800, 1.2F,   875},
    TimberValues{"Eastern Hem-Tam #2",       500, 0.9F,   400},
    TimberValues{"Red Oak Select",           825, 1.2F,   875},
    TimberValues{"Red Oak #1",               700, 1.2F,   775},
    TimberValues{"Red Oak #2",               450, 1.0F,   350},
    TimberValues{"White Oak Select",         900, 1.0F,   950},
    TimberValues{"White Oak #1",             775, 1.0F,   825},
    TimberValues{"White Oak #2",             475, 0.8F,   400},
    TimberValues{"SPF Select",               775, 1.3F,   800},
    TimberValues{"SPF #1",                   625, 1.3F,   700},
    TimberValues{"SPF #2",                   425, 1.0F,   500},
    TimberValues{"SPF South Select",         675, 1.2F,   700},
    TimberValues{"SPF South #1",             575, 1.2F,   625},
    TimberValues{"SPF South #2",             375, 1.0F,   425},
    TimberValues{"Western Cedar Select",     875, 1.0F,   925},
    TimberValues{"Western Cedar #1",         725, 1.0F,   800},
    TimberValues{"Western Cedar #2",         475, 0.8F,   550},
    TimberValues{"Western Woods Select",     750, 1.1F,   800},
    TimberValues{"Western Woods #1",         625, 1.1F,   700},
    TimberValues{"Western Woods #2",         425, 0.9F,   475},
    TimberValues{"Southern Pine Select",     950, 1.5F,   950},
    TimberValues{"Southern Pine #1",         825, 1.5F,   825},
    TimberValues{"Southern Pine #2",         525, 1.2F,   525},
};

constexpr std::array Dimension{
    //              species and grade           Fc     E   Fc 1997   Fb
    DimensionValues{"DF-L Select",             1700, 1.9F,  1700,  1500},
    DimensionValues{"DF-L #1",                 1500, 1.7F,  1500,  1000},
    DimensionValues{"DF-L #2",                 1350, 1.6F,  1350,   900},
    DimensionValues{"DF-L Stud",                850, 1.4F,   850,   700},
    DimensionValues{"DF-L North Select",       1900, 1.9F,  1900,  1350},
    DimensionValues{"DF-L North #1",           1400, 1.6F,  1400,   850},
    DimensionValues{"DF-L North #2",           1400, 1.6F,  1400,   850},
    DimensionValues{"DF-L North Stud",          900, 1.4F,   900,   650},
    DimensionValues{"DF-L South Select",       1600, 1.4F,  1600,  1350},
    DimensionValues{"DF-L South #1",           1450, 1.3F,  1450,   925},
    DimensionValues{"DF-L South #2",           1350, 1.2F,  1350,   850},
    DimensionValues{"DF-L South Stud",          850, 1.1F,   850,   675},
    DimensionValues{"Hem-Fir Select",          1500, 1.6F,  1500,  1400},
    DimensionValues{"Hem-Fir #1",              1300, 1.5F,  1350,   975},
    DimensionValues{"Hem-Fir #2",              1300, 1.3F,  1300,   850},
    DimensionValues{"Hem-Fir Stud",             800, 1.2F,   800,   675},
    DimensionValues{"Hem-Fir North Select",    1700, 1.7F,  1700,  1300},
    DimensionValues{"Hem-Fir North #1",        1450, 1.6F,  1450,  1000},
    DimensionValues{"Hem-Fir North #2",        1450, 1.6F,  1450,  1000},
    DimensionValues{"Hem-Fir North Stud",       925, 1.4F,   925,   775},
    DimensionValues{"Eastern Hem-Tam Select",  1200, 1.2F,  1200,  1250},
    DimensionValues{"Eastern Hem-Tam #1",      1000, 1.1F,  1000,   775},
    DimensionValues{"Eastern Hem-Tam #2",       825, 1.1F,   825,   575},
    DimensionValues{"Eastern Hem-Tam Stud",     525, 0.9F,   525,   450},
    DimensionValues{"Red Oak Select",          1000, 1.4F,  1000,  1150},
    DimensionValues{"Red Oak #1",               825, 1.3F,   825,   825},
    DimensionValues{"Red Oak #2",               625, 1.2F,   625,   800},
    DimensionValues{"Red Oak Stud",             400, 1.1F,   400,   625},
    DimensionValues{"White Oak Select",        1100, 1.1F,  1100,  1200},
    DimensionValues{"White Oak #1",             900, 1.0F,   900,   875},
    DimensionValues{"White Oak #2",             700, 8.9F,   700,   850},
    DimensionValues{"White Oak Stud",           450, 0.8F,   450,   650},
    DimensionValues{"SPF Select",              1400, 1.5F,  1400,  1250},
    DimensionValues{"SPF #1",                  1150, 1.4F,  1150,   875},
    DimensionValues{"SPF #2",                  1150, 1.4F,  1150,   875},
    DimensionValues{"SPF Stud",                 725, 1.2F,   725,   675},
    DimensionValues{"SPF South Select",        1200, 1.3F,  1200,  1300},
    DimensionValues{"SPF South #1",            1050, 1.2F,  1050,   875},
    DimensionValues{"SPF South #2",            1000, 1.1F,  1000,   775},
    DimensionValues{"SPF South Stud",           625, 1.0F,   625,   600},
    DimensionValues{"Western Cedar Select",    1000, 1.1F,  1000,  1000},
    DimensionValues{"Western Cedar #1",         825, 1.0F,   825,   725},
    DimensionValues{"Western Cedar #2",         650, 1.0F,   650,   700},
    DimensionValues{"Western Cedar Stud",       400, 0.9F,   400,   550},
    DimensionValues{"Western Woods Select",    1050, 1.2F,  1050,   900},
    DimensionValues{"Western Woods #1",         950, 1.1F,   950,   675},
    DimensionValues{"Western Woods #2",         900, 1.0F,   900,   675},
    DimensionValues{"Western Woods Stud",       575, 0.9F,   575,   525},
};
// clang-format on

constexpr std::size_t GradesOfSpecies = 4;
constexpr std::size_t SouthernPineCount = 3;

constexpr bool IsStudPosition(std::size_t position)
{
    return position % GradesOfSpecies == GradesOfSpecies - 1;
}

constexpr bool StudRowsStandLast()
{
    for (std::size_t position = 0; position < Dimension.size(); ++position) {
        if (Dimension[position].Name.ends_with(" Stud") != IsStudPosition(position)) {
            return false;
        }
    }
    return true;
}

constexpr std::span<const TimberValues> SouthernPine = std::span(Timbers).last<SouthernPineCount>();
constexpr std::span<const TimberValues> Stringers =
    std::span(Timbers).first<Timbers.size() - SouthernPineCount>();

static_assert(Timbers.size() == 39 && Dimension.size() == 48);
static_assert(StudRowsStandLast());
static_assert(SouthernPine.front().Name == "Southern Pine Select");

template <typename Row>
const Row* FindRow(std::span<const Row> rows, std::string_view name)
{
    const auto found =
        std::find_if(rows.begin(), rows.end(), [name](const Row& row) { return row.Name == name; });
    return found == rows.end() ? nullptr : &*found;
}

template <typename Row>
void AppendNames(std::span<const Row> rows, std::vector<std::string_view>& names)
{
    for (const Row& row : rows) {
        names.push_back(row.Name);
    }
}

std::optional<ColumnBaseValues> DimensionBase(std::string_view name, Edition edition)
{
    if (const DimensionValues* const row = FindDimensionValues(name)) {
        return ColumnBaseValues{.Fc = FcOfEdition(*row, edition), .E = row->E};
    }
    if (const TimberValues* const row = FindRow(SouthernPine, name)) {
        return ColumnBaseValues{.Fc = row->FcPost, .E = row->E, .IsTimberRow = true};
    }
    return std::nullopt;
}

std::optional<ColumnBaseValues> PostBase(std::string_view name)
{
    const TimberValues* const row = FindRow(std::span<const TimberValues>(Timbers), name);
    return row == nullptr ? std::nullopt : std::optional(ColumnBaseValues{.Fc = row->FcPost, .E = row->E});
}

std::optional<ColumnBaseValues> StringerBase(std::string_view name)
{
    const TimberValues* const row = FindRow(Stringers, name);
    return row == nullptr ? std::nullopt
                          : std::optional(ColumnBaseValues{.Fc = row->FcStringer, .E = row->E});
}

}  // namespace

std::vector<std::string_view> ColumnSpeciesNames(ColumnValueGroup group)
{
    std::vector<std::string_view> names;
    switch (group) {
        case ColumnValueGroup::DimensionLumber:
            AppendNames(std::span<const DimensionValues>(Dimension), names);
            AppendNames(SouthernPine, names);
            break;
        case ColumnValueGroup::PostAndTimber:
            AppendNames(std::span<const TimberValues>(Timbers), names);
            break;
        case ColumnValueGroup::BeamAndStringer:
            AppendNames(Stringers, names);
            break;
    }
    names.push_back(CustomSpecies);
    return names;
}

std::optional<ColumnBaseValues> FindColumnValues(std::string_view name, ColumnValueGroup group,
                                                 Edition edition)
{
    switch (group) {
        case ColumnValueGroup::DimensionLumber:
            return DimensionBase(name, edition);
        case ColumnValueGroup::PostAndTimber:
            return PostBase(name);
        case ColumnValueGroup::BeamAndStringer:
            return StringerBase(name);
    }
    return std::nullopt;
}

std::vector<std::string_view> StudSpeciesNames()
{
    std::vector<std::string_view> names;
    AppendNames(std::span<const DimensionValues>(Dimension), names);
    names.push_back(CustomSpecies);
    return names;
}

const DimensionValues* FindDimensionValues(std::string_view name)
{
    return FindRow(std::span<const DimensionValues>(Dimension), name);
}

bool IsStudGrade(std::string_view name)
{
    const DimensionValues* const row = FindDimensionValues(name);
    return row != nullptr && IsStudPosition(static_cast<std::size_t>(row - Dimension.data()));
}

float FcOfEdition(const DimensionValues& row, Edition edition)
{
    return edition == Edition::Nds1997 ? row.Fc1997 : row.Fc;
}

}  // namespace kordavan
