#include "design/BeamCurves.h"

#include <gmock/gmock.h>

#include <cmath>
#include <functional>

#include "design/CurvePeaks.h"
#include "design/DesignBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::DoubleNear;
using testing::Pointwise;

constexpr double Span = 12;
constexpr double Same = 1e-6;  // of values whose stations are kept in single precision, relative

using Setup = std::function<void(BeamProblem&)>;

/// 12 ft with nothing on it.
Session BareSession(SupportCondition support = SupportCondition::SimpleSpan)
{
    Session session = PlainSession();
    session.Problem.Loads.UNIF = session.Problem.Loads.LUNIF = "";
    session.Problem.Support = support;
    session.Problem.NoWeight = true;
    return session;
}

Session Calculated(SupportCondition support, const Setup& setLoads)
{
    Session session = BareSession(support);
    setLoads(session.Problem);
    session.IncreasingTotalLoad = 1200;
    ScriptedUser user;
    user.WillAnswer(true);  // to a long overhang
    EXPECT_EQ(CalculateAction(session, user), Outcome::Done);
    return session;
}

/// The places of a peak or of zeroes, a level stretch by both of its ends.
std::vector<double> PlacesOf(const std::vector<Stretch>& stretches)
{
    std::vector<double> places;
    for (const Stretch& stretch : stretches) {
        places.push_back(stretch.From);
        if (stretch.To > stretch.From) {
            places.push_back(stretch.To);
        }
    }
    return places;
}

struct ExpectedPeak {
    double Value = 0;  // 0 where there is none
    std::vector<double> At{};
};

void ExpectPeak(const std::optional<Peak>& peak, const ExpectedPeak& expected)
{
    EXPECT_EQ(peak.has_value(), expected.Value != 0);
    if (peak) {
        EXPECT_NEAR(peak->Value, expected.Value, Same * std::abs(expected.Value));
        EXPECT_THAT(PlacesOf(peak->Where), Pointwise(DoubleNear(1e-4), expected.At));
    }
}

struct CurveCase {
    std::string_view Name;
    SupportCondition Support;
    Setup Loads;
    std::vector<double> Reactions;
    ExpectedPeak MostShear;
    ExpectedPeak LeastShear;
    ExpectedPeak MostMoment;
    ExpectedPeak LeastMoment;
    std::vector<double> ZeroShear;
    std::vector<double> ZeroMoment;
};

class CurvesTest : public testing::TestWithParam<CurveCase> {};

TEST_P(CurvesTest, HaveTheirPeaksAndZeroes)
{
    const CurveCase& c = GetParam();
    const BeamCurves curves = ComputeCurves(Calculated(c.Support, c.Loads), CurveLoads::Total);
    std::vector<double> reactions;
    for (const PointForce& support : curves.Supports) {
        reactions.push_back(-support.Load);
    }
    EXPECT_THAT(reactions, Pointwise(DoubleNear(1e-6), c.Reactions));
    const CurvePeaks shear = FindPeaks(curves, &BeamPoint::Shear);
    ExpectPeak(shear.Greatest, c.MostShear);
    ExpectPeak(shear.Least, c.LeastShear);
    EXPECT_THAT(PlacesOf(shear.Zeros), Pointwise(DoubleNear(1e-4), c.ZeroShear));
    const CurvePeaks moment = FindPeaks(curves, &BeamPoint::Moment);
    ExpectPeak(moment.Greatest, c.MostMoment);
    ExpectPeak(moment.Least, c.LeastMoment);
    EXPECT_THAT(PlacesOf(moment.Zeros), Pointwise(DoubleNear(1e-4), c.ZeroMoment));
}

void Uniform(BeamProblem& problem)
{
    problem.Loads.UNIF = "100";
}

