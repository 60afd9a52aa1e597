#include "design/CriteriaScreen.h"

#include <gmock/gmock.h>

#include <string>

#include "design/DesignBuilder.h"
#include "design/EntryAdjustment.h"
#include "design/LoadTools.h"
#include "design/Unbalance.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

struct SupportCase {
    std::string_view Name;
    SupportCondition Support;
    bool ThreeSpan;
    LoadTables Tables;
    std::string_view UBLlabel;
    bool HasUnbracedLength;
    bool HasOverhang;
    std::string_view PLFspin;
    std::string_view EqualReactions;
};

class SupportScreenTest : public testing::TestWithParam<SupportCase> {};

TEST_P(SupportScreenTest, ShowsWhatTheConditionHas)
{
    const SupportCase& c = GetParam();
    Session session = PlainSession();
    session.Problem.Support = c.Support;
    session.Problem.ThreeSpan = c.ThreeSpan;
    const CriteriaScreen screen = DescribeCriteriaScreen(session);
    EXPECT_EQ(screen.Tables, c.Tables);
    EXPECT_EQ(screen.UBLlabel, c.UBLlabel);
    EXPECT_EQ(screen.HasUnbracedLength, c.HasUnbracedLength);
    EXPECT_EQ(screen.HasOverhang, c.HasOverhang);
    EXPECT_EQ(screen.PLFspin, c.PLFspin);
    EXPECT_EQ(screen.EqualReactions, c.EqualReactions);
}

constexpr std::string_view Open = "Unbraced length in ft";
constexpr std::string_view Braced = "Assumed fully braced";

// By symmetry R1 = R3 of two equal spans; of three R1 = R4 and R2 = R3.
INSTANTIATE_TEST_SUITE_P(
    Conditions, SupportScreenTest,
    testing::Values(SupportCase{"simple span", SupportCondition::SimpleSpan, false,
                                LoadTables::PointAndPartial, Open, true, false, "PLF", ""},
                    SupportCase{"simple span after three", SupportCondition::SimpleSpan, true,
                                LoadTables::PointAndPartial, Open, true, false, "PLF", ""},
                    SupportCase{"overhang", SupportCondition::Overhanging, false, LoadTables::PointAndPartial,
                                Open, true, true, "PLF", ""},
                    SupportCase{"hip", SupportCondition::HipValley, false, LoadTables::HipValley, Open, true,
                                false, "ETL", ""},
                    SupportCase{"two spans", SupportCondition::MultipleSpans, false,
                                LoadTables::MultipleSpans, Braced, false, false, "PLF", "Note: R1 = R3"},
                    SupportCase{"three spans", SupportCondition::MultipleSpans, true,
                                LoadTables::MultipleSpans, Braced, false, false, "PLF",
                                "Note: R1 = R4, R2 = R3"}),
    CaseName);

struct TitleCase {
    std::string_view Name;
    Edition Code;
    bool InGrade;
    SpeciesGroup Group;
    std::string_view Title;
};

class TitleTest : public testing::TestWithParam<TitleCase> {};

TEST_P(TitleTest, NamesTheEditionOnlyWhereItCounts)
{
    Session session = PlainSession(GetParam().Code);
    session.Problem.INGRADE = GetParam().InGrade;
    session.Problem.Combo1 = GetParam().Group;
    EXPECT_EQ(DescribeCriteriaScreen(session).Title, GetParam().Title);
}

constexpr std::string_view PlainTitle = " Kordavan Criteria Form 1";

