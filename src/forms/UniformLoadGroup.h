#pragma once

#include <vector>

#include "design/CriteriaScreen.h"
#include "design/LoadingConditions.h"
#include "forms/LoadTable.h"

class QPushButton;

namespace kordavan {

/// The uniform load and its psf calculator. Of a hip or valley it only shows the equivalent load.
class UniformLoadGroup : public LoadTable {
    Q_OBJECT

public:
    explicit UniformLoadGroup(const GroupContext& context);

    void ShowScreen(const CriteriaScreen& screen);

private:
    void AddLoad();
    void AddCalculator();
    QPushButton* AddStep(const ControlText& text, std::string_view caption, std::string LoadSet::*live,
                         std::string LoadSet::*total);

    NumericBox* live = nullptr;
    NumericBox* total = nullptr;
    QPushButton* step = nullptr;
    QPushButton* multiply = nullptr;
    std::vector<QWidget*> calculator;
};

}  // namespace kordavan
