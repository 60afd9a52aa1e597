#include "columns/WoodColumnReport.h"

#include <gmock/gmock.h>

#include <set>

#include "columns/ColumnEntries.h"
#include "columns/ColumnTexts.h"
#include "columns/WoodColumn.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using enum ColumnType;

WoodColumnTest Tested(const ColumnEntry& entry, std::string_view D1, std::string_view D2)
{
    WoodColumnTest test{.Problem = ReadColumnProblem(entry), .Nds = Edition::Nds2018, .Result = {}};
    ColumnFactors carried;
    ScriptedUser user;
    test.Result = TestColumnSize(D1, D2, test.Problem, test.Nds, carried, user).value_or(ColumnResult{});
    return test;
}

ColumnReportLine LineOf(const WoodColumnReport& report, std::string_view name)
{
    for (const ColumnReportBlock& block : report.Blocks) {
        for (const ColumnReportLine& line : block.Lines) {
            if (line.Name == name) {
                return line;
            }
        }
    }
    ADD_FAILURE() << "no line " << name;
    return {};
}

struct MemberCase {
    ColumnType Type;
    std::string_view D1;
    std::string_view D2;
    std::string_view Text;
};

class ColumnMemberTextTest : public testing::TestWithParam<MemberCase> {};

TEST_P(ColumnMemberTextTest, NamesTheMemberAsTheTradeDoes)
{
    const MemberCase& c = GetParam();
    ColumnEntry entry = WorkingColumn();
    entry.Type = c.Type;
    EXPECT_EQ(ColumnMemberText(Tested(entry, c.D1, c.D2)), c.Text);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, ColumnMemberTextTest,
    testing::Values(
        MemberCase{SolidSawn2xOr4x, "3.5", "7.25", "4x 8 solid sawn column, DF-L #2"},
        MemberCase{NailedBuiltUp, "3", "5.5", "(2) 2x 6 nailed built-up column, DF-L #2"},
        MemberCase{BoltedBuiltUp, "7.5", "9.25", "(5) 2x 10 bolted built-up column, DF-L #2"},
        MemberCase{SolidSawn6x, "9.5", "9.5", "10x 10 solid sawn column, DF-L #2"},
        MemberCase{SolidSawn2xOr4x, "3.5", "11.25", "3-1/2 in. x 11-1/4 in. solid sawn column, DF-L #2"},
        MemberCase{NailedBuiltUp, "1.5", "5.5", "1-1/2 in. x 5-1/2 in. nailed built-up column, DF-L #2"}),
    CaseName);

struct PlaneCase {
    std::string_view Name;
    std::string_view D1;
    std::string_view D2;
    std::string_view Ke;
    std::string_view Text;
};

class GoverningTextTest : public testing::TestWithParam<PlaneCase> {};

TEST_P(GoverningTextTest, SaysWhichPlaneAndWhy)
{
    const PlaneCase& c = GetParam();
    ColumnEntry entry = WorkingColumn();
    entry.cD1text = c.D1;
    entry.cD2text = c.D2;
    entry.cModeText = c.Ke;
    const std::string text = GoverningPlaneText(Tested(entry, "3.5", "5.5"));
    EXPECT_EQ(text, c.Text);
    EXPECT_LE(text.size(), 85U);
}

// 96 / 3.5 = 27.43; 96 / 5.5 = 17.45; 3.5 * 12 / 3.5 = 12 = 5.5 * 12 / 5.5; 5.501 ft: 12.0022 over 12
INSTANTIATE_TEST_SUITE_P(
    Planes, GoverningTextTest,
    testing::Values(
        PlaneCase{"D1", "8", "8", "1", "Plane D1 governs: le/d of 27.4 is greater than 17.5 of plane D2."},
        PlaneCase{"D2 alone", "0", "8", "1", "Plane D2 governs: plane D1 is braced throughout its length."},
        PlaneCase{"D1 alone", "8", "0", "1", "Plane D1 governs: plane D2 is braced throughout its length."},
        PlaneCase{"equal", "3.5", "5.5", "1", "Plane D2 governs: le/d is 12.0 in both planes."},
        PlaneCase{"all but equal", "3.5", "5.501", "1",
                  "Plane D2 governs: le/d of 12.002 is greater than 12.000 of plane D1."},
        PlaneCase{"neither", "8", "8", "none", "Neither plane governs: both effective lengths are 0."}),
    CaseName);

TEST(ColumnTexts, SayWhyAColumnFails)
{
    ColumnEntry entry = WorkingColumn();
    EXPECT_EQ(ColumnFailureText(Tested(entry, "3.5", "3.5")), "");
    // 7006 / 12.25 = 571.918 psi against 571.901 psi
    entry.cReacText = "7006";
    EXPECT_EQ(ColumnFailureText(Tested(entry, "3.5", "3.5")),
              "fc of 571.918 psi is over Fc' of 571.901 psi.");
    // le/d = 96 / 1.5 = 64; 0.3002766 * 1.6e6 / 64^2 = 117.3 psi is the most that can be carried
    entry.cReacText = "100";
    EXPECT_EQ(ColumnFailureText(Tested(entry, "1.5", "3.5")), "le/d of 64.0 in plane D1 is over 50.0.");
    entry.cReacText = "7875";
    EXPECT_THAT(
        ColumnFailureText(Tested(entry, "1.5", "3.5")),
        testing::StartsWith("le/d of 64.0 in plane D1 is over 50.0. fc of 1,500.0 psi is over Fc' of 11"));
}

