#include "design/CustomValues.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>

#include "core/NumberText.h"
#include "materials/SclProducts.h"

namespace kordavan {

namespace {

constexpr std::string_view UnfitExponent =
    "Please enter a decimal value for the Cf Size factor that is less than one.";

struct OwnValue {
    float Value;
    std::string_view MissingText;
    std::string_view Box;
};

float FiniteValue(const std::string& text)
{
    const float value = Single(Val(text));
    return std::isfinite(value) ? value : 0;
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
            .FcPerp = WholePsi(Val(custom.FcPerp)),
            .E = FiniteValue(custom.E)};
}

Outcome CheckSclExponent(const MemberEntry& entry, SpeciesGroup group, UserPort& user)
{
    const std::string& exponent = entry.Custom.Exponent;
    const bool isAsked = group == SpeciesGroup::Scl && IsCustomScl(entry.Product);
    const bool isFit = IsNumeric(exponent) && Val(exponent) >= 0 && Val(exponent) < 1;
    return !isAsked || isFit ? Outcome::Done : Refuse(user, Refusal(UnfitExponent, "Text8"));
}

Outcome CheckOwnValues(const std::optional<DesignValues>& values, UserPort& user)
{
    if (!values) {
        return Outcome::Done;
    }
    const std::array checks{
        OwnValue{values->Fb, "Please enter a value for the Fb.", "Text1"},
        OwnValue{values->Fv, "Please enter a value for the Fv.", "Text2"},
        OwnValue{values->E, "Please enter a value for the E.", "Text4"},
        OwnValue{static_cast<float>(values->FcPerp), "Please enter a value for the Fc.", "Text3"},
    };
    const auto* const missing =
        std::find_if(checks.begin(), checks.end(), [](const OwnValue& check) { return !(check.Value > 0); });
    return missing == checks.end() ? Outcome::Done
                                   : Refuse(user, Refusal(missing->MissingText, missing->Box));
}

}  // namespace kordavan
