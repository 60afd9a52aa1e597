#pragma once

#include <string>
#include <vector>

namespace kordavan::Verification {

/// The manual, its chart and the requests of its examples, as their files have them, and what does not hold.
struct Manual {
    std::string Text;                 // Markdown
    std::string Chart;                // SVG
    std::string Requests;             // JSON lines, numbered as in the manual
    std::vector<std::string> Faults;  // figures that leave the limit of their row
};

/// Puts every example to the engine, works it out by hand, and writes both down.
Manual MakeManual();

}  // namespace kordavan::Verification
