#include "forms/BeamPainter.h"

#include <QPalette>
#include <algorithm>
#include <cmath>

#include "core/NumberText.h"
#include "forms/Kit.h"

namespace kordavan {

namespace {

constexpr double RowShare = 0.24;       // of the room over the beam, for one row of distributed loads
constexpr double RoofRowShare = 0.45;   // the same of a roof, which has no other loads
constexpr double LeastRow = 2;          // lines of text, while there is room
constexpr double RoomShare = 0.95;      // of the room over the beam, for all rows
constexpr double HatchPitch = 0.5;      // lines of text
constexpr double MostHatchLines = 1e4;  // more than any screen shows
constexpr double TipGap = 3;            // between an arrow and the beam
constexpr double LeastBarShare = 0.35;  // of a row, for the smallest load

QColor Faded(QColor color)
{
    constexpr float strength = 0.6F;
    color.setAlphaF(strength);
    return color;
}

/// Beyond this a number is shown with an exponent, as it would not fit.
constexpr double MostShown = 1e7;

std::string NumberText(double value)
{
    return value < MostShown ? FormatNumber(value, "#,##0") : QString::number(value, 'g', 3).toStdString();
}

QString FeetText(double feet)
{
    return Text((feet < MostShown ? FormatNumber(feet, "#0.00") : NumberText(feet)) + " ft");
}

bool Rises(const PictureLoad& load)
{
    return load.Kind == PictureLoadKind::Rising || load.Kind == PictureLoadKind::RisingLine;
}

QString LoadCaption(const PictureLoad& load, LoadCaptions captions)
{
    std::string caption(1, load.Letter);
    switch (load.Kind) {
        case PictureLoadKind::Rising:
            caption = "Roof load, psf:";
            break;
        case PictureLoadKind::RisingLine:
            caption = "Rising to, plf:";
            break;
        case PictureLoadKind::Beside:
            caption = "Uniform beside it, plf:";
            break;
        case PictureLoadKind::Uniform:
        case PictureLoadKind::Point:
        case PictureLoadKind::Partial:
            if (captions == LoadCaptions::Letters) {
                return Text(caption);
            }
            break;
    }
    return Text(caption + " " + NumberText(load.Total));
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

BeamPainter::BeamPainter(QPainter& thePainter, const QRectF& wholeArea, const SketchColors& sketchColors,
                         LoadCaptions loadCaptions)
    : painter(thePainter),
      area(wholeArea),
      colors(sketchColors),
      captions(loadCaptions),
      lineHeight(thePainter.fontMetrics().height())
{
}

std::vector<DrawnLoad> BeamPainter::Draw(const LoadPicture& picture)
{
    const double side = SideMargin * lineHeight;
    left = area.left() + side;
    right = area.right() - side;
    beamY = area.bottom() - 2.8 * lineHeight;
    const double length = picture.Length() > 0 ? picture.Length() : 1;
    perFoot = (right - left) / length;
    mostRowShare = picture.Support == SupportCondition::HipValley ? RoofRowShare : RowShare;
    for (const PictureLoad& load : picture.Loads) {
        double& largest = load.Kind == PictureLoadKind::Point ? largestPoint : largestDistributed;
        largest = std::max(largest, load.Total);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    const bool hasSpan = picture.Span > 0;
    std::vector<int> rowOf;
    for (const PictureLoad& load : picture.Loads) {
        const bool takesRow = hasSpan && load.HasPlace && load.Kind != PictureLoadKind::Point;
        if (hasSpan && load.HasPlace && load.Kind == PictureLoadKind::Point) {
            occupied.push_back(ShaftOf(load));
        }
        rowOf.push_back(takesRow ? RowFor(Across(load.Begin), Across(load.End)) : 0);
    }
    for (std::size_t k = 0; k < picture.Loads.size(); ++k) {
        const PictureLoad& load = picture.Loads[k];
        if (hasSpan && load.HasPlace && load.Kind != PictureLoadKind::Point) {
            occupied.push_back(BarOf(load, rowOf[k]));
        }
    }
    for (std::size_t k = 0; k < picture.Loads.size(); ++k) {
        const PictureLoad& load = picture.Loads[k];
        if (!hasSpan || !load.HasPlace) {
            DrawUnplaced(load);
        } else if (load.Kind == PictureLoadKind::Point) {
            DrawPoint(load);
        } else {
            DrawDistributed(load, rowOf[k]);
        }
    }
    DrawEquivalent(picture);
    DrawBeam(picture);
    DrawDimensions(picture);
    return drawn;
}

double BeamPainter::Across(double feet) const
{
    return left + feet * perFoot;
}

double BeamPainter::RowHeight() const
{
    const double count = std::max(static_cast<double>(rows.size()), 1.0);
    const double room = beamY - area.top();
    return std::min(std::max(mostRowShare * room, LeastRow * lineHeight), RoomShare * room / count);
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
        if (isFree) {
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

QRectF BeamPainter::BarOf(const PictureLoad& load, int row) const
{
    constexpr double gap = 3;
    const bool isRoof = Rises(load) || load.Kind == PictureLoadKind::Beside;
    const double share = isRoof ? 1 : load.Total / largestDistributed;  // psf and plf do not compare
    const double room = std::max(RowHeight() - lineHeight, gap);
    const double height = room * (LeastBarShare + (1 - LeastBarShare) * share);
    return {Across(load.Begin), beamY - row * RowHeight() - gap - height, (load.End - load.Begin) * perFoot,
            height};
}

/// A bar, or the triangle of a load that rises from R1 to R2, the live part hatched.
void BeamPainter::DrawDistributed(const PictureLoad& load, int row)
{
    const bool rises = Rises(load);
    const QRectF bar = BarOf(load, row);
    const double live = std::min(load.Live / load.Total, 1.0) * bar.height();
    const auto shape = [&](double top) {
        const QPointF corner(rises ? bar.right() : bar.left(), top);
        return QPolygonF{bar.bottomLeft(), corner, {bar.right(), top}, bar.bottomRight()};
    };
    Hatch(shape(bar.bottom() - live), ColorOf(load));
    painter.setPen(ColorOf(load));
    painter.setBrush(TintOf(load));
    painter.drawPolygon(shape(bar.top()));
    DrawCaption(load, {bar.center().x(), bar.top()});
    Remember(bar, load);
}

/// Rising lines across a convex shape, each drawn by itself: the pattern of a brush is lost in line drawings.
void BeamPainter::Hatch(const QPolygonF& shape, const QColor& color)
{
    const auto sumOf = [](QPointF point) { return point.x() + point.y(); };  // the same all along a line
    const auto [least, most] = std::minmax_element(shape.begin(), shape.end(),
                                                   [&](QPointF a, QPointF b) { return sumOf(a) < sumOf(b); });
    const double pitch = HatchPitch * lineHeight;
    const double first = std::ceil(sumOf(*least) / pitch) * pitch;
    const double count = std::min((sumOf(*most) - first) / pitch, MostHatchLines);
    painter.setPen(QPen(color, 1));
    for (int number = 0; number < count; ++number) {
        const double sum = first + number * pitch;
        QPolygonF ends;
        for (qsizetype k = 0; k < shape.size(); ++k) {
            const QPointF from = shape[k];
            const QPointF to = shape[(k + 1) % shape.size()];
            const double share = (sum - sumOf(from)) / (sumOf(to) - sumOf(from));
            if (share >= 0 && share < 1) {
                ends.append(from + share * (to - from));
            }
        }
        painter.drawPolyline(ends);
    }
}

/// The uniform load of equal moment that stands for the rising one.
void BeamPainter::DrawEquivalent(const LoadPicture& picture)
{
    if (picture.Equivalent > 0) {
        painter.setPen(colors.Text);
        painter.drawText(area, Qt::AlignTop | Qt::AlignHCenter,
                         QStringLiteral("ETL %1 plf").arg(Text(FormatNumber(picture.Equivalent, "#,##0.0"))));
    }
}

void BeamPainter::DrawPoint(const PictureLoad& load)
{
    const QRectF shaft = ShaftOf(load);
    const double x = shaft.center().x();
    const double tip = beamY - TipGap;
    const double live = std::min(load.Live / load.Total, 1.0) * shaft.height();
    painter.fillRect(shaft, TintOf(load));
    Hatch(QPolygonF(shaft.adjusted(0, shaft.height() - live, 0, 0)), ColorOf(load));
    painter.setPen(ColorOf(load));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(shaft);
    painter.setBrush(ColorOf(load));
    painter.drawPolygon(
        QPolygonF{{x, tip}, {x - shaft.width(), shaft.bottom()}, {x + shaft.width(), shaft.bottom()}});
    DrawCaption(load, {x, shaft.top()});
    Remember(QRectF(x - 5, shaft.top(), 10, tip - shaft.top()), load);
}

/// The arrow of a point load without its head.
QRectF BeamPainter::ShaftOf(const PictureLoad& load) const
{
    const double room = beamY - area.top() - 1.3 * lineHeight;
    const double share = 0.5 + 0.5 * load.Total / largestPoint;
    const double width = 0.4 * lineHeight;
    const double headLength = 1.25 * width;
    const double height = room * share - TipGap - headLength;
    return {Across(load.Begin) - width / 2, beamY - room * share, width, height};
}

void BeamPainter::DrawUnplaced(const PictureLoad& load)
{
    const double y = area.top() + lineHeight * unplacedCount++;
    const QString caption = QStringLiteral("%1 where?").arg(LoadCaption(load, captions));
    const QRectF where(area.left() + 4, y, painter.fontMetrics().horizontalAdvance(caption) + 4, lineHeight);
    painter.setPen(colors.Faint);
    painter.drawText(where, Qt::AlignLeft | Qt::AlignVCenter, caption);
    Remember(where, load);
}

void BeamPainter::DrawCaption(const PictureLoad& load, QPointF at)
{
    const QString caption = LoadCaption(load, captions);
    const double width = painter.fontMetrics().horizontalAdvance(caption) + 6;
    const QRectF where = FreePlace({at.x() - width / 2, at.y() - lineHeight, width, lineHeight});
    occupied.push_back(where);
    painter.setPen(load.OnOverhang ? ColorOf(load) : colors.Text);
    painter.drawText(where, Qt::AlignCenter, caption);
}

bool BeamPainter::IsFree(const QRectF& where) const
{
    const bool isInside =
        where.top() >= area.top() && where.left() >= area.left() && where.right() <= area.right();
    return isInside && std::none_of(occupied.begin(), occupied.end(),
                                    [&where](const QRectF& other) { return other.intersects(where); });
}

/// Captions give way to arrows, bars and those already drawn: sideways, or by lines upwards, to the nearest
/// free place.
QRectF BeamPainter::FreePlace(const QRectF& wanted) const
{
    constexpr int mostLines = 4;
    constexpr int mostSteps = 4;  // of half a caption
    for (int up = 0; up <= mostLines; ++up) {
        for (int step = 0; step <= mostSteps; ++step) {
            for (const double side : {0.5, -0.5}) {
                const QRectF place = wanted.translated(side * step * wanted.width(), -up * lineHeight);
                if (IsFree(place)) {
                    return place;
                }
            }
        }
    }
    return wanted;
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
