#pragma once

#include "columns/ColumnScreen.h"
#include "columns/ColumnSession.h"
#include "forms/EntryGroup.h"

class QLabel;

namespace kordavan {

class SpeciesBox;

/// How a wood column is made up, its species and its base values.
class ColumnValuesGroup : public EntryGroup {
    Q_OBJECT

public:
    ColumnValuesGroup(const GroupContext& context, ColumnSession& currentColumns);

    void ShowScreen(const ColumnScreen& screen);

Q_SIGNALS:
    /// The entries have changed by more than typing.
    void Changed();

    void LoadAsked();
    void SaveAsked();

private:
    void AddTypes();
    void AddGroups();
    void AddSpecies();
    void AddValues();
    void AddCommands();
    void ChooseGroup(ColumnValueGroup group);
    void Pick(std::string_view name);

    ColumnSession& columns;
    SpeciesBox* species = nullptr;
    QLabel* note = nullptr;
};

}  // namespace kordavan
