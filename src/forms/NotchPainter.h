#pragma once

#include <QRectF>

#include "forms/NotchInk.h"
#include "notch/NotchPicture.h"

namespace kordavan {

/// Draws the end of a member on its support: what the notch leaves and what it takes, its sizes, and dashed
/// the least depth that may remain; of a log also the section at the notch. A size that is not known is drawn
/// as is usual, with its symbol alone.
class NotchPainter {
public:
    NotchPainter(QPainter& painter, const QRectF& area, const SketchColors& colors);

    void Draw(const NotchPicture& picture);

private:
    void DrawLevelEnd(const NotchPicture& picture, const QRectF& room);
    void DrawLevelSizes(const NotchPicture& picture, const QRectF& member, const QRectF& cut, double bearing);
    void DrawSection(const NotchPicture& picture, const QRectF& room);

    QPainter& painter;
    QRectF area;
    const SketchColors& colors;
    NotchInk ink;
    double line;
};

}  // namespace kordavan
