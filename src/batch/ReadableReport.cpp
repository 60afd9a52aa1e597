#include "batch/ReadableReport.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <exception>
#include <string>

#include "batch/BeamRun.h"
#include "batch/RequestLine.h"
#include "core/NumberText.h"
#include "design/OverhangTip.h"
#include "design/TestReport.h"

namespace kordavan {

namespace {

constexpr std::size_t LineWidth = 100;
constexpr std::size_t CaptionWidth = 14;

class ReportText {
public:
    explicit ReportText(rapidjson::StringBuffer& buffer) : out(buffer) {}

    void Line(std::string_view text)
    {
        Put(text);
        out.Put('\n');
    }

    /// A caption with its text beside it, wrapped between words.
    void Captioned(std::string_view caption, std::string_view text)
    {
        if (text.empty()) {
            return;
        }
        std::string margin(caption);
        margin.resize(CaptionWidth, ' ');
        while (!text.empty()) {
            const std::string_view part = FirstPart(text, LineWidth - CaptionWidth);
            Put(margin);
            Line(part);
            text.remove_prefix(part.size());
            text.remove_prefix(std::min(text.find_first_not_of(" \n"), text.size()));
            margin.assign(CaptionWidth, ' ');
        }
    }

    void Row(std::string_view caption, const std::array<std::string_view, 4>& cells)
    {
        constexpr std::size_t captionWidth = 26;
        constexpr std::size_t cellWidth = 12;
        std::string line(caption);
        line.resize(captionWidth, ' ');
        for (const std::string_view cell : cells) {
            line.append(cellWidth - std::min(cellWidth, cell.size()), ' ');
            line += cell;
        }
        Line(line);
    }

private:
    /// As many whole words as fit, up to a line break.
    static std::string_view FirstPart(std::string_view text, std::size_t width)
    {
        const std::string_view line = text.substr(0, text.find('\n'));
        if (line.size() <= width) {
            return line;
        }
        const std::size_t blank = line.rfind(' ', width);
        return line.substr(0, blank == std::string_view::npos || blank == 0 ? width : blank);
    }

    void Put(std::string_view text) { std::copy(text.begin(), text.end(), out.Push(text.size())); }

