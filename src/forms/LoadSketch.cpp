#include "forms/LoadSketch.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include "forms/Kit.h"

namespace kordavan {

namespace {

QString BoxOf(const PictureLoad& load)
{
    switch (load.Kind) {
        case PictureLoadKind::Uniform:
            return QStringLiteral("UNIF");
        case PictureLoadKind::Point:
            return ArrayName("PT", load.Slot);
        case PictureLoadKind::Partial:
            return ArrayName("PAR", load.Slot);
        case PictureLoadKind::Rising:
        case PictureLoadKind::RisingLine:
            return QStringLiteral("IncTL");
        case PictureLoadKind::Beside:
            return QStringLiteral("IncUnifTL");
    }
    return {};
}

}  // namespace

LoadSketch::LoadSketch()
{
    Describe(*this, {.Name = "LoadSketch", .Tip = "The beam with its loads; click a load to go to its row"});
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void LoadSketch::Show(const LoadPicture& newPicture)
{
    picture = newPicture;
    setAccessibleDescription(Text(DescribePicture(picture)));
    update();
}

QSize LoadSketch::sizeHint() const
{
    return {DigitsWidth(*this, 60), 13 * fontMetrics().height()};
}

QSize LoadSketch::minimumSizeHint() const
{
    return {DigitsWidth(*this, 40), 12 * fontMetrics().height()};
}

void LoadSketch::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const SketchColors colors(palette());
    const QRectF area = QRectF(rect()).adjusted(6, 4, -6, -4);
    drawn = BeamPainter(painter, area, colors).Draw(picture);
    if (!picture.UnbalancedLine.empty()) {
        painter.setPen(colors.OverhangLive);
        painter.drawText(area, Qt::AlignTop | Qt::AlignRight, Text(picture.UnbalancedLine));
    }
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = chosen < drawn.size() ? drawn[chosen].Area.toRect() : rect().adjusted(2, 2, -2, -2);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void LoadSketch::mousePressEvent(QMouseEvent* event)
{
    for (std::size_t index = 0; index < drawn.size(); ++index) {
        if (drawn[index].Area.contains(event->position())) {
            Choose(index);
            Q_EMIT LoadChosen(BoxOf(drawn[index].Load));
            return;
        }
    }
    QWidget::mousePressEvent(event);
}

void LoadSketch::keyPressEvent(QKeyEvent* event)
{
    if (drawn.empty()) {
        QWidget::keyPressEvent(event);
        return;
    }
    const std::size_t last = drawn.size() - 1;
    switch (event->key()) {
        case Qt::Key_Left:
            Choose(chosen == 0 ? last : chosen - 1);
            return;
        case Qt::Key_Right:
            Choose(chosen >= last ? 0 : chosen + 1);
            return;
        case Qt::Key_Space:
            Q_EMIT LoadChosen(BoxOf(drawn[std::min(chosen, last)].Load));
            return;
        default:
            QWidget::keyPressEvent(event);
    }
}

void LoadSketch::Choose(std::size_t index)
{
    chosen = index;
    update();
}

}  // namespace kordavan
