#include "forms/RoofPlan.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QPainter>

#include "forms/Kit.h"

namespace kordavan {

namespace {

constexpr std::array<std::string_view, PlanQuarterCount> QuarterTips{
    "Upper left quarter loads the member", "Upper right quarter loads the member",
    "Lower left quarter loads the member", "Lower right quarter loads the member"};

}  // namespace

RoofPlan::RoofPlan()
{
    auto* const grid = new QGridLayout(this);
    for (std::size_t k = 0; k < quarters.size(); ++k) {
        quarters[k] = new QCheckBox;
        Describe(*quarters[k], {.Name = {}, .Tip = QuarterTips[k]});
        quarters[k]->setObjectName(ArrayName("Areas", k));
        const int row = static_cast<int>(k / 2);
        const int column = static_cast<int>(k % 2);
        grid->addWidget(quarters[k], row, column, Qt::AlignCenter);
    }
}

QSize RoofPlan::sizeHint() const
{
    const int side = 10 * fontMetrics().height();
    return {side * 5 / 4, side};
}

void RoofPlan::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF plan = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.fillRect(plan, palette().alternateBase());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(plan);
    painter.drawLine(QPointF(plan.center().x(), plan.top()), QPointF(plan.center().x(), plan.bottom()));
    painter.drawLine(QPointF(plan.left(), plan.center().y()), QPointF(plan.right(), plan.center().y()));
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawLine(plan.bottomLeft(), plan.topRight());
}

}  // namespace kordavan
