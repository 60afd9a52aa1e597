#include "design/Selection.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "design/DesignBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view RepetitiveNote =
    "Please note:\nGLB and 6x sizes do not qualify for Repetitive Use Values.  Please either 'unselect' the "
    "Repetitive Use check box on the Criteria Form or select a 4x or 2x combination beam breadth.";

Session AnalysedSession(SpeciesGroup group = SpeciesGroup::HemFirDouglasFir)
{
    Session session = PlainSession();
    session.Problem.Combo1 = group;
    Calculate(session);
    return session;
}

void Enter(Session& session, std::string_view breadth, std::string_view depth, std::string_view species)
{
    session.Entry.BreadthText = breadth;
    session.Entry.DepthText = depth;
    session.Entry.SpeciesText = species;
}

/// Enters a member and tests it; it must be accepted.
void TestAs(Session& session, std::string_view breadth, std::string_view depth, std::string_view species)
{
    Enter(session, breadth, depth, species);
    ScriptedUser user;
    ASSERT_EQ(TestEntered(session, user), Outcome::Done) << (user.Told.empty() ? "" : user.Told.back().Text);
}

/// What the size boxes hold, or what was tested last.
template <typename Sized>
std::string SizeOf(const Sized& member)
{
    return member.BreadthText + " by " + member.DepthText + " " + member.SpeciesText;
}

TEST(StartSelection, EmptiesTheSizeBoxesAndKeepsTheValuesOfTheUsersOwn)
{
    Session session = AnalysedSession();
    Enter(session, "4x", "10", "DF-L #2");
    session.Entry.Custom.Fb = "1500";
    ScriptedUser user;
    const QuickPicks picks = StartSelection(session, user);
    EXPECT_EQ(session.Entry.BreadthText + session.Entry.DepthText + session.Entry.SpeciesText, "");
    EXPECT_EQ(session.Entry.Custom.Fb, "1500");
    EXPECT_TRUE(std::any_of(picks.begin(), picks.end(),
                            [](const QuickPick& pick) { return pick.State == PickState::Filled; }));
    EXPECT_THAT(user.Told, IsEmpty());
}

TEST(TakePick, FillsTheBoxesAndTestsNothing)
{
    Session session = AnalysedSession();
    TakePick(session, {.BreadthText = "6x", .SpeciesText = "DF-L #1", .DepthText = "8"});
    EXPECT_EQ(SizeOf(session.Entry), "6x by 8 DF-L #1");
    EXPECT_EQ(session.Member.Candidate.BreadthText, "");
}

TEST(TakePick, OfAnEmptyCellChangesNothing)
{
    Session session = AnalysedSession();
    Enter(session, "4x", "10", "DF-L #2");
    TakePick(
        session,
        {.BreadthText = "6x", .SpeciesText = "DF-L #1", .DepthText = "", .State = PickState::PastLadder});
    EXPECT_EQ(SizeOf(session.Entry), "4x by 10 DF-L #2");
}

TEST(TestEntered, LeavesTheMemberTestedBeforeWhenItRefuses)
{
    Session session = AnalysedSession();
    TestAs(session, "4x", "10", "DF-L #2");
    const float weight = session.Analysis.SelfWeightPlf;
    Enter(session, "4x", "11", "DF-L #2");
    ScriptedUser user;
    EXPECT_EQ(TestEntered(session, user), Outcome::Refused);
    EXPECT_EQ(user.Told.back().Focus, "Text2");
    EXPECT_EQ(SizeOf(session.Member.Candidate), "4x by 10 DF-L #2");
    EXPECT_EQ(session.Member.Section.A, 3.5F * 9.25F);
    EXPECT_EQ(session.Analysis.SelfWeightPlf, weight);
    EXPECT_EQ(SizeOf(session.Entry), "4x by 11 DF-L #2");  // for the person to correct
}

struct WalkCase {
    std::string_view Name;
    SpeciesGroup Group;
    std::string_view Species;
    SizeStep Up;
    SizeStep Down;
    std::vector<std::string> Sizes;  // "breadth by depth", from end to end
};

class StepWalkTest : public testing::TestWithParam<WalkCase> {
protected:
    void StartAt(const std::string& size)
    {
        const std::size_t by = size.find(" by ");
        TestAs(session, size.substr(0, by), size.substr(by + 4), GetParam().Species);
    }

