#include <gmock/gmock.h>

#include <functional>
#include <string>

#include "design/CalculateAction.h"
#include "design/DesignBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::SizeIs;
using testing::StartsWith;

struct CheckCase {
    std::string_view Name;
    std::function<void(BeamProblem&)> Spoil;
    std::string_view Text;  // its beginning
    std::string_view Focus;
};

void MakeOverhanging(BeamProblem& problem)
{
    problem.Support = SupportCondition::Overhanging;
    SetPoint(problem, 4, "200", "3", "100");
}

class RefusalTest : public testing::TestWithParam<CheckCase> {};

TEST_P(RefusalTest, TellsOneMessageAndPointsToItsBox)
{
    Session session = PlainSession();
    GetParam().Spoil(session.Problem);
    ScriptedUser user;
    EXPECT_EQ(CalculateAction(session, user), Outcome::Refused);
    ASSERT_THAT(user.Told, SizeIs(1));
    EXPECT_THAT(user.Told[0].Text, StartsWith(std::string(GetParam().Text)));
    EXPECT_EQ(user.Told[0].Focus, GetParam().Focus);
    EXPECT_EQ(user.Told[0].Kind, MessageKind::Refusal);
    EXPECT_EQ(user.Told[0].Title, "Kordavan");
}

const CheckCase Checks[] = {
    {"no span", [](BeamProblem& p) { p.Span = ""; }, "Please enter a beam Span", "Span"},
    {"a span of 0", [](BeamProblem& p) { p.Span = "0"; }, "Please enter a beam Span", "Span"},
    {"unbraced beyond the span", [](BeamProblem& p) { p.UBLtext = "12.01"; },
     "The unbraced length may not be longer than the span.\nEither", "UBLtext"},
    {"no duration", [](BeamProblem& p) { p.Dur = ""; },
     "The Duration of Load default for a normal load is 1.0\nIt", "Dur"},
    {"duration below", [](BeamProblem& p) { p.Dur = "0.89"; },
     "Your Duration of Load entry may be incorrect.  To", "Dur"},
    {"duration above", [](BeamProblem& p) { p.Dur = "2.01"; },
     "Your Duration of Load entry may be incorrect.  To", "Dur"},
    {"slope without pitch", [](BeamProblem& p) { p.Roofbutton = true; },
     "The Slope Adjustment checkbox is checked.", "Pitchtext"},
    {"slope with pitch 0",
     [](BeamProblem& p) {
         p.Roofbutton = true;
         p.Pitchtext = "0";
     },
     "The Slope Adjustment checkbox is checked.", "Pitchtext"},
    {"point load without place", [](BeamProblem& p) { SetPoint(p, 5, "100", "", ""); },
     "Please enter a Distance from the starting reaction for the Point Load", "DIS[5]"},
    {"live point load alone without place", [](BeamProblem& p) { SetPoint(p, 1, "", "0", "50"); },
     "Please enter a Distance from the starting reaction for the Point Load", "DIS[1]"},
    {"point load beyond the span", [](BeamProblem& p) { SetPoint(p, 0, "100", "12.5"); },
     "Please enter a point load Distance from the starting reaction that is within", "DIS[0]"},
    {"place without load", [](BeamProblem& p) { SetPoint(p, 3, "", "4"); },
     "Please enter a Load to accompany the distance already entered", "PT[3]"},
    {"overhang load without place",
     [](BeamProblem& p) {
         MakeOverhanging(p);
         SetPoint(p, 5, "100", "");
     },
     "Please enter a Distance for the overhang point load", "DIS[5]"},
    {"partial load without end", [](BeamProblem& p) { SetPartial(p, 2, "50", "1", ""); },
     "Please enter an END location for the Partial Uniform Load", "ENDP[2]"},
    {"partial load of no length", [](BeamProblem& p) { SetPartial(p, 0, "50", "4", "4"); },
     "The END of a Partial Uniform load must be BEYOND the Beginning location.", "ENDP[0]"},
    {"ends without partial load", [](BeamProblem& p) { SetPartial(p, 4, "", "1", "4"); },
     "Please enter a Partial Uniform Load or clear the beginning (and/or) ending distances", "PAR[4]"},
    {"partial load beyond the span", [](BeamProblem& p) { SetPartial(p, 1, "50", "1", "12.1"); },
     "Please enter an End location (for the Partial Uniform Load) that is less than the Span", "ENDP[1]"},
    {"partial load from the start left blank", [](BeamProblem& p) { SetPartial(p, 1, "50", "", "4"); },
     "Please enter a ZERO for Partial Uniform loads beginning exactly on the starting Reaction", "BEGP[1]"},
    {"no load", [](BeamProblem& p) { p.Loads.UNIF = p.Loads.LUNIF = ""; },
     "At least one load must be specified for Kordavan to calculate a beam size.", "Span"},
    {"several spans with point loads alone",
     [](BeamProblem& p) {
         p.Support = SupportCondition::MultipleSpans;
         p.Loads.UNIF = p.Loads.LUNIF = "";
         SetPoint(p, 0, "500", "6");
     },
     "At least one load must be specified for Kordavan to calculate a beam size.", "Span"},
    {"overhang without load", [](BeamProblem& p) { p.Support = SupportCondition::Overhanging; },
     "At least one OVERHANGING load must be specified for Kordavan to calculate an overhanging beam.",
     "DIS[4]"},
    {"overhang unbraced beyond its end",
     [](BeamProblem& p) {
         MakeOverhanging(p);
         p.CantUBLtext = "3.5";
     },
     "The overhang's UNBRACED LENGTH may not be longer than the overhang.\nEither", "CantUBLtext"},
    {"no total deflection limit", [](BeamProblem& p) { p.MaxDefl = "0"; },
     "Please enter a Maximum Allowable TOTAL Load (DL + LL) Deflection value.\nSee help", "MaxDefl"},
    {"no live deflection limit", [](BeamProblem& p) { p.LMaxDefl = ""; },
     "Please enter a Maximum Allowable LIVE Load Deflection value.\nSee help", "LMaxDefl"},
    {"live above total overall", [](BeamProblem& p) { p.Loads.LUNIF = "101"; },
     "Attention:\nThe overall live load is Larger than the overall total load.", "UNIF"},
    {"live above total at a point", [](BeamProblem& p) { SetPoint(p, 2, "100", "4", "101"); },
     "Attention:\nA point Live load is Larger than the point Total load.", "PT[2]"},
    {"live above total in a partial load", [](BeamProblem& p) { SetPartial(p, 3, "50", "0", "4", "51"); },
     "Attention:\nA live partial uniform load is larger than a partial uniform total load.", "PAR[3]"},
    {"uniform live above total",
     [](BeamProblem& p) {
         p.Loads.LUNIF = "101";
         SetPoint(p, 0, "500", "6");
     },
     "Attention:\nThe Live uniform load is larger than the Total uniform load.", "UNIF"},
};

