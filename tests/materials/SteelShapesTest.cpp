#include "materials/SteelShapes.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <tuple>
#include <vector>

#include "core/NumberText.h"
#include "core/SizeText.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::ElementsAre;

constexpr std::array AllFamilies{SteelFamily::W,    SteelFamily::S,     SteelFamily::C,
                                 SteelFamily::Tube, SteelFamily::Plate, SteelFamily::DoublePlate,
                                 SteelFamily::MC};

constexpr double PoundsPerSquareInch = 490.0 / 144;  // of a foot of steel

std::vector<SteelShape> SectionsOf(SteelFamily family)
{
    std::vector<SteelShape> sections;
    std::ranges::copy_if(ShapesOf(family), std::back_inserter(sections), HasSection);
    return sections;
}

/// Inches as the trade writes them, as a number: "13-1/2" is 13.5.
double Inches(std::string_view text)
{
    for (int sixteenths = 1; sixteenths <= 40 * SixteenthsPerInch; ++sixteenths) {
        if (InchesText(sixteenths).View() == text) {
            return sixteenths / static_cast<double>(SixteenthsPerInch);
        }
    }
    ADD_FAILURE() << "no fraction: " << text;
    return 0;
}

/// The parts of a name behind its family: "T 8x 6x 1/4" has 8, 6 and 1/4.
std::vector<std::string> PartsOf(const SteelShape& shape)
{
    std::string name(shape.ShapeName);
    while (name.ends_with(' ')) {
        name.pop_back();
    }
    if (name.starts_with("(2) ")) {
        name.erase(0, 4);
    }
    name.erase(0, name.find(' ') + 1);
    std::vector<std::string> parts;
    for (std::size_t x = name.find("x "); x != std::string::npos; x = name.find("x ")) {
        parts.push_back(name.substr(0, x));
        name.erase(0, x + 2);
    }
    parts.push_back(name);
    return parts;
}

double NominalDepth(const SteelShape& shape)
{
    return Inches(PartsOf(shape).front());
}

struct PrintedRow {
    std::size_t Row;
    SteelFamily Family;
    SteelShape Shape;
};

class PrintedRowTest : public testing::TestWithParam<PrintedRow> {};

TEST_P(PrintedRowTest, IsTheTables)
{
    const SteelShape& expected = GetParam().Shape;
    const SteelShape& shape = SteelShapes()[GetParam().Row];
    EXPECT_EQ(FindShape(GetParam().Family, expected.ShapeName), GetParam().Row);
    EXPECT_EQ(shape.ShapeName, expected.ShapeName);
    EXPECT_EQ(shape.ActualDepth, expected.ActualDepth);
    EXPECT_EQ(shape.DepthText, expected.DepthText);
    EXPECT_EQ(shape.WebThickness, expected.WebThickness);
    EXPECT_EQ(shape.BreadthText, expected.BreadthText);
    EXPECT_EQ(shape.WeightPerFoot, expected.WeightPerFoot);
    EXPECT_EQ(shape.MomentOfInertia, expected.MomentOfInertia);
    EXPECT_EQ(shape.SectionModulus, expected.SectionModulus);
    EXPECT_EQ(shape.Lc36, expected.Lc36);
    EXPECT_EQ(shape.Lu36, expected.Lu36);
    EXPECT_EQ(shape.FlangeThickness, expected.FlangeThickness);
    EXPECT_EQ(shape.KDistance, expected.KDistance);
    EXPECT_EQ(shape.Lc50, expected.Lc50);
    EXPECT_EQ(shape.Lu50, expected.Lu50);
}

