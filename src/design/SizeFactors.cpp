#include "design/SizeFactors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>

#include "analysis/SectionProps.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr std::array<std::string_view, 7> NominalDepths{"4", "6", "8", "10", "12", "14", "16"};

/// Factors by nominal depth 4 to 16 in.; 0 where the size does not exist.
using FactorRow = std::array<float, NominalDepths.size()>;

// NDS Supplement tables 4A (No. 2 and better) and 4D, adjustment factors.
// clang-format off
//                               4     6     8     10    12    14      16
constexpr FactorRow Rows2x    {1.5F, 1.3F, 1.2F, 1.1F, 1.0F, 0.9F,   0.0F};
constexpr FactorRow Rows4x    {1.5F, 1.3F, 1.3F, 1.2F, 1.1F, 1.0F,   1.0F};
constexpr FactorRow RowsTimber{0.0F, 1.0F, 1.0F, 1.0F, 1.0F, 0.983F, 0.968F};
// clang-format on

/// Southern Pine: table 4B prints values by size, here told as factors on the value of 12 in. Lowered are
/// those of the 2012 and later supplements.
struct SouthernPineRow {
    std::string_view Species;
    bool Lowered;
    FactorRow Rows2x;
    FactorRow Rows4x;
};

constexpr std::array SouthernPineRows{
    SouthernPineRow{"Mixed So. Pine #1",
                    false,
                    {1.487179F, 1.33333F, 1.23076F, 1.07692F, 1.0F, 0.9F, 0.0F},
                    {1.487179F, 1.33333F, 1.353836F, 1.184612F, 1.1F, 0.9F, 0.9F}},
    SouthernPineRow{"Mixed So. Pine #2",
                    false,
                    {1.48571F, 1.31428F, 1.2F, 1.05714F, 1.0F, 0.9F, 0.0F},
                    {1.48571F, 1.31428F, 1.32F, 1.162854F, 1.1F, 0.9F, 0.9F}},
    SouthernPineRow{"Mixed So. Pine #2",
                    true,
                    {1.257F, 1.1428F, 1.057F, 0.91428F, 0.85714F, 0.85714F, 0.0F},
                    {1.257F, 1.1428F, 1.1627F, 1.0057F, 0.94285F, 0.94285F, 0.94285F}},
    SouthernPineRow{"So. Pine #1",
                    false,
                    {1.48F, 1.32F, 1.2F, 1.04F, 1.0F, 0.9F, 0.0F},
                    {1.48F, 1.32F, 1.32F, 1.144F, 1.1F, 0.9F, 0.9F}},
    SouthernPineRow{"So. Pine #1",
                    true,
                    {1.2F, 1.08F, 1.0F, 0.84F, 0.8F, 0.8F, 0.0F},
                    {1.2F, 1.08F, 1.1F, 0.924F, 0.88F, 0.88F, 0.88F}},
    SouthernPineRow{"So. Pine #2",
                    false,
                    {1.53846F, 1.282F, 1.230769F, 1.07692F, 1.0F, 0.9F, 0.0F},
                    {1.53846F, 1.282F, 1.353846F, 1.184612F, 1.1F, 0.9F, 0.9F}},
    SouthernPineRow{"So. Pine #2",
                    true,
                    {1.1282F, 1.0256F, 0.9487F, 0.8205F, 0.7692F, 0.7692F, 0.0F},
                    {1.1282F, 1.0256F, 1.04357F, 0.9025F, 0.84612F, 0.84612F, 0.84612F}},
};

/// The species' own factors, the lowered ones only where there are such.
const SouthernPineRow* FindSouthernPine(std::string_view species, bool lowered)
{
    const SouthernPineRow* found = nullptr;
    for (const SouthernPineRow& row : SouthernPineRows) {
        if (row.Species == species && (!row.Lowered || lowered)) {
            found = &row;
        }
    }
    return found;
}

const FactorRow& RowFor(const SizeFactorQuery& query)
{
    if (query.Key == BreadthKey::SixBy) {
        return RowsTimber;
    }
    const bool isFourBy = query.Key == BreadthKey::FourBy;
    if (query.Group == SpeciesGroup::SouthernPine) {
        if (const SouthernPineRow* own = FindSouthernPine(query.Species, query.SoPineLowered)) {
            return isFourBy ? own->Rows4x : own->Rows2x;
        }
    }
    return isFourBy ? Rows4x : Rows2x;
}

constexpr double ReferenceDepthIn = 12;
constexpr double TimberExponent = 1.0 / 9;

}  // namespace

float SawnSizeFactor(const SizeFactorQuery& query)
{
    const auto* const found = std::find(NominalDepths.begin(), NominalDepths.end(), query.DepthText);
    if (found == NominalDepths.end()) {
        return 1;
    }
    const float factor = RowFor(query)[static_cast<std::size_t>(found - NominalDepths.begin())];
    return factor == 0 ? 1 : factor;
}

float TimberSizeFactor(double d)
{
    return d <= ReferenceDepthIn ? 1 : Single(std::pow(ReferenceDepthIn / d, TimberExponent));
}

float RoundSizeFactor(double diameter)
{
    constexpr double mostWithoutFactor = 13.5;
    if (diameter <= mostWithoutFactor) {
        return 1;
    }
    return std::min(1.0F, TimberSizeFactor(std::sqrt(CircleAreaFactor * diameter * diameter)));
}

}  // namespace kordavan
