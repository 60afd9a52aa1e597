#pragma once

#include <QWidget>
#include <vector>

#include "forms/BeamPainter.h"

namespace kordavan {

/// The beam and its loads as they are entered. A click on a load, or Space on the one chosen by the arrow
/// keys, asks for the row that holds it.
class LoadSketch : public QWidget {
    Q_OBJECT

public:
    LoadSketch();

    void Show(const LoadPicture& newPicture);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The name of the box that holds the total of the chosen load.
    void LoadChosen(const QString& box);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Choose(std::size_t index);

    LoadPicture picture;
    std::vector<DrawnLoad> drawn;
    std::size_t chosen = 0;
};

}  // namespace kordavan
