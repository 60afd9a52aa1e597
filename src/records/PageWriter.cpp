#include "records/PageWriter.h"

#include <algorithm>
#include <utility>

namespace kordavan {

namespace {

constexpr double RuleGap = 4;
constexpr double TitleHeight = 19;
constexpr double LineHeight = 12.3;

void WriteHeadText(PageWriter& writer, const PageHeadText& head, const PageColumn& column)
{
    if (head.Caption.empty()) {
        writer.Text(head.Label, head.Text, column, PageStyle::Figure);
        return;
    }
    constexpr double captionWidth = 64;
    writer.Text(0, head.Caption, {column.Left, captionWidth, PageAlign::Left}, PageStyle::Caption);
    writer.Text(head.Label, head.Text,
                {column.Left + captionWidth, column.Width - captionWidth, PageAlign::Left},
                PageStyle::Figure);
}

}  // namespace

PageWriter::PageWriter(std::string title, std::span<const std::string> sheetCells, const PageOptions& options)
    : cells(sheetCells)
{
    if (options.HighDpi) {
        constexpr double small = 8.5;
        constexpr double fine = 0.25;
        page.TextSize = small;
        page.RuleThickness = fine;
    }
    page.Title = std::move(title);
}

void PageWriter::Cell(std::size_t label, const PageColumn& column, PageStyle style)
{
    Text(label, cells[label], column, style);
}

void PageWriter::Text(std::size_t label, std::string_view text, const PageColumn& column, PageStyle style)
{
    page.Texts.push_back({.Label = label,
                          .Text = std::string(text),
                          .Area = {PageMargin + column.Left, top, column.Width,
                                   style == PageStyle::Title ? TitleHeight : LineHeight},
                          .Align = column.Align,
                          .Style = style,
                          .StartsBlock = std::exchange(startsBlock, false)});
}

void PageWriter::NamedCell(std::string_view name, std::string_view text, const PageColumn& column,
                           PageStyle style)
{
    Text(0, text, column, style);
    page.Texts.back().Name = name;
}

void PageWriter::NextLine(double lines)
{
    top += lines * LineHeight;
}

void PageWriter::Rule(double width)
{
    top += RuleGap;
    page.Rules.push_back({PageMargin, top, width});
    top += RuleGap;
}

void WritePageHeading(PageWriter& writer, const PageHeading& heading)
{
    constexpr PageColumn middle{0, PageContentWidth, PageAlign::Center};
    constexpr PageColumn left{0, 380, PageAlign::Left};
    constexpr PageColumn right{380, PageContentWidth - 380, PageAlign::Left};
    writer.Text(heading.Heading1.Label, heading.Heading1.Text, middle, PageStyle::HeaderLine);
    writer.NextLine();
    writer.Text(heading.Heading2.Label, heading.Heading2.Text, middle, PageStyle::HeaderLine);
    writer.NextLine(1.25);
    WriteHeadText(writer, heading.Project, left);
    WriteHeadText(writer, heading.Date, right);
    writer.NextLine();
    WriteHeadText(writer, heading.Id, left);
    WriteHeadText(writer, heading.Initials, right);
    writer.NextLine();
    WriteHeadText(writer, heading.Description, WholePageWidth);
    writer.NextLine();
    writer.Rule();
}

void WritePageNotes(PageWriter& writer, const ReportNoteLines& notes)
{
    const bool hasNotes =
        std::any_of(notes.begin(), notes.end(), [](const std::string& note) { return !note.empty(); });
    if (!hasNotes) {
        return;
    }
    writer.Rule();
    writer.Text(0, "Notes", WholePageWidth, PageStyle::Title);
    writer.NextLine(1.6);
    for (const std::string& note : notes) {
        writer.Text(0, note, WholePageWidth, PageStyle::Note);
        writer.NextLine();
    }
}

}  // namespace kordavan
