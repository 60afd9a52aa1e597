#include "design/Unbalance.h"

#include <gmock/gmock.h>

#include "design/DesignBuilder.h"

namespace kordavan {
namespace {

using testing::ElementsAre;

Session DeckSession()
{
    Session session = PlainSession();
    BeamProblem& problem = session.Problem;
    problem.Support = SupportCondition::Overhanging;
    SetPoint(problem, 0, "400", "5", "250");
    SetPoint(problem, 4, "500", "3", "500");
    SetPartial(problem, 3, "80", "0", "3", "50");
    return session;
}

TEST(Unbalance, TakesTheOverhangsLiveLoadsOutAndPutsThemBack)
{
    Session session = DeckSession();
    const LoadSet& loads = session.Problem.Loads;
    ScriptedUser user;
    EXPECT_EQ(ToggleOverhangLiveLoads(session, user), Outcome::Done);
    EXPECT_EQ(loads.PT[4], "");  // it was live altogether
    EXPECT_EQ(loads.LPT[4], "");
    EXPECT_EQ(loads.PAR[3], "30");
    EXPECT_EQ(loads.PT[0], "400");
    EXPECT_TRUE(session.Unbalanced.Overhang);
    EXPECT_EQ(ToggleOverhangLiveLoads(session, user), Outcome::Done);
    EXPECT_EQ(loads.PT[4], "500");
    EXPECT_EQ(loads.LPT[4], "500");
    EXPECT_EQ(loads.PAR[3], "80");
    EXPECT_EQ(loads.LPAR[3], "50");
    EXPECT_THAT(user.Told,
                ElementsAre(AlertOf("Live loads have been removed from Overhang.\nClick 'OK Calculate' to "
                                    "test member with these loads removed. Watch deflection at Backspan."),
                            AlertOf("Live Loads on the Overhang have been restored.")));
    EXPECT_EQ(user.Told[0].Title, "Kordavan Unbalanced Overhang");
}

TEST(Unbalance, TakesTheBackspansLiveLoadsOutAndPutsThemBack)
{
    Session session = DeckSession();
    const LoadSet& loads = session.Problem.Loads;
    ScriptedUser user;
    EXPECT_EQ(ToggleSpanLiveLoads(session, user), Outcome::Done);
    EXPECT_EQ(loads.UNIF, "40");
    EXPECT_EQ(loads.LUNIF, "");
    EXPECT_EQ(loads.PT[0], "150");
    EXPECT_EQ(loads.PT[4], "500");
    EXPECT_EQ(ToggleSpanLiveLoads(session, user), Outcome::Done);
    EXPECT_EQ(loads.UNIF, "100");
    EXPECT_EQ(loads.LUNIF, "60");
    EXPECT_EQ(loads.LPT[0], "250");
}

TEST(Unbalance, DoesNothingWhileTheOtherPartIsOut)
{
    Session session = DeckSession();
    ScriptedUser user;
    ToggleSpanLiveLoads(session, user);
    EXPECT_EQ(ToggleOverhangLiveLoads(session, user), Outcome::Refused);
    EXPECT_EQ(session.Problem.Loads.PT[4], "500");
    EXPECT_EQ(user.Told.size(), 1U);
}

TEST(Unbalance, RefusesWithoutLiveLoadsOrWithTooMuchOfThem)
{
    Session session = DeckSession();
    LoadSet& loads = session.Problem.Loads;
    ScriptedUser user;
    loads.LPT[4] = loads.LPAR[3] = "";
    EXPECT_EQ(ToggleOverhangLiveLoads(session, user), Outcome::Refused);
    EXPECT_EQ(user.Told.back().Text, "There are no live loads to remove from the Overhang.");
    EXPECT_EQ(user.Told.back().Title, "Kordavan Unbalanced Loads");
    loads.LPAR[3] = "81";
    EXPECT_EQ(ToggleOverhangLiveLoads(session, user), Outcome::Refused);
    EXPECT_EQ(user.Told.back().Focus, "PAR[3]");
    EXPECT_EQ(loads.PAR[3], "80");
    loads.LUNIF = loads.LPT[0] = "";
    loads.LPAR[3] = "";
    EXPECT_EQ(ToggleSpanLiveLoads(session, user), Outcome::Refused);
    EXPECT_EQ(user.Told.back().Text, "There are no live loads to remove from the backspan.");
}

TEST(Unbalance, RefusesToPutBackWhatNoNumberCanHold)
{
    Session session = DeckSession();
    ScriptedUser user;
    ToggleOverhangLiveLoads(session, user);
    session.Problem.Loads.PAR[3] = "1.7e308";
    session.Unbalanced.SavedLivePartial[3] = "1.7e308";
    EXPECT_EQ(ToggleOverhangLiveLoads(session, user), Outcome::Refused);
    EXPECT_EQ(user.Told.back().Text, "Error unbalancing loads on overhang.");
    EXPECT_TRUE(session.Unbalanced.Overhang);
}

}  // namespace
}  // namespace kordavan
