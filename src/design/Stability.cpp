#include "design/Stability.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>

#include "core/NumberText.h"

namespace kordavan {

namespace {

struct StabilityTexts {
    std::string_view LeSelection;
    std::string_view RbZero;
    std::string_view CantLeSelection;
    std::string_view OverhangMaximum;
    std::string_view CantRbZero;
};

constexpr StabilityTexts CandidateTexts{
    .LeSelection = "Error at Le selection, Stability calc",
    .RbZero = "Error at Stability Calc: Rb = zero",
    .CantLeSelection = "Error at Cant Le selection, Stability calc",
    .OverhangMaximum = "Error at Stability Overhang Maximum",
    .CantRbZero = "Error at Stability OH Calc: CantRb = zero",
};

constexpr StabilityTexts SmallerTexts{
    .LeSelection = "Error at Le selection, Stability smaller calc",
    .RbZero = "Error at Stability Smaller Calc: Rbu = zero",
    .CantLeSelection = "Error at Cant Le selection, Stability smaller calc",
    .OverhangMaximum = "Error at Stability Smaller Overhang Maximum",
    .CantRbZero = "Error at Stability Smaller OH Calc: CantRbu = zero",
};

constexpr std::string_view UnknownEdition = "NDS Version not found for stability calc";

/// Band of lu/d, by which the effective length is chosen.
enum class LengthBand { LuShort, LuMedium, LuLong };

std::optional<LengthBand> BandOf(double lu, double d)
{
    constexpr float mostShort = 7;
    constexpr float mostMedium = 14.3F;
    const float ratio = Single(lu / d);
    if (ratio <= mostShort) {
        return LengthBand::LuShort;
    }
    if (ratio <= mostMedium) {
        return LengthBand::LuMedium;
    }
    return ratio > mostMedium ? std::optional(LengthBand::LuLong) : std::nullopt;
}

/// Effective length Le = a lu, or a lu + 3 d. Source: NDS Table 3.3.3.
struct EffectiveLength {
    double ShortFactor;
    double MediumFactor;
    std::optional<double> LongFactor;  // without one the medium band's rule goes on
};

constexpr EffectiveLength SpanUniform{2.06, 1.63, std::nullopt};
constexpr EffectiveLength OverhangUniform{1.33, 0.9, std::nullopt};
constexpr EffectiveLength OverhangPoint{1.87, 1.44, std::nullopt};
constexpr EffectiveLength AnyOtherLoad{2.06, 1.63, 1.84};

double LengthOf(const EffectiveLength& rule, LengthBand band, double lu, double d)
{
    if (band == LengthBand::LuShort) {
        return rule.ShortFactor * lu;
    }
    if (band == LengthBand::LuLong && rule.LongFactor) {
        return *rule.LongFactor * lu;
    }
    return rule.MediumFactor * lu + 3 * d;
}

const EffectiveLength& SpanRule(const LoadNumbers& loads)
{
    const bool uniformOnly =
        loads.UNIF != 0 && AllZero(loads.PT, AllSlots.Points) && AllZero(loads.PAR, AllSlots.Partials);
    return uniformOnly ? SpanUniform : AnyOtherLoad;
}

bool IsUniformOverhang(const LoadNumbers& loads, double overhang)
{
    if (loads.PT[4] != 0 || loads.PT[5] != 0) {
        return false;
    }
    const bool both = loads.PAR[3] != 0 && loads.PAR[4] != 0;
    if (both) {
        return loads.ENDP[3] == loads.ENDP[4] && loads.ENDP[3] == overhang;
    }
    return loads.PAR[3] != 0 || loads.PAR[4] != 0;
}

bool IsPointOverhang(const LoadNumbers& loads)
{
    if (loads.PAR[3] != 0 || loads.PAR[4] != 0) {
        return false;
    }
    const bool both = loads.PT[4] != 0 && loads.PT[5] != 0;
    return both ? loads.DIS[4] == loads.DIS[5] : loads.PT[4] != 0 || loads.PT[5] != 0;
}

/// NDS equation 3.3-6; never above 1.
float StabilityFactor(double A)
{
    const double half = (1 + A) / 1.9;
    return Single(std::min(half - std::sqrt(half * half - A / 0.95), 1.0));
}

void ApplyBuckling(const StabilityInput& input, double coefficient, double Rb, SlendernessResult& result)
{
    result.KbE = Single(coefficient);
    result.FbE = Single(input.EAdj * PsiPerMillion * coefficient / (Rb * Rb));
    result.FbEOverFbStar = Single(result.FbE / input.FbStar);
    result.CL = StabilityFactor(result.FbE / input.FbStar);
}

constexpr double MostRb = 50;

class StabilityCalculation {
public:
    StabilityCalculation(const BeamNumbers& numbers, const StabilityInput& candidate, UserPort& port)
        : beam(numbers), input(candidate), user(port)
    {
    }