const std::array CurveCases{
    // w L / 2 = 600, w L^2 / 8 = 1800
    CurveCase{"uniform",
              SupportCondition::SimpleSpan,
              Uniform,
              {600, 600},
              {600, {0}},
              {-600, {12}},
              {1800, {6}},
              {},
              {6},
              {}},
    // P b / L = 750, P a b / L = 2250
    CurveCase{"point load on a station",
              SupportCondition::SimpleSpan,
              [](BeamProblem& problem) { SetPoint(problem, 0, "1000", "3"); },
              {750, 250},
              {750, {0, 3}},
              {-250, {3, 12}},
              {2250, {3}},
              {},
              {3},
              {}},
    // 1000 x 7.99 / 12 = 665.8333; 1000 x 4.01 x 7.99 / 12 = 2669.99167
    CurveCase{"point load between stations",
              SupportCondition::SimpleSpan,
              [](BeamProblem& problem) { SetPoint(problem, 5, "1000", "4.01"); },
              {665.833333333, 334.166666667},
              {665.833333333, {0, 4.01}},
              {-334.166666667, {4.01, 12}},
              {2669.991666667, {4.01}},
              {},
              {4.01},
              {}},
    CurveCase{"level between equal loads at the thirds",
              SupportCondition::SimpleSpan,
              [](BeamProblem& problem) {
                  SetPoint(problem, 0, "1000", "4");
                  SetPoint(problem, 1, "1000", "8");
              },
              {1000, 1000},
              {1000, {0, 4}},
              {-1000, {8, 12}},
              {4000, {4, 8}},
              {},
              {4, 8},
              {}},
    // 720 lb at 5 ft: R1 = 720 x 7 / 12 = 420; V = 0 at 2 + 420/120; M = 420 x 5.5 - 120 x 3.5^2 / 2
    CurveCase{"partial load",
              SupportCondition::SimpleSpan,
              [](BeamProblem& problem) { SetPartial(problem, 0, "120", "2", "8"); },
              {420, 300},
              {420, {0, 2}},
              {-300, {8, 12}},
              {1575, {5.5}},
              {},
              {5.5},
              {}},
    // R1 = (7200 - 1500) / 12 = 475; M = 475^2 / 200; zero at 2 x 475 / 100
    CurveCase{"overhang",
              SupportCondition::Overhanging,
              [](BeamProblem& problem) {
                  Uniform(problem);
                  SetPoint(problem, 4, "500", "3");
              },
              {475, 1225},
              {500, {12, 15}},
              {-725, {12}},
              {1128.125, {4.75}},
              {-1500, {12}},
              {4.75, 12},
              {9.5}},
    // 100 plf on 8 ft beyond R2: M = 100 x 8^2 / 2 = 3200, R1 = -3200 / 12
    CurveCase{"uplift at R1",
              SupportCondition::Overhanging,
              [](BeamProblem& problem) { SetPartial(problem, 4, "100", "0", "8"); },
              {-266.666666667, 1066.666666667},
              {800, {12}},
              {-266.666666667, {0, 12}},
              {},
              {-3200, {12}},
              {12},
              {}},
    // 3/8 and 10/8 w L; w L^2 / 8 = 1800; 9/128 w L^2 = 1012.5 at 3/8 L
    CurveCase{"two spans",
              SupportCondition::MultipleSpans,
              Uniform,
              {450, 1500, 450},
              {750, {12}},
              {-750, {12}},
              {1012.5, {4.5, 19.5}},
              {-1800, {12}},
              {4.5, 12, 19.5},
              {9, 15}},
    // 0.4 and 1.1 w L; 0.1 w L^2 = 1440; 0.08 w L^2 = 1152 at 0.4 L; zeroes at 0.8 L and 1.2764 L
    CurveCase{"three spans",
              SupportCondition::MultipleSpans,
              [](BeamProblem& problem) {
                  Uniform(problem);
                  problem.ThreeSpan = true;
              },
              {480, 1320, 1320, 480},
              {720, {24}},
              {-720, {12}},
              {1152, {4.8, 31.2}},
              {-1440, {12, 24}},
              {4.8, 12, 18, 24, 31.2},
              {9.6, 15.316718, 20.683282, 26.4}},
    // W / 3 = 400; 2 W L / (9 sqrt 3) = 1847.5209 at L / sqrt 3
    CurveCase{"hip",
              SupportCondition::HipValley,
              [](BeamProblem& problem) {
                  problem.Loads.UNIF = "102.64";
                  problem.Loads.IncTL = "40";
              },
              {400, 800},
              {400, {0}},
              {-800, {12}},
              {1847.520861, {6.928203}},
              {},
              {6.928203},
              {}},
    // 400 + 300 - 50 x - 1200 x^2 / 144 = 0
    CurveCase{"hip with a uniform load beside it",
              SupportCondition::HipValley,
              [](BeamProblem& problem) {
                  problem.Loads.UNIF = "152.64";
                  problem.Loads.IncTL = "40";
                  problem.Loads.IncUnifTL = "50";
              },
              {700, 1100},
              {700, {0}},
              {-1100, {12}},
              {2732.552893, {6.643651}},
              {},
              {6.643651},
              {}},
};