    template <typename Iterator>
    void WalkThrough(SizeStep step, Iterator size, Iterator end)
    {
        StartAt(*size);
        ScriptedUser user;
        for (++size; size != end; ++size) {
            EXPECT_EQ(StepMember(session, step, user), Outcome::Done) << "to " << *size;
            const std::string expected = *size + " " + std::string(GetParam().Species);
            EXPECT_EQ(SizeOf(session.Entry), expected);
            EXPECT_EQ(SizeOf(session.Member.Candidate), expected);
        }
        const std::string last = SizeOf(session.Entry);
        EXPECT_FALSE(NextEntry(session, step)) << last;
        EXPECT_EQ(StepMember(session, step, user), Outcome::Refused);
        EXPECT_EQ(SizeOf(session.Entry), last);
        EXPECT_EQ(SizeOf(session.Member.Candidate), last);
        EXPECT_THAT(user.Told, IsEmpty());  // the button is off, there is nothing to say
    }

    Session session = AnalysedSession(GetParam().Group);
};

TEST_P(StepWalkTest, GoesUpToTheLastSize)
{
    WalkThrough(GetParam().Up, GetParam().Sizes.begin(), GetParam().Sizes.end());
}

TEST_P(StepWalkTest, GoesDownToTheFirstSize)
{
    WalkThrough(GetParam().Down, GetParam().Sizes.rbegin(), GetParam().Sizes.rend());
}

constexpr auto Fir = SpeciesGroup::HemFirDouglasFir;
constexpr auto Pine = SpeciesGroup::SouthernPine;
constexpr std::string_view FirGlulam = "GLB 24F-V4 DF/DF";
constexpr std::string_view PineGlulam = "GLB 24F-V3 SP/SP";

// Every listed breadth has the depth of 14 in.
INSTANTIATE_TEST_SUITE_P(
    Breadths, StepWalkTest,
    testing::Values(
        WalkCase{"sawn",
                 Fir,
                 "DF-L #2",
                 SizeStep::BreadthUp,
                 SizeStep::BreadthDown,
                 {"2x by 14", "(2) 2x by 14", "4x by 14", "(3) 2x by 14", "(4) 2x by 14", "6x by 14",
                  "8x by 14", "10x by 14", "12x by 14", "14x by 14"}},
        WalkCase{"glulam",
                 Fir,
                 FirGlulam,
                 SizeStep::BreadthUp,
                 SizeStep::BreadthDown,
                 {"3-1/8x by 12", "5-1/8x by 12", "6-3/4x by 12", "8-3/4x by 12", "10-3/4x by 12"}},
        WalkCase{"glulam of Southern Pine",
                 Pine,
                 PineGlulam,
                 SizeStep::BreadthUp,
                 SizeStep::BreadthDown,
                 {"3-1/8x by 11", "5-1/8x by 11", "6-3/4x by 11", "8-1/2x by 11", "10-1/2x by 11"}}),
    CaseName);

// Southern Pine laminations rise by 1-3/8 in. from 9-5/8 in., others by 1-1/2 in. from 9 in.
INSTANTIATE_TEST_SUITE_P(
    Depths, StepWalkTest,
    testing::Values(
        WalkCase{
            "plies",
            Fir,
            "HF #1",
            SizeStep::DepthUp,
            SizeStep::DepthDown,
            {"(2) 2x by 4", "(2) 2x by 6", "(2) 2x by 8", "(2) 2x by 10", "(2) 2x by 12", "(2) 2x by 14"}},
        WalkCase{"4x",
                 Fir,
                 "DF-L #2",
                 SizeStep::DepthUp,
                 SizeStep::DepthDown,
                 {"4x by 4", "4x by 6", "4x by 8", "4x by 10", "4x by 12", "4x by 14", "4x by 16"}},
        WalkCase{"timber from its breadth",
                 Fir,
                 "DF-L #1",
                 SizeStep::DepthUp,
                 SizeStep::DepthDown,
                 {"10x by 10", "10x by 12", "10x by 14", "10x by 16"}},
        WalkCase{"Southern Pine laminations",
                 Pine,
                 PineGlulam,
                 SizeStep::DepthUp,
                 SizeStep::DepthDown,
                 {"5-1/8x by 9-5/8", "5-1/8x by 11", "5-1/8x by 12-3/8", "5-1/8x by 13-3/4",
                  "5-1/8x by 15-1/8", "5-1/8x by 16-1/2", "5-1/8x by 17-7/8", "5-1/8x by 19-1/4",
                  "5-1/8x by 20-5/8", "5-1/8x by 22", "5-1/8x by 23-3/8", "5-1/8x by 24-3/4",
                  "5-1/8x by 26-1/8", "5-1/8x by 27-1/2", "5-1/8x by 28-7/8", "5-1/8x by 30-1/4"}}),
    CaseName);

TEST(StepMember, WritesTheNameOfSouthernPineTimbers)
{
    Session session = AnalysedSession(Pine);
    TestAs(session, "(4) 2x", "10", "So. Pine #2");
    ScriptedUser user;
    EXPECT_EQ(StepMember(session, SizeStep::BreadthUp, user), Outcome::Done);
    EXPECT_EQ(SizeOf(session.Entry), "6x by 10 So. Pine #2 SR");
    EXPECT_EQ(SizeOf(session.Member.Candidate), "6x by 10 So. Pine #2 SR");
}

