#include "notch/NotchTexts.h"

#include <gmock/gmock.h>

#include "notch/NotchBuilder.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

NotchSession Calculated(std::int16_t ndsYear, const NotchEntry& entry = PlainNotch())
{
    ScriptedUser user;
    NotchSession notch = NotchUnder(ndsYear, entry);
    EXPECT_EQ(CalculateNotch(notch, user), Outcome::Done);
    return notch;
}

struct StatusCase {
    std::string_view Name;
    std::int16_t Year;
    std::string V;
    std::string Dn;
    std::string_view Status;
};

class NotchStatusText : public testing::TestWithParam<StatusCase> {};

TEST_P(NotchStatusText, HasItsBlanks)
{
    const StatusCase& test = GetParam();
    NotchEntry entry = PlainNotch();
    entry.MaxVtextbox = test.V;
    entry.dnTextbox = test.Dn;
    const NotchTexts texts = DescribeNotch(Calculated(test.Year, entry));
    EXPECT_EQ(texts.ShearStatusLabel, test.Status);
    EXPECT_EQ(texts.Fails, test.Status.starts_with("FAILS!"));
}

INSTANTIATE_TEST_SUITE_P(
    Verdicts, NotchStatusText,
    testing::Values(StatusCase{"stress", 1997, "2000", "8", "OK  Fv ratio less than 100%"},
                    StatusCase{"stress ratio", 1997, "9000", "7", "FAILS! Fv ratio greater than 100%"},
                    StatusCase{"stress dn", 1997, "200", "7", "FAILS!  Actual dn < Minimum dn "},
                    StatusCase{"reaction", 2005, "2000", "8", "OK  Fv ratio less than 100%"},
                    StatusCase{"reaction ratio", 2005, "9000", "7", "FAILS!  Fv ratio greater than 100%"},
                    StatusCase{"reaction dn", 2001, "200", "7", "FAILS!  Actual dn < Minimum dn"}),
    CaseName);

TEST(NotchTexts, TellAStressAndAReactionEachByItsNames)
{
    // fv = 133.928571 psi, of 180 74.404762 %; Vr' = 2150.401 lb, V / Vr' 93.005906 %.
    const NotchTexts stress = DescribeNotch(Calculated(1997));
    EXPECT_EQ(stress.CritLabel, "Allowable fv =");
    EXPECT_EQ(stress.CriticalfvLabel, "133.93");
    EXPECT_EQ(stress.CritPsiLabel, "psi");
    EXPECT_EQ(stress.RatioTitle, "Ratio fv / Fv' =");
    EXPECT_EQ(stress.RatioLabel, "74.4");
    EXPECT_EQ(stress.AdjFvLabel, "180.0");
    EXPECT_EQ(stress.AnLabel, "28.0");
    const NotchTexts reaction = DescribeNotch(Calculated(2005));
    EXPECT_EQ(reaction.CritLabel, "Allowable Vr' =");
    EXPECT_EQ(reaction.CriticalfvLabel, "2150");
    EXPECT_EQ(reaction.CritPsiLabel, "lbs");
    EXPECT_EQ(reaction.RatioTitle, "Ratio V / Vr' =");
    EXPECT_EQ(reaction.RatioLabel, "93.01");
    EXPECT_NEAR(reaction.Ratio.value(), 0.93005906, 1e-8);
}

struct MinimumTextCase {
    std::string_view Name;
    NotchMember Member;
    NotchType Notch;
    std::int16_t Year;
    std::string Depth;
    std::string_view Text;
};

class NotchMinimumText : public testing::TestWithParam<MinimumTextCase> {};

TEST_P(NotchMinimumText, NamesItsRuleBeforeAnyRun)
{
    const MinimumTextCase& test = GetParam();
    NotchEntry entry = PlainNotch(test.Member, test.Notch);
    entry.depthtextbox = test.Depth;
    EXPECT_EQ(DescribeNotch(NotchUnder(test.Year, entry)).DnMinimum, test.Text);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, NotchMinimumText,
    testing::Values(
        MinimumTextCase{"sawn", Sawn, NotchType::Tension, 2018, "9.25", "3/4d = Minimum dn = 6.94 in."},
        MinimumTextCase{"compression", Glulam, NotchType::Compression, 2005, "18",
                        "3/5d = Minimum dn = 10.8 in."},
        MinimumTextCase{"tapered", Glulam, NotchType::Tapered, 1997, "16.5", "1/3d = Minimum dn = 5.49 in."},
        MinimumTextCase{"1997", Glulam, NotchType::Tension, 1997, "24", "9/10d = Minimum dn = 21.6 in."},
        MinimumTextCase{"2005", Glulam, NotchType::Tension, 2005, "24", "d-3in. = Minimum dn = 21.0 in.."},
        MinimumTextCase{"no depth", Log, NotchType::Tension, 2005, "", "3/4d = Minimum dn = "}),
    CaseName);

TEST(NotchTexts, FollowWetUseBeforeAnyRun)
{
    for (const auto& [member, depth, text] :
         {std::tuple{Sawn, "10", "Wet Use Factor = 0.97"}, std::tuple{Log, "4.9", "Wet Use Factor = 0.97"},
          std::tuple{Log, "5", "Wet Use Factor = 1.0"}, std::tuple{Glulam, "10", "Wet Use Factor = 0.875"}}) {
        NotchEntry entry = PlainNotch(member);
        entry.depthtextbox = depth;
        EXPECT_EQ(DescribeNotch(NotchUnder(2005, entry)).WetUseLabel, "Wet Use Factor = 1.0");
        entry.WetUseCheckbox = true;
        EXPECT_EQ(DescribeNotch(NotchUnder(2005, entry)).WetUseLabel, text);
    }
}