INSTANTIATE_TEST_SUITE_P(
    Titles, TitleTest,
    testing::Values(TitleCase{"newest", Edition::Nds2018, true, SpeciesGroup::HemFirDouglasFir,
                              " Kordavan Criteria Form 1  NDS 2018"},
                    TitleCase{"oldest", Edition::Nds1997, true, SpeciesGroup::Oak,
                              " Kordavan Criteria Form 1  NDS 1997"},
                    TitleCase{"custom", Edition::Nds2005, true, SpeciesGroup::Custom,
                              " Kordavan Criteria Form 1  NDS 2005"},
                    TitleCase{"composite", Edition::Nds2001, true, SpeciesGroup::Scl,
                              " Kordavan Criteria Form 1  NDS 2001"},
                    TitleCase{"steel", Edition::Nds2018, true, SpeciesGroup::Steel, PlainTitle},
                    TitleCase{"switch off", Edition::Nds2018, false, SpeciesGroup::Oak, PlainTitle},
                    TitleCase{"no edition", Edition::None, true, SpeciesGroup::Oak, PlainTitle}),
    CaseName);

TEST(CriteriaScreen, ShowsTheSelectionOnRecord)
{
    Session session = PlainSession();
    EXPECT_EQ(DescribeCriteriaScreen(session).SavePanel, "   Selection:  None");
    session.Selection = SelectionRecord{"4x  10 DF-L #2", "OK", "5/01/24"};
    EXPECT_EQ(DescribeCriteriaScreen(session).SavePanel,
              " Selection:   4x  10 DF-L #2   -  Status: OK   -  Date: 5/01/24");
}

auto ButtonIs(std::string_view caption, bool isPressed, bool isEnabled)
{
    using testing::Field;
    return testing::AllOf(Field("Caption", &UnbalanceButton::Caption, caption),
                          Field("IsPressed", &UnbalanceButton::IsPressed, isPressed),
                          Field("IsEnabled", &UnbalanceButton::IsEnabled, isEnabled));
}

Session OverhangSession()
{
    Session session = PlainSession();
    session.Problem.Support = SupportCondition::Overhanging;
    SetPoint(session.Problem, 4, "500", "3", "300");
    return session;
}

TEST(UnbalanceButtons, OfferBothPartsOfABalancedBeam)
{
    const CriteriaScreen screen = DescribeCriteriaScreen(OverhangSession());
    EXPECT_THAT(screen.UBSpan, ButtonIs("Unbalance Span", false, true));
    EXPECT_THAT(screen.UBOH, ButtonIs("Unbalance OH", false, true));
}

TEST(UnbalanceButtons, OfferOnlyToRestoreTheOverhangWhileItsLiveLoadsAreOut)
{
    Session session = OverhangSession();
    ScriptedUser user;
    ToggleOverhangLiveLoads(session, user);
    const CriteriaScreen out = DescribeCriteriaScreen(session);
    EXPECT_THAT(out.UBOH, ButtonIs("Restore OH LL", true, true));
    EXPECT_THAT(out.UBSpan, ButtonIs("Unbalance Span", false, false));
    ToggleOverhangLiveLoads(session, user);
    const CriteriaScreen back = DescribeCriteriaScreen(session);
    EXPECT_THAT(back.UBOH, ButtonIs("Unbalance OH", false, true));
    EXPECT_THAT(back.UBSpan, ButtonIs("Unbalance Span", false, true));
}

TEST(UnbalanceButtons, OfferOnlyToRestoreTheSpanWhileItsLiveLoadsAreOut)
{
    Session session = OverhangSession();
    ScriptedUser user;
    ToggleSpanLiveLoads(session, user);
    const CriteriaScreen out = DescribeCriteriaScreen(session);
    EXPECT_THAT(out.UBSpan, ButtonIs("Restore Span LL", true, true));
    EXPECT_THAT(out.UBOH, ButtonIs("Unbalance OH", false, false));
}

/// A hip of two quarters of 10 by 10 ft. The rafter pitch of 9 in 12 makes the slope factor 1.25.
Session HipSession()
{
    Session session;
    BeamProblem& problem = session.Problem;
    problem.Support = SupportCondition::HipValley;
    problem.Span = "14.14";
    problem.Pitchtext = "9";
    problem.Loads.IncTL = "40";
    problem.Loads.IncLL = "25";
    problem.Loads.IncUnifTL = "20";
    problem.Loads.IncUnifLL = "12";
    problem.Loads.Trib1 = "10";
    problem.Loads.Trib2 = "10";
    problem.Loads.Areas = {true, true, false, false};
    return session;
}

