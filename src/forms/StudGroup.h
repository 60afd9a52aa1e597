#pragma once

#include "columns/ColumnSession.h"
#include "forms/EntryGroup.h"

namespace kordavan {

class StudSizeGroup;
class StudSketch;

/// The face of a stud under axial load and wind: its entries over its sketch.
class StudGroup : public EntryGroup {
    Q_OBJECT

public:
    StudGroup(const GroupContext& context, ColumnSession& currentColumns);

    void ShowEntries();

Q_SIGNALS:
    /// The entries have changed by more than typing.
    void Changed();

    void SaveAsked();
    void LoadAsked();

private:
    ColumnSession& columns;
    StudSizeGroup* size = nullptr;
    StudSketch* sketch = nullptr;
};

}  // namespace kordavan
