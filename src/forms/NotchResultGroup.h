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
    struct Figure {
        QLabel* Caption = nullptr;
        QLabel* Panel = nullptr;
        QLabel* Unit = nullptr;
    };

    QWidget* MakeFigures();
    static Figure AddFigure(QGridLayout& grid, int line, int column, const Figure& figure);
    static void ShowFigure(const Figure& figure, const std::string& text);

    Figure adjustedFv;
    Figure area;
    Figure taperAngle;
    Figure critical;
    Figure ratio;
    Figure minimumSpan;
    QWidget* figures = nullptr;
    NoteLine* note = nullptr;
};

}  // namespace kordavan
