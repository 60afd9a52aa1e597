#pragma once

#include <rapidjson/stringbuffer.h>

#include <string_view>

namespace kordavan {

/// Answers one request line with one line, appended to the buffer without its line break. Never throws: what
/// is wrong with a line is its answer.
void AnswerLine(std::string_view line, rapidjson::StringBuffer& buffer);

}  // namespace kordavan
