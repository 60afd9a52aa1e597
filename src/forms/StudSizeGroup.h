#pragma once

#include "columns/ColumnSession.h"
#include "forms/EntryGroup.h"

class QComboBox;

namespace kordavan {

class SpeciesBox;

/// Height, spacing and size of a stud, its species and its base values.
class StudSizeGroup : public EntryGroup {
    Q_OBJECT

public:
    StudSizeGroup(const GroupContext& context, StudEntry& studEntry);

    void ShowEntries();

Q_SIGNALS:
    /// The entries have changed by more than typing.
    void Changed();

private:
    void AddPlace();
    void AddSize();
    void AddSpecies();
    void AddValues();

    StudEntry& entry;
    SpeciesBox* species = nullptr;
};

}  // namespace kordavan
