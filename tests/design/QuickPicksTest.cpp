#include "design/QuickPicks.h"

#include <gmock/gmock.h>

#include <set>
#include <string>

#include "design/DesignBuilder.h"
#include "design/EntryChoices.h"
#include "design/Selection.h"
#include "materials/Species.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::Contains;
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

struct FaceCase {
    std::string_view Name;
    bool Rep;
    QuickPick Pick;
    std::string_view FaceName;
    std::string_view Tip;
    bool IsFaded;
};

class PickFaceTest : public testing::TestWithParam<FaceCase> {};

TEST_P(PickFaceTest, TellsWhatThePickMeans)
{
    const PickFace face = FaceOf(GetParam().Pick, SizeFamily::Listed, GetParam().Rep);
    EXPECT_EQ(face.Name, GetParam().FaceName);
    EXPECT_EQ(face.Tip, GetParam().Tip);
    EXPECT_EQ(face.IsFaded, GetParam().IsFaded);
}

INSTANTIATE_TEST_SUITE_P(
    Cells, PickFaceTest,
    testing::Values(
        FaceCase{"filled",
                 false,
                 {"4x", "DF-L #2", "10", PickState::Filled},
                 "4x 10 DF-L #2",
                 "4x 10 DF-L #2",
                 false},
        FaceCase{"repetitive 4x",
                 true,
                 {"4x", "DF-L #2", "10", PickState::Filled},
                 "4x 10 DF-L #2",
                 "4x 10 DF-L #2",
                 false},
        FaceCase{"repetitive timber",
                 true,
                 {"8x", "HF #1", "8", PickState::Filled},
                 "8x 8 HF #1",
                 SelectionScreenTexts::RepQualify,
                 true},
        FaceCase{"repetitive glulam",
                 true,
                 {"5-1/8x", "GLB 24F-V4 DF/DF", "9", PickState::Filled},
                 "5-1/8x 9 GLB 24F-V4 DF/DF",
                 SelectionScreenTexts::RepQualify,
                 true},
        FaceCase{"under the ladder",
                 false,
                 {"2x", "HF #2", "", PickState::UnderLadder},
                 "2x HF #2",
                 "Empty: the estimated depth is under 3.5 in. A small size can be typed below and tested.",
                 false},
        FaceCase{"past the ladder",
                 false,
                 {"2x", "HF #2", "", PickState::PastLadder},
                 "2x HF #2",
                 "Empty: the estimated depth is past 17.5 in. A size can be typed below and tested.",
                 false},
        FaceCase{"none passes",
                 true,
                 {"10x", "HF #1", "", PickState::NonePasses},
                 "10x HF #1",
                 "Empty: no depth of this breadth passes every check.",
                 true}),
    CaseName);

TEST(QuickPicks, KnowThePickInTheSizeBoxes)
{
    const QuickPick pick{"4x", "DF-L #2", "10", PickState::Filled};
    EXPECT_TRUE(IsEntered(pick, Member("4x", "10", "DF-L #2")));
    EXPECT_FALSE(IsEntered(pick, Member("4x", "12", "DF-L #2")));
    EXPECT_FALSE(IsEntered(pick, Member("6x", "10", "DF-L #2")));
    EXPECT_FALSE(IsEntered(pick, Member("4x", "10", "DF-L #1")));
    EXPECT_FALSE(IsEntered({"", "", "", PickState::NonePasses}, Member("", "", "")));
}

TEST(QuickPicks, TellOnceWhatEveryCellMeets)
{
    Session session = PlainSession();
    session.Problem.INGRADE = false;
    Calculate(session);
    ScriptedUser user;
    for (const QuickPick& pick : StartSelection(session, user)) {
        EXPECT_EQ(pick.DepthText, "") << CellText(pick);
    }
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf("Database search error in calc module")));
}

BeamNumbers BeamOf(SpeciesGroup group)
{
    BeamNumbers beam;
    beam.Group = group;
    return beam;
}

TEST(EntryChoices, AreTheTextsThatTheBoxesTake)
{
    for (const SpeciesGroupRow& group : SpeciesGroups) {
        if (group.Group >= SpeciesGroup::Scl) {
            continue;
        }
        const BeamNumbers beam = BeamOf(group.Group);
        for (const std::string_view breadth : BreadthChoices(beam)) {
            // the fitting species come first
            const std::string_view species = SpeciesChoices(beam, breadth).front();
            for (const std::string_view depth : DepthChoices(beam, breadth)) {
                ScriptedUser user;
                MemberCandidate member;
                EXPECT_EQ(IdentifyMember(Member(breadth, depth, species), group.Group, user, member),
                          Outcome::Done)
                    << group.Text << ": " << breadth << " by " << depth << " " << species;
            }
        }
    }
}

TEST(EntryChoices, OfSpeciesAreAllOfTheGroup)
{
    EXPECT_THAT(SpeciesChoices(BeamOf(SpeciesGroup::SprucePineFir), ""),
                ElementsAre("GLB 16F-V2 HF/HF", "GLB 24F-V4 DF/DF", "SPF South #2", "SPF South #1", "SPF #2",
                            "SPF #1", "GLB 16F-V6 DF/DF", "GLB 24F-V8 DF/DF"));
    EXPECT_THAT(SpeciesChoices(BeamOf(SpeciesGroup::SouthernPine), "6x"),
                ElementsAre("Mixed So. Pine #2", "Mixed So. Pine #1", "So. Pine #2 SR", "So. Pine #1 SR",
                            "So. Pine #2", "So. Pine #1", "GLB 16F-V3 SP/SP", "GLB 24F-V3 SP/SP",
                            "GLB 16F-V5 SP/SP", "GLB 24F-V5 SP/SP", "So. Pine #2 KD 15%",
                            "So. Pine #1 KD 15%", "So. Pine #2 19% MC", "So. Pine #1 19% MC"));
}

TEST(EntryChoices, OfDepthsAreThoseOfEveryBreadthUntilThereIsOne)
{
    const BeamNumbers beam = BeamOf(SpeciesGroup::SouthernPine);
    EXPECT_THAT(DepthChoices(beam, "2x"), ElementsAre("4", "6", "8", "10", "12", "14"));
    EXPECT_THAT(DepthChoices(beam, "12x"), ElementsAre("12", "14", "16"));
    const auto all = DepthChoices(beam, "9x");
    EXPECT_THAT(all, Contains("4"));
    EXPECT_THAT(all, Contains("30-1/4"));
    EXPECT_EQ(std::set(all.begin(), all.end()).size(), all.size());
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
