#include "design/UnbracedEntry.h"

#include <gtest/gtest.h>

#include "design/CriteriaScreen.h"
#include "design/EntryAdjustment.h"
#include "design/LoadingConditions.h"
#include "design/NewBeam.h"
#include "design/SteelBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

struct FixedCase {
    std::string_view Name;
    SpeciesGroup Group;
    SteelFamily Family;
    SupportCondition Support;
    std::optional<std::string_view> Fixed;
};

class FixedUnbracedTest : public testing::TestWithParam<FixedCase> {};

TEST_P(FixedUnbracedTest, TakesTheBoxFromThePerson)
{
    const FixedCase& c = GetParam();
    Session session;
    session.Problem.Combo1 = c.Group;
    session.Problem.Family = c.Family;
    session.Problem.Support = c.Support;
    EXPECT_EQ(FixedUnbracedLength(session.Problem), c.Fixed);
    EXPECT_EQ(DescribeCriteriaScreen(session).HasUnbracedLength, !c.Fixed.has_value());
}

constexpr auto Steel = SpeciesGroup::Steel;
constexpr auto Wood = SpeciesGroup::HemFirDouglasFir;
constexpr auto SimpleSpan = SupportCondition::SimpleSpan;

INSTANTIATE_TEST_SUITE_P(
    Materials, FixedUnbracedTest,
    testing::Values(FixedCase{"wood, a tube once chosen", Wood, SteelFamily::Tube, SimpleSpan, std::nullopt},
                    FixedCase{"W", Steel, SteelFamily::W, SimpleSpan, std::nullopt},
                    FixedCase{"C", Steel, SteelFamily::C, SupportCondition::Overhanging, std::nullopt},
                    FixedCase{"tube", Steel, SteelFamily::Tube, SimpleSpan, "Any"},
                    FixedCase{"plate", Steel, SteelFamily::Plate, SimpleSpan, "0"},
                    FixedCase{"pair", Steel, SteelFamily::DoublePlate, SimpleSpan, "0"},
                    FixedCase{"composite", SpeciesGroup::Scl, SteelFamily::W, SimpleSpan, "0"},
                    FixedCase{"several spans", Wood, SteelFamily::W, SupportCondition::MultipleSpans, "0"},
                    FixedCase{"tube on several spans", Steel, SteelFamily::Tube,
                              SupportCondition::MultipleSpans, "0"}),
    CaseName);

TEST(StartNewBeam, KeepsTheLengthThatItsMaterialFixes)
{
    Session session;
    session.Problem.Combo1 = SpeciesGroup::Scl;
    session.Problem.UBLtext = "0";
    StartNewBeam(session);
    EXPECT_EQ(session.Problem.UBLtext, "0");
}

TEST(SwitchMaterial, WritesWhatItFixesAndEmptiesTheBoxAfterwards)
{
    Session session = SteelSession(SteelFamily::W, "10", "100", "60");
    session.Problem.UBLtext = "4";
    SwitchMaterial(session, Steel, SteelFamily::S);
    EXPECT_EQ(session.Problem.UBLtext, "4");
    SwitchMaterial(session, Steel, SteelFamily::Tube);
    EXPECT_EQ(session.Problem.UBLtext, "Any");
    SwitchMaterial(session, Steel, SteelFamily::Plate);
    EXPECT_EQ(session.Problem.UBLtext, "0");
    SwitchMaterial(session, Wood, SteelFamily::Plate);
    EXPECT_EQ(session.Problem.UBLtext, "");
}

TEST(SwitchMaterial, ToSteelIsNotIncised)
{
    Session session = PlainSession();
    session.Problem.Incised = true;
    SwitchMaterial(session, SpeciesGroup::SouthernPine, SteelFamily::W);
    EXPECT_TRUE(session.Problem.Incised);
    SwitchMaterial(session, Steel, SteelFamily::W);
    EXPECT_FALSE(session.Problem.Incised);
}

TEST(SwitchSupport, OfATubeComesBackToAny)
{
    Session session = SteelSession(SteelFamily::Tube, "10", "100", "60");
    session.Problem.UBLtext = "Any";
    SwitchSupport(session, SupportCondition::MultipleSpans);
    EXPECT_EQ(session.Problem.UBLtext, "0");
    SwitchSupport(session, SupportCondition::SimpleSpan);
    EXPECT_EQ(session.Problem.UBLtext, "Any");
}

struct CalculatedCase {
    std::string_view Name;
    SteelFamily Family;
    std::string_view Typed;
    std::string_view Calculated;
};

class CalculatedUnbracedTest : public testing::TestWithParam<CalculatedCase> {};

TEST_P(CalculatedUnbracedTest, StandsUntilTheCriteriaComeBack)
{
    const CalculatedCase& c = GetParam();
    Session session = SteelSession(c.Family, "10", "100", "60");
    session.Problem.UBLtext = c.Typed;
    session.KeptProblem = session.Problem;
    Calculate(session);
    EXPECT_EQ(session.Problem.UBLtext, c.Calculated);
    EXPECT_EQ(session.Problem.CantUBLtext, "0");
    EXPECT_FALSE(HasUnsavedEntries(session));
    RestoreEntries(session);
    EXPECT_EQ(session.Problem.UBLtext, c.Typed);
    EXPECT_EQ(session.Problem.CantUBLtext, "");
}

INSTANTIATE_TEST_SUITE_P(Families, CalculatedUnbracedTest,
                         testing::Values(CalculatedCase{"W", SteelFamily::W, "4", "4"},
                                         CalculatedCase{"W blank", SteelFamily::W, "", "0"},
                                         CalculatedCase{"W any", SteelFamily::W, "Any", "Any"},
                                         CalculatedCase{"tube", SteelFamily::Tube, "Any", "0"},
                                         CalculatedCase{"plate", SteelFamily::Plate, "5", "0"},
                                         CalculatedCase{"pair", SteelFamily::DoublePlate, "5", "0"}),
                         CaseName);

TEST(CalculateAction, LeavesTheUnbracedLengthOfWoodAlone)
{
    Session session = PlainSession();
    session.Problem.Family = SteelFamily::Tube;
    session.Problem.UBLtext = "4";
    Calculate(session);
    EXPECT_EQ(session.Problem.UBLtext, "4");
    EXPECT_EQ(session.Problem.CantUBLtext, "");
}

TEST(CriteriaTitle, OfSteelHasNoEdition)
{
    Session session = SteelSession(SteelFamily::W, "10", "100", "60");
    EXPECT_EQ(DescribeCriteriaScreen(session).Title, " Kordavan Criteria Form 1");
}

}  // namespace
}  // namespace kordavan
