#include "forms/SketchParts.h"

#include <QLineF>
#include <QPainter>
#include <QPolygonF>

namespace kordavan {

void DrawDimension(QPainter& painter, QPointF from, QPointF to, double tick)
{
    const double length = QLineF(from, to).length();
    const QPointF along = length > 0 ? (to - from) / length : QPointF(0, 1);
    const QPointF across = tick * QPointF(-along.y(), along.x());
    painter.drawLine(from, to);
    painter.drawLine(from - across, from + across);
    painter.drawLine(to - across, to + across);
}

void DrawArrow(QPainter& painter, QPointF from, QPointF to, double headLength, const QColor& color)
{
    constexpr double shaftShare = 0.28;  // of the head's length
    constexpr double headShare = 0.45;
    const QLineF whole(from, to);
    if (whole.length() <= headLength) {
        return;
    }
    const QPointF along = (to - from) / whole.length();
    const QPointF across(-along.y(), along.x());
    const QPointF neck = to - headLength * along;
    painter.setPen(QPen(color, shaftShare * headLength, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(from, neck);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const QPointF half = headShare * headLength * across;
    painter.drawPolygon(QPolygonF{to, neck + half, neck - half});
    painter.setBrush(Qt::NoBrush);
}

void DrawHold(QPainter& painter, const QRectF& strip, HeldSide side, const QColor& color)
{
    constexpr double pitch = 6;
    painter.save();
    painter.setPen(QPen(color, 1));
    const bool isUpright = side == HeldSide::Left;
    painter.drawLine(isUpright ? strip.topRight() : strip.topLeft(),
                     isUpright ? strip.bottomRight() : strip.topRight());
    painter.setClipRect(strip, Qt::IntersectClip);
    const int lineCount = static_cast<int>((strip.width() + strip.height()) / pitch);
    for (int line = 1; line <= lineCount; ++line) {
        const double along = line * pitch;
        painter.drawLine(strip.topLeft() + QPointF(along, 0), strip.topLeft() + QPointF(0, along));
    }
    painter.restore();
}

}  // namespace kordavan
