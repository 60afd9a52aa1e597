#include "forms/PagePainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>
#include <utility>

#include "forms/BeamPainter.h"
#include "forms/Kit.h"
#include "forms/StatusColor.h"
#include "forms/StatusSign.h"

namespace kordavan {

namespace {

/// Fonts are set in whole units, so a point is cut into these.
constexpr double UnitsPerPoint = 20;

Qt::Alignment AlignmentOf(PageAlign align)
{
    switch (align) {
        case PageAlign::Right:
            return Qt::AlignRight | Qt::AlignVCenter;
        case PageAlign::Center:
            return Qt::AlignHCenter | Qt::AlignVCenter;
        case PageAlign::Left:
            break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

QRectF InUnits(const PageRect& rect)
{
    return {rect.Left * UnitsPerPoint, rect.Top * UnitsPerPoint, rect.Width * UnitsPerPoint,
            rect.Height * UnitsPerPoint};
}

bool IsFailure(const PageText& text)
{
    return text.Style == PageStyle::Status && text.Text.starts_with("Fail");
}

void PaintDiagram(QPainter& painter, const QRectF& room, const LoadPicture& loads, const PageInk& ink)
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::Text, ink.Text);
    palette.setColor(QPalette::WindowText, ink.Text);
    constexpr int textPoints = 7;
    QFont font = painter.font();
    font.setPixelSize(textPoints);
    painter.save();
    painter.scale(UnitsPerPoint, UnitsPerPoint);
    painter.setFont(font);
    const SketchColors colors(palette);
    BeamPainter(painter, room, colors).Draw(loads);
    painter.restore();
}

}  // namespace

QRectF SignArea(const QRectF& status)
{
    constexpr double share = 0.65;
    const double side = status.height() * share;
    return {status.left(), status.center().y() - side / 2, side, side};
}

PageInk PageInk::OnPaper()
{
    return {.Text = Qt::black,
            .Caption = QColor(70, 70, 70),
            .Rule = Qt::black,
            .Tint = QColor(238, 238, 238),
            .Fail = QColor(128, 0, 0)};
}

PageInk PageInk::OnScreen(const QPalette& palette)
{
    QColor caption = palette.color(QPalette::WindowText);
    constexpr float faint = 0.7F;
    caption.setAlphaF(faint);
    return {.Text = palette.color(QPalette::WindowText),
            .Caption = caption,
            .Rule = palette.color(QPalette::Mid),
            .Tint = palette.color(QPalette::AlternateBase),
            .Fail = FailColor(palette)};
}

double PageTextSize(PageStyle style, double textSize)
{
    constexpr double title = 14;
    return style == PageStyle::Title ? title : textSize;
}

QFont PageFont(PageStyle style, double textSize, const QString& family)
{
    QFont font(family);
    font.setStyleHint(QFont::SansSerif);
    const bool isBold =
        style == PageStyle::Title || style == PageStyle::HeaderLine || style == PageStyle::ColumnHead;
    font.setBold(isBold);
    font.setStyleStrategy(QFont::PreferNoShaping);  // ligatures could not be searched for
    font.setPixelSize(static_cast<int>(PageTextSize(style, textSize) * UnitsPerPoint));
    return font;
}

PagePainter::PagePainter(const RecordPage& recordPage, QString fontFamily, const PageInk& pageInk)
    : page(recordPage), family(std::move(fontFamily)), ink(pageInk)
{
}

void PagePainter::Paint(QPainter& painter, const QRectF& target, const LoadPicture* loads) const
{
    PaintGround(painter, target, loads);
    painter.save();
    painter.translate(target.topLeft());
    const double scale = target.width() / (page.Width * UnitsPerPoint);
    painter.scale(scale, scale);
    for (const PageText& text : page.Texts) {
        if (!text.Text.empty()) {
            PaintText(painter, text);
        }
    }
    painter.restore();
}

void PagePainter::PaintGround(QPainter& painter, const QRectF& target, const LoadPicture* loads) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(target.topLeft());
    const double scale = target.width() / (page.Width * UnitsPerPoint);
    painter.scale(scale, scale);
    for (const PageRect& tint : page.Tints) {
        painter.fillRect(InUnits(tint), ink.Tint);
    }
    painter.setPen(QPen(ink.Rule, page.RuleThickness * UnitsPerPoint));
    for (const PageRule& rule : page.Rules) {
        const double y = rule.Top * UnitsPerPoint;
        painter.drawLine(QPointF(rule.Left * UnitsPerPoint, y),
                         QPointF((rule.Left + rule.Width) * UnitsPerPoint, y));
    }
    for (const PageText& text : page.Texts) {
        if (text.Style == PageStyle::Status && !text.Text.empty()) {
            const bool fails = IsFailure(text);
            PaintSign(painter, SignArea(InUnits(text.Area)), fails ? Sign::Fails : Sign::Passes,
                      fails ? ink.Fail : ink.Text);
        }
    }
    if (page.Diagram && loads != nullptr) {
        const PageRect& room = *page.Diagram;
        PaintDiagram(painter, QRectF(room.Left, room.Top, room.Width, room.Height), *loads, ink);
    }
    painter.restore();
}

/// A text too long for its place is drawn narrower rather than cut.
void PagePainter::PaintText(QPainter& painter, const PageText& text) const
{
    const QFont font = PageFont(text.Style, page.TextSize, family);
    const QString shown = Text(text.Text);
    QRectF area = InUnits(text.Area);
    const bool fails = IsFailure(text);
    painter.save();
    if (text.Style == PageStyle::Status) {
        area.setLeft(SignArea(area).right() + SignArea(area).width() / 3);
    }
    painter.setFont(font);
    painter.setPen(text.Style == PageStyle::Caption ? ink.Caption : ink.Text);
    if (fails) {
        painter.setPen(ink.Fail);
    }
    const double width = QFontMetricsF(font, painter.device()).horizontalAdvance(shown);
    if (width > area.width() && width > 0) {
        const double squeeze = area.width() / width;
        painter.translate(area.left(), 0);
        painter.scale(squeeze, 1);
        area = QRectF(0, area.top(), width, area.height());
    }
    painter.drawText(area, static_cast<int>(AlignmentOf(text.Align)) | Qt::TextSingleLine, shown);
    painter.restore();
}

}  // namespace kordavan
