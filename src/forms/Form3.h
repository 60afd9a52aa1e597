#pragma once

#include "design/Selection.h"
#include "forms/Bindings.h"
#include "forms/SelectionForm.h"

class QGridLayout;
class QLabel;
class QPushButton;

namespace kordavan {

class ChoiceBox;
class PickTable;

/// The selection of a sawn member or glulam: quick picks, and boxes for the size to test.
class Form3 : public SelectionForm {
    Q_OBJECT

public:
    explicit Form3(Walk& walk);

    /// Finds the quick picks anew after each analysis.
    void Activate() override;

protected:
    QAbstractButton* DefaultCommand() override;

private:
    void BuildHeader();
    void BuildPicks();
    void BuildBoxes();
    void BuildFoot();
    void BuildMenus();

    void StartOver();
    void ShowTexts();
    void ShowEntry();
    void OnPick(std::size_t index);
    void OnCmdOK();

    Bindings boxes;
    QuickPicks picks;
    QLabel* valuesInUse = nullptr;
    PickTable* table = nullptr;
    ChoiceBox* breadth = nullptr;
    ChoiceBox* depth = nullptr;
    ChoiceBox* species = nullptr;
    QLabel* panel = nullptr;
    QPushButton* okButton = nullptr;
};

}  // namespace kordavan
