#include <gmock/gmock.h>

#include <cmath>

#include "core/NumberText.h"
#include "design/DesignBuilder.h"
#include "design/TestReport.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

Session CompositeSession(Edition edition = Edition::Nds2018)
{
    Session session = PlainSession(edition);
    session.Problem.Combo1 = SpeciesGroup::Scl;
    return session;
}

MemberEntry Composite(std::size_t product, std::string_view breadth, std::string_view depth)
{
    MemberEntry entry = Member(breadth, depth, "");
    entry.Product = product;
    entry.Custom.Fb = "2600";
    entry.Custom.Fv = "285";
    entry.Custom.E = "1.9";
    entry.Custom.FcPerp = "750";
    return entry;
}

struct SizeCase {
    std::string_view Name;
    std::size_t Product;
    std::string_view Breadth;
    std::string_view Depth;
    double SizeFactor;
};

class CompositeSizeFactorTest : public testing::TestWithParam<SizeCase> {};

/// (12/d)^x by hand: ln(12/11.875) = 0.010471, ln(12/9.5) = 0.233615, ln(12/14) = -0.154151.
TEST_P(CompositeSizeFactorTest, FollowsTheExponentOfItsProduct)
{
    Session session = CompositeSession();
    Calculate(session);
    MemberEntry entry = Composite(GetParam().Product, GetParam().Breadth, GetParam().Depth);
    entry.Custom.Exponent = "0.2";
    const MemberTest& member = Tested(session, entry);
    EXPECT_NEAR(member.Factors.Cf, GetParam().SizeFactor, 2e-6);
    EXPECT_EQ(member.Factors.Cv, 1);
    EXPECT_FALSE(member.Factors.CvGoverns);
    EXPECT_NEAR(member.Adjusted.FbAdj, 2600 * GetParam().SizeFactor, 0.01);
    EXPECT_EQ(member.Adjusted.FbStar, 2600);
}

INSTANTIATE_TEST_SUITE_P(
    Products, CompositeSizeFactorTest,
    testing::Values(SizeCase{"ninth", 0, "1-3/4x", "9-1/2", std::exp(0.233615 / 9)},
                    SizeCase{"0.136", 2, "1-3/4x", "11-7/8", std::exp(0.010471 * 0.136)},
                    SizeCase{"0.136 deep", 17, "1-3/4x", "14", std::exp(-0.154151 * 0.136)},
                    SizeCase{"fifth", 5, "3-1/2x", "14", std::exp(-0.154151 / 5)},
                    SizeCase{"shallow of two", 6, "1-3/4x", "9-1/2", std::exp(0.233615 / 8)},
                    SizeCase{"deep of two", 6, "1-3/4x", "14", std::exp(-0.154151 / 5)},
                    SizeCase{"shallow by ninth", 8, "1-3/4x", "9-1/2", std::exp(0.233615 / 9)},
                    SizeCase{"deep by seventh", 8, "1-3/4x", "14", std::exp(-0.154151 / 7)},
                    SizeCase{"0.092", 12, "3-1/2x", "9-1/2", std::exp(0.233615 * 0.092)},
                    SizeCase{"ninth in six digits", 18, "3-1/2x", "14", std::exp(-0.154151 * 0.111111)},
                    SizeCase{"eighth", 21, "1-3/4x", "14", std::exp(-0.154151 / 8)},
                    SizeCase{"own", 24, "5-1/4x", "14", std::exp(-0.154151 * 0.2)},
                    SizeCase{"own at 12 in", 23, "7x", "12", 1}),
    CaseName);

struct VolumeCase {
    std::string_view Name;
    Edition Nds;
    std::array<std::string_view, 4> Points;  // load, place, load, place
    double KL;
};

class CompositeVolumeTest : public testing::TestWithParam<VolumeCase> {};

