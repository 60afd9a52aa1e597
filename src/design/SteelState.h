#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/BeamProblem.h"
#include "design/SteelBearing.h"
#include "design/SteelCriteria.h"

namespace kordavan {

/// What the test of one shape leaves for the report and the record.
struct SteelTestState {
    std::size_t RowIndex = 0;            // of the catalogue
    std::string_view ShapeName;          // empty before the first test
    float SelfWeight = 0;                // lb/ft; 0 when it is left out
    float MemberWeight = 0;              // lb, with the overhang
    float MaxMoment = 0;                 // in the span, ft-lb
    float CantileverMoment = 0;          // at the overhang's support, ft-lb
    float TotalLoad = 0;                 // lb
    float Reaction1 = 0;                 // lb
    float Reaction2 = 0;                 // lb
    float MaxShear = 0;                  // lb
    float UnbracedLength = 0;            // ft, as proposed
    bool LcApplies = false;              // 0.66 Fy is allowed
    bool LuApplies = false;              // 0.60 Fy is allowed
    std::string MaxUnbracedText;         // "Lc = 7.1 ft"; empty for tubes and plates
    float ActualS = 0;                   // in3
    float RequiredS = 0;                 // of the span moment, in3
    float FbAllowed = 0;                 // psi
    int Fy = 0;                          // psi
    int FvAllowed = 0;                   // psi
    float WebArea = 0;                   // depth times web thickness, in2
    float ShearStress = 0;               // psi
    float RequiredWebArea = 0;           // in2
    float ActualI = 0;                   // in4
    std::string_view ActualSizeBreadth;  // fractions of an inch
    std::string_view ActualSizeDepth;
    SteelBearing Bearing;
};

inline constexpr std::size_t SteelSlotCount = 16;
inline constexpr std::size_t SteelPageLines = 8;

/// A candidate that has passed, as a line of the selection screen shows it.
struct SteelSlot {
    std::string_view StlPick;    // the shape
    std::string_view StlDepLab;  // depth and breadth, in. as fractions
    std::string_view StlWidLab;
    std::string UBLlab;         // the greatest unbraced length
    std::string StlSecPerct;    // required section over actual
    std::string StlShearPerct;  // shear stress over allowed
};

/// The selection of a shape: what all are held to, and the candidates found.
struct SteelSelection {
    SteelCriteria Criteria;
    std::vector<SteelSlot> Slots;  // at most SteelSlotCount, in the order of the catalogue
    bool SecondPageShown = false;
    std::optional<BeamProblem> FoundFor;  // the entries that the candidates were found for
};

}  // namespace kordavan
