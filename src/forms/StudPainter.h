#pragma once

#include <QRectF>
#include <QString>
#include <vector>

#include "columns/StudPicture.h"
#include "forms/BeamPainter.h"

namespace kordavan {

/// Draws a stud that lies on its base and its top: wind loads as blocks over their extents, suction the other
/// way, the axial load at its end.
class StudPainter {
public:
    StudPainter(QPainter& painter, const QRectF& area, const SketchColors& colors);

    void Draw(const StudPicture& picture);

private:
    struct Block {
        PictureWind Wind;
        QString Caption;
        QRectF Words;  // across; moved up and down with its row
        double From = 0;
        double To = 0;
        int Row = 0;
    };

    double Across(double feet) const { return left + feet * perFoot; }
    std::vector<Block> Arrange(const StudPicture& picture) const;
    void DrawStud(const StudPicture& picture);
    void DrawEnd(double x, const QString& name);
    void DrawAxial(const StudPicture& picture);
    void DrawWind(const Block& block, double rowHeight, double largest);
    void DrawArrows(const QRectF& block, bool isSuction);

    QPainter& painter;
    QRectF area;
    const SketchColors& colors;
    double line;
    double left;
    double right;
    double studTop;
    double perFoot = 1;
};

}  // namespace kordavan
