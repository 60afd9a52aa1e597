#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kordavan {

/// True of an empty box, and of one with nothing but blanks.
bool IsBlank(std::string_view text);

/// The number at the beginning of a box's text as records hold it, 0 for an empty box; none where it is
/// beyond a 32-bit float, or no whole number of 16 bits.
std::optional<float> HeldFloat(std::string_view text);
std::optional<std::int16_t> HeldInteger(std::string_view text);

/// What a box shows of a number held: nothing of a 0, nor of one that is not finite.
std::string BoxText(float held);
std::string BoxText(int held);

}  // namespace kordavan
