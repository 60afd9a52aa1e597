#include "design/CalculateAction.h"

#include <gmock/gmock.h>

#include "core/NumberText.h"
#include "design/DesignBuilder.h"
#include "design/EntryAdjustment.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view OnlyDead =
    "Attention:  No live loads have been entered, therefore the Total Loads entered will be treated as only "
    "Dead Load.\nYou should check the Dead Load only with a Duration of Load set to 0.9 to see if it is the "
    "critical load combination.";
constexpr std::string_view LargeDead =
    "Attention:  Your Dead Load is large relative to the total load.\nYou should check the Dead Load only "
    "with a Duration of Load set to 0.9 to see if it is the critical load combination.";

struct AlertCase {
    std::string_view Dur;
    std::string_view Live;
    std::string_view Alert;
};

class DeadLoadAlertTest : public testing::TestWithParam<AlertCase> {};

TEST_P(DeadLoadAlertTest, IsTold)
{
    Session session = PlainSession();
    session.Problem.Dur = GetParam().Dur;
    session.Problem.Loads.LUNIF = GetParam().Live;
    ScriptedUser user;
    EXPECT_EQ(CalculateAction(session, user), Outcome::Done);
    if (GetParam().Alert.empty()) {
        EXPECT_THAT(user.Told, IsEmpty());
    } else {
        EXPECT_THAT(user.Told, ElementsAre(AlertOf(GetParam().Alert)));
    }
}

INSTANTIATE_TEST_SUITE_P(Loads, DeadLoadAlertTest,
                         testing::Values(AlertCase{"1.00", "", OnlyDead}, AlertCase{"0.9", "", OnlyDead},
                                         AlertCase{"0.90", "", ""}, AlertCase{"1.00", "14", LargeDead},
                                         AlertCase{"1.00", "15", LargeDead},  // dead is 0.85 of the total
                                         AlertCase{"1.00", "16", ""}, AlertCase{"0.90", "5", ""}));

TEST(CalculateAction, AlertsToASlopeOverDeadLoadAlone)
{
    Session session = PlainSession();
    session.Problem.Loads.LUNIF = "";
    session.Problem.Dur = "0.90";
    session.Problem.Roofbutton = true;
    session.Problem.Pitchtext = "6";
    ScriptedUser user;
    EXPECT_EQ(CalculateAction(session, user), Outcome::Done);
    EXPECT_THAT(user.Told,
                ElementsAre(AlertOf(
                    "Slope Adjustment is checked and no live loads are entered. All total loads are assumed "
                    "to be entirely Dead Loads and will be increased for the slope of the roof.")));
}

TEST(CalculateAction, OffersToWorkOutAForgottenUniformLoad)
{
    Session session = PlainSession();
    LoadSet& loads = session.Problem.Loads;
    loads.UNIF = loads.LUNIF = "";
    loads.Tribute = "2";
    loads.Text1 = "40";
    loads.Text2 = "50";
    ScriptedUser user;
    user.WillAnswer(true);
    EXPECT_EQ(CalculateAction(session, user), Outcome::Done);
    EXPECT_EQ(loads.UNIF, "100");
    EXPECT_EQ(loads.LUNIF, "80");
    EXPECT_EQ(user.Told[0].Kind, MessageKind::Question);
}

TEST(CalculateAction, GoesOnWithoutTheUniformLoadWhenNotWanted)
{
    Session session = PlainSession();
    LoadSet& loads = session.Problem.Loads;
    loads.UNIF = loads.LUNIF = "";
    loads.Tribute = "2";
    loads.Text2 = "50";
    ScriptedUser user;
    user.WillAnswer(false);
    EXPECT_EQ(CalculateAction(session, user), Outcome::Refused);
    EXPECT_EQ(user.Told.back().Focus, "Span");  // no load at all
    EXPECT_EQ(loads.UNIF, "");
}

Session OverhangingSession(std::string_view reach)
{
    Session session = PlainSession();
    session.Problem.Support = SupportCondition::Overhanging;
    SetPoint(session.Problem, 4, "200", reach, "100");
    return session;
}

TEST(CalculateAction, AsksAboutAnOverhangOfMoreThanHalfTheSpan)
{
    Session half = OverhangingSession("6");
    ScriptedUser user;
    EXPECT_EQ(CalculateAction(half, user), Outcome::Done);
    EXPECT_THAT(user.Told, IsEmpty());

    Session more = OverhangingSession("6.01");
    user.WillAnswer(false);
    EXPECT_EQ(CalculateAction(more, user), Outcome::Refused);
    EXPECT_EQ(user.Told.back().Kind, MessageKind::Question);
    user.WillAnswer(true);
    EXPECT_EQ(CalculateAction(more, user), Outcome::Done);
}

TEST(CalculateAction, ComparesOverhangsAsTextForTheQuestionAndAsNumbersForTheDesign)
{
    Session session = OverhangingSession("9");
    session.Problem.Span = "19";
    SetPoint(session.Problem, 5, "100", "10");
    ScriptedUser user;  // of "9" and "10" the text "9" is the larger: 18 is not more than 19, so no question
    EXPECT_EQ(CalculateAction(session, user), Outcome::Done);
    EXPECT_EQ(session.Analysis.OverhangFt, 10);
}

TEST(CalculateAction, RefusesWhatNoNumberCanHoldAndKeepsTheEntries)
{
    Session session = PlainSession();
    session.Problem.Rep = true;
    session.Problem.Spacing = RepetitiveSpacing::Ctr16;
    session.Problem.Loads.UNIF = "1e38";
    ScriptedUser user;
    EXPECT_EQ(CalculateAction(session, user), Outcome::Refused);
    EXPECT_EQ(user.Told.back().Title, "Kordavan Error: Form 1");
    EXPECT_EQ(session.Problem.Loads.UNIF, "1e38");
    EXPECT_FALSE(session.Restore.LoadsMultipliedFlag);
}

