#include "design/LoadingConditions.h"

#include <gmock/gmock.h>

#include <array>
#include <span>
#include <string>
#include <vector>

#include "design/DesignBuilder.h"
#include "design/Unbalance.h"

namespace kordavan {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(SwitchSupport, ClearsEveryLoadAndKeepsTheUpperPart)
{
    Session session = PlainSession();
    BeamProblem& problem = session.Problem;
    problem.Loads.Text2 = "50";
    problem.UBLtext = "2";
    SetPoint(problem, 1, "300", "5", "200");
    SetPartial(problem, 1, "30", "0", "5", "20");
    problem.Loads.PSF[0] = "40";
    SwitchSupport(session, SupportCondition::Overhanging);
    SwitchSupport(session, SupportCondition::SimpleSpan);
    EXPECT_EQ(problem.Loads.UNIF + problem.Loads.LUNIF, "");
    EXPECT_THAT(problem.Loads.PT, Each(""));
    EXPECT_THAT(problem.Loads.ENDP, Each(""));
    EXPECT_THAT(problem.Loads.PSF, Each(""));
    EXPECT_EQ(problem.Span, "12");
    EXPECT_EQ(problem.UBLtext, "2");
    EXPECT_EQ(problem.Loads.Text2, "50");
}

TEST(SwitchSupport, ToTheSameConditionKeepsTheLoads)
{
    Session session = PlainSession();
    SwitchSupport(session, SupportCondition::SimpleSpan);
    EXPECT_EQ(session.Problem.Loads.UNIF, "100");
}

TEST(SwitchSupport, BracesSeveralSpansAndOpensTheBoxAfterwards)
{
    Session session = PlainSession();
    session.Problem.ThreeSpan = true;
    SwitchSupport(session, SupportCondition::MultipleSpans);
    EXPECT_EQ(session.Problem.UBLtext, "0");
    EXPECT_EQ(session.Problem.CantUBLtext, "0");
    EXPECT_FALSE(session.Problem.ThreeSpan);
    SwitchSupport(session, SupportCondition::Overhanging);
    EXPECT_EQ(session.Problem.UBLtext, "");
    EXPECT_EQ(session.Problem.CantUBLtext, "");
}

TEST(SwitchSupport, HidesNoUniformCalculatorEntriesBehindAHip)
{
    Session session = PlainSession();
    session.Problem.Loads.Text2 = "50";
    session.Problem.Loads.Tribute = "4";
    SwitchSupport(session, SupportCondition::HipValley);
    EXPECT_EQ(session.Problem.Loads.Text2 + session.Problem.Loads.Tribute, "");
    session.Problem.Loads.IncTL = "40";
    SwitchSupport(session, SupportCondition::SimpleSpan);
    EXPECT_EQ(session.Problem.Loads.IncTL, "");
}

TEST(SwitchSupport, LeavesNoLoadUnbalanced)
{
    Session session = PlainSession();
    SwitchSupport(session, SupportCondition::Overhanging);
    SetPoint(session.Problem, 4, "300", "3", "200");
    ScriptedUser user;
    ToggleOverhangLiveLoads(session, user);
    SwitchSupport(session, SupportCondition::SimpleSpan);
    EXPECT_FALSE(session.Unbalanced.Overhang);
    EXPECT_EQ(session.Unbalanced.SavedLivePoint[4], "");
}

TEST(NextDuration, CyclesAndBeginsAgainFromAnyOtherText)
{
    EXPECT_EQ(NextDuration("1.00"), "1.15");
    EXPECT_EQ(NextDuration("1.15"), "1.25");
    EXPECT_EQ(NextDuration("1.25"), "0.90");
    EXPECT_EQ(NextDuration("0.90"), "1.00");
    EXPECT_EQ(NextDuration("1.0"), "1.00");
    EXPECT_EQ(NextDuration(""), "1.00");
}

struct PairCase {
    std::string_view Name;
    LoadPair Boxes;
    LoadPair Next;
};

class NextLoadPairTest : public testing::TestWithParam<PairCase> {};

TEST_P(NextLoadPairTest, StepsThroughTheDefaults)
{
    const std::array<LoadPair, 5> pairs{LoadPair{"40", "50"}, LoadPair{"0", "0"}, LoadPair{"25", "40"},
                                        LoadPair{"", "15"}, LoadPair{"0", ""}};
    EXPECT_EQ(NextLoadPair(pairs, GetParam().Boxes), GetParam().Next) << GetParam().Name;
}

INSTANTIATE_TEST_SUITE_P(Boxes, NextLoadPairTest,
                         testing::Values(PairCase{"empty", {"", ""}, {"40", "50"}},
                                         PairCase{"zeroes", {"0", "0"}, {"40", "50"}},
                                         PairCase{"over the blank pair", {"40", "50"}, {"25", "40"}},
                                         PairCase{"one box empty", {"", "50"}, {"25", "40"}},
                                         PairCase{"after the last", {"0", "15"}, {"", ""}},
                                         PairCase{"unknown", {"60", "70"}, {"40", "50"}}));

TEST(NextLoadPair, WithoutDefaultsLeavesTheBoxesAlone)
{
    const std::array<LoadPair, 5> none{};
    EXPECT_EQ(NextLoadPair(none, {"60", "100"}), (LoadPair{"60", "100"}));
}

TEST(StepLoadPair, WritesBothBoxesThroughTheWholeCycle)
{
    const std::array<LoadPair, 3> pairs{LoadPair{"40", "50"}, LoadPair{"0", "0"}, LoadPair{"25", "40"}};
    std::string live;
    std::string total;
    ScriptedUser user;
    std::vector<LoadPair> seen;
    for (int press = 0; press < 4; ++press) {
        EXPECT_EQ(StepLoadPair(pairs, live, total, user), Outcome::Done);
        seen.push_back({live, total});
    }
    EXPECT_THAT(seen,
                ElementsAre(LoadPair{"40", "50"}, LoadPair{"25", "40"}, LoadPair{}, LoadPair{"40", "50"}));
    EXPECT_THAT(user.Told, IsEmpty());
}

TEST(StepLoadPair, RefusesWithoutAPairAndLeavesTheBoxesAlone)
{
    const std::array<LoadPair, 2> zeroes{LoadPair{"0", ""}, LoadPair{"", "0"}};
    for (const std::span<const LoadPair> none :
         {std::span<const LoadPair>{}, std::span<const LoadPair>(zeroes)}) {
        std::string live = "60";
        std::string total = "100";
        ScriptedUser user;
        EXPECT_EQ(StepLoadPair(none, live, total, user), Outcome::Refused);
        EXPECT_THAT(
            user.Told,
            ElementsAre(RefusalOf(
                "There are no load pairs to step through. Please enter them by Options, Set Defaults.")));
        EXPECT_EQ(live, "60");
        EXPECT_EQ(total, "100");
    }
}

TEST(ResultLines, ShowTheRecordInTheBlanksOfTheirScreen)
{
    const SelectionRecord record{"4x  10 DF-L #2", "Fails", ShortDate({2026, 3, 7})};
    EXPECT_EQ(CriteriaResultLine(record),
              " Selection:   4x  10 DF-L #2   -  Status: Fails   -  Date: 3/07/26");
    EXPECT_EQ(WoodResultLine(record), " Selection: 4x  10 DF-L #2  - Status: Fails - Date: 3/07/26");
    EXPECT_EQ(CriteriaResultLine(std::nullopt), "   Selection:  None");
    EXPECT_EQ(CriteriaResultLine(SelectionRecord{"6x  12 DF-L #1", "", "3/07/26"}),
              " Selection:   6x  12 DF-L #1");
    EXPECT_EQ(ShortDate({2000, 11, 30}), "11/30/00");
}

}  // namespace
}  // namespace kordavan
