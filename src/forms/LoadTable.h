#pragma once

#include <functional>
#include <initializer_list>
#include <vector>

#include "forms/EntryGroup.h"

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

    /// Boxes of one row, from the first heading on.
    std::vector<NumericBox*> AddRow(std::size_t slot, std::initializer_list<RowBox> row);

    /// A flat letter before the row, and the keys in its boxes, that empty it.
    void MakeRowClearable(const ControlText& letter, char caption, std::size_t slot,
                          const std::vector<NumericBox*>& boxes, SlotClearing clear);

    /// The keys in these boxes, and a double click, that empty the table.
    void MakeTableClearable(const std::vector<NumericBox*>& boxes, TableClearing clear);

    /// A tag behind a row that lies on the overhang.
    QLabel* AddOverhangTag(std::size_t slot);

    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    TableClearing clearTable = nullptr;
    int columnCount = 0;
};

}  // namespace kordavan
