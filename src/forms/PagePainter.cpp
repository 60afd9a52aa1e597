#include "forms/PagePainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <utility>

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

}  // namespace

bool IsFailure(const PageText& text)
{
    return text.Style == PageStyle::Status &&
           (text.Text.find("Fail") != std::string::npos || text.Text.find("FAIL") != std::string::npos);
}

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
            .Fail = QColor(128, 0, 0),
            .Sketch = PaperPalette()};
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
            .Fail = FailColor(palette),
            .Sketch = palette};
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

QFont FittedFont(const QFont& font, const QString& text, double width)
{
    QFont fitted = font;
    double needed = QFontMetricsF(fitted).horizontalAdvance(text);
    while (needed > width && fitted.pixelSize() > 1) {
        const int scaled = static_cast<int>(fitted.pixelSize() * width / needed);
        fitted.setPixelSize(std::clamp(scaled, 1, fitted.pixelSize() - 1));
        needed = QFontMetricsF(fitted).horizontalAdvance(text);
    }
    return fitted;
}

PagePainter::PagePainter(const RecordPage& recordPage, QString fontFamily, const PageInk& pageInk)
    : page(recordPage), family(std::move(fontFamily)), ink(pageInk)
{
}

void PagePainter::Paint(QPainter& painter, const QRectF& target, const PagePicture& picture) const
{
    painter.save();
    Enter(painter, target);
    PaintMarks(painter);
    for (const PageText& text : page.Texts) {
        if (!text.Text.empty()) {
            PaintText(painter, text);
        }
    }
    PaintDiagram(painter, picture);
    painter.restore();
}

void PagePainter::PaintGround(QPainter& painter, const QRectF& target, const PagePicture& picture) const
{
    painter.save();
    Enter(painter, target);
    PaintMarks(painter);
    PaintDiagram(painter, picture);
    painter.restore();
}

void PagePainter::Enter(QPainter& painter, const QRectF& target) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(target.topLeft());
    const double scale = target.width() / (page.Width * UnitsPerPoint);
    painter.scale(scale, scale);
}

void PagePainter::PaintMarks(QPainter& painter) const
{
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
}

void PagePainter::PaintDiagram(QPainter& painter, const PagePicture& picture) const
{
    if (!page.Diagram) {
        return;
    }
    constexpr int textPoints = 7;
    QFont font(family);
    font.setPixelSize(textPoints);
    painter.save();
    painter.scale(UnitsPerPoint, UnitsPerPoint);
    painter.setFont(font);
    const PageRect& room = *page.Diagram;
    PaintPagePicture(painter, QRectF(room.Left, room.Top, room.Width, room.Height), ink.Sketch, picture);
    painter.restore();
}

void PagePainter::PaintText(QPainter& painter, const PageText& text) const
{
    const QString shown = Text(text.Text);
    QRectF area = InUnits(text.Area);
    QFont font = PageFont(text.Style, page.TextSize, family);
    painter.setPen(text.Style == PageStyle::Caption ? ink.Caption : ink.Text);
    if (text.Style == PageStyle::Status) {
        area.setLeft(SignArea(area).right() + SignArea(area).width() / 3);
    }
    if (IsFailure(text)) {
        font.setBold(true);
        painter.setPen(ink.Fail);
    }
    painter.setFont(FittedFont(font, shown, area.width()));
    painter.drawText(area, static_cast<int>(AlignmentOf(text.Align)) | Qt::TextSingleLine, shown);
}

}  // namespace kordavan
