#include "design/SteelScan.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/NumberText.h"
#include "design/SteelBuilder.h"
#include "design/Verdict.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::Contains;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::Not;

std::vector<std::string_view> PicksOf(const SteelSelection& picks)
{
    std::vector<std::string_view> names;
    for (const SteelSlot& slot : picks.Slots) {
        names.push_back(slot.StlPick);
    }
    return names;
}

struct ScanCase {
    std::string_view Name;
    SteelFamily Family;
    std::string_view DepCombo;
    void (*Change)(BeamProblem&);
};

class ScanTest : public testing::TestWithParam<ScanCase> {};

/// Tests every row of the family by its name and keeps those that the report finds good.
std::vector<std::string_view> PassingOneByOne(Session session, double mostDepth)
{
    std::vector<std::string_view> names;
    for (const SteelShape& shape : ShapesOf(session.Problem.Family)) {
        ScriptedUser user;
        const bool isTested = shape.ActualDepth <= mostDepth &&
                              TestNamedShape(session, shape.ShapeName, SteelTestMode::FromSelection, user) ==
                                  SteelTestEnd::Done;
        if (isTested && session.Member.Result.Overall == StatusOk && names.size() < SteelSlotCount) {
            names.push_back(shape.ShapeName);
        }
    }
    return names;
}

TEST_P(ScanTest, FindsWhatTestingEveryRowFinds)
{
    Session session = SteelSession(GetParam().Family, "14", "700", "460");
    session.Problem.DepCombo = GetParam().DepCombo;
    GetParam().Change(session.Problem);
    const std::vector<std::string_view> found = PicksOf(OpenedSelection(session));
    const double mostDepth = session.Problem.DepCombo == "All" ? 100 : Val(session.Problem.DepCombo) + 0.75;
    EXPECT_THAT(found, Not(IsEmpty()));
    EXPECT_THAT(found, ElementsAreArray(PassingOneByOne(session, mostDepth)));
}

void AsItIs(BeamProblem& /*problem*/) {}

void Unbraced(BeamProblem& problem)
{
    problem.UBLtext = "8";
}

void Strong(BeamProblem& problem)
{
    problem.ksi50 = true;
}

void Deflecting(BeamProblem& problem)
{
    problem.LMaxDefl = "1200";
}

void TwoSpans(BeamProblem& problem)
{
    problem.Support = SupportCondition::MultipleSpans;
}

/// The span's moment and the overhang's are near, the span's the larger one.
void Overhang(BeamProblem& problem)
{
    problem.Support = SupportCondition::Overhanging;
    SetPoint(problem, 4, "600", "3", "400");
}

INSTANTIATE_TEST_SUITE_P(Families, ScanTest,
                         testing::Values(ScanCase{"W", SteelFamily::W, "All", AsItIs},
                                         ScanCase{"W unbraced", SteelFamily::W, "All", Unbraced},
                                         ScanCase{"W no deeper than 8", SteelFamily::W, "8", AsItIs},
                                         ScanCase{"W of 50 ksi", SteelFamily::W, "All", Strong},
                                         ScanCase{"W held stiff", SteelFamily::W, "All", Deflecting},
                                         ScanCase{"W on two spans", SteelFamily::W, "All", TwoSpans},
                                         ScanCase{"W with an overhang", SteelFamily::W, "All", Overhang},
                                         ScanCase{"S", SteelFamily::S, "All", AsItIs},
                                         ScanCase{"C", SteelFamily::C, "All", AsItIs},
                                         ScanCase{"MC unbraced", SteelFamily::MC, "All", Unbraced},
                                         ScanCase{"tubes", SteelFamily::Tube, "All", AsItIs},
                                         ScanCase{"tubes of 50 ksi", SteelFamily::Tube, "All", Strong},
                                         ScanCase{"plates", SteelFamily::Plate, "All", AsItIs},
                                         ScanCase{"pairs of plates", SteelFamily::DoublePlate, "12", AsItIs}),
                         CaseName);

TEST(SteelScan, KeepsTheFirstSixteen)
{
    Session session = SteelSession(SteelFamily::W, "10", "10", "6");
    std::vector<std::string_view> first;
    for (const SteelShape& shape : ShapesOf(SteelFamily::W).first(SteelSlotCount)) {
        first.push_back(shape.ShapeName);
    }
    EXPECT_THAT(PicksOf(OpenedSelection(session)), ElementsAreArray(first));
}

TEST(SteelScan, PassesOverTheFillerRows)
{
    Session tubes = SteelSession(SteelFamily::Tube, "30", "600", "400");
    EXPECT_THAT(PicksOf(OpenedSelection(tubes)), Not(Contains("xx")));
    Session plates = SteelSession(SteelFamily::DoublePlate, "30", "900", "600");
    EXPECT_THAT(PicksOf(OpenedSelection(plates)), Not(Contains("")));
}

TEST(SteelScan, FindsNothingUnderTooMuch)
{
    Session session = SteelSession(SteelFamily::C, "30", "20000", "12000");
    EXPECT_THAT(PicksOf(OpenedSelection(session)), IsEmpty());
}

