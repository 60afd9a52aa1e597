#include "forms/StudPainter.h"

#include <algorithm>
#include <cmath>

#include "forms/Kit.h"
#include "forms/SketchParts.h"

namespace kordavan {

namespace {

// In lines of text.
constexpr double BaseRoom = 2.5;
constexpr double AxialRoom = 9;
constexpr double BelowRoom = 5;
constexpr double StudHeight = 0.8;
constexpr double SupportHeight = 0.7;
constexpr double MostRow = 8;
constexpr double ArrowPitch = 1.8;
constexpr double Tick = 0.25;

constexpr double LeastShare = 0.4;  // of a row's room, for the smallest load

}  // namespace

StudPainter::StudPainter(QPainter& thePainter, const QRectF& wholeArea, const SketchColors& sketchColors)
    : painter(thePainter),
      area(wholeArea),
      colors(sketchColors),
      line(thePainter.fontMetrics().height()),
      left(wholeArea.left() + BaseRoom * line),
      right(wholeArea.right() - AxialRoom * line),
      studTop(wholeArea.bottom() - BelowRoom * line)
{
}

void StudPainter::Draw(const StudPicture& picture)
{
    perFoot = picture.Height > 0 ? (right - left) / picture.Height : 1;
    const std::vector<Block> blocks = Arrange(picture);
    int rows = 1;
    double largest = 0;
    for (const Block& block : blocks) {
        rows = std::max(rows, block.Row + 1);
        largest = std::max(largest, std::abs(block.Wind.Psf));
    }
    const double rowHeight = std::min((studTop - area.top()) / rows, MostRow * line);
    // A picture that does not fill its area stands in the middle of it.
    const double used = rows * rowHeight + BelowRoom * line;
    studTop -= std::max(0.0, area.height() - used) / 2;
    for (const Block& block : blocks) {
        DrawWind(block, rowHeight, largest);
    }
    DrawStud(picture);
    DrawAxial(picture);
}

/// Loads whose blocks or captions would meet stand in rows over each other.
std::vector<StudPainter::Block> StudPainter::Arrange(const StudPicture& picture) const
{
    std::vector<Block> blocks;
    for (const PictureWind& wind : picture.Winds) {
        Block block{.Wind = wind,
                    .Caption = Text(wind.Text) + (wind.Psf < 0 ? QStringLiteral(" (suction)") : QString{}),
                    .Words = {},
                    .From = Across(wind.Begin),
                    .To = Across(wind.End)};
        const double width = painter.fontMetrics().horizontalAdvance(block.Caption) + line;
        const double wanted = (block.From + block.To - width) / 2;
        const double words = std::clamp(wanted, area.left(), std::max(area.left(), area.right() - width));
        block.Words = QRectF(words, 0, width, line);
        const auto meets = [&block](const Block& other) {
            return other.Row == block.Row &&
                   std::min(other.From, other.Words.left()) < std::max(block.To, block.Words.right()) &&
                   std::min(block.From, block.Words.left()) < std::max(other.To, other.Words.right());
        };
        while (std::any_of(blocks.begin(), blocks.end(), meets)) {
            ++block.Row;
        }
        blocks.push_back(block);
    }
    return blocks;
}

void StudPainter::DrawStud(const StudPicture& picture)
{
    const QRectF stud(left, studTop, right - left, StudHeight * line);
    constexpr float tintOfWood = 0.2F;
    QColor tint = colors.Load;
    tint.setAlphaF(tintOfWood);
    painter.setPen(QPen(colors.Line, 1.5));
    painter.setBrush(tint);
    painter.drawRect(stud);
    painter.setBrush(Qt::NoBrush);
    DrawHold(painter, {left - 0.5 * line, studTop - 0.4 * line, 0.5 * line, 1.6 * line}, HeldSide::Left,
             colors.Faint);
    DrawEnd(left, QStringLiteral("base"));
    DrawEnd(right, QStringLiteral("top"));
    const double y = stud.bottom() + 1.7 * line;
    const QRectF words(left, y, right - left, line);
    if (picture.Height <= 0) {
        painter.setPen(colors.Faint);
        painter.drawText(words, Qt::AlignCenter, QStringLiteral("Enter a height"));
    } else {
        painter.setPen(QPen(colors.Line, 1));
        const double middle = stud.bottom() + 1.3 * line;
        DrawDimension(painter, {left, middle}, {right, middle}, Tick * line);
        painter.drawText(words, Qt::AlignCenter, Text(picture.HeightText));
    }
    painter.setPen(colors.Faint);
    painter.drawText(words.translated(0, line), Qt::AlignCenter, Text(picture.SizeText));
}

void StudPainter::DrawEnd(double x, const QString& name)
{
    const double y = studTop + StudHeight * line;
    const double half = SupportHeight * line / 2;
    painter.setPen(QPen(colors.Line, 1));
    painter.drawPolygon(QPolygonF{{x, y}, {x - half, y + 2 * half}, {x + half, y + 2 * half}});
    painter.setPen(colors.Text);
    painter.drawText(QRectF(x - 3 * line, y + 1.7 * line, 6 * line, line), Qt::AlignCenter, name);
}

void StudPainter::DrawAxial(const StudPicture& picture)
{
    if (picture.AxialText.empty()) {
        return;
    }
    const double y = studTop + StudHeight * line / 2;
    const double from = right + 4 * line;
    DrawArrow(painter, {from, y}, {right + 2, y}, 0.8 * line, colors.Load);
    painter.setPen(colors.Text);
    const double words = right + 0.8 * line;
    painter.drawText(QRectF(words, y + 0.5 * line, area.right() - words, 2 * line),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, Text("P = " + picture.AxialText));
}

void StudPainter::DrawWind(const Block& block, double rowHeight, double largest)
{
    const double bottom = studTop - block.Row * rowHeight - 0.2 * line;
    const double room = rowHeight - 1.5 * line;
    const double share = LeastShare + (1 - LeastShare) * std::abs(block.Wind.Psf) / largest;
    const QRectF bar(block.From, bottom - room * share, block.To - block.From, room * share);
    constexpr float tintOfWind = 0.14F;
    QColor tint = colors.Load;
    tint.setAlphaF(tintOfWind);
    painter.fillRect(bar, tint);
    painter.setPen(QPen(colors.Load, 1));
    painter.drawRect(bar);
    DrawArrows(bar, block.Wind.Psf < 0);
    painter.setPen(colors.Text);
    painter.drawText(block.Words.translated(0, bar.top() - 1.1 * line), Qt::AlignCenter, block.Caption);
}

void StudPainter::DrawArrows(const QRectF& block, bool isSuction)
{
    const int count = std::max(1, static_cast<int>(block.width() / (ArrowPitch * line)));
    for (int k = 0; k < count; ++k) {
        const double x = block.left() + block.width() * (k + 0.5) / count;
        const QPointF high(x, block.top());
        const QPointF low(x, block.bottom());
        DrawArrow(painter, isSuction ? low : high, isSuction ? high : low, 0.5 * line, colors.Load);
    }
}

}  // namespace kordavan
