#pragma once

#include <array>

#include "forms/BesideForm.h"
#include "forms/DiagramPlot.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace kordavan {

/// The load diagram: the beam as it was calculated last, with its loads, over its shear, moment and
/// deflection. It stands beside the form in front.
class Form11 : public BesideForm {
    Q_OBJECT

public:
    explicit Form11(Walk& walk);

    void Activate() override;

    /// Begins higher than it needs to be.
    QSize sizeHint() const override;

protected:
    QAbstractButton* DefaultCommand() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void AddReading();
    void AddPlots();
    void AddPeaks();
    void AddCommands();
    QString Heading();

    void ShowDiagram();
    void MoveCursor(double feet);
    void Copy();
    void SavePicture();

    DiagramView view;
    int analysisShown = 0;
    QCheckBox* liveLoad = nullptr;
    QLabel* reading = nullptr;
    std::array<DiagramPlot*, DiagramParts.size()> plots{};
    QLabel* peaks = nullptr;
    QPushButton* copy = nullptr;
    QPushButton* save = nullptr;
    QPushButton* close = nullptr;
};

}  // namespace kordavan
