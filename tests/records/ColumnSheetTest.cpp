#include <gmock/gmock.h>

#include <limits>
#include <map>

#include "columns/ColumnTexts.h"
#include "columns/SteelColumn.h"
#include "columns/WoodColumn.h"
#include "records/CellText.h"
#include "records/ColumnRecordLayout.h"
#include "records/ColumnSheetFill.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using Cells = std::map<std::size_t, std::string>;

const RecordHeading Heading{.Project = "Barn",
                            .Description = "Ridge post",
                            .BeamId = "C1",
                            .Heading1 = "Timber & Sons",
                            .Heading2 = "",
                            .Date = "3/07/26",
                            .Initials = "JD"};

/// 8,500 lb on a nailed column of DF-L #2, 10 ft high and braced throughout in plane D1.
ColumnProblem NailedProblem()
{
    ColumnProblem problem;
    problem.Reaction = 8500;
    problem.ColumnHeight = problem.UnbracedD2 = 10;
    problem.BaseFc = 1350;
    problem.BaseE = 1.6F;
    problem.BucklingKe = 1;
    problem.DurationCd = 1.15F;
    problem.D1FullyBraced = true;
    problem.Type = ColumnType::NailedBuiltUp;
    problem.SpeciesGrade = "DF-L #2";
    return problem;
}

WoodColumnTest Tested(const ColumnProblem& problem, std::string_view D1, std::string_view D2)
{
    ScriptedUser user;
    ColumnFactors carried;
    const auto result = TestColumnSize(D1, D2, problem, Edition::Nds2018, carried, user);
    EXPECT_TRUE(result) << D1 << " x " << D2;
    return {.Problem = problem, .Nds = Edition::Nds2018, .Result = result.value_or(ColumnResult{})};
}

ColumnSheet WoodSheet(const ColumnProblem& problem, std::string_view D1, std::string_view D2)
{
    return FillWoodColumnSheet(Tested(problem, D1, D2), Heading, {"Paint it."});
}

SteelColumnTest TestedSteel(const SteelColumnProblem& problem, std::size_t row)
{
    return {.Problem = problem,
            .Result = WorkOutSteelColumn(problem, row),
            .Size = std::string(SteelColumnRows()[row].Size),
            .TypeAndGrade = std::string(SteelColumnRows()[row].TypeAndGrade)};
}

void ExpectCells(const ColumnSheet& sheet, const Cells& cells)
{
    for (const auto& [label, text] : cells) {
        EXPECT_EQ(sheet[label], text) << "Label" << label;
    }
}

/// (3) 2x6: le2/d = 120 / 5.5 = 21.818; CF 1.1, Fc* = 1350 x 1.1 x 1.15 = 1707.75 psi; FcE = 0.3653 x 0.822 x
/// 1.6e6 / 476.03 = 1009.3 psi; FcE/Fc* = 0.59099: Cp = 0.99437 - sqrt(0.98877 - 0.73874) = 0.4943; Fc' =
/// 844.2 psi; A = 24.75 in2, fc = 343.4 psi, 40.7%.
TEST(WoodColumnSheet, OfAColumnThatPassesStatesItsFiguresAndBracing)
{
    const ColumnSheet sheet = WoodSheet(NailedProblem(), "4.5", "5.5");
    ExpectCells(
        sheet,
        {{1, "Timber & Sons"}, {3, "Barn"},     {4, "Ridge post"},  {5, "C1"},     {6, "Prepared by: JD"},
         {7, "Date: 3/07/26"}, {10, "DF-L #2"}, {86, "Status: OK"}, {15, "8,500"}, {17, "10.0"},
         {19, "1.00"},         {23, "0.0"},     {29, "10.0"},       {30, "4.5"},   {36, "5.5"},
         {55, "0.0"},          {60, "120.0"},   {61, "0.00"},       {67, "21.82"}, {68, "50"},
         {69, "OK"},           {38, "1,350"},   {39, "1.6"},        {40, "1.15"},  {41, "1.10"},
         {48, "1.00"},         {51, "1.00"},    {52, "1.00"},       {54, "0.8"},   {70, "1.600"},
         {71, "1,708"},        {75, "1,009"},   {76, "0.3003"},     {77, "1.000"}, {80, "0.494"},
         {81, "24.75"},        {82, "343"},     {83, "844"},        {84, "41%"}});
    EXPECT_THAT(sheet[66], testing::StartsWith("NDS 2018, "));
    EXPECT_EQ(sheet[59], "Plane D2 governs: plane D1 is braced throughout its length.");
    EXPECT_EQ(
        sheet.SheathNote,
        "Plane D1 is braced throughout: fasten the sheathing or bracing to the column over its full height; "
        "Kf is taken as 1.0.");
    EXPECT_THAT(sheet.Sheathnote2, testing::StartsWith("Nail per NDS 15.3.3"));
    EXPECT_EQ(sheet.ReportNotes[0], "Paint it.");
}

