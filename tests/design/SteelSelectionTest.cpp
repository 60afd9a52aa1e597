#include "design/SteelSelection.h"

#include <gmock/gmock.h>

#include "design/EntryAdjustment.h"
#include "design/NewBeam.h"
#include "design/Selection.h"
#include "design/SteelBuilder.h"

namespace kordavan {
namespace {

using testing::IsEmpty;

constexpr std::array<std::string_view, 16> FirstWs{
    "W 6x 9",   "W 8x 10", "W 6x 12", "W 10x 12", "W 6x 15",  "W 8x 13", "W 12x 14", "W 8x 15",
    "W 10x 15", "W 5x 16", "W 6x 16", "W 12x 16", "W 10x 17", "W 8x 18", "W 5x 19",  "W 10x 19"};

Session LightlyLoaded()
{
    return SteelSession(SteelFamily::W, "10", "10", "6");
}

SteelSelection SelectionOf(std::size_t count)
{
    SteelSelection picks;
    for (std::size_t slot = 0; slot < count; ++slot) {
        picks.Slots.push_back({.StlPick = FirstWs[slot],
                               .StlDepLab = {},
                               .StlWidLab = {},
                               .UBLlab = {},
                               .StlSecPerct = {},
                               .StlShearPerct = {}});
    }
    return picks;
}

TEST(SteelPaging, OfNineCandidatesShowsOneOnTheSecondPage)
{
    SteelSelection picks = SelectionOf(9);
    EXPECT_TRUE(HasSecondPage(picks));
    EXPECT_EQ(SlotOnLine(picks, 7)->StlPick, FirstWs[7]);
    EXPECT_EQ(SlotOnLine(picks, 8), nullptr);
    ShowMoreShapes(picks);
    EXPECT_EQ(SlotOnLine(picks, 0)->StlPick, FirstWs[8]);
    for (std::size_t line = 1; line < SteelPageLines; ++line) {
        EXPECT_EQ(SlotOnLine(picks, line), nullptr);
    }
    ShowFirstShapes(picks);
    EXPECT_EQ(SlotOnLine(picks, 0)->StlPick, FirstWs[0]);
}

TEST(SteelPaging, OfEightCandidatesHasNoSecondPage)
{
    SteelSelection picks = SelectionOf(8);
    EXPECT_FALSE(HasSecondPage(picks));
    ShowMoreShapes(picks);
    EXPECT_FALSE(picks.SecondPageShown);
}

TEST(SteelPick, TakesTheLineOfThePageInView)
{
    Session session = LightlyLoaded();
    SteelSelection& picks = OpenedSelection(session);
    TakeSteelPick(session, 2);
    EXPECT_EQ(session.Entry.ShapeName, FirstWs[2]);
    ShowMoreShapes(picks);
    TakeSteelPick(session, 2);
    EXPECT_EQ(session.Entry.ShapeName, FirstWs[10]);
    TakeSteelPick(session, 8);
    EXPECT_EQ(session.Entry.ShapeName, FirstWs[10]);
}

TEST(SteelSteps, GoThroughAllCandidatesAndBack)
{
    Session session = LightlyLoaded();
    OpenedSelection(session);
    TakeSteelPick(session, 0);
    ScriptedUser user;
    ASSERT_EQ(TestEnteredShape(session, user), SteelTestEnd::Done);
    EXPECT_FALSE(CanStepShape(session, SteelStep::Back));
    for (std::size_t slot = 1; slot < SteelSlotCount; ++slot) {
        EXPECT_TRUE(CanStepShape(session, SteelStep::Forward));
        EXPECT_EQ(StepShape(session, SteelStep::Forward, user), SteelTestEnd::Done);
        EXPECT_EQ(session.Entry.ShapeName, FirstWs[slot]);
        EXPECT_EQ(session.Steel.ShapeName, FirstWs[slot]);
    }
    EXPECT_FALSE(CanStepShape(session, SteelStep::Forward));
    EXPECT_EQ(StepShape(session, SteelStep::Forward, user), SteelTestEnd::Refused);
    EXPECT_EQ(session.Steel.ShapeName, FirstWs.back());
    for (std::size_t slot = SteelSlotCount - 1; slot > 0; --slot) {
        EXPECT_EQ(StepShape(session, SteelStep::Back, user), SteelTestEnd::Done);
        EXPECT_EQ(session.Steel.ShapeName, FirstWs[slot - 1]);
    }
    EXPECT_FALSE(CanStepShape(session, SteelStep::Back));
    EXPECT_THAT(user.Told, IsEmpty());
}

TEST(SteelSteps, StopAtTheLastOfFewCandidates)
{
    // M = 1000 * 900 / 8 = 112500 ft-lb asks for 56.8 in3, which only the heavier S shapes have
    Session session = SteelSession(SteelFamily::S, "30", "1000", "600");
    const std::vector<SteelSlot>& slots = OpenedSelection(session).Slots;
    ASSERT_GT(slots.size(), 1U);
    ASSERT_LT(slots.size(), SteelSlotCount);
    TestedShape(session, slots.back().StlPick);
    EXPECT_TRUE(CanStepShape(session, SteelStep::Back));
    EXPECT_FALSE(CanStepShape(session, SteelStep::Forward));
}

TEST(SteelSteps, OfATypedSizeBesideTheCandidatesLeadNowhere)
{
    Session session = LightlyLoaded();
    OpenedSelection(session);
    session.Entry.ShapeName = "W 14x 38";
    ScriptedUser user;
    EXPECT_EQ(TestEnteredShape(session, user), SteelTestEnd::Done);
    EXPECT_FALSE(CanStepShape(session, SteelStep::Back));
    EXPECT_FALSE(CanStepShape(session, SteelStep::Forward));
    EXPECT_EQ(StepShape(session, SteelStep::Back, user), SteelTestEnd::Refused);
    EXPECT_EQ(session.Entry.ShapeName, "W 14x 38");
}

TEST(SteelSteps, FindACandidateTypedWithoutTheBlankOfItsName)
{
    Session session = SteelSession(SteelFamily::C, "10", "600", "400");
    OpenedSelection(session);
    session.Entry.ShapeName = "C 6x 13";
    ScriptedUser user;
    ASSERT_EQ(TestEnteredShape(session, user), SteelTestEnd::Done);
    EXPECT_TRUE(CanStepShape(session, SteelStep::Forward));
}

TEST(SteelSelection, ReopenedOnTheSameCriteriaKeepsPageAndSize)
{
    Session session = LightlyLoaded();
    ShowMoreShapes(OpenedSelection(session));
    TakeSteelPick(session, 3);
    RestoreEntries(session);
    const SteelSelection& picks = OpenedSelection(session);
    EXPECT_TRUE(picks.SecondPageShown);
    EXPECT_EQ(picks.Slots.size(), SteelSlotCount);
    EXPECT_EQ(session.Entry.ShapeName, FirstWs[11]);
}

TEST(SteelSelection, OfNewCriteriaIsFoundAnew)
{
    Session session = LightlyLoaded();
    ShowMoreShapes(OpenedSelection(session));
    TakeSteelPick(session, 3);
    RestoreEntries(session);
    session.Problem.ksi50 = true;
    const SteelSelection& picks = OpenedSelection(session);
    EXPECT_FALSE(picks.SecondPageShown);
    EXPECT_EQ(picks.Criteria.Allowable.Fy, 50000);
    EXPECT_EQ(picks.Slots.at(0).UBLlab, "Lc = 3.5");
    EXPECT_EQ(session.Entry.ShapeName, "");
}

TEST(SteelSelection, IsDiscardedWithTheBeam)
{
    Session session = LightlyLoaded();
    OpenedSelection(session);
    TakeSteelPick(session, 0);
    StartNewBeam(session);
    EXPECT_THAT(session.SteelPicks.Slots, IsEmpty());
    EXPECT_EQ(session.Entry.ShapeName, "");
}

TEST(SteelSelection, PutsTheShapeOnRecord)
{
    Session session = SteelSession(SteelFamily::W, "20", "1162", "800");
    TestedShape(session, "W 14x 38");
    SelectMember(session, {.Year = 2026, .Month = 3, .Day = 7});
    EXPECT_EQ(session.Selection->MemberChoice, "W 14x 38");
    EXPECT_EQ(session.Selection->MemberStatus, "OK");
    TestedShape(session, "W 6x 9");
    SelectMember(session, {.Year = 2026, .Month = 3, .Day = 7});
    EXPECT_EQ(session.Selection->MemberChoice, "W 6x 9");
    EXPECT_EQ(session.Selection->MemberStatus, "Fails");
}

}  // namespace
}  // namespace kordavan
