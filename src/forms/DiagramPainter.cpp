#include "forms/DiagramPainter.h"

#include <QLineF>
#include <QPalette>
#include <algorithm>

#include "forms/Kit.h"

namespace kordavan {

namespace {

// Heights and widths in lines of text.
constexpr double TagHeight = 1.3;
constexpr double TagGap = 0.25;
constexpr double BarHeight = 1.5;
constexpr double LoadRowHeight = TagHeight + 2 * TagGap + BarHeight;
constexpr double MostRowHeight = 5;
constexpr double ArrowTop = TagHeight + 2 * TagGap;
constexpr double SupportHeight = 0.8;
constexpr double NamedSupportHeight = 2.1;
constexpr double DistanceHeight = 1.7;
constexpr double SideMargin = 1.5;
constexpr double HeadLength = 0.6;      // of distances
constexpr double LoadHeadLength = 0.9;  // of point loads
constexpr double BeamWidth = 0.2;
constexpr double LoadWidth = 0.14;
constexpr double LiveWidth = 0.35;

constexpr double HeadHalfShare = 0.36;  // half the breadth of a head beside its length
constexpr double LiveShare = 0.55;      // of the drawn loads
constexpr float TintOfLoad = 0.22F;

int DistanceRows(const BeamDiagram& diagram)
{
    int rows = 0;
    for (const DiagramDistance& distance : diagram.Distances) {
        rows = std::max(rows, distance.Row + 1);
    }
    return rows;
}

QColor Tint(QColor color)
{
    color.setAlphaF(TintOfLoad);
    return color;
}

/// Takes what is more than a height off a rectangle, evenly above and below.
void Narrow(QRectF& where, double height)
{
    const double spare = std::max(0.0, where.height() - height) / 2;
    where.adjust(0, spare, 0, -spare);
}

QRectF QuarterOf(const QRectF& plan, std::size_t quarter)
{
    const QPointF corner(quarter % 2 == 0 ? plan.left() : plan.center().x(),
                         quarter < 2 ? plan.top() : plan.center().y());
    return {corner, plan.size() / 2};
}

}  // namespace

DiagramPainter::DiagramPainter(QPainter& thePainter, const QRectF& wholeArea, const QPalette& palette)
    : painter(thePainter),
      area(wholeArea),
      colors(palette),
      ground(palette.color(QPalette::Base)),
      line(thePainter.fontMetrics().height())
{
    painter.setRenderHint(QPainter::Antialiasing);
}

double DiagramPainter::HeightOf(const BeamDiagram& diagram)
{
    return ArrowTop + diagram.LoadRows * LoadRowHeight + NamedSupportHeight +
           DistanceRows(diagram) * DistanceHeight;
}

void DiagramPainter::Draw(const BeamDiagram& diagram)
{
    Settle(diagram);
    for (const DiagramDistance& distance : diagram.Distances) {
        DrawDistance(distance);
    }
    for (const DiagramLoad& load : diagram.Loads) {
        DrawLoad(load);
    }
    painter.setPen(QPen(colors.Line, BeamWidth * line));
    painter.drawLine(QPointF(left, beamY), QPointF(right, beamY));
    DrawSupport(left, "R1");
    DrawSupport(Across(diagram.R2), "R2");
    for (const DiagramLoad& load : diagram.Loads) {
        const bool isArrow = load.Shape == DiagramShape::Arrow;
        const double y =
            isArrow ? area.top() + TagHeight / 2 * line : BarOf(load).top() - (TagGap + TagHeight / 2) * line;
        DrawTag({Across(load.TagPlace), y}, load.Tag, load.OnOverhang ? colors.OverhangTotal : colors.Text);
    }
}

void DiagramPainter::Settle(const BeamDiagram& diagram)
{
    secondSupport = diagram.R2;
    left = area.left() + SideMargin * line;
    right = area.right() - SideMargin * line;
    const double below = (NamedSupportHeight + DistanceRows(diagram) * DistanceHeight) * line;
    const double loadRoom = area.height() - ArrowTop * line - below;
    rowHeight = std::min(loadRoom / diagram.LoadRows, MostRowHeight * line);
    Narrow(area, ArrowTop * line + diagram.LoadRows * rowHeight + below);
    beamY = area.bottom() - below;
}

double DiagramPainter::Across(double share) const
{
    return left + share * (right - left);
}

const QColor& DiagramPainter::ColorOf(const DiagramLoad& load) const
{
    return load.OnOverhang ? colors.OverhangTotal : colors.Load;
}

const QColor& DiagramPainter::LiveColorOf(const DiagramLoad& load) const
{
    return load.OnOverhang ? colors.OverhangLive : colors.Load;
}

/// Where the thin line begins that leads down to a distance: below the name of a support.
double DiagramPainter::TopOfLead(double share) const
{
    const bool isSupport = share <= 0 || share == secondSupport;
    return beamY + (isSupport ? NamedSupportHeight * line : 0);
}

double DiagramPainter::DistanceY(int row) const
{
    return beamY + (NamedSupportHeight + (row + 0.5) * DistanceHeight) * line;
}

QRectF DiagramPainter::BarOf(const DiagramLoad& load) const
{
    const double height = rowHeight - (TagHeight + 2 * TagGap) * line;
    const double bottom = beamY - load.Row * rowHeight - TagGap * line;
    return {Across(load.Begin), bottom - height, (load.End - load.Begin) * (right - left), height};
}

void DiagramPainter::DrawLoad(const DiagramLoad& load)
{
    switch (load.Shape) {
        case DiagramShape::Bar:
            DrawBar(load);
            break;
        case DiagramShape::Arrow:
            DrawArrow(load);
            break;
        case DiagramShape::Rising:
            DrawRising(load);
            break;
    }
}

void DiagramPainter::DrawBar(const DiagramLoad& load)
{
    const QRectF bar = BarOf(load);
    painter.fillRect(bar, Tint(ColorOf(load)));
    const double live = LiveShare * bar.height();
    painter.fillRect(QRectF(bar.left(), bar.bottom() - live, bar.width(), live),
                     QBrush(LiveColorOf(load), Qt::BDiagPattern));
    painter.setPen(ColorOf(load));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(bar);
}

void DiagramPainter::DrawArrow(const DiagramLoad& load)
{
    const QPointF top(Across(load.Begin), area.top() + TagHeight * line);
    const QPointF tip(top.x(), beamY - BeamWidth / 2 * line);
    const QPointF neck(tip.x(), tip.y() - LoadHeadLength * line);
    const QPointF liveTop(tip.x(), tip.y() - LiveShare * (tip.y() - top.y()));
    painter.setPen(QPen(ColorOf(load), LoadWidth * line));
    painter.drawLine(top, neck);
    painter.setPen(QPen(LiveColorOf(load), LiveWidth * line, Qt::DotLine, Qt::FlatCap));
    painter.drawLine(liveTop, neck);
    DrawHead(tip, top, LoadHeadLength * line, ColorOf(load));
}

void DiagramPainter::DrawRising(const DiagramLoad& load)
{
    const QRectF bar = BarOf(load);
    const double live = LiveShare * bar.height();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(colors.Load, Qt::BDiagPattern));
    painter.drawPolygon(QPolygonF{
        {bar.left(), bar.bottom()}, {bar.right(), bar.bottom()}, {bar.right(), bar.bottom() - live}});
    painter.setPen(colors.Load);
    painter.setBrush(Tint(colors.Load));
    painter.drawPolygon(QPolygonF{bar.bottomLeft(), bar.bottomRight(), bar.topRight()});
}