/// (2) 2x4, 10 ft unbraced both ways, wet and incised: le1/d = 40 governs; CF 1.15, CmFc 0.8 as 1350 x 1.15
/// is over 750, Ci 0.8: Fc* = 1552.5 x 1.15 x 0.64 = 1142.6 psi; E' = 1.6e6 x 0.9 x 0.95 = 1.368e6; FcE =
/// 0.30028 x 1.368e6 / 1600 = 256.7 psi; ratio 0.22469: Cp = (0.76543 - sqrt(0.58589 - 0.28086)) x 0.6 =
/// 0.1279; Fc' = 146.1 psi against fc = 8500 / 10.5 = 809.5 psi, 554%.
TEST(WoodColumnSheet, OfAColumnThatFailsSaysWhy)
{
    ColumnProblem problem = NailedProblem();
    problem.UnbracedD1 = 10;
    problem.D1FullyBraced = false;
    problem.WetUse = problem.Incised = true;
    const ColumnSheet sheet = WoodSheet(problem, "3", "3.5");
    ExpectCells(sheet, {{86, "Status: Fails"},
                        {48, "0.80"},
                        {49, "0.90"},
                        {50, "0.80"},
                        {51, "0.95"},
                        {52, "0.60"},
                        {61, "40.00"},
                        {67, "34.29"},
                        {69, "OK"},
                        {70, "1.368"},
                        {71, "1,143"},
                        {75, "257"},
                        {77, "0.128"},
                        {80, "1.000"},
                        {82, "810"},
                        {83, "146"},
                        {84, "554%"}});
    EXPECT_THAT(sheet[59], testing::HasSubstr("fc of 809.5 psi is over Fc' of 146.1 psi."));
    EXPECT_EQ(sheet.SheathNote, "");
}

TEST(WoodColumnSheet, LeavesOutWhatDoesNotApply)
{
    ColumnProblem problem = NailedProblem();
    problem.Type = ColumnType::SolidSawn6x;
    problem.BucklingKe = 0;  // so neither plane can buckle
    const ColumnSheet sheet = WoodSheet(problem, "5.5", "5.5");
    ExpectCells(sheet, {{52, ""}, {54, ""}, {75, ""}, {76, ""}, {77, "1.000"}, {80, "1.000"}});
    EXPECT_EQ(sheet.Sheathnote2, "");
}

struct BracingCase {
    std::string_view Name;
    float UnbracedD1;
    float UnbracedD2;
    bool IsSheathed;
    ColumnType Type;
    std::string_view SheathNote;
    std::string_view Sheathnote2;
};

class BracingNoteTest : public testing::TestWithParam<BracingCase> {};

TEST_P(BracingNoteTest, TellsWhatMustBeFastened)
{
    ColumnProblem problem = NailedProblem();
    problem.UnbracedD1 = GetParam().UnbracedD1;
    problem.UnbracedD2 = GetParam().UnbracedD2;
    problem.D1FullyBraced = GetParam().IsSheathed;
    problem.Type = GetParam().Type;
    const ColumnSheet sheet = WoodSheet(problem, "4.5", "5.5");
    EXPECT_EQ(sheet.SheathNote, GetParam().SheathNote);
    EXPECT_THAT(sheet.Sheathnote2, testing::StartsWith(std::string(GetParam().Sheathnote2)));
    EXPECT_EQ(sheet.Sheathnote2.empty(), GetParam().Sheathnote2.empty());
}

