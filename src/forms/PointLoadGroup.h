#pragma once

#include <array>

#include "design/CriteriaScreen.h"
#include "forms/LoadTable.h"

class QLabel;

namespace kordavan {

/// The point loads B to G, and the buttons that unbalance an overhanging beam.
class PointLoadGroup : public LoadTable {
    Q_OBJECT

public:
    explicit PointLoadGroup(const GroupContext& context);

    void ShowScreen(const CriteriaScreen& screen);

private:
    struct Row {
        NumericBox* Live;
        NumericBox* Total;
        NumericBox* Distance;
        QLabel* Tag;
    };

    void AddRows();
    void AddUnbalance();

    std::array<Row, PointSlotCount> rows{};
    QPushButton* unbalanceSpan = nullptr;
    QPushButton* unbalanceOverhang = nullptr;
};

}  // namespace kordavan