void DiagramPainter::DrawSupport(double x, std::string_view name)
{
    const double top = beamY + BeamWidth / 2 * line;
    const double height = SupportHeight * line;
    const double half = height * 0.6;
    painter.setPen(colors.Line);
    painter.setBrush(ground);
    painter.drawPolygon(QPolygonF{{x, top}, {x - half, top + height}, {x + half, top + height}});
    painter.setPen(colors.Text);
    painter.drawText(QRectF(x - 2 * line, top + height, 4 * line, line), Qt::AlignCenter, Text(name));
}

void DiagramPainter::DrawDistance(const DiagramDistance& distance)
{
    const double y = DistanceY(distance.Row);
    const double tail = TagGap * line;
    painter.setPen(QPen(colors.Faint, 1, Qt::DashLine));
    for (const double share : {distance.From, distance.To}) {
        painter.drawLine(QPointF(Across(share), TopOfLead(share)), QPointF(Across(share), y + tail));
    }
    DrawDimension({Across(distance.From), y}, {Across(distance.To), y}, distance.Tag,
                  distance.OnOverhang ? colors.OverhangTotal : colors.Text);
}

void DiagramPainter::DrawDimension(QPointF from, QPointF to, std::string_view tag, const QColor& color)
{
    painter.setPen(color);
    painter.drawLine(from, to);
    DrawHead(from, to, HeadLength * line, color);
    DrawHead(to, from, HeadLength * line, color);
    DrawTag((from + to) / 2, tag, color);
}