INSTANTIATE_TEST_SUITE_P(
    ColumnSheet, BracingNoteTest,
    testing::Values(
        BracingCase{"free", 8, 8, false, ColumnType::BoltedBuiltUp, "", "Bolt per NDS 15.3.4"},
        BracingCase{
            "sheathed between supports", 8, 8, true, ColumnType::BoltedBuiltUp,
            "Face D1 is sheathed: fasten the sheathing or bracing to the column over its full height; Kf "
            "is taken as 1.0.",
            "Bolt"},
        BracingCase{
            "sawn braced in D1", 0, 8, true, ColumnType::SolidSawn6x,
            "Plane D1 is braced throughout: fasten the sheathing or bracing to the column over its full "
            "height.",
            ""},
        BracingCase{
            "braced in D2", 8, 0, false, ColumnType::NailedBuiltUp,
            "Plane D2 is braced throughout: fasten the sheathing or bracing to the column over its full "
            "height.",
            "Nail"}),
    CaseName);

/// 4 in. standard pipe, 42 kips on 10 ft: KL/r = 120 / 1.51 = 79.5; (79.47 / 126.1)^2 / 2 = 0.19858, Fa =
/// 0.80142 x 36 / (1.66667 + 0.23633 - 0.03129) = 15.41 ksi; 42 / 3.17 = 13.25 ksi; 42 / 15.41 = 2.72 in2,
/// 86%.
TEST(SteelColumnSheet, StatesChecksSectionAndSteel)
{
    const SteelColumnProblem problem{.Reaction = 42000, .UnbracedLength = 120, .K = 1, .ColumnHeight = 12};
    const ColumnSheet sheet = FillSteelColumnSheet(TestedSteel(problem, 2), Heading, {});
    ExpectCells(sheet, {{10, "4 in. diam. steel column, Standard Wt. Pipe A501 or A53 Grade B"},
                        {6, "Prepared by: JD"},
                        {15, "42,000"},
                        {17, "12.0"},
                        {19, "10.0"},
                        {23, "1.00"},
                        {29, "120"},
                        {30, "1.51"},
                        {36, "4.5"},
                        {38, "10.79"},
                        {39, "36"},
                        {40, "29"},
                        {41, "126.1"},
                        {50, "79"},
                        {51, "200"},
                        {52, "40%"},
                        {60, "OK"},
                        {61, "15.4"},
                        {71, "13.2"},
                        {75, "15.4"},
                        {76, "86%"},
                        {77, "OK"},
                        {81, "2.7"},
                        {82, "3.2"},
                        {83, "86%"},
                        {84, "OK"}});
}

TEST(SteelColumnSheet, KeepsTheHeightThatWasEntered)
{
    ColumnEntry entry;
    entry.cHTtext = "12.5";
    EXPECT_EQ(ReadSteelColumnProblem(entry).ColumnHeight, 12.5F);
}

/// Every text of the sheet has a field and fits it.
void ExpectFits(const ColumnSheet& sheet, const RecordLayout& layout)
{
    std::map<std::string_view, std::size_t> lengths;
    for (const RecordField& field : layout.Fields) {
        lengths[field.Name] = field.Length;
    }
    constexpr std::size_t firstInFile = 3;  // the header lines are not saved
    for (std::size_t label = firstInFile; label < ColumnSheet::LabelCount; ++label) {
        if (!sheet[label].empty()) {
            ASSERT_TRUE(lengths.contains(LabelName(label))) << label;
            EXPECT_LE(sheet[label].size(), lengths[LabelName(label)])
                << LabelName(label) << ": " << sheet[label];
        }
    }
    EXPECT_LE(sheet.SheathNote.size(), lengths["SheathNote"]);
    EXPECT_LE(sheet.Sheathnote2.size(), lengths["Sheathnote2"]);
}

struct ExtremeCase {
    std::string_view Name;
    float Load;
    float Length;
    float Ke;
    std::string_view D1;
    std::string_view D2;
};

class FieldLengthTest : public testing::TestWithParam<ExtremeCase> {};

