#include "design/AdjustmentFactors.h"

#include <gmock/gmock.h>

#include <array>
#include <cmath>

#include "design/DesignBuilder.h"
#include "design/SizeFactors.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

/// Published bending values of Southern Pine by size, psi, 2x4 to 2x12.
/// Source: NDS Supplement table 4B, editions up to 2005 and from 2012 on.
struct SouthernPineCase {
    std::string_view Species;
    bool Lowered;
    std::array<int, 5> PublishedFb;
};

class SouthernPineTest : public testing::TestWithParam<SouthernPineCase> {};

TEST_P(SouthernPineTest, SizeFactorsGiveThePublishedValues)
{
    const SouthernPineCase& c = GetParam();
    const SpeciesRow& row = *FindSpecies(BreadthKey::TwoBy, c.Species);
    constexpr std::array<std::string_view, 5> depths{"4", "6", "8", "10", "12"};
    for (std::size_t k = 0; k < depths.size(); ++k) {
        const float factor = SawnSizeFactor({.Key = BreadthKey::TwoBy,
                                             .DepthText = depths[k],
                                             .Species = c.Species,
                                             .Group = SpeciesGroup::SouthernPine,
                                             .SoPineLowered = c.Lowered});
        EXPECT_NEAR(static_cast<double>(row.Fb) * factor, c.PublishedFb[k], 1)
            << c.Species << " 2x" << depths[k];
    }
}

INSTANTIATE_TEST_SUITE_P(
    Published, SouthernPineTest,
    testing::Values(SouthernPineCase{"So. Pine #1", false, {1850, 1650, 1500, 1300, 1250}},
                    SouthernPineCase{"So. Pine #1", true, {1500, 1350, 1250, 1050, 1000}},
                    SouthernPineCase{"So. Pine #2", false, {1500, 1250, 1200, 1050, 975}},
                    SouthernPineCase{"So. Pine #2", true, {1100, 1000, 925, 800, 750}},
                    SouthernPineCase{"Mixed So. Pine #1", false, {1450, 1300, 1200, 1050, 975}},
                    SouthernPineCase{"Mixed So. Pine #1", true, {1450, 1300, 1200, 1050, 975}},
                    SouthernPineCase{"Mixed So. Pine #2", false, {1300, 1150, 1050, 925, 875}},
                    SouthernPineCase{"Mixed So. Pine #2", true, {1100, 1000, 925, 800, 750}}),
    CaseName);

TEST(SouthernPineSizeFactors, GrowByATenthFor4xFrom8InchesOn)
{
    for (const std::string_view species :
         {"So. Pine #1", "So. Pine #2", "Mixed So. Pine #1", "Mixed So. Pine #2"}) {
        for (const std::string_view depth : {"8", "10", "12"}) {
            SizeFactorQuery query{BreadthKey::TwoBy, depth, species, SpeciesGroup::SouthernPine, false};
            const float narrow = SawnSizeFactor(query);
            query.Key = BreadthKey::FourBy;
            EXPECT_NEAR(SawnSizeFactor(query), 1.1 * narrow, 1e-4) << species << depth;
        }
    }
}

TEST(SouthernPineSizeFactors, CountInTheirOwnGroupAlone)
{
    const SizeFactorQuery query{BreadthKey::TwoBy, "4", "So. Pine #2", SpeciesGroup::HemFirDouglasFir, false};
    EXPECT_EQ(SawnSizeFactor(query), 1.5F);
}

struct SawnCase {
    BreadthKey Key;
    std::string_view Depth;
    float Factor;
};

class SawnSizeFactorTest : public testing::TestWithParam<SawnCase> {};

TEST_P(SawnSizeFactorTest, IsThatOfTheSupplement)
{
    const SawnCase& c = GetParam();
    EXPECT_EQ(SawnSizeFactor({c.Key, c.Depth, "DF-L #2", SpeciesGroup::HemFirDouglasFir, false}), c.Factor);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, SawnSizeFactorTest,
    testing::Values(SawnCase{BreadthKey::TwoBy, "4", 1.5F}, SawnCase{BreadthKey::TwoBy, "8", 1.2F},
                    SawnCase{BreadthKey::FourBy, "8", 1.3F}, SawnCase{BreadthKey::TwoBy, "14", 0.9F},
                    SawnCase{BreadthKey::FourBy, "16", 1.0F}, SawnCase{BreadthKey::SixBy, "12", 1.0F}));

