#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kordavan::Verification {

/// How far a figure that is only rounded to single precision may lie from the hand calculation, %.
inline constexpr double SinglePrecision = 0.001;

/// One line of a worked example.
struct Row {
    std::string Quantity;             // with its unit
    std::string Step;                 // of the hand calculation, "R1 = w x L / 2"; the reason, beside a text
    std::string Place = {};           // of Kordavan's figure in the answer; empty for a step on the way
    double Within = SinglePrecision;  // %
    std::optional<std::string> Text = std::nullopt;  // what is expected, where it is a text and not a figure
};

/// A row whose outcome is a text, as a size or a verdict, with the reason for it.
inline Row TextRow(std::string quantity, std::string reason, std::string place, std::string text)
{
    return {std::move(quantity), std::move(reason), std::move(place), SinglePrecision, std::move(text)};
}

/// One request to the engine and what is worked out of it by hand.
struct Case {
    std::string Name;     // beside its rows in a table of cases, above its own table, or empty
    std::string Request;  // a line of the batch program
    std::string Givens;   // "L = 13.5 ft, w = 52 plf"
    std::vector<Row> Rows;
};

/// One table of the manual.
struct Example {
    std::string Title;
    std::string Text;  // what it is about, where the rule is published, and why a row differs
    std::vector<Case> Cases;
};

struct Chapter {
    std::string Title;
    std::string Text;
    std::vector<Example> Examples;
};

}  // namespace kordavan::Verification