    StabilityResult Run()
    {
        if (beam.Nds == Edition::None) {
            user.Tell(Alert(UnknownEdition));
            return {};
        }
        if (beam.UBL != 0 && !RunSpan()) {
            return result;
        }
        if (beam.IsOverhanging() && beam.CantUBL != 0) {
            RunOverhang();
        }
        return result;
    }

private:
    bool RunSpan()
    {
        SlendernessResult& span = result.Span;
        if (!MeasureSlenderness(beam.UBL, SpanRule(beam.Loads), texts.LeSelection, span)) {
            return false;
        }
        span.RbOver50 = span.Rb > MostRb;
        if (span.Rb == 0) {
            user.Tell(Alert(texts.RbZero));
        }
        ApplyBuckling(input, BucklingCoefficient(IsPre2005(beam.Nds), input.Class), span.Rb, span);
        return true;
    }

    void RunOverhang()
    {
        SlendernessResult& overhang = result.Overhang;
        if (!MeasureSlenderness(beam.CantUBL, OverhangRule(), texts.CantLeSelection, overhang)) {
            return;
        }
        overhang.RbOver50 = overhang.Rb >= MostRb;
        if (overhang.Rb == 0) {
            user.Tell(Alert(texts.CantRbZero));
        }
        ApplyBuckling(input, BucklingCoefficient(IsPre2005(beam.Nds), input.Class), OverhangBucklingRb(),
                      overhang);
    }

    bool MeasureSlenderness(double unbracedFt, const EffectiveLength& rule, std::string_view failure,
                            SlendernessResult& slenderness)
    {
        const auto [b, d] = input.Size;
        const double lu = unbracedFt * InchesPerFoot;
        const std::optional<LengthBand> band = BandOf(lu, d);
        if (!band) {
            user.Tell(Alert(failure));
            return false;
        }
        const double Le = LengthOf(rule, *band, lu, d);
        slenderness.LuIn = Single(lu);
        slenderness.LeIn = Single(Le);
        slenderness.Rb = std::sqrt(Le * d / (b * b));
        return true;
    }

    const EffectiveLength& OverhangRule()
    {
        const bool uniform = IsUniformOverhang(beam.Loads, beam.Overhang);
        const bool point = IsPointOverhang(beam.Loads);
        if (uniform && point) {
            user.Tell(Alert(texts.OverhangMaximum));
        }
        if (uniform) {
            return OverhangUniform;
        }
        return point ? OverhangPoint : AnyOtherLoad;
    }

    /// Machine graded lumber takes the span's ratio from NDS 2005 on; where the span is braced and has none,
    /// its own.
    double OverhangBucklingRb() const
    {
        const bool takesSpan = input.Class == BucklingClass::MachineGraded && !IsPre2005(beam.Nds);
        return takesSpan && result.Span.Rb > 0 ? result.Span.Rb : result.Overhang.Rb;
    }

    const BeamNumbers& beam;
    const StabilityInput& input;
    UserPort& user;
    const StabilityTexts& texts = input.Run == StabilityRun::Candidate ? CandidateTexts : SmallerTexts;
    StabilityResult result;
};

bool IsExempt(const BeamNumbers& beam, NetSize size)
{
    return (beam.UBL == 0 && beam.CantUBL == 0) || size.B == size.D || beam.IsContinuous();
}

}  // namespace

double BucklingCoefficient(bool isPre2005, BucklingClass material)
{
    if (isPre2005) {
        return material == BucklingClass::Glulam ? 0.61 : 0.439;
    }
    constexpr double slenderness = 1.2;
    switch (material) {
        case BucklingClass::Glulam:
            return slenderness * 0.5285;
        case BucklingClass::MachineGraded:
            return slenderness * 0.4674;
        case BucklingClass::VisuallyGraded:
            return slenderness * VisualEminOverE;
    }
    return 0;
}

StabilityResult ComputeStability(const BeamNumbers& beam, const StabilityInput& input, UserPort& user)
{
    return IsExempt(beam, input.Size) ? StabilityResult{} : StabilityCalculation(beam, input, user).Run();
}

}  // namespace kordavan
