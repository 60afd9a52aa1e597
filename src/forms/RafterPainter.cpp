#include "forms/RafterPainter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "forms/Kit.h"

namespace kordavan {

namespace {

// In lines of text.
constexpr double SideRoom = 7;
constexpr double AboveRoom = 1;
constexpr double BelowRoom = 5;
constexpr double SizeGap = 0.8;
constexpr double WallHeight = 2;
constexpr double ArcRadius = 3;

// As drawn; the words tell what is entered.
constexpr double UsualDepth = 10;       // in.
constexpr double UsualRemainder = 0.5;  // of the depth
constexpr double UsualAngle = 25;       // degrees
constexpr double LeastAngle = 12;
constexpr double MostAngle = 55;
constexpr double UsualWall = 0.6;  // of the rafter's depth
constexpr double LeastWall = 0.2;
constexpr double MostWall = 2.5;
constexpr double ShownLength = 2.2;

}  // namespace

RafterPainter::RafterPainter(QPainter& thePainter, const QRectF& wholeArea, const SketchColors& sketchColors)
    : painter(thePainter),
      area(wholeArea),
      colors(sketchColors),
      ink(thePainter, sketchColors),
      line(ink.Line())
{
}

void RafterPainter::Draw(const NotchPicture& picture)
{
    Place(picture);
    const double below = QPointF::dotProduct(inner - outer, across);
    ink.DrawTaken(QPolygonF{outer, inner, outer + below * across});
    ink.DrawWood(QPolygonF{outer, inner, endBottom, endTop, footTop});
    ink.DrawSupport(wall);
    DrawAngle(picture.AngleText);
    DrawSizes(picture);
}

/// Works the picture out in inches from the inner end of the seat, y downward, then brings it to the area.
void RafterPainter::Place(const NotchPicture& picture)
{
    const double known = std::max(picture.RafterDepth, picture.Depth);
    const double depth = known > 0 ? known : UsualDepth;
    const double remaining =
        picture.DepthAtNotch > 0 ? std::min(picture.DepthAtNotch, depth) : UsualRemainder * depth;
    const double angle =
        std::clamp(picture.SeatAngle > 0 ? picture.SeatAngle : UsualAngle, LeastAngle, MostAngle) *
        std::numbers::pi / 180;
    up = QPointF(std::cos(angle), -std::sin(angle));
    across = QPointF(-std::sin(angle), -std::cos(angle));
    const double seat = (depth - remaining) / std::sin(angle);
    const double breadth = std::clamp(picture.WallBreadth > 0 ? picture.WallBreadth : UsualWall * depth,
                                      LeastWall * depth, MostWall * depth);
    const double run = ShownLength * depth;

    const QPointF foot(-seat, 0);
    const QPointF top = foot + remaining * across;
    const QPointF end = run * up;
    const QPointF endAbove = end + depth * across;
    const double left = std::min(top.x(), foot.x());
    const double right = std::max(end.x(), foot.x() + breadth);
    const double highest = endAbove.y();
    const QRectF room =
        area.adjusted(SideRoom * line, AboveRoom * line, -SideRoom * line, -(BelowRoom + WallHeight) * line);
    perInch = std::min(room.width() / (right - left), room.height() / -highest);
    const QPointF origin(room.center().x() - perInch * (left + right) / 2,
                         room.center().y() - perInch * highest / 2);
    inner = origin;
    outer = origin + perInch * foot;
    footTop = origin + perInch * top;
    endBottom = origin + perInch * end;
    endTop = origin + perInch * endAbove;
    wall = QRectF(outer, QSizeF(perInch * breadth, WallHeight * line));
}

void RafterPainter::DrawSizes(const NotchPicture& picture)
{
    const QPointF gap = SizeGap * line * up;
    ink.DrawSize({outer - gap, footTop - gap}, SizeWords::Left, picture.DepthAtNotchText,
                 QStringLiteral("dn"));
    const std::string both = picture.DepthText.empty() || picture.RafterDepthText.empty() ? "" : "\n";
    ink.DrawSize({endBottom + gap, endTop + gap}, SizeWords::Right,
                 picture.RafterDepthText + both + picture.DepthText, QStringLiteral("rd"));
    const double y = wall.bottom() + 0.5 * line;
    ink.DrawSize({wall.left(), y, wall.right(), y}, SizeWords::Below, picture.WallBreadthText,
                 QStringLiteral("t"));
    ink.DrawShear({wall.center().x(), y + 1.5 * line}, picture.ShearText);
    if (picture.MinimumDn > 0) {
        const QPointF below = -perInch * picture.MinimumDn * across;
        ink.DrawMinimum({footTop + below - 0.5 * gap, endTop + below - gap}, SizeWords::Above,
                        picture.MinimumText);
    }
}

void RafterPainter::DrawAngle(const std::string& text)
{
    const double radius = ArcRadius * line;
    painter.setPen(QPen(colors.Line, 1));
    painter.drawLine(inner, inner + QPointF(1.3 * radius, 0));
    constexpr int sixteenths = 16;
    const double angle = QLineF({0, 0}, up).angle();
    painter.drawArc(QRectF(inner - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)), 0,
                    static_cast<int>(angle * sixteenths));
    painter.setPen(colors.Text);
    const double beside = std::max(inner.x() + 1.4 * radius, wall.right() + 0.4 * line);
    painter.drawText(QRectF(beside, inner.y() - line / 2, 8 * line, line), Qt::AlignLeft | Qt::AlignVCenter,
                     Text(text));
}

}  // namespace kordavan
