#include "forms/Form4.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "forms/Kit.h"

namespace kordavan {

Form4::Form4(QWidget& over) : QFrame(&over), gauge(new QProgressBar)
{
    constexpr int most = 100;
    constexpr int digitsWide = 40;
    Describe(*this, {.Name = "Form4", .Tip = "Progress of the calculation"});
    Describe(*gauge, {.Name = "Gauge", .Tip = "Progress of the calculation in percent"});
    gauge->setRange(0, most);
    gauge->setMinimumWidth(DigitsWidth(*gauge, digitsWide));
    setAutoFillBackground(true);
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Raised);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(MakeLabel("Calculating..."));
    column->addWidget(gauge);
    hide();
}

void Form4::Reach(int percent)
{
    gauge->setValue(percent);
    if (!isVisible()) {
        adjustSize();
        move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
        show();
        raise();
    }
    repaint();
}

}  // namespace kordavan
