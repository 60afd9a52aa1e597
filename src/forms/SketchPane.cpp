#include "forms/SketchPane.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include "forms/BeamPainter.h"

namespace kordavan {

SketchPane::SketchPane(const ControlText& text)
{
    Describe(*this, text);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SketchPane::Show(std::string_view words)
{
    setAccessibleDescription(Text(words));
    update();
}

QSize SketchPane::sizeHint() const
{
    constexpr int digits = 50;
    constexpr int lines = 18;
    return {DigitsWidth(*this, digits), lines * fontMetrics().height()};
}

QSize SketchPane::minimumSizeHint() const
{
    constexpr int digits = 46;
    constexpr int lines = 14;
    return {DigitsWidth(*this, digits), lines * fontMetrics().height()};
}

void SketchPane::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().base());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    constexpr double margin = 8;
    Draw(painter, QRectF(rect()).adjusted(margin, margin, -margin, -margin), SketchColors(palette()));
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = rect().adjusted(2, 2, -2, -2);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

}  // namespace kordavan
