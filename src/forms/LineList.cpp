#include "forms/LineList.h"

#include <QMouseEvent>

namespace kordavan {

LineList::LineList(const ControlText& text, const std::vector<std::string_view>& lines)
{
    Describe(*this, text);
    for (const std::string_view line : lines) {
        addItem(Text(line));
    }
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize LineList::sizeHint() const
{
    const int frame = 2 * frameWidth();
    return {sizeHintForColumn(0) + DigitsWidth(*this, 1) + frame, count() * sizeHintForRow(0) + frame};
}

void LineList::keyPressEvent(QKeyEvent* event)
{
    const int before = currentRow();
    QListWidget::keyPressEvent(event);
    if (currentRow() != before || event->key() == Qt::Key_Space) {
        Choose(currentRow());
    }
}

/// A line is chosen where the button is let go, as by other buttons; dragging selects nothing.
void LineList::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void LineList::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
}

void LineList::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        Choose(indexAt(event->pos()).row());
    }
}

void LineList::Choose(int line)
{
    if (line >= 0) {
        setCurrentRow(line);
        Q_EMIT Chosen(line);
    }
}

}  // namespace kordavan
