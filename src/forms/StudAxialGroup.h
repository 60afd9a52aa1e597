#pragma once

#include "columns/ColumnSession.h"
#include "forms/EntryGroup.h"

namespace kordavan {

/// Axial load of a stud and the duration factors of both its loads.
class StudAxialGroup : public EntryGroup {
    Q_OBJECT

public:
    StudAxialGroup(const GroupContext& context, StudEntry& studEntry);

Q_SIGNALS:
    /// The entries have changed by more than typing.
    void Changed();

private:
    void AddLoads();
    void AddDurations();
    void AddLine(int line, std::string_view caption, NumericBox* box, std::string_view unit);

    StudEntry& entry;
};

}  // namespace kordavan