/// 7 x 11-7/8 on 20 ft: (12/11.875 x 21/20 x 5.125/7)^(1/10) = 0.776842^0.1 = 0.975064.
TEST_P(CompositeVolumeTest, TakesTheSpanAndItsLoads)
{
    Session session = CompositeSession(GetParam().Nds);
    session.Problem.Span = "20";
    if (!GetParam().Points[0].empty()) {
        session.Problem.Loads.UNIF = session.Problem.Loads.LUNIF = "";
        for (std::size_t k = 0; k < 2; ++k) {
            SetPoint(session.Problem, k, GetParam().Points[2 * k], GetParam().Points[2 * k + 1],
                     GetParam().Points[2 * k]);
        }
    }
    Calculate(session);
    const MemberTest& member = Tested(session, Composite(14, "7x", "11-7/8"));
    EXPECT_TRUE(member.Factors.CvGoverns);
    EXPECT_EQ(member.Factors.Cf, 1);
    EXPECT_NEAR(member.Factors.Cv, std::min(0.975064 * GetParam().KL, 1.0), 2e-6);
}

INSTANTIATE_TEST_SUITE_P(
    Loads, CompositeVolumeTest,
    testing::Values(VolumeCase{"uniform", Edition::Nds1997, {}, 1},
                    VolumeCase{"midspan", Edition::Nds1997, {"900", "10"}, 1.09},
                    VolumeCase{"third points", Edition::Nds1997, {"900", "7", "900", "13"}, 0.96},
                    VolumeCase{"unequal", Edition::Nds1997, {"900", "13", "500", "7"}, 0.96},
                    VolumeCase{"too near", Edition::Nds1997, {"900", "5.9", "900", "13"}, 1},
                    VolumeCase{"later edition", Edition::Nds2005, {"900", "7", "900", "13"}, 1}),
    CaseName);

/// On an overhanging beam the whole span counts: 7 x 24 on 20 ft is (12/24 x 21/20 x 5.125/7)^0.1 =
/// 0.3844^0.1 = 0.908815. The self-weight of 24 x 7 in2 at 35 pcf is 40.83 plf; on 20 ft with 5 ft overhang
/// R1 takes 40.83 x (400 - 25) / 40 = 382.8 lb of it, R2 40.83 x 625 / 40 = 638.0 lb.
TEST(CompositeOverhang, TakesTheWholeSpanAndItsWeight)
{
    Session session = CompositeSession();
    session.Problem.Support = SupportCondition::Overhanging;
    session.Problem.Span = "20";
    SetPartial(session.Problem, 3, "100", "0", "5", "60");
    Calculate(session);
    const MemberTest& member = Tested(session, Composite(14, "7x", "24"));
    EXPECT_NEAR(member.Factors.Cv, 0.908815, 2e-6);
    EXPECT_NEAR(session.Analysis.R1Total - session.Analysis.R1Applied, 382.8, 0.1);
    EXPECT_NEAR(session.Analysis.R2Total - session.Analysis.R2Applied, 638.0, 0.1);
}

/// Three spans of 12 ft: 0.4, 1.1 and 0.1 of w L, w L and w L^2 of 3-1/2 x 14 of 37 pcf, 12.59 plf.
TEST(CompositeMultiSpan, AddsItsWeightByTheLawOfContinuousBeams)
{
    Session session = CompositeSession();
    session.Problem.Support = SupportCondition::MultipleSpans;
    session.Problem.ThreeSpan = true;
    session.Problem.UBLtext = session.Problem.CantUBLtext = "0";
    Calculate(session);
    Tested(session, Composite(1, "3-1/2x", "14"));
    const AnalysisResult& analysis = session.Analysis;
    EXPECT_NEAR(analysis.R1Total - analysis.R1Applied, 0.4 * 12.59 * 12, 0.02);
    EXPECT_NEAR(analysis.R2Total - analysis.R2Applied, 1.1 * 12.59 * 12, 0.02);
    EXPECT_NEAR(analysis.MaxMomentFtLb - analysis.MaxMomentApplied, 0.1 * 12.59 * 144, 0.05);
}

TEST(CompositeVolume, IsCutAtOne)
{
    Session session = CompositeSession();
    Calculate(session);
    EXPECT_EQ(Tested(session, Composite(25, "3-1/2x", "9")).Factors.Cv, 1);
}

TEST(CompositeRepetition, RaisesBendingOfMostProducts)
{
    Session session = CompositeSession();
    session.Problem.Rep = true;
    session.Problem.Spacing = RepetitiveSpacing::Ctr12;
    Calculate(session);
    for (const std::size_t product : {1U, 10U, 18U, 25U}) {
        EXPECT_EQ(Tested(session, Composite(product, "3-1/2x", "9-1/2")).Factors.Cr, 1.04F) << product;
    }
    for (const std::size_t product : {13U, 14U, 15U, 22U}) {
        EXPECT_EQ(Tested(session, Composite(product, "3-1/2x", "9-1/2")).Factors.Cr, 1) << product;
    }
}

