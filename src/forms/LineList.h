#pragma once

#include <QListWidget>
#include <string_view>
#include <vector>

#include "forms/Kit.h"

namespace kordavan {

/// A short list that shows all its lines. A line is chosen by a click, by the arrows, or by Space where it is
/// selected already.
class LineList : public QListWidget {
    Q_OBJECT

public:
    LineList(const ControlText& text, const std::vector<std::string_view>& lines);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The person has chosen a line, be it the one that was selected.
    void Chosen(int line);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void Choose(int line);
};

}  // namespace kordavan
