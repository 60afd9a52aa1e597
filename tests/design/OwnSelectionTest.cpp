#include "design/OwnSelection.h"

#include <gmock/gmock.h>

#include "design/DesignBuilder.h"
#include "design/OwnScreen.h"
#include "design/UnbracedEntry.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// 300 plf on 18 ft: M = 300 x 18^2 / 8 = 12150 ft-lb.
Session OwnSession(SpeciesGroup group)
{
    Session session;
    session.Problem.Span = "18";
    session.Problem.Loads.UNIF = "300";
    session.Problem.Loads.LUNIF = "200";
    session.Problem.Combo1 = group;
    Calculate(session);
    session.Entry.Custom.Fb = "2600";
    session.Entry.Custom.Fv = "285";
    session.Entry.Custom.E = "1.9";
    session.Entry.Custom.FcPerp = "750";
    return session;
}

/// 1-3/4 in.: 72 x 12150 / (1.75 x 2600) = 192.3 = 13.87^2. (2) 1-3/4: 96.1 = 9.81^2.
TEST(SuggestDepths, BeginsAtTheLeastDepthInBending)
{
    Session session = OwnSession(SpeciesGroup::Scl);
    session.Entry.Product = 2;
    EXPECT_THAT(SuggestDepths(session), IsEmpty());
    session.Entry.BreadthText = "1-3/4x";
    EXPECT_THAT(SuggestDepths(session), ElementsAre("14", "16", "18", "20"));
    session.Entry.BreadthText = "(2) 1-3/4x";
    EXPECT_THAT(SuggestDepths(session), ElementsAre("11-1/4", "11-7/8", "14", "16", "18", "20"));
    session.Entry.Custom.Fb = "700";
    session.Entry.BreadthText = "1-3/4x";
    ScriptedUser user;
    TellNoDepths(session, SuggestDepths(session), user);
    ASSERT_THAT(user.Told, SizeIs(1));
    EXPECT_THAT(user.Told[0].Text, testing::StartsWith("No beam depths in this breadth group meet"));
}

struct FamilyCase {
    std::string_view Name;
    bool CustomEntry::*Family;
    bool SouthernPine;
    std::vector<std::string_view> Breadths;
};

class OwnFamilyTest : public testing::TestWithParam<FamilyCase> {};

/// Each pick passes, and the next smaller size of its ladder does not.
TEST_P(OwnFamilyTest, OffersTheSmallestDepthsThatPass)
{
    Session session = OwnSession(SpeciesGroup::Custom);
    ChooseFamily(session.Entry, GetParam().Family);
    session.Entry.Custom.SPG = GetParam().SouthernPine;
    const MemberTest before = session.Member;
    ScriptedUser user;
    std::vector<QuickPick> picks;
    ASSERT_EQ(EnterValues(session, user, picks), Outcome::Done);
    EXPECT_EQ(session.Member.Candidate.BreadthText, before.Candidate.BreadthText);
    ASSERT_THAT(picks, SizeIs(GetParam().Breadths.size()));
    std::size_t filled = 0;
    for (std::size_t k = 0; k < picks.size(); ++k) {
        EXPECT_EQ(picks[k].BreadthText, GetParam().Breadths[k]);
        if (picks[k].State == PickState::Filled) {
            TakeOwnPick(session.Entry, picks[k]);
            const MemberTest& test = Tested(session, session.Entry);
            EXPECT_EQ(test.Result.Overall, "OK") << picks[k].BreadthText;
            EXPECT_FALSE(test.Result.NextSmallerOk) << picks[k].BreadthText;
            ++filled;
        }
    }
    EXPECT_GT(filled, 0U);
}

INSTANTIATE_TEST_SUITE_P(
    Families, OwnFamilyTest,
    testing::Values(FamilyCase{"2x", &CustomEntry::Wid2x, false, {"2x", "(2) 2x", "3x", "(3) 2x", "(4) 2x"}},
                    FamilyCase{"4x", &CustomEntry::Wid4x, false, {"4x"}},
                    FamilyCase{"6x", &CustomEntry::Wid6x, false, {"6x", "8x", "10x", "12x", "14x"}},
                    FamilyCase{"glulam",
                               &CustomEntry::WidGLB,
                               false,
                               {"3-1/8x", "5-1/8x", "6-3/4x", "8-3/4x", "10-3/4x"}},
                    FamilyCase{"Southern Pine glulam",
                               &CustomEntry::WidGLB,
                               true,
                               {"3-1/8x", "5-1/8x", "6-3/4x", "8-1/2x", "10-1/2x"}},
                    FamilyCase{"header", &CustomEntry::WidGLBHDR, false, {"3-1/2x", "5-1/2x"}}),
    CaseName);

