#pragma once

#include <vector>

#include "columns/ColumnCriteria.h"
#include "columns/ColumnScreen.h"
#include "columns/ColumnSession.h"
#include "forms/EntryGroup.h"

class QLabel;
class QPushButton;

namespace kordavan {

class ReactionFrame;

/// Load, height, bracing and service conditions of a column; those of wood alone go away for steel.
class ColumnLoadGroup : public EntryGroup {
    Q_OBJECT

public:
    ColumnLoadGroup(const GroupContext& context, ColumnSession& currentColumns);

    void ShowScreen(const ColumnScreen& screen);

    ReactionFrame& Import() { return *import; }

Q_SIGNALS:
    /// The entries have changed by more than typing.
    void Changed();

private:
    void AddLoad(ColumnEntry& entry);
    void AddLengths(ColumnEntry& entry);
    void AddService(ColumnEntry& entry);
    void AddLine(int line, QLabel* caption, QWidget* box, std::string_view unit);
    void ToggleImport();
    void TakeReaction(const ReactionChoice& choice);

    ColumnSession& columns;
    QPushButton* importButton = nullptr;
    ReactionFrame* import = nullptr;
    NumericBox* load = nullptr;
    QLabel* modeCaption = nullptr;
    std::vector<QWidget*> woodParts;
};

}  // namespace kordavan
