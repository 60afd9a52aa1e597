#pragma once

#include <optional>
#include <vector>

#include "design/OwnScreen.h"
#include "design/OwnSelection.h"
#include "forms/Bindings.h"
#include "forms/EntryGroup.h"
#include "forms/SelectionForm.h"

class QLabel;
class QPushButton;

namespace kordavan {

class ChoiceBox;
class OwnPickRow;
class OwnSectionGroup;
class OwnValuesGroup;

/// The selection of a member of the user's own values: composite lumber or custom wood.
class Form2 : public SelectionForm {
    Q_OBJECT

public:
    explicit Form2(Walk& walk);

    /// Finds the quick picks anew after each analysis, where the values are there.
    void Activate() override;

protected:
    QAbstractButton* DefaultCommand() override;

private:
    void BuildHeader();
    void BuildGroups();
    void BuildSizes();
    void BuildFoot();
    void BuildMenus();
    void OrderTabs();

    void StartOver();
    void Refresh();
    void ShowHeader();
    void ShowSizes(const OwnScreen& screen);
    bool AreValuesEntered() const;
    void FocusOnStart();

    void ChooseProduct(int product);
    void LoadProduct();
    void LoadValues();
    void SaveValues();
    void SaveProduct();
    void LoadFile();
    void SaveFile();
    void OnEnterValues();
    void OnPick(std::size_t index);
    void OnDepth(const QString& text);
    void OnTest();

    Bindings bindings;
    NumericBoxContext numbers;
    GroupContext context;
    std::vector<QuickPick> picks;

    /// What the picks were found for; a diameter aside.
    struct EnteredValues {
        CustomEntry Custom;
        std::size_t Product;
    };
    std::optional<EnteredValues> entered;

    QLabel* valuesInUse = nullptr;
    OwnSectionGroup* section = nullptr;
    OwnValuesGroup* values = nullptr;
    OwnPickRow* pickRow = nullptr;
    QWidget* sizes = nullptr;
    ChoiceBox* breadth = nullptr;
    ChoiceBox* depth = nullptr;
    QLabel* label20 = nullptr;
    QLabel* moreSizes = nullptr;
    QAction* loadFile = nullptr;
    QLabel* panel = nullptr;
    QPushButton* test = nullptr;
};

}  // namespace kordavan
