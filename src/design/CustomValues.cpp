#include "design/CustomValues.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr std::string_view UnfitExponent =
    "Please enter a decimal value for the Cf Size factor that is less than one.";

struct OwnValueCheck {
    float Value;
    OwnValue Needed;
};

float FiniteValue(const std::string& text)
{
    const float value = Single(Val(text));
    return IsNumeric(text) && std::isfinite(value) ? value : 0;
}

std::int16_t WholePsi(double value)
{
    constexpr double most = std::numeric_limits<std::int16_t>::max();
    const double whole = std::round(value);
    return whole >= 0 && whole <= most ? static_cast<std::int16_t>(whole) : std::int16_t{0};
}

}  // namespace

DesignValues ReadCustomValues(const CustomEntry& custom)
{
    return {.Fb = FiniteValue(custom.Fb),
            .Fv = FiniteValue(custom.Fv),
            .FcPerp = IsNumeric(custom.FcPerp) ? WholePsi(Val(custom.FcPerp)) : std::int16_t{0},
            .E = FiniteValue(custom.E)};
}

Outcome CheckSclExponent(std::string_view exponent, UserPort& user)
{
    const bool isFit = IsNumeric(exponent) && Val(exponent) >= 0 && Single(Val(exponent)) < 1;
    return isFit ? Outcome::Done : Refuse(user, Refusal(UnfitExponent, "Text8"));
}

Outcome CheckOwnValues(const std::optional<DesignValues>& values, UserPort& user)
{
    if (!values) {
        return Outcome::Done;
    }
    const std::array checks{
        OwnValueCheck{values->Fb, OwnValues::Fb},
        OwnValueCheck{values->Fv, OwnValues::Fv},
        OwnValueCheck{values->E, OwnValues::E},
        OwnValueCheck{static_cast<float>(values->FcPerp), OwnValues::FcPerp},
    };
    const auto* const missing = std::find_if(checks.begin(), checks.end(),
                                             [](const OwnValueCheck& check) { return !(check.Value > 0); });
    return missing == checks.end() ? Outcome::Done
                                   : Refuse(user, Refusal(missing->Needed.MissingText, missing->Needed.Box));
}

}  // namespace kordavan
