#pragma once

#include "design/OwnScreen.h"
#include "forms/EntryGroup.h"

class QComboBox;
class QLabel;
class QStackedWidget;

namespace kordavan {

/// What a member of the user's own values is made of: a product of composite lumber, or a shape and family of
/// custom wood.
class OwnSectionGroup : public EntryGroup {
    Q_OBJECT

public:
    explicit OwnSectionGroup(const GroupContext& context);

    void ShowScreen(const OwnScreen& screen);

Q_SIGNALS:
    void ProductChosen(int product);

private:
    QWidget* MakeProductPage();
    QWidget* MakeWoodPage();
    void AddShapes(QGridLayout& lines);
    void AddFamilies(QGridLayout& lines);

    QStackedWidget* faces;
    QComboBox* products = nullptr;
    QLabel* makersLine = nullptr;
    QLabel* note = nullptr;
    NumericBox* diameter = nullptr;
    QLabel* duration = nullptr;
    std::array<QRadioButton*, 5> families{};
    QCheckBox* laminations = nullptr;
};

}  // namespace kordavan