// AISC Manual, Allowable Stress Design, 9th edition: dimensions and properties, and Lc and Lu of beam design;
// the tube and the plates by arithmetic.
// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Published, PrintedRowTest,
    testing::Values(
        PrintedRow{0, SteelFamily::W, {"W 6x 9", 5.9, "5-7/8", 0.17, "4", 9, 16.4, 5.56, 4.2, 6.7, 0.215, 0.5625, 3.5, 4.8}},
        PrintedRow{40, SteelFamily::W, {"W 14x 38", 14.1, "14-1/8", 0.31, "6-3/4", 38, 385, 54.6, 7.1, 11.5, 0.515, 1.0625, 6.1, 8.3}},
        PrintedRow{120, SteelFamily::W, {"W 24x 117", 24.26, "24-1/4", 0.55, "12-3/4", 117, 3540, 291, 13.5, 20.8, 0.85, 1.625, 11.5, 14.9}},
        PrintedRow{160, SteelFamily::S, {"S 6x 12.5", 6, "6", 0.232, "3-3/8", 12.5, 22.1, 7.37, 3.5, 9.2, 0.359, 0.88, 3, 6.6}},
        PrintedRow{200, SteelFamily::C, {"C 8x 11.5", 8, "8", 0.22, "2-1/4", 11.5, 32.6, 8.14, 0, 5.1, 0.39, 0.94, 0, 3.7}},
        PrintedRow{240, SteelFamily::Tube, {"T 7x 4x 1/4", 7, "7", 0.5, "4", 17.32, 32.3, 9.23, 0, 0, 0.25, 0.5, 0, 0}},
        PrintedRow{360, SteelFamily::Plate, {"PL 15-1/2x 1/4", 15.5, "15-1/2", 0.25, "1/4", 24.48, 77.58, 10.01, 0, 0, 0, 0, 0, 0}},
        PrintedRow{400, SteelFamily::DoublePlate, {"(2) PL 9x 3/4", 9, "9", 1.5, "3/4", 56.02, 91.13, 20.25, 0, 0, 0, 0, 0, 0}},
        PrintedRow{441, SteelFamily::MC, {"MC 7x 19.1", 7, "7", 0.352, "3-1/2", 19.1, 43.1, 12.3, 0, 11.4, 0.5, 1.125, 0, 8.2}}),
    CaseName);
// clang-format on

struct FamilyCase {
    SteelFamily Family;
    std::size_t First;
    std::size_t Last;
    std::size_t SectionCount;
    std::string_view FirstName;
    std::string_view LastName;
};

class FamilyTest : public testing::TestWithParam<FamilyCase> {};

TEST_P(FamilyTest, HasItsRows)
{
    const FamilyCase& c = GetParam();
    EXPECT_EQ(FamilyRange(c.Family).First, c.First);
    EXPECT_EQ(FamilyRange(c.Family).Last, c.Last);
    EXPECT_EQ(ShapesOf(c.Family).front().ShapeName, c.FirstName);
    EXPECT_EQ(ShapesOf(c.Family).back().ShapeName, c.LastName);
    EXPECT_EQ(SectionsOf(c.Family).size(), c.SectionCount);
}

INSTANTIATE_TEST_SUITE_P(
    Families, FamilyTest,
    testing::Values(FamilyCase{SteelFamily::W, 0, 153, 154, "W 6x 9", "W 4x 13"},
                    FamilyCase{SteelFamily::S, 154, 184, 31, "S 3x 5.7", "S 24x 121"},
                    FamilyCase{SteelFamily::C, 185, 213, 29, "C 3x 3.5", "C 15x 33.9"},
                    FamilyCase{SteelFamily::Tube, 214, 323, 109, "T 4x 2x 3/16", "T 20x 12x 1/2"},
                    FamilyCase{SteelFamily::Plate, 324, 377, 54, "PL 3x 1/4", "PL 19-1/2x 1"},
                    FamilyCase{SteelFamily::DoublePlate, 378, 431, 53, "(2) PL 3x 1/4", "(2) PL 19-1/2x 1"},
                    FamilyCase{SteelFamily::MC, 432, 467, 36, "MC 3x 7.1", "MC 18x 58"}),
    CaseName);

TEST(FindShape, TakesTheExactTextOfTheFamilyAlone)
{
    EXPECT_TRUE(FindShape(SteelFamily::W, "W 12x 30"));
    EXPECT_FALSE(FindShape(SteelFamily::W, "W12x30"));
    EXPECT_FALSE(FindShape(SteelFamily::W, "w 12x 30"));
    EXPECT_FALSE(FindShape(SteelFamily::W, "W 12x 30 "));
    EXPECT_FALSE(FindShape(SteelFamily::W, "S 8x 18.4"));
    EXPECT_TRUE(FindShape(SteelFamily::S, "S 8x 18.4"));
    EXPECT_FALSE(FindShape(SteelFamily::DoublePlate, "PL 9x 1/2"));
}

TEST(FindShape, TakesTheNameThatEndsInABlankWithAndWithoutIt)
{
    EXPECT_EQ(FindShape(SteelFamily::C, "C 6x 13 "), 196U);
    EXPECT_EQ(FindShape(SteelFamily::C, "C 6x 13"), 196U);
    EXPECT_FALSE(FindShape(SteelFamily::C, "C 6x 13  "));
    EXPECT_FALSE(FindShape(SteelFamily::C, "C 6x 1"));
}