INSTANTIATE_TEST_SUITE_P(Beams, CurvesTest, testing::ValuesIn(CurveCases), CaseName);

/// Every kind of load on span and overhang, some of them live, beside a station or on one.
Session LoadedOverhang()
{
    Session session = Calculated(SupportCondition::Overhanging, [](BeamProblem& problem) {
        problem.Loads.UNIF = "100";
        problem.Loads.LUNIF = "60";
        SetPoint(problem, 0, "900", "3", "400");
        SetPoint(problem, 1, "700", "7.77");
        SetPoint(problem, 5, "500", "3.5", "300");
        SetPartial(problem, 0, "80", "2.005", "9", "50");
        SetPartial(problem, 3, "60", "0", "2", "60");
        problem.NoWeight = false;
    });
    Tested(session, Member("6x", "12", "DF-L #1"));
    return session;
}

/// Between two points the moment grows by the shear: dM = (Va + Vb) / 2 dx where loads are spread evenly.
TEST(CurveLaws, MomentGrowsByTheShear)
{
    const Session session = LoadedOverhang();
    for (const CurveLoads loads : {CurveLoads::Total, CurveLoads::Live}) {
        const std::vector<BeamPoint> points = ComputeCurves(session, loads).Points;
        for (std::size_t i = 1; i < points.size(); ++i) {
            const BeamPoint& a = points[i - 1];
            const BeamPoint& b = points[i];
            EXPECT_LE(a.X, b.X);
            EXPECT_NEAR(b.Moment - a.Moment, (a.Shear + b.Shear) / 2 * (b.X - a.X), 0.01) << a.X;
        }
        EXPECT_NEAR(points.front().Moment, 0, 1e-6);
        EXPECT_NEAR(points.back().Moment, 0, 1e-6);
    }
}

/// The report's reactions have the weight of the member with them.
TEST(CurveLaws, ReactionsAreThoseOfTheReport)
{
    const Session session = LoadedOverhang();
    const BeamCurves total = ComputeCurves(session, CurveLoads::Total);
    EXPECT_NEAR(-total.Supports[0].Load, session.Analysis.R1Total, 0.001);
    EXPECT_NEAR(-total.Supports[1].Load, session.Analysis.R2Total, 0.001);
    const BeamCurves live = ComputeCurves(session, CurveLoads::Live);
    EXPECT_NEAR(-live.Supports[0].Load, session.Analysis.R1Live, 0.001);
    EXPECT_NEAR(-live.Supports[1].Load, session.Analysis.R2Live, 0.001);
}

