#pragma once

#include <QLineF>
#include <QPainter>
#include <QPolygonF>
#include <string>

#include "forms/BeamPainter.h"

namespace kordavan {

/// Where the words of a size stand beside its line.
enum class SizeWords { Left, Right, Above, Below };

/// What the pictures of notched ends have in common.
class NotchInk {
public:
    NotchInk(QPainter& painter, const SketchColors& colors);

    /// The height of a line of text.
    double Line() const { return line; }

    void DrawWood(const QPolygonF& outline);

    /// What the notch has taken away.
    void DrawTaken(const QPolygonF& outline);

    /// A hatched support, and the shear that it gives to the member.
    void DrawSupport(const QRectF& support);
    void DrawShear(QPointF under, const std::string& text);

    /// The least depth that may remain, with its words at the end of the line.
    void DrawMinimum(const QLineF& level, SizeWords side, const std::string& text);

    /// A size with its words, or with its symbol where it is not known.
    void DrawSize(const QLineF& size, SizeWords side, const std::string& text, const QString& symbol);

private:
    QPainter& painter;
    const SketchColors& colors;
    double line;
};

}  // namespace kordavan
