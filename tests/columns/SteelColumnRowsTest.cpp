#include <gmock/gmock.h>

#include <cmath>
#include <numbers>
#include <set>
#include <string>

#include "columns/SteelColumn.h"
#include "core/NumberText.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::size_t TubesBegin = 14;
constexpr double FigurePrinted = 0.0045;  // three figures, the last a half out in each of two columns

/// A fraction such as "3/8", or the whole number and fraction of "3-1/2".
double Inches(std::string_view text)
{
    if (const std::size_t hyphen = text.find('-'); hyphen != std::string_view::npos) {
        return Val(text.substr(0, hyphen)) + Inches(text.substr(hyphen + 1));
    }
    const std::size_t slash = text.find('/');
    return slash == std::string_view::npos ? Val(text) : Val(text) / Val(text.substr(slash + 1));
}

double NominalSize(const SteelColumnRow& row)
{
    return Inches(row.Size.substr(0, row.Size.find(' ')));
}

TEST(SteelColumnRows, WeighAsMuchAsTheirArea)
{
    constexpr double steel = 490.0 / 144;  // lb of a foot and a square inch
    for (const SteelColumnRow& row : SteelColumnRows()) {
        EXPECT_NEAR(row.WeightPerFoot, steel * row.Area, FigurePrinted * row.WeightPerFoot)
            << row.Size << " " << row.TypeAndGrade;
    }
}

TEST(SteelColumnRows, OfPipeHaveTheRadiusOfTheirRing)
{
    // A = pi (D^2 - d^2) / 4 gives the inner diameter d; r = sqrt(D^2 + d^2) / 4.
    for (const SteelColumnRow& row : SteelColumnRows().first(TubesBegin)) {
        const double D = Val(row.OutsideDimension);
        const double innerSquared = D * D - 4 * row.Area / std::numbers::pi;
        EXPECT_NEAR(row.Radius, std::sqrt(D * D + innerSquared) / 4, FigurePrinted * row.Radius)
            << row.Size << " " << row.TypeAndGrade;
    }
}

/// A square whose corners are rounded by r. A corner piece taken off has the area (1 - pi/4) r^2, its
/// centroid lies (10 - 3 pi) / (12 - 3 pi) r from its edges.
struct RoundedSquare {
    RoundedSquare(double b, double r)
    {
        constexpr double pi = std::numbers::pi;
        const double piece = (1 - pi / 4) * r * r;
        const double arm = b / 2 - (10 - 3 * pi) / (12 - 3 * pi) * r;
        A = b * b - 4 * piece;
        I = b * b * b * b / 12 - 4 * piece * arm * arm;  // the piece about itself is too small to show
    }
    double A;
    double I;
};

TEST(SteelColumnRows, OfTubesAreWorkedOutFromTheirNames)
{
    for (const SteelColumnRow& row : SteelColumnRows().subspan(TubesBegin)) {
        const double b = NominalSize(row);
        const double t = Inches(row.Size.substr(row.Size.rfind(' ') + 1));
        const RoundedSquare outer(b, 2 * t);
        const RoundedSquare inner(b - 2 * t, t);
        const double A = outer.A - inner.A;
        EXPECT_NEAR(row.Area, A, FigurePrinted * A) << row.Size;
        EXPECT_NEAR(row.Radius, std::sqrt((outer.I - inner.I) / A), FigurePrinted * row.Radius) << row.Size;
        EXPECT_EQ(row.OutsideDimension, row.Size.substr(0, row.Size.rfind(" x "))) << row.Size;
    }
}

TEST(SteelColumnRows, OfPipeAreNamedByTheirNominalSize)
{
    for (const SteelColumnRow& row : SteelColumnRows().first(TubesBegin)) {
        // Pipe is half an inch wider than its name, from 5 in. on 9/16 and 5/8 in.
        const double beyond = Val(row.OutsideDimension) - NominalSize(row);
        EXPECT_NEAR(beyond, NominalSize(row) < 5 ? 0.5 : 0.594, 0.032) << row.Size;
    }
}

TEST(SteelColumnRows, GrowWithinTheirKindAndAreNoneTwice)
{
    std::set<std::string> seen;
    const SteelColumnRow* before = nullptr;
    for (const SteelColumnRow& row : SteelColumnRows()) {
        EXPECT_TRUE(seen.insert(std::string(row.Size) + std::string(row.TypeAndGrade)).second) << row.Size;
        if (before != nullptr && before->TypeAndGrade == row.TypeAndGrade) {
            EXPECT_GE(NominalSize(row), NominalSize(*before)) << row.Size;
            if (NominalSize(row) == NominalSize(*before)) {
                EXPECT_GT(row.Area, before->Area) << row.Size;
                EXPECT_LT(row.Radius, before->Radius) << row.Size;
            }
        }
        before = &row;
    }
    EXPECT_EQ(seen.size(), 27U);
}

TEST(SteelColumnRows, OfAClassAreHeavierAndLessSpreadThanThoseOfTheClassBefore)
{
    for (std::size_t k = 5; k < TubesBegin; ++k) {
        const SteelColumnRow& row = SteelColumnRows()[k];
        const std::size_t classBegin = k < 10 ? 0 : 5;
        for (const SteelColumnRow& lighter : SteelColumnRows().subspan(classBegin, 5)) {
            if (lighter.Size == row.Size) {
                EXPECT_GT(row.Area, lighter.Area) << row.Size;
                EXPECT_LT(row.Radius, lighter.Radius) << row.Size;
                EXPECT_EQ(row.OutsideDimension, lighter.OutsideDimension) << row.Size;
            }
        }
    }
}

TEST(SteelColumnRows, LackOneSizeAmongTheHeaviestPipes)
{
    const auto sizes = [](SteelColumnKind kind) {
        std::vector<std::string_view> names;
        const SteelColumnRange range = RowsOfKind(kind);
        for (const SteelColumnRow& row : SteelColumnRows().subspan(range.First, range.Count)) {
            names.push_back(row.Size);
        }
        return names;
    };
    const auto all =
        ElementsAre("3 in. diam.", "3-1/2 in. diam.", "4 in. diam.", "5 in. diam.", "6 in. diam.");
    EXPECT_THAT(sizes(SteelColumnKind::Standard), all);
    EXPECT_THAT(sizes(SteelColumnKind::ExtraStrong), all);
    EXPECT_THAT(sizes(SteelColumnKind::DoubleExtraStrong),
                ElementsAre("3 in. diam.", "4 in. diam.", "5 in. diam.", "6 in. diam."));
    EXPECT_EQ(sizes(SteelColumnKind::Tube).size(), 13U);
    EXPECT_FALSE(IsSteelTube(TubesBegin - 1));
    EXPECT_TRUE(IsSteelTube(TubesBegin));
}

TEST(SteelColumnSizeList, NamesEverySizeUnderItsGrade)
{
    EXPECT_THAT(
        SteelColumnGrades(),
        ElementsAre("Standard Wt. Pipe A501 or A53 Grade B", "Extra Strong Pipe A501 or A53 Grade B",
                    "Dbl Extra Strong Pipe A501 or A53 Grade B", "Structural Tube ASTM A500 Grade B"));
    const std::string list = SteelColumnSizeList();
    EXPECT_THAT(list,
                HasSubstr("\n\nDbl Extra Strong Pipe A501 or A53 Grade B:\n3 in. diam.,  4 in. diam.,  5 "
                          "in. diam.,  6 in. diam.\n\nStructural"));
    EXPECT_TRUE(list.ends_with("8 x 8 x 3/8,  8 x 8 x 1/2"));
}

}  // namespace
}  // namespace kordavan
