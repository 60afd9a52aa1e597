#include "design/OverhangTip.h"

#include <cmath>

#include "core/NumberText.h"
#include "design/BeamCurves.h"

namespace kordavan {

namespace {

/// A drop of the tip as the report has it and as it is, in.
struct TipDrop {
    double Reported = 0;
    double Exact = 0;
    double Allowed = 0;

    bool Exceeds() const { return std::abs(Exact) > Allowed; }

    bool IsFarOff() const
    {
        constexpr double near = 1.05;
        constexpr double hair = 0.01;  // in.
        return std::abs(Exact) > near * std::abs(Reported) + hair ||
               (Exact * Reported < 0 && std::abs(Exact) > hair);
    }
};

double TipOf(const BeamCurves& curves)
{
    return curves.Points.empty() ? 0 : curves.Points.back().Deflection;
}

std::string DropText(std::string_view loads, const TipDrop& drop)
{
    const auto inches = [](double value) { return FormatNumber(std::abs(value), "0.00") + " in."; };
    std::string text(loads);
    text += " " + inches(drop.Exact) + (drop.Exact < 0 ? " up" : "");
    return text + " of " + inches(drop.Allowed) + " allowed";
}

}  // namespace

OverhangTipWarning WarnOfOverhangTip(const Session& session)
{
    if (!session.Numbers.IsOverhanging() || !IsMemberTested(session)) {
        return {};
    }
    const MemberTestResult& result = session.Member.Result;
    const double live = TipOf(ComputeCurves(session, CurveLoads::Live));
    const double total = TipOf(ComputeCurves(session, CurveLoads::Total));
    const TipDrop liveDrop{result.OverhangLiveDeflection, live, result.OverhangLiveDeflectionAllowed};
    const TipDrop totalDrop{result.OverhangDeflection,
                            (total - live) * static_cast<double>(result.CreepFactor) + live,
                            result.OverhangDeflectionAllowed};
    if (!totalDrop.IsFarOff() && !liveDrop.IsFarOff()) {
        return {};
    }
    return {.Text = "The tip moves otherwise than this report says. By the exact elastic line: " +
                    DropText("total load", totalDrop) + ", " + DropText("live load", liveDrop) + ".",
            .ExceedsAllowed = totalDrop.Exceeds() || liveDrop.Exceeds()};
}

}  // namespace kordavan
