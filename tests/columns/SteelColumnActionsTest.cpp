#include <gmock/gmock.h>

#include <string>

#include "columns/SteelColumn.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view StandardGrade = "Standard Wt. Pipe A501 or A53 Grade B";
constexpr std::string_view TubeGrade = "Structural Tube ASTM A500 Grade B";

constexpr std::string_view EnterSizeText =
    "Please enter a steel column size above.  Click on a 'quick pick' button under Square Tubes or Round Pipe. "
    "You may edit the column size by typing in any valid square or round column size available in Kordavan.  To "
    "see available sizes, click on the raised gray square next to the 'Size' above.";
constexpr std::string_view ListedSizeText =
    "Please enter a steel column size that matches a size from the Kordavan database.  Click on a 'quick pick' "
    "button under Square Tubes or Round Pipe. You may edit the column size by typing in any valid square or "
    "round column size available in Kordavan.  To see available sizes, click on the raised gray square next to "
    "the 'Size' above.";
constexpr std::string_view NoMatchText =
    "Kordavan could not find a match in the database for the size entered. Please click the small, gray, raised "
    "button next to 'Size' to see a list of acceptable entries.";

ColumnEntry Entry(const std::string& pounds, const std::string& feet)
{
    ColumnEntry entry;
    entry.cReacText = pounds;
    entry.cHTtext = "50";
    entry.cD1text = feet;
    return entry;
}

/// A column of 60 kips, 14 ft high, that has been calculated.
ColumnSession Calculated()
{
    ColumnSession columns;
    columns.Entry = Entry("60000", "14");
    ScriptedUser user;
    EXPECT_EQ(CalculateSteelColumn(columns, user), Outcome::Done);
    EXPECT_THAT(user.Told, IsEmpty());
    return columns;
}

TEST(CalculateSteelColumn, EmptiesTheSizeAndTheReportBefore)
{
    ColumnSession columns = Calculated();
    ScriptedUser user;
    EXPECT_EQ(PickSteelColumn(columns, SteelColumnKind::Standard, 0, user), Outcome::Done);
    ASSERT_TRUE(columns.SteelTest);
    columns.Entry = Entry("2000000", "14");
    EXPECT_EQ(CalculateSteelColumn(columns, user), Outcome::Done);
    EXPECT_FALSE(columns.SteelTest);
    EXPECT_EQ(columns.StlColSizeText + columns.StlColGrade, "");
    EXPECT_FALSE(columns.SteelPicks.Label60.empty());
    EXPECT_THAT(user.Told, IsEmpty());
}

TEST(CalculateSteelColumn, AsksForNothingOfWood)
{
    ColumnSession columns;
    columns.Entry = Entry("20000", "8");
    columns.Entry.cD2text = columns.Entry.cDurText = "";
    ScriptedUser user;
    EXPECT_EQ(CalculateSteelColumn(columns, user), Outcome::Done);
    EXPECT_EQ(columns.SteelPicks.StdRndBut, "3 in. diam.");
    EXPECT_EQ(columns.SteelProblem.UnbracedLength, 96);
}

TEST(CalculateSteelColumn, RefusedLeavesTheSizesAndTheReport)
{
    ColumnSession columns = Calculated();
    ScriptedUser user;
    EXPECT_EQ(PickSteelColumn(columns, SteelColumnKind::Tube, 0, user), Outcome::Done);
    const SteelColumnPicks picks = columns.SteelPicks;
    columns.Entry.cReacText = "";
    EXPECT_EQ(CalculateSteelColumn(columns, user), Outcome::Refused);
    EXPECT_THAT(user.Told,
                ElementsAre(RefusalOf("Please enter a reaction weight on the column.", "cReacText")));
    EXPECT_EQ(columns.SteelPicks, picks);
    EXPECT_EQ(columns.SteelProblem.Reaction, 60000);
    EXPECT_EQ(columns.StlColSizeText, "4 x 4 x 1/2");
    EXPECT_TRUE(columns.SteelTest);
}

struct PickCase {
    SteelColumnKind Kind;
    std::size_t Tube;
    std::string_view Size;
    std::string_view Grade;
    std::size_t Row;
};

class SteelPickTest : public testing::TestWithParam<PickCase> {};

TEST_P(SteelPickTest, ReportsOnItsOwnRow)
{
    ColumnSession columns = Calculated();
    ScriptedUser user;
    EXPECT_EQ(PickSteelColumn(columns, GetParam().Kind, GetParam().Tube, user), Outcome::Done);
    EXPECT_EQ(columns.StlColSizeText, GetParam().Size);
    EXPECT_EQ(columns.StlColGrade, GetParam().Grade);
    ASSERT_TRUE(columns.SteelTest);
    EXPECT_EQ(columns.SteelTest->Result.Row, GetParam().Row);
    EXPECT_TRUE(columns.SteelTest->Result.Passes());
    EXPECT_THAT(user.Told, IsEmpty());
}