TEST(Curves, HaveNoDeflectionBeforeATestAndNoPointsBeforeACalculation)
{
    Session session = Calculated(SupportCondition::SimpleSpan, Uniform);
    EXPECT_FALSE(ComputeCurves(session, CurveLoads::Total).HasDeflection);
    Tested(session, Member("4x", "12", "DF-L #2"));
    EXPECT_TRUE(ComputeCurves(session, CurveLoads::Total).HasDeflection);
    Calculate(session);
    EXPECT_FALSE(ComputeCurves(session, CurveLoads::Total).HasDeflection);
    EXPECT_TRUE(ComputeCurves(Session{}, CurveLoads::Total).Points.empty());
}

struct DeflectionCase {
    std::string_view Name;
    SupportCondition Support;
    Setup Loads;
    double Most;       // times E I, in lb and ft
    double MostAt;     // ft
    double Least = 0;  // upwards
    double LeastAt = 0;
    double Tolerance = 1e-5;  // relative
};

class ElasticLineTest : public testing::TestWithParam<DeflectionCase> {};

TEST_P(ElasticLineTest, HasThePublishedPeaks)
{
    const DeflectionCase& c = GetParam();
    Session session = Calculated(c.Support, c.Loads);
    Tested(session, Member("6x", "12", "DF-L #1"));
    const double EI = session.Member.Adjusted.EAdj * 1e6 * session.Member.Section.I;
    const double perEI = 1728 / EI;  // lb-ft3 to in.
    const CurvePeaks peaks = FindPeaks(ComputeCurves(session, CurveLoads::Total), &BeamPoint::Deflection);
    ASSERT_TRUE(peaks.Greatest);
    EXPECT_NEAR(peaks.Greatest->Value, c.Most * perEI, c.Tolerance * c.Most * perEI);
    EXPECT_NEAR(peaks.Greatest->Where.front().From, c.MostAt, 100 * c.Tolerance);
    ASSERT_EQ(peaks.Least.has_value(), c.Least != 0);
    if (peaks.Least) {
        EXPECT_NEAR(peaks.Least->Value, c.Least * perEI, c.Tolerance * std::abs(c.Least) * perEI);
        EXPECT_NEAR(peaks.Least->Where.front().From, c.LeastAt, 100 * c.Tolerance);
    }
}

const double Root3 = std::sqrt(3.0);

// Source: AISC Manual of Steel Construction, Beam Diagrams and Formulas.
INSTANTIATE_TEST_SUITE_P(
    Beams, ElasticLineTest,
    testing::Values(
        DeflectionCase{"uniform: 5 w L^4 / 384", SupportCondition::SimpleSpan, Uniform,
                       5.0 * 100 * 20736 / 384, 6},
        // P b (L^2 - b^2)^(3/2) / (9 sqrt 3 L), b = 3, at sqrt((L^2 - b^2) / 3) from the farther support
        DeflectionCase{"point load", SupportCondition::SimpleSpan,
                       [](BeamProblem& problem) { SetPoint(problem, 0, "1000", "3"); },
                       1000 * 3 * std::pow(135, 1.5) / (9 * Root3 * Span), 12 - std::sqrt(45.0)},
        // tip P c^2 (L + c) / 3; span lifted by P c L^2 / (9 sqrt 3) at L / sqrt 3
        DeflectionCase{"overhang", SupportCondition::Overhanging,
                       [](BeamProblem& problem) { SetPoint(problem, 4, "500", "3"); }, 500.0 * 9 * 15 / 3, 15,
                       -500 * 3 * 144 / (9 * Root3), 12 / Root3},
        // w x (L^3 - 3 L x^2 + 2 x^3) / 48 at x = (1 + sqrt 33) / 16 L
        DeflectionCase{"two spans", SupportCondition::MultipleSpans, Uniform, 0.00541613 * 100 * 20736,
                       (1 + std::sqrt(33.0)) / 16 * Span},
        DeflectionCase{"rising: 0.01304 W L^3 at 0.5193 L", SupportCondition::HipValley,
                       [](BeamProblem& problem) {
                           problem.Loads.UNIF = "102.64";
                           problem.Loads.IncTL = "40";
                       },
                       0.01304 * 1200 * 1728, 0.5193 * Span, 0, 0, 0.0005}),
    CaseName);

