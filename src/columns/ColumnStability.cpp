#include "columns/ColumnStability.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "design/Stability.h"

namespace kordavan {

namespace {

struct SizeFactorRow {
    float Width;  // net, in.
    float CF;     // Select, #1 and #2
    float CFStud;
};

constexpr std::array SizeFactors{
    SizeFactorRow{3.5F, 1.15F, 1.05F},
    SizeFactorRow{5.5F, 1.1F, 1.0F},
    SizeFactorRow{7.25F, 1.05F, 1.0F},
    SizeFactorRow{9.25F, 1.0F, 1.0F},
};

}  // namespace

double EulerColumnCoefficient(bool isNds2005Plus)
{
    constexpr double ofE = 0.3;
    constexpr double ofEmin = 0.822;
    return isNds2005Plus ? VisualEminOverE * ofEmin : ofE;
}

double ColumnStabilityFactor(double ratio)
{
    constexpr double c = SawnColumnC;
    const double half = (1 + ratio) / (2 * c);
    // The published difference half - root, multiplied out: it loses no digits where the ratio is great.
    return ratio / c / (half + std::sqrt(half * half - ratio / c));
}

std::optional<float> CompressionSizeFactor(float width, bool isStudGrade)
{
    const auto row = std::find_if(SizeFactors.begin(), SizeFactors.end(),
                                  [width](const SizeFactorRow& r) { return r.Width == width; });
    if (row == SizeFactors.end()) {
        return std::nullopt;
    }
    return isStudGrade ? row->CFStud : row->CF;
}

}  // namespace kordavan