// KLr = 168 / r. A 5 in. standard pipe: 89.36, Fa 14.3, 4.2 of 4.3 in^2; extra strong: 91.3, 14.06, 4.27 of
// 6.11 in^2, where the 4 in. (113.5, 11.2) has 4.41 for 5.38 in^2; the 4 in. double: 122.6, 9.9, 6.06 of 8.1.
INSTANTIATE_TEST_SUITE_P(Buttons, SteelPickTest,
                         testing::Values(PickCase{SteelColumnKind::Standard, 0, "5 in. diam.", StandardGrade,
                                                  3},
                                         PickCase{SteelColumnKind::ExtraStrong, 0, "5 in. diam.",
                                                  "Extra Strong Pipe A501 or A53 Grade B", 8},
                                         PickCase{SteelColumnKind::DoubleExtraStrong, 0, "4 in. diam.",
                                                  "Dbl Extra Strong Pipe A501 or A53 Grade B", 11},
                                         PickCase{SteelColumnKind::Tube, 0, "4 x 4 x 1/2", TubeGrade, 17},
                                         PickCase{SteelColumnKind::Tube, 1, "5 x 5 x 1/4", TubeGrade, 18},
                                         PickCase{SteelColumnKind::Tube, 2, "5 x 5 x 3/8", TubeGrade, 19}));

TEST(PickSteelColumn, OfAnEmptyButtonWithdrawsTheReportWithoutAWord)
{
    ColumnSession columns;
    columns.Entry = Entry("390000", "0");
    ScriptedUser user;
    EXPECT_EQ(CalculateSteelColumn(columns, user), Outcome::Done);
    EXPECT_EQ(PickSteelColumn(columns, SteelColumnKind::Tube, 0, user), Outcome::Done);
    ASSERT_TRUE(columns.SteelTest);
    EXPECT_EQ(PickSteelColumn(columns, SteelColumnKind::Tube, 1, user), Outcome::Done);
    EXPECT_EQ(columns.StlColSizeText + columns.StlColGrade, "");
    EXPECT_FALSE(columns.SteelTest);
    EXPECT_THAT(user.Told, IsEmpty());
}

struct SteelSizeCase {
    std::string_view Name;
    std::string Size;
    std::string Grade;
    std::string_view Text;  // empty for a size that is reported on
    std::string_view Focus;
};

class EnteredSizeTest : public testing::TestWithParam<SteelSizeCase> {};

TEST_P(EnteredSizeTest, IsReportedOnOrRefusedWithTheReportBeforeLeft)
{
    ColumnSession columns = Calculated();
    ScriptedUser user;
    EXPECT_EQ(PickSteelColumn(columns, SteelColumnKind::Tube, 2, user), Outcome::Done);
    columns.StlColSizeText = GetParam().Size;
    columns.StlColGrade = GetParam().Grade;
    const Outcome outcome = ReportEnteredSteelColumn(columns, user);
    ASSERT_TRUE(columns.SteelTest);
    if (GetParam().Text.empty()) {
        EXPECT_EQ(outcome, Outcome::Done);
        EXPECT_THAT(user.Told, IsEmpty());
        EXPECT_EQ(columns.SteelTest->Size, "3 in. diam.");
        EXPECT_EQ(columns.SteelTest->TypeAndGrade, StandardGrade);
    } else {
        EXPECT_EQ(outcome, Outcome::Refused);
        EXPECT_THAT(user.Told, ElementsAre(RefusalOf(GetParam().Text, GetParam().Focus)));
        EXPECT_EQ(columns.SteelTest->Size, "5 x 5 x 3/8");
    }
    EXPECT_EQ(columns.StlColSizeText, GetParam().Size);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, EnteredSizeTest,
    testing::Values(
        SteelSizeCase{"as listed", "3 in. diam.", std::string(StandardGrade), "", ""},
        SteelSizeCase{"blanks around", "  3 in. diam. ", " " + std::string(StandardGrade), "", ""},
        SteelSizeCase{"empty", "", std::string(StandardGrade), EnterSizeText, "StlColSizeText"},
        SteelSizeCase{"blank", "  ", "", EnterSizeText, "StlColSizeText"},
        SteelSizeCase{"without a grade", "3 in. diam.", " ", EnterSizeText, "StlColGrade"},
        SteelSizeCase{"not listed", "7 in. diam.", std::string(StandardGrade), ListedSizeText,
                      "StlColSizeText"},
        SteelSizeCase{"part of a name", "3 in.", std::string(StandardGrade), ListedSizeText,
                      "StlColSizeText"},
        SteelSizeCase{"other case", "3 IN. DIAM.", std::string(StandardGrade), ListedSizeText,
                      "StlColSizeText"},
        SteelSizeCase{"blanks within", "3x3x1/4", std::string(TubeGrade), ListedSizeText, "StlColSizeText"},
        SteelSizeCase{"tube with the grade of a pipe", "3 x 3 x 1/4", std::string(StandardGrade), NoMatchText,
                      "StlColGrade"},
        SteelSizeCase{"size that its class has not", "3-1/2 in. diam.",
                      "Dbl Extra Strong Pipe A501 or A53 Grade B", NoMatchText, "StlColGrade"}),
    CaseName);

