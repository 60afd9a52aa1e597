#include "records/ColumnPageKit.h"

#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr PageColumn StatusColumn{250, 42, PageAlign::Left};
constexpr PageColumn RatioColumn{292, 38};

/// A cell is on the page even while it is empty; a text of no number is not.
void Write(PageWriter& writer, const PageCell& cell, const PageColumn& column, PageStyle style)
{
    if (cell.Label != 0 || !cell.Text.empty()) {
        writer.Text(cell.Label, cell.Text, column, style);
    }
}

void WriteRow(PageWriter& writer, const PageFigures& row, double left, PageStyle captionStyle,
              PageStyle figureStyle)
{
    Write(writer, {0, std::string(row.Caption)}, {left, FirstFigureLeft, PageAlign::Left}, captionStyle);
    Write(writer, row.First, {left + FirstFigureLeft, FirstFigureWidth}, figureStyle);
    Write(writer, row.Second, {left + SecondFigureLeft, SecondFigureWidth}, figureStyle);
}

}  // namespace

PageCell Figure(double value, std::string_view format)
{
    return {0, FormatNumber(value, format)};
}

void WriteRecordHeading(PageWriter& writer, const RecordHeading& heading, std::string_view idCaption)
{
    WritePageHeading(writer, {.Heading1 = {0, heading.Heading1},
                              .Heading2 = {0, heading.Heading2},
                              .Project = {0, heading.Project, "Project:"},
                              .Id = {0, heading.BeamId, idCaption},
                              .Description = {0, heading.Description, "Description:"},
                              .Date = {0, heading.Date, "Date:"},
                              .Initials = {0, heading.Initials, "Prepared by:"}});
}

void WriteColumnTitle(PageWriter& writer, const PageCell& member, const PageCell& attributes)
{
    writer.NextLine(0.15);
    writer.StartBlock();
    Write(writer, member, WholePageWidth, PageStyle::Title);
    writer.NextLine(1.6);
    Write(writer, attributes, WholePageWidth, PageStyle::Figure);
    writer.NextLine();
}

void WriteChecks(PageWriter& writer, std::initializer_list<PageCheck> checks, const PageOptions& options)
{
    WriteFigureHeads(writer, {"Check", {0, "Critical"}, {0, "Actual"}});
    writer.Text(0, "Status", StatusColumn, PageStyle::ColumnHead);
    writer.Text(0, "Ratio", RatioColumn, PageStyle::ColumnHead);
    writer.NextLine();
    const double rows = writer.Top();
    for (const PageCheck& check : checks) {
        WriteFigures(writer, {check.Caption, check.Critical, check.Actual});
        Write(writer, check.Status, StatusColumn, PageStyle::Status);
        Write(writer, check.Ratio, RatioColumn, PageStyle::Figure);
        writer.NextLine();
    }
    if (options.HighDpi) {
        writer.Page().Tints.push_back({PageMargin, rows, ColumnTableWidth, writer.Top() - rows});
    }
}

void WriteFigureHeads(PageWriter& writer, const PageFigures& heads, double left)
{
    WriteRow(writer, heads, left, PageStyle::ColumnHead, PageStyle::ColumnHead);
}

void WriteFigures(PageWriter& writer, const PageFigures& row, double left)
{
    WriteRow(writer, row, left, PageStyle::Caption, PageStyle::Figure);
}

void KeepDiagramRoom(PageWriter& writer, double top, const PageOptions& options)
{
    if (options.HasDiagram) {
        constexpr double gap = 16;
        const double left = PageMargin + ColumnTableWidth + gap;
        writer.Page().Diagram = PageRect{left, top, PageMargin + PageContentWidth - left, writer.Top() - top};
    }
}

}  // namespace kordavan