Session CalculatedHip(bool withSlope)
{
    Session session = HipSession();
    session.Problem.Roofbutton = withSlope;
    ScriptedUser user;
    EXPECT_EQ(CalculateHipValley(session, user), Outcome::Done);
    EXPECT_NE(session.Problem.Loads.UNIF, "");
    return session;
}

Session GrownHip()
{
    Session session = CalculatedHip(true);
    EXPECT_EQ(session.Problem.Loads.IncTL, "43.75");     // 25 + 15 * 1.25
    EXPECT_EQ(session.Problem.Loads.IncUnifTL, "22.0");  // 12 + 8 * 1.25
    return session;
}

TEST(HipScreen, WantsTheEquivalentLoadBeforeAnythingElse)
{
    const CriteriaScreen before = DescribeCriteriaScreen(HipSession());
    EXPECT_TRUE(before.CanCalculateHipLoad);
    EXPECT_TRUE(before.MustCalculateHipLoad);
    const CriteriaScreen after = DescribeCriteriaScreen(CalculatedHip(false));
    EXPECT_TRUE(after.CanCalculateHipLoad);
    EXPECT_FALSE(after.MustCalculateHipLoad);
}

TEST(HipScreen, GrowsNoLoadTwice)
{
    const CriteriaScreen screen = DescribeCriteriaScreen(GrownHip());
    EXPECT_FALSE(screen.CanCalculateHipLoad);
    EXPECT_FALSE(screen.MustCalculateHipLoad);
}

TEST(HipScreen, MayCalculateAgainOnReturnFromTheDesign)
{
    Session session = GrownHip();
    Calculate(session);
    RestoreEntries(session);
    EXPECT_EQ(session.Problem.Loads.IncTL, "40");
    const CriteriaScreen screen = DescribeCriteriaScreen(session);
    EXPECT_TRUE(screen.CanCalculateHipLoad);
    EXPECT_FALSE(screen.MustCalculateHipLoad);
}

TEST(HipScreen, CalculatesNothingForOtherBeams)
{
    for (const SupportCondition support :
         {SupportCondition::SimpleSpan, SupportCondition::Overhanging, SupportCondition::MultipleSpans}) {
        Session session;
        session.Problem.Support = support;
        const CriteriaScreen screen = DescribeCriteriaScreen(session);
        EXPECT_FALSE(screen.CanCalculateHipLoad);
        EXPECT_FALSE(screen.MustCalculateHipLoad);
    }
}

TEST(EntryEdited, WithdrawsTheSelectionWhateverTheBox)
{
    for (const std::string_view box : {"Descrip", "Dur", "PT[2]", "Wet"}) {
        Session session = PlainSession();
        session.Selection = SelectionRecord{"4x  10 DF-L #2", "OK", "5/01/24"};
        EntryEdited(session, box);
        EXPECT_FALSE(session.Selection) << box;
        EXPECT_EQ(session.Problem.Loads.UNIF, "100") << box;
    }
}

TEST(EntryEdited, KeepsTheUniformLoadOfOtherBeams)
{
    Session session = PlainSession();
    EntryEdited(session, "Span");
    EntryEdited(session, "Pitchtext");
    EXPECT_EQ(session.Problem.Loads.UNIF, "100");
    EXPECT_EQ(session.Problem.Loads.LUNIF, "60");
}

TEST(EntryEdited, ChoosesNoSpacingWithoutRepetitiveUse)
{
    Session session = PlainSession();
    session.Problem.Rep = true;
    session.Problem.Spacing = RepetitiveSpacing::Ctr16;
    EntryEdited(session, "Rep");
    EXPECT_EQ(session.Problem.Spacing, RepetitiveSpacing::Ctr16);
    session.Problem.Rep = false;
    EntryEdited(session, "Rep");
    EXPECT_EQ(session.Problem.Spacing, RepetitiveSpacing::None);
}