TEST(StepMember, KeepsTheSizeInHandWhenTheNextIsRefused)
{
    Session session = PlainSession();
    session.Problem.Rep = true;
    Calculate(session);
    TestAs(session, "(4) 2x", "10", "DF-L #2");
    ScriptedUser user;
    EXPECT_EQ(StepMember(session, SizeStep::BreadthUp, user), Outcome::Refused);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(RepetitiveNote)));
    EXPECT_EQ(SizeOf(session.Entry), "(4) 2x by 10 DF-L #2");
    EXPECT_EQ(SizeOf(session.Member.Candidate), "(4) 2x by 10 DF-L #2");
}

struct ReportStepCase {
    std::string_view Name;
    SizeStep Step;
};

class StepFromReportTest : public testing::TestWithParam<ReportStepCase> {};

// The report can be opened again with other texts in the boxes: a pick taken and not tested.
TEST_P(StepFromReportTest, StartsFromTheMemberTestedWhateverTheBoxesHold)
{
    Session session = AnalysedSession();
    TestAs(session, "4x", "10", "DF-L #2");
    const auto expected = NextEntry(session, GetParam().Step);
    TakePick(session, {.BreadthText = "6x", .SpeciesText = "HF #1", .DepthText = "14"});
    const auto next = NextEntry(session, GetParam().Step);
    ASSERT_TRUE(expected && next);
    EXPECT_EQ(SizeOf(*next), SizeOf(*expected));
}

INSTANTIATE_TEST_SUITE_P(Steps, StepFromReportTest,
                         testing::Values(ReportStepCase{"depth up", SizeStep::DepthUp},
                                         ReportStepCase{"depth down", SizeStep::DepthDown},
                                         ReportStepCase{"breadth up", SizeStep::BreadthUp},
                                         ReportStepCase{"breadth down", SizeStep::BreadthDown}),
                         CaseName);

struct ButtonCase {
    std::string_view Breadth;
    std::string_view Depth;
    std::string_view Off;  // the stepping buttons that are off
};

std::string ButtonsOff(const Session& session)
{
    const std::array<std::pair<SizeStep, std::string_view>, 4> buttons{{{SizeStep::DepthDown, "D-"},
                                                                        {SizeStep::DepthUp, "D+"},
                                                                        {SizeStep::BreadthDown, "B-"},
                                                                        {SizeStep::BreadthUp, "B+"}}};
    std::string off;
    for (const auto& [step, caption] : buttons) {
        if (!NextEntry(session, step)) {
            off += off.empty() ? "" : " ";
            off += caption;
        }
    }
    return off;
}

class SawnButtonsTest : public testing::TestWithParam<ButtonCase> {};

TEST_P(SawnButtonsTest, AreOffAtTheEnds)
{
    Session session = AnalysedSession();
    TestAs(session, GetParam().Breadth, GetParam().Depth, "DF-L #2");
    EXPECT_EQ(ButtonsOff(session), GetParam().Off) << GetParam().Breadth << " by " << GetParam().Depth;
}

INSTANTIATE_TEST_SUITE_P(Ends, SawnButtonsTest,
                         testing::Values(ButtonCase{"4x", "10", ""}, ButtonCase{"2x", "10", "B-"},
                                         ButtonCase{"2x", "4", "D- B-"}, ButtonCase{"2x", "14", "D+ B-"},
                                         ButtonCase{"3x", "10", "B-"}, ButtonCase{"4x", "4", "D- B+"},
                                         ButtonCase{"(3) 2x", "4", "D-"}, ButtonCase{"(4) 2x", "4", "D- B+"},
                                         ButtonCase{"4x", "16", "D+ B-"}, ButtonCase{"6x", "16", "D+ B-"},
                                         ButtonCase{"8x", "16", "D+"}, ButtonCase{"6x", "6", "D-"},
                                         ButtonCase{"8x", "8", "D-"}, ButtonCase{"10x", "10", "D-"},
                                         ButtonCase{"12x", "12", "D-"}, ButtonCase{"12x", "14", ""},
                                         ButtonCase{"14x", "14", "D- B+"}, ButtonCase{"14x", "16", "D+ B+"}));

struct GlulamButtonCase {
    SpeciesGroup Group;
    std::string_view Species;
    ButtonCase Size;
};

class GlulamButtonsTest : public testing::TestWithParam<GlulamButtonCase> {};

TEST_P(GlulamButtonsTest, AreOffAtTheEnds)
{
    const ButtonCase& size = GetParam().Size;
    Session session = AnalysedSession(GetParam().Group);
    TestAs(session, size.Breadth, size.Depth, GetParam().Species);
    EXPECT_EQ(ButtonsOff(session), size.Off) << size.Breadth << " by " << size.Depth;
}

