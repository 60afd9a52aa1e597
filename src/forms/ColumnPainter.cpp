#include "forms/ColumnPainter.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "forms/Kit.h"
#include "forms/SketchParts.h"

namespace kordavan {

namespace {

// In lines of text.
constexpr double LoadRoom = 3.2;
constexpr double BelowRoom = 3.2;
constexpr double HeightRoom = 4.2;
constexpr double BodyWidth = 1.1;
constexpr double BraceLength = 0.8;
constexpr double BowWidth = 0.9;
constexpr double LeastSegment = 0.9;  // between braces; closer ones are drawn as one
constexpr double Tick = 0.25;

constexpr double BodyShare = 0.32;  // of a pane, where the column stands

}  // namespace

ColumnPainter::ColumnPainter(QPainter& thePainter, const QRectF& wholeArea, const SketchColors& sketchColors)
    : painter(thePainter),
      area(wholeArea),
      colors(sketchColors),
      line(thePainter.fontMetrics().height()),
      top(wholeArea.top() + LoadRoom * line),
      base(wholeArea.bottom() - BelowRoom * line)
{
}

void ColumnPainter::Draw(const ColumnPicture& picture)
{
    DrawHeight(picture);
    QRectF views = area.adjusted(HeightRoom * line, 0, 0, 0);
    if (picture.IsSteel) {
        DrawView(picture, picture.D1, QStringLiteral("Both planes"), views);
    } else {
        const double half = views.width() / 2;
        DrawView(picture, picture.D1, QStringLiteral("Plane D1"), views.adjusted(0, 0, -half, 0));
        DrawView(picture, picture.D2, QStringLiteral("Plane D2"), views.adjusted(half, 0, 0, 0));
    }
    painter.setPen(colors.Faint);
    painter.drawText(QRectF(area.left(), area.bottom() - line, area.width(), line), Qt::AlignCenter,
                     Text(picture.TypeText));
}

void ColumnPainter::DrawHeight(const ColumnPicture& picture)
{
    const QRectF room(area.left(), top, HeightRoom * line, base - top);
    if (picture.Height <= 0) {
        painter.setPen(colors.Faint);
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, QStringLiteral("Enter a height"));
        return;
    }
    painter.setPen(QPen(colors.Line, 1));
    const double x = room.right() - 0.5 * line;
    DrawDimension(painter, {x, top}, {x, base}, Tick * line);
    painter.drawText(room.adjusted(0, 0, -line, 0), Qt::AlignRight | Qt::AlignVCenter | Qt::TextWordWrap,
                     Text(picture.HeightText));
}

void ColumnPainter::DrawView(const ColumnPicture& picture, const ColumnPlanePicture& plane,
                             const QString& title, const QRectF& pane)
{
    const double width = BodyWidth * line;
    const QRectF body(pane.left() + BodyShare * pane.width() - width / 2, top, width, base - top);
    DrawHold(painter, {body.left() - width, base, 3 * width, 0.5 * line}, HeldSide::Below, colors.Faint);
    if (plane.IsKnown && picture.Height > 0) {
        DrawBracing(picture, plane, body, pane);
    }
    DrawBody(picture, body, &plane == &picture.D1);
    DrawLoad(picture, body, pane);
    painter.setPen(colors.Text);
    painter.drawText(QRectF(body.center().x() - 5 * line, base + 0.7 * line, 10 * line, line),
                     Qt::AlignCenter, title);
}

void ColumnPainter::DrawBody(const ColumnPicture& picture, const QRectF& body, bool showsPlies)
{
    constexpr float tintOfWood = 0.2F;
    constexpr float tintOfSteel = 0.35F;
    QColor tint = picture.IsSteel ? colors.Line : colors.Load;
    tint.setAlphaF(picture.IsSteel ? tintOfSteel : tintOfWood);
    painter.setPen(QPen(colors.Line, 1.5));
    painter.setBrush(tint);
    painter.drawRect(body);
    painter.setBrush(Qt::NoBrush);
    const int plies = showsPlies ? picture.PlyCount : 1;
    for (int joint = 1; joint < plies; ++joint) {
        const double x = body.left() + body.width() * joint / plies;
        painter.drawLine(QPointF(x, body.top()), QPointF(x, body.bottom()));
    }
}

void ColumnPainter::DrawLoad(const ColumnPicture& picture, const QRectF& body, const QRectF& pane)
{
    if (picture.LoadText.empty()) {
        return;
    }
    const double x = body.center().x();
    DrawArrow(painter, {x, area.top() + 0.4 * line}, {x, top - 2}, 0.8 * line, colors.Load);
    painter.setPen(colors.Text);
    const double left = x + 0.7 * line;
    painter.drawText(QRectF(left, area.top() + 0.4 * line, pane.right() - left, 2 * line),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, Text(picture.LoadText));
}

/// Braces stand at the ends and at each unbraced length from the base.
void ColumnPainter::DrawBracing(const ColumnPicture& picture, const ColumnPlanePicture& plane,
                                const QRectF& body, const QRectF& pane)
{
    const double perFoot = body.height() / picture.Height;
    const double segment = std::min(plane.Unbraced, picture.Height) * perFoot;
    if (plane.IsBraced || segment < LeastSegment * line) {
        const QRectF sheathing(body.left() - 0.5 * line, top, 0.5 * line, body.height());
        DrawHold(painter, sheathing, HeldSide::Left, colors.Line);
    } else {
        constexpr double rounding = 0.01;  // of a segment
        const int count = static_cast<int>(std::ceil(body.height() / segment - rounding));
        for (int k = 0; k < count; ++k) {
            const double from = base - k * segment;
            const double to = std::max(top, from - segment);
            DrawBow(body, from, to, k % 2 == 0);
            DrawBrace(body, to);
        }
        DrawBrace(body, base);
    }
    DrawLength(plane, body, plane.IsBraced ? top : base - segment, pane);
}

void ColumnPainter::DrawBrace(const QRectF& body, double y)
{
    const double tip = body.left() - 1;
    const double length = BraceLength * line;
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.Line);
    painter.drawPolygon(QPolygonF{{tip, y}, {tip - length, y - length / 2}, {tip - length, y + length / 2}});
    painter.setBrush(Qt::NoBrush);
}

void ColumnPainter::DrawBow(const QRectF& body, double from, double to, bool toTheRight)
{
    const double x = body.center().x();
    const double out = 2 * (body.width() / 2 + BowWidth * line / 2) * (toTheRight ? 1 : -1);
    QPainterPath bow({x, from});
    bow.quadTo({x + out, (from + to) / 2}, {x, to});
    painter.setPen(QPen(colors.Faint, 1, Qt::DashLine));
    painter.drawPath(bow);
}

void ColumnPainter::DrawLength(const ColumnPlanePicture& plane, const QRectF& body, double segmentTop,
                               const QRectF& pane)
{
    const double x = body.right() + 1.1 * line;
    painter.setPen(QPen(colors.Line, 1));
    if (!plane.IsBraced) {
        DrawDimension(painter, {x, segmentTop}, {x, base}, Tick * line);
    }
    const double left = x + 0.5 * line;
    const QString words = Text(plane.LengthText + "\n" + plane.EffectiveText);
    const double height = 5 * line;
    const double y = std::clamp((segmentTop + base) / 2 - height / 2, top, std::max(top, base - height));
    painter.drawText(QRectF(left, y, pane.right() - left, height),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, words);
}

}  // namespace kordavan
