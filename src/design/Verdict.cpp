#include "design/Verdict.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "core/NumberText.h"
#include "materials/SclProducts.h"

namespace kordavan {

namespace {

constexpr std::string_view StatusOf(bool passes)
{
    return passes ? StatusOk : StatusFail;
}

bool IsWithin(double deflection, float allowed)
{
    return std::abs(deflection) <= allowed;
}

/// @param growth  what each deflection is multiplied by
bool AreDeflectionsWithin(const DeflectionResult& deflection, double growth)
{
    return IsWithin(deflection.TotalDeflIn * growth, deflection.AllowTotalDeflIn) &&
           IsWithin(deflection.LiveDeflIn * growth, deflection.AllowLiveDeflIn) &&
           IsWithin(deflection.TipDeflIn * growth, deflection.AllowTipDeflIn) &&
           IsWithin(deflection.TipLiveDeflIn * growth, deflection.AllowTipLiveDeflIn);
}

void JudgeDeflections(const BeamNumbers& beam, MemberTestResult& result)
{
    const bool hasLive = HasLiveLoad(beam.Loads);
    result.DeflStatus = StatusOf(IsWithin(result.TotalDeflection, result.TotalDeflectionAllowed));
    if (hasLive) {
        result.LDeflStatus = StatusOf(IsWithin(result.LiveDeflection, result.LiveDeflectionAllowed));
    }
    if (!beam.IsOverhanging()) {
        return;
    }
    result.OHDeflStatus = StatusOf(IsWithin(result.OverhangDeflection, result.OverhangDeflectionAllowed));
    if (hasLive) {
        const bool nothingToCheck =
            result.OverhangLiveDeflectionAllowed == 0 || result.OverhangLiveDeflection == 0;
        result.OHLDeflStatus = StatusOf(
            nothingToCheck || IsWithin(result.OverhangLiveDeflection, result.OverhangLiveDeflectionAllowed));
    }
}

struct DeflectionCheck {
    float MemberTestResult::*Deflection;
    std::string_view MemberTestResult::*Status;
};

constexpr std::array DeflectionChecks{
    DeflectionCheck{&MemberTestResult::TotalDeflection, &MemberTestResult::DeflStatus},
    DeflectionCheck{&MemberTestResult::LiveDeflection, &MemberTestResult::LDeflStatus},
    DeflectionCheck{&MemberTestResult::OverhangDeflection, &MemberTestResult::OHDeflStatus},
    DeflectionCheck{&MemberTestResult::OverhangLiveDeflection, &MemberTestResult::OHLDeflStatus},
};

/// The first deflection beyond the limit of the product fails its check.
void JudgeProductLimit(const MemberCandidate& member, MemberTestResult& result)
{
    const double most = ProductDeflectionLimit(member, member.D);
    const auto* const beyond =
        std::find_if(DeflectionChecks.begin(), DeflectionChecks.end(),
                     [&](const DeflectionCheck& check) { return std::abs(result.*check.Deflection) > most; });
    if (beyond != DeflectionChecks.end()) {
        result.*beyond->Status = StatusFail;
        result.IsOverProductLimit = true;
    }
}

bool IsSolidWood(BreadthKey key)
{
    return key != BreadthKey::Glulam && key != BreadthKey::Composite;
}

/// NDS 1997 Table 4A, shear stress factor: a member without splits has Ch of 2.0 on a base value of 90 psi.
void TryWithoutSplits(const BeamNumbers& beam, MemberTest& member)
{
    constexpr float baseFv = 90;
    constexpr float Ch = 2;
    MemberTestResult& result = member.Result;
    const bool isAsked = !beam.IsSteel() && beam.Nds == Edition::Nds1997 &&
                         IsSolidWood(member.Candidate.BreadthKey) && result.SecStatus == StatusOk &&
                         result.DeflStatus == StatusOk && result.ShearStatus == StatusFail;
    if (!isAsked) {
        return;
    }
    const float Fv = beam.Group == SpeciesGroup::Custom ? member.Values.Fv : baseFv;
    const float adjusted = Single(static_cast<double>(member.Factors.CmFv) * Fv * member.Factors.Cd);
    const float withoutSplits = Ch * adjusted;
    if (withoutSplits < result.ActualShearStress) {
        return;
    }
    result.NoSplits = true;
    result.ShearStatus = StatusOk;
    result.AreaReq = Single(static_cast<double>(result.AreaReq) * result.FvAdj / withoutSplits);
    result.FvAdj = withoutSplits;
    member.Values.Fv = Fv;
    member.Adjusted.FvAdj = adjusted;
}

std::string_view OverallOf(const MemberTestResult& result)
{
    const std::array statuses{result.SecStatus,   result.ShearStatus,  result.DeflStatus,
                              result.LDeflStatus, result.OHDeflStatus, result.OHLDeflStatus};
    if (std::find(statuses.begin(), statuses.end(), StatusFail) != statuses.end()) {
        return StatusFail;
    }
    return result.NoSplits ? std::string_view{} : StatusOk;
}

}  // namespace

MemberTestResult ResultOf(const AnalysisResult& analysis, const MemberTest& member)
{
    MemberTestResult result;
    result.SectionReq = analysis.SectionRequired;
    result.SectionProp = member.Section.S;
    result.ActualShearStress = analysis.ShearStressActual;
    result.AreaReq = analysis.AreaRequired;
    result.AreaProp = member.Section.A;
    result.FvAdj = member.Adjusted.FvAdj;
    result.TotalDeflection = analysis.TotalDeflIn;
    result.TotalDeflectionAllowed = analysis.AllowTotalDeflIn;
    result.LiveDeflection = analysis.LiveDeflIn;
    result.LiveDeflectionAllowed = analysis.AllowLiveDeflIn;
    result.OverhangDeflection = analysis.TipDeflIn;
    result.OverhangDeflectionAllowed = analysis.AllowTipDeflIn;
    result.OverhangLiveDeflection = analysis.TipLiveDeflIn;
    result.OverhangLiveDeflectionAllowed = analysis.AllowTipLiveDeflIn;
    result.DeadDeflection = analysis.DeadDeflIn;
    result.CreepFactor = analysis.CreepFactor;
    result.SpanOverDeflection = analysis.TotalDeflRatio;
    result.R1Total = analysis.R1Total;
    result.R2Total = analysis.R2Total;
    result.MaxMoment = analysis.MaxMomentFtLb;
    result.OverhangMoment = analysis.OverhangMomentTotal;
    result.TotalLoad = analysis.TotalLoadWithSelf;
    return result;
}

void GiveVerdict(const BeamNumbers& beam, MemberTest& member)
{
    MemberTestResult& result = member.Result;
    result.SecStatus = StatusOf(result.SectionProp >= result.SectionReq);
    result.ShearStatus = StatusOf(result.FvAdj >= result.ActualShearStress);
    JudgeDeflections(beam, result);
    JudgeProductLimit(member.Candidate, result);
    TryWithoutSplits(beam, member);
    result.Overall = OverallOf(result);
}

double ProductDeflectionLimit(const MemberCandidate& member, double depth)
{
    constexpr double mostDepth = 7.25;
    const double limit =
        member.BreadthKey == BreadthKey::Composite ? SclProducts()[member.Product].ShallowLimit : 0;
    return limit > 0 && depth <= mostDepth ? limit : std::numeric_limits<double>::infinity();
}

bool MeetsDeflectionLimits(const DeflectionResult& deflection)
{
    return AreDeflectionsWithin(deflection, 1);
}

bool PassesAsSmaller(const SmallerSize& smaller, const DeflectionResult& deflection)
{
    return smaller.Section >= smaller.SectionReq && smaller.Area >= smaller.AreaReq &&
           AreDeflectionsWithin(deflection, smaller.Growth) &&
           std::max({std::abs(deflection.TotalDeflIn), std::abs(deflection.LiveDeflIn),
                     std::abs(deflection.TipDeflIn), std::abs(deflection.TipLiveDeflIn)}) *
                   smaller.Growth <=
               smaller.MostDeflection;
}

}  // namespace kordavan