INSTANTIATE_TEST_SUITE_P(Ends, GlulamButtonsTest,
                         testing::Values(GlulamButtonCase{Fir, FirGlulam, {"5-1/8x", "12", ""}},
                                         GlulamButtonCase{Fir, FirGlulam, {"3-1/8x", "9", "D- B-"}},
                                         GlulamButtonCase{Fir, FirGlulam, {"10-3/4x", "12", "B+"}},
                                         GlulamButtonCase{Fir, FirGlulam, {"10-3/4x", "54", "D+ B+"}},
                                         GlulamButtonCase{Pine, PineGlulam, {"3-1/8x", "9-5/8", "D- B-"}},
                                         GlulamButtonCase{Pine, PineGlulam, {"10-1/2x", "11", "B+"}},
                                         GlulamButtonCase{Pine, PineGlulam, {"8-1/2x", "30-1/4", "D+"}}));

class PicksAsEnteredTest : public testing::TestWithParam<SpeciesGroup> {};

TEST_P(PicksAsEnteredTest, PassAndTheirNextSmallerDepthFails)
{
    Session session = PlainSession();
    session.Problem.Combo1 = GetParam();
    session.Problem.Loads.UNIF = "240";
    session.Problem.Loads.LUNIF = "160";
    Calculate(session);
    ScriptedUser user;
    int filled = 0;
    for (const QuickPick& pick : StartSelection(session, user)) {
        if (pick.State != PickState::Filled) {
            continue;
        }
        ++filled;
        TakePick(session, pick);
        EXPECT_EQ(TestEntered(session, user), Outcome::Done);
        EXPECT_EQ(session.Member.Result.Overall, StatusOk) << SizeOf(session.Entry);
        if (NextEntry(session, SizeStep::DepthDown)) {
            EXPECT_EQ(StepMember(session, SizeStep::DepthDown, user), Outcome::Done);
            EXPECT_EQ(session.Member.Result.Overall, StatusFail) << SizeOf(session.Entry);
        }
    }
    EXPECT_GE(filled, 12);
    EXPECT_THAT(user.Told, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Groups, PicksAsEnteredTest,
                         testing::Values(Fir, Pine, SpeciesGroup::CedarWesternWoods,
                                         SpeciesGroup::EasternSpecies, SpeciesGroup::DouglasFirSouthNorth,
                                         SpeciesGroup::SprucePineFir, SpeciesGroup::Oak));

TEST(SelectMember, PutsAMemberThatPassesOnRecord)
{
    Session session = AnalysedSession();
    TestAs(session, "4x", "10", "DF-L #2");
    SelectMember(session, {.Year = 2026, .Month = 3, .Day = 7});
    ASSERT_TRUE(session.Selection);
    EXPECT_EQ(session.Selection->MemberChoice, "4x  10 DF-L #2");
    EXPECT_EQ(session.Selection->MemberStatus, "OK");
    EXPECT_EQ(session.Selection->RecordDate, "3/07/26");
}

TEST(SelectMember, PutsAMemberThatFailsInPlaceOfTheLast)
{
    // M = 100 * 144 / 8 = 1800 ft-lb on S = 1.5 * 3.5^2 / 6 = 3.06 in3: 7053 psi
    Session session = AnalysedSession();
    session.Selection = SelectionRecord{"4x  10 DF-L #2", "OK", "3/07/26"};
    TestAs(session, "2x", "4", "HF #2");
    SelectMember(session, {.Year = 2009, .Month = 11, .Day = 30});
    EXPECT_EQ(session.Selection->MemberChoice, "2x  4 HF #2");
    EXPECT_EQ(session.Selection->MemberStatus, "Fails");
    EXPECT_EQ(session.Selection->RecordDate, "11/30/09");
}

TEST(SelectMember, GivesNoStatusToAMemberThatMustBeFreeOfSplits)
{
    // V = 1700 * 4 / 2 = 3400 lb on 3.5 x 11.25 in.: 1.5 V / A = 130 psi, above 95 psi and below 2 * 90 psi
    Session session = PlainSession(Edition::Nds1997);
    session.Problem.Span = "4";
    session.Problem.Loads.UNIF = "1700";
    session.Problem.Loads.LUNIF = "1000";
    Calculate(session);
    TestAs(session, "4x", "12", "DF-L #2");
    SelectMember(session, {.Year = 2026, .Month = 12, .Day = 1});
    EXPECT_EQ(session.Selection->MemberChoice, "4x  12 DF-L #2");
    EXPECT_EQ(session.Selection->MemberStatus, "");
    EXPECT_EQ(session.Selection->RecordDate, "12/01/26");
}

}  // namespace
}  // namespace kordavan