TEST(NotchTexts, HaveTaperFiguresForATaperedNotchAlone)
{
    NotchEntry entry = PlainNotch(Sawn, NotchType::Tapered);
    entry.eTextbox = "4";
    const NotchTexts tapered = DescribeNotch(Calculated(2005, entry));
    EXPECT_EQ(tapered.MinSpanLabel, "1.0");
    EXPECT_EQ(tapered.TaperAngleLabel, "45.0");
    EXPECT_EQ(DescribeNotch(NotchUnder(2005, entry)).MinSpanLabel, "");
    const NotchTexts tension = DescribeNotch(Calculated(2005));
    EXPECT_EQ(tension.MinSpanLabel, "n/a");
    EXPECT_EQ(tension.TaperAngleLabel, "n/a");
}

TEST(NotchTexts, SayThatNothingWasComputedAndWhoseResultIsShown)
{
    NotchSession notch = Calculated(2018);
    const NotchTexts none = DescribeNotch(notch);
    EXPECT_EQ(none.NotchNote, "NDS 2018 has no rule here: nothing was computed.");
    EXPECT_EQ(none.CritLabel + none.CriticalfvLabel + none.RatioLabel + none.ShearStatusLabel, "");
    EXPECT_FALSE(none.Fails || none.IsOfEarlierRun || none.Ratio);
    EXPECT_EQ(none.AdjFvLabel, "180.0");

    notch = Calculated(2005);
    notch.Years.NdsYear = 2018;
    EXPECT_TRUE(DescribeNotch(notch).IsOutdated);
    ScriptedUser user;
    ASSERT_EQ(CalculateNotch(notch, user), Outcome::Done);
    const NotchTexts earlier = DescribeNotch(notch);
    EXPECT_EQ(earlier.NotchNote,
              "NDS 2018 has no rule here: nothing was computed. The result shown is of the "
              "run before, under NDS 2005.");
    EXPECT_EQ(earlier.CriticalfvLabel, "2150");
    EXPECT_TRUE(earlier.IsOfEarlierRun);
    EXPECT_FALSE(earlier.IsOutdated);
    EXPECT_EQ(earlier.YearLine, "In force: NDS 2018. No rule: not computed.");
}

TEST(NotchTexts, AreOutdatedOnceAnEntryDiffers)
{
    NotchSession notch = Calculated(2005);
    EXPECT_FALSE(DescribeNotch(notch).IsOutdated);
    notch.Entry.dnTextbox = "8.0";
    EXPECT_TRUE(DescribeNotch(notch).IsOutdated);
    EXPECT_FALSE(DescribeNotch(NotchUnder(2005)).IsOutdated);
}

TEST(NotchTexts, WarnOfALogCutBelowItsCentre)
{
    // r = 5, dn 2: as the segment of a cut to 8, 11.18 in^2 remain; 78.54 + 11.18 = 89.72 is shown.
    NotchEntry entry = PlainNotch(Log);
    entry.dnTextbox = "2";
    const NotchTexts texts = DescribeNotch(Calculated(1997, entry));
    EXPECT_EQ(texts.AnLabel, "89.72");
    EXPECT_THAT(texts.NotchNote, testing::HasSubstr("what really remains is 11.18 in\u00B2."));
    entry.dnTextbox = "5";
    EXPECT_EQ(DescribeNotch(Calculated(1997, entry)).NotchNote, "");
}

TEST(NotchTexts, SayErrorForANotchThatIsNone)
{
    NotchSession notch = Calculated(2005);
    notch.Entry.NotchListBox = -1;
    EXPECT_EQ(DescribeNotch(notch).CriticalfvLabel, "Error!");
}

std::string FigureOf(const std::vector<NotchReportLine>& lines, std::string_view caption)
{
    for (const NotchReportLine& line : lines) {
        if (line.Caption == caption) {
            return line.Figure + " " + std::string(line.Unit);
        }
    }
    return "none";
}

TEST(NotchReport, HasTheEntriesThatTheRunReadAndItsResults)
{
    NotchEntry entry = PlainNotch(Sawn, NotchType::Tapered);
    const NotchRun tapered = *Calculated(2005, entry).Run;
    EXPECT_EQ(FigureOf(NotchEntryLines(tapered), "Shear V, no reductions"), "2000 lb");
    EXPECT_EQ(FigureOf(NotchEntryLines(tapered), "Roof pitch rp"), "12 in 12");
    EXPECT_EQ(FigureOf(NotchEntryLines(tapered), "Setback e"), "none");
    EXPECT_EQ(FigureOf(NotchResultLines(tapered), "Area at notch An"), "28.0 in\u00B2");
    EXPECT_EQ(FigureOf(NotchResultLines(tapered), "Minimum span"), "0.44 ft");
    entry.rpTextbox = "45";
    EXPECT_EQ(FigureOf(NotchEntryLines(*Calculated(2005, entry).Run), "Roof pitch rp"), "45 degrees");
    entry.NotchListBox = 1;
    entry.eTextbox = "4";
    const NotchRun none = *Calculated(2018, entry).Run;
    EXPECT_EQ(FigureOf(NotchEntryLines(none), "Setback e"), "4 in.");
    EXPECT_EQ(FigureOf(NotchEntryLines(none), "Roof pitch rp"), "none");
    EXPECT_EQ(FigureOf(NotchResultLines(none), "Shear factor Ch"), "1 ");
}

}  // namespace
}  // namespace kordavan
