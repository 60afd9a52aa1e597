#include "materials/Species.h"

#include <algorithm>
#include <string>

namespace kordavan {

namespace {

// NDS Supplement, Design Values for Wood Construction, tables 4A, 4B, 4D and 5A. The 6x rows carry Beams and
// Stringers values. Odd, and kept: DF North #1 has the 2x and 4x values of #2; Western Woods #2 has E 1.1 as
// 2x and 1.0 as 4x; Eastern Spruce has Fc-perp 390 as 6x; Mixed So. Pine 6x has a higher Fv1997 than 2x.
// clang-format off
constexpr std::array<SpeciesRow, SpeciesRowCount> Rows{
    //         size class             species and grade         Fb    Fv   Fv97  Fcp   E
    SpeciesRow{BreadthKey::TwoBy,    "HF #2",                 850,  150,   75,  405, 1.3F},
    SpeciesRow{BreadthKey::FourBy,   "HF #2",                 850,  150,   75,  405, 1.3F},
    SpeciesRow{BreadthKey::SixBy,    "HF #2",                 675,  140,   70,  405, 1.1F},
    SpeciesRow{BreadthKey::TwoBy,    "HF #1",                 975,  150,   75,  405, 1.5F},
    SpeciesRow{BreadthKey::FourBy,   "HF #1",                 975,  150,   75,  405, 1.5F},
    SpeciesRow{BreadthKey::SixBy,    "HF #1",                1050,  140,   70,  405, 1.3F},
    SpeciesRow{BreadthKey::TwoBy,    "DF-L #2",               900,  180,   95,  625, 1.6F},
    SpeciesRow{BreadthKey::FourBy,   "DF-L #2",               900,  180,   95,  625, 1.6F},
    SpeciesRow{BreadthKey::SixBy,    "DF-L #2",               875,  170,   85,  625, 1.3F},
    SpeciesRow{BreadthKey::TwoBy,    "DF-L #1",              1000,  180,   95,  625, 1.7F},
    SpeciesRow{BreadthKey::FourBy,   "DF-L #1",              1000,  180,   95,  625, 1.7F},
    SpeciesRow{BreadthKey::SixBy,    "DF-L #1",              1350,  170,   85,  625, 1.6F},
    SpeciesRow{BreadthKey::Glulam,   "GLB 16F-V2 HF/HF",     1600,  195,  155,  500, 1.4F},
    SpeciesRow{BreadthKey::Glulam,   "GLB 24F-V4 DF/DF",     2400,  240,  190,  650, 1.8F},
    SpeciesRow{BreadthKey::TwoBy,    "DF South #2",           825,  180,   90,  520, 1.2F},
    SpeciesRow{BreadthKey::FourBy,   "DF South #2",           825,  180,   90,  520, 1.2F},
    SpeciesRow{BreadthKey::SixBy,    "DF South #2",           825,  165,   85,  520, 1.0F},
    SpeciesRow{BreadthKey::TwoBy,    "DF South #1",           925,  180,   90,  520, 1.3F},
    SpeciesRow{BreadthKey::FourBy,   "DF South #1",           925,  180,   90,  520, 1.3F},
    SpeciesRow{BreadthKey::SixBy,    "DF South #1",          1300,  165,   85,  520, 1.2F},
    SpeciesRow{BreadthKey::TwoBy,    "DF North #2",           850,  180,   95,  625, 1.6F},
    SpeciesRow{BreadthKey::FourBy,   "DF North #2",           850,  180,   95,  625, 1.6F},
    SpeciesRow{BreadthKey::SixBy,    "DF North #2",           875,  170,   85,  625, 1.3F},
    SpeciesRow{BreadthKey::TwoBy,    "DF North #1",           850,  180,   95,  625, 1.6F},
    SpeciesRow{BreadthKey::FourBy,   "DF North #1",           850,  180,   95,  625, 1.6F},
    SpeciesRow{BreadthKey::SixBy,    "DF North #1",          1300,  170,   85,  625, 1.6F},
    SpeciesRow{BreadthKey::TwoBy,    "SPF South #2",          775,  135,   70,  335, 1.1F},
    SpeciesRow{BreadthKey::FourBy,   "SPF South #2",          775,  135,   70,  335, 1.1F},
    SpeciesRow{BreadthKey::SixBy,    "SPF South #2",          575,  125,   65,  335, 1.0F},
    SpeciesRow{BreadthKey::TwoBy,    "SPF South #1",          875,  135,   70,  335, 1.2F},
    SpeciesRow{BreadthKey::FourBy,   "SPF South #1",          875,  135,   70,  335, 1.2F},
    SpeciesRow{BreadthKey::SixBy,    "SPF South #1",          900,  125,   65,  335, 1.2F},
    SpeciesRow{BreadthKey::TwoBy,    "SPF #2",                875,  135,   70,  425, 1.4F},
    SpeciesRow{BreadthKey::FourBy,   "SPF #2",                875,  135,   70,  425, 1.4F},
    SpeciesRow{BreadthKey::SixBy,    "SPF #2",                600,  125,   65,  425, 1.0F},
    SpeciesRow{BreadthKey::TwoBy,    "SPF #1",                875,  135,   70,  425, 1.4F},
    SpeciesRow{BreadthKey::FourBy,   "SPF #1",                875,  135,   70,  425, 1.4F},
    SpeciesRow{BreadthKey::SixBy,    "SPF #1",                900,  125,   65,  425, 1.3F},
    SpeciesRow{BreadthKey::TwoBy,    "Western Woods #2",      675,  135,   70,  335, 1.1F},
    SpeciesRow{BreadthKey::FourBy,   "Western Woods #2",      675,  135,   70,  335, 1.0F},
    SpeciesRow{BreadthKey::SixBy,    "Western Woods #2",      575,  125,   65,  335, 0.9F},
    SpeciesRow{BreadthKey::TwoBy,    "Western Woods #1",      675,  135,   70,  335, 1.1F},
    SpeciesRow{BreadthKey::FourBy,   "Western Woods #1",      675,  135,   70,  335, 1.1F},
    SpeciesRow{BreadthKey::SixBy,    "Western Woods #1",      900,  125,   65,  335, 1.1F},
    SpeciesRow{BreadthKey::TwoBy,    "Western Cedar #2",      700,  155,   75,  425, 1.0F},
    SpeciesRow{BreadthKey::FourBy,   "Western Cedar #2",      700,  155,   75,  425, 1.0F},
    SpeciesRow{BreadthKey::SixBy,    "Western Cedar #2",      625,  140,   70,  425, 0.8F},
    SpeciesRow{BreadthKey::TwoBy,    "Western Cedar #1",      725,  155,   75,  425, 1.0F},
    SpeciesRow{BreadthKey::FourBy,   "Western Cedar #1",      725,  155,   75,  425, 1.0F},
    SpeciesRow{BreadthKey::SixBy,    "Western Cedar #1",      975,  140,   70,  425, 1.0F},
    SpeciesRow{BreadthKey::TwoBy,    "Eastern Hem/Tam #2",    575,  170,   85,  555, 1.1F},
    SpeciesRow{BreadthKey::FourBy,   "Eastern Hem/Tam #2",    575,  170,   85,  555, 1.1F},
    SpeciesRow{BreadthKey::SixBy,    "Eastern Hem/Tam #2",    750,  155,   80,  555, 0.9F},
    SpeciesRow{BreadthKey::TwoBy,    "Eastern Hem/Tam #1",    775,  170,   85,  555, 1.1F},
    SpeciesRow{BreadthKey::FourBy,   "Eastern Hem/Tam #1",    775,  170,   85,  555, 1.1F},
    SpeciesRow{BreadthKey::SixBy,    "Eastern Hem/Tam #1",   1150,  155,   80,  555, 1.2F},
    SpeciesRow{BreadthKey::TwoBy,    "Eastern Spruce #2",     575,  140,   70,  335, 1.1F},
    SpeciesRow{BreadthKey::FourBy,   "Eastern Spruce #2",     575,  140,   70,  335, 1.1F},
    SpeciesRow{BreadthKey::SixBy,    "Eastern Spruce #2",     575,  135,   65,  390, 1.0F},
    SpeciesRow{BreadthKey::TwoBy,    "Eastern Spruce #1",     775,  140,   70,  335, 1.1F},
    SpeciesRow{BreadthKey::FourBy,   "Eastern Spruce #1",     775,  140,   70,  335, 1.1F},
    SpeciesRow{BreadthKey::SixBy,    "Eastern Spruce #1",     900,  135,   65,  390, 1.4F},
    SpeciesRow{BreadthKey::TwoBy,    "Mixed So. Pine #2",     875,  175,   90,  565, 1.4F},
    SpeciesRow{BreadthKey::FourBy,   "Mixed So. Pine #2",     875,  175,   90,  565, 1.4F},
    SpeciesRow{BreadthKey::SixBy,    "Mixed So. Pine #2",     850,  165,   95,  375, 1.0F},
    SpeciesRow{BreadthKey::TwoBy,    "Mixed So. Pine #1",     975,  175,   90,  565, 1.5F},
    SpeciesRow{BreadthKey::FourBy,   "Mixed So. Pine #1",     975,  175,   90,  565, 1.5F},
    SpeciesRow{BreadthKey::SixBy,    "Mixed So. Pine #1",    1350,  165,  110,  375, 1.3F},
    SpeciesRow{BreadthKey::TwoBy,    "So. Pine #2",           975,  175,   90,  565, 1.6F},
    SpeciesRow{BreadthKey::FourBy,   "So. Pine #2",           975,  175,   90,  565, 1.6F},
    SpeciesRow{BreadthKey::SixBy,    "So. Pine #2 SR",        850,  165,  100,  375, 1.2F},
    SpeciesRow{BreadthKey::TwoBy,    "So. Pine #1",          1250,  175,   90,  565, 1.7F},
    SpeciesRow{BreadthKey::FourBy,   "So. Pine #1",          1250,  175,   90,  565, 1.7F},
    SpeciesRow{BreadthKey::SixBy,    "So. Pine #1 SR",       1350,  165,  110,  375, 1.5F},
    SpeciesRow{BreadthKey::Glulam,   "GLB 16F-V3 SP/SP",     1600,  270,  240,  740, 1.4F},
    SpeciesRow{BreadthKey::Glulam,   "GLB 24F-V3 SP/SP",     2400,  270,  240,  740, 1.8F},
    SpeciesRow{BreadthKey::Glulam,   "GLB 16F-V6 DF/DF",     1600,  240,  190,  560, 1.5F},
    SpeciesRow{BreadthKey::Glulam,   "GLB 24F-V8 DF/DF",     2400,  240,  190,  650, 1.8F},
    SpeciesRow{BreadthKey::Glulam,   "GLB 16F-V5 SP/SP",     1600,  270,  240,  650, 1.4F},
    SpeciesRow{BreadthKey::Glulam,   "GLB 24F-V5 SP/SP",     2400,  270,  240,  740, 1.7F},
    SpeciesRow{BreadthKey::TwoBy,    "So. Pine #2 KD 15%",   1300,  175,   95,  565, 1.6F},
    SpeciesRow{BreadthKey::FourBy,   "So. Pine #2 KD 15%",   1300,  175,   95,  565, 1.6F},
    SpeciesRow{BreadthKey::TwoBy,    "So. Pine #1 KD 15%",   1600,  175,   95,  565, 1.8F},
    SpeciesRow{BreadthKey::FourBy,   "So. Pine #1 KD 15%",   1600,  175,   95,  565, 1.8F},
    SpeciesRow{BreadthKey::TwoBy,    "So. Pine #2 19% MC",   1200,  175,   90,  565, 1.6F},
    SpeciesRow{BreadthKey::FourBy,   "So. Pine #2 19% MC",   1200,  175,   90,  565, 1.6F},
    SpeciesRow{BreadthKey::TwoBy,    "So. Pine #1 19% MC",   1450,  175,   90,  565, 1.7F},
    SpeciesRow{BreadthKey::FourBy,   "So. Pine #1 19% MC",   1450,  175,   90,  565, 1.7F},
    SpeciesRow{BreadthKey::TwoBy,    "Red Oak #2",            800,  170,   85,  820, 1.2F},
    SpeciesRow{BreadthKey::FourBy,   "Red Oak #2",            800,  170,   85,  820, 1.2F},
    SpeciesRow{BreadthKey::SixBy,    "Red Oak #2",            725,  155,   80,  820, 1.0F},
    SpeciesRow{BreadthKey::TwoBy,    "Red Oak #1",            825,  170,   85,  820, 1.3F},
    SpeciesRow{BreadthKey::FourBy,   "Red Oak #1",            825,  170,   85,  820, 1.3F},
    SpeciesRow{BreadthKey::SixBy,    "Red Oak #1",           1150,  155,   80,  820, 1.2F},
    SpeciesRow{BreadthKey::TwoBy,    "White Oak #2",          850,  220,  110,  800, 0.9F},
    SpeciesRow{BreadthKey::FourBy,   "White Oak #2",          850,  220,  110,  800, 0.9F},
    SpeciesRow{BreadthKey::SixBy,    "White Oak #2",          750,  205,  105,  800, 0.8F},
    SpeciesRow{BreadthKey::TwoBy,    "White Oak #1",          875,  220,  110,  800, 1.0F},
    SpeciesRow{BreadthKey::FourBy,   "White Oak #1",          875,  220,  110,  800, 1.0F},
    SpeciesRow{BreadthKey::SixBy,    "White Oak #1",         1200,  205,  105,  800, 1.0F},
};
// clang-format on

constexpr bool NamesAreUniqueInTheirClass()
{
    for (std::size_t a = 0; a < Rows.size(); ++a) {
        for (std::size_t b = a + 1; b < Rows.size(); ++b) {
            if (Rows[a].Key == Rows[b].Key && Rows[a].SpeciesName == Rows[b].SpeciesName) {
                return false;
            }
        }
    }
    return true;
}
static_assert(NamesAreUniqueInTheirClass());

struct PostRow {
    std::string_view SpeciesName;
    int Fb;  // psi
};

// NDS Supplement table 4D, Posts and Timbers. Southern Pine timbers have one value for every shape.
constexpr std::array PostRows{
    PostRow{"DF-L #1", 1200},
    PostRow{"DF-L #2", 750},
    PostRow{"HF #1", 975},
    PostRow{"HF #2", 575},
    PostRow{"DF North #1", 1200},
    PostRow{"DF North #2", 725},
    PostRow{"DF South #1", 1150},
    PostRow{"DF South #2", 675},
    PostRow{"SPF #1", 850},
    PostRow{"SPF #2", 500},
    PostRow{"SPF South #1", 800},
    PostRow{"SPF South #2", 475},
    PostRow{"Western Cedar #1", 875},
    PostRow{"Western Cedar #2", 550},
    PostRow{"Western Woods #1", 800},
    PostRow{"Western Woods #2", 475},
    PostRow{"Eastern Hem/Tam #1", 1050},
    PostRow{"Eastern Hem/Tam #2", 600},
    PostRow{"Eastern Spruce #1", 800},
    PostRow{"Eastern Spruce #2", 450},
    PostRow{"Red Oak #1", 1000},
    PostRow{"Red Oak #2", 575},
    PostRow{"White Oak #1", 1050},
    PostRow{"White Oak #2", 600},
};

constexpr std::string_view TimberSuffix = " SR";

constexpr double DeepGlulamIn = 15;
constexpr std::int16_t DeepGlulamFcPerp = 650;

}  // namespace

std::span<const SpeciesRow, SpeciesRowCount> SpeciesRows()
{
    return Rows;
}

const SpeciesRow* FindSpecies(BreadthKey key, std::string_view species)
{
    const auto* const found = std::find_if(Rows.begin(), Rows.end(), [&](const SpeciesRow& row) {
        return row.Key == key && row.SpeciesName == species;
    });
    return found == Rows.end() ? nullptr : found;
}

const SpeciesRow* FindSpeciesForBreadth(BreadthKey key, std::string_view species)
{
    if (const SpeciesRow* const row = FindSpecies(key, species)) {
        return row;
    }
    if (species.ends_with(TimberSuffix)) {
        return FindSpecies(key, species.substr(0, species.size() - TimberSuffix.size()));
    }
    return FindSpecies(key, std::string(species) + std::string(TimberSuffix));
}

DesignValues ReferenceValues(const SpeciesRow& row, Edition edition, NetSize size)
{
    DesignValues values{.Fb = static_cast<float>(row.Fb),
                        .Fv = static_cast<float>(edition == Edition::Nds1997 ? row.Fv1997 : row.FvCurrent),
                        .FcPerp = static_cast<std::int16_t>(row.FcPerp),
                        .E = row.E};
    if (row.Key == BreadthKey::SixBy && IsPostOrTimber(size)) {
        values.Fb = static_cast<float>(PostsAndTimbersFb(row.SpeciesName).value_or(row.Fb));
    }
    if (row.Key == BreadthKey::Glulam && size.D > DeepGlulamIn) {
        values.FcPerp = DeepGlulamFcPerp;
    }
    return values;
}

std::optional<float> LoweredSouthernPineE(std::string_view species)
{
    if (species == "So. Pine #2") {
        return 1.4F;
    }
    return species == "So. Pine #1" ? std::optional(1.6F) : std::nullopt;
}

std::optional<int> PostsAndTimbersFb(std::string_view species)
{
    const auto* const found = std::find_if(PostRows.begin(), PostRows.end(),
                                           [&](const PostRow& row) { return row.SpeciesName == species; });
    return found == PostRows.end() ? std::nullopt : std::optional(found->Fb);
}

bool IsPostOrTimber(NetSize size)
{
    constexpr std::array<double, 5> breadths{5.5, 7.5, 9.5, 11.5, 13.5};
    const bool listed = std::find(breadths.begin(), breadths.end(), size.B) != breadths.end();
    return listed && (size.D == size.B || size.D == size.B + 2);
}

}  // namespace kordavan
