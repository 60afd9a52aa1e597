#pragma once

#include <QWidget>

#include "design/SectionPicture.h"

class QPainter;

namespace kordavan {

struct SketchColors;

/// The cross section of a member to scale, with its net sizes.
class SectionSketch : public QWidget {
    Q_OBJECT

public:
    SectionSketch();

    void Show(const SectionPicture& newPicture);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF SectionArea() const;
    void DrawSection(QPainter& painter, const SketchColors& colors, const QRectF& section) const;
    void DrawRectangle(QPainter& painter, const SketchColors& colors, const QRectF& section) const;
    void DrawSizes(QPainter& painter, const SketchColors& colors, const QRectF& section) const;

    SectionPicture picture;
};

}  // namespace kordavan
