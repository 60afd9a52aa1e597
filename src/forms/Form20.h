#pragma once

#include <optional>

#include "columns/WoodColumnReport.h"
#include "forms/Bindings.h"
#include "forms/ColumnSelectionForm.h"
#include "forms/NumericBox.h"

namespace kordavan {

class ColumnPicks;
class FigureGrid;
class NoteLine;

/// The selection of a wood column: quick picks, and the test of one size.
class Form20 final : public ColumnSelectionForm {
    Q_OBJECT

public:
    explicit Form20(Walk& walk);

    void Activate() override;

protected:
    void ShowTest() override;

private:
    void BuildPicks();
    void BuildBoxes();
    NumericBox* MakeBox(const ControlText& text, std::string& bound);
    QWidget* MakeReport();

    void ShowPicks();
    void OnPick(std::size_t index);
    void OnTest();

    NumericBoxContext numbers;
    Bindings boxes;
    ColumnPicks* picks = nullptr;
    std::optional<std::size_t> picked;  // the pick that stands in the boxes
    bool isOutdated = false;            // the boxes have been edited since the test
    NumericBox* thickness = nullptr;
    NoteLine* noneWorks = nullptr;
    QLabel* governing = nullptr;
    NoteLine* reason = nullptr;
    FigureGrid* figures = nullptr;
};

}  // namespace kordavan