struct HipEditCase {
    std::string_view Name;  // of the edited box
    bool EmptiesTheLoad;
};

class HipEditTest : public testing::TestWithParam<HipEditCase> {};

TEST_P(HipEditTest, LeavesNoStaleEquivalentLoad)
{
    Session session = CalculatedHip(false);
    const LoadSet before = session.Problem.Loads;
    EntryEdited(session, GetParam().Name);
    EXPECT_EQ(session.Problem.Loads.UNIF, GetParam().EmptiesTheLoad ? "" : before.UNIF);
    EXPECT_EQ(session.Problem.Loads.LUNIF, GetParam().EmptiesTheLoad ? "" : before.LUNIF);
    EXPECT_EQ(session.Problem.Loads.IncTL, "40");
    EXPECT_EQ(DescribeCriteriaScreen(session).MustCalculateHipLoad, GetParam().EmptiesTheLoad);
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, HipEditTest,
    testing::Values(HipEditCase{"IncTL", true}, HipEditCase{"IncLL", true}, HipEditCase{"IncUnifTL", true},
                    HipEditCase{"IncUnifLL", true}, HipEditCase{"Trib1", true}, HipEditCase{"Trib2", true},
                    HipEditCase{"Areas[0]", true}, HipEditCase{"Areas[3]", true}, HipEditCase{"Span", true},
                    HipEditCase{"CalctheSpan", true}, HipEditCase{"Roofbutton", true},
                    HipEditCase{"Pitchtext", true}, HipEditCase{"Dur", false}, HipEditCase{"Descrip", false},
                    HipEditCase{"MaxDefl", false}, HipEditCase{"UBLtext", false}, HipEditCase{"Wet", false}),
    CaseName);

TEST(GrownHipEdit, OfThePitchPutsBothLoadsBack)
{
    Session session = GrownHip();
    session.Problem.Pitchtext = "5";
    EntryEdited(session, "Pitchtext");
    EXPECT_EQ(session.Problem.Loads.IncTL, "40");
    EXPECT_EQ(session.Problem.Loads.IncUnifTL, "20");
    EXPECT_EQ(session.Problem.Loads.UNIF, "");
    EXPECT_TRUE(DescribeCriteriaScreen(session).CanCalculateHipLoad);
}

TEST(GrownHipEdit, OfALoadKeepsWhatIsTypedAndPutsTheOtherBack)
{
    Session roof = GrownHip();
    roof.Problem.Loads.IncTL = "45";
    EntryEdited(roof, "IncTL");
    EXPECT_EQ(roof.Problem.Loads.IncTL, "45");
    EXPECT_EQ(roof.Problem.Loads.IncUnifTL, "20");
    ScriptedUser user;
    EXPECT_EQ(CalculateHipValley(roof, user), Outcome::Done);
    EXPECT_EQ(roof.Problem.Loads.IncTL, "50.0");  // 25 + 20 * 1.25: what is typed grows once

    Session uniform = GrownHip();
    uniform.Problem.Loads.IncUnifTL = "32";
    EntryEdited(uniform, "IncUnifTL");
    EXPECT_EQ(uniform.Problem.Loads.IncUnifTL, "32");
    EXPECT_EQ(uniform.Problem.Loads.IncTL, "40");
}

TEST(GrownHipEdit, OfAnythingElseKeepsTheCalculatedLoad)
{
    Session session = GrownHip();
    const LoadSet before = session.Problem.Loads;
    EntryEdited(session, "Dur");
    EXPECT_EQ(session.Problem.Loads, before);
    EXPECT_FALSE(DescribeCriteriaScreen(session).CanCalculateHipLoad);
}

}  // namespace
}  // namespace kordavan
