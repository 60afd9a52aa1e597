#include "batch/RequestLine.h"

#include <rapidjson/error/en.h>

#include <algorithm>
#include <string>

#include "batch/Json.h"

namespace kordavan {

namespace {

/// Requests nested deeper than this are refused before anything walks them by recursion.
constexpr int MostDepth = 64;

int DepthOf(std::string_view line)
{
    int depth = 0;
    int deepest = 0;
    bool inText = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char c = line[at];
        if (inText) {
            at += c == '\\' ? 1 : 0;
            inText = c != '"';
        } else if (c == '"') {
            inText = true;
        } else if (c == '{' || c == '[') {
            deepest = std::max(deepest, ++depth);
        } else if (c == '}' || c == ']') {
            --depth;
        }
    }
    return deepest;
}

}  // namespace

void ParseRequest(std::string_view line, rapidjson::Document& request)
{
    constexpr unsigned flags = rapidjson::kParseFullPrecisionFlag | rapidjson::kParseValidateEncodingFlag;
    if (line.size() > MostLineBytes) {
        throw InvalidRequest("the line is longer than " + std::to_string(MostLineBytes) + " bytes");
    }
    if (DepthOf(line) > MostDepth) {
        throw InvalidRequest("the line is nested too deeply");
    }
    request.Parse<flags>(line.data(), line.size());
    if (request.HasParseError()) {
        throw InvalidRequest(
            "not JSON: " + std::string(rapidjson::GetParseError_En(request.GetParseError())) + " At byte " +
            std::to_string(request.GetErrorOffset()) + ".");
    }
    if (!request.IsObject()) {
        throw InvalidRequest("an object is expected");
    }
}

}  // namespace kordavan
