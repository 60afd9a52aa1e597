#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "core/BeamProblem.h"
#include "core/NdsEdition.h"

namespace kordavan {

inline constexpr double InchesPerFoot = 12;
inline constexpr double PsiPerMillion = 1000000;

using PointValues = std::array<double, PointSlotCount>;
using PartialValues = std::array<double, PartialSlotCount>;

/// The loads of a LoadSet as numbers, under the same names and in the same units; a blank is 0.
struct LoadNumbers {
    double UNIF = 0;
    double LUNIF = 0;
    PointValues PT{};
    PointValues LPT{};
    PointValues DIS{};
    PartialValues PAR{};
    PartialValues LPAR{};
    PartialValues BEGP{};
    PartialValues ENDP{};
    double IncUnifTL = 0;
    double IncUnifLL = 0;
};

/// A beam as the engine computes on it: the entries of a BeamProblem, read once.
struct BeamNumbers {
    SupportCondition Support = SupportCondition::SimpleSpan;
    bool ThreeSpan = false;
    double Span = 0;      // ft
    double UBL = 0;       // unbraced length of the span, ft
    double CantUBL = 0;   // unbraced length of the overhang, ft
    double Overhang = 0;  // up to its farthest load, ft; 0 without one
    double Dur = 1;       // load duration factor
    double MaxDefl = 0;   // span over this is the total load deflection allowed
    double LMaxDefl = 0;  // the same of the live load
    LoadNumbers Loads;

    SpeciesGroup Group = SpeciesGroup::HemFirDouglasFir;
    Edition Nds = Edition::Nds2018;
    bool Rep = false;
    bool Wet = false;
    bool Incised = false;
    bool ReduceShear = false;
    bool NoWeight = false;
    bool InGrade = true;

    float SlopeFactor = 1;    // length along the slope over horizontal length
    float DensityFactor = 0;  // self-weight, plf per in2 of section

    float IncreasingTotalLoad = 0;  // whole weight of the hip or valley load, lb
    float IncreasingLiveLoad = 0;

    bool IsSteel() const { return Group == SpeciesGroup::Steel; }
    bool IsOverhanging() const { return Support == SupportCondition::Overhanging; }
    bool IsContinuous() const { return Support == SupportCondition::MultipleSpans; }
    int SpanCount() const { return !IsContinuous() ? 1 : ThreeSpan ? 3 : 2; }
    double Length() const { return SpanCount() * Span + Overhang; }  // ft, all spans and the overhang
};

/// Reads the entries of the problem; edition, slope, density and increasing loads are the caller's to set. A
/// continuous beam is braced whatever its boxes hold.
BeamNumbers ReadBeamNumbers(const BeamProblem& problem);

/// Length along the slope over horizontal length: 1 / cos(atan(rise/12)), or 1 without slope adjustment.
float RafterSlopeFactor(const BeamProblem& problem);

/// Overhang length: the largest of DIS[4], DIS[5], ENDP[3] and ENDP[4], ft.
double OverhangLength(const LoadNumbers& loads);

/// True when any live load is entered.
bool HasLiveLoad(const LoadNumbers& loads);

/// False when a load is beyond a 32-bit float.
bool IsFinite(const LoadNumbers& loads);

/// True when every value in the range of slots is 0.
template <typename Values>
bool AllZero(const Values& values, SlotRange slots)
{
    return std::all_of(values.begin() + static_cast<std::ptrdiff_t>(slots.First),
                       values.begin() + static_cast<std::ptrdiff_t>(slots.End),
                       [](double value) { return value == 0; });
}

}  // namespace kordavan
