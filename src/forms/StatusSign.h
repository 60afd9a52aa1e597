#pragma once

#include <QWidget>

namespace kordavan {

/// What a sign says beside a text, so that colour alone never has to.
enum class Sign { None, Passes, Fails, Alert };

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
