#include "records/DataRecordPage.h"

#include <array>
#include <string_view>

#include "records/DataSheetBlocks.h"
#include "records/PageWriter.h"

namespace kordavan {

namespace {

constexpr PageColumn CaptionColumn{0, 112, PageAlign::Left};

PageHeading HeadingOf(const DataSheet& sheet)
{
    return {.Heading1 = {132, sheet[132]},
            .Heading2 = {0, sheet.Label133Missing},
            .Project = {1, sheet[1]},
            .Id = {2, sheet[2]},
            .Description = {3, sheet[3]},
            .Date = {4, sheet[4]},
            .Initials = {169, sheet[169]}};
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
    writer.StartBlock();
    writer.Cell(5, WholePageWidth, PageStyle::Title);
    writer.NextLine(1.6);
    writer.Text(6, WithoutLeadingComma(sheet[6]), WholePageWidth, PageStyle::Figure);
    writer.NextLine(1.35);
}

void WriteChecks(PageWriter& writer, const PageOptions& options)
{
    constexpr PageColumn critical{112, 58};
    constexpr PageColumn actual{170, 58};
    constexpr PageColumn status{242, 44, PageAlign::Left};
    constexpr PageColumn ratio{286, 40};
    constexpr double tableWidth = 330;
    const double first = writer.Top();
    writer.StartBlock();
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
        writer.Page().Tints.push_back({PageMargin, rows, tableWidth, writer.Top() - rows});
    }
    if (options.HasDiagram) {
        const double gap = options.HighDpi ? 4 : 16;
        const double left = PageMargin + tableWidth + gap;
        const double top = options.HighDpi ? first : rows;
        writer.Page().Diagram = PageRect{left, top, PageMargin + PageContentWidth - left, writer.Top() - top};
    }
    writer.Rule();
}

constexpr PageColumn FbColumn{112, 56};
constexpr PageColumn FvColumn{176, 56};
constexpr PageColumn EColumn{240, 64};
constexpr PageColumn FcPerpColumn{312, 72};
constexpr PageColumn LastColumn{392, 56};
constexpr PageColumn BesideFb{180, 300, PageAlign::Left};

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
    writer.StartBlock();
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
    constexpr PageColumn beside{238, 120, PageAlign::Left};
    writer.Cell(48, beside);
    writer.NextLine();
}

void WriteServiceAndStability(PageWriter& writer, const DataSheet& sheet)
{
    if (!sheet[176].empty()) {
        writer.Cell(176, WholePageWidth, PageStyle::Caption);
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
    writer.Cell(194, WholePageWidth, PageStyle::ColumnHead);
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
    writer.StartBlock();
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
    constexpr PageColumn first{112, 100, PageAlign::Left};
    constexpr PageColumn second{232, 100, PageAlign::Left};
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
    constexpr PageColumn totalCaption{74, 62, PageAlign::Left};
    constexpr PageColumn total{136, 84, PageAlign::Left};
    constexpr PageColumn liveCaption{228, 62, PageAlign::Left};
    constexpr PageColumn live{290, 84, PageAlign::Left};
    constexpr PageColumn backspan{390, 150, PageAlign::Left};
    writer.StartBlock();
    writer.Cell(166, {0, 70, PageAlign::Left}, PageStyle::ColumnHead);
    writer.Cell(72, totalCaption, PageStyle::Caption);
    writer.Cell(73, total);
    writer.Cell(117, liveCaption, PageStyle::Caption);
    writer.Cell(118, live);
    writer.Cell(170, backspan, PageStyle::Caption);
    writer.NextLine();
    constexpr double captionWidth = 66;
    constexpr double cellWidth = (PageContentWidth - captionWidth) / 6;
    for (const LoadRow& row : LoadRows) {
        writer.Cell(row.Caption, {0, captionWidth, PageAlign::Left}, PageStyle::Caption);
        for (std::size_t k = 0; k < row.Count; ++k) {
            writer.Cell(row.First + k, {captionWidth + static_cast<double>(k) * cellWidth, cellWidth});
        }
        writer.NextLine();
    }
    writer.Cell(187, WholePageWidth, PageStyle::Caption);
    writer.NextLine();
}

}  // namespace

RecordPage LayOutDataRecord(const DataSheet& sheet, const PageOptions& options)
{
    PageWriter writer(sheet[1] + "  " + sheet[2], sheet.Labels, options);
    WritePageHeading(writer, HeadingOf(sheet));
    WriteMember(writer, sheet);
    WriteChecks(writer, options);
    WriteValues(writer);
    WriteServiceAndStability(writer, sheet);
    WriteSpans(writer);
    WriteLoads(writer);
    if (options.HasNotes) {
        WritePageNotes(writer, sheet.ReportNotes);
    }
    return std::move(writer.Page());
}

}  // namespace kordavan
