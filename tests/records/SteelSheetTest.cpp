#include <gmock/gmock.h>

#include "design/SteelBuilder.h"
#include "records/SheetBuilder.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

struct SteelSheetCase {
    std::string_view Name;
    SteelFamily Family;
    std::string_view Shape;
    std::string_view UBLtext;
    std::string_view MemberLine;
    std::string_view Factor;
    std::string_view FactorCaption;
    std::string_view Support;  // both lines
    std::string_view BearingCaption;
};

class SteelSheetTest : public testing::TestWithParam<SteelSheetCase> {};

TEST_P(SteelSheetTest, StatesYieldFactorBracingAndBearing)
{
    const SteelSheetCase& c = GetParam();
    Session session = SteelSession(c.Family, "6", "100", "60");
    session.Problem.UBLtext = c.UBLtext;
    TestedShape(session, c.Shape);
    const DataSheet sheet = Filled(session);
    EXPECT_TRUE(sheet.IsSteel);
    EXPECT_EQ(sheet[5], c.MemberLine);
    EXPECT_EQ(sheet[35], c.Factor);
    EXPECT_EQ(sheet[31], c.FactorCaption);
    EXPECT_EQ(sheet[173] + "|" + sheet[174], c.Support);
    EXPECT_EQ(sheet[60], c.BearingCaption);
    ExpectCells(sheet, {{23, "Ref. Value Fy"},
                        {70, "Wood Default"},
                        {167, "405"},
                        {175, "0.40"},
                        {33, ""},
                        {37, ""},
                        {188, ""},
                        {176, ""},
                        {168, "N/A "}});
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, SteelSheetTest,
    testing::Values(
        SteelSheetCase{"compact", SteelFamily::W, "W 8x 18", "4", "W 8x 18, 36 ksi Wide Flange Steel", "0.66",
                       "YP Factor, Lc", "Lateral Support:|Lc = 5.5 ft max.", "Min Bearing Length"},
        SteelSheetCase{"channel", SteelFamily::C, "C 8x 11.5", "4", "C 8x 11.5, 36 ksi Steel Channel", "0.60",
                       "YP Factor, Lu", "Lateral Support:|Lu = 5.1 ft max.", "Min Bearing Length"},
        SteelSheetCase{"tube", SteelFamily::Tube, "T 7x 4x 1/4", "Any", "T 7x 4x 1/4, 46 ksi Steel Tube",
                       "0.60", "YP Factor", "Lateral Support:|@ Bearing Points", "Min Bearing Length"},
        SteelSheetCase{"plate", SteelFamily::Plate, "PL 9x 5/8", "0",
                       "PL 9x 5/8 in., plus 2x wood sistered each side, 36 ksi steel flitch plate(s) ",
                       "0.66", "YP Factor, Lc", "Top Load Only +|Full Lat. Bracing", "Wood Bearing Area"}),
    CaseName);

/// 30 kips on the thin web of a W 8x 10 (0.17 in.) need bearing; a pound does not.
TEST(SteelSheet, ListsTheBearingAtPointLoads)
{
    Session session = SteelSession(SteelFamily::W, "6", "100", "60");
    SetPoint(session.Problem, 0, "30000", "3", "20000");
    SetPoint(session.Problem, 2, "1", "2", "1");
    TestedShape(session, "W 8x 10");
    const DataSheet sheet = Filled(session);
    EXPECT_THAT(sheet[34], testing::StartsWith("      B = "));
    EXPECT_EQ(sheet[38], "");
    EXPECT_THAT(sheet[176], testing::StartsWith("At Point Loads: Provide these minimum bearing lengths"));
}

TEST(SteelSheet, WhoseRegimeIsUnknownSaysSo)
{
    Session session = SteelSession(SteelFamily::W, "6", "100", "60");
    TestedShape(session, "W 8x 18");
    session.Steel.LcApplies = session.Steel.LuApplies = false;
    ScriptedUser user;
    const DataSheet sheet = FillDataRecord(session, Day, user);
    ExpectCells(sheet, {{31, "error"}, {35, "error"}, {5, "W 8x 18, 36 ksi Wide Flange Steel"}});
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_THAT(user.Told[0].Text,
                testing::StartsWith("An error has occurred entering data in the data record.  "));
}

}  // namespace
}  // namespace kordavan
