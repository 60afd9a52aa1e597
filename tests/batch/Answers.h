#pragma once

#include <gtest/gtest.h>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>

#include <string>
#include <string_view>
#include <vector>

#include "batch/AnswerLine.h"

namespace kordavan {

inline std::string AnswerText(std::string_view line)
{
    rapidjson::StringBuffer buffer;
    AnswerLine(line, buffer);
    return {buffer.GetString(), buffer.GetSize()};
}

inline rapidjson::Document AnswerTo(std::string_view line)
{
    rapidjson::Document answer;
    const std::string text = AnswerText(line);
    answer.Parse(text.c_str());
    EXPECT_FALSE(answer.HasParseError()) << text;
    return answer;
}

inline std::vector<std::string> NamesOf(const rapidjson::Value& object)
{
    std::vector<std::string> names;
    for (const auto& member : object.GetObject()) {
        names.emplace_back(member.name.GetString());
    }
    return names;
}

}  // namespace kordavan
