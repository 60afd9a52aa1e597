#pragma once

#include <QPointF>
#include <QRectF>

class QColor;
class QPainter;

namespace kordavan {

/// A line between two ticks across it, in the pen of the painter.
void DrawDimension(QPainter& painter, QPointF from, QPointF to, double tick);

/// An arrow whose point is at its end.
void DrawArrow(QPainter& painter, QPointF from, QPointF to, double headLength, const QColor& color);

/// Where a member is held: below it or at its left.
enum class HeldSide { Left, Below };

/// What holds a member: the line along which it does, with a hatched strip beyond.
void DrawHold(QPainter& painter, const QRectF& strip, HeldSide side, const QColor& color);

}  // namespace kordavan
