#include "design/LoadTools.h"

#include <gmock/gmock.h>

#include <functional>

#include "core/NumberText.h"
#include "design/DesignBuilder.h"
#include "design/EntryAdjustment.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(MultiplyTributary, WritesPsfTimesLength)
{
    Session session;
    BeamProblem& problem = session.Problem;
    problem.Loads.Tribute = "6.5";
    problem.Loads.Text1 = "40";
    problem.Loads.Text2 = "52";
    ScriptedUser user;
    EXPECT_EQ(MultiplyTributary(session, user), Outcome::Done);
    EXPECT_EQ(problem.Loads.LUNIF, "260");
    EXPECT_EQ(problem.Loads.UNIF, "338");
}

TEST(MultiplyTributary, RefusesInItsOrder)
{
    Session session;
    BeamProblem& problem = session.Problem;
    problem.Loads.Text1 = "60";
    ScriptedUser user;
    EXPECT_EQ(MultiplyTributary(session, user), Outcome::Refused);
    problem.Loads.Tribute = "6";
    EXPECT_EQ(MultiplyTributary(session, user), Outcome::Refused);
    problem.Loads.Text2 = "50";
    EXPECT_EQ(MultiplyTributary(session, user), Outcome::Refused);
    problem.Loads.Text2 = "1e308";
    problem.Loads.Tribute = "1e308";
    EXPECT_EQ(MultiplyTributary(session, user), Outcome::Refused);
    EXPECT_THAT(user.Told,
                ElementsAre(RefusalOf(" Please enter a tributary length in feet.", "Tribute"),
                            RefusalOf(" Please enter a total load (LL+DL) in PSF.", "Text2"),
                            RefusalOf("Your Live Load entry is greater than your total load (LL+DL) entry.  "
                                      "Please adjust as necessary.",
                                      "Text2"),
                            RefusalOf("The numbers entered are too large to be multiplied.", "Tribute")));
    EXPECT_EQ(problem.Loads.UNIF, "");
}

TEST(InsertPartialLoads, PassesOverRowsWithoutALengthOrALoad)
{
    BeamProblem problem;
    LoadSet& loads = problem.Loads;
    loads.PSF = {"50", "50", "", "50", ""};
    loads.LPSF = {"40", "40", "30", "", ""};
    loads.TribPSF = {"2", "", "3", "4", "5"};
    loads.PAR[1] = "7";
    loads.PAR[2] = "9";
    ScriptedUser user;
    EXPECT_EQ(InsertPartialLoads(problem, user), Outcome::Done);
    EXPECT_THAT(loads.PAR, ElementsAre("100", "7", "9", "200", ""));
    EXPECT_THAT(loads.LPAR, ElementsAre("80", "", "90", "", ""));
    EXPECT_THAT(user.Told, IsEmpty());
    ClearPartialCalculator(problem);
    EXPECT_EQ(loads.PSF[0] + loads.LPSF[0], "");
    EXPECT_EQ(loads.TribPSF[0], "0");
}

Session HipTotalsSession()
{
    Session session;
    BeamProblem& problem = session.Problem;
    problem.Support = SupportCondition::HipValley;
    problem.Loads.IncTL = "40";
    problem.Loads.IncLL = "25";
    problem.Loads.Trib1 = "10";
    problem.Loads.Trib2 = "10";
    problem.Loads.Areas = {true, true, false, false};
    problem.Loads.CalctheSpan = true;
    return session;
}

TEST(HipValley, TurnsThePlanIntoAnEquivalentUniformLoad)
{
    Session session = HipTotalsSession();
    session.Problem.Loads.IncUnifTL = "12";
    ScriptedUser user;
    EXPECT_EQ(CalculateHipValley(session, user), Outcome::Done);
    EXPECT_THAT(user.Told, IsEmpty());
    EXPECT_EQ(session.Problem.Span, "14.14");  // diagonal of 10 by 10
    EXPECT_EQ(session.IncreasingTotalLoad, 2000);
    EXPECT_EQ(session.IncreasingLiveLoad, 1250);
    EXPECT_NEAR(Val(session.Problem.Loads.UNIF), 2000 * 1.0264 / 14.14 + 12, 1e-9);
    EXPECT_NEAR(Val(session.Problem.Loads.LUNIF), 1250 * 1.0264 / 14.14, 1e-9);
}

struct ShareCase {
    std::array<bool, 4> Areas;
    float Load;
};

class PlanShareTest : public testing::TestWithParam<ShareCase> {};

TEST_P(PlanShareTest, CountsTheQuarters)
{
    Session session = HipTotalsSession();
    session.Problem.Loads.Areas = GetParam().Areas;
    ScriptedUser user;
    EXPECT_EQ(CalculateHipValley(session, user), Outcome::Done);
    EXPECT_EQ(session.IncreasingTotalLoad, GetParam().Load);
}

INSTANTIATE_TEST_SUITE_P(Quarters, PlanShareTest,
                         testing::Values(ShareCase{{false, false, true, false}, 1000},
                                         ShareCase{{true, false, true, true}, 3000},
                                         ShareCase{{true, true, true, true}, 4000}));

