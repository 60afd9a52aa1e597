#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kordavan {

/// A place on a page in points, from its upper left corner.
struct PageRect {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
};

enum class PageAlign { Left, Right, Center };

/// What a text is, which decides its weight and size.
enum class PageStyle { Figure, Caption, ColumnHead, Title, HeaderLine, Status, Note };

struct PageText {
    std::size_t Label = 0;  // the cell; 0 for texts that are none
    std::string Text;
    PageRect Area;
    PageAlign Align = PageAlign::Left;
    PageStyle Style = PageStyle::Figure;
    std::string Name{};        // of a cell that goes by a name instead
    bool StartsBlock = false;  // where the keyboard stops on its way down the page
};

/// What a page shows besides its sheet.
struct PageOptions {
    bool HighDpi = false;    // finer lines and tints
    bool HasNotes = true;    // the notes stand at its foot
    bool HasDiagram = true;  // the loads are known, not only their texts
};

/// A horizontal line across the page.
struct PageRule {
    double Left;
    double Top;
    double Width;
};

/// A record laid out on one sheet, for the screen, the printer and the clipboard alike.
struct RecordPage {
    std::string Title;   // of a file of the page
    double Width = 612;  // US Letter, upright
    double Height = 792;
    double TextSize = 9;
    double RuleThickness = 0.5;
    std::vector<PageText> Texts;  // in the order of reading
    std::vector<PageRule> Rules;
    std::vector<PageRect> Tints;
    std::optional<PageRect> Diagram;  // room for a picture of the loads
};

/// The page as plain text, its columns aligned by blanks.
std::string PlainTextOf(const RecordPage& page);

}  // namespace kordavan
