#include "batch/RequestLine.h"

#include <rapidjson/error/en.h>

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>

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

int CodeUnit(std::string_view digits)
{
    int unit = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), unit, 16);
    return error == std::errc{} && end == digits.data() + digits.size() ? unit : 0;
}

/// An escaped second half of a UTF-16 pair without its first: JSON by the letter, but no text. The parser
/// takes it and would pass it on as bytes that are not UTF-8.
bool HasLoneLowSurrogate(std::string_view line)
{
    constexpr std::size_t escapeLength = 6;  // \uXXXX
    std::size_t at = line.find('\\');
    while (at != std::string_view::npos && at + 1 < line.size()) {
        std::size_t length = 2;
        if (line[at + 1] == 'u') {
            const int unit = CodeUnit(line.substr(at + 2, 4));
            if (unit >= 0xDC00 && unit <= 0xDFFF) {
                return true;
            }
            const bool opensPair = unit >= 0xD800 && unit <= 0xDBFF;
            length = opensPair ? 2 * escapeLength : escapeLength;
        }
        at = line.find('\\', at + length);
    }
    return false;
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
    if (line.find('\0') != std::string_view::npos || HasLoneLowSurrogate(line)) {
        throw InvalidRequest("not JSON: a character that is no text");
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
