#pragma once

#include <QWidget>

#include "notch/NotchTexts.h"

class QLabel;

namespace kordavan {

class RatioBar;
class StatusSign;

/// What came of the last run of the notch check, and whether the entries are still those of that run.
class NotchStatusLine : public QWidget {
    Q_OBJECT

public:
    NotchStatusLine();

    void ShowTexts(const NotchTexts& texts);

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* verdict;
    StatusSign* sign;
    QLabel* status;
    RatioBar* bar;
    QLabel* changed;
    bool fails = false;
};

}  // namespace kordavan
