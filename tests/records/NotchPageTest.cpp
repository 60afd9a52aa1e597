#include "records/NotchPage.h"

#include <gmock/gmock.h>

#include <tuple>

#include "records/PageGeometry.h"

namespace kordavan {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

/// A glulam with a compression notch under 2005: every figure reads otherwise.
NotchRun ReactionRun()
{
    NotchRun run;
    run.Entry = {.MemberListBox = 2,
                 .NotchListBox = 1,
                 .DurListbox = 1,
                 .MaxVtextbox = "4321",
                 .breadthtextbox = "5.125",
                 .depthtextbox = "24",
                 .Species = "24F-V4 DF",
                 .Fvtextbox = "265",
                 .dnTextbox = "18.5",
                 .eTextbox = "7.25",
                 .rdTextbox = {},
                 .rpTextbox = {},
                 .tTextbox = {},
                 .WetUseCheckbox = true,
                 .NoSplitCheckbox = true};
    run.Problem = {.MemberType = NotchMember::Glulam,
                   .Notch = NotchType::Compression,
                   .MaxV = 4321,
                   .Breadth = 5.125,
                   .Depth = 24,
                   .BaseFv = 265,
                   .DepthAtNotch = 18.5,
                   .NotchSetback = 7.25,
                   .HasSetback = true,
                   .Cm = 0.875,
                   .Ch = 2,
                   .Cd = 1.15,
                   .NdsYear = 2005};
    run.Result = {.AdjustedFv = 533.3,
                  .AreaAtNotch = 94.8,
                  .MinimumDn = 14.4,
                  .Rule = MinimumDnRule::ThreeFifths,
                  .ResultIsV = true,
                  .AllowableV = 39805,
                  .RatioPercent = 10.86,
                  .Verdict = NotchVerdict::Passes};
    return run;
}

/// A rafter's seat under 1997, its ratio too high.
NotchRun TaperedRun()
{
    NotchRun run;
    run.Entry.NotchListBox = 2;
    run.Entry.Species = "DF-L #2";
    run.Entry.rdTextbox = "9.25";
    run.Entry.rpTextbox = "5";
    run.Entry.tTextbox = "3.5";
    run.Problem = {.Notch = NotchType::Tapered,
                   .MaxV = 4000,
                   .Breadth = 1.5,
                   .Depth = 9.25,
                   .BaseFv = 95,
                   .DepthAtNotch = 7.5,
                   .RafterDepth = 9.25,
                   .RoofPitch = 5,
                   .WallBreadth = 3.5,
                   .NdsYear = 1997};
    run.Result = {.AdjustedFv = 95,
                  .AreaAtNotch = 11.25,
                  .MinimumDn = 6.94,
                  .CriticalFv = 533.3,
                  .RatioPercent = 561.4,
                  .MinSpan = 1.14,
                  .TaperAngle = 22.62,
                  .Verdict = NotchVerdict::RatioFails};
    return run;
}

/// A log cut below its centre, under an edition without a rule.
NotchRun RulelessRun()
{
    NotchRun run;
    run.Entry.MemberListBox = 1;
    run.Problem = {.MemberType = NotchMember::SawnRound,
                   .MaxV = 1000,
                   .Breadth = 12,
                   .Depth = 12,
                   .BaseFv = 165,
                   .DepthAtNotch = 4,
                   .NdsYear = 2018};
    run.Result = {.AdjustedFv = 165, .AreaAtNotch = 146, .MinimumDn = 9};
    return run;
}

RecordPage PageOf(const NotchRun& run, const PageOptions& options = {})
{
    const RecordHeading heading{.Project = "Barn",
                                .Description = "North eave",
                                .BeamId = "N1",
                                .Heading1 = "Timber & Sons",
                                .Heading2 = "12 Mill Road",
                                .Date = "3/07/26",
                                .Initials = "JD"};
    return LayOutNotchReport(run, heading, FullNotes, options);
}

/// The statuses from top to bottom.
std::vector<std::string> StatusesOf(const RecordPage& page)
{
    std::vector<std::string> statuses;
    for (const PageText& text : page.Texts) {
        if (text.Style == PageStyle::Status) {
            statuses.push_back(text.Text);
        }
    }
    return statuses;
}

class NotchPageTest : public testing::TestWithParam<std::tuple<bool, bool>> {};

INSTANTIATE_TEST_SUITE_P(Layouts, NotchPageTest, testing::Combine(testing::Bool(), testing::Bool()));

TEST_P(NotchPageTest, IsWellLaidOut)
{
    const PageOptions options{.HighDpi = std::get<0>(GetParam()), .HasDiagram = std::get<1>(GetParam())};
    for (const NotchRun& run : {ReactionRun(), TaperedRun(), RulelessRun()}) {
        const RecordPage page = PageOf(run, options);
        ExpectWithinMargins(page);
        ExpectTextsApart(page);
        EXPECT_EQ(page.Diagram.has_value(), options.HasDiagram);
        EXPECT_EQ(page.Tints.empty(), !options.HighDpi);
        for (const std::string& note : FullNotes) {
            EXPECT_THAT(TextsOf(page), Contains(note));
        }
        for (const std::string& text : TextsOf(page)) {
            EXPECT_LE(text.size(), 110U) << text;
        }
    }
}

TEST(NotchPage, HoldsHeadingEntriesAndFigures)
{
    const std::string page = PlainTextOf(PageOf(ReactionRun()));
    for (const std::string_view text : {"Timber & Sons",
                                        "12 Mill Road",
                                        "Barn",
                                        "North eave",
                                        "Member ID:",
                                        "N1",
                                        "3/07/26",
                                        "JD",
                                        "Glu-Lam, Rectangular 5.125 x 24.0 in., 24F-V4 DF, Compression Notch",
                                        "NDS 2005, wet use, no splits, load duration 1.15 (Snow)",
                                        "OK  Fv ratio less than 100%",
                                        "4,321",
                                        "39,805",
                                        "10.9%",
                                        "533.3",
                                        "94.8",
                                        "14.4",
                                        "18.5",
                                        "77.8%",
                                        "265",
                                        "7.25",
                                        "0.875"}) {
        EXPECT_THAT(page, HasSubstr(text));
    }
    EXPECT_THAT(PlainTextOf(PageOf(ReactionRun(), {.HasNotes = false})), Not(HasSubstr("n7")));
}

TEST(NotchPage, TellsTheSpanAndTheAngleOfATaperedNotchAlone)
{
    const std::string tapered = PlainTextOf(PageOf(TaperedRun()));
    for (const std::string_view text :
         {"Solid Sawn, Rectangular 1.5 x 9.25 in., DF-L #2, Tapered Notch", "NDS 1997, dry use,",
          "Tapered notch may not extend into middle third of span.", "1.14", "22.6", "561.4%"}) {
        EXPECT_THAT(tapered, HasSubstr(text));
    }
    EXPECT_THAT(PlainTextOf(PageOf(ReactionRun())), Not(HasSubstr("middle third")));
}

TEST(NotchPage, EachCheckHasItsOwnStatus)
{
    EXPECT_THAT(StatusesOf(PageOf(ReactionRun())),
                testing::ElementsAre("OK  Fv ratio less than 100%", "OK", "OK"));
    EXPECT_THAT(StatusesOf(PageOf(TaperedRun())),
                testing::ElementsAre("FAILS! Fv ratio greater than 100%", "Fail", "OK"));
    NotchRun shallow = ReactionRun();
    shallow.Problem.DepthAtNotch = 14.3;
    shallow.Result.Verdict = NotchVerdict::DepthFails;
    EXPECT_THAT(StatusesOf(PageOf(shallow)),
                testing::ElementsAre("FAILS!  Actual dn < Minimum dn", "OK", "Fail"));
    shallow.Problem.DepthAtNotch = 14.4;
    shallow.Result.Verdict = NotchVerdict::Passes;
    EXPECT_EQ(StatusesOf(PageOf(shallow))[2], "OK");
}

TEST(NotchPage, ARunWithoutARuleSaysSoAndNoMore)
{
    const RecordPage page = PageOf(RulelessRun());
    EXPECT_THAT(TextsOf(page), Contains("Status: not computed"));
    EXPECT_THAT(StatusesOf(page), testing::IsEmpty());
    const std::string text = PlainTextOf(page);
    EXPECT_THAT(text, HasSubstr("Solid Sawn, Round (Log) 12.0 in. in diameter, Tension Notch"));
    EXPECT_THAT(text, HasSubstr("NDS 2018"));
    EXPECT_THAT(text, Not(HasSubstr("%")));
    EXPECT_THAT(text, HasSubstr("33.0"));  // in^2 that remain below the centre
}

}  // namespace
}  // namespace kordavan
