#include "design/CriteriaChecks.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "core/EntryRules.h"

namespace kordavan {

namespace {

using Finding = std::optional<Message>;
using Check = Finding (*)(const BeamProblem&, const BeamNumbers&);

Finding CheckSpan(const BeamProblem& /*problem*/, const BeamNumbers& beam)
{
    return beam.Span == 0 ? Finding(Refusal("Please enter a beam Span", "Span")) : std::nullopt;
}

Finding CheckUnbracedLength(const BeamProblem& /*problem*/, const BeamNumbers& beam)
{
    if (beam.Span >= beam.UBL) {
        return std::nullopt;
    }
    return Refusal(
        "The unbraced length may not be longer than the span.\n"
        "Either increase the span or decrease the unbraced length.",
        "UBLtext");
}

Finding CheckDuration(const BeamProblem& /*problem*/, const BeamNumbers& beam)
{
    if (beam.Dur == 0) {
        return Refusal(
            "The Duration of Load default for a normal load is 1.0\n"
            "It may not be zero or empty.  Please click the Duration of Load 'On Line Help' button, (the "
            "small gray square next to Duration of Load), or see Help.",
            "Dur");
    }
    if (beam.Dur > MostDuration || beam.Dur < LeastDuration) {
        return Refusal(
            "Your Duration of Load entry may be incorrect.  To choose an acceptable factor, click the "
            "Duration of Load 'On Line Help' button, (the small gray square next to Duration of Load), or "
            "see Help.",
            "Dur");
    }
    return std::nullopt;
}

Finding CheckPitch(const BeamProblem& problem, const BeamNumbers& /*beam*/)
{
    const bool missing = problem.Pitchtext.empty() || problem.Pitchtext == "0";
    if (!problem.Roofbutton || !missing) {
        return std::nullopt;
    }
    return Refusal(
        "The Slope Adjustment checkbox is checked. Please either uncheck the slope adjustment checkbox or "
        "enter a PITCH in inches so Kordavan can make the adjustment.",
        "Pitchtext");
}

Finding CheckPointLoads(const BeamProblem& /*problem*/, const BeamNumbers& beam)
{
    const LoadNumbers& loads = beam.Loads;
    for (std::size_t k = 0; k < SlotsOnSpan(beam.Support).Points.End; ++k) {
        const bool loaded = loads.PT[k] > 0 || loads.LPT[k] > 0;
        if (loaded && loads.DIS[k] == 0) {
            return Refusal("Please enter a Distance from the starting reaction for the Point Load",
                           BoxName("DIS", k));
        }
        if (beam.Span < loads.DIS[k]) {
            return Refusal(
                "Please enter a point load Distance from the starting reaction that is within the span of "
                "the beam.",
                BoxName("DIS", k));
        }
        if (!loaded && loads.DIS[k] > 0) {
            return Refusal(
                "Please enter a Load to accompany the distance already entered, or clear the distance value",
                BoxName("PT", k));
        }
    }
    return std::nullopt;
}

Finding CheckOverhangPointLoads(const BeamProblem& /*problem*/, const BeamNumbers& beam)
{
    const LoadNumbers& loads = beam.Loads;
    for (std::size_t k = SlotsOnSpan(beam.Support).Points.End; k < PointSlotCount; ++k) {
        if ((loads.PT[k] > 0 || loads.LPT[k] > 0) && loads.DIS[k] == 0) {
            return Refusal("Please enter a Distance for the overhang point load", BoxName("DIS", k));
        }
    }
    return std::nullopt;
}

bool IsPartialLoaded(const LoadNumbers& loads, std::size_t k)
{
    return loads.PAR[k] > 0 || loads.LPAR[k] > 0;
}

Finding CheckPartialLoads(const BeamProblem& /*problem*/, const BeamNumbers& beam)
{
    const LoadNumbers& loads = beam.Loads;
    for (std::size_t k = 0; k < PartialSlotCount; ++k) {
        const bool loaded = IsPartialLoaded(loads, k);
        if (loaded && loads.ENDP[k] == 0) {
            return Refusal("Please enter an END location for the Partial Uniform Load", BoxName("ENDP", k));
        }
        if (loaded && loads.BEGP[k] >= loads.ENDP[k]) {
            return Refusal("The END of a Partial Uniform load must be BEYOND the Beginning location.",
                           BoxName("ENDP", k));
        }
        if (!loaded && (loads.BEGP[k] > 0 || loads.ENDP[k] > 0)) {
            return Refusal(
                "Please enter a Partial Uniform Load or clear the beginning (and/or) ending distances",
                BoxName("PAR", k));
        }
    }
    return std::nullopt;
}

Finding CheckPartialEnds(const BeamProblem& /*problem*/, const BeamNumbers& beam)
{
    for (std::size_t k = 0; k < SlotsOnSpan(beam.Support).Partials.End; ++k) {
        if (IsPartialLoaded(beam.Loads, k) && beam.Span < beam.Loads.ENDP[k]) {
            return Refusal(
                "Please enter an End location (for the Partial Uniform Load) that is less than the Span",
                BoxName("ENDP", k));
        }
    }
    return std::nullopt;
}

Finding CheckPartialBeginnings(const BeamProblem& problem, const BeamNumbers& beam)
{
    for (std::size_t k = 0; k < PartialSlotCount; ++k) {
        if (problem.Loads.BEGP[k].empty() && beam.Loads.PAR[k] > 0) {
            return Refusal(
                "Please enter a ZERO for Partial Uniform loads beginning exactly on the starting Reaction",
                BoxName("BEGP", k));
        }
    }
    return std::nullopt;
}

bool HasNoLoads(const LoadNumbers& loads, const LoadSlots& slots)
{
    return AllZero(loads.PT, slots.Points) && AllZero(loads.LPT, slots.Points) &&
           AllZero(loads.PAR, slots.Partials) && AllZero(loads.LPAR, slots.Partials);
}

Finding CheckAnyLoad(const BeamProblem& /*problem*/, const BeamNumbers& beam)
{
    const bool noUniform = beam.Loads.UNIF == 0 && beam.Loads.LUNIF == 0;
    const bool missing =
        beam.IsContinuous() ? beam.Loads.UNIF == 0 : noUniform && HasNoLoads(beam.Loads, AllSlots);
    return missing
               ? Finding(Refusal("At least one load must be specified for Kordavan to calculate a beam size.",
                                 "Span"))
               : std::nullopt;
}

Finding CheckAnyOverhangLoad(const BeamProblem& /*problem*/, const BeamNumbers& beam)
{
    const bool missing = beam.IsOverhanging() && HasNoLoads(beam.Loads, OverhangSlots);
    return missing ? Finding(Refusal("At least one OVERHANGING load must be specified for Kordavan to "
                                     "calculate an overhanging beam.",
                                     "DIS[4]"))
                   : std::nullopt;
}

constexpr std::array<Check, 11> Checks{
    CheckSpan,         CheckUnbracedLength,  CheckDuration,
    CheckPitch,        CheckPointLoads,      CheckOverhangPointLoads,
    CheckPartialLoads, CheckPartialEnds,     CheckPartialBeginnings,
    CheckAnyLoad,      CheckAnyOverhangLoad,
};

}  // namespace

Finding CheckCriteria(const BeamProblem& problem, const BeamNumbers& beam)
{
    for (const Check check : Checks) {
        if (Finding finding = check(problem, beam)) {
            return finding;
        }
    }
    return std::nullopt;
}

Finding CheckDeflectionLimits(const BeamNumbers& beam)
{
    if (!(beam.MaxDefl > 0)) {
        return Refusal(
            "Please enter a Maximum Allowable TOTAL Load (DL + LL) Deflection value.\n"
            "See help or click the deflection 'On Line Help' button, (the small gray square next to 'Max "
            "Allowable Deflection'), if you need acceptable values.",
            "MaxDefl");
    }
    if (!(beam.LMaxDefl > 0) && HasLiveLoad(beam.Loads)) {
        return Refusal(
            "Please enter a Maximum Allowable LIVE Load Deflection value.\n"
            "See help or click the 'On Line Help' button, (the small gray square next to 'Max Allowable "
            "Deflection'), if you need acceptable values.",
            "LMaxDefl");
    }
    return std::nullopt;
}

}  // namespace kordavan
