#include "records/NotchPage.h"

#include <algorithm>

#include "core/NumberText.h"
#include "design/MemberTestResult.h"
#include "notch/NotchSession.h"
#include "notch/NotchTexts.h"
#include "records/ColumnPageKit.h"
#include "records/FigureFormats.h"

namespace kordavan {

namespace {

constexpr std::string_view ReactionFormat = "#,##0";
constexpr std::string_view NotComputed = "Status: not computed";
constexpr std::string_view MiddleThird = "Tapered notch may not extend into middle third of span.";

PageCell PercentCell(double percent)
{
    return {0, FormatNumber(percent, "#,##0.0") + "%"};
}

PageCell NotchVerdictCell(bool fails)
{
    return {0, std::string(fails ? StatusFail : StatusOk)};
}

/// A name of a list without the blank that it has there.
std::string_view ListName(std::string_view name)
{
    name.remove_prefix(std::min(name.find_first_not_of(' '), name.size()));
    return name;
}

std::string SizeText(const NotchProblem& problem)
{
    const std::string depth = FormatNumber(problem.Depth, LengthFormat);
    return problem.MemberType == NotchMember::SawnRound
               ? depth + " in. in diameter"
               : FormatNumber(problem.Breadth, LengthFormat) + " x " + depth + " in.";
}

std::string TitleLine(const NotchRun& run)
{
    std::string title(ListName(NotchMemberNames[static_cast<std::size_t>(run.Problem.MemberType)]));
    title += " " + SizeText(run.Problem);
    title += run.Entry.Species.empty() ? "" : ", " + run.Entry.Species;
    title += ", ";
    return title += NotchTypeNames[static_cast<std::size_t>(run.Problem.Notch)];
}

std::string NotchAttributes(const NotchRun& run)
{
    const NotchEntry& entry = run.Entry;
    const std::string year = "NDS " + std::to_string(run.Problem.NdsYear);
    const std::string duration(NotchDurations[static_cast<std::size_t>(entry.DurListbox)].Name);
    return year + (entry.WetUseCheckbox ? ", wet use, " : ", dry use, ") +
           (entry.NoSplitCheckbox ? "no splits" : "splits as usual") + ", load duration " +
           FormatNumber(run.Problem.Cd, "0.0#") + " (" + duration + ")";
}

/// The texts of the run by itself, whatever has been entered since.
NotchTexts TextsOf(const NotchRun& run)
{
    NotchSession alone;
    alone.Entry = run.Entry;
    alone.Years.NdsYear = run.Problem.NdsYear;
    alone.Run = run;
    return DescribeNotch(alone);
}

/// Cuts a text at blanks into lines of at most so many characters.
std::vector<std::string> Broken(std::string_view text, std::size_t most)
{
    std::vector<std::string> lines;
    while (text.size() > most) {
        const std::size_t blank = text.rfind(' ', most);
        const std::size_t length = blank == std::string_view::npos || blank == 0 ? most : blank;
        lines.emplace_back(text.substr(0, length));
        text = ListName(text.substr(length));
    }
    if (!text.empty()) {
        lines.emplace_back(text);
    }
    return lines;
}

/// Lays out the report of one run.
class NotchReportPage {
public:
    NotchReportPage(const NotchRun& notchRun, const RecordHeading& heading, const PageOptions& pageOptions)
        : run(notchRun),
          texts(TextsOf(notchRun)),
          options(pageOptions),
          writer(heading.Project + "  " + heading.BeamId, {}, pageOptions)
    {
        WriteRecordHeading(writer, heading, "Member ID:");
    }

    RecordPage Laid(const ReportNoteLines& notes)
    {
        WriteColumnTitle(writer, {0, TitleLine(run)}, {0, NotchAttributes(run)});
        WriteStatus();
        const double tables = writer.Top();
        WriteNotchChecks();
        WriteLines("Values and factors", NotchResultLines(run));
        writer.Rule(ColumnTableWidth);
        WriteLines("Entries", NotchEntryLines(run));
        KeepDiagramRoom(writer, tables, options);
        if (options.HasNotes) {
            WritePageNotes(writer, notes);
        }
        return std::move(writer.Page());
    }

private:
    void WriteStatus()
    {
        writer.NextLine(0.5);
        if (run.Result.IsComputed()) {
            writer.Text(0, texts.ShearStatusLabel, WholePageWidth, PageStyle::Status);
        } else {
            writer.Text(0, NotComputed, WholePageWidth, PageStyle::ColumnHead);
        }
        writer.NextLine();
        WriteRemark(texts.NotchNote);
        if (run.Problem.Notch == NotchType::Tapered) {
            WriteRemark(MiddleThird);
        }
        writer.NextLine(0.5);
    }

    void WriteRemark(std::string_view remark)
    {
        constexpr std::size_t lineLength = 110;
        for (const std::string& line : Broken(remark, lineLength)) {
            writer.Text(0, line, WholePageWidth, PageStyle::Figure);
            writer.NextLine();
        }
    }

    PageCheck ShearCheck() const
    {
        const NotchResult& result = run.Result;
        if (result.ResultIsV) {
            return {"Reaction Vr', V, lb", Figure(*result.AllowableV, ReactionFormat),
                    Figure(run.Problem.MaxV, ReactionFormat),
                    NotchVerdictCell(result.Verdict == NotchVerdict::RatioFails),
                    PercentCell(*result.RatioPercent)};
        }
        return {"Shear stress Fv', fv, psi", Figure(result.AdjustedFv, StressFormat),
                Figure(*result.CriticalFv, StressFormat),
                NotchVerdictCell(result.Verdict == NotchVerdict::RatioFails),
                PercentCell(*result.RatioPercent)};
    }

    /// Without a rule there is nothing that the depth could pass or fail.
    PageCheck DepthCheck() const
    {
        constexpr double percent = 100;
        const double minimum = run.Result.MinimumDn;
        const double depth = run.Problem.DepthAtNotch;
        PageCheck check{"Depth at notch dn, in.", Figure(minimum, LengthFormat), Figure(depth, LengthFormat)};
        if (run.Result.IsComputed()) {
            check.Status = NotchVerdictCell(depth < minimum);
            check.Ratio = PercentCell(percent * minimum / depth);
        }
        return check;
    }

    void WriteNotchChecks()
    {
        writer.StartBlock();
        if (run.Result.IsComputed()) {
            WriteChecks(writer, {ShearCheck(), DepthCheck()}, options);
        } else {
            WriteChecks(writer, {DepthCheck()}, options);
        }
        writer.Rule(ColumnTableWidth);
    }

    void WriteLines(std::string_view head, const std::vector<NotchReportLine>& lines)
    {
        writer.StartBlock();
        WriteFigureHeads(writer, {head});
        writer.NextLine();
        for (const NotchReportLine& line : lines) {
            WriteFigures(writer, {line.Caption, {0, line.Figure}});
            if (!line.Unit.empty()) {
                writer.Text(0, line.Unit, {SecondFigureLeft, SecondFigureWidth, PageAlign::Left},
                            PageStyle::Caption);
            }
            writer.NextLine();
        }
    }

    const NotchRun& run;
    NotchTexts texts;
    const PageOptions& options;
    PageWriter writer;
};

}  // namespace

RecordPage LayOutNotchReport(const NotchRun& run, const RecordHeading& heading, const ReportNoteLines& notes,
                             const PageOptions& options)
{
    return NotchReportPage(run, heading, options).Laid(notes);
}

}  // namespace kordavan
