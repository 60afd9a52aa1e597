#pragma once

#include <initializer_list>

#include "design/DefaultSettings.h"
#include "forms/Bindings.h"
#include "forms/EntryGroup.h"
#include "forms/Form.h"
#include "forms/NumericBox.h"

class QComboBox;
class QPushButton;

namespace kordavan {

class EditionGroup;
class LoadPairGroup;

/// The user's standing choices. What is entered here counts once it is saved, but for the edition, which is
/// in force at once.
class Form13 : public Form {
    Q_OBJECT

public:
    explicit Form13(Walk& walk);

    void Activate() override;

protected:
    QAbstractButton* DefaultCommand() override;
    void GoBack() override;

private:
    QWidget* MakeHeader();
    QWidget* MakeStart();
    QWidget* MakeSteel();
    QLayout* MakeColumn(std::initializer_list<QWidget*> groups);
    void MakeFoot();
    void MakeMenus();
    void OrderTabs();

    QComboBox* MakeMaterials();
    QComboBox* MakeFonts();
    HelpButton* MakeSettingsHelp();

    void ShowSettings();
    void ShowFont();
    void Save();

    DefaultSettings settings;
    Bindings bindings;
    NumericBoxContext numbers;
    GroupContext context;

    EditionGroup* editionGroup = nullptr;
    LoadPairGroup* pairGroup = nullptr;
    QComboBox* material = nullptr;
    QComboBox* font = nullptr;
    QPushButton* save = nullptr;
    QPushButton* close = nullptr;
};

}  // namespace kordavan