/// Deeper than 12 in. the lesser of size and stability counts, above them both do.
TEST(CompositeStability, MultipliesWithTheFactorOfShallowSizesAlone)
{
    const auto tested = [](std::string_view unbraced, std::string_view depth) {
        Session session = CompositeSession();
        session.Problem.UBLtext = unbraced;
        Calculate(session);
        return Tested(session, Composite(5, "1-3/4x", depth));
    };
    const MemberTest shallow = tested("12", "9-1/2");
    EXPECT_LT(shallow.Factors.CL, 1);
    EXPECT_NEAR(shallow.Adjusted.FbAdj, 2600.0 * shallow.Factors.CL * shallow.Factors.Cf, 0.01);
    const MemberTest slender = tested("12", "24");
    EXPECT_LT(slender.Factors.CL, slender.Factors.Cf);
    EXPECT_NEAR(slender.Adjusted.FbAdj, 2600.0 * slender.Factors.CL, 0.01);
    const MemberTest braced = tested("0.5", "24");
    EXPECT_GT(braced.Factors.CL, braced.Factors.Cf);
    EXPECT_LT(braced.Factors.CL, 1);
    EXPECT_NEAR(braced.Adjusted.FbAdj, 2600.0 * braced.Factors.Cf, 0.01);
}

/// 3-1/2 x 11-7/8 of 45 pcf: 41.5625 in2 x 0.3125 = 12.9883 plf.
TEST(CompositeMember, TakesNoServiceFactorsAndItsOwnWeight)
{
    Session session = CompositeSession();
    session.Problem.Wet = session.Problem.Incised = true;
    session.Problem.Dur = "1.25";
    Calculate(session);
    const MemberTest& member = Tested(session, Composite(3, "3-1/2x", "11-7/8"));
    EXPECT_EQ(member.Adjusted.FvAdj, 356.25F);
    EXPECT_EQ(member.Adjusted.EAdj, 1.9F);
    EXPECT_EQ(member.Adjusted.FcPerpAdj, 750);
    EXPECT_NEAR(member.Section.SelfWeightPlf, 12.9883, 1e-4);
    EXPECT_EQ(member.Candidate.SpeciesText, "2.0E TJ Parallam W.S. PSL");
    EXPECT_EQ(MakeTestReport(session).DisplayChoice, "3-1/2x  11-7/8 2.0E TJ Parallam W.S. PSL");
    EXPECT_EQ(MakeTestReport(session).Modifiers, "Values modified for: Wet use  ");
}

TEST(CompositeMember, OfTheUsersOwnBearsItsName)
{
    Session session = CompositeSession();
    Calculate(session);
    MemberEntry entry = Composite(23, "(2) 1-1/2x", "14");
    entry.Custom.Exponent = "0";
    EXPECT_EQ(Tested(session, entry).Candidate.SpeciesText, "Custom SCL #1");
    entry.SpeciesText = "Acme 2.0E";
    EXPECT_EQ(Tested(session, entry).Candidate.SpeciesText, "Acme 2.0E");
    EXPECT_EQ(session.Member.Candidate.B, 3);
}

/// A solid member that fails in shear under NDS 1997 may pass without splits; laminated lumber has none.
TEST(CompositeMember, IsNotExcusedByHavingNoSplits)
{
    Session session = CompositeSession(Edition::Nds1997);
    session.Problem.Span = "5";
    session.Problem.Loads.UNIF = "1700";
    session.Problem.Loads.LUNIF = "900";
    Calculate(session);
    const MemberTest& member = Tested(session, Composite(2, "1-3/4x", "11-7/8"));
    EXPECT_EQ(member.Result.SecStatus, "OK");
    EXPECT_EQ(member.Result.ShearStatus, "Fail");
    EXPECT_EQ(member.Result.Overall, "Fail");
}

