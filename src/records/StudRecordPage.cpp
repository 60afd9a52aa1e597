#include <array>

#include "columns/StudColumn.h"
#include "columns/StudPicture.h"
#include "core/BeamNumbers.h"
#include "core/NumberText.h"
#include "records/ColumnPageKit.h"
#include "records/ColumnRecordPage.h"
#include "records/FigureFormats.h"

namespace kordavan {

namespace {

constexpr std::string_view LoadFormat = "#,##0.0";
constexpr std::string_view RatioFormat = "0.000";
constexpr std::string_view NoInteraction =
    "No interaction: the axial stress fc reaches FcE, so the stud buckles under its axial load alone.";

PageCell Percent(double used, double allowed)
{
    constexpr double percent = 100;
    return allowed > 0 ? PageCell{0, FormatNumber(percent * used / allowed, "#,##0.0") + "%"} : PageCell{};
}

PageCell StudVerdict(bool fails)
{
    return {0, std::string(fails ? StudStatus::Fails : ColumnStatus::Ok)};
}

std::string RepetitiveText(const StudTest& test)
{
    if (!test.Problem.RepetitiveNDS) {
        return "no repetitive use factor";
    }
    const std::string_view source = test.Problem.RepetitiveIBC ? " by IBC 2306.2.1" : "";
    return "repetitive use factor Cr " + FormatNumber(test.Result.Cr, FactorFormat) + std::string(source);
}

std::string StudAttributes(const StudTest& test)
{
    const std::string edition =
        test.Nds == Edition::None ? std::string{} : "NDS " + std::string(EditionYear(test.Nds)) + ", ";
    return edition + "load duration " + FormatNumber(test.Problem.AxialCd, FactorFormat) +
           " of the axial load and " + FormatNumber(test.Problem.WindCd, FactorFormat) + " of the wind, " +
           RepetitiveText(test);
}

/// Lays out a stud's record.
class StudPage {
public:
    StudPage(const StudTest& studTest, const RecordHeading& heading, const PageOptions& pageOptions)
        : test(studTest),
          options(pageOptions),
          writer(heading.Project + "  " + heading.BeamId, {}, pageOptions)
    {
        WriteRecordHeading(writer, heading, "Column ID:");
    }

    RecordPage Laid(const ReportNoteLines& notes)
    {
        WriteColumnTitle(
            writer, {0, "Stud " + ReadStudPicture(test.Entry).SizeText + ", " + test.Problem.SpeciesGrade},
            {0, StudAttributes(test)});
        WriteStatus();
        const double tables = writer.Top();
        WriteStudChecks();
        WriteWind();
        WriteLoads();
        KeepDiagramRoom(writer, tables, options);
        writer.Rule();
        WriteStrengths();
        if (options.HasNotes) {
            WritePageNotes(writer, notes);
        }
        return std::move(writer.Page());
    }

private:
    void WriteStatus()
    {
        writer.NextLine(0.5);
        const std::string_view status = test.Result.Passes() ? StudStatus::Adequate : StudStatus::Fails;
        writer.Text(0, "Status: " + std::string(status), {0, 110, PageAlign::Left}, PageStyle::Status);
        writer.NextLine();
        WriteRemark(StudMomentWarning(test));
        WriteRemark(test.Result.Interaction ? std::string_view{} : NoInteraction);
        writer.NextLine(0.5);
    }

    void WriteRemark(std::string_view remark)
    {
        if (!remark.empty()) {
            writer.Text(0, remark, WholePageWidth, PageStyle::Figure);
            writer.NextLine();
        }
    }

    void WriteStudChecks()
    {
        const StudResult& result = test.Result;
        constexpr double greatestSlenderness = 50;  // NDS 3.7.1.4
        writer.StartBlock();
        WriteChecks(
            writer,
            {{"Slenderness le/d", Figure(greatestSlenderness, "0"), Figure(result.Slenderness, "#,##0.00"),
              StudVerdict(result.SlendernessOver50), Percent(result.Slenderness, greatestSlenderness)},
             {"Axial load Pa, P, lb", Figure(result.AllowableAxial, LoadFormat), Figure(result.P, LoadFormat),
              StudVerdict(result.AxialFails), Percent(result.P, result.AllowableAxial)},
             {"Axial load with bending", Figure(1, "0.0"),
              result.Interaction ? Figure(*result.Interaction, RatioFormat) : PageCell{},
              StudVerdict(result.InteractionFails),
              result.Interaction ? Percent(*result.Interaction, 1) : PageCell{}},
             {"Stability FbE, fb, psi", Figure(result.FbE, StressFormat),
              Figure(result.FbActual, StressFormat), StudVerdict(result.BendingBuckles),
              Percent(result.FbActual, result.FbE)}},
            options);
        writer.Rule(ColumnTableWidth);
    }

