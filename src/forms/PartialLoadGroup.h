#pragma once

#include <array>

#include "design/CriteriaScreen.h"
#include "forms/LoadTable.h"

class QLabel;

namespace kordavan {

/// The partial uniform loads H to L.
class PartialLoadGroup : public LoadTable {
    Q_OBJECT

public:
    explicit PartialLoadGroup(const GroupContext& context);

    void ShowScreen(const CriteriaScreen& screen);

Q_SIGNALS:
    /// Its loads are to be entered by the psf calculator.
    void CalculatorAsked();

private:
    struct Row {
        std::array<NumericBox*, 4> Boxes;
        QLabel* Tag;
    };

    void AddRows();

    std::array<Row, PartialSlotCount> rows{};
};

/// Beside the partial loads, row by row: psf times a tributary length.
class PartialCalculator : public LoadTable {
    Q_OBJECT

public:
    explicit PartialCalculator(const GroupContext& context);

    /// Opens with the caret in the first box.
    void Open();

    void PutAway();

    QPushButton& InsertCommand() { return *insert; }

Q_SIGNALS:
    void Opened();
    void Closed();

private:
    NumericBox* first = nullptr;
    QPushButton* insert = nullptr;
};

}  // namespace kordavan
