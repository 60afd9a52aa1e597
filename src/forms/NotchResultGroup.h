#pragma once

#include <QGroupBox>

#include "notch/NotchTexts.h"

class QGridLayout;
class QLabel;

namespace kordavan {

class NoteLine;

/// The figures of the last run of the notch check, and what else must be known of them.
class NotchResultGroup : public QGroupBox {
    Q_OBJECT

public:
    NotchResultGroup();

    void ShowTexts(const NotchTexts& texts);

private:
    QWidget* MakeFigures();

    QLabel* adjustedFv = nullptr;
    QLabel* area = nullptr;
    QLabel* criticalCaption = nullptr;
    QLabel* critical = nullptr;
    QLabel* criticalUnit = nullptr;
    QLabel* ratioCaption = nullptr;
    QLabel* ratio = nullptr;
    QLabel* minimumSpan = nullptr;
    QLabel* taperAngle = nullptr;
    QWidget* figures = nullptr;
    NoteLine* note = nullptr;
};

}  // namespace kordavan
