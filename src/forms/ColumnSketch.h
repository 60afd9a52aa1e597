#pragma once

#include "columns/ColumnPicture.h"
#include "forms/SketchPane.h"

namespace kordavan {

/// A column in its two bracing planes, as entered.
class ColumnSketch : public SketchPane {
    Q_OBJECT

public:
    ColumnSketch();

    void ShowPicture(const ColumnPicture& newPicture);

protected:
    void Draw(QPainter& painter, const QRectF& area, const SketchColors& colors) const override;

private:
    ColumnPicture picture;
};

}  // namespace kordavan