/// 3-1/2 x 7-1/4 of E 1.3 on 12 ft: I = 111.15 in4; 60 plf of live load deflect 0.19 in., with 47 plf of dead
/// load and its creep 0.42 in., more than 5/16 in. and less than 12 x 12 / 240 = 0.6 in.
TEST(TimberStrand, IsHeldToFiveSixteenthsWhereShallow)
{
    const auto tested = [](std::size_t product, std::string_view depth) {
        Session session = CompositeSession();
        Calculate(session);
        MemberEntry entry = Composite(product, "3-1/2x", depth);
        entry.Custom.E = "1.3";
        Tested(session, entry);
        return session;
    };
    const Session shallow = tested(10, "7-1/4");
    EXPECT_GT(shallow.Member.Result.TotalDeflection, 0.3125F);
    EXPECT_LT(shallow.Member.Result.TotalDeflection, 0.6F);
    EXPECT_EQ(shallow.Member.Result.DeflStatus, "Fail");
    EXPECT_EQ(shallow.Member.Result.LDeflStatus, "OK");
    EXPECT_EQ(shallow.Member.Result.Overall, "Fail");
    EXPECT_EQ(MakeTestReport(shallow).DeflTooHigh,
              "ALERT! Timberstrand members 7-1/4 in. and smaller are limited to 5/16 in. deflection.  Please "
              "increase depth.");
    EXPECT_EQ(tested(11, "7-1/4").Member.Result.Overall, "OK");
    const Session deeper = tested(10, "8-5/8");
    EXPECT_EQ(deeper.Member.Result.Overall, "OK");
    EXPECT_FALSE(deeper.Member.Result.NextSmallerOk);
}

struct RefusedCompositeCase {
    std::string_view Name;
    std::string_view Breadth;
    std::string_view Depth;
    std::string_view Fb;
    std::string_view Begin;  // of the message
    std::string_view Focus;
};

class RefusedCompositeTest : public testing::TestWithParam<RefusedCompositeCase> {};

TEST_P(RefusedCompositeTest, TellsWhyAndKeepsTheLastTest)
{
    const RefusedCompositeCase& c = GetParam();
    Session session = CompositeSession();
    Calculate(session);
    Tested(session, Composite(2, "1-3/4x", "14"));
    MemberEntry entry = Composite(2, c.Breadth, c.Depth);
    entry.Custom.Fb = c.Fb;
    ScriptedUser user;
    EXPECT_EQ(TestMember(session, entry, {}, user), Outcome::Refused);
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_THAT(user.Told[0].Text, testing::StartsWith(std::string(c.Begin)));
    EXPECT_EQ(user.Told[0].Focus, c.Focus);
    EXPECT_EQ(session.Member.Candidate.DepthText, "14");
}

INSTANTIATE_TEST_SUITE_P(
    Entries, RefusedCompositeTest,
    testing::Values(
        RefusedCompositeCase{"unlisted breadth", "3-1/2x", "14", "2600", "Please check Breadth entry",
                             "Text6"},
        RefusedCompositeCase{"breadth", "3.5x", "14", "2600", "Please check Breadth entry", "Text6"},
        RefusedCompositeCase{"wood breadth", "2x", "14", "2600", "Please check Breadth entry", "Text6"},
        RefusedCompositeCase{"no breadth", "", "14", "2600", "Please check Breadth entry", "Text6"},
        RefusedCompositeCase{"depth", "1-3/4x", "13", "2600", "Please check Depth entry", "Text7"},
        RefusedCompositeCase{"no value", "1-3/4x", "14", "", "Calc module, zero value error!", ""},
        RefusedCompositeCase{"no number", "1-3/4x", "14", "2,600", "Calc module, zero value error!", ""}),
    CaseName);

TEST(CompositeMember, OfTheUsersOwnNeedsAnExponentBelowOne)
{
    Session session = CompositeSession();
    Calculate(session);
    for (const std::string_view exponent : {"", "1", "-0.1", "1/9"}) {
        MemberEntry entry = Composite(24, "3-1/2x", "14");
        entry.Custom.Exponent = exponent;
        ScriptedUser user;
        EXPECT_EQ(TestMember(session, entry, {}, user), Outcome::Refused) << exponent;
        EXPECT_THAT(
            user.Told,
            testing::ElementsAre(RefusalOf(
                "Please enter a decimal value for the Cf Size factor that is less than one.", "Text8")));
    }
}

}  // namespace
}  // namespace kordavan
