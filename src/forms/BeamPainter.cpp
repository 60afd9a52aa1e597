#include "forms/BeamPainter.h"

#include <QPalette>
#include <algorithm>

#include "core/NumberText.h"
#include "forms/Kit.h"

namespace kordavan {

namespace {

constexpr double RowShare = 0.24;       // of the room over the beam, for one row of distributed loads
constexpr double LeastBarShare = 0.35;  // of a row, for the smallest load
constexpr int MostRows = 3;

QString FeetText(double feet)
{
    return Text(FormatNumber(feet, "#0.00") + " ft");
}

QColor Faded(QColor color)
{
    constexpr float strength = 0.6F;
    color.setAlphaF(strength);
    return color;
}

QString LoadCaption(const PictureLoad& load)
{
    std::string caption(1, load.Letter);
    caption += " " + FormatNumber(load.Total, "#,##0");
    return Text(caption);
}

}  // namespace

SketchColors::SketchColors(const QPalette& palette)
    : Line(palette.color(QPalette::WindowText)),
      Text(palette.color(QPalette::WindowText)),
      Faint(Faded(palette.color(QPalette::WindowText))),
      Load(palette.color(QPalette::Highlight)),
      OverhangTotal(IsDark(palette) ? QColor(0x90, 0xA8, 0xFF) : QColor(0x00, 0x00, 0x80)),
      OverhangLive(IsDark(palette) ? QColor(0x60, 0x80, 0xFF) : QColor(0x00, 0x00, 0xC0))
{
}

BeamPainter::BeamPainter(QPainter& thePainter, const QRectF& wholeArea, const SketchColors& sketchColors)
    : painter(thePainter),
      area(wholeArea),
      colors(sketchColors),
      lineHeight(thePainter.fontMetrics().height())
{
}

std::vector<DrawnLoad> BeamPainter::Draw(const LoadPicture& picture)
{
    support = picture.Support;
    const double side = 3.5 * lineHeight;
    left = area.left() + side;
    right = area.right() - side;
    beamY = area.bottom() - 2.8 * lineHeight;
    const double length = picture.Length() > 0 ? picture.Length() : 1;
    perFoot = (right - left) / length;
    for (const PictureLoad& load : picture.Loads) {
        double& largest = load.Kind == PictureLoadKind::Point ? largestPoint : largestDistributed;
        largest = std::max(largest, load.Total);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    for (const PictureLoad& load : picture.Loads) {
        const bool isKnown = picture.Span > 0 && load.HasPlace;
        if (!isKnown) {
            DrawUnplaced(load);
        } else if (load.Kind == PictureLoadKind::Point) {
            DrawPoint(load);
        } else if (support == SupportCondition::HipValley) {
            DrawRising(load);
        } else {
            DrawDistributed(load);
        }
    }
    DrawBeam(picture);
    DrawDimensions(picture);
    return drawn;
}

double BeamPainter::Across(double feet) const
{
    return left + feet * perFoot;
}

double BeamPainter::RowTop(int row) const
{
    const double room = beamY - area.top();
    return beamY - room * RowShare * (row + 1);
}

/// The lowest row in which nothing stands yet between two places.
int BeamPainter::RowFor(double from, double to)
{
    for (int row = 0;; ++row) {
        if (row == static_cast<int>(rows.size())) {
            rows.emplace_back();
        }
        auto& taken = rows[static_cast<std::size_t>(row)];
        const bool isFree = std::none_of(taken.begin(), taken.end(), [&](const auto& span) {
            return from < span.second && to > span.first;
        });
        if (isFree || row == MostRows - 1) {
            taken.emplace_back(from, to);
            return row;
        }
    }
}

void BeamPainter::DrawBeam(const LoadPicture& picture)
{
    painter.setPen(QPen(colors.Line, 3));
    painter.drawLine(QPointF(left, beamY), QPointF(right, beamY));
    if (picture.Span <= 0) {
        DrawSupport(left, 1);
        DrawSupport(right, picture.SpanCount + 1);
        return;
    }
    for (int number = 0; number <= picture.SpanCount; ++number) {
        DrawSupport(Across(number * picture.Span), number + 1);
    }
}

void BeamPainter::DrawSupport(double x, int number)
{
    const double top = beamY + 2;
    const double half = lineHeight * 0.45;
    painter.setPen(colors.Line);
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(QPolygonF{{x, top}, {x - half, top + half * 1.6}, {x + half, top + half * 1.6}});
    painter.setPen(colors.Text);
    const QRectF where(x - 2 * lineHeight, top + half * 1.6, 4 * lineHeight, lineHeight);
    painter.drawText(where, Qt::AlignCenter, QStringLiteral("R%1").arg(number));
}

void BeamPainter::DrawDimensions(const LoadPicture& picture)
{
    const double y = area.bottom() - lineHeight;
    painter.setPen(colors.Text);
    if (picture.Span <= 0) {
        painter.setPen(colors.Faint);
        painter.drawText(QRectF(left, y, right - left, lineHeight), Qt::AlignCenter,
                         QStringLiteral("Enter a span"));
        return;
    }
    for (int span = 0; span < picture.SpanCount; ++span) {
        const QRectF where(Across(span * picture.Span), y, picture.Span * perFoot, lineHeight);
        painter.drawText(where, Qt::AlignCenter, FeetText(picture.Span));
    }
    if (picture.Overhang > 0) {
        const double width = std::max(picture.Overhang * perFoot, 5 * lineHeight);
        const QRectF where(Across(picture.Span), y, width, lineHeight);
        painter.drawText(where, Qt::AlignCenter, FeetText(picture.Overhang));
    }
}

void BeamPainter::DrawDistributed(const PictureLoad& load)
{
    const double from = Across(load.Begin);
    const double to = Across(load.End);
    const double rowHeight = (beamY - area.top()) * RowShare;
    const double share = LeastBarShare + (1 - LeastBarShare) * load.Total / largestDistributed;
    const double height = (rowHeight - 4) * share * 0.62;
    const int row = RowFor(from, to);
    const double bottom = RowTop(row) + rowHeight - 3;
    const QRectF bar(from, bottom - height, to - from, height);
    painter.fillRect(bar, TintOf(load));
    const double live = std::min(load.Live / load.Total, 1.0) * height;
    painter.fillRect(QRectF(from, bottom - live, to - from, live), QBrush(ColorOf(load), Qt::BDiagPattern));
    painter.setPen(ColorOf(load));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(bar);
    DrawCaption(load, {(from + to) / 2, bar.top()}, Qt::AlignHCenter);
    Remember(bar, load);
}

/// The load of a hip or valley rises from R1 to R2; the caption tells its equivalent.
void BeamPainter::DrawRising(const PictureLoad& load)
{
    const double height = (beamY - area.top()) * 0.55;
    const QPolygonF triangle{{left, beamY - 3}, {right, beamY - 3}, {right, beamY - 3 - height}};
    painter.setPen(ColorOf(load));
    painter.setBrush(TintOf(load));
    painter.drawPolygon(triangle);
    painter.setPen(colors.Text);
    const QRectF where(left, beamY - height - lineHeight, (right - left) * 0.6, lineHeight);
    painter.drawText(where, Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("ETL %1 plf").arg(Text(FormatNumber(load.Total, "#,##0.0"))));
    Remember(triangle.boundingRect(), load);
}

void BeamPainter::DrawPoint(const PictureLoad& load)
{
    const double room = beamY - area.top() - 1.3 * lineHeight;
    const double share = 0.5 + 0.5 * load.Total / largestPoint;
    const double top = beamY - room * share;
    const double x = Across(load.Begin);
    const double tip = beamY - 3;
    const double half = lineHeight * 0.2;
    const double shaftEnd = tip - 2.5 * half;
    const double live = std::min(load.Live / load.Total, 1.0) * (shaftEnd - top);
    const QRectF shaft(x - half, top, 2 * half, shaftEnd - top);
    painter.fillRect(shaft, TintOf(load));
    painter.fillRect(QRectF(shaft.left(), shaftEnd - live, shaft.width(), live),
                     QBrush(ColorOf(load), Qt::BDiagPattern));
    painter.setPen(ColorOf(load));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(shaft);
    painter.setBrush(ColorOf(load));
    painter.drawPolygon(QPolygonF{{x, tip}, {x - 2 * half, shaftEnd}, {x + 2 * half, shaftEnd}});
    DrawCaption(load, {x, top}, Qt::AlignHCenter);
    Remember(QRectF(x - 5, top, 10, tip - top), load);
}

void BeamPainter::DrawUnplaced(const PictureLoad& load)
{
    const double y = area.top() + lineHeight * unplacedCount++;
    const QString caption = QStringLiteral("%1 where?").arg(LoadCaption(load));
    const QRectF where(area.left() + 4, y, painter.fontMetrics().horizontalAdvance(caption) + 4, lineHeight);
    painter.setPen(colors.Faint);
    painter.drawText(where, Qt::AlignLeft | Qt::AlignVCenter, caption);
    Remember(where, load);
}

/// Captions give way to those already drawn by standing a line higher, as long as there is room.
void BeamPainter::DrawCaption(const PictureLoad& load, QPointF at, Qt::Alignment alignment)
{
    const QString caption = LoadCaption(load);
    const double width = painter.fontMetrics().horizontalAdvance(caption) + 6;
    QRectF where(at.x() - width / 2, at.y() - lineHeight, width, lineHeight);
    const auto overlaps = [&] {
        return std::any_of(captions.begin(), captions.end(),
                           [&](const QRectF& other) { return other.intersects(where); });
    };
    while (overlaps() && where.top() - lineHeight >= area.top()) {
        where.translate(0, -lineHeight);
    }
    captions.push_back(where);
    painter.setPen(load.OnOverhang ? ColorOf(load) : colors.Text);
    painter.drawText(where, static_cast<int>(alignment | Qt::AlignVCenter), caption);
}

QColor BeamPainter::ColorOf(const PictureLoad& load) const
{
    return load.OnOverhang ? colors.OverhangTotal : colors.Load;
}

QColor BeamPainter::TintOf(const PictureLoad& load) const
{
    constexpr float faint = 0.25F;
    QColor tint = ColorOf(load);
    tint.setAlphaF(faint);
    return tint;
}

void BeamPainter::Remember(const QRectF& where, const PictureLoad& load)
{
    drawn.push_back({where.adjusted(-3, -3, 3, 3), load});
}

}  // namespace kordavan
