#pragma once

#include <rapidjson/stringbuffer.h>

#include <string_view>

namespace kordavan {

/// Answers one request line with a report to be read by a person: the member, what governs, each check, the
/// reactions and the notes. Takes the lines that AnswerLine takes, and never throws either.
void ReportLine(std::string_view line, rapidjson::StringBuffer& buffer);

}  // namespace kordavan