TEST(TimberSizeFactor, IsTheNinthRootAbove12Inches)
{
    EXPECT_EQ(TimberSizeFactor(12), 1);
    EXPECT_NEAR(TimberSizeFactor(13.5), 0.986998, 5e-7);  // 9 ln = ln(12/13.5) = -0.117783
    EXPECT_NEAR(TimberSizeFactor(20), 0.944823, 1e-6);
    // The listed timbers' factors are the same to three figures.
    const SizeFactorQuery listed{BreadthKey::SixBy, "16", "DF-L #1", SpeciesGroup::HemFirDouglasFir, false};
    EXPECT_NEAR(SawnSizeFactor(listed), TimberSizeFactor(15.5), 0.005);
}

TEST(RoundSizeFactor, IsThatOfTheSquareOfEqualArea)
{
    EXPECT_EQ(RoundSizeFactor(13.5), 1);
    EXPECT_EQ(RoundSizeFactor(13.54), 1);  // equal square 11.9995 in.
    // 16 in.: sqrt(0.7854 * 256) = 14.1796; (12 / 14.1796)^(1/9) = 0.98163
    EXPECT_NEAR(RoundSizeFactor(16), 0.98163, 1e-5);
}

/// Factors of a listed member on a beam of the group.
AdjustmentFactors FactorsOf(BeamNumbers beam, const MemberEntry& entry)
{
    ScriptedUser user;
    MemberCandidate member;
    EXPECT_EQ(IdentifyMember(entry, beam.Group, user, member), Outcome::Done);
    const NetSize size{member.B, member.D};
    const SpeciesRow& row = *FindSpecies(member.BreadthKey, member.SpeciesText);
    return ComputeFactors(beam, {.Member = member,
                                 .Traits = {},
                                 .Net = size,
                                 .DepthText = member.DepthText,
                                 .Values = ReferenceValues(row, beam.Nds, size)});
}

BeamNumbers WetBeam(SpeciesGroup group = SpeciesGroup::HemFirDouglasFir)
{
    BeamNumbers beam;
    beam.Span = 12;
    beam.Wet = true;
    beam.Group = group;
    return beam;
}

TEST(WetService, SparesBendingOfLowSizedValues)
{
    // HF #2 2x8: 1.2 * 850 = 1020; DF-L #1 2x8: 1200; HF #2 2x6: 1105; DF-L #1 4x12: 1100
    EXPECT_EQ(FactorsOf(WetBeam(), Member("2x", "8", "HF #2")).CmFb, 1.0F);
    EXPECT_EQ(FactorsOf(WetBeam(), Member("2x", "8", "DF-L #1")).CmFb, 0.85F);
    EXPECT_EQ(FactorsOf(WetBeam(), Member("4x", "12", "DF-L #1")).CmFb, 1.0F);
    EXPECT_EQ(FactorsOf(WetBeam(), Member("2x", "8", "HF #2")).CmFv, 0.97F);
    EXPECT_EQ(FactorsOf(WetBeam(), Member("2x", "8", "HF #2")).CmE, 0.9F);
}

TEST(WetService, SparesSouthernPineTimbersAcrossTheGrain)
{
    EXPECT_EQ(FactorsOf(WetBeam(), Member("6x", "12", "DF-L #1")).CmFcPerp, 0.67F);
    EXPECT_EQ(FactorsOf(WetBeam(SpeciesGroup::SouthernPine), Member("6x", "12", "So. Pine #1 SR")).CmFcPerp,
              1.0F);
    EXPECT_EQ(FactorsOf(WetBeam(SpeciesGroup::SouthernPine), Member("4x", "12", "So. Pine #1")).CmFcPerp,
              0.67F);
}

