#include "design/LoadDiagram.h"

#include <gmock/gmock.h>

#include <functional>

#include "design/DesignBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct TextCase {
    std::string_view Name;
    std::function<void(Session&)> Prepare;
    CurveLoads Loads;
    std::string_view Text;
};

class PeakTextTest : public testing::TestWithParam<TextCase> {};

TEST_P(PeakTextTest, TellsEveryPeakWithItsPlace)
{
    Session session = PlainSession();
    GetParam().Prepare(session);
    EXPECT_EQ(PeakText(ReadLoadDiagram(session, GetParam().Loads)), GetParam().Text);
}

void SetThirds(Session& session)
{
    session.Problem.Loads.UNIF = session.Problem.Loads.LUNIF = "";
    SetPoint(session.Problem, 0, "1000", "4", "600");
    SetPoint(session.Problem, 1, "1000", "8", "600");
    Calculate(session);
}

void SetTip(Session& session)
{
    session.Problem.Support = SupportCondition::Overhanging;
    session.Problem.Loads.UNIF = session.Problem.Loads.LUNIF = "";
    session.Problem.NoWeight = true;
    SetPoint(session.Problem, 4, "500", "3", "300");
    Calculate(session);
    Tested(session, Member("6x", "12", "DF-L #1"));
}

INSTANTIATE_TEST_SUITE_P(
    Beams, PeakTextTest,
    testing::Values(
        TextCase{
            "uniform", Calculate, CurveLoads::Total,
            "All loads, without the weight of a member. Reactions R1 600 lb, R2 600 lb.\n"
            "Greatest shear 600 lb at 0.00 ft from R1. Least shear -600 lb at 12.00 ft from R1. Shear is "
            "zero at 6.00 ft from R1.\n"
            "Greatest moment 1,800 ft-lb at 6.00 ft from R1. Moment for design 1,800 ft-lb.\n"
            "Test a member to see its deflection."},
        TextCase{
            "level stretches", SetThirds, CurveLoads::Live,
            "Live loads alone. Reactions R1 600 lb, R2 600 lb.\n"
            "Greatest shear 600 lb between 0.00 ft and 4.00 ft from R1. Least shear -600 lb between 8.00 "
            "ft and 12.00 ft from R1. Shear is zero between 4.00 ft and 8.00 ft from R1.\n"
            "Greatest moment 2,400 ft-lb between 4.00 ft and 8.00 ft from R1.\n"
            "Test a member to see its deflection."},
        // E I = 1.6e6 x 5.5 x 11.5^3 / 12 = 1.1153e9: tip 22,500 x 1728 / E I, lift 13,856.4 x 1728 / E I
        TextCase{"overhang", SetTip, CurveLoads::Total,
                 "All loads, the weight of 6x  12 DF-L #1 left out. Reactions R1 -125 lb, R2 625 lb.\n"
                 "Greatest shear 500 lb between 12.00 ft and 15.00 ft from R1. Least shear -125 lb between "
                 "0.00 ft and 12.00 ft from R1. Shear is zero at 12.00 ft from R1.\n"
                 "Least moment -1,500 ft-lb at 12.00 ft from R1. Moment for design 1,500 ft-lb.\n"
                 "Greatest deflection 0.035 in. at 15.00 ft from R1. Greatest upward deflection 0.021 in. at "
                 "6.93 ft from R1. This is the elastic line, without creep; the report finds its deflections "
                 "by equivalent loads."},
        TextCase{"not calculated", [](Session& /*session*/) {}, CurveLoads::Total, ""}),
    CaseName);

/// Tip: P c^2 (L + c) / 3 - w L^3 c / 24 = 16,800 - 14,400 lb-ft3, over E I = 1.1153e9 lb-in2.
TEST(LoadDiagram, TellsTheTipWhereItIsNoPeak)
{
    Session session = PlainSession();
    session.Problem.Support = SupportCondition::Overhanging;
    session.Problem.NoWeight = true;
    SetPoint(session.Problem, 4, "900", "2");
    Calculate(session);
    Tested(session, Member("6x", "12", "DF-L #1"));
    const LoadDiagram diagram = ReadLoadDiagram(session, CurveLoads::Total);
    const CurvePlot& deflection = diagram.Plots.back();
    EXPECT_EQ(deflection.Remark, "elastic, without creep");
    EXPECT_EQ(deflection.Marks.back().Text, "0.004 at the tip");
    EXPECT_THAT(deflection.Peaks, HasSubstr(" The tip deflects 0.004 in. "));
}

TEST(LoadDiagram, MarksPeaksAndZeroesButNoSupports)
{
    Session session = PlainSession();
    session.Problem.Support = SupportCondition::MultipleSpans;
    Calculate(session);
    const LoadDiagram diagram = ReadLoadDiagram(session, CurveLoads::Total);
    std::vector<std::string> texts;
    for (const CurveMark& mark : diagram.Plots.front().Marks) {
        texts.push_back(mark.Text);
    }
    EXPECT_THAT(texts, ElementsAre("750 at 12.00 ft", "-750 at 12.00 ft", "0 at 4.50 ft", "0 at 19.50 ft"));
    EXPECT_EQ(diagram.Plots[1].Remark, "for design 1,800 ft-lb");
    EXPECT_EQ(diagram.LoadsText,
              "Two equal spans of 12.0 ft. Load A: 100 plf, live 60 over the whole span. "
              "Reactions R1 450 lb, R2 1,500 lb, R3 450 lb.");
}

/// The rising load has 2 W / L = 200 plf at R2.
TEST(LoadDiagram, ShowsTheLoadsAsTheyWereCalculated)
{
    Session session = PlainSession();
    session.Problem.Support = SupportCondition::HipValley;
    session.Problem.Loads.IncTL = "40";
    session.Problem.Loads.UNIF = "102.64";
    session.IncreasingTotalLoad = 1200;
    session.IncreasingLiveLoad = 600;
    Calculate(session);
    session.Problem.Loads = {};
    EXPECT_THAT(ReadLoadDiagram(session, CurveLoads::Total).LoadsText,
                HasSubstr("Rising load: 200 plf, live 100 at R2, rising from nothing at R1."));
    EXPECT_THAT(ReadLoadDiagram(session, CurveLoads::Live).LoadsText,
                HasSubstr("Rising load: 100 plf, live 100 at R2"));
}

/// A 6x12 weighs 15.4 plf; P b / L = 750 and P a / L = 250.
TEST(LoadDiagram, ReadsAPlace)
{
    Session session = PlainSession();
    session.Problem.Loads.UNIF = session.Problem.Loads.LUNIF = "";
    SetPoint(session.Problem, 0, "1000", "3", "600");
    Calculate(session);
    EXPECT_EQ(ReadingText(ReadLoadDiagram(session, CurveLoads::Total), 3),
              "At 3.00 ft:  shear 750 lb, then -250 lb;  moment 2,250 ft-lb");
    EXPECT_EQ(ReadingText(ReadLoadDiagram(session, CurveLoads::Live), 12),
              "At 12.00 ft:  shear -150 lb;  moment 0 ft-lb");
    Tested(session, Member("6x", "12", "DF-L #1"));
    const LoadDiagram tested = ReadLoadDiagram(session, CurveLoads::Total);
    EXPECT_EQ(tested.Caption, "All loads and the weight of 6x  12 DF-L #1, 15.4 plf.");
    EXPECT_THAT(ReadingText(tested, 0), HasSubstr("moment 0 ft-lb;  deflection 0.000 in."));
    EXPECT_EQ(ReadingText(LoadDiagram{}, 3), "");
}

}  // namespace
}  // namespace kordavan
