#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "core/SpeciesGroup.h"

namespace kordavan {

inline constexpr std::size_t PointSlotCount = 6;
inline constexpr std::size_t PartialSlotCount = 5;
inline constexpr std::size_t PlanQuarterCount = 4;

/// On an overhanging beam the slots from here on lie on the overhang and measure from R2.
inline constexpr std::size_t FirstOverhangPoint = 4;
inline constexpr std::size_t FirstOverhangPartial = 3;

using PointTexts = std::array<std::string, PointSlotCount>;
using PartialTexts = std::array<std::string, PartialSlotCount>;

/// The loads as entered: text, since a blank is not a zero. The total (dead plus live) comes first, its live
/// part has the same name with an L.
struct LoadSet {
    std::string UNIF;  // uniform load over the whole span, plf
    std::string LUNIF;
    PointTexts PT;  // point loads, lb
    PointTexts LPT;
    PointTexts DIS;    // their distance from R1, ft
    PartialTexts PAR;  // partial uniform loads, plf
    PartialTexts LPAR;
    PartialTexts BEGP;  // their start and end, ft
    PartialTexts ENDP;

    std::string IncTL;  // hip or valley roof load, psf
    std::string IncLL;
    std::string IncUnifTL;  // normal uniform load beside it, plf
    std::string IncUnifLL;
    std::string Trib1;  // plan sides of the hip or valley, ft
    std::string Trib2;
    std::array<bool, PlanQuarterCount> Areas{};  // plan quarters that load the member
    bool CalctheSpan = false;                    // the span is the plan's diagonal

    std::string Tribute;  // uniform load calculator: tributary length, ft
    std::string Text1;    // its live load, psf
    std::string Text2;    // its total load, psf
    PartialTexts PSF;     // partial load calculator: total and live, psf, and tributary length, ft
    PartialTexts LPSF;
    PartialTexts TribPSF;

    bool operator==(const LoadSet&) const = default;
};

enum class SupportCondition { SimpleSpan, Overhanging, HipValley, MultipleSpans };

/// Spacing of repetitive members; the choice stands only beside repetitive use.
enum class RepetitiveSpacing { None, Ctr0, Ctr12, Ctr16, Ctr19, Ctr24 };

enum class SteelFamily { W, S, C, Tube, Plate, DoublePlate, MC };

/// What beam is being sized, as entered. The names are those of the boxes on the criteria form.
struct BeamProblem {
    std::string Proj;
    std::string ID;
    std::string Descrip;

    std::string Span;              // ft; backspan of an overhanging beam, one span of several
    std::string UBLtext;           // unbraced length of the compression edge, ft; blank, 0 or "Any"
    std::string CantUBLtext;       // the same of the overhang
    std::string Dur = "1.00";      // load duration factor, 0.9 to 2.0
    std::string MaxDefl = "240";   // allowable total load deflection, span over this
    std::string LMaxDefl = "360";  // allowable live load deflection, span over this

    SupportCondition Support = SupportCondition::SimpleSpan;
    bool ThreeSpan = false;  // of multiple spans: three, else two

    bool Rep = false;
    RepetitiveSpacing Spacing = RepetitiveSpacing::None;
    bool Wet = false;
    bool Incised = false;
    bool Reducechk = false;   // shear is taken at the member's depth from the supports
    bool NoWeight = false;    // self-weight is left out
    bool Roofbutton = false;  // dead loads grow with the slope
    std::string Pitchtext;    // rise, in. per 12 in. of run
    bool INGRADE = true;

    SpeciesGroup Combo1 = SpeciesGroup::HemFirDouglasFir;
    SteelFamily Family = SteelFamily::W;
    bool ksi50 = false;
    std::string DepCombo = "All";  // greatest nominal depth of steel candidates, in.

    LoadSet Loads;

    bool operator==(const BeamProblem&) const = default;
};

/// Slots from First up to End.
struct SlotRange {
    std::size_t First;
    std::size_t End;
};

struct LoadSlots {
    SlotRange Points;
    SlotRange Partials;
};

inline constexpr LoadSlots AllSlots{{0, PointSlotCount}, {0, PartialSlotCount}};
inline constexpr LoadSlots BackspanSlots{{0, FirstOverhangPoint}, {0, FirstOverhangPartial}};
inline constexpr LoadSlots OverhangSlots{{FirstOverhangPoint, PointSlotCount},
                                         {FirstOverhangPartial, PartialSlotCount}};

/// The slots on the span between R1 and R2: all of them, but for the overhang's.
constexpr const LoadSlots& SlotsOnSpan(SupportCondition support)
{
    return support == SupportCondition::Overhanging ? BackspanSlots : AllSlots;
}

/// The spacing that counts: none without repetitive use.
constexpr RepetitiveSpacing SpacingInForce(const BeamProblem& problem)
{
    return problem.Rep ? problem.Spacing : RepetitiveSpacing::None;
}

}  // namespace kordavan
