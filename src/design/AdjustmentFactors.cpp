#include "design/AdjustmentFactors.h"

#include <algorithm>
#include <cmath>

#include "core/NumberText.h"
#include "design/SizeFactors.h"
#include "design/VolumeFactor.h"
#include "materials/SclProducts.h"

namespace kordavan {

namespace {

struct WetFactors {
    float Fb;
    float Fv;
    float FcPerp;
    float E;
};

/// NDS Supplement, adjustment factors of tables 4A, 4D and 5A, wet service.
WetFactors WetServiceFactors(BreadthKey key)
{
    switch (key) {
        case BreadthKey::TwoBy:
        case BreadthKey::FourBy:
            return {.Fb = 0.85F, .Fv = 0.97F, .FcPerp = 0.67F, .E = 0.9F};
        case BreadthKey::SixBy:
            return {.Fb = 1.0F, .Fv = 1.0F, .FcPerp = 0.67F, .E = 1.0F};
        case BreadthKey::Glulam:
            return {.Fb = 0.8F, .Fv = 0.875F, .FcPerp = 0.53F, .E = 0.833F};
        case BreadthKey::Composite:
            break;
    }
    return {.Fb = 1, .Fv = 1, .FcPerp = 1, .E = 1};
}

/// Dimension lumber whose sized bending value is no more than this takes no wet reduction, psi.
constexpr double MostFbWithoutWetFactor = 1150;

void ApplyWetService(const BeamNumbers& beam, const FactorInput& input, AdjustmentFactors& factors)
{
    const BreadthKey key = input.Member.BreadthKey;
    const WetFactors wet = WetServiceFactors(key);
    const bool isDimension = key == BreadthKey::TwoBy || key == BreadthKey::FourBy;
    const bool isLow = static_cast<double>(factors.Cf) * input.Values.Fb <= MostFbWithoutWetFactor;
    const bool isSouthernPineTimber = beam.Group == SpeciesGroup::SouthernPine && key == BreadthKey::SixBy;
    factors.CmFb = isDimension && isLow ? 1.0F : wet.Fb;
    factors.CmFv = wet.Fv;
    factors.CmFcPerp = isSouthernPineTimber ? 1.0F : wet.FcPerp;
    factors.CmE = wet.E;
}

/// NDS 4.3.8 (1997: 2.3.11): incised sawn lumber.
void ApplyIncising(Edition edition, AdjustmentFactors& factors)
{
    const bool is1997 = edition == Edition::Nds1997;
    factors.CiFb = is1997 ? 0.85F : 0.8F;
    factors.CiFv = is1997 ? 1.0F : 0.8F;
    factors.CiE = 0.95F;
}

float SizeFactorOf(const BeamNumbers& beam, const FactorInput& input)
{
    const MemberCandidate& member = input.Member;
    if (input.Traits.OwnSizedValues || member.BreadthKey == BreadthKey::Glulam) {
        return 1;
    }
    if (member.Round) {
        return RoundSizeFactor(member.D);
    }
    if (member.Family == SizeFamily::CustomTimber) {
        return TimberSizeFactor(input.Net.D);
    }
    return SawnSizeFactor({.Key = member.BreadthKey,
                           .DepthText = input.DepthText,
                           .Species = member.SpeciesText,
                           .Group = beam.Group,
                           .SoPineLowered = input.SoPineLowered});
}

float VolumeFactorOf(const BeamNumbers& beam, const FactorInput& input)
{
    const bool upToInflection = beam.IsOverhanging() && input.InflectionFt != 0;
    const double length = upToInflection ? input.InflectionFt : beam.Span;
    const bool southernPine = beam.Group == SpeciesGroup::SouthernPine || input.Traits.SouthernPine;
    return VolumeFactor(length, input.Net, VolumeExponent(southernPine), LoadingConstant(beam));
}

/// (12/d)^x by the exponent of the product, which may change at 12 in.
float SclSizeFactor(const SclProduct& product, const FactorInput& input)
{
    constexpr double referenceDepth = 12;
    const double d = input.Net.D;
    const double listed = d >= referenceDepth ? product.DeepExponent : product.ShallowExponent;
    const double exponent = IsCustomScl(input.Member.Product) ? input.Traits.SclExponent : listed;
    return Single(std::pow(referenceDepth / d, exponent));
}

/// Composite lumber takes no factors of wet service or incising; it is made dry and used as its maker says.
AdjustmentFactors ComputeCompositeFactors(const BeamNumbers& beam, const FactorInput& input)
{
    const SclProduct& product = SclProducts()[input.Member.Product];
    AdjustmentFactors factors;
    factors.IsComposite = true;
    factors.Cd = Single(beam.Dur);
    factors.Cr = RepetitiveFactor(beam, BreadthKey::Composite, input.Member.Product);
    if (product.UsesVolumeFactor) {
        factors.CvGoverns = true;
        factors.Cv =
            VolumeFactor(beam.Span, input.Net, VolumeExponent(false), LoadingConstant(beam, PointPair::Any));
    } else {
        factors.Cf = SclSizeFactor(product, input);
    }
    factors.CfSmaller = factors.CvGoverns ? factors.Cv : factors.Cf;
    return factors;
}

/// Bending with the factors that every member has.
double CommonBending(const DesignValues& values, const AdjustmentFactors& factors)
{
    return static_cast<double>(values.Fb) * factors.Cr * factors.Cd * factors.CmFb;
}

}  // namespace

CustomTraits TraitsOf(const CustomEntry& custom)
{
    const bool machineGraded = custom.MSRCheckbox || custom.MELCheckbox;
    return {.OwnSizedValues = custom.CustomIngradeSP || machineGraded,
            .SouthernPine = custom.CustomIngradeSP || (custom.WidGLB && custom.SPG),
            .MachineGraded = machineGraded,
            .SclExponent = Val(custom.Exponent)};
}

float RepetitiveFactor(const BeamNumbers& beam, BreadthKey key, std::size_t product)
{
    constexpr float lumber = 1.15F;
    constexpr float composite = 1.04F;
    if (!beam.Rep) {
        return 1;
    }
    if (key != BreadthKey::Composite) {
        return lumber;
    }
    return SclProducts()[product].IsRepetitive ? composite : 1.0F;
}

AdjustmentFactors ComputeFactors(const BeamNumbers& beam, const FactorInput& input)
{
    constexpr float roundForm = 1.18F;
    const MemberCandidate& member = input.Member;
    if (member.BreadthKey == BreadthKey::Composite) {
        return ComputeCompositeFactors(beam, input);
    }
    AdjustmentFactors factors;
    factors.Cd = Single(beam.Dur);
    factors.Cr = member.Round ? 1.0F : RepetitiveFactor(beam, member.BreadthKey, 0);
    factors.Cf = SizeFactorOf(beam, input);
    if (beam.Wet) {
        ApplyWetService(beam, input, factors);
    }
    if (beam.Incised && member.BreadthKey != BreadthKey::Glulam) {
        ApplyIncising(beam.Nds, factors);
    }
    if (member.BreadthKey == BreadthKey::Glulam) {
        factors.CvGoverns = true;
        factors.Cv = VolumeFactorOf(beam, input);
    }
    factors.CfSmaller = factors.CvGoverns ? factors.Cv : factors.Cf;
    factors.FormFactor = member.Round && IsPre2005(beam.Nds) ? roundForm : 1.0F;
    return factors;
}

AdjustedValues AdjustWithoutStability(const DesignValues& values, const AdjustmentFactors& factors)
{
    const bool isUnsized = factors.CvGoverns || factors.IsComposite;
    const double sized = isUnsized ? 1.0 : static_cast<double>(factors.Cf) * factors.CiFb;
    return {.FbAdj = 0,
            .FbStar = Single(CommonBending(values, factors) * sized),
            .FvAdj = Single(static_cast<double>(factors.CmFv) * values.Fv * factors.Cd * factors.CiFv),
            .FcPerpAdj = Single(static_cast<double>(values.FcPerp) * factors.CmFcPerp),
            .EAdj = Single(static_cast<double>(factors.CmE) * values.E * factors.CiE)};
}

float AllowableBending(const DesignValues& values, const AdjustmentFactors& factors)
{
    const double common = CommonBending(values, factors);
    const double sized = common * factors.CiFb * factors.Cf;
    const bool anyZero = sized * factors.Cv * factors.CLOverhang == 0 ||
                         sized * factors.Cv * factors.CL * factors.FormFactor == 0;
    if (anyZero) {
        return 0;
    }
    const double M = std::min(factors.CL, factors.CLOverhang);
    if (factors.CvGoverns) {
        return Single(M <= factors.Cv ? common * M : common * factors.CiFb * factors.Cv);
    }
    if (factors.IsComposite && factors.Cf < 1) {
        return Single(common * std::min<double>(M, factors.Cf));
    }
    return Single(sized * M * factors.FormFactor);
}

}  // namespace kordavan