TEST(CalculateAction, ARefusedCalculationKeepsTheOneBefore)
{
    Session session = PlainSession();
    Calculate(session);
    session.Problem.Loads.UNIF = "1e38";
    session.Problem.Span = "1e20";
    ScriptedUser user;
    EXPECT_EQ(CalculateAction(session, user), Outcome::Refused);
    EXPECT_EQ(session.Analysis.MaxMomentApplied, 1800);  // 100 * 144 / 8
    EXPECT_EQ(session.Stations[StationColumn::Moment][100], 1800);
}

TEST(CalculateAction, BracesAContinuousBeamWhateverItsBoxesHold)
{
    Session session = PlainSession();
    session.Problem.Support = SupportCondition::MultipleSpans;
    session.Problem.UBLtext = "20";
    Calculate(session);
    EXPECT_EQ(session.Numbers.UBL, 0);
}

struct SpacingCase {
    RepetitiveSpacing Spacing;
    double Factor;
    std::string_view Restored;  // of 45.5 plf
};

class SpacingTest : public testing::TestWithParam<SpacingCase> {};

TEST_P(SpacingTest, MultipliesTheLoadsAndPutsThemBack)
{
    Session session = PlainSession();
    BeamProblem& problem = session.Problem;
    problem.Loads.UNIF = "45.5";
    problem.Loads.LUNIF = "30";
    SetPoint(problem, 0, "300", "4", "200");
    SetPartial(problem, 0, "20", "0", "5", "10");
    problem.Rep = true;
    problem.Spacing = GetParam().Spacing;
    Calculate(session);
    const double factor = GetParam().Factor;
    EXPECT_NEAR(session.Numbers.Loads.UNIF, 45.5 * factor, 1e-9);
    EXPECT_NEAR(session.Numbers.Loads.LPT[0], 200 * factor, 1e-9);
    EXPECT_NEAR(session.Numbers.Loads.LPAR[0], 10 * factor, 1e-9);
    EXPECT_EQ(session.Numbers.Loads.DIS[0], 4);
    EXPECT_NEAR(Val(problem.Loads.PT[0]), 300 * factor, 1e-9);

    RestoreEntries(session);
    EXPECT_EQ(problem.Loads.UNIF, GetParam().Restored);
    EXPECT_EQ(problem.Loads.PT[0], "300");
    EXPECT_EQ(problem.Loads.LPAR[0], "10");
    EXPECT_EQ(problem.Loads.PT[1], "");
    RestoreEntries(session);
    EXPECT_EQ(problem.Loads.PT[0], "300");  // nothing is divided twice
}

INSTANTIATE_TEST_SUITE_P(Spacings, SpacingTest,
                         testing::Values(SpacingCase{RepetitiveSpacing::Ctr0, 1, "45.5"},
                                         SpacingCase{RepetitiveSpacing::Ctr12, 1, "45.5"},
                                         SpacingCase{RepetitiveSpacing::Ctr16, 1.3333, "46"},
                                         SpacingCase{RepetitiveSpacing::Ctr19, 1.6, "46"},
                                         SpacingCase{RepetitiveSpacing::Ctr24, 2, "45.5"}));

TEST(Spacing, CountsOnlyBesideRepetitiveUse)
{
    Session session = PlainSession();
    session.Problem.Spacing = RepetitiveSpacing::Ctr24;
    Calculate(session);
    EXPECT_EQ(session.Numbers.Loads.UNIF, 100);
}

TEST(SlopeAdjustment, GrowsTheDeadPartsAndPutsThemBack)
{
    Session session = PlainSession();
    BeamProblem& problem = session.Problem;
    problem.Roofbutton = true;
    problem.Pitchtext = "9";  // 9, 12 and 15: the slope factor is 1.25
    SetPartial(problem, 1, "80", "0", "6", "40");
    SetPoint(problem, 0, "500", "5", "100");
    Calculate(session);
    EXPECT_FLOAT_EQ(session.Numbers.SlopeFactor, 1.25F);
    EXPECT_NEAR(session.Numbers.Loads.UNIF, 60 + 40 * 1.25, 1e-5);
    EXPECT_NEAR(session.Numbers.Loads.PAR[1], 40 + 40 * 1.25, 1e-5);
    EXPECT_EQ(session.Numbers.Loads.LUNIF, 60);
    EXPECT_EQ(session.Numbers.Loads.PT[0], 500);  // point loads stay
    RestoreEntries(session);
    EXPECT_EQ(problem.Loads.UNIF, "100");
    EXPECT_EQ(problem.Loads.PAR[1], "80");
    EXPECT_EQ(problem.Loads.PAR[0], "");
}

TEST(SlopeAdjustment, IsUndoneTogetherWithTheSpacing)
{
    Session session = PlainSession();
    BeamProblem& problem = session.Problem;
    problem.Roofbutton = true;
    problem.Pitchtext = "9";
    problem.Rep = true;
    problem.Spacing = RepetitiveSpacing::Ctr19;
    Calculate(session);
    EXPECT_NEAR(session.Numbers.Loads.UNIF, 110 * 1.6, 1e-4);
    RestoreEntries(session);
    EXPECT_EQ(problem.Loads.UNIF, "100");
    EXPECT_EQ(problem.Loads.LUNIF, "60");
}

}  // namespace
}  // namespace kordavan
