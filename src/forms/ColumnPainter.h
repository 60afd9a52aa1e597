#pragma once

#include <QRectF>
#include <QString>

#include "columns/ColumnPicture.h"
#include "forms/BeamPainter.h"

namespace kordavan {

/// Draws a column as seen along each of its bracing planes: load, height, braces, and how it would buckle
/// between them.
class ColumnPainter {
public:
    ColumnPainter(QPainter& painter, const QRectF& area, const SketchColors& colors);

    void Draw(const ColumnPicture& picture);

private:
    void DrawHeight(const ColumnPicture& picture);
    void DrawView(const ColumnPicture& picture, const ColumnPlanePicture& plane, const QString& title,
                  const QRectF& pane);
    void DrawBody(const ColumnPicture& picture, const QRectF& body, bool showsPlies);
    void DrawLoad(const ColumnPicture& picture, const QRectF& body, const QRectF& pane);
    void DrawBracing(const ColumnPicture& picture, const ColumnPlanePicture& plane, const QRectF& body,
                     const QRectF& pane);
    void DrawBrace(const QRectF& body, double y);
    void DrawBow(const QRectF& body, double from, double to, bool toTheRight);
    void DrawLength(const ColumnPlanePicture& plane, const QRectF& body, double top, const QRectF& pane);

    QPainter& painter;
    QRectF area;
    const SketchColors& colors;
    double line;
    double top = 0;   // of the column
    double base = 0;  // of the column
};

}  // namespace kordavan
