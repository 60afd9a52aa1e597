#include "forms/StatusSign.h"

#include <QPainter>

#include "forms/StatusColor.h"

namespace kordavan {

namespace {

QString NameOf(Sign sign)
{
    switch (sign) {
        case Sign::Passes:
            return StatusSign::tr("passes");
        case Sign::Fails:
            return StatusSign::tr("fails");
        case Sign::Alert:
            return StatusSign::tr("alert");
        case Sign::None:
            break;
    }
    return {};
}

QPen PenOf(const QColor& color, double width)
{
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// A triangle round an exclamation mark, in a square of one unit.
void DrawAlert(QPainter& painter, const QColor& color)
{
    painter.setPen(PenOf(color, 0.09));
    painter.drawPolygon(QPolygonF{{0.5, 0.08}, {0.96, 0.9}, {0.04, 0.9}});
    painter.drawLine(QPointF(0.5, 0.36), QPointF(0.5, 0.62));
    painter.drawPoint(QPointF(0.5, 0.77));
}

}  // namespace

void PaintSign(QPainter& painter, const QRectF& square, Sign sign, const QColor& color)
{
    constexpr double stroke = 0.14;
    painter.save();
    painter.translate(square.topLeft());
    painter.scale(square.width(), square.height());
    painter.setPen(PenOf(color, stroke));
    switch (sign) {
        case Sign::Passes:
            painter.drawPolyline(QPolygonF{{0.14, 0.56}, {0.4, 0.82}, {0.88, 0.2}});
            break;
        case Sign::Fails:
            painter.drawLine(QPointF(0.18, 0.18), QPointF(0.82, 0.82));
            painter.drawLine(QPointF(0.82, 0.18), QPointF(0.18, 0.82));
            break;
        case Sign::Alert:
            DrawAlert(painter, color);
            break;
        case Sign::None:
            break;
    }
    painter.restore();
}

StatusSign::StatusSign(const QString& name, Sign sign)
{
    setObjectName(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    Show(sign);
}

void StatusSign::Show(Sign newSign)
{
    shown = newSign;
    setAccessibleName(NameOf(shown));
    update();
}

QSize StatusSign::sizeHint() const
{
    const int side = fontMetrics().ascent();
    return {side, side};
}

void StatusSign::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor color = palette().color(QPalette::WindowText);
    if (shown == Sign::Fails) {
        color = FailColor(palette());
    } else if (shown == Sign::Alert) {
        color = AlertColor(palette());
    }
    PaintSign(painter, rect(), shown, color);
}

}  // namespace kordavan
