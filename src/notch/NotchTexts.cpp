#include "notch/NotchTexts.h"

#include <array>

#include "core/NumberText.h"
#include "notch/NotchCheck.h"

namespace kordavan {

namespace {

constexpr std::string_view FigureFormat = "#0.0#";
constexpr std::string_view ReactionFormat = "###0";
constexpr std::string_view RatioFormat = "##0.0#";
constexpr std::string_view FactorFormat = "0.0##";

constexpr std::string_view RatioPasses = "OK  Fv ratio less than 100%";

/// What is said of a stress and of a reaction. The failing texts differ by a blank here and there.
struct ShearTexts {
    std::string_view CritLabel;
    std::string_view CritPsiLabel;
    std::string_view CritFormat;
    std::string_view RatioTitle;
    std::string_view RatioFails;
    std::string_view DepthFails;
};

constexpr ShearTexts StressTexts{"Allowable fv =",
                                 "psi",
                                 FigureFormat,
                                 "Ratio fv / Fv' =",
                                 "FAILS! Fv ratio greater than 100%",
                                 "FAILS!  Actual dn < Minimum dn "};
constexpr ShearTexts ReactionTexts{"Allowable Vr' =",
                                   "lbs",
                                   ReactionFormat,
                                   "Ratio V / Vr' =",
                                   "FAILS!  Fv ratio greater than 100%",
                                   "FAILS!  Actual dn < Minimum dn"};

/// In the order of MinimumDnRule.
struct MinimumTexts {
    std::string_view Formula;
    std::string_view Unit;
};

constexpr std::array MinimumRules{
    MinimumTexts{"3/4d = Minimum dn = ", " in."},    MinimumTexts{"3/5d = Minimum dn = ", " in."},
    MinimumTexts{"1/3d = Minimum dn = ", " in."},    MinimumTexts{"9/10d = Minimum dn = ", " in."},
    MinimumTexts{"d-3in. = Minimum dn = ", " in.."},
};

const ShearTexts& ShearTextsOf(const NotchResult& result)
{
    return result.ResultIsV ? ReactionTexts : StressTexts;
}

std::string Figure(double value)
{
    return FormatNumber(value, FigureFormat);
}

/// The figure, or an empty text where there is none.
std::string Figure(std::optional<double> value, std::string_view format = FigureFormat)
{
    return value ? FormatNumber(*value, format) : std::string{};
}

std::optional<double> CriticalFigure(const NotchResult& result)
{
    return result.ResultIsV ? result.AllowableV : result.CriticalFv;
}

/// The formula alone as long as there is no depth to work out.
std::string MinimumText(const NotchProblem& problem)
{
    const LeastNotchDepth least = FindLeastNotchDepth(problem);
    const MinimumTexts& rule = MinimumRules[static_cast<std::size_t>(least.Rule)];
    const std::string formula(rule.Formula);
    return problem.Depth > 0 ? formula + Figure(least.Dn) + std::string(rule.Unit) : formula;
}

std::string_view StatusText(const NotchResult& result)
{
    switch (result.Verdict) {
        case NotchVerdict::Passes:
            return RatioPasses;
        case NotchVerdict::RatioFails:
            return ShearTextsOf(result).RatioFails;
        case NotchVerdict::DepthFails:
            return ShearTextsOf(result).DepthFails;
        case NotchVerdict::NotComputed:
            break;
    }
    return {};
}

/// The run whose result is shown: the last one, or the one before where that has no result and there is one.
const NotchRun* ShownRun(const NotchSession& notch)
{
    if (notch.Run && !notch.Run->Result.IsComputed() && notch.Earlier) {
        return &*notch.Earlier;
    }
    return notch.Run ? &*notch.Run : nullptr;
}

std::string YearName(const NotchRun& run)
{
    return "NDS " + std::to_string(run.Problem.NdsYear);
}

std::string NoteOfRule(const NotchRun& last, const NotchRun& shown)
{
    if (last.Result.IsComputed()) {
        return {};
    }
    std::string note = YearName(last) + " has no rule here: nothing was computed.";
    if (shown.Result.IsComputed()) {
        note += " The result shown is of the run before, under " + YearName(shown) + ".";
    }
    return note;
}

std::string NoteOfDeepCut(const NotchRun& shown)
{
    const std::optional<double> area = TrueAreaOfDeepCut(shown.Problem);
    if (!area) {
        return {};
    }
    return "This log is cut below its centre. The area shown is more than the whole log has; what really "
           "remains is " +
           Figure(*area) + " in\u00B2. Such a notch is always below its minimum dn.";
}

std::string Joined(const std::string& first, const std::string& second)
{
    return first.empty() || second.empty() ? first + second : first + " " + second;
}

void DescribeRun(const NotchRun& run, NotchTexts& texts)
{
    const NotchResult& result = run.Result;
    texts.AdjFvLabel = Figure(result.AdjustedFv);
    texts.AnLabel = Figure(result.AreaAtNotch);
    if (!result.IsComputed()) {
        return;
    }
    const ShearTexts& shear = ShearTextsOf(result);
    texts.CritLabel = shear.CritLabel;
    texts.CriticalfvLabel = Figure(CriticalFigure(result), shear.CritFormat);
    texts.CritPsiLabel = shear.CritPsiLabel;
    texts.RatioTitle = shear.RatioTitle;
    texts.RatioLabel = Figure(result.RatioPercent, RatioFormat);
    texts.ShearStatusLabel = StatusText(result);
    texts.Fails = result.Verdict != NotchVerdict::Passes;
    constexpr double percent = 100;
    texts.Ratio = *result.RatioPercent / percent;
}

void DescribeTaper(const NotchProblem& problem, const NotchRun* run, NotchTexts& texts)
{
    const bool isTapered = problem.Notch == NotchType::Tapered;
    texts.MinSpanLabel = isTapered ? Figure(run ? run->Result.MinSpan : std::nullopt) : "n/a";
    texts.TaperAngleLabel = isTapered ? Figure(run ? run->Result.TaperAngle : std::nullopt) : "n/a";
}

bool IsOutdated(const NotchSession& notch)
{
    return notch.Run &&
           (notch.Run->Entry != notch.Entry || notch.Run->Problem.NdsYear != notch.Years.NdsYear);
}

}  // namespace

NotchTexts DescribeNotch(const NotchSession& notch)
{
    const NotchProblem problem = ReadNotchProblem(notch.Entry, notch.Years.NdsYear);
    const NotchRun* const shown = ShownRun(notch);
    NotchTexts texts;
    texts.WetUseLabel = "Wet Use Factor = " + FormatNumber(problem.Cm, FactorFormat);
    texts.YearLine = NotchYearText(notch.Years);
    texts.DnMinimum = MinimumText(problem);
    DescribeTaper(shown ? shown->Problem : problem, shown, texts);
    if (shown) {
        DescribeRun(*shown, texts);
        texts.NotchNote = Joined(NoteOfRule(*notch.Run, *shown), NoteOfDeepCut(*shown));
        texts.IsOutdated = IsOutdated(notch);
        texts.IsOfEarlierRun = !notch.Run->Result.IsComputed() && shown->Result.IsComputed();
    }
    if (!HasNotchType(notch.Entry)) {
        texts.CriticalfvLabel = "Error!";
    }
    return texts;
}

std::vector<NotchReportLine> NotchEntryLines(const NotchRun& run)
{
    const NotchProblem& problem = run.Problem;
    std::vector<NotchReportLine> lines{{"Shear V, no reductions", PlainNumber(problem.MaxV), "lb"},
                                       {"Breadth b", PlainNumber(problem.Breadth), "in."},
                                       {"Depth d", PlainNumber(problem.Depth), "in."},
                                       {"Base Fv", PlainNumber(problem.BaseFv), "psi"},
                                       {"Depth at notch dn", PlainNumber(problem.DepthAtNotch), "in."}};
    const bool isTapered = problem.Notch == NotchType::Tapered;
    if (problem.Notch == NotchType::Compression || (isTapered && problem.HasSetback)) {
        lines.push_back({"Setback e", PlainNumber(problem.NotchSetback), "in."});
    }
    if (isTapered) {
        const bool isPitch = RoofAngle(problem.RoofPitch) != problem.RoofPitch;
        lines.push_back({"Rafter depth rd", PlainNumber(problem.RafterDepth), "in."});
        lines.push_back({"Wall breadth t", PlainNumber(problem.WallBreadth), "in."});
        lines.push_back({"Roof pitch rp", PlainNumber(problem.RoofPitch), isPitch ? "in 12" : "degrees"});
    }
    return lines;
}

std::vector<NotchReportLine> NotchResultLines(const NotchRun& run)
{
    const NotchProblem& problem = run.Problem;
    const NotchResult& result = run.Result;
    std::vector<NotchReportLine> lines{{"Wet use factor Cm", FormatNumber(problem.Cm, FactorFormat), ""},
                                       {"Shear factor Ch", PlainNumber(static_cast<double>(problem.Ch)), ""},
                                       {"Duration of load Cd", FormatNumber(problem.Cd, FactorFormat), ""},
                                       {"Adjusted Fv'", Figure(result.AdjustedFv), "psi"},
                                       {"Area at notch An", Figure(result.AreaAtNotch), "in\u00B2"}};
    if (result.MinSpan) {
        lines.push_back({"Minimum span", Figure(result.MinSpan), "ft"});
        lines.push_back({"Roof angle", Figure(result.TaperAngle), "degrees"});
    }
    return lines;
}

}  // namespace kordavan
