#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "core/NdsEdition.h"
#include "materials/Sizes.h"

namespace kordavan {

/// Reference design values of one species and grade in one size class.
struct SpeciesRow {
    BreadthKey Key;
    std::string_view SpeciesName;
    int Fb;         // bending, psi
    int FvCurrent;  // shear, psi, NDS 2001 and later
    int Fv1997;     // shear, psi, NDS 1997, which takes the shear stress factor Ch besides
    int FcPerp;     // compression perpendicular to grain, psi
    float E;        // modulus of elasticity, millions of psi
};

inline constexpr std::size_t SpeciesRowCount = 100;

std::span<const SpeciesRow, SpeciesRowCount> SpeciesRows();

struct DesignValues {
    float Fb = 0;             // psi
    float Fv = 0;             // psi
    std::int16_t FcPerp = 0;  // psi
    float E = 0;              // millions of psi
};

/// The row of a species and grade in a size class; the name must be written exactly so.
const SpeciesRow* FindSpecies(BreadthKey key, std::string_view species);

/// The same for a species named as in any class: Southern Pine timbers bear names of their own, "So. Pine #2
/// SR" beside "So. Pine #2".
const SpeciesRow* FindSpeciesForBreadth(BreadthKey key, std::string_view species);

struct NetSize {
    double B;  // in.
    double D;  // in.
};

/// Reference values of a row for a member of this size: the shear value of the edition, the Posts and Timbers
/// bending value of timbers near square, 650 psi in compression for glulams deeper than 15 in.
DesignValues ReferenceValues(const SpeciesRow& row, Edition edition, NetSize size);

/// E of So. Pine #2 and #1 since the values of 2012, millions of psi; none for every other species.
std::optional<float> LoweredSouthernPineE(std::string_view species);

/// Posts and Timbers bending value of a species and grade, psi; none where Beams and Stringers values serve.
std::optional<int> PostsAndTimbersFb(std::string_view species);

/// A timber no more than 2 in. deeper than broad, which is graded as Posts and Timbers.
bool IsPostOrTimber(NetSize size);

}  // namespace kordavan
