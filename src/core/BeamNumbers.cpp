#include "core/BeamNumbers.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

#include "core/NumberText.h"

namespace kordavan {

namespace {

template <std::size_t Count>
std::array<double, Count> ReadAll(const std::array<std::string, Count>& texts)
{
    std::array<double, Count> values{};
    std::transform(texts.begin(), texts.end(), values.begin(),
                   [](const std::string& text) { return Val(text); });
    return values;
}

LoadNumbers ReadLoadNumbers(const LoadSet& loads)
{
    return {.UNIF = Val(loads.UNIF),
            .LUNIF = Val(loads.LUNIF),
            .PT = ReadAll(loads.PT),
            .LPT = ReadAll(loads.LPT),
            .DIS = ReadAll(loads.DIS),
            .PAR = ReadAll(loads.PAR),
            .LPAR = ReadAll(loads.LPAR),
            .BEGP = ReadAll(loads.BEGP),
            .ENDP = ReadAll(loads.ENDP),
            .IncUnifTL = Val(loads.IncUnifTL),
            .IncUnifLL = Val(loads.IncUnifLL)};
}

template <std::size_t Count>
bool AnyAboveZero(const std::array<double, Count>& values)
{
    return std::any_of(values.begin(), values.end(), [](double value) { return value > 0; });
}

template <std::size_t Count>
bool AllFinite(const std::array<double, Count>& values)
{
    return std::all_of(values.begin(), values.end(),
                       [](double value) { return std::isfinite(Single(value)); });
}

}  // namespace

BeamNumbers ReadBeamNumbers(const BeamProblem& problem)
{
    BeamNumbers beam;
    beam.Support = problem.Support;
    beam.ThreeSpan = problem.ThreeSpan;
    beam.Span = Val(problem.Span);
    beam.Dur = Val(problem.Dur);
    beam.MaxDefl = Val(problem.MaxDefl);
    beam.LMaxDefl = Val(problem.LMaxDefl);
    beam.Loads = ReadLoadNumbers(problem.Loads);
    if (!beam.IsContinuous()) {
        beam.UBL = Val(problem.UBLtext);
        beam.CantUBL = Val(problem.CantUBLtext);
    }
    beam.Overhang = beam.IsOverhanging() ? OverhangLength(beam.Loads) : 0;
    beam.Group = problem.Combo1;
    beam.Rep = problem.Rep;
    beam.Wet = problem.Wet;
    beam.Incised = problem.Incised;
    beam.ReduceShear = problem.Reducechk;
    beam.NoWeight = problem.NoWeight;
    beam.InGrade = problem.INGRADE;
    return beam;
}

float RafterSlopeFactor(const BeamProblem& problem)
{
    if (!problem.Roofbutton) {
        return 1;
    }
    constexpr double runIn = 12;
    return Single(1 / std::cos(std::atan(Val(problem.Pitchtext) / runIn)));
}

double OverhangLength(const LoadNumbers& loads)
{
    return std::max({loads.DIS[4], loads.DIS[5], loads.ENDP[3], loads.ENDP[4]});
}

bool HasLiveLoad(const LoadNumbers& loads)
{
    return loads.LUNIF > 0 || AnyAboveZero(loads.LPT) || AnyAboveZero(loads.LPAR);
}

bool IsFinite(const LoadNumbers& loads)
{
    return AllFinite(std::array{loads.UNIF, loads.LUNIF, loads.IncUnifTL, loads.IncUnifLL}) &&
           AllFinite(loads.PT) && AllFinite(loads.LPT) && AllFinite(loads.PAR) && AllFinite(loads.LPAR);
}

}  // namespace kordavan
