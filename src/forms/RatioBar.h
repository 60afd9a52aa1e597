#pragma once

#include <QWidget>
#include <optional>

namespace kordavan {

/// A thin bar of the part of its capacity that a member uses, with a mark at 100 %.
class RatioBar : public QWidget {
    Q_OBJECT

public:
    explicit RatioBar(const QString& name);

    /// @param newRatio  1 for the whole capacity; none leaves the bar out
    /// @param fails     whether the check has failed, which the ratio alone does not decide
    void Show(std::optional<double> newRatio, bool fails);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::optional<double> ratio;
    bool isFailed = false;
};

}  // namespace kordavan
