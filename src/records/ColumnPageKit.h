#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

#include "design/DataSheet.h"
#include "records/PageWriter.h"

namespace kordavan {

/// A text of a column's page: that of a cell, or one of no number.
struct PageCell {
    std::size_t Label = 0;
    std::string Text{};
};

/// A check of the verdict.
struct PageCheck {
    std::string_view Caption;
    PageCell Critical;
    PageCell Actual;
    PageCell Status{};
    PageCell Ratio{};
};

/// A caption with one figure or two.
struct PageFigures {
    std::string_view Caption;
    PageCell First{};
    PageCell Second{};
};

/// The tables on the left of a column's page; the picture stands on their right.
inline constexpr double ColumnTableWidth = 330;

/// Where a second table begins on the right half of the page.
inline constexpr double RightTableLeft = 292;

/// The columns of figures of a table, from its left edge.
inline constexpr double FirstFigureLeft = 124;
inline constexpr double SecondFigureLeft = 178;
inline constexpr double FirstFigureWidth = 50;
inline constexpr double SecondFigureWidth = 58;

/// A figure of no cell.
PageCell Figure(double value, std::string_view format);

/// The page's head for a record that has no sheet of cells.
/// @param idCaption  what is identified, such as "Column ID:"
void WriteRecordHeading(PageWriter& writer, const RecordHeading& heading, std::string_view idCaption);

/// Heads the page's tables with what the column is and what it was designed by.
void WriteColumnTitle(PageWriter& writer, const PageCell& member, const PageCell& attributes);

/// The checks under their heads, tinted on a fine page.
void WriteChecks(PageWriter& writer, std::initializer_list<PageCheck> checks, const PageOptions& options);

/// A block's head with the heads of its columns of figures.
void WriteFigureHeads(PageWriter& writer, const PageFigures& heads, double left = 0);

/// One row of figures; the line stays, so that another may stand beside it.
void WriteFigures(PageWriter& writer, const PageFigures& row, double left = 0);

/// Keeps the room on the right of the tables for a picture.
/// @param top  of the first of them
void KeepDiagramRoom(PageWriter& writer, double top, const PageOptions& options);

}  // namespace kordavan
