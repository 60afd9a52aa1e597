#include "forms/NotchPainter.h"

#include <QPainterPath>
#include <algorithm>

#include "forms/Kit.h"
#include "forms/RafterPainter.h"

namespace kordavan {

namespace {

// In lines of text.
constexpr double SideRoom = 6.5;
constexpr double AboveRoom = 2.2;
constexpr double BelowRoom = 3;
constexpr double MostDepth = 18;
constexpr double SupportHeight = 0.7;
constexpr double BeyondSupport = 1.2;  // of a tension notch

constexpr double BearingShare = 0.22;    // of the member's length
constexpr double MostCutShare = 0.7;     // of the member's length
constexpr double SectionShare = 0.28;    // of the area, for the section of a log
constexpr double UsualRemainder = 0.75;  // of the depth

/// The part of the depth that remains.
double RemainingShare(const NotchPicture& picture)
{
    const bool isKnown = picture.Depth > 0 && picture.DepthAtNotch > 0;
    return isKnown ? std::min(picture.DepthAtNotch / picture.Depth, 1.0) : UsualRemainder;
}

/// The end of the member, and a break line where it goes on.
QPolygonF EndOutline(const QRectF& member, const QRectF& cut, bool isCutBelow, double line)
{
    const double right = member.right();
    const double middle = member.center().y();
    QPolygonF outline;
    if (isCutBelow) {
        outline << member.topLeft() << member.topRight();
    } else {
        outline << cut.bottomLeft() << cut.bottomRight() << cut.topRight() << member.topRight();
    }
    outline << QPointF(right, middle - 0.8 * line) << QPointF(right - 0.5 * line, middle - 0.25 * line)
            << QPointF(right + 0.5 * line, middle + 0.25 * line) << QPointF(right, middle + 0.8 * line)
            << member.bottomRight();
    if (isCutBelow) {
        outline << cut.bottomRight() << cut.topRight() << cut.topLeft();
    } else {
        outline << member.bottomLeft();
    }
    return outline;
}

}  // namespace

NotchPainter::NotchPainter(QPainter& thePainter, const QRectF& wholeArea, const SketchColors& sketchColors)
    : painter(thePainter),
      area(wholeArea),
      colors(sketchColors),
      ink(thePainter, sketchColors),
      line(ink.Line())
{
}

void NotchPainter::Draw(const NotchPicture& picture)
{
    QRectF room = area;
    if (picture.Member == NotchMember::SawnRound) {
        const double width = SectionShare * area.width();
        room.setRight(area.right() - width);
        DrawSection(picture, {room.right(), area.top(), width, area.height()});
    }
    if (picture.Notch == NotchType::Tapered) {
        RafterPainter(painter, room, colors).Draw(picture);
    } else {
        DrawLevelEnd(picture, room);
    }
}

void NotchPainter::DrawLevelEnd(const NotchPicture& picture, const QRectF& room)
{
    const double height =
        std::min(room.height() - (AboveRoom + SupportHeight + BelowRoom) * line, MostDepth * line);
    const double above = (room.height() - height - (SupportHeight + BelowRoom - AboveRoom) * line) / 2;
    const QRectF member(room.left() + SideRoom * line, room.top() + above, room.width() - 2 * SideRoom * line,
                        height);
    const double bearing = BearingShare * member.width();
    const bool isBelow = picture.Notch == NotchType::Tension;
    const double perInch = picture.Depth > 0 ? height / picture.Depth : 0;
    const double beyond = isBelow ? BeyondSupport * line : picture.Setback * perInch;
    const double taken = height * (1 - RemainingShare(picture));
    const QRectF cut(member.left(), isBelow ? member.bottom() - taken : member.top(),
                     std::min(bearing + beyond, MostCutShare * member.width()), taken);
    ink.DrawTaken(cut);
    ink.DrawWood(EndOutline(member, cut, isBelow, line));
    const QRectF support(member.left(), isBelow ? cut.top() : member.bottom(), bearing, SupportHeight * line);
    ink.DrawSupport(support);
    ink.DrawShear({support.center().x(), support.bottom() + 2}, picture.ShearText);
    DrawLevelSizes(picture, member, cut, bearing);
}

void NotchPainter::DrawLevelSizes(const NotchPicture& picture, const QRectF& member, const QRectF& cut,
                                  double bearing)
{
    const bool isBelow = picture.Notch == NotchType::Tension;
    const double left = member.left() - 0.8 * line;
    const double right = member.right() + line;
    const QLineF remaining = isBelow ? QLineF(left, member.top(), left, cut.top())
                                     : QLineF(left, cut.bottom(), left, member.bottom());
    ink.DrawSize(remaining, SizeWords::Left, picture.DepthAtNotchText, QStringLiteral("dn"));
    ink.DrawSize({right, member.top(), right, member.bottom()}, SizeWords::Right, picture.DepthText,
                 QStringLiteral("d"));
    if (!isBelow) {
        const double y = member.top() - 0.6 * line;
        ink.DrawSize({member.left() + bearing, y, cut.right(), y}, SizeWords::Above, picture.SetbackText,
                     QStringLiteral("e"));
    }
    if (picture.Depth > 0) {
        const double least = member.height() * std::min(picture.MinimumDn / picture.Depth, 1.0);
        const double y = isBelow ? member.top() + least : member.bottom() - least;
        ink.DrawMinimum({member.left() - 0.4 * line, y, member.right() - line, y},
                        isBelow ? SizeWords::Above : SizeWords::Below, picture.MinimumText);
    }
}

void NotchPainter::DrawSection(const NotchPicture& picture, const QRectF& room)
{
    const double diameter = std::min({room.width() - line, room.height() - 4 * line, MostDepth * line});
    QRectF circle(0, 0, diameter, diameter);
    circle.moveCenter(room.center());
    const bool isBelow = picture.Notch != NotchType::Compression;
    const double taken = diameter * (1 - RemainingShare(picture));
    QRectF takenSide = circle;
    if (isBelow) {
        takenSide.setTop(circle.bottom() - taken);
    } else {
        takenSide.setBottom(circle.top() + taken);
    }
    QPainterPath log;
    log.addEllipse(circle);
    QPainterPath side;
    side.addRect(takenSide);
    ink.DrawTaken(log.toFillPolygon());
    ink.DrawWood(log.subtracted(side).toFillPolygon());
    painter.setPen(colors.Faint);
    painter.drawText(QRectF(room.left(), circle.bottom() + 0.4 * line, room.width(), 2 * line),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     QStringLiteral("section at the notch"));
}

}  // namespace kordavan
