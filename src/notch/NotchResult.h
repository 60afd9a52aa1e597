#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "notch/NotchProblem.h"

namespace kordavan {

enum class NotchVerdict { NotComputed, Passes, RatioFails, DepthFails };

namespace NotchStatus {
inline constexpr std::string_view Ok = "OK";
inline constexpr std::string_view Fail = "Fail";
}  // namespace NotchStatus

/// Which rule gives the least depth at the notch.
enum class MinimumDnRule { ThreeQuarters, ThreeFifths, OneThird, NineTenths, LessThreeInches };

/// What a check works out. What the edition has no rule for is absent.
struct NotchResult {
    double AdjustedFv = 0;   // psi
    double AreaAtNotch = 0;  // An, in^2
    double MinimumDn = 0;    // in.
    MinimumDnRule Rule = MinimumDnRule::ThreeQuarters;
    bool ResultIsV = false;                // an allowable reaction instead of a stress
    std::optional<double> CriticalFv{};    // psi
    std::optional<double> AllowableV{};    // lb
    std::optional<double> RatioPercent{};  // of fv to Fv', or of V to Vr'
    std::optional<double> MinSpan{};       // ft, of a tapered notch
    std::optional<double> TaperAngle{};    // degrees, of a tapered notch
    NotchVerdict Verdict = NotchVerdict::NotComputed;

    bool IsComputed() const { return Verdict != NotchVerdict::NotComputed; }
};

/// A run of the check: what it was of, and what came out.
struct NotchRun {
    NotchEntry Entry;
    NotchProblem Problem;
    NotchResult Result;
};

}  // namespace kordavan