TEST(SteelShapes, FillerRowsHaveNoSection)
{
    std::vector<std::size_t> fillers;
    for (std::size_t row = 0; row < SteelShapeCount; ++row) {
        if (!HasSection(SteelShapes()[row])) {
            fillers.push_back(row);
        }
    }
    EXPECT_THAT(fillers, ElementsAre(266U, 419U));
    EXPECT_EQ(FindShape(SteelFamily::Tube, "T 10x 4x 1/4"), 265U);
    EXPECT_EQ(FindShape(SteelFamily::Tube, "xx"), 266U);
    EXPECT_EQ(FindShape(SteelFamily::Tube, "T 10x 4x 5/16"), 267U);
    EXPECT_EQ(FindShape(SteelFamily::Tube, ""), std::nullopt);
    EXPECT_EQ(FindShape(SteelFamily::DoublePlate, ""), std::nullopt);
}

TEST(SteelShapes, OddCellsStayOdd)
{
    std::vector<std::string_view> withoutDepthText;
    std::vector<std::string_view> withoutLc50;
    for (const SteelFamily family : AllFamilies) {
        for (const SteelShape& shape : SectionsOf(family)) {
            if (shape.DepthText.empty()) {
                withoutDepthText.push_back(shape.ShapeName);
            }
            if (shape.Lc36 > 0 && shape.Lc50 == 0) {
                withoutLc50.push_back(shape.ShapeName);
            }
        }
    }
    EXPECT_THAT(withoutDepthText, ElementsAre("(2) PL 3x 1/4"));
    EXPECT_THAT(withoutLc50, ElementsAre("W 6x 12"));
}

TEST(SteelShapes, WeighWhatTheirNamesSay)
{
    for (const SteelFamily family : {SteelFamily::W, SteelFamily::S, SteelFamily::C, SteelFamily::MC}) {
        for (const SteelShape& shape : SectionsOf(family)) {
            EXPECT_EQ(shape.WeightPerFoot, Val(PartsOf(shape).back())) << shape.ShapeName;
        }
    }
}

TEST(SteelShapes, AreAboutAsDeepAsTheirNamesSay)
{
    for (const SteelFamily family : AllFamilies) {
        // The heavy shapes of a series are rolled apart: W 10x 112 is 11.36 in. deep, W 14x 211 15.72 in.
        const double share = family == SteelFamily::W ? 0.14 : 0.021;
        for (const SteelShape& shape : SectionsOf(family)) {
            EXPECT_NEAR(shape.ActualDepth, NominalDepth(shape), share * NominalDepth(shape))
                << shape.ShapeName;
        }
    }
}

TEST(SteelShapes, HaveTheirDepthAsAFraction)
{
    for (const SteelFamily family : AllFamilies) {
        for (const SteelShape& shape : SectionsOf(family)) {
            if (!shape.DepthText.empty()) {
                EXPECT_NEAR(Inches(shape.DepthText), shape.ActualDepth, 1.0 / 16 + 1e-9) << shape.ShapeName;
            }
        }
    }
}

TEST(SteelShapes, HaveTheModulusOfASymmetricSection)
{
    // S = 2 I / d. Both are printed to three figures, of plates to two decimals.
    for (const SteelFamily family : AllFamilies) {
        for (const SteelShape& shape : SectionsOf(family)) {
            const double tolerance = IsPlate(family) ? 0.01 : 0.012 * shape.SectionModulus;
            EXPECT_NEAR(shape.SectionModulus, 2 * shape.MomentOfInertia / shape.ActualDepth, tolerance)
                << shape.ShapeName;
        }
    }
}

struct Area {
    double A;
    double I;
};

/// A rectangle whose corners are rounded by r, which takes four corner pieces off. Such a piece has the area
/// (1 - pi/4) r^2, its centroid lies (10 - 3 pi) / (12 - 3 pi) r from its edges.
Area RoundedRectangle(double b, double h, double r)
{
    constexpr double pi = std::numbers::pi;
    const double piece = (1 - pi / 4) * r * r;
    const double centroid = (10 - 3 * pi) / (12 - 3 * pi) * r;
    // About its edge the square has r^4 / 3, the quarter circle, r away, (pi/16 + pi/4 - 2/3) r^4.
    const double aboutEdge = (1.0 / 3 - (5 * pi / 16 - 2.0 / 3)) * std::pow(r, 4);
    const double own = aboutEdge - piece * centroid * centroid;
    const double arm = h / 2 - centroid;
    return {.A = b * h - 4 * piece, .I = b * h * h * h / 12 - 4 * (own + piece * arm * arm)};
}

