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
    /// @param pairs  commonly used loads that the buttons step through
    UniformLoadGroup(const GroupContext& context, const std::vector<LoadPair>& pairs);

    void ShowScreen(const CriteriaScreen& screen);

private:
    void AddLoad(const std::vector<LoadPair>& pairs);
    void AddCalculator(const std::vector<LoadPair>& pairs);
    QPushButton* AddStep(const ControlText& text, std::string_view caption,
                         const std::vector<LoadPair>& pairs, std::string LoadSet::*live,
                         std::string LoadSet::*total);

    NumericBox* live = nullptr;
    NumericBox* total = nullptr;
    QPushButton* step = nullptr;
    QPushButton* multiply = nullptr;
    std::vector<QWidget*> calculator;
};

}  // namespace kordavan