/// Printed as 0.0069 w L^4 / EI at 0.446 L. The middle support deflects nowhere, though only R1 and R2 are
/// held.
TEST(ElasticLine, OfThreeSpansLiesOnAllSupports)
{
    Session session = Calculated(SupportCondition::MultipleSpans, [](BeamProblem& problem) {
        Uniform(problem);
        problem.ThreeSpan = true;
    });
    Tested(session, Member("6x", "12", "DF-L #1"));
    const double wL4PerEI =
        100.0 * 20736 * 1728 / (session.Member.Adjusted.EAdj * 1e6 * session.Member.Section.I);
    const BeamCurves curves = ComputeCurves(session, CurveLoads::Total);
    const CurvePeaks peaks = FindPeaks(curves, &BeamPoint::Deflection);
    EXPECT_NEAR(peaks.Greatest->Value, 0.0069 * wL4PerEI, 0.00005 * wL4PerEI);
    EXPECT_NEAR(peaks.Greatest->Where.front().From, 0.446 * Span, 0.0005 * Span);
    for (const double support : {12.0, 24.0, 36.0}) {
        EXPECT_NEAR(ReadCurves(curves, support).Left.Deflection, 0, 1e-9) << support;
    }
}

/// A 6x12 weighs 5.5 x 11.5 x 0.243 = 15.37 plf, which the live loads alone have not.
TEST(Curves, CountTheWeightOfTheMemberTested)
{
    Session session = PlainSession();
    Calculate(session);
    const auto shearAtR1 = [&](CurveLoads loads) {
        return ComputeCurves(session, loads).Points.front().Shear;
    };
    EXPECT_NEAR(shearAtR1(CurveLoads::Total), 600, Same);
    Tested(session, Member("6x", "12", "DF-L #1"));
    EXPECT_NEAR(shearAtR1(CurveLoads::Total), 600 + 5.5 * 11.5 * 0.243 * 6, 1e-4);
    EXPECT_NEAR(shearAtR1(CurveLoads::Live), 360, Same);
}

/// 12 ft have stations each 0.06 ft.
TEST(Cursor, StepsFromPlaceToPlaceAndStaysOnTheBeam)
{
    const BeamCurves curves =
        ComputeCurves(Calculated(SupportCondition::SimpleSpan,
                                 [](BeamProblem& problem) { SetPoint(problem, 0, "1000", "3.03"); }),
                      CurveLoads::Total);
    EXPECT_NEAR(StepAlong(curves, 0, 10), 0.6, 1e-9);
    EXPECT_NEAR(StepAlong(curves, 3, 1), 3.03, 1e-9);
    EXPECT_NEAR(StepAlong(curves, 3.03, 1), 3.06, 1e-9);
    EXPECT_NEAR(StepAlong(curves, 3.04, -1), 3.03, 1e-9);
    EXPECT_EQ(StepAlong(curves, 0.03, -10), 0);
    EXPECT_NEAR(StepAlong(curves, 11.9, 1000), 12, 1e-9);
}

/// Between stations a reading is divided evenly; at a load it has both sides of the step.
TEST(Cursor, ReadsBothSidesOfAStep)
{
    const BeamCurves curves =
        ComputeCurves(Calculated(SupportCondition::SimpleSpan,
                                 [](BeamProblem& problem) { SetPoint(problem, 0, "1000", "3"); }),
                      CurveLoads::Total);
    EXPECT_NEAR(ReadCurves(curves, 3).Left.Shear, 750, 1e-3);
    EXPECT_NEAR(ReadCurves(curves, 3).Right.Shear, -250, 1e-3);
    EXPECT_NEAR(ReadCurves(curves, 1.234).Left.Moment, 750 * 1.234, 1e-3);
    EXPECT_NEAR(ReadCurves(curves, 99).Right.X, 12, 1e-9);
}

}  // namespace
}  // namespace kordavan
