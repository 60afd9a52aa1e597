#include "forms/NotchInk.h"

#include <algorithm>
#include <cmath>

#include "forms/Kit.h"
#include "forms/SketchParts.h"

namespace kordavan {

namespace {

// In lines of text.
constexpr double Tick = 0.25;
constexpr double WordsWidth = 12;
constexpr double WordsHeight = 3;
constexpr double ArrowLength = 1.6;

constexpr float TintOfWood = 0.2F;

}  // namespace

NotchInk::NotchInk(QPainter& thePainter, const SketchColors& sketchColors)
    : painter(thePainter), colors(sketchColors), line(thePainter.fontMetrics().height())
{
}

void NotchInk::DrawWood(const QPolygonF& outline)
{
    QColor tint = colors.Load;
    tint.setAlphaF(TintOfWood);
    painter.setPen(QPen(colors.Line, 1.5));
    painter.setBrush(tint);
    painter.drawPolygon(outline);
    painter.setBrush(Qt::NoBrush);
}

void NotchInk::DrawTaken(const QPolygonF& outline)
{
    painter.setPen(QPen(colors.Faint, 1, Qt::DotLine));
    painter.drawPolygon(outline);
}

void NotchInk::DrawSupport(const QRectF& support)
{
    DrawHold(painter, support, HeldSide::Below, colors.Line);
    painter.setPen(QPen(colors.Line, 1));
    painter.drawLine(support.topLeft(), support.bottomLeft());
    painter.drawLine(support.topRight(), support.bottomRight());
}

void NotchInk::DrawShear(QPointF under, const std::string& text)
{
    if (text.empty()) {
        return;
    }
    const QPointF tail = under + QPointF(0, ArrowLength * line);
    DrawArrow(painter, tail, under, 0.8 * line, colors.Load);
    painter.setPen(colors.Text);
    const QPointF beside = under + QPointF(-(WordsWidth + 0.8) * line, 0.4 * line);
    painter.drawText(QRectF(beside, QSizeF(WordsWidth * line, line)), Qt::AlignRight | Qt::AlignVCenter,
                     Text(text));
}

void NotchInk::DrawMinimum(const QLineF& level, SizeWords side, const std::string& text)
{
    if (text.empty()) {
        return;
    }
    painter.setPen(QPen(colors.Load, 1.5, Qt::DashLine));
    painter.drawLine(level);
    painter.save();
    painter.translate(level.p2());
    painter.rotate(-level.angle());
    painter.setPen(colors.Text);
    const double top = side == SizeWords::Above ? -1.15 * line : 0.15 * line;
    const QRectF words(-WordsWidth * line, top, WordsWidth * line, line);
    painter.drawText(words, Qt::AlignRight | Qt::AlignVCenter, Text(text));
    painter.restore();
}

void NotchInk::DrawSize(const QLineF& size, SizeWords side, const std::string& text, const QString& symbol)
{
    painter.setPen(QPen(colors.Line, 1));
    DrawDimension(painter, size.p1(), size.p2(), Tick * line);
    QRectF words(0, 0, WordsWidth * line, WordsHeight * line);
    const QPointF middle = size.center();
    const double gap = (0.5 + std::min(std::abs(size.dx()), std::abs(size.dy())) / size.length()) * line;
    Qt::Alignment alignment = Qt::AlignCenter;
    switch (side) {
        case SizeWords::Left:
            words.moveTopRight(middle - QPointF(gap, words.height() / 2));
            alignment = Qt::AlignRight | Qt::AlignVCenter;
            break;
        case SizeWords::Right:
            words.moveTopLeft(middle + QPointF(gap, -words.height() / 2));
            alignment = Qt::AlignLeft | Qt::AlignVCenter;
            break;
        case SizeWords::Above:
            words.moveBottomLeft(middle - QPointF(words.width() / 2, 0.3 * line));
            alignment = Qt::AlignHCenter | Qt::AlignBottom;
            break;
        case SizeWords::Below:
            words.moveTopLeft(middle + QPointF(-words.width() / 2, 0.3 * line));
            alignment = Qt::AlignHCenter | Qt::AlignTop;
            break;
    }
    painter.setPen(text.empty() ? colors.Faint : colors.Text);
    painter.drawText(words, alignment, text.empty() ? symbol : Text(text));
}

}  // namespace kordavan
