#pragma once

#include <QWidget>
#include <array>
#include <vector>

#include "design/OwnSelection.h"

class QKeyEvent;
class QLabel;
class QPushButton;

namespace kordavan {

class PickCell;

/// The quick picks of a member of the user's own values, each breadth over its smallest depth that passes,
/// and below them the depths of the breadth entered that suit the moment.
class OwnPickRow : public QWidget {
    Q_OBJECT

public:
    OwnPickRow();

    void ShowPicks(const std::vector<QuickPick>& found, const Session& session);
    void ShowDepths(const std::vector<std::string_view>& depths);

    /// Puts the focus on the first pick that offers a depth; false when none does.
    bool FocusFirst();

Q_SIGNALS:
    void Picked(std::size_t index);
    void DepthPicked(const QString& depth);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// Moves the focus to the next pick in a direction that offers a depth.
    void FocusNext(int step);

    std::array<QLabel*, OwnPickCount> breadths{};
    std::array<PickCell*, OwnPickCount> picks{};
    QLabel* heading = nullptr;
    QLabel* depthsCaption = nullptr;
    std::array<QPushButton*, SuggestedDepthCount> depthButtons{};
};

}  // namespace kordavan