TEST(SteelShapes, TubesAreWorkedOutFromTheirNames)
{
    for (const SteelShape& shape : SectionsOf(SteelFamily::Tube)) {
        const std::vector<std::string> parts = PartsOf(shape);
        ASSERT_EQ(parts.size(), 3U) << shape.ShapeName;
        const double h = Inches(parts[0]);
        const double b = Inches(parts[1]);
        const double t = Inches(parts[2]);
        const Area outer = RoundedRectangle(b, h, 2 * t);
        const Area inner = RoundedRectangle(b - 2 * t, h - 2 * t, t);
        const double I = outer.I - inner.I;
        EXPECT_EQ(shape.ActualDepth, h) << shape.ShapeName;
        EXPECT_EQ(Inches(shape.BreadthText), b) << shape.ShapeName;
        EXPECT_EQ(shape.FlangeThickness, t) << shape.ShapeName;
        EXPECT_EQ(shape.WebThickness, 2 * t) << shape.ShapeName;
        EXPECT_EQ(shape.KDistance, 2 * t) << shape.ShapeName;
        EXPECT_NEAR(shape.WeightPerFoot, (outer.A - inner.A) * PoundsPerSquareInch, 0.00501)
            << shape.ShapeName;
        EXPECT_NEAR(shape.MomentOfInertia, I, 0.00501 * I) << shape.ShapeName;  // three figures
        EXPECT_NEAR(shape.SectionModulus, 2 * I / h, 0.00501 * 2 * I / h) << shape.ShapeName;
        EXPECT_EQ(shape.Lc36 + shape.Lu36 + shape.Lc50 + shape.Lu50, 0) << shape.ShapeName;
    }
}

/// Net depth of the lumber that a plate is bolted to, in.
double LumberDepth(double plateDepth)
{
    if (plateDepth > 11) {
        return plateDepth;
    }
    return plateDepth < 7 ? plateDepth + 0.5 : plateDepth + 0.25;
}

TEST(SteelShapes, PlatesAreRectanglesWithLumberBesideThem)
{
    constexpr double lumberPounds = 35.0 / 144;  // of a foot and a square inch
    constexpr double steelPounds = 3.4;
    for (const SteelFamily family : {SteelFamily::Plate, SteelFamily::DoublePlate}) {
        const int count = family == SteelFamily::Plate ? 1 : 2;
        for (const SteelShape& shape : SectionsOf(family)) {
            const double d = NominalDepth(shape);
            const double t = count * Inches(PartsOf(shape).back());
            const double lumber = LumberDepth(d) * 1.5 * (count + 1);
            EXPECT_EQ(shape.ActualDepth, d) << shape.ShapeName;
            EXPECT_EQ(shape.WebThickness, t) << shape.ShapeName;
            EXPECT_EQ(count * BreadthOf(shape), t) << shape.ShapeName;
            EXPECT_NEAR(shape.MomentOfInertia, t * d * d * d / 12, 0.00501) << shape.ShapeName;
            EXPECT_NEAR(shape.SectionModulus, t * d * d / 6, 0.00501) << shape.ShapeName;
            EXPECT_NEAR(shape.WeightPerFoot, steelPounds * d * t + lumberPounds * lumber, 0.00501)
                << shape.ShapeName;
        }
    }
}

struct LimitCase {
    SteelFamily Family;
    std::string_view Name;
    double bf;       // flange width, in.
    double dOverAf;  // 1/in.
    double rT;       // in.; 0 for channels
};

class UnbracedLimitTest : public testing::TestWithParam<LimitCase> {};