TEST(ReportEnteredSteelColumn, RefusesWhatNoFigureCanHold)
{
    ColumnSession columns;
    columns.Entry = Entry("1000000000", "1000000000");
    columns.Entry.cHTtext = columns.Entry.cModeText = "1000000000";
    ScriptedUser user;
    EXPECT_EQ(CalculateSteelColumn(columns, user), Outcome::Done);
    EXPECT_FALSE(columns.SteelPicks.Label60.empty());
    columns.StlColSizeText = "3 in. diam.";
    columns.StlColGrade = StandardGrade;
    EXPECT_EQ(ReportEnteredSteelColumn(columns, user), Outcome::Refused);
    EXPECT_THAT(user.Told,
                ElementsAre(RefusalOf("Overflow: the load or the unbraced length entered is too large "
                                      "for this size to be calculated.",
                                      "StlColSizeText")));
    EXPECT_FALSE(columns.SteelTest);
}

std::vector<std::string> Texts(const SteelColumnProblem& problem, std::size_t row)
{
    std::vector<std::string> texts;
    for (const SteelReportLine& line : SteelReportTexts({.Problem = problem,
                                       .Result = WorkOutSteelColumn(problem, row),
                                       .Size = {},
                                       .TypeAndGrade = {}})) {
        texts.push_back(std::string(line.Name) + ": " + line.Text);
    }
    return texts;
}

TEST(SteelReport, ShowsAPipeThatFails)
{
    // 60 kips on a 5 in. standard pipe 600 in. high: KLr = 0.7 * 600 / 1.88 = 223.40, Fa = 149332.1 / 49909 =
    // 2.992 ksi, P / A = 13.95 ksi, P / Fa = 20.05 in^2 = 466 % of 4.3 in^2.
    EXPECT_THAT(
        Texts({.Reaction = 60000, .UnbracedLength = 600, .K = 0.7}, 3),
        ElementsAre("Reaction: 60,000", "Fy: 36", "E: 29", "Cc: 126.1", "Wt. p/ft.: 14.62", "K: 0.70",
                    "unbraced, in.: 600", "r: 1.88", "Fa: 3.0", "KL/r actual: 223", "KL/r critical: 200",
                    "KL/r status: Fail", "KL/r ratio: 112%", "stress actual: 14.0", "stress critical: 3.0",
                    "area required: 20.1", "area actual: 4.3", "area ratio: 466%", "area status: Fail",
                    "Actual O.D.: 5.563"));
}

TEST(SteelReport, ShowsABracedTubeThatPasses)
{
    // Fa = 46 / (5/3) = 27.6 ksi, P / A = 90 / 2.59 = 34.7 ksi, P / Fa = 3.26 in^2; 900 lb ask for 0.0326
    // in^2.
    EXPECT_THAT(Texts({.Reaction = 900, .UnbracedLength = 0, .K = 1}, 14),
                ElementsAre("Reaction: 900", "Fy: 46", "E: 29", "Cc: 111.5", "Wt. p/ft.: 8.81", "K: 1.00",
                            "unbraced, in.: 0", "r: 1.1", "Fa: 27.6", "KL/r actual: 0", "KL/r critical: 200",
                            "KL/r status: OK", "KL/r ratio: 0%", "stress actual: 0.3",
                            "stress critical: 27.6", "area required: 0.0", "area actual: 2.6",
                            "area ratio: 1%", "area status: OK", "Actual O.D.: 3 x 3"));
}

TEST(SteelReport, WritesARoundDiameterWithOneDecimal)
{
    EXPECT_EQ(Texts({.Reaction = 900, .UnbracedLength = 60, .K = 1}, 1).back(), "Actual O.D.: 4.0");
}

}  // namespace
}  // namespace kordavan
