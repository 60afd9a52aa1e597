#pragma once

#include <QPointF>
#include <QRectF>
#include <QTransform>

#include "forms/NotchInk.h"
#include "notch/NotchPicture.h"

namespace kordavan {

/// Draws the foot of a rafter on its wall: the level seat that is cut into it, its sizes and its angle.
class RafterPainter {
public:
    RafterPainter(QPainter& painter, const QRectF& area, const SketchColors& colors);

    void Draw(const NotchPicture& picture);

private:
    void Place(const NotchPicture& picture);
    void DrawSizes(const NotchPicture& picture);
    void DrawAngle(const std::string& text);

    QPainter& painter;
    QRectF area;
    const SketchColors& colors;
    NotchInk ink;
    double line;

    QPointF up;      // the way up the rafter, of length 1
    QPointF across;  // from its lower to its upper edge, of length 1
    QPointF inner;   // where the seat begins at the lower edge
    QPointF outer;   // where it ends at the foot
    QPointF footTop;
    QPointF endBottom;
    QPointF endTop;
    QRectF wall;
    double perInch = 1;
};

}  // namespace kordavan