TEST_P(UnbracedLimitTest, FollowsItsFormula)
{
    const LimitCase& c = GetParam();
    const SteelShape& shape = SteelShapes()[FindShape(c.Family, c.Name).value()];
    const auto Lc = [&c](double Fy) {
        return c.rT == 0 ? 0 : std::min(76 * c.bf / std::sqrt(Fy), 20000 / (c.dOverAf * Fy)) / 12;
    };
    const auto Lu = [&c](double Fy) {
        return std::max(20000 / (c.dOverAf * Fy), c.rT * std::sqrt(102000 / Fy)) / 12;
    };
    constexpr double halfOfLastDigit = 0.0501;
    EXPECT_NEAR(shape.Lc36, Lc(36), halfOfLastDigit);
    EXPECT_NEAR(shape.Lu36, Lu(36), halfOfLastDigit);
    EXPECT_NEAR(shape.Lc50, Lc(50), halfOfLastDigit);
    EXPECT_NEAR(shape.Lu50, Lu(50), halfOfLastDigit);
}

// AISC Manual, Allowable Stress Design, 9th edition: bf, d/Af, rT; of channels 8 / (2.26 * 0.39) and
// 7 / (3.452 * 0.5).
INSTANTIATE_TEST_SUITE_P(Spots, UnbracedLimitTest,
                         testing::Values(LimitCase{SteelFamily::W, "W 14x 38", 6.77, 4.04, 1.77},
                                         LimitCase{SteelFamily::W, "W 24x 117", 12.8, 2.23, 3.35},
                                         LimitCase{SteelFamily::W, "W 8x 10", 3.94, 9.77, 0.99},
                                         LimitCase{SteelFamily::S, "S 6x 12.5", 3.332, 5.02, 0.83},
                                         LimitCase{SteelFamily::C, "C 8x 11.5", 2.26, 9.08, 0},
                                         LimitCase{SteelFamily::MC, "MC 7x 19.1", 3.452, 4.06, 0}),
                         CaseName);

TEST(SteelShapes, UnbracedLimitsKeepTheirOrder)
{
    for (const SteelFamily family : {SteelFamily::W, SteelFamily::S, SteelFamily::C, SteelFamily::MC}) {
        const bool isChannel = family == SteelFamily::C || family == SteelFamily::MC;
        for (const SteelShape& shape : SectionsOf(family)) {
            EXPECT_EQ(shape.Lc36 == 0, isChannel) << shape.ShapeName;
            EXPECT_LE(shape.Lc36, shape.Lu36) << shape.ShapeName;
            EXPECT_LE(shape.Lc50, shape.Lu50) << shape.ShapeName;
            EXPECT_LE(shape.Lc50, shape.Lc36) << shape.ShapeName;
            EXPECT_GT(shape.Lu50, 0) << shape.ShapeName;
            EXPECT_LT(shape.Lu50, shape.Lu36) << shape.ShapeName;
            if (isChannel) {
                EXPECT_NEAR(shape.Lu50, shape.Lu36 * 36 / 50, 0.1) << shape.ShapeName;
            }
        }
    }
}

using SortKey = std::tuple<double, double, double>;

SortKey KeyOf(SteelFamily family, const SteelShape& shape)
{
    if (family == SteelFamily::W) {
        return {shape.WeightPerFoot, 0, 0};
    }
    if (family == SteelFamily::Tube) {
        return {shape.ActualDepth, BreadthOf(shape), shape.FlangeThickness};
    }
    return {NominalDepth(shape), IsPlate(family) ? BreadthOf(shape) : shape.WeightPerFoot, 0};
}

TEST(SteelShapes, StandInOrderButForFour)
{
    std::vector<std::string_view> outOfOrder;
    for (const SteelFamily family : AllFamilies) {
        const std::vector<SteelShape> sections = SectionsOf(family);
        for (std::size_t row = 1; row < sections.size(); ++row) {
            if (KeyOf(family, sections[row]) < KeyOf(family, sections[row - 1])) {
                outOfOrder.push_back(sections[row].ShapeName);
            }
        }
    }
    EXPECT_THAT(outOfOrder, ElementsAre("W 8x 13", "W 10x 30", "W 4x 13", "MC 6x 15.3"));
}

TEST(BreadthOf, ReadsTheFraction)
{
    const auto breadth = [](SteelFamily family, std::string_view name) {
        return BreadthOf(SteelShapes()[FindShape(family, name).value()]);
    };
    EXPECT_EQ(breadth(SteelFamily::W, "W 14x 38"), 6.75);
    EXPECT_EQ(breadth(SteelFamily::W, "W 6x 9"), 4);
    EXPECT_EQ(breadth(SteelFamily::Plate, "PL 9x 5/8"), 0.625);
    EXPECT_EQ(breadth(SteelFamily::Plate, "PL 9x 1"), 1);
}

}  // namespace
}  // namespace kordavan
