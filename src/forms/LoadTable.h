#pragma once

#include <functional>
#include <initializer_list>
#include <vector>

#include "forms/EntryGroup.h"

class QLabel;
class QToolButton;

namespace kordavan {

/// A table of entries, a row to a load: headings, a letter that empties its row, boxes. A double click beside
/// the boxes empties the whole table; Ctrl+Delete and Ctrl+Shift+Delete in a box do the same by the keyboard.
class LoadTable : public EntryGroup {
    Q_OBJECT

public:
    using EntryGroup::EntryGroup;

    /// The line of the grid that holds a row.
    static constexpr int LineOf(std::size_t slot) { return static_cast<int>(slot) + 1; }

protected:
    struct RowBox {
        std::string_view Array;
        std::string_view Tip;
        int Digits;
        std::string* Text;
    };

    using SlotClearing = void (*)(LoadSet& loads, std::size_t slot);
    using TableClearing = void (*)(LoadSet& loads);

    void AddHeadings(std::initializer_list<std::string_view> headings);

    /// Boxes of the load with this letter, from the first heading on; the keys in them that empty the row.
    std::vector<NumericBox*> AddRow(char letter, std::size_t slot, std::initializer_list<RowBox> row,
                                    SlotClearing clear);

    /// A flat button with the letter before the row, which empties it.
    QToolButton* AddLetter(std::string_view name, char letter, std::size_t slot, SlotClearing clear);

    /// The keys in the boxes of all rows, and a double click, that empty the table.
    void MakeTableClearable(TableClearing clear);

    /// The keys in a box that empty its row and its table.
    void MakeClearable(NumericBox& box, std::size_t slot, SlotClearing clear);

    /// A table that only shows cannot be emptied.
    void SetClearable(bool isClearable);

    /// A tag behind a row that lies on the overhang.
    QLabel* AddOverhangTag(std::size_t slot);

    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void ClearRow(std::size_t slot, SlotClearing clear);
    void ClearTable();

    TableClearing clearTable = nullptr;
    bool canClear = true;
    int columnCount = 0;
};

}  // namespace kordavan
