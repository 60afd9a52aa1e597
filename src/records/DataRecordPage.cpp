#include "records/DataRecordPage.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "records/DataSheetBlocks.h"

namespace kordavan {

namespace {

constexpr double Margin = 36;
constexpr double ContentWidth = 612 - 2 * Margin;

/// A column of the page: its left edge from the margin and its width.
struct Column {
    double Left;
    double Width;
    PageAlign Align = PageAlign::Right;
};

constexpr Column WholeWidth{0, ContentWidth, PageAlign::Left};
constexpr Column CaptionColumn{0, 112, PageAlign::Left};

/// Writes cells line by line down the page.
class PageWriter {
public:
    PageWriter(const DataSheet& filled, const PageOptions& options) : sheet(filled)
    {
        constexpr double fine = 0.25;
        if (options.HighDpi) {
            page.TextSize = 8.5;
            page.RuleThickness = fine;
        }
        page.Title = sheet[1] + "  " + sheet[2];
    }

    RecordPage& Page() { return page; }
    double Top() const { return top; }
    double LineHeight() const { return lineHeight; }

    void Cell(std::size_t label, const Column& column, PageStyle style = PageStyle::Figure)
    {
        Text(label, sheet[label], column, style);
    }

    void Text(std::size_t label, std::string_view text, const Column& column, PageStyle style)
    {
        page.Texts.push_back({.Label = label,
                              .Text = std::string(text),
                              .Area = {Margin + column.Left, top, column.Width,
                                       style == PageStyle::Title ? titleHeight : lineHeight},
                              .Align = column.Align,
                              .Style = style});
    }

    void NextLine(double lines = 1) { top += lines * lineHeight; }

    void Rule()
    {
        top += ruleGap;
        page.Rules.push_back({Margin, top, ContentWidth});
        top += ruleGap;
    }

private:
    static constexpr double ruleGap = 4;
    static constexpr double titleHeight = 19;
    static constexpr double lineHeight = 12.3;

