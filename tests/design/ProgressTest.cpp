#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include "core/Progress.h"
#include "design/DesignBuilder.h"

namespace kordavan {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// What a gauge is set to while this session is calculated.
std::vector<int> GaugeOf(Session& session, UserPort& user, Outcome expected)
{
    std::vector<int> reached;
    const Progress progress([&](int percent) { reached.push_back(percent); });
    EXPECT_EQ(CalculateAction(session, user, progress), expected);
    return reached;
}

TEST(Progress, OfASimpleSpanGoesBySquaresThroughEverySlot)
{
    Session session = PlainSession();
    ScriptedUser user;
    EXPECT_THAT(GaugeOf(session, user, Outcome::Done),
                ElementsAre(10,                      // the checks are passed
                            20, 21, 24, 29, 36, 45,  // 20 + k * k for point loads 0 to 5
                            55,                      // point loads are tabled
                            55, 56, 59, 64, 71,      // 55 + k * k for partial loads 0 to 4
                            95, 98, 100));
}

TEST(Progress, NeverGoesBackAndEndsAtAll)
{
    for (const SupportCondition support : {SupportCondition::SimpleSpan, SupportCondition::Overhanging,
                                           SupportCondition::HipValley, SupportCondition::MultipleSpans}) {
        Session session = PlainSession();
        session.Problem.Support = support;
        if (support == SupportCondition::Overhanging) {
            SetPoint(session.Problem, 4, "300", "3", "200");
        }
        session.IncreasingTotalLoad = 1200;
        session.IncreasingLiveLoad = 720;
        ScriptedUser user;
        const std::vector<int> reached = GaugeOf(session, user, Outcome::Done);
        ASSERT_THAT(reached, Not(IsEmpty()));
        EXPECT_EQ(reached.front(), 10);
        EXPECT_EQ(reached.back(), 100);
        EXPECT_TRUE(std::is_sorted(reached.begin(), reached.end()));
    }
}

TEST(Progress, BeginsAfterThePersonHasHeardEveryAlert)
{
    Session session = PlainSession();
    session.Problem.Loads.LUNIF = "";  // dead load alone is alerted to
    ScriptedUser user;
    std::vector<std::size_t> toldBefore;
    const Progress progress([&](int /*percent*/) { toldBefore.push_back(user.Told.size()); });
    EXPECT_EQ(CalculateAction(session, user, progress), Outcome::Done);
    ASSERT_THAT(toldBefore, Not(IsEmpty()));
    EXPECT_EQ(toldBefore.front(), 1U);
    EXPECT_EQ(user.Told.size(), 1U);
}

TEST(Progress, IsNoneInARefusedCalculation)
{
    ScriptedUser user;
    Session withoutSpan = PlainSession();
    withoutSpan.Problem.Span = "";
    EXPECT_THAT(GaugeOf(withoutSpan, user, Outcome::Refused), IsEmpty());

    Session liveAboveTotal = PlainSession();
    liveAboveTotal.Problem.Loads.LUNIF = "101";
    EXPECT_THAT(GaugeOf(liveAboveTotal, user, Outcome::Refused), IsEmpty());

    Session longOverhang = PlainSession();
    longOverhang.Problem.Support = SupportCondition::Overhanging;
    SetPoint(longOverhang.Problem, 4, "300", "7", "200");
    user.WillAnswer(false);
    EXPECT_THAT(GaugeOf(longOverhang, user, Outcome::Refused), IsEmpty());
}

TEST(Progress, StopsShortWhenNoNumberCanHoldTheResult)
{
    Session session = PlainSession();
    session.Problem.Loads.UNIF = "1e38";
    session.Problem.Span = "1e20";
    ScriptedUser user;
    EXPECT_THAT(GaugeOf(session, user, Outcome::Refused), Not(Contains(100)));
}

}  // namespace
}  // namespace kordavan
