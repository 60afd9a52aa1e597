#pragma once

#include <QWidget>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

class QGridLayout;
class QKeyEvent;
class QLabel;

namespace kordavan {

class PickCell;

/// What a quick pick of a column shows.
struct ColumnPick {
    std::string Head{};  // over the pick
    std::string Size;    // empty where no size carries the load
    std::string Name;    // what it stands for, for assistive tools
    std::string Tip;
    bool IsOffered = true;
    bool IsPicked = false;
};

/// Lines of quick picks with their captions at the left, and heads over those that have them. Arrow keys go
/// from pick to pick.
class ColumnPicks : public QWidget {
    Q_OBJECT

public:
    /// The names of a pick and of the head over it; a head without a name is left out.
    struct Names {
        std::string Button;
        std::string Head{};
    };

    /// @param digits  width of a pick
    explicit ColumnPicks(int digits);

    void AddLine(std::string_view headCaption, std::string_view caption, const std::vector<Names>& names);

    /// @param picks  in the order in which they were added
    void Show(const std::vector<ColumnPick>& picks);

    /// Puts the focus on the first pick that offers a size; false when none does.
    bool FocusFirst();

Q_SIGNALS:
    void Picked(std::size_t index);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Place {
        QLabel* Head;  // or none
        PickCell* Cell;
    };

    void FocusNext(int step);

    QGridLayout* grid;
    int digitCount;
    std::vector<Place> places;
};

}  // namespace kordavan