TEST(EnterValues, FindsThePicksOfAProduct)
{
    Session session = OwnSession(SpeciesGroup::Scl);
    session.Entry.Product = 25;
    ScriptedUser user;
    std::vector<QuickPick> picks;
    ASSERT_EQ(EnterValues(session, user, picks), Outcome::Done);
    ASSERT_THAT(picks, SizeIs(4));
    session.Entry.Product = 23;
    session.Entry.Custom.Exponent = "0.1";
    ASSERT_EQ(EnterValues(session, user, picks), Outcome::Done);
    EXPECT_THAT(picks, IsEmpty());
}

struct MissingCase {
    std::string_view Name;
    std::string CustomEntry::*Value;
    std::string_view Text;
    std::string_view Told;
    std::string_view Focus;
};

class MissingValueTest : public testing::TestWithParam<MissingCase> {};

TEST_P(MissingValueTest, IsAskedFor)
{
    Session session = OwnSession(SpeciesGroup::Scl);
    session.Entry.Product = 24;
    session.Entry.Custom.Exponent = "0.1";
    session.Entry.Custom.*GetParam().Value = GetParam().Text;
    ScriptedUser user;
    std::vector<QuickPick> picks;
    EXPECT_EQ(EnterValues(session, user, picks), Outcome::Refused);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(GetParam().Told, GetParam().Focus)));
}

constexpr std::string_view Exponent =
    "Please enter a decimal value for the Cf Size factor that is less than one.";

INSTANTIATE_TEST_SUITE_P(
    Values, MissingValueTest,
    testing::Values(MissingCase{"Fb", &CustomEntry::Fb, "", "Please enter a value for the Fb.", "Text1"},
                    MissingCase{"Fv", &CustomEntry::Fv, "0", "Please enter a value for the Fv.", "Text2"},
                    MissingCase{"E", &CustomEntry::E, "-1", "Please enter a value for the E.", "Text4"},
                    MissingCase{"Fc", &CustomEntry::FcPerp, "x", "Please enter a value for the Fc.", "Text3"},
                    MissingCase{"exponent of 1", &CustomEntry::Exponent, "1", Exponent, "Text8"},
                    MissingCase{"no exponent", &CustomEntry::Exponent, "", Exponent, "Text8"}),
    CaseName);

TEST(OwnValues, GoWithTheirMaterial)
{
    Session session = OwnSession(SpeciesGroup::Custom);
    Calculate(session);
    EXPECT_EQ(session.Entry.Custom.Fb, "2600");
    SwitchMaterial(session, SpeciesGroup::Scl, SteelFamily::W);
    EXPECT_EQ(session.Entry.Custom.Fb, "");
    EXPECT_EQ(session.Problem.UBLtext, "0");
    session.Entry.Custom.Fb = "2600";
    session.Entry.Product = 5;
    Calculate(session);
    EXPECT_EQ(session.Entry.Custom.Fb, "");
    EXPECT_EQ(session.Entry.Product, 0U);
}

TEST(OwnScreen, ShowsWhatTheMemberHas)
{
    Session session = OwnSession(SpeciesGroup::Scl);
    session.Entry.Product = 1;
    OwnScreen screen = DescribeOwnScreen(session);
    EXPECT_EQ(screen.Title, " Kordavan SCL Form 2");
    EXPECT_EQ(screen.LVLname, "Boise LVL 3100");
    EXPECT_THAT(std::string(screen.boisenote), testing::StartsWith("This selection is a vestige"));
    EXPECT_FALSE(screen.HasName || screen.HasExponent);
    session.Entry.Product = 23;
    screen = DescribeOwnScreen(session);
    EXPECT_EQ(screen.boisenote, "");
    EXPECT_TRUE(screen.HasName && screen.HasExponent);
    EXPECT_FALSE(screen.Label20.empty());
    session.Entry.BreadthText = "7x";
    EXPECT_FALSE(DescribeOwnScreen(session).Moresizes.empty());

    session = OwnSession(SpeciesGroup::Custom);
    session.Entry.Custom.WidGLB = session.Entry.Custom.CustomIngradeSP = session.Entry.Custom.MELCheckbox =
        true;
    screen = DescribeOwnScreen(session);
    EXPECT_EQ(screen.Title, " Kordavan Custom Values Form 2");
    EXPECT_TRUE(screen.HasLaminations);
    EXPECT_FALSE(screen.GradeWarning.empty());
    session.Entry.Custom.Roundoption = true;
    EXPECT_FALSE(DescribeOwnScreen(session).HasLaminations);
    EXPECT_EQ(DescribeOwnScreen(session).DurationText, "Load duration factor in force: 1.00");
}

}  // namespace
}  // namespace kordavan
