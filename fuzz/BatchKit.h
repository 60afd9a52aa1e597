#pragma once

#include <rapidjson/document.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "FuzzKit.h"
#include "batch/BatchRun.h"
#include "batch/Json.h"
#include "batch/RequestLine.h"

namespace kordavan {

/// The line with every path in it turned to a device that is no file, so that no input ever writes or reads
/// one. A line that no request is read from stays as it is.
inline std::string WithoutFiles(const std::string& line)
{
    rapidjson::Document request;
    try {
        ParseRequest(line, request);
    } catch (const InvalidRequest&) {
        return line;
    }
    for (auto& member : request.GetObject()) {
        if (NameOf(member) == "path") {
            member.value.SetString("/dev/null");
        }
    }
    rapidjson::StringBuffer text;
    rapidjson::Writer<rapidjson::StringBuffer> writer(text);
    request.Accept(writer);
    return {text.GetString(), text.GetSize()};
}

/// What a line is answered with; every answer stands behind the ones before, and is the same each time.
inline std::string AnswerOf(const std::string& line, LineAnswer answer)
{
    constexpr std::string_view before = "before";
    rapidjson::StringBuffer buffer;
    std::copy(before.begin(), before.end(), buffer.Push(before.size()));
    answer(line, buffer);
    const std::string all(buffer.GetString(), buffer.GetSize());
    MustHold(all.starts_with(before), "an answer leaves the ones before it");
    const std::size_t firstSize = all.size();
    answer(line, buffer);
    const std::string_view both(buffer.GetString(), buffer.GetSize());
    MustHold(both.substr(firstSize) == both.substr(before.size(), firstSize - before.size()),
             "a line is answered the same each time");
    return all.substr(before.size());
}

}  // namespace kordavan