void DiagramPainter::DrawHead(QPointF tip, QPointF from, double length, const QColor& color)
{
    const QLineF shaft(tip, from);
    const QPointF along = (from - tip) / shaft.length() * length;
    const QPointF aside = QPointF(-along.y(), along.x()) * HeadHalfShare;
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(QPolygonF{tip, tip + along + aside, tip + along - aside});
}

/// The tag about a point, moved as far as it takes to stay in the picture.
QRectF DiagramPainter::TagArea(QPointF center, std::string_view tag) const
{
    const double width = painter.fontMetrics().horizontalAdvance(Text(tag)) + line;
    QRectF where(center.x() - width / 2, center.y() - TagHeight / 2 * line, width, TagHeight * line);
    where.translate(std::max(0.0, area.left() - where.left()), 0);
    where.translate(std::min(0.0, area.right() - where.right()), 0);
    return where;
}

void DiagramPainter::DrawTag(QPointF center, std::string_view tag, const QColor& ink)
{
    const QRectF where = TagArea(center, tag);
    const double radius = TagGap * line;
    painter.setPen(ink == colors.Text ? colors.Faint : ink);
    painter.setBrush(ground);
    painter.drawRoundedRect(where, radius, radius);
    painter.setPen(ink);
    painter.drawText(where, Qt::AlignCenter, Text(tag));
}

void DiagramPainter::Draw(const PlanDiagram& diagram)
{
    const double beside = painter.fontMetrics().horizontalAdvance(Text(diagram.DownTag)) + 2 * line;
    const double above = DistanceHeight * line;
    constexpr double slope = 0.75;  // at most, as the diagonal would cross the captions of a steeper plan
    QRectF plan = area.adjusted(beside, above, -2.5 * line, -1.2 * line);
    Narrow(plan, slope * plan.width());
    DrawQuarters(plan, diagram);
    DrawMember(plan);
    for (std::size_t k = 0; k < PlanQuarterCount; ++k) {
        DrawCheck(QuarterOf(plan, k).center(), diagram.IsChecked[k], diagram.QuarterTag);
    }
    const double y = plan.top() - above / 2;
    DrawDimension({plan.left(), y}, {plan.right(), y}, diagram.AcrossTag, colors.Text);
    const double x = plan.left() - beside / 2;
    DrawDimension({x, plan.top()}, {x, plan.bottom()}, diagram.DownTag, colors.Text);
}

void DiagramPainter::DrawQuarters(const QRectF& plan, const PlanDiagram& diagram)
{
    for (std::size_t k = 0; k < PlanQuarterCount; ++k) {
        if (diagram.IsChecked[k]) {
            painter.fillRect(QuarterOf(plan, k), Tint(colors.Load));
        }
    }
    painter.setPen(colors.Faint);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(plan);
    painter.drawLine(QLineF(plan.center().x(), plan.top(), plan.center().x(), plan.bottom()));
    painter.drawLine(QLineF(plan.left(), plan.center().y(), plan.right(), plan.center().y()));
}

void DiagramPainter::DrawMember(const QRectF& plan)
{
    painter.setPen(QPen(colors.Line, BeamWidth * line));
    painter.drawLine(plan.bottomLeft(), plan.topRight());
    painter.setPen(colors.Text);
    const QSizeF name(2 * line, line);
    const QPointF low = plan.bottomLeft() - QPointF(name.width() / 2, 0);
    const QPointF high = plan.topRight() - QPointF(0, name.height() / 2);
    painter.drawText(QRectF(low, name), Qt::AlignCenter, QStringLiteral("R1"));
    painter.drawText(QRectF(high, name), Qt::AlignCenter, QStringLiteral("R2"));
}

void DiagramPainter::DrawCheck(QPointF center, bool isChecked, std::string_view tag)
{
    const double half = line / 2;
    const QRectF square(center.x() - half, center.y() - half, line, line);
    painter.setPen(colors.Line);
    painter.setBrush(ground);
    painter.drawRect(square);
    if (isChecked) {
        const QPointF start(square.left() + 0.2 * line, center.y());
        const QPointF foot(center.x() - 0.05 * line, square.bottom() - 0.25 * line);
        const QPointF end(square.right() - 0.2 * line, square.top() + 0.2 * line);
        painter.setPen(QPen(colors.Line, LoadWidth * line));
        painter.drawPolyline(QPolygonF{start, foot, end});
    }
    painter.setPen(colors.Text);
    painter.drawText(QRectF(center.x() - 2 * line, square.bottom(), 4 * line, TagHeight * line),
                     Qt::AlignCenter, Text(tag));
}

}  // namespace kordavan
