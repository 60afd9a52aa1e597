#include "forms/RatioBar.h"

#include <QPainter>
#include <algorithm>

#include "forms/Kit.h"
#include "forms/StatusColor.h"

namespace kordavan {

namespace {

constexpr double MostShown = 1.25;  // where a longer bar is cut off

}  // namespace

RatioBar::RatioBar(const QString& name)
{
    setObjectName(name);
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
}

void RatioBar::Show(std::optional<double> newRatio, bool fails)
{
    ratio = newRatio;
    isFailed = fails;
    update();
}

QSize RatioBar::sizeHint() const
{
    constexpr int digitsWide = 20;
    return {DigitsWidth(*this, digitsWide), fontMetrics().ascent()};
}

void RatioBar::paintEvent(QPaintEvent* /*event*/)
{
    if (!ratio) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double thin = height() * 0.5;
    const QRectF groove(0.5, (height() - thin) / 2, width() - 1.0, thin);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().base());
    painter.drawRect(groove);

    const double share = std::clamp(*ratio, 0.0, MostShown) / MostShown;
    const QRectF bar(groove.left(), groove.top(), groove.width() * share, thin);
    painter.fillRect(bar, isFailed ? FailColor(palette()) : palette().color(QPalette::Highlight));

    const double mark = groove.left() + groove.width() / MostShown;
    painter.setPen(QPen(palette().color(QPalette::WindowText), 2));
    painter.drawLine(QPointF(mark, 1), QPointF(mark, height() - 1));
}

}  // namespace kordavan
