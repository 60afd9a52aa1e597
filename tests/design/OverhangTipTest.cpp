#include "design/OverhangTip.h"

#include <functional>

#include "design/DesignBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

struct TipCase {
    std::string_view Name;
    std::function<void(BeamProblem&)> Loads;
    std::string_view Warning;
    bool ExceedsAllowed = false;
};

class OverhangTipTest : public testing::TestWithParam<TipCase> {};

/// 12 ft with an overhang where its loads are, weight left out, limits 240 and 360: 6x12 DF-L #1, whose E I
/// is 1.6e6 x 697.068 = 1.115308e9 lb-in2.
TEST_P(OverhangTipTest, IsToldWhereTheReportIsShortOfIt)
{
    Session session = PlainSession();
    BeamProblem& problem = session.Problem;
    problem.Loads.UNIF = problem.Loads.LUNIF = "";
    problem.NoWeight = true;
    problem.Support = SupportCondition::Overhanging;
    GetParam().Loads(problem);
    Calculate(session);
    Tested(session, Member("6x", "12", "DF-L #1"));
    const OverhangTipWarning warning = WarnOfOverhangTip(session);
    EXPECT_EQ(warning.Text, GetParam().Warning);
    EXPECT_EQ(warning.ExceedsAllowed, GetParam().ExceedsAllowed);
}

INSTANTIATE_TEST_SUITE_P(
    Loads, OverhangTipTest,
    testing::Values(
        // w a^3 (4 L + 3 a) / 24 EI with a = 4: live 1200 plf 0.2975 in., dead 800 plf 0.1983 in., times 1.5
        // for creep 0.2975; allowed 2 x 48 / 240 and / 360
        TipCase{
            "spread over the overhang",
            [](BeamProblem& problem) { SetPartial(problem, 3, "2000", "0", "4", "1200"); },
            "The tip moves otherwise than this report says. By the exact elastic line: total load 0.59 in. "
            "of 0.40 in. allowed, live load 0.30 in. of 0.27 in. allowed.",
            true},
        // a fifth of it
        TipCase{
            "within the limits", [](BeamProblem& problem) { SetPartial(problem, 3, "400", "0", "4", "240"); },
            "The tip moves otherwise than this report says. By the exact elastic line: total load 0.12 in. "
            "of 0.40 in. allowed, live load 0.06 in. of 0.27 in. allowed."},
        TipCase{"at the tip", [](BeamProblem& problem) { SetPoint(problem, 4, "3000", "4", "2000"); }, ""},
        TipCase{"a simple span",
                [](BeamProblem& problem) {
                    problem.Support = SupportCondition::SimpleSpan;
                    problem.Loads.UNIF = "300";
                },
                ""}),
    CaseName);

TEST(OverhangTip, HasNoWarningBeforeATest)
{
    Session session = PlainSession();
    session.Problem.Support = SupportCondition::Overhanging;
    SetPartial(session.Problem, 3, "2000", "0", "4", "1200");
    Calculate(session);
    EXPECT_EQ(WarnOfOverhangTip(session).Text, "");
}

}  // namespace
}  // namespace kordavan
