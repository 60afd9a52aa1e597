#pragma once

#include <QWidget>

class QPainter;

namespace kordavan {

/// What a sign says beside a text, so that colour alone never has to.
enum class Sign { None, Passes, Fails, Alert };

/// Draws a sign into a square.
void PaintSign(QPainter& painter, const QRectF& square, Sign sign, const QColor& color);

/// A tick, a cross or a warning triangle as high as the text beside it.
class StatusSign : public QWidget {
    Q_OBJECT

public:
    explicit StatusSign(const QString& name, Sign sign = Sign::None);

    void Show(Sign newSign);
    Sign Shown() const { return shown; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Sign shown = Sign::None;
};

}  // namespace kordavan