INSTANTIATE_TEST_SUITE_P(Checks, RefusalTest, testing::ValuesIn(Checks), CaseName);

struct AcceptedCase {
    std::string_view Name;
    std::function<void(BeamProblem&)> Change;
};

class AcceptanceTest : public testing::TestWithParam<AcceptedCase> {};

TEST_P(AcceptanceTest, TheLimitItselfPasses)
{
    Session session = PlainSession();
    GetParam().Change(session.Problem);
    ScriptedUser user;
    EXPECT_EQ(CalculateAction(session, user), Outcome::Done) << GetParam().Name;
    EXPECT_THAT(user.Told, SizeIs(0)) << GetParam().Name;
}

const AcceptedCase Accepted[] = {
    {"duration 0.9, with a live load that is large", [](BeamProblem& p) { p.Dur = "0.9"; }},
    {"duration 2.0", [](BeamProblem& p) { p.Dur = "2.0"; }},
    {"unbraced along the whole span", [](BeamProblem& p) { p.UBLtext = "12"; }},
    {"unbraced Any", [](BeamProblem& p) { p.UBLtext = "Any"; }},
    {"point load over R2", [](BeamProblem& p) { SetPoint(p, 0, "100", "12", "90"); }},
    {"partial load up to R2 from an explicit 0",
     [](BeamProblem& p) { SetPartial(p, 0, "40", "0", "12", "30"); }},
    {"overhang unbraced along the whole overhang",
     [](BeamProblem& p) {
         MakeOverhanging(p);
         p.CantUBLtext = "3";
     }},
    {"overhang unbraced where there is no overhang", [](BeamProblem& p) { p.CantUBLtext = "30"; }},
    {"no live limit without live load, at 0.90",
     [](BeamProblem& p) {
         p.LMaxDefl = "";
         p.Loads.LUNIF = "";
         p.Dur = "0.90";
     }},
};

INSTANTIATE_TEST_SUITE_P(Limits, AcceptanceTest, testing::ValuesIn(Accepted), CaseName);

TEST(CriteriaChecks, StandInTheOrderOfTheForm)
{
    // Everything is wrong at once; each refusal mended brings the next.
    Session session;
    BeamProblem& problem = session.Problem;
    problem.UBLtext = "20";
    problem.Dur = "3";
    problem.Roofbutton = true;
    problem.MaxDefl = "";
    SetPoint(problem, 0, "100", "");
    SetPoint(problem, 1, "", "5");
    SetPartial(problem, 0, "50", "", "99");
    std::vector<std::string> focuses;
    const auto mend = [&](const std::function<void()>& change) {
        ScriptedUser user;
        EXPECT_EQ(CalculateAction(session, user), Outcome::Refused);
        focuses.push_back(user.Told.back().Focus);
        change();
    };
    mend([&] { problem.Span = "10"; });
    mend([&] { problem.UBLtext = "2"; });
    mend([&] { problem.Dur = "1.00"; });
    mend([&] { problem.Pitchtext = "4"; });
    mend([&] { problem.Loads.DIS[0] = "2"; });
    mend([&] { problem.Loads.PT[1] = "70"; });
    mend([&] { problem.Loads.ENDP[0] = "4"; });
    mend([&] { problem.Loads.BEGP[0] = "0"; });
    mend([&] { problem.MaxDefl = "240"; });
    EXPECT_THAT(focuses, testing::ElementsAre("Span", "UBLtext", "Dur", "Pitchtext", "DIS[0]", "PT[1]",
                                              "ENDP[0]", "BEGP[0]", "MaxDefl"));
}

}  // namespace
}  // namespace kordavan
