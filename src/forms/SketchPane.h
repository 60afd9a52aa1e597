#pragma once

#include <QWidget>

#include "forms/Kit.h"

class QPainter;

namespace kordavan {

struct SketchColors;

/// A framed picture of the entries. It takes the focus, so that assistive tools come by its text.
class SketchPane : public QWidget {
    Q_OBJECT

public:
    explicit SketchPane(const ControlText& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// Draws anew, with a text that says the same.
    void Show(std::string_view words);

    virtual void Draw(QPainter& painter, const QRectF& area, const SketchColors& colors) const = 0;

    void paintEvent(QPaintEvent* event) override;
};

}  // namespace kordavan