    void WriteWind()
    {
        constexpr std::array<PageColumn, 4> columns{{{64, 54}, {124, 70}, {200, 64}, {270, 60}}};
        const auto row = [this, &columns](std::string_view name, const std::array<std::string, 4>& figures,
                                          PageStyle nameStyle, PageStyle style) {
            writer.Text(0, name, {0, columns[0].Left, PageAlign::Left}, nameStyle);
            for (std::size_t k = 0; k < columns.size(); ++k) {
                if (!figures[k].empty()) {
                    writer.Text(0, figures[k], columns[k], style);
                }
            }
            writer.NextLine();
        };
        writer.StartBlock();
        row("Wind", {"psf", "plf on a stud", "from, ft", "to, ft"}, PageStyle::ColumnHead,
            PageStyle::ColumnHead);
        const StudColumnProblem& problem = test.Problem;
        for (std::size_t load = 0; load < WindLoadCount; ++load) {
            const std::string name = std::string("Load ") + WindLetter(load);
            if (problem.Wind[load] == 0) {
                row(name, {"none"}, PageStyle::Caption, PageStyle::Caption);
                continue;
            }
            row(name,
                {FormatNumber(problem.Wind[load], LoadFormat),
                 FormatNumber(problem.Wind[load] * problem.StudSpacing / InchesPerFoot, LoadFormat),
                 FormatNumber(problem.Beg[load], LengthFormat),
                 FormatNumber(problem.End[load], LengthFormat)},
                PageStyle::Caption, PageStyle::Figure);
        }
        writer.Rule(ColumnTableWidth);
    }

    void WriteLoads()
    {
        const StudColumnProblem& problem = test.Problem;
        const StudResult& result = test.Result;
        const auto row = [this](std::string_view leftCaption, const PageCell& left,
                                std::string_view rightCaption, const PageCell& right) {
            WriteFigures(writer, {leftCaption, left});
            if (!rightCaption.empty()) {
                writer.Text(0, rightCaption, {204, 80, PageAlign::Left}, PageStyle::Caption);
                writer.Text(0, right.Text, {284, 46}, PageStyle::Figure);
            }
            writer.NextLine();
        };
        writer.StartBlock();
        WriteFigureHeads(writer, {"Loads and geometry"});
        writer.NextLine();
        row("Axial load of the wall, plf", Figure(problem.AxialPLF, LoadFormat), "Stud height, ft",
            Figure(problem.StudHeight, LengthFormat));
        row("Axial point load, lb", Figure(problem.AxialPoint, LoadFormat), "Spacing, in. o.c.",
            Figure(problem.StudSpacing, LengthFormat));
        row("Total axial load P, lb", Figure(result.P, LoadFormat), "Net breadth, in.",
            Figure(problem.Breadth, LengthFormat));
        row("Wind reaction R1, lb", Figure(result.R1, LoadFormat), "Net depth, in.",
            Figure(problem.Depth, LengthFormat));
        row("Moment of the wind, ft-lb", Figure(result.MaxMoment, LoadFormat), "at, ft from base",
            Figure(result.MaxMomentAtFt, "0.00"));
    }

    void WriteStrengths()
    {
        const StudColumnProblem& problem = test.Problem;
        const StudResult& result = test.Result;
        const auto row = [this](const PageFigures& left, const PageFigures& right) {
            WriteFigures(writer, left);
            WriteFigures(writer, right, RightTableLeft);
            writer.NextLine();
        };
        writer.StartBlock();
        WriteFigureHeads(writer, {"Bending"});
        WriteFigureHeads(writer, {"Compression"}, RightTableLeft);
        writer.NextLine();
        row({"Base Fb, psi", Figure(problem.BaseFb, StressFormat)},
            {"Base Fc, psi", Figure(problem.BaseFc, StressFormat)});
        row({"Load duration Cd, wind", Figure(problem.WindCd, FactorFormat)},
            {"Load duration Cd, axial", Figure(problem.AxialCd, FactorFormat)});
        row({"Size CFb", Figure(result.CFb, FactorFormat)}, {"Size CFc", Figure(result.CFc, FactorFormat)});
        row({"Repetitive use Cr", Figure(result.Cr, FactorFormat)},
            {"Fc* (without Cp), psi", Figure(result.FcStar, StressFormat)});
        row({"Adjusted Fb', psi", Figure(result.FbPrime, StressFormat)},
            {"Base E, mill. psi", Figure(problem.BaseE, "0.0##")});
        row({"Actual fb, psi", Figure(result.FbActual, StressFormat)},
            {"Critical stress FcE, psi", Figure(result.FcE, StressFormat)});
        row({"Ratio fb / Fb'", Percent(result.FbActual, result.FbPrime)},
            {"Column stability Cp", Figure(result.Cp, RatioFormat)});
        row({"Slenderness RB", Figure(result.RB, "#,##0.0#")},
            {"Adjusted Fc', psi", Figure(result.FcPrime, StressFormat)});
        row({"Critical stress FbE, psi", Figure(result.FbE, StressFormat)},
            {"Actual fc, psi", Figure(result.FcActual, StressFormat)});
        row({}, {"Allowable P without Cd, lb", Figure(result.AllowableAxial, LoadFormat)});
    }

    const StudTest& test;
    const PageOptions& options;
    PageWriter writer;
};

}  // namespace

RecordPage LayOutStudRecord(const StudTest& test, const RecordHeading& heading, const ReportNoteLines& notes,
                            const PageOptions& options)
{
    return StudPage(test, heading, options).Laid(notes);
}

}  // namespace kordavan
