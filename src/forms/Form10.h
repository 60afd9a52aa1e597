#pragma once

#include <optional>
#include <string>

#include "forms/Bindings.h"
#include "forms/ColumnSelectionForm.h"

namespace kordavan {

class ChoiceBox;
class ColumnPicks;
class FigureGrid;
class NoteLine;
class SteelChecks;

/// The selection of a steel column: quick picks, and the report of one size.
class Form10 final : public ColumnSelectionForm {
    Q_OBJECT

public:
    explicit Form10(Walk& walk);

    void Activate() override;

protected:
    void ShowTest() override;

private:
    void BuildPicks();
    void BuildBoxes();
    QWidget* MakeReport();

    void ShowPicks();
    void OnPick(std::size_t index);
    void OnReport();
    void TakeOutcome(Outcome outcome);

    std::string sizeList;
    HelpText sizeHelp;
    Bindings boxes;
    ColumnPicks* picks = nullptr;
    std::optional<std::size_t> picked;  // the pick that stands in the boxes
    bool isOutdated = false;            // the boxes have been edited since the report
    ChoiceBox* size = nullptr;
    NoteLine* noneWorks = nullptr;
    FigureGrid* properties = nullptr;
    SteelChecks* checks = nullptr;
};

}  // namespace kordavan
