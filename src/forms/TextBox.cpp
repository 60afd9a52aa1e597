#include "forms/TextBox.h"

#include <QFocusEvent>

namespace kordavan {

void TextBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    const bool comesBack =
        event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    if (!comesBack) {
        selectAll();
    }
    selectsOnRelease = event->reason() == Qt::MouseFocusReason;
}

/// The click that brought the focus has put the caret somewhere; the whole text is meant.
void TextBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (selectsOnRelease && !hasSelectedText()) {
        selectAll();
    }
    selectsOnRelease = false;
}

}  // namespace kordavan
