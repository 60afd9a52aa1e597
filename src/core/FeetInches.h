#pragma once

#include <optional>
#include <string_view>

namespace kordavan {

/// A length as drawings write it, in feet: 13' 3-1/2", 13'3.5", 8', 3-1/2", 42". None for any other text, a
/// fraction over 0 among them.
std::optional<double> FeetOfDrawing(std::string_view text);

}  // namespace kordavan
