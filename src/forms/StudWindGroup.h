#pragma once

#include "columns/ColumnSession.h"
#include "forms/EntryGroup.h"

namespace kordavan {

/// The wind loads of a stud, its repetitive use, and its files.
class StudWindGroup : public EntryGroup {
    Q_OBJECT

public:
    StudWindGroup(const GroupContext& context, StudEntry& studEntry);

Q_SIGNALS:
    void SaveAsked();
    void LoadAsked();

private:
    void AddLoads();
    void AddRepetitive();
    void AddFiles();

    StudEntry& entry;
};

}  // namespace kordavan
