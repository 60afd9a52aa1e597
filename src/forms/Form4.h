#pragma once

#include <QFrame>

class QProgressBar;

namespace kordavan {

/// The gauge over a form while it calculates. It takes no focus.
class Form4 : public QFrame {
    Q_OBJECT

public:
    explicit Form4(QWidget& over);

    /// Shows how far the calculation has come, 0 to 100, at once.
    void Reach(int percent);

private:
    QProgressBar* gauge;
};

}  // namespace kordavan
