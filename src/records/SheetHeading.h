#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "design/DataSheet.h"
#include "design/SelectionRecord.h"

namespace kordavan {

/// A cell of a sheet's head, with the prefix that it has there.
struct HeadCell {
    std::size_t Label;
    std::string_view Prefix;
    std::string RecordHeading::*Text;
};

/// A cell's text without its prefix. A prefix with nothing behind it has lost its last blank in a file.
std::string WithoutPrefix(std::string_view text, std::string_view prefix);

/// Heads a sheet, whose texts go by the numbers of their labels.
void WriteHeadCells(std::span<const HeadCell> head, const RecordHeading& heading,
                    std::span<std::string> sheet);

/// What a sheet is headed with.
RecordHeading ReadHeadCells(std::span<const HeadCell> head, std::span<const std::string> sheet);

/// Dates a heading that has no date.
void DateHeading(RecordHeading& heading, CalendarDay today);

}  // namespace kordavan
