#include "records/BoxNumbers.h"

#include <cmath>
#include <limits>

#include "core/NumberText.h"

namespace kordavan {

bool IsBlank(std::string_view text)
{
    return text.find_first_not_of(' ') == std::string_view::npos;
}

std::optional<float> HeldFloat(std::string_view text)
{
    const float value = Single(Val(text));
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<std::int16_t> HeldInteger(std::string_view text)
{
    const double value = Val(text);
    const bool fits = value == std::trunc(value) && value >= std::numeric_limits<std::int16_t>::min() &&
                      value <= std::numeric_limits<std::int16_t>::max();
    return fits ? std::optional(static_cast<std::int16_t>(value)) : std::nullopt;
}

std::string BoxText(float held)
{
    return held == 0 ? std::string{} : PlainNumber(held);
}

std::string BoxText(int held)
{
    return FormatNumber(static_cast<double>(held), "#");
}

}  // namespace kordavan
