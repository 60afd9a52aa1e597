#pragma once

#include "forms/SketchPane.h"
#include "notch/NotchPicture.h"

namespace kordavan {

/// The notched end of a member on its support, as entered.
class NotchSketch : public SketchPane {
    Q_OBJECT

public:
    NotchSketch();

    void ShowPicture(const NotchPicture& newPicture);

protected:
    void Draw(QPainter& painter, const QRectF& area, const SketchColors& colors) const override;

private:
    NotchPicture picture;
};

}  // namespace kordavan