    rapidjson::StringBuffer& out;
};

std::string_view SupportText(const BeamNumbers& beam)
{
    switch (beam.Support) {
        case SupportCondition::SimpleSpan:
            return "simple span";
        case SupportCondition::Overhanging:
            return "backspan, with an overhang";
        case SupportCondition::HipValley:
            return "hip or valley";
        case SupportCondition::MultipleSpans:
            return beam.ThreeSpan ? "each of three equal spans" : "each of two equal spans";
    }
    return {};
}

/// One check of the report, to find the one that governs.
struct CheckRow {
    std::string_view Caption;
    std::string_view Unit;
    std::string_view Critical;
    std::string_view Actual;
    std::string_view Status;
    std::string_view Percent;
};

std::array<CheckRow, 6> ChecksOf(const TestReport& report)
{
    return {
        {{report.Label7, "in3", report.SectionReq, report.SectionProp, report.SecStatus, report.SecPercent},
         {report.Label8, "in2", report.ShearReq, report.ShearProp, report.ShearStatus, report.HorPercent},
         {report.Label9, "in.", report.DeflReq, report.DeflProp, report.DeflStatus, report.DeflPercent},
         {report.Label12, "in.", report.LDeflReq, report.LDeflProp, report.LDeflStatus, report.LDeflPercent},
         {report.Label13, "in.", report.OHDeflReq, report.OHDeflProp, report.OHDeflStatus,
          report.OHDeflPercent},
         {report.Label14, "in.", report.OHLDeflReq, report.OHLDeflProp, report.OHLDeflStatus,
          report.OHLDeflPercent}}};
}

double Ratio(double used, double allowed)
{
    return allowed == 0 ? 0 : std::abs(used) / allowed;
}

/// Unrounded ratios in the order of the rows.
std::array<double, 6> RatiosOf(const MemberTestResult& result)
{
    return {Ratio(result.SectionReq, result.SectionProp),
            Ratio(result.ActualShearStress, result.FvAdj),
            Ratio(result.TotalDeflection, result.TotalDeflectionAllowed),
            Ratio(result.LiveDeflection, result.LiveDeflectionAllowed),
            Ratio(result.OverhangDeflection, result.OverhangDeflectionAllowed),
            Ratio(result.OverhangLiveDeflection, result.OverhangLiveDeflectionAllowed)};
}

std::string VerdictText(const MemberTestResult& result, const std::array<CheckRow, 6>& checks)
{
    const std::array<double, 6> ratios = RatiosOf(result);
    const auto largest =
        static_cast<std::size_t>(std::max_element(ratios.begin(), ratios.end()) - ratios.begin());
    const CheckRow& governing = checks[largest];
    const std::string_view status = result.Overall.empty() ? "OK with NO SPLITS" : result.Overall;
    std::string text(status);
    text += ", governed by ";
    text += governing.Caption;
    text += " at ";
    text += governing.Percent;
    return text;
}

void WriteChecks(const std::array<CheckRow, 6>& checks, ReportText& text)
{
    text.Row("Check", {"Critical", "Actual", "Status", "Ratio"});
    for (const CheckRow& check : checks) {
        if (!check.Status.empty()) {
            text.Row(std::string(check.Caption) + ", " + std::string(check.Unit),
                     {check.Critical, check.Actual, check.Status, check.Percent});
        }
    }
}

/// Grade lines of steel begin and end with blanks.
std::string Trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string{}
                                      : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

void WriteMember(const Session& session, ReportText& text)
{
    const TestReport report = MakeTestReport(session);
    const std::array<CheckRow, 6> checks = ChecksOf(report);
    text.Captioned("Member", report.DisplayChoice + ", " + Trimmed(report.GradeLabel));
    text.Captioned("", report.Label5);
    text.Captioned("", report.Modifiers);
    text.Captioned("Verdict", VerdictText(session.Member.Result, checks));
    text.Line("");
    WriteChecks(checks, text);
    text.Line("");
    text.Captioned("Deflection", report.Label11);
    text.Captioned("", report.Label6);
    text.Captioned("", report.DeadDefl);
    text.Captioned("Supports", report.Label10);
    text.Captioned("", report.Label15);
    for (const std::string& note : {report.SmallChoice, report.DeflTooHigh, WarnOfOverhangTip(session).Text,
                                    report.NoSplitLabel, report.Unbalancedlabel}) {
        text.Captioned("Advice", note);
    }
}

void WriteAppliedLoads(const AnalysisResult& analysis, ReportText& text)
{
    text.Captioned("Applied loads", "Moment " + FormatNumber(analysis.MaxMomentApplied, "#,##0") +
                                        " ft-lbs, R1 " + FormatNumber(analysis.R1Applied, "#,##0") +
                                        " lbs, R2 " + FormatNumber(analysis.R2Applied, "#,##0") + " lbs");
}

void WriteBeam(const BeamRun& run, ReportText& text)
{
    const BeamProblem& problem = run.Work.Problem;
    text.Line(std::string(LineWidth, '-'));
    text.Captioned("Beam", problem.Descrip);
    text.Captioned("Project", problem.Proj);
    text.Captioned("Span", problem.Span + " ft, " + std::string(SupportText(ReadBeamNumbers(problem))));
    for (const Message& message : run.User.Heard()) {
        text.Captioned(message.Kind == MessageKind::Refusal ? "Refused" : "Attention", message.Text);
    }
    if (run.Tested) {
        WriteMember(run.Work, text);
    } else if (run.Analysed) {
        WriteAppliedLoads(run.Work.Analysis, text);
    }
}

}  // namespace

void ReportLine(std::string_view line, rapidjson::StringBuffer& buffer)
{
    ReportText text(buffer);
    try {
        rapidjson::Document request;
        ParseRequest(line, request);
        if (TaskOf(request) != "beam") {
            throw InvalidRequest("task: reports are made of beams only");
        }
        BeamRun run;
        RunBeam(request, run);
        WriteBeam(run, text);
    } catch (const std::exception& fault) {
        text.Captioned("Not read", fault.what());
    }
}

}  // namespace kordavan
