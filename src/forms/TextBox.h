#pragma once

#include <QLineEdit>

namespace kordavan {

/// A text box that selects its whole text on entry, by key or by mouse.
class TextBox : public QLineEdit {
    Q_OBJECT

protected:
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool selectsOnRelease = false;
};

}  // namespace kordavan
