#pragma once

#include <rapidjson/document.h>

#include <string>
#include <string_view>

namespace kordavan::Verification {

/// What the engine answers to one request of the batch program.
class Answer {
public:
    /// Puts the request to the engine. Throws std::runtime_error, with the request and what was said, when it
    /// is not answered with figures.
    explicit Answer(std::string_view request);

    /// A figure by its place, as "analysis.R1Total" or "picks.TubeCol.1"; of a text, the number in it.
    double Number(std::string_view place) const;

    std::string Text(std::string_view place) const;

private:
    const rapidjson::Value& Find(std::string_view place) const;

    rapidjson::Document document;
};

}  // namespace kordavan::Verification
