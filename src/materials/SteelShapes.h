#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "core/BeamProblem.h"

namespace kordavan {

/// One section of the catalogue. What a family does not have is 0 or empty.
struct SteelShape {
    std::string_view ShapeName;    // the key: "W 8x 18", "T 8x 6x 1/4", "(2) PL 9x 5/8"
    double ActualDepth = 0;        // d, in.
    std::string_view DepthText;    // the same as a fraction
    double WebThickness = 0;       // tw, in.; both walls of a tube, both plates of a pair
    std::string_view BreadthText;  // flange width, or thickness of one plate, in. as a fraction
    double WeightPerFoot = 0;      // lb/ft; a plate with the lumber beside it
    double MomentOfInertia = 0;    // I, in4
    double SectionModulus = 0;     // S, in3
    double Lc36 = 0;               // greatest unbraced length at 0.66 Fy, 36 ksi, ft
    double Lu36 = 0;               // greatest unbraced length at 0.60 Fy, 36 ksi, ft
    double FlangeThickness = 0;    // tf, in.; the wall of a tube
    double KDistance = 0;          // k, in.; twice the wall of a tube
    double Lc50 = 0;               // the limits at 50 ksi, ft
    double Lu50 = 0;
};

inline constexpr std::size_t SteelShapeCount = 468;

std::span<const SteelShape, SteelShapeCount> SteelShapes();

/// The rows of a family, from First to Last.
struct SteelFamilyRange {
    std::size_t First;
    std::size_t Last;
};

SteelFamilyRange FamilyRange(SteelFamily family);

std::span<const SteelShape> ShapesOf(SteelFamily family);

/// Single or double flitch plates.
constexpr bool IsPlate(SteelFamily family)
{
    return family == SteelFamily::Plate || family == SteelFamily::DoublePlate;
}

/// The row of a shape within its family. The name must be written exactly so; a blank that the catalogue has
/// at the end of a name may be left out.
std::optional<std::size_t> FindShape(SteelFamily family, std::string_view name);

/// False for the rows that only fill the catalogue.
bool HasSection(const SteelShape& shape);

/// The flange width, or the thickness of one plate, in inches.
double BreadthOf(const SteelShape& shape);

}  // namespace kordavan
