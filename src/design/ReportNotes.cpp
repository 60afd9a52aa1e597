#include "design/ReportNotes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "core/NumberText.h"

namespace kordavan {

namespace {

bool IsGlulam(const MemberCandidate& member)
{
    return member.BreadthKey == BreadthKey::Glulam;
}

std::string_view ServiceText(bool repetitive, bool wet, bool incised)
{
    if (repetitive && wet) {
        return incised ? "Values modified for: Wet, Incised and Repetitive use    "
                       : "Values modified for: Wet and Repetitive use    ";
    }
    if (repetitive) {
        return incised ? "Values modified for: Incised, Repetitive use    "
                       : "Values modified for: Repetitive use    ";
    }
    if (wet) {
        return incised ? "Values modified for: Wet use, Incised  " : "Values modified for: Wet use  ";
    }
    return incised ? "Values modified for: Incised  " : "";
}

std::string_view SpacingText(RepetitiveSpacing spacing)
{
    switch (spacing) {
        case RepetitiveSpacing::Ctr12:
            return "Spacing @ 12 in. o.c.  ";
        case RepetitiveSpacing::Ctr16:
            return "Spacing @ 16 in. o.c.  ";
        case RepetitiveSpacing::Ctr19:
            return "Spacing @ 19.2 in. o.c.  ";
        case RepetitiveSpacing::Ctr24:
            return "Spacing @ 24 in. o.c.  ";
        case RepetitiveSpacing::None:
        case RepetitiveSpacing::Ctr0:
            break;
    }
    return {};
}

/// Pairs of breadth and smaller depth that no timber has.
struct ImpossibleSmaller {
    std::string_view Breadth;
    double MostDepth;  // nominal, in.
};

constexpr std::array ImpossibleSmallerSizes{
    ImpossibleSmaller{"14x", 12},
    ImpossibleSmaller{"12x", 10},
    ImpossibleSmaller{"10x", 8},
    ImpossibleSmaller{"8x", 6},
};

bool IsPossibleSmaller(const MemberCandidate& member)
{
    return std::none_of(
        ImpossibleSmallerSizes.begin(), ImpossibleSmallerSizes.end(), [&](const ImpossibleSmaller& row) {
            return row.Breadth == member.BreadthText && Val(member.NextSmallerDepthText) <= row.MostDepth;
        });
}

std::string RatioText(float ratio)
{
    constexpr float mostShown = 1000;
    return ratio > mostShown ? ">1000" : FormatNumber(ratio, "###0");
}

std::string ReactionPair(std::string_view first, std::string_view second, float r1, float r2)
{
    std::string text(r1 > 0 ? "Reactions: " : "Uplift @ ");
    text += first;
    text += FormatNumber(r1, "###0");
    text += second;
    text += FormatNumber(r2, "####");
    return text;
}

constexpr float LeastShownDeflection = 0.01F;  // in.
constexpr double CamberFactor = 1.5;

bool IsTooSmallToShow(float deflection)
{
    return deflection > 0 && deflection <= LeastShownDeflection;
}

std::string GlulamDeadDeflection(float deflection)
{
    if (IsTooSmallToShow(deflection)) {
        return " for creep)= is <0.01   Recommended Camber is < .015";
    }
    return " for creep)= is " + FormatNumber(deflection, "0.#0") + "   Recommended Camber is " +
           FormatNumber(Single(CamberFactor * deflection), "0.#0");
}

std::string SawnDeadDeflection(float deflection)
{
    constexpr float high = 0.26F;  // in.
    std::string text = " for creep)= ";
    text += IsTooSmallToShow(deflection) ? "<0.01" : FormatNumber(deflection, "0.#0");
    if (deflection > high) {
        text += " ...seems a bit high.";
    }
    return text;
}

}  // namespace

std::string DisplayChoiceText(const MemberCandidate& member)
{
    if (member.Round) {
        return PlainNumber(member.D) + " in. round  " + member.SpeciesText;
    }
    const std::string_view unit = member.Family == SizeFamily::CustomTimber ? " in. " : " ";
    std::string text = member.BreadthText + "  " + member.DepthText;
    text += unit;
    return text + member.SpeciesText;
}

std::string ModifiersText(const ReportSource& source)
{
    const BeamNumbers& beam = source.Beam;
    if (IsGlulam(source.Member.Candidate)) {
        return std::string(ServiceText(false, beam.Wet, false));
    }
    const bool isIncised = beam.Incised && source.Member.Candidate.BreadthKey != BreadthKey::Composite;
    std::string text(ServiceText(beam.Rep, beam.Wet, isIncised));
    text += SpacingText(SpacingInForce(source.Problem));
    return text;
}

std::string NoSplitText(const MemberTestResult& result)
{
    return result.NoSplits ? "Note:  This beam fails in shear unless specified to have NO SPLITS.  If this "
                             "option is acceptable to you, Kordavan will automatically adjust the Shear "
                             "Stress factor, Ch, from 1.0 to 2.0 and the Data Record will show this beam as "
                             "acceptable with NO SPLITS. Otherwise, you will need to select a different beam."
                           : std::string{};
}

std::string SmallChoiceText(const ReportSource& source)
{
    const MemberCandidate& member = source.Member.Candidate;
    if (!source.Member.Result.NextSmallerOk || !IsPossibleSmaller(member)) {
        return {};
    }
    std::string text = "Note: " + member.BreadthText + " ";
    text += member.NextSmallerDepthText;
    return text + " " + member.SpeciesText + " may also be acceptable.";
}

std::string DeadDeflectionText(const ReportSource& source)
{
    const MemberTestResult& result = source.Member.Result;
    std::string text = "Dead Load Deflection (x " + PlainNumber(result.CreepFactor);
    text += IsGlulam(source.Member.Candidate) ? GlulamDeadDeflection(result.DeadDeflection)
                                              : SawnDeadDeflection(result.DeadDeflection);
    if (source.Problem.Roofbutton) {
        text += "  DL adjusted for " + source.Problem.Pitchtext + ":12 pitch";
    }
    return text;
}

std::string LargeDeflectionText(const MemberTestResult& result)
{
    if (result.IsOverProductLimit) {
        return "ALERT! Timberstrand members 7-1/4 in. and smaller are limited to 5/16 in. deflection.  "
               "Please increase depth.";
    }
    constexpr float alertAbove = 0.33F;  // in.
    const std::array deflections{result.TotalDeflection, result.LiveDeflection, result.OverhangDeflection,
                                 result.OverhangLiveDeflection};
    const bool isLarge = std::any_of(deflections.begin(), deflections.end(),
                                     [](float deflection) { return std::abs(deflection) > alertAbove; });
    const bool anyFailed = result.Overall == StatusFail;
    return isLarge && !anyFailed ? "A Courtesy Alert:  Deflection is greater than 1/3 inch.  It's your "
                                   "judgement call if this is acceptable..."
                                 : std::string{};
}

std::string UnbalancedText(const BeamNumbers& beam)
{
    return beam.IsOverhanging() ? "Overhanging members should be checked for unbalanced live loads."
                                : std::string{};
}

std::string TotalDeflectionLine(const ReportSource& source)
{
    return "Total Load Deflection    Max: L / " + source.Problem.MaxDefl + "   Actual: L / " +
           RatioText(source.Analysis.TotalDeflRatio);
}

std::string LiveDeflectionLine(const ReportSource& source)
{
    if (source.Analysis.LiveDeflIn == 0) {
        return {};
    }
    return "Live Load Deflection     Max: L / " + source.Problem.LMaxDefl + "   Actual: L / " +
           RatioText(source.Analysis.LiveDeflRatio);
}

std::string ReactionsLine(const AnalysisResult& analysis)
{
    return ReactionPair("R1 TL = ", "   R2 TL = ", analysis.R1Total, analysis.R2Total);
}

std::string LiveReactionsLine(const AnalysisResult& analysis)
{
    if (analysis.R1Live == 0 && analysis.R2Live == 0) {
        return {};
    }
    return ReactionPair("R1 LL = ", "   R2 LL = ", analysis.R1Live, analysis.R2Live);
}

}  // namespace kordavan
