#include "design/QuickPicks.h"

#include <gmock/gmock.h>

#include <set>
#include <string>

#include "design/DesignBuilder.h"
#include "materials/Species.h"

namespace kordavan {
namespace {

using testing::ElementsAre;

QuickPicks PicksOf(Session& session)
{
    Calculate(session);
    ScriptedUser user;
    QuickPicks picks = FindQuickPicks(session, user);
    EXPECT_TRUE(user.Told.empty());
    return picks;
}

std::string CellText(const QuickPick& cell)
{
    return std::string(cell.BreadthText) + " " + std::string(cell.SpeciesText);
}

TEST(QuickPickCells, ShowEveryBreadthOfTheGroup)
{
    BeamNumbers beam;
    const QuickPicks cells = QuickPickCells(beam);
    EXPECT_EQ(CellText(cells[0]), "2x HF #2");
    EXPECT_EQ(CellText(cells[8]), "8x HF #1");
    EXPECT_EQ(CellText(cells[9]), "2x DF-L #2");
    EXPECT_EQ(CellText(cells[18]), "10x DF-L #1");
    EXPECT_EQ(CellText(cells[19]), "3-1/8x GLB 24F-V4 DF/DF");
    std::set<std::string_view> breadths;
    for (const QuickPick& cell : cells) {
        breadths.insert(cell.BreadthText);
    }
    EXPECT_EQ(breadths.size(), 13U);
}

TEST(QuickPickCells, NameSpeciesThatTheTableHas)
{
    for (const SpeciesGroupRow& group : SpeciesGroups) {
        if (group.Group >= SpeciesGroup::Scl) {
            continue;
        }
        BeamNumbers beam;
        beam.Group = group.Group;
        for (const QuickPick& cell : QuickPickCells(beam)) {
            const auto breadth = FindBreadth(SizeFamily::Listed, cell.BreadthText);
            ASSERT_TRUE(breadth) << CellText(cell);
            EXPECT_NE(FindSpecies(breadth->Key, cell.SpeciesText), nullptr) << CellText(cell);
        }
    }
}

TEST(QuickPickCells, TakeTimberNamesAndBalancedGlulamsOfSouthernPine)
{
    BeamNumbers beam;
    beam.Group = SpeciesGroup::SouthernPine;
    beam.Support = SupportCondition::Overhanging;
    const QuickPicks cells = QuickPickCells(beam);
    EXPECT_EQ(CellText(cells[5]), "6x Mixed So. Pine #2");
    EXPECT_EQ(CellText(cells[14]), "6x So. Pine #2 SR");
    EXPECT_EQ(CellText(cells[18]), "10x So. Pine #1 SR");
    EXPECT_EQ(CellText(cells[22]), "8-1/2x GLB 24F-V5 SP/SP");
}

struct BeamCase {
    std::string_view Name;
    std::string_view Span;
    std::string_view Total;
    std::string_view Live;
    SpeciesGroup Group;
    Edition Code;
};

class QuickPicksTest : public testing::TestWithParam<BeamCase> {};

/// A filled cell against every depth that the test itself accepts for the breadth.
TEST_P(QuickPicksTest, AreTheSmallestDepthsThatPass)
{
    Session session = PlainSession(GetParam().Code);
    session.Problem.Span = GetParam().Span;
    session.Problem.Loads.UNIF = GetParam().Total;
    session.Problem.Loads.LUNIF = GetParam().Live;
    session.Problem.Combo1 = GetParam().Group;
    const QuickPicks picks = PicksOf(session);
    const SizeFamily family =
        GetParam().Group == SpeciesGroup::SouthernPine ? SizeFamily::SouthernPineListed : SizeFamily::Listed;
    int filled = 0;
    for (const QuickPick& cell : picks) {
        ScriptedUser user;
        std::string smallest;
        for (const DepthChoice& depth : DepthsOf(family, *FindBreadth(family, cell.BreadthText))) {
            TestMember(session, Member(cell.BreadthText, depth.Text, cell.SpeciesText), {.QuietTest = true},
                       user);
            if (session.Member.Result.Overall == StatusOk) {
                smallest = depth.Text;
                break;
            }
        }
        if (cell.State == PickState::Filled) {
            EXPECT_EQ(cell.DepthText, smallest) << CellText(cell);
            ++filled;
        } else {
            EXPECT_EQ(cell.DepthText, "") << CellText(cell);
        }
        if (cell.State == PickState::NonePasses) {
            EXPECT_EQ(smallest, "") << CellText(cell);
        }
    }
    EXPECT_GT(filled, 3);
}

INSTANTIATE_TEST_SUITE_P(
    Beams, QuickPicksTest,
    testing::Values(
        BeamCase{"joist load", "12", "100", "60", SpeciesGroup::HemFirDouglasFir, Edition::Nds2018},
        BeamCase{"header", "8", "900", "600", SpeciesGroup::SprucePineFir, Edition::Nds2005},
        BeamCase{"long and heavy", "22", "600", "400", SpeciesGroup::SouthernPine, Edition::Nds2012},
        BeamCase{"shear governs in 1997", "6", "1400", "900", SpeciesGroup::Oak, Edition::Nds1997}),
    [](const auto& test) { return "Row" + std::to_string(test.index); });

TEST(QuickPicks, AreEmptyUnderTheLadderAndPastIt)
{
    Session light = PlainSession();
    light.Problem.Span = "3";
    light.Problem.Loads.UNIF = "10";
    light.Problem.Loads.LUNIF = "6";
    const QuickPicks under = PicksOf(light);
    EXPECT_EQ(under[0].State, PickState::UnderLadder);
    EXPECT_EQ(under[19].DepthText, "9");  // glulams begin with their first depth

    Session heavy = PlainSession();
    heavy.Problem.Span = "26";
    heavy.Problem.Loads.UNIF = "800";
    heavy.Problem.Loads.LUNIF = "500";
    const QuickPicks past = PicksOf(heavy);
    EXPECT_EQ(past[0].State, PickState::PastLadder);
    EXPECT_EQ(past[21].State, PickState::Filled);  // and go on over their own laminations
}

TEST(QuickPicks, LeaveTheMemberTestedBefore)
{
    Session session = PlainSession();
    Calculate(session);
    Tested(session, Member("4x", "14", "HF #1"));
    const float weight = session.Analysis.SelfWeightPlf;
    ScriptedUser user;
    FindQuickPicks(session, user);
    EXPECT_EQ(session.Member.Candidate.DepthText, "14");
    EXPECT_EQ(session.Analysis.SelfWeightPlf, weight);
}

TEST(QuickPicks, OfRepetitiveMembersHaveTimbersAndGlulamsToo)
{
    Session session = PlainSession();
    session.Problem.Rep = true;
    const QuickPicks picks = PicksOf(session);
    EXPECT_EQ(picks[5].State, PickState::Filled);
    EXPECT_EQ(MakeSelectionTexts(session).RepQualify,
              "Glu-lams and 6x's do not qualify for the 'repetitive use' modifier.");
}

TEST(SelectionTexts, ShowTheAppliedLoads)
{
    Session session = PlainSession(Edition::Nds2015);
    session.Problem.Loads.UNIF = "346";
    session.Problem.Loads.LUNIF = "200";
    Calculate(session);
    const SelectionTexts texts = MakeSelectionTexts(session);
    EXPECT_EQ(texts.LabelINGRADE, "Using NDS 2015 Values");
    EXPECT_EQ(texts.MOMENT, "6,228 ft-lbs");  // 346 * 144 / 8
    EXPECT_EQ(texts.Reac1, "Reaction 1 = 2,076");
    EXPECT_THAT(texts.GlulamHeads, ElementsAre("3-1/8x", "5-1/8x", "6-3/4x", "8-3/4x", "10-3/4x"));
    EXPECT_EQ(texts.WoodStatisPanel, "   Selection:  None");
}

}  // namespace
}  // namespace kordavan
