#pragma once

#include <QPushButton>
#include <QWidget>
#include <array>

#include "design/QuickPicks.h"

class QGridLayout;
class QLabel;

namespace kordavan {

class HelpButton;

/// A cell of the quick picks: a nominal depth to pick, or an empty place. The cell that is in the size boxes
/// wears a frame.
class PickCell : public QPushButton {
    Q_OBJECT

public:
    explicit PickCell(const QString& name);

    void Show(const QuickPick& pick, const PickFace& face);
    void SetPicked(bool picked);

    QSize sizeHint() const override;

protected:
    void initStyleOption(QStyleOptionButton* option) const override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool isFaded = false;
    bool isPicked = false;
};

/// The quick picks under their breadths and beside their species. Arrow keys go from cell to cell.
class PickTable : public QWidget {
    Q_OBJECT

public:
    /// @param widthHelp   stands beside the sawn breadths
    /// @param glulamHelp  stands beside the glulam breadths
    PickTable(HelpButton* widthHelp, HelpButton* glulamHelp);

    void Show(const QuickPicks& picks, const BeamNumbers& beam);
    void ShowTexts(const SelectionTexts& texts);

    /// Frames the cell that is in the size boxes.
    void ShowEntry(const QuickPicks& picks, const MemberEntry& entry);

    /// Puts the focus on the first cell that offers a depth; false when none does.
    bool FocusFirst();

Q_SIGNALS:
    void Picked(std::size_t index);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void AddCells();
    void AddHeadings(HelpButton* widthHelp, HelpButton* glulamHelp);
    QLabel* AddColumnHead(const QString& name, int line, int column);
    PickCell* CellInFocus();
    PickCell* CellBeside(const PickCell& cell, int key);

    QGridLayout* grid;
    std::array<PickCell*, QuickPickCount> cells{};
    std::array<QLabel*, 5> rowHeads{};
    std::array<QLabel*, 8> columnHeads{};
    std::array<QLabel*, 5> glulamHeads{};
    QLabel* repQualify = nullptr;
};

}  // namespace kordavan
