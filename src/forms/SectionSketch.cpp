#include "forms/SectionSketch.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "forms/BeamPainter.h"
#include "forms/Kit.h"
#include "forms/SketchParts.h"

namespace kordavan {

namespace {

/// The outline of rolled steel without the rounding of its corners.
QPainterPath SteelPath(const SectionPicture& picture, const QRectF& section)
{
    const double perInch = section.height() / picture.D;
    const double web = picture.Web * perInch;
    const double flange = picture.Flange * perInch;
    const QRectF inside = section.adjusted(0, flange, 0, -flange);
    QPainterPath whole;
    whole.addRect(section);
    QPainterPath hollow;
    switch (picture.Outline) {
        case SectionOutline::Flanged:
            hollow.addRect(inside.adjusted(0, 0, -(section.width() + web) / 2, 0));
            hollow.addRect(inside.adjusted((section.width() + web) / 2, 0, 0, 0));
            break;
        case SectionOutline::Channel:
            hollow.addRect(inside.adjusted(web, 0, 0, 0));
            break;
        case SectionOutline::Tube:
            hollow.addRect(inside.adjusted(web, 0, -web, 0));
            break;
        case SectionOutline::Plates:
            if (picture.PlyCount > 1) {
                hollow.addRect(section.adjusted(web, 0, -web, 0));
            }
            break;
        case SectionOutline::Rectangle:
        case SectionOutline::Round:
            break;
    }
    return whole.subtracted(hollow);
}

}  // namespace

SectionSketch::SectionSketch()
{
    Describe(*this, {.Name = "SectionSketch", .Tip = "The section to scale, with its net sizes"});
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    constexpr int mostLinesHigh = 20;
    setMaximumHeight(mostLinesHigh * fontMetrics().height());
}

void SectionSketch::Show(const SectionPicture& newPicture)
{
    picture = newPicture;
    setAccessibleDescription(Text(DescribeSection(picture)));
    update();
}

QSize SectionSketch::sizeHint() const
{
    constexpr int digitsWide = 30;
    constexpr int linesHigh = 12;
    return {DigitsWidth(*this, digitsWide), linesHigh * fontMetrics().height()};
}

/// Centred, with room for the depth at its left and for two lines below.
QRectF SectionSketch::SectionArea() const
{
    const double line = fontMetrics().height();
    const double side = fontMetrics().horizontalAdvance(Text(picture.DText)) + 1.2 * line;
    const QRectF room = QRectF(rect()).adjusted(side, 0.6 * line, -side, -3.2 * line);
    const double perInch = std::min(room.width() / picture.B, room.height() / picture.D);
    QRectF section(0, 0, picture.B * perInch, picture.D * perInch);
    section.moveCenter(room.center());
    return section;
}

void SectionSketch::paintEvent(QPaintEvent* /*event*/)
{
    if (picture.B <= 0) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const SketchColors colors(palette());
    const QRectF section = SectionArea();
    DrawSection(painter, colors, section);
    DrawSizes(painter, colors, section);
}

void SectionSketch::DrawSection(QPainter& painter, const SketchColors& colors, const QRectF& section) const
{
    const bool isSteel = picture.Web > 0;
    constexpr float tintOfWood = 0.2F;
    constexpr float tintOfSteel = 0.6F;
    QColor tint = isSteel ? colors.Line : colors.Load;
    tint.setAlphaF(isSteel ? tintOfSteel : tintOfWood);
    painter.setBrush(tint);
    painter.setPen(QPen(colors.Line, isSteel ? 1 : 2));
    if (isSteel) {
        painter.drawPath(SteelPath(picture, section));
    } else if (picture.Outline == SectionOutline::Round) {
        painter.drawEllipse(section);
    } else {
        DrawRectangle(painter, colors, section);
    }
}

void SectionSketch::DrawRectangle(QPainter& painter, const SketchColors& colors, const QRectF& section) const
{
    painter.drawRect(section);
    const double ply = section.width() / picture.PlyCount;
    for (int joint = 1; joint < picture.PlyCount; ++joint) {
        const double x = section.left() + joint * ply;
        painter.drawLine(QPointF(x, section.top()), QPointF(x, section.bottom()));
    }
    if (picture.Lamination > 0) {
        const double lamination = section.height() * picture.Lamination / picture.D;
        const int count = qRound(picture.D / picture.Lamination);
        painter.setPen(QPen(colors.Faint, 1));
        for (int joint = 1; joint < count; ++joint) {
            const double y = section.bottom() - joint * lamination;
            painter.drawLine(QPointF(section.left() + 1, y), QPointF(section.right() - 1, y));
        }
    }
}

void SectionSketch::DrawSizes(QPainter& painter, const SketchColors& colors, const QRectF& section) const
{
    const double line = fontMetrics().height();
    const double gap = 0.5 * line;
    const double tick = 0.25 * line;
    painter.setPen(QPen(colors.Line, 1));
    const double left = section.left() - gap;
    const double below = section.bottom() + gap;
    DrawDimension(painter, {left, section.top()}, {left, section.bottom()}, tick);
    painter.drawText(QRectF(0, section.center().y() - line / 2, left - tick - 2, line),
                     Qt::AlignRight | Qt::AlignVCenter, Text(picture.DText));
    if (picture.Outline != SectionOutline::Round && !picture.BText.empty()) {
        DrawDimension(painter, {section.left(), below}, {section.right(), below}, tick);
        painter.drawText(QRectF(0, below + tick, width(), line), Qt::AlignCenter, Text(picture.BText));
    }
    painter.setPen(colors.Faint);
    painter.drawText(QRectF(0, below + tick + line, width(), line), Qt::AlignCenter,
                     Text(picture.MakeUpText));
}

}  // namespace kordavan
