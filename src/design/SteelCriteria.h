#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/BeamProblem.h"

namespace kordavan {

/// Modulus of elasticity of steel, millions of psi.
inline constexpr float SteelE = 29.0F;

/// Allowable stresses of one grade and family, psi.
/// Source: AISC Manual, Allowable Stress Design, 9th edition, F1, F3, F4: 0.66 Fy on compact sections, 0.60
/// Fy else and on every tube, 0.40 Fy in shear.
struct SteelAllowables {
    int Fy = 0;
    float FbCompact = 0;
    std::int16_t FbLimited = 0;
    std::int16_t FvSteel = 0;
};

SteelAllowables AllowablesOf(SteelFamily family, bool ksi50);

/// The greatest nominal depths to choose from, in.
inline constexpr std::array<std::string_view, 11> SteelDepthChoices{"All", "4",  "5",  "6",  "8", "10",
                                                                    "12",  "14", "16", "18", "20"};

/// What all shapes of one selection are held to.
struct SteelCriteria {
    SteelFamily Family = SteelFamily::W;
    bool ksi50 = false;
    SteelAllowables Allowable;
    double ProposedUBL = 0;  // ft
    double DepthLimit = 0;   // in.; NoDepthLimit where every depth will do
};

/// Lets a shape of nominal depth pass a limit of that depth, in. On its own it stands for no limit at all.
inline constexpr double NoDepthLimit = 0.75;

SteelCriteria SteelCriteriaOf(const BeamProblem& problem);

/// The unbraced length that shapes are tested at, ft: the larger entry of an overhanging beam, else that of
/// the span; 0 for "Any" and on several spans, which are braced.
double ProposedUnbracedLength(const BeamProblem& problem);

/// True when the shape is not deeper than asked for.
bool IsWithinDepth(const SteelCriteria& criteria, double actualDepth);

/// An unbraced length that is neither typed nor tested.
inline constexpr std::string_view AnyUnbracedLength = "Any";

}  // namespace kordavan
