#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "records/PackedRecord.h"

namespace kordavan {

/// A text of a record for a box or a line of a page. What a damaged file holds of characters that neither can
/// show reads as blanks; those at the end go.
std::string PrintableText(const PackedRecord& record, std::string_view name, std::size_t index = 0);

}  // namespace kordavan
