#include "forms/PlotPainter.h"

#include <QPalette>
#include <algorithm>
#include <array>
#include <cmath>

#include "core/NumberText.h"
#include "forms/Kit.h"

namespace kordavan {

namespace {

// Heights and widths in lines of text.
constexpr double Inset = 0.35;
constexpr double TitleHeight = 1.2;
constexpr double LabelHeight = 1.15;
constexpr double LabelGap = 0.3;
constexpr double FeetHeight = 1.3;
constexpr double LeastFeetPitch = 3.5;
constexpr double DotRadius = 0.2;
constexpr double SupportHeight = 0.5;

constexpr float TintOfCurve = 0.22F;
constexpr float TintOfGrid = 0.18F;
constexpr float TintOfLabel = 0.85F;

QColor WithAlpha(QColor color, float alpha)
{
    color.setAlphaF(alpha);
    return color;
}

/// The plot of a part; none of the loads.
const CurvePlot* PlotOf(const LoadDiagram& diagram, DiagramPart part)
{
    return part == DiagramPart::Loads ? nullptr : &diagram.Plots[static_cast<std::size_t>(part) - 1];
}

bool HasFeet(const CurvePlot* plot)
{
    return plot != nullptr && plot->HasFeet;
}

/// The least of 1, 2, 5, 10, 20, ... and 0.5, 0.2, 0.1, ... that is not below a length.
double RoundStep(double least)
{
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    for (const double digit : {1.0, 2.0, 5.0}) {
        if (digit * power >= least) {
            return digit * power;
        }
    }
    return 10 * power;
}

}  // namespace

FeetAxis::FeetAxis(const QRectF& area, double line, double beamLength)
    : left(area.left() + (Inset + BeamPainter::SideMargin) * line),
      right(area.right() - (Inset + BeamPainter::SideMargin) * line),
      length(beamLength)
{
}

double FeetAxis::FeetAt(double x) const
{
    return std::clamp((x - left) / (right - left), 0.0, 1.0) * length;
}

PlotPainter::PlotPainter(QPainter& thePainter, const QRectF& area, const QPalette& palette,
                         const LoadDiagram& drawn, DiagramPart drawnPart)
    : painter(thePainter),
      diagram(drawn),
      plot(PlotOf(drawn, drawnPart)),
      colors(palette),
      ground(palette.color(QPalette::Base)),
      line(thePainter.fontMetrics().height()),
      axis(area, line, drawn.Curves.Length),
      whole(area.adjusted(Inset * line, Inset * line, -Inset * line, -Inset * line)),
      room(whole.adjusted(0, TitleHeight * line, 0, HasFeet(plot) ? -FeetHeight * line : 0)),
      axisY(room.center().y())
{
    painter.setRenderHint(QPainter::Antialiasing);
    if (plot != nullptr && plot->HasCurve) {
        SettleHeights();
    }
}

void PlotPainter::Draw(std::optional<double> cursor)
{
    DrawPlotTitle(
        painter, whole, colors,
        plot == nullptr ? PlotTitle{"Loads", diagram.Caption} : PlotTitle{plot->Title, plot->Remark});
    if (plot != nullptr) {
        DrawFeet(plot->HasFeet);
    }
    if (cursor) {
        DrawCursor(*cursor);
    }
    if (plot == nullptr) {
        BeamPainter(painter, room, colors).Draw(diagram.Loads);
    } else if (plot->HasCurve) {
        DrawCurve();
    } else {
        DrawAxis();
        painter.setPen(colors.Faint);
        painter.drawText(room, Qt::AlignHCenter | Qt::AlignTop, Text(plot->Peaks));
    }
}

/// A line across the part, with a dot on the curve.
void PlotPainter::DrawCursor(double feet)
{
    const double x = axis.Across(feet);
    painter.setPen(QPen(colors.Faint, 1, Qt::DashLine));
    painter.drawLine(QPointF(x, room.top()), QPointF(x, room.bottom()));
    if (plot != nullptr && plot->HasCurve) {
        const CurveReading reading = ReadCurves(diagram.Curves, feet);
        DrawDot(x, Down(reading.Left.*plot->Value));
        DrawDot(x, Down(reading.Right.*plot->Value));
    }
}

/// The curve takes the room but for a label above it and one below.
void PlotPainter::SettleHeights()
{
    const double sign = plot->IsDownwards ? 1 : -1;
    double highest = 0;
    double lowest = 0;
    for (const BeamPoint& point : diagram.Curves.Points) {
        highest = std::min(highest, sign * (point.*plot->Value));
        lowest = std::max(lowest, sign * (point.*plot->Value));
    }
    const double margin = (LabelHeight + LabelGap) * line;
    const double above = highest < 0 ? margin : LabelGap * line;
    const double below = lowest > 0 ? margin : LabelGap * line + SupportHeight * line;
    const double height = std::max(room.height() - above - below, line);
    const double range = lowest - highest;
    perValue = range > 0 ? sign * height / range : 0;
    axisY = range > 0 ? room.top() + above - highest * height / range : room.center().y();
}

double PlotPainter::Down(double value) const
{
    return axisY + value * perValue;
}

void DrawPlotTitle(QPainter& painter, const QRectF& area, const SketchColors& colors, const PlotTitle& title)
{
    const double line = painter.fontMetrics().height();
    const QRectF strip(area.left(), area.top(), area.width(), line);
    const QFont plain = painter.font();
    QFont bold = plain;
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(colors.Text);
    painter.drawText(strip, Qt::AlignLeft | Qt::AlignVCenter, Text(title.Title));
    const double titleWidth = painter.fontMetrics().horizontalAdvance(Text(title.Title)) + line;
    painter.setFont(plain);
    painter.setPen(colors.Faint);
    const QString shown = painter.fontMetrics().elidedText(Text(title.Remark), Qt::ElideRight,
                                                           qRound(strip.width() - titleWidth));
    painter.drawText(strip, Qt::AlignRight | Qt::AlignVCenter, shown);
}

void PlotPainter::DrawFeet(bool isWritten)
{
    constexpr double binaryNoise = 1e-9;
    const double step = RoundStep(LeastFeetPitch * line * axis.Length() / (axis.Right() - axis.Left()));
    for (int tick = 0; tick * step <= axis.Length() * (1 + binaryNoise); ++tick) {
        const double x = axis.Across(tick * step);
        painter.setPen(QPen(WithAlpha(colors.Text, TintOfGrid), 1));
        painter.drawLine(QPointF(x, room.top()), QPointF(x, room.bottom()));
        if (isWritten) {
            painter.setPen(colors.Text);
            const QRectF where(x - 3 * line, room.bottom(), 6 * line, FeetHeight * line);
            painter.drawText(where, Qt::AlignHCenter | Qt::AlignBottom,
                             Text(PlainNumber(Single(tick * step))));
        }
    }
    if (isWritten) {
        const QRectF where(axis.Right(), room.bottom(), whole.right() - axis.Right(), FeetHeight * line);
        painter.setPen(colors.Text);
        painter.drawText(where, Qt::AlignRight | Qt::AlignBottom, QStringLiteral("ft"));
    }
}

void PlotPainter::DrawAxis()
{
    painter.setPen(QPen(colors.Line, 1));
    painter.drawLine(QPointF(axis.Left(), axisY), QPointF(axis.Right(), axisY));
    painter.setBrush(ground);
    const double height = SupportHeight * line;
    for (const PointForce& support : diagram.Curves.Supports) {
        const double x = axis.Across(support.At);
        painter.drawPolygon(
            QPolygonF{{x, axisY}, {x - 0.6 * height, axisY + height}, {x + 0.6 * height, axisY + height}});
    }
}

void PlotPainter::DrawCurve()
{
    const QPolygonF outline = OutlineOfCurve();
    QPainterPath path;
    path.addPolygon(outline);
    painter.fillPath(path, WithAlpha(colors.Load, TintOfCurve));
    DrawAxis();
    painter.setPen(QPen(colors.Load, 2));
    const qsizetype side = plot->IsDownwards ? 1 : 0;  // the elastic line ends in the air
    painter.drawPolyline(outline.constData() + side, static_cast<int>(outline.size() - 2 * side));
    DrawMarks(path);
}

/// From the axis along the curve and back to the axis.
QPolygonF PlotPainter::OutlineOfCurve() const
{
    QPolygonF outline{QPointF(axis.Left(), axisY)};
    for (const BeamPoint& point : diagram.Curves.Points) {
        outline.append({axis.Across(point.X), Down(point.*plot->Value)});
    }
    outline.append({axis.Right(), axisY});
    return outline;
}

void PlotPainter::DrawMarks(const QPainterPath& path)
{
    for (const CurveMark& mark : plot->Marks) {
        DrawDot(axis.Across(mark.X), Down(mark.Value));
        const QString text = Text(mark.Text);
        const QSizeF size(painter.fontMetrics().horizontalAdvance(text) + LabelGap * line,
                          LabelHeight * line);
        const QRectF where = PlaceLabel(mark, size, path);
        if (!where.isEmpty()) {
            taken.push_back(where);
            painter.fillRect(where, WithAlpha(ground, TintOfLabel));
            painter.setPen(colors.Text);
            painter.drawText(where, Qt::AlignCenter, text);
        }
    }
}

/// The nearest free place for a label, off the curve if there is one; empty where there is none.
QRectF PlotPainter::PlaceLabel(const CurveMark& mark, const QSizeF& size, const QPainterPath& path) const
{
    const double gap = LabelGap * line;
    const QPointF at(axis.Across(mark.X), Down(mark.Value));
    const double above = at.y() - gap - size.height();
    const double below = at.y() + gap;
    const double before = at.x() - gap - size.width();
    const double behind = at.x() + gap;
    const double centred = at.x() - size.width() / 2;
    const double level = at.y() - size.height() / 2;
    const bool isBelow = mark.Value * perValue > 0;
    const double outside = isBelow ? below : above;
    const double inside = isBelow ? above : below;
    const std::array corners{QPointF(centred, outside), QPointF(behind, outside), QPointF(before, outside),
                             QPointF(behind, level),    QPointF(before, level),   QPointF(behind, inside),
                             QPointF(before, inside),   QPointF(centred, inside)};
    const auto isFree = [&](const QRectF& where) {
        return std::none_of(taken.begin(), taken.end(),
                            [&where](const QRectF& other) { return other.intersects(where); });
    };
    QRectF free;
    for (const QPointF& corner : corners) {
        QRectF where(corner, size);
        where.moveLeft(std::max(whole.left(), std::min(where.left(), whole.right() - size.width())));
        where.moveTop(std::max(room.top(), std::min(where.top(), room.bottom() - size.height())));
        if (isFree(where)) {
            if (!path.intersects(where)) {
                return where;
            }
            free = free.isEmpty() ? where : free;
        }
    }
    return free;
}

void PlotPainter::DrawDot(double x, double y)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.Load);
    painter.drawEllipse(QPointF(x, y), DotRadius * line, DotRadius * line);
}

}  // namespace kordavan
