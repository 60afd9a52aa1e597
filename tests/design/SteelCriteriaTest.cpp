#include "design/SteelCriteria.h"

#include <gtest/gtest.h>

#include "support/CaseName.h"

namespace kordavan {
namespace {

struct AllowableCase {
    std::string_view Name;
    SteelFamily Family;
    bool ksi50;
    int Fy;
    float FbCompact;
    int FbLimited;
    int FvSteel;
};

class AllowablesTest : public testing::TestWithParam<AllowableCase> {};

TEST_P(AllowablesTest, AreSharesOfTheYieldStress)
{
    const AllowableCase& c = GetParam();
    const SteelAllowables allowable = AllowablesOf(c.Family, c.ksi50);
    EXPECT_EQ(allowable.Fy, c.Fy);
    EXPECT_EQ(allowable.FbCompact, c.FbCompact);
    EXPECT_EQ(allowable.FbLimited, c.FbLimited);
    EXPECT_EQ(allowable.FvSteel, c.FvSteel);
}

// 0.66 * 36000 = 23760, 0.60 * 36000 = 21600, 0.40 * 36000 = 14400; tubes of 46 ksi: 0.60 * 46000 = 27600
INSTANTIATE_TEST_SUITE_P(
    Grades, AllowablesTest,
    testing::Values(AllowableCase{"W", SteelFamily::W, false, 36000, 23760, 21600, 14400},
                    AllowableCase{"S", SteelFamily::S, false, 36000, 23760, 21600, 14400},
                    AllowableCase{"C", SteelFamily::C, false, 36000, 23760, 21600, 14400},
                    AllowableCase{"MC", SteelFamily::MC, false, 36000, 23760, 21600, 14400},
                    AllowableCase{"plate", SteelFamily::Plate, false, 36000, 23760, 21600, 14400},
                    AllowableCase{"pair", SteelFamily::DoublePlate, false, 36000, 23760, 21600, 14400},
                    AllowableCase{"tube", SteelFamily::Tube, false, 46000, 27600, 27600, 18400},
                    AllowableCase{"W of 50 ksi", SteelFamily::W, true, 50000, 33000, 30000, 20000},
                    AllowableCase{"plate of 50 ksi", SteelFamily::Plate, true, 50000, 33000, 30000, 20000},
                    AllowableCase{"tube of 50 ksi", SteelFamily::Tube, true, 50000, 30000, 30000, 20000}),
    CaseName);

struct UnbracedCase {
    std::string_view Name;
    SupportCondition Support;
    std::string_view Span;
    std::string_view Overhang;
    double Proposed;
};

class ProposedUnbracedTest : public testing::TestWithParam<UnbracedCase> {};

TEST_P(ProposedUnbracedTest, IsTheLargerEntryThatCounts)
{
    const UnbracedCase& c = GetParam();
    BeamProblem problem;
    problem.Support = c.Support;
    problem.UBLtext = c.Span;
    problem.CantUBLtext = c.Overhang;
    EXPECT_EQ(ProposedUnbracedLength(problem), c.Proposed);
}

INSTANTIATE_TEST_SUITE_P(
    Entries, ProposedUnbracedTest,
    testing::Values(UnbracedCase{"blank", SupportCondition::SimpleSpan, "", "", 0},
                    UnbracedCase{"any", SupportCondition::SimpleSpan, "Any", "", 0},
                    UnbracedCase{"typed", SupportCondition::SimpleSpan, "7.1", "", 7.1},
                    UnbracedCase{"overhang left behind", SupportCondition::SimpleSpan, "3", "5", 3},
                    UnbracedCase{"overhang larger", SupportCondition::Overhanging, "3", "5", 5},
                    UnbracedCase{"overhang smaller", SupportCondition::Overhanging, "6", "5", 6},
                    UnbracedCase{"overhang alone", SupportCondition::Overhanging, "", "2.5", 2.5},
                    UnbracedCase{"any beside an overhang", SupportCondition::Overhanging, "Any", "5", 0},
                    UnbracedCase{"several spans are braced", SupportCondition::MultipleSpans, "9", "", 0}),
    CaseName);

TEST(DepthLimit, LetsTheNominalDepthPassByThreeQuarters)
{
    BeamProblem problem;
    problem.DepCombo = "12";
    const SteelCriteria criteria = SteelCriteriaOf(problem);
    EXPECT_TRUE(IsWithinDepth(criteria, 12.71));  // W 12x 96
    EXPECT_TRUE(IsWithinDepth(criteria, 12.75));
    EXPECT_FALSE(IsWithinDepth(criteria, 12.751));
    EXPECT_FALSE(IsWithinDepth(criteria, 12.89));  // W 12x 106
}

TEST(DepthLimit, OfAllExcludesNothing)
{
    const SteelCriteria criteria = SteelCriteriaOf(BeamProblem{});
    EXPECT_TRUE(IsWithinDepth(criteria, 0.75));
    EXPECT_TRUE(IsWithinDepth(criteria, 36.17));  // W 36x 170, the deepest
}

}  // namespace
}  // namespace kordavan
