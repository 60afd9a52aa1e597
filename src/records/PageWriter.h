#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "design/DataSheet.h"
#include "records/RecordPage.h"

namespace kordavan {

inline constexpr double PageMargin = 36;  // points
inline constexpr double PageContentWidth = 612 - 2 * PageMargin;

/// A column of the page: its left edge from the margin and its width.
struct PageColumn {
    double Left;
    double Width;
    PageAlign Align = PageAlign::Right;
};

inline constexpr PageColumn WholePageWidth{0, PageContentWidth, PageAlign::Left};

/// Writes the cells of a sheet line by line down its page.
class PageWriter {
public:
    /// @param sheetCells  the texts of the sheet by the numbers of their labels; they outlive the writer
    PageWriter(std::string title, std::span<const std::string> sheetCells, const PageOptions& options);

    RecordPage& Page() { return page; }
    double Top() const { return top; }

    /// The next text is the first of a block.
    void StartBlock() { startsBlock = true; }

    void Cell(std::size_t label, const PageColumn& column, PageStyle style = PageStyle::Figure);

    /// @param label  0 for a text that is no cell
    void Text(std::size_t label, std::string_view text, const PageColumn& column, PageStyle style);

    /// A cell that goes by a name.
    void NamedCell(std::string_view name, std::string_view text, const PageColumn& column, PageStyle style);

    void NextLine(double lines = 1);
    void Rule(double width = PageContentWidth);

private:
    std::span<const std::string> cells;
    RecordPage page;
    double top = PageMargin;
    bool startsBlock = false;
};

/// One text of a page's head.
struct PageHeadText {
    std::size_t Label = 0;
    std::string_view Text;
    std::string_view Caption{};  // before texts that do not say themselves what they are
};

/// The head of a record's page.
struct PageHeading {
    PageHeadText Heading1;
    PageHeadText Heading2;
    PageHeadText Project;
    PageHeadText Id;
    PageHeadText Description;
    PageHeadText Date;
    PageHeadText Initials;
};

void WritePageHeading(PageWriter& writer, const PageHeading& heading);

/// The notes under their heading; nothing when there are none.
void WritePageNotes(PageWriter& writer, const ReportNoteLines& notes);

}  // namespace kordavan