TEST(HipValley, WithoutLiveLoadEmptiesTheLiveBox)
{
    Session session = HipTotalsSession();
    session.Problem.Loads.IncLL = "";
    session.Problem.Loads.LUNIF = "77";
    ScriptedUser user;
    EXPECT_EQ(CalculateHipValley(session, user), Outcome::Done);
    EXPECT_EQ(session.Problem.Loads.LUNIF, "");
}

TEST(HipValley, TellsBeforeItReplacesATypedSpan)
{
    Session session = HipTotalsSession();
    session.Problem.Span = "15";
    ScriptedUser user;
    EXPECT_EQ(CalculateHipValley(session, user), Outcome::Done);
    EXPECT_THAT(user.Told,
                ElementsAre(AlertOf("The Span Auto-calc feature is currently selected. Kordavan is replacing "
                                    "your previous Span entry with our calculated Span...")));
    EXPECT_EQ(session.Problem.Span, "14.14");
    EXPECT_EQ(CalculateHipValley(session, user), Outcome::Done);
    EXPECT_EQ(user.Told.size(), 1U);  // the span is the diagonal already
}

TEST(HipValley, KeepsATypedSpanWithoutAutoCalc)
{
    Session session = HipTotalsSession();
    session.Problem.Loads.CalctheSpan = false;
    session.Problem.Span = "16";
    ScriptedUser user;
    EXPECT_EQ(CalculateHipValley(session, user), Outcome::Done);
    EXPECT_NEAR(Val(session.Problem.Loads.UNIF), 2000 * 1.0264 / 16, 1e-9);
}

TEST(HipValley, GrowsTheDeadLoadWithTheSlopeAndPutsItBackOnReturn)
{
    Session session = HipTotalsSession();
    BeamProblem& problem = session.Problem;
    problem.Roofbutton = true;
    problem.Pitchtext = "9";  // slope factor 1.25
    problem.Loads.IncUnifTL = "10";
    problem.Loads.IncUnifLL = "6";
    ScriptedUser user;
    EXPECT_EQ(CalculateHipValley(session, user), Outcome::Done);
    EXPECT_EQ(problem.Loads.IncTL, "43.75");     // 25 + 15 * 1.25
    EXPECT_EQ(problem.Loads.IncUnifTL, "11.0");  // 6 + 4 * 1.25
    EXPECT_EQ(session.IncreasingTotalLoad, 2187.5F);
    EXPECT_TRUE(session.Restore.HipLoadsGrown);
    EXPECT_EQ(CalculateHipValley(session, user), Outcome::Refused);  // nothing grows twice
    EXPECT_EQ(problem.Loads.IncTL, "43.75");
    Calculate(session);
    EXPECT_NEAR(session.Analysis.R2Applied, 11 * 14.14 / 2 + 2 * 2187.5 / 3, 1e-3);
    RestoreEntries(session);
    EXPECT_EQ(problem.Loads.IncTL, "40");
    EXPECT_EQ(problem.Loads.IncUnifTL, "10");
    EXPECT_FALSE(session.Restore.HipLoadsGrown);
}

struct HipRefusal {
    std::string_view Name;
    std::function<void(BeamProblem&)> Spoil;
    std::string_view Text;
    std::string_view Focus;
};

class HipRefusalTest : public testing::TestWithParam<HipRefusal> {};

TEST_P(HipRefusalTest, ChangesNothing)
{
    Session session = HipTotalsSession();
    GetParam().Spoil(session.Problem);
    const std::string load = session.Problem.Loads.IncTL;
    ScriptedUser user;
    EXPECT_EQ(CalculateHipValley(session, user), Outcome::Refused);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(GetParam().Text, GetParam().Focus)));
    EXPECT_EQ(session.Problem.Loads.IncTL, load);
    EXPECT_EQ(session.Problem.Loads.UNIF, "");
    EXPECT_EQ(session.IncreasingTotalLoad, 0);
}

const HipRefusal HipRefusals[] = {
    {"no load", [](BeamProblem& p) { p.Loads.IncTL = ""; }, "Please enter a total (Live + Dead) load in PSF.",
     "IncTL"},
    {"slope without live load",
     [](BeamProblem& p) {
         p.Roofbutton = true;
         p.Pitchtext = "5";
         p.Loads.IncLL = "";
     },
     "The Roof Slope Adjustment is checked. Please enter the Live Load in PSF so Kordavan can complete the "
     "calculation.",
     "IncLL"},
    {"one side", [](BeamProblem& p) { p.Loads.Trib2 = "0"; },
     "Please enter distances (lengths) for the tributary area calculation.", "Trib1"},
    {"no span", [](BeamProblem& p) { p.Loads.CalctheSpan = false; },
     "Please enter a Span or select the Span Auto-calc feature.", "Span"},
    {"no quarter", [](BeamProblem& p) { p.Loads.Areas = {}; },
     " Please select at least one 'area' on roof plan diagram to be include in the area calculation. The "
     "white squares are checkboxes and at least one must be 'checked'.",
     "Areas[0]"},
    {"beyond any number",
     [](BeamProblem& p) {
         p.Loads.Trib1 = "1e200";
         p.Loads.Trib2 = "1e200";
     },
     "The numbers entered are too large to be multiplied.", "Trib1"},
};

INSTANTIATE_TEST_SUITE_P(Entries, HipRefusalTest, testing::ValuesIn(HipRefusals), CaseName);

}  // namespace
}  // namespace kordavan