TEST_P(FieldLengthTest, HoldsEveryText)
{
    const ExtremeCase& extreme = GetParam();
    for (const ColumnType type : {ColumnType::SolidSawn6x, ColumnType::SolidSawn2xOr4x,
                                  ColumnType::NailedBuiltUp, ColumnType::BoltedBuiltUp}) {
        for (const bool isBraced : {false, true}) {
            ColumnProblem problem = NailedProblem();
            problem.Type = type;
            problem.Reaction = extreme.Load;
            problem.ColumnHeight = problem.UnbracedD2 = extreme.Length;
            problem.UnbracedD1 = isBraced ? 0 : extreme.Length;
            problem.D1FullyBraced = problem.WetUse = problem.Incised = isBraced;
            problem.BucklingKe = extreme.Ke;
            problem.BaseFc = 1234.567F;
            problem.BaseE = 1.2345678F;
            problem.SpeciesGrade = "Eastern Hem-Tam Select";
            ExpectFits(WoodSheet(problem, extreme.D1, extreme.D2), WoodColumnRecordLayout);
        }
    }
}

TEST_P(FieldLengthTest, HoldsEveryTextOfSteel)
{
    const SteelColumnProblem problem{.Reaction = GetParam().Load,
                                     .UnbracedLength = 12 * GetParam().Length,
                                     .K = GetParam().Ke,
                                     .ColumnHeight = GetParam().Length};
    for (std::size_t row = 0; row < SteelColumnRows().size(); ++row) {
        ExpectFits(FillSteelColumnSheet(TestedSteel(problem, row), Heading, {}), SteelColumnRecordLayout);
    }
}

INSTANTIATE_TEST_SUITE_P(ColumnSheet, FieldLengthTest,
                         testing::Values(ExtremeCase{"usual", 12345, 8.3333F, 1, "3.5", "5.5"},
                                         ExtremeCase{"great load", 9.9e9F, 10, 1, "5.5", "5.5"},
                                         ExtremeCase{"small load", 0.01F, 10, 1, "5.5", "5.5"},
                                         ExtremeCase{"very slender", 5000, 98765.432F, 2.1F, "0.5", "0.75"},
                                         ExtremeCase{"very stocky", 5000, 0.125F, 0.65F, "1234.5678",
                                                     "2345.6789"}),
                         CaseName);

TEST(ColumnSheet, GivesItsHeadingBack)
{
    ColumnSheet sheet;
    HeadColumnSheet(Heading, sheet);
    RecordHeading read = HeadingOnColumnSheet(sheet);
    EXPECT_EQ(read.Project + read.Description + read.BeamId, "BarnRidge postC1");
    EXPECT_EQ(read.Heading1 + read.Date + read.Initials, "Timber & Sons3/07/26JD");
    sheet[6] = "Prepared by:";  // as a file without initials reads
    EXPECT_EQ(HeadingOnColumnSheet(sheet).Initials, "");
}

struct CellNumberCase {
    std::string_view Name;
    double Value;
    std::string_view Format;
    std::string_view Text;
};

class CellNumberTest : public testing::TestWithParam<CellNumberCase> {};

TEST_P(CellNumberTest, KeepsAsMuchAsFits)
{
    EXPECT_EQ(CellNumber(GetParam().Value, GetParam().Format), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    ColumnSheet, CellNumberTest,
    testing::Values(CellNumberCase{"as it is", 99999, "#,##0", "99,999"},
                    CellNumberCase{"commas go first", 100000, "#,##0", "100000"},
                    CellNumberCase{"then decimals", 1234.567, "#,##0.00", "1234.6"},
                    CellNumberCase{"no point at the end", 1350, "#,##0.##", "1,350"},
                    CellNumberCase{"a power of ten", 48e6, "#,##0", "4.8E7"},
                    CellNumberCase{"rounding beyond six", 999999.5, "#,##0", "1.0E6"},
                    CellNumberCase{"the greatest", std::numeric_limits<float>::max(), "0.0", "3.4E38"},
                    CellNumberCase{"below zero", -1234567, "#,##0", "-1.2E6"},
                    CellNumberCase{"not finite", std::numeric_limits<double>::infinity(), "0", ""}),
    CaseName);

TEST(ColumnSheet, FitsRatiosIntoTheirCells)
{
    EXPECT_EQ(CellPercent("1,234%"), "1,234%");
    EXPECT_EQ(CellPercent("12,345%"), "12345%");
    EXPECT_EQ(CellPercent("123,456%"), ">9999%");
    EXPECT_EQ(CellPercent("over 100%"), ">100%");
    EXPECT_EQ(CellPercent("%"), "0%");
}

}  // namespace
}  // namespace kordavan
