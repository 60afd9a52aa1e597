#pragma once

#include <QWidget>

#include "forms/Kit.h"
#include "forms/PlotPainter.h"

namespace kordavan {

/// A load diagram with the place that is read off it.
struct DiagramView {
    LoadDiagram Diagram;
    double Cursor = 0;  // ft from R1
};

/// One part of a load diagram. The mouse and the arrow keys ask for another place of the cursor.
class DiagramPlot : public QWidget {
    Q_OBJECT

public:
    DiagramPlot(const ControlText& text, DiagramPart plotPart, const DiagramView& theView);

    /// Shows what the view holds now, and says it in words.
    void ShowView();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void PlaceAsked(double feet);

    /// A step of so many places to the right, or to the left when negative.
    void StepAsked(int places);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    const DiagramView& view;
    DiagramPart part;
};

}  // namespace kordavan
