#include "forms/StudOnPage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "columns/StudDiagram.h"
#include "core/NumberText.h"
#include "forms/Kit.h"
#include "forms/PlotPainter.h"

namespace kordavan {

namespace {

constexpr double WindShare = 0.5;  // of the height, for the stud and its wind

// Heights and widths in lines of text.
constexpr double Inset = 0.35;
constexpr double TitleHeight = 1.2;
constexpr double EndsHeight = 1.2;
constexpr double BlockGap = 0.2;
constexpr double ArrowPitch = 2.5;
constexpr double HeadLength = 0.45;
constexpr double StudWidth = 0.25;

constexpr double LeastBlockShare = 0.5;  // of a row, for the smallest wind
constexpr float BlockTint = 0.22F;

/// One wind load, with the row that it stands in: from the stud upwards where it presses, downwards where it
/// draws.
struct WindBlock {
    char Letter;
    double Begin;  // ft from the base
    double End;
    double Psf;
    int Row = 0;

    bool Presses() const { return Psf > 0; }
};

bool Overlap(const WindBlock& a, const WindBlock& b)
{
    return a.Presses() == b.Presses() && a.Begin < b.End && b.Begin < a.End;
}

std::vector<WindBlock> BlocksOf(const StudColumnProblem& stud)
{
    std::vector<WindBlock> blocks;
    for (std::size_t k = 0; k < WindLoadCount; ++k) {
        if (stud.Wind[k] == 0 || stud.End[k] <= stud.Beg[k]) {
            continue;
        }
        WindBlock block{static_cast<char>('A' + k), stud.Beg[k], stud.End[k], stud.Wind[k]};
        for (const WindBlock& other : blocks) {
            block.Row = Overlap(block, other) ? std::max(block.Row, other.Row + 1) : block.Row;
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
        Settle(blocks);
        for (const WindBlock& block : blocks) {
            DrawBlock(block);
        }
        DrawStud();
    }

private:
    /// Rows of equal height above the stud and below it.
    void Settle(const std::vector<WindBlock>& blocks)
    {
        int above = 0;
        int below = 0;
        for (const WindBlock& block : blocks) {
            int& rows = block.Presses() ? above : below;
            rows = std::max(rows, block.Row + 1);
            largest = std::max(largest, std::abs(block.Psf));
        }
        rowHeight = room.height() / std::max(above + below, 1);
        studY = room.top() + above * rowHeight;
    }

    QRectF AreaOf(const WindBlock& block) const
    {
        const double share = LeastBlockShare + (1 - LeastBlockShare) * std::abs(block.Psf) / largest;
        const double height = std::max(share * (rowHeight - BlockGap * line), 0.0);
        const double near = (block.Row * rowHeight + BlockGap * line);
        const double left = axis.Across(block.Begin);
        const double top = block.Presses() ? studY - near - height : studY + near;
        return {left, top, axis.Across(block.End) - left, height};
    }

    void DrawBlock(const WindBlock& block)
    {
        const QRectF where = AreaOf(block);
        QColor tint = colors.Load;
        tint.setAlphaF(BlockTint);
        painter.setPen(colors.Load);
        painter.setBrush(tint);
        painter.drawRect(where);
        const int count = std::max(1, static_cast<int>(where.width() / (ArrowPitch * line)));
        for (int k = 0; k < count; ++k) {
            DrawArrow(where, where.left() + (k + 0.5) * where.width() / count);
        }
        DrawCaption(block, where);
    }

    /// Pressure points down to the stud, and suction down from it.
    void DrawArrow(const QRectF& where, double x)
    {
        const QPointF tip(x, where.bottom());
        const double length = std::min(HeadLength * line, where.height() / 2);
        painter.drawLine(QPointF(x, where.top()), tip);
        painter.setBrush(colors.Load);
        painter.drawPolygon(
            QPolygonF{tip, tip + QPointF(-length / 2, -length), tip + QPointF(length / 2, -length)});
    }

    void DrawCaption(const WindBlock& block, const QRectF& where)
    {
        const QString caption =
            Text(std::string(1, block.Letter) + " " + PlainNumber(static_cast<float>(block.Psf)));
        const double width = painter.fontMetrics().horizontalAdvance(caption) + line / 2;
        const QRectF patch(where.center().x() - width / 2, where.center().y() - line / 2, width, line);
        painter.fillRect(patch, ground);
        painter.setPen(colors.Text);
        painter.drawText(patch, Qt::AlignCenter, caption);
    }

    void DrawStud()
    {
        painter.setPen(QPen(colors.Line, StudWidth * line));
        painter.drawLine(QPointF(axis.Left(), studY), QPointF(axis.Right(), studY));
        const QRectF ends(axis.Left() - line, room.bottom(), axis.Right() - axis.Left() + 2 * line,
                          EndsHeight * line);
        painter.setPen(colors.Text);
        painter.drawText(ends, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Base"));
        painter.drawText(ends, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("Top"));
        painter.drawText(ends, Qt::AlignCenter, Text(FormatNumber(axis.Length(), "#0.00") + " ft"));
    }

    QPainter& painter;
    SketchColors colors;
    QColor ground;
    double line;
    FeetAxis axis;
    QRectF whole;
    QRectF room;  // of the stud and its wind
    double largest = 0;
    double rowHeight = 0;
    double studY = 0;
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