    const DataSheet& sheet;
    RecordPage page;
    double top = Margin;
};

void WriteHeading(PageWriter& writer, const DataSheet& sheet)
{
    constexpr Column middle{0, ContentWidth, PageAlign::Center};
    constexpr Column left{0, 380, PageAlign::Left};
    constexpr Column right{380, ContentWidth - 380, PageAlign::Left};
    writer.Cell(132, middle, PageStyle::HeaderLine);
    writer.NextLine();
    writer.Text(0, sheet.Label133Missing, middle, PageStyle::HeaderLine);
    writer.NextLine(1.25);
    writer.Cell(1, left);
    writer.Cell(4, right);
    writer.NextLine();
    writer.Cell(2, left);
    writer.Cell(169, right);
    writer.NextLine();
    writer.Cell(3, WholeWidth);
    writer.NextLine();
    writer.Rule();
}

/// The attribute line goes on from the member line by commas; on a line of its own it begins without one.
std::string_view WithoutLeadingComma(std::string_view line)
{
    constexpr std::string_view comma = ", ";
    return line.starts_with(comma) ? line.substr(comma.size()) : line;
}

void WriteMember(PageWriter& writer, const DataSheet& sheet)
{
    writer.NextLine(0.15);
    writer.Cell(5, WholeWidth, PageStyle::Title);
    writer.NextLine(1.6);
    writer.Text(6, WithoutLeadingComma(sheet[6]), WholeWidth, PageStyle::Figure);
    writer.NextLine(1.35);
}

void WriteChecks(PageWriter& writer, const PageOptions& options)
{
    constexpr Column critical{112, 58};
    constexpr Column actual{170, 58};
    constexpr Column status{242, 44, PageAlign::Left};
    constexpr Column ratio{286, 40};
    constexpr double tableWidth = 330;
    const double first = writer.Top();
    writer.Cell(7, critical, PageStyle::ColumnHead);
    writer.Cell(8, actual, PageStyle::ColumnHead);
    writer.Cell(150, status, PageStyle::ColumnHead);
    writer.Cell(151, ratio, PageStyle::ColumnHead);
    writer.NextLine();
    const double rows = writer.Top();
    for (const CheckCells& row : CheckRows) {
        writer.Cell(row.Caption, CaptionColumn, PageStyle::Caption);
        writer.Cell(row.Critical, critical);
        writer.Cell(row.Actual, actual);
        writer.Cell(row.Status, status, PageStyle::Status);
        writer.Cell(row.Ratio, ratio);
        writer.NextLine();
    }
    if (options.HighDpi) {
        writer.Page().Tints.push_back({Margin, rows, tableWidth, writer.Top() - rows});
    }
    if (options.HasDiagram) {
        const double gap = options.HighDpi ? 4 : 16;
        const double left = Margin + tableWidth + gap;
        const double top = options.HighDpi ? first : rows;
        writer.Page().Diagram = PageRect{left, top, Margin + ContentWidth - left, writer.Top() - top};
    }
    writer.Rule();
}

constexpr Column FbColumn{112, 56};
constexpr Column FvColumn{176, 56};
constexpr Column EColumn{240, 64};
constexpr Column FcPerpColumn{312, 72};
constexpr Column LastColumn{392, 56};
constexpr Column BesideFb{180, 300, PageAlign::Left};

void WriteValueRow(PageWriter& writer, const std::array<std::size_t, 5>& labels, PageStyle style)
{
    constexpr std::array columns{CaptionColumn, FbColumn, FvColumn, EColumn, FcPerpColumn};
    for (std::size_t k = 0; k < labels.size(); ++k) {
        if (labels[k] != 0) {
            writer.Cell(labels[k], columns[k], k == 0 ? PageStyle::Caption : style);
        }
    }
}

void WriteValues(PageWriter& writer)
{
    WriteValueRow(writer, {0, 19, 20, 21, 108}, PageStyle::ColumnHead);
    writer.NextLine();
    WriteValueRow(writer, {23, 24, 25, 29, 167}, PageStyle::Figure);
    writer.NextLine();
    WriteValueRow(writer, {22, 27, 26, 28, 70}, PageStyle::Figure);
    writer.NextLine(1.25);
    writer.Cell(30, CaptionColumn, PageStyle::ColumnHead);
    writer.NextLine();
    WriteValueRow(writer, {31, 35, 175, 0, 0}, PageStyle::Figure);
    writer.NextLine();
    WriteValueRow(writer, {32, 36, 40, 0, 0}, PageStyle::Figure);
    writer.NextLine();
    WriteValueRow(writer, {33, 37, 0, 0, 0}, PageStyle::Figure);
    writer.NextLine();
    WriteValueRow(writer, {47, 0, 41, 0, 0}, PageStyle::Figure);
    constexpr Column beside{238, 120, PageAlign::Left};
    writer.Cell(48, beside);
    writer.NextLine();
}

void WriteServiceAndStability(PageWriter& writer, const DataSheet& sheet)
{
    if (!sheet[176].empty()) {
        writer.Cell(176, WholeWidth, PageStyle::Caption);
        writer.NextLine();
    }
    WriteValueRow(writer, {34, 38, 42, 46, 49}, PageStyle::Figure);
    writer.Cell(177, LastColumn);
    writer.NextLine();
    writer.Cell(188, CaptionColumn, PageStyle::Caption);
    writer.Cell(190, FbColumn);
    writer.Cell(192, BesideFb);
    writer.NextLine();
    writer.Cell(189, CaptionColumn, PageStyle::Caption);
    writer.Cell(191, FbColumn);
    writer.Cell(193, BesideFb);
    writer.NextLine();
    writer.Cell(194, WholeWidth, PageStyle::ColumnHead);
    writer.NextLine();
    writer.Rule();
}

/// A caption with its figure.
struct Pair {
    std::size_t Caption;
    std::size_t Figure;
};

/// Three columns of captions and figures.
constexpr std::array<std::array<Pair, 3>, 8> SpanRows{{
    {{{12, 61}, {52, 62}, {57, 68}}},
    {{{130, 131}, {144, 63}, {58, 69}}},
    {{{140, 141}, {51, 64}, {43, 45}}},
    {{{142, 143}, {53, 145}, {44, 107}}},
    {{{56, 67}, {54, 65}, {146, 147}}},
    {{{173, 0}, {55, 66}, {148, 149}}},
    {{{174, 0}, {39, 168}, {134, 135}}},
    {{{138, 139}, {0, 0}, {136, 137}}},
}};

void WriteSpans(PageWriter& writer)
{
    constexpr double step = 188;
    constexpr double captionWidth = 96;
    constexpr double figureWidth = 64;
    for (const auto& row : SpanRows) {
        double left = 0;
        for (const Pair& pair : row) {
            if (pair.Caption != 0) {
                const double width = pair.Figure == 0 ? captionWidth + figureWidth : captionWidth;
                writer.Cell(pair.Caption, {left, width, PageAlign::Left}, PageStyle::Caption);
            }
            if (pair.Figure != 0) {
                writer.Cell(pair.Figure, {left + captionWidth, figureWidth});
            }
            left += step;
        }
        writer.NextLine();
    }
    constexpr Column first{112, 100, PageAlign::Left};
    constexpr Column second{232, 100, PageAlign::Left};
    writer.Cell(60, CaptionColumn, PageStyle::Caption);
    writer.Cell(71, first);
    writer.Cell(133, second);
    writer.NextLine();
    writer.Rule();
}

/// A row of loads: its caption and the first of its cells.
struct LoadRow {
    std::size_t Caption;
    std::size_t First;
    std::size_t Count;
};

constexpr std::array LoadRows{
    LoadRow{77, 79, 6},   LoadRow{115, 119, 6}, LoadRow{78, 85, 6},  LoadRow{74, 91, 5},
    LoadRow{116, 125, 5}, LoadRow{75, 96, 5},   LoadRow{76, 101, 5},
};

void WriteLoads(PageWriter& writer)
{
    constexpr Column totalCaption{74, 62, PageAlign::Left};
    constexpr Column total{136, 84, PageAlign::Left};
    constexpr Column liveCaption{228, 62, PageAlign::Left};
    constexpr Column live{290, 84, PageAlign::Left};
    constexpr Column backspan{390, 150, PageAlign::Left};
    writer.Cell(166, {0, 70, PageAlign::Left}, PageStyle::ColumnHead);
    writer.Cell(72, totalCaption, PageStyle::Caption);
    writer.Cell(73, total);
    writer.Cell(117, liveCaption, PageStyle::Caption);
    writer.Cell(118, live);
    writer.Cell(170, backspan, PageStyle::Caption);
    writer.NextLine();
    constexpr double captionWidth = 66;
    constexpr double cellWidth = (ContentWidth - captionWidth) / 6;
    for (const LoadRow& row : LoadRows) {
        writer.Cell(row.Caption, {0, captionWidth, PageAlign::Left}, PageStyle::Caption);
        for (std::size_t k = 0; k < row.Count; ++k) {
            writer.Cell(row.First + k, {captionWidth + static_cast<double>(k) * cellWidth, cellWidth});
        }
        writer.NextLine();
    }
    writer.Cell(187, WholeWidth, PageStyle::Caption);
    writer.NextLine();
}

void WriteNotes(PageWriter& writer, const DataSheet& sheet)
{
    const bool hasNotes = std::any_of(sheet.ReportNotes.begin(), sheet.ReportNotes.end(),
                                      [](const std::string& note) { return !note.empty(); });
    if (!hasNotes) {
        return;
    }
    writer.Rule();
    writer.Text(0, "Notes", WholeWidth, PageStyle::Title);
    writer.NextLine(1.6);
    for (const std::string& note : sheet.ReportNotes) {
        writer.Text(0, note, WholeWidth, PageStyle::Note);
        writer.NextLine();
    }
}

}  // namespace

RecordPage LayOutDataRecord(const DataSheet& sheet, const PageOptions& options)
{
    PageWriter writer(sheet, options);
    WriteHeading(writer, sheet);
    WriteMember(writer, sheet);
    WriteChecks(writer, options);
    WriteValues(writer);
    WriteServiceAndStability(writer, sheet);
    WriteSpans(writer);
    WriteLoads(writer);
    if (options.HasNotes) {
        WriteNotes(writer, sheet);
    }
    return std::move(writer.Page());
}

}  // namespace kordavan