TEST(WetService, TakesMostFromGlulams)
{
    const AdjustmentFactors factors = FactorsOf(WetBeam(), Member("5-1/8x", "12", "GLB 24F-V4 DF/DF"));
    EXPECT_EQ(factors.CmFb, 0.8F);
    EXPECT_EQ(factors.CmFv, 0.875F);
    EXPECT_EQ(factors.CmFcPerp, 0.53F);
    EXPECT_EQ(factors.CmE, 0.833F);
}

TEST(Incising, FollowsItsEditionAndSparesGlulams)
{
    BeamNumbers beam;
    beam.Span = 12;
    beam.Incised = true;
    beam.Nds = Edition::Nds1997;
    const AdjustmentFactors old = FactorsOf(beam, Member("2x", "10", "HF #2"));
    EXPECT_EQ(old.CiFb, 0.85F);
    EXPECT_EQ(old.CiFv, 1.0F);
    EXPECT_EQ(old.CiE, 0.95F);
    beam.Nds = Edition::Nds2001;
    const AdjustmentFactors later = FactorsOf(beam, Member("6x", "10", "HF #2"));
    EXPECT_EQ(later.CiFb, 0.8F);
    EXPECT_EQ(later.CiFv, 0.8F);
    EXPECT_EQ(FactorsOf(beam, Member("5-1/8x", "12", "GLB 24F-V4 DF/DF")).CiFb, 1.0F);
}

TEST(AdjustedValues, AreProductsOfTheirFactors)
{
    const DesignValues values{.Fb = 1000, .Fv = 180, .FcPerp = 600, .E = 1.6F};
    AdjustmentFactors factors;
    factors.Cd = 1.25F;
    factors.Cr = 1.15F;
    factors.CmFb = 0.85F;
    factors.CmFv = 0.97F;
    factors.CmFcPerp = 0.67F;
    factors.CmE = 0.9F;
    factors.Cf = 1.2F;
    factors.CiFb = factors.CiFv = 0.8F;
    factors.CiE = 0.95F;
    factors.CL = 0.9F;
    factors.CLOverhang = 0.95F;
    const AdjustedValues adjusted = AdjustWithoutStability(values, factors);
    EXPECT_NEAR(adjusted.FbStar, 1173.0, 1e-3);  // 1000 * 1.15 * 1.25 * 0.85 * 1.2 * 0.8
    EXPECT_NEAR(adjusted.FvAdj, 174.6, 1e-4);    // 0.97 * 180 * 1.25 * 0.8, no Cr
    EXPECT_NEAR(adjusted.FcPerpAdj, 402, 1e-4);  // no Cd
    EXPECT_NEAR(adjusted.EAdj, 1.368, 1e-6);
    EXPECT_NEAR(AllowableBending(values, factors), 1173.0 * 0.9, 1e-3);
}

TEST(AdjustedValues, GlulamsTakeTheLesserOfVolumeAndStability)
{
    const DesignValues values{.Fb = 2400, .Fv = 240, .FcPerp = 650, .E = 1.8F};
    AdjustmentFactors factors;
    factors.CvGoverns = true;
    factors.Cv = 0.9F;
    factors.CL = 0.95F;
    EXPECT_NEAR(AllowableBending(values, factors), 2160, 1e-3);
    factors.CLOverhang = 0.8F;
    EXPECT_NEAR(AllowableBending(values, factors), 1920, 1e-3);
    EXPECT_EQ(AdjustWithoutStability(values, factors).FbStar, 2400);
}

TEST(AdjustedValues, AreNothingWhereAFactorIsZero)
{
    AdjustmentFactors factors;
    factors.Cd = 0;
    EXPECT_EQ(AllowableBending({.Fb = 1000, .Fv = 100, .FcPerp = 500, .E = 1.6F}, factors), 0);
    EXPECT_EQ(AllowableBending({.Fb = 0, .Fv = 100, .FcPerp = 500, .E = 1.6F}, {}), 0);
}

}  // namespace
}  // namespace kordavan
