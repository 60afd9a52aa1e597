#include "forms/DiagramPlot.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace kordavan {

namespace {

constexpr int ManyPlaces = 10;
constexpr int AllPlaces = 10000;  // more than any diagram has

}  // namespace

DiagramPlot::DiagramPlot(const ControlText& text, DiagramPart plotPart, const DiagramView& theView)
    : view(theView), part(plotPart)
{
    Describe(*this, text);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setCursor(Qt::CrossCursor);
}

void DiagramPlot::ShowView()
{
    const LoadDiagram& diagram = view.Diagram;
    const bool isLoads = part == DiagramPart::Loads;
    const std::string& peaks =
        isLoads ? diagram.LoadsText : diagram.Plots[static_cast<std::size_t>(part) - 1].Peaks;
    setAccessibleDescription(Text(ReadingText(diagram, view.Cursor) + "\n" + peaks));
    update();
}

QSize DiagramPlot::sizeHint() const
{
    constexpr int digits = 110;
    return {DigitsWidth(*this, digits), minimumSizeHint().height()};
}

QSize DiagramPlot::minimumSizeHint() const
{
    constexpr int digits = 60;
    const bool isWritten = part == DiagramPart::Loads || part == DiagramPart::Deflection;
    const int lines = isWritten ? 8 : 7;
    return {DigitsWidth(*this, digits), lines * fontMetrics().height()};
}

void DiagramPlot::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (!view.Diagram.IsEmpty()) {
        PlotPainter(painter, rect(), palette(), view.Diagram, part).Draw(view.Cursor);
    }
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = rect().adjusted(2, 2, -2, -2);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void DiagramPlot::mousePressEvent(QMouseEvent* event)
{
    const FeetAxis axis(rect(), fontMetrics().height(), view.Diagram.Curves.Length);
    Q_EMIT PlaceAsked(axis.FeetAt(event->position().x()));
}

void DiagramPlot::mouseMoveEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void DiagramPlot::keyPressEvent(QKeyEvent* event)
{
    const int step = (event->modifiers() & Qt::ShiftModifier) != 0 ? ManyPlaces : 1;
    switch (event->key()) {
        case Qt::Key_Left:
            Q_EMIT StepAsked(-step);
            return;
        case Qt::Key_Right:
            Q_EMIT StepAsked(step);
            return;
        case Qt::Key_Home:
            Q_EMIT StepAsked(-AllPlaces);
            return;
        case Qt::Key_End:
            Q_EMIT StepAsked(AllPlaces);
            return;
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace kordavan
