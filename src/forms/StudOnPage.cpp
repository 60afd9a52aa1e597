#include "forms/StudOnPage.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "columns/StudDiagram.h"
#include "core/NumberText.h"
#include "forms/Kit.h"
#include "forms/PlotPainter.h"
#include "forms/SketchParts.h"

namespace kordavan {

namespace {

constexpr double WindShare = 0.45;  // of the height, for the stud and its wind

// Heights and widths in lines of text.
constexpr double Inset = 0.35;
constexpr double TitleHeight = 1.2;
constexpr double EndsHeight = 1.2;
constexpr double BlockGap = 0.25;
constexpr double ArrowPitch = 2.5;
constexpr double HeadLength = 0.45;
constexpr double StudWidth = 0.25;
constexpr double LineWidth = 0.08;

constexpr int LeastArrows = 2;           // a caption stands between them
constexpr double LeastBlockShare = 0.5;  // of a row, for the smallest wind
constexpr float BlockTint = 0.22F;

/// One wind load with the row that it stands in, from the stud upwards.
struct WindBlock {
    char Letter;
    double Begin;  // ft from the base
    double End;
    double Psf;
    int Row;
};

/// Loads that overlap stand over each other.
std::vector<WindBlock> BlocksOf(const StudColumnProblem& stud)
{
    std::vector<WindBlock> blocks;
    for (std::size_t k = 0; k < WindLoadCount; ++k) {
        if (stud.Wind[k] == 0 || stud.End[k] <= stud.Beg[k]) {
            continue;
        }
        WindBlock block{
            .Letter = WindLetter(k), .Begin = stud.Beg[k], .End = stud.End[k], .Psf = stud.Wind[k], .Row = 0};
        const auto meets = [&block](const WindBlock& other) {
            return other.Row == block.Row && other.Begin < block.End && block.Begin < other.End;
        };
        while (std::any_of(blocks.begin(), blocks.end(), meets)) {
            ++block.Row;
        }
        blocks.push_back(block);
    }
    return blocks;
}

class WindPainter {
public:
    WindPainter(QPainter& thePainter, const QRectF& area, const QPalette& palette, double height)
        : painter(thePainter),
          colors(palette),
          ground(palette.color(QPalette::Base)),
          line(thePainter.fontMetrics().height()),
          axis(area, line, height),
          whole(area.adjusted(Inset * line, Inset * line, -Inset * line, 0)),
          room(whole.adjusted(0, TitleHeight * line, 0, -EndsHeight * line))
    {
        painter.setRenderHint(QPainter::Antialiasing);
    }

    void Draw(const std::vector<WindBlock>& blocks)
    {
        DrawPlotTitle(painter, whole, colors, {"Wind, psf"});
        int rows = 1;
        for (const WindBlock& block : blocks) {
            rows = std::max(rows, block.Row + 1);
            largest = std::max(largest, std::abs(block.Psf));
        }
        rowHeight = room.height() / rows;
        for (const WindBlock& block : blocks) {
            DrawBlock(block);
        }
        DrawStud();
    }

private:
    QRectF AreaOf(const WindBlock& block) const
    {
        const double share = LeastBlockShare + (1 - LeastBlockShare) * std::abs(block.Psf) / largest;
        const double height = std::max(share * (rowHeight - BlockGap * line), 0.0);
        const double bottom = room.bottom() - block.Row * rowHeight - BlockGap * line;
        const double left = axis.Across(block.Begin);
        return {left, bottom - height, axis.Across(block.End) - left, height};
    }

    void DrawBlock(const WindBlock& block)
    {
        const QRectF where = AreaOf(block);
        QColor tint = colors.Load;
        tint.setAlphaF(BlockTint);
        painter.fillRect(where, tint);
        painter.setPen(QPen(colors.Load, LineWidth * line));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(where);
        const int count = std::max(LeastArrows, static_cast<int>(where.width() / (ArrowPitch * line)));
        for (int k = 0; k < count; ++k) {
            const double x = where.left() + (k + 0.5) * where.width() / count;
            const QPointF outside(x, where.top());
            const QPointF inside(x, where.bottom());
            const bool isSuction = block.Psf < 0;
            DrawArrow(painter, isSuction ? inside : outside, isSuction ? outside : inside, HeadLength * line,
                      colors.Load);
        }
        DrawCaption(block, where);
    }

    void DrawCaption(const WindBlock& block, const QRectF& where)
    {
        const std::string words =
            std::string(1, block.Letter) + " " + PlainNumber(static_cast<float>(block.Psf));
        const double width = painter.fontMetrics().horizontalAdvance(Text(words)) + line / 2;
        const QRectF patch(where.center().x() - width / 2, where.center().y() - line / 2, width, line);
        painter.fillRect(patch, ground);
        painter.setPen(colors.Text);
        painter.drawText(patch, Qt::AlignCenter, Text(words));
    }

    void DrawStud()
    {
        painter.setPen(QPen(colors.Line, StudWidth * line));
        painter.drawLine(QPointF(axis.Left(), room.bottom()), QPointF(axis.Right(), room.bottom()));
        const QRectF ends(axis.Left(), room.bottom() + BlockGap * line, axis.Right() - axis.Left(),
                          EndsHeight * line);
        painter.setPen(colors.Text);
        painter.drawText(ends, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("base"));
        painter.drawText(ends, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("top"));
        painter.drawText(ends, Qt::AlignCenter, Text(FormatNumber(axis.Length(), "#0.00") + " ft"));
    }

    QPainter& painter;
    SketchColors colors;
    QColor ground;
    double line;
    FeetAxis axis;
    QRectF whole;
    QRectF room;  // of the wind, down to the stud
    double largest = 0;
    double rowHeight = 0;
};

}  // namespace

void PaintStudOnPage(QPainter& painter, const QRectF& area, const QPalette& palette, const StudTest& test)
{
    QRectF wind = area;
    wind.setHeight(WindShare * area.height());
    QRectF moment = area;
    moment.setTop(wind.bottom());
    WindPainter(painter, wind, palette, test.Problem.StudHeight).Draw(BlocksOf(test.Problem));
    const LoadDiagram diagram = ReadStudDiagram(test);
    PlotPainter(painter, moment, palette, diagram, DiagramPart::Moment).Draw();
}

}  // namespace kordavan