TEST(SteelScan, ShowsEachCandidateInSixTexts)
{
    // W 14x 38 on 20 ft under 1162 + 38 plf: section 30.303 / 54.6 = 55.5 %, shear 2745.4 / 14400 = 19.1 %
    Session session = SteelSession(SteelFamily::W, "20", "1162", "800");
    const std::vector<SteelSlot>& slots = OpenedSelection(session).Slots;
    const auto slot = std::find_if(slots.begin(), slots.end(),
                                   [](const SteelSlot& line) { return line.StlPick == "W 14x 38"; });
    ASSERT_NE(slot, slots.end());
    EXPECT_EQ(slot->StlDepLab, "14-1/8");
    EXPECT_EQ(slot->StlWidLab, "6-3/4");
    EXPECT_EQ(slot->UBLlab, "Lc = 7.1");
    EXPECT_EQ(slot->StlSecPerct, "56%");
    EXPECT_EQ(slot->StlShearPerct, "19%");
}

TEST(SteelScan, ShowsHowEachFamilyIsBraced)
{
    const auto firstLimit = [](SteelFamily family, std::string_view unbraced) {
        Session session = SteelSession(family, "10", "100", "60");
        session.Problem.UBLtext = unbraced;
        return OpenedSelection(session).Slots.at(0).UBLlab;
    };
    EXPECT_EQ(firstLimit(SteelFamily::W, "0"), "Lc = 4.2");
    EXPECT_EQ(firstLimit(SteelFamily::W, "6"), "Lu = 6.7");
    EXPECT_EQ(firstLimit(SteelFamily::W, "Any"), "Lc = 4.2");
    EXPECT_EQ(firstLimit(SteelFamily::Tube, "6"), "any OK");
    EXPECT_EQ(firstLimit(SteelFamily::Plate, "6"), "0");
    EXPECT_EQ(firstLimit(SteelFamily::C, "0").substr(0, 5), "Lu = ");
}

TEST(SteelScan, RejectsAShearStressAtItsLimitThatTheReportAccepts)
{
    // (2) PL 9x 3/4: 13.5 in2 * 14400 psi = 194400 lb = 207360 * (3.2 - 0.2) / 3.2. M = 194400 * 0.2 = 38880
    // ft-lb needs 19.64 of 20.25 in3.
    Session session = SteelSession(SteelFamily::DoublePlate, "3.2", "", "");
    session.Problem.NoWeight = true;
    SetPoint(session.Problem, 0, "207360", "0.2", "100000");
    const std::vector<std::string_view> found = PicksOf(OpenedSelection(session));
    EXPECT_THAT(found, Not(Contains("(2) PL 9x 3/4")));
    EXPECT_THAT(found, Contains("(2) PL 9x 1"));
    TestedShape(session, "(2) PL 9x 3/4");
    EXPECT_EQ(session.Steel.ShearStress, 14400);
    EXPECT_EQ(session.Member.Result.ShearStatus, StatusOk);
    EXPECT_EQ(session.Member.Result.Overall, StatusOk);
}

TEST(SteelScan, LeavesTheMomentOfTheOverhangToTheReport)
{
    // A load at the tip alone makes no moment in the span, and 8000 * 4 = 32000 ft-lb at R2.
    Session session = SteelSession(SteelFamily::S, "16", "", "");
    session.Problem.Support = SupportCondition::Overhanging;
    session.Problem.MaxDefl = "1";
    SetPoint(session.Problem, 4, "8000", "4");
    EXPECT_EQ(OpenedSelection(session).Slots.at(0).StlSecPerct, "0%");
    TestedShape(session, session.SteelPicks.Slots.at(0).StlPick);
    EXPECT_GT(session.Member.Result.SectionReq, 32000 * 12.0 / 23760);
    EXPECT_EQ(session.Member.Result.SecStatus, StatusFail);
}

TEST(MeetsDeflectionLimits, PassesOnEqualityWhicheverWayTheBeamMoves)
{
    DeflectionResult deflection;
    EXPECT_TRUE(MeetsDeflectionLimits(deflection));
    deflection.AllowTotalDeflIn = 0.5F;
    deflection.AllowTipDeflIn = 0.25F;
    deflection.TotalDeflIn = 0.5F;
    deflection.TipDeflIn = -0.25F;
    EXPECT_TRUE(MeetsDeflectionLimits(deflection));
    deflection.TipDeflIn = -0.2501F;
    EXPECT_FALSE(MeetsDeflectionLimits(deflection));
    deflection.TipDeflIn = 0;
    deflection.TotalDeflIn = 0.5001F;
    EXPECT_FALSE(MeetsDeflectionLimits(deflection));
}

TEST(SteelScan, ChangesNothingOfTheLastTest)
{
    Session session = SteelSession(SteelFamily::W, "10", "500", "300");
    TestedShape(session, "W 14x 38");
    const float moment = session.Analysis.MaxMomentFtLb;
    ScriptedUser user;
    EXPECT_EQ(OpenSteelSelection(session, user), Outcome::Done);
    EXPECT_EQ(session.Steel.ShapeName, "W 14x 38");
    EXPECT_EQ(session.Analysis.MaxMomentFtLb, moment);
}

}  // namespace
}  // namespace kordavan
