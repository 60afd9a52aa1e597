#pragma once

#include "columns/StudPicture.h"
#include "forms/SketchPane.h"

namespace kordavan {

/// A wall stud, lying, with the wind across it and the axial load at its end, as entered.
class StudSketch : public SketchPane {
    Q_OBJECT

public:
    StudSketch();

    void ShowPicture(const StudPicture& newPicture);

protected:
    void Draw(QPainter& painter, const QRectF& area, const SketchColors& colors) const override;

private:
    StudPicture picture;
};

}  // namespace kordavan
