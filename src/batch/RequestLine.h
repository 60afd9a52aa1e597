#pragma once

#include <rapidjson/document.h>

#include <cstddef>
#include <string_view>

namespace kordavan {

/// A longer line is not read but answered as invalid.
inline constexpr std::size_t MostLineBytes = 1 << 20;

/// Parses a line as one JSON object. Throws InvalidRequest with what is wrong and where.
void ParseRequest(std::string_view line, rapidjson::Document& request);

}  // namespace kordavan