TEST(ColumnTexts, TellWhatTheColumnWasDesignedBy)
{
    ColumnEntry entry = WorkingColumn();
    EXPECT_EQ(ColumnAttributeText(Tested(entry, "3.5", "3.5")),
              "NDS 2018, Solid Sawn 2x or 4x, Dimension Lumber values, dry use");
    entry.Type = NailedBuiltUp;
    entry.ValueGroup = ColumnValueGroup::BeamAndStringer;
    entry.cWetButton = entry.ColIncised = entry.ResetKf = true;
    const std::string longest = ColumnAttributeText(Tested(entry, "3", "3.5"));
    EXPECT_EQ(longest,
              "NDS 2018, Nailed Built-up 2xs, Beam and Stringer values, wet use, incised, D1 fully braced");
    EXPECT_LE(longest.size(), 115U);
}

// 4x4: A = 12.25 in2, fc = 7000 / 12.25 = 571.4 psi, 571.4 / 571.9 = 99.9%
TEST(WoodColumnReport, TellsEveryFigureWithItsUnit)
{
    const WoodColumnReport report = ReportWoodColumn(Tested(WorkingColumn(), "3.5", "3.5"));
    struct Figure {
        std::string_view Name;
        std::string_view Text;
        std::string_view Unit;
    };
    for (const Figure& figure : {Figure{"PanReaction", "7,000", "lb"},
                                 Figure{"PanHeight", "8.0", "ft"},
                                 Figure{"PanLe1", "96.0", "in."},
                                 Figure{"PanD1", "3.5", "in."},
                                 Figure{"PanArea", "12.25", "in\u00B2"},
                                 Figure{"PanSlendernessD2", "27.4", ""},
                                 Figure{"PanSlendernessLimit", "50", ""},
                                 Figure{"PanFc", "1350", "psi"},
                                 Figure{"PanE", "1.6", "million psi"},
                                 Figure{"PanCd", "1.00", ""},
                                 Figure{"PanCF", "1.15", ""},
                                 Figure{"PanEPrime", "1,600,000", "psi"},
                                 Figure{"PanFcStar", "1,552.5", "psi"},
                                 Figure{"PanKcE", "0.3003", ""},
                                 Figure{"PanFcE", "638.6", "psi"},
                                 Figure{"PanCp1", "1.000", ""},
                                 Figure{"PanCp2", "0.368", ""},
                                 Figure{"PanFcActual", "571.4", "psi"},
                                 Figure{"PanFcPrime", "571.9", "psi"},
                                 Figure{"PanRatio", "100%", ""}}) {
        const ColumnReportLine line = LineOf(report, figure.Name);
        EXPECT_EQ(line.Figure, figure.Text) << figure.Name;
        EXPECT_EQ(line.Unit, figure.Unit) << figure.Name;
    }
    EXPECT_EQ(report.Status, "OK");
    EXPECT_EQ(report.Reason, "");
    EXPECT_NEAR(report.Ratio, 0.99917, 1e-5);
    std::set<std::string> names;
    std::size_t count = 0;
    for (const ColumnReportBlock& block : report.Blocks) {
        for (const ColumnReportLine& line : block.Lines) {
            names.insert(line.Name);
            ++count;
        }
    }
    EXPECT_EQ(names.size(), count);
}

TEST(WoodColumnReport, DoesNotCallAnOverloadFull)
{
    ColumnEntry entry = WorkingColumn();
    entry.cReacText = "7006";
    const WoodColumnReport report = ReportWoodColumn(Tested(entry, "3.5", "3.5"));
    EXPECT_EQ(report.Status, "Fail");
    EXPECT_EQ(report.RatioText, "over 100%");
}

TEST(WoodColumnReport, LeavesBucklingBlankWhereNeitherPlaneBuckles)
{
    ColumnEntry entry = WorkingColumn();
    entry.cModeText = "0";
    const WoodColumnReport report = ReportWoodColumn(Tested(entry, "3.5", "3.5"));
    EXPECT_EQ(LineOf(report, "PanFcE").Figure, "");
    EXPECT_EQ(LineOf(report, "PanKcE").Figure, "");
    EXPECT_EQ(LineOf(report, "PanFcPrime").Figure, "1,552.5");
}

TEST(WoodColumnReport, NotesWhereFactorsComeFrom)
{
    ColumnEntry entry = WorkingColumn();
    entry.Type = NailedBuiltUp;
    entry.cD1text = "0";
    entry.ColSpeciesCombo = "Southern Pine #1";
    entry.cFcText = "825";
    const WoodColumnReport report = ReportWoodColumn(Tested(entry, "3", "11.25"));
    EXPECT_EQ(LineOf(report, "PanCF").Note, "no value for this width: that of the size before");
    EXPECT_EQ(LineOf(report, "PanKf").Note, "bears on plane D1 alone");
    EXPECT_EQ(LineOf(report, "PanFc").Note, "of timbers: the table has none of dimension lumber");
    EXPECT_EQ(LineOf(report, "PanCmFc").Note, "dry use");
}

}  // namespace
}  // namespace kordavan
