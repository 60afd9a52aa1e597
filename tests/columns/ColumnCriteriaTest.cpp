#include "columns/ColumnCriteria.h"

#include <gmock/gmock.h>

#include <limits>

#include "columns/ColumnEntries.h"
#include "columns/WoodColumn.h"
#include "support/CaseName.h"
#include "support/ScriptedUser.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view NoHeight =
    "Please enter an actual column height in feet (and decimal fraction, if any).";
constexpr std::string_view BelowD1 =
    "The actual column height is less than the column unbraced height in plane D1. Sorry, but this is not "
    "possible. Please revise either the actual column height or the unbraced height.";
constexpr std::string_view BelowD2 =
    "The actual column height is less than the column unbraced height in plane D2. Sorry, but this is not "
    "possible. Please revise either the actual column height or the unbraced height.";
constexpr std::string_view FcOutside =
    "Please enter a base value between 220 and 2500 for the column Fc parallel to grain value.";
constexpr std::string_view EOutside =
    "Please enter a base value between 0.5 and 2.5 for the column E value. Kordavan automatically multiplies "
    "the number entered by 1,000,000.";
constexpr std::string_view AnyUnbraced =
    "Please enter at least one unbraced length of the column in plane D1 or D2.";
constexpr std::string_view StudTooHigh =
    "Attention:  Stud Grade is only applicable to members less than 10 feet in height. Please revise your "
    "grade selection or column height.";

/// One box of a column that is otherwise right; no message where the check passes.
struct BoxCase {
    std::string_view Name;
    std::string ColumnEntry::*Box;
    std::string_view Text;
    std::string_view Message;
    std::string_view Focus;
};

class ColumnCheckTest : public testing::TestWithParam<BoxCase> {};

TEST_P(ColumnCheckTest, TellsWhatIsWrongAndWhere)
{
    const BoxCase& c = GetParam();
    ColumnEntry entry = WorkingColumn();
    entry.*c.Box = c.Text;
    ScriptedUser user;
    const Outcome outcome = ValidateColumnProblem(entry, ColumnFace::Wood, user);
    if (c.Message.empty()) {
        EXPECT_EQ(outcome, Outcome::Done);
        EXPECT_THAT(user.Told, IsEmpty());
    } else {
        EXPECT_EQ(outcome, Outcome::Refused);
        EXPECT_THAT(user.Told, ElementsAre(RefusalOf(c.Message, c.Focus)));
    }
}

using Boxes = ColumnEntry;
INSTANTIATE_TEST_SUITE_P(
    Boxes, ColumnCheckTest,
    testing::Values(
        BoxCase{"no load", &Boxes::cReacText, "", "Please enter a reaction weight on the column.",
                "cReacText"},
        BoxCase{"load in words", &Boxes::cReacText, "lots", "Please enter a reaction weight on the column.",
                "cReacText"},
        BoxCase{"no height", &Boxes::cHTtext, "0", NoHeight, "cHTtext"},
        BoxCase{"no Ke", &Boxes::cModeText, "",
                "Please enter a valid numeric Buckling Mode Value.  The default is 1.0.  For other "
                "appropriate values please click the on line help button (small raised gray square), next to "
                "Ke Buckling Mode.",
                "cModeText"},
        BoxCase{"letters as Ke", &Boxes::cModeText, "N/A", "", ""},
        BoxCase{"no D1", &Boxes::cD1text, "",
                "Please enter a valid numeric value for the unbraced length of the column in plane D1.  If "
                "D1 is braced throughout its length, please enter a zero.",
                "cD1text"},
        BoxCase{"D1 of the height", &Boxes::cD1text, "8.0", "", ""},
        BoxCase{"D1 above the height", &Boxes::cD1text, "8.01", BelowD1, "cD1text"},
        BoxCase{"no D2", &Boxes::cD2text, "",
                "Please enter a valid numeric value for the unbraced length of D2.  If D2 is braced "
                "throughout its length enter a zero.",
                "cD2text"},
        BoxCase{"D2 above the height", &Boxes::cD2text, "8.01", BelowD2, "cD2text"},
        BoxCase{"no duration", &Boxes::cDurText, "0",
                "Please enter a valid numeric value for the duration of load.  The default is 1.0",
                "cDurText"},
        BoxCase{"no Fc", &Boxes::cFcText, "",
                "Please enter a base value for the column Fc parallel to grain value.", "cFcText"},
        BoxCase{"Fc 219.9", &Boxes::cFcText, "219.9", FcOutside, "cFcText"},
        BoxCase{"Fc 220", &Boxes::cFcText, "220", "", ""},
        BoxCase{"Fc 2499", &Boxes::cFcText, "2499", "", ""},
        BoxCase{"Fc 2500", &Boxes::cFcText, "2500", FcOutside, "cFcText"},
        BoxCase{"no E", &Boxes::cEtext, "", "Please enter a base value for the column E value.", "cEtext"},
        BoxCase{"E 0.49", &Boxes::cEtext, "0.49", EOutside, "cEtext"},
        BoxCase{"E 0.5", &Boxes::cEtext, "0.5", "", ""}, BoxCase{"E 2.49", &Boxes::cEtext, "2.49", "", ""},
        BoxCase{"E 2.5", &Boxes::cEtext, "2.5", EOutside, "cEtext"},
        BoxCase{"no species", &Boxes::ColSpeciesCombo, "",
                "Please enter a species and grade for your documentation.", "ColSpeciesCombo"},
        BoxCase{"load below zero", &Boxes::cReacText, "-7000",
                "Please enter a number from 0 to 1,000,000,000 for the axial load on the column.",
                "cReacText"},
        BoxCase{"Ke beyond all columns", &Boxes::cModeText, "1e30",
                "Please enter a number from 0 to 1,000,000,000 for the Buckling Mode Value.", "cModeText"},
        BoxCase{"D2 below zero", &Boxes::cD2text, "-1",
                "Please enter a number from 0 to 1,000,000,000 for the unbraced length in plane D2.",
                "cD2text"},
        BoxCase{"effective length next to nothing", &Boxes::cD2text, "1e-9",
                "The effective length in plane D2, Ke times the unbraced length, is too small to work with. "
                "If D2 is braced throughout its length, please enter a zero.",
                "cD2text"}),
    CaseName);

TEST(ColumnChecks, AskForOneUnbracedLengthAtLeast)
{
    ColumnEntry entry = WorkingColumn();
    entry.cD1text = "0";
    entry.cD2text = "0.0";
    ScriptedUser user;
    EXPECT_EQ(ValidateColumnProblem(entry, ColumnFace::Wood, user), Outcome::Refused);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(AnyUnbraced, "cD1text")));
}

// Everything is wrong; put right box by box, the checks are met in their order.
TEST(ColumnChecks, ComeInTheirOrder)
{
    ColumnEntry entry;
    entry.cModeText.clear();
    entry.cDurText.clear();
    const ColumnEntry right = WorkingColumn();
    ScriptedUser user;
    for (std::string ColumnEntry::*const box :
         {&Boxes::cReacText, &Boxes::cHTtext, &Boxes::cModeText, &Boxes::cD1text, &Boxes::cD2text,
          &Boxes::cDurText, &Boxes::cFcText, &Boxes::cEtext, &Boxes::ColSpeciesCombo}) {
        ASSERT_EQ(ValidateColumnProblem(entry, ColumnFace::Wood, user), Outcome::Refused);
        entry.*box = right.*box;
    }
    EXPECT_EQ(ValidateColumnProblem(entry, ColumnFace::Wood, user), Outcome::Done);
    std::vector<std::string> focused;
    for (const Message& message : user.Told) {
        focused.push_back(message.Focus);
    }
    EXPECT_THAT(focused, ElementsAre("cReacText", "cHTtext", "cModeText", "cD1text", "cD2text", "cDurText",
                                     "cFcText", "cEtext", "ColSpeciesCombo"));
}

TEST(ColumnChecks, TakeAZeroInD1AsSheathed)
{
    ColumnEntry entry = WorkingColumn();
    ScriptedUser user;
    entry.cD1text = "0.0";
    EXPECT_EQ(ValidateColumnProblem(entry, ColumnFace::Wood, user), Outcome::Done);
    EXPECT_FALSE(entry.ResetKf);
    entry.cD1text = "0";
    EXPECT_EQ(ValidateColumnProblem(entry, ColumnFace::Wood, user), Outcome::Done);
    EXPECT_TRUE(entry.ResetKf);
}

TEST(ColumnChecks, KeepStudGradeWithinTenFeet)
{
    struct StudCase {
        std::string_view Species;
        ColumnValueGroup Group;
        std::string_view Height;
        bool Passes;
    };
    using enum ColumnValueGroup;
    for (const StudCase& c : {StudCase{"DF-L Stud", DimensionLumber, "10", true},
                              {"DF-L Stud", DimensionLumber, "10.01", false},
                              StudCase{"Western Woods Stud", DimensionLumber, "12", false},
                              StudCase{"DF-L #2", DimensionLumber, "12", true},
                              {"DF-L Stud", PostAndTimber, "12", true}}) {
        ColumnEntry entry = WorkingColumn();
        entry.ColSpeciesCombo = c.Species;
        entry.ValueGroup = c.Group;
        entry.cHTtext = c.Height;
        ScriptedUser user;
        EXPECT_EQ(ValidateColumnProblem(entry, ColumnFace::Wood, user) == Outcome::Done, c.Passes)
            << c.Species << c.Height;
        if (!c.Passes) {
            EXPECT_THAT(user.Told, ElementsAre(RefusalOf(StudTooHigh, "ColSpeciesCombo")));
            EXPECT_EQ(user.Told[0].Icon, MessageIcon::Warning);
        }
    }
}

TEST(ColumnChecks, AskSteelForLoadHeightKAndD1Alone)
{
    ColumnEntry entry;
    entry.cReacText = "7000";
    entry.cHTtext = "8";
    entry.cD1text = "0";
    ScriptedUser user;
    EXPECT_EQ(ValidateColumnProblem(entry, ColumnFace::Steel, user), Outcome::Done);
    entry.cD1text = "9";
    EXPECT_EQ(ValidateColumnProblem(entry, ColumnFace::Steel, user), Outcome::Refused);
    EXPECT_THAT(user.Told, ElementsAre(RefusalOf(BelowD1, "cD1text")));
}

TEST(ImportedReaction, IsThatOfTheBeam)
{
    Session beam;
    beam.Analysis.R1Applied = 1000.4F;
    beam.Analysis.R2Applied = 2000.5F;
    ColumnEntry entry;
    ScriptedUser user;
    EXPECT_EQ(ImportReaction(beam, {}, entry, user), Outcome::Done);
    EXPECT_EQ(entry.cReacText, "1000");
    EXPECT_EQ(ImportReaction(beam, {.IsSecond = true, .IsDoubled = true}, entry, user), Outcome::Done);
    EXPECT_EQ(entry.cReacText, "4001");
    // Of a member that was tested, with its own weight.
    beam.Analysis.ShearMax = 2100;
    beam.Analysis.R1Total = 1100.5F;
    beam.Analysis.R2Total = 2100;
    EXPECT_EQ(ImportReaction(beam, {}, entry, user), Outcome::Done);
    EXPECT_EQ(entry.cReacText, "1101");
    EXPECT_THAT(user.Told, IsEmpty());
}

TEST(ImportedReaction, NeedsABeam)
{
    ColumnEntry entry;
    entry.cReacText = "77";
    ScriptedUser user;
    EXPECT_EQ(ImportReaction(Session{}, {}, entry, user), Outcome::Refused);
    EXPECT_THAT(user.Told,
                ElementsAre(RefusalOf("Cannot import reaction. Data Record is empty.", "cReacText")));
    EXPECT_EQ(entry.cReacText, "77");
}

TEST(CalculatedColumn, WithdrawsTheTestBeforeUnlessRefused)
{
    ColumnSession columns;
    columns.Entry = WorkingColumn();
    ScriptedUser user;
    ASSERT_EQ(CalculateWoodColumn(columns, Edition::Nds2018, user), Outcome::Done);
    ASSERT_TRUE(PickColumnSize(columns, 1));
    ASSERT_EQ(TestEnteredColumn(columns, Edition::Nds2018, user), Outcome::Done);
    const ColumnGrid before = columns.Grid;
    columns.Entry.cFcText = "2500";
    EXPECT_EQ(CalculateWoodColumn(columns, Edition::Nds2018, user), Outcome::Refused);
    EXPECT_TRUE(columns.WoodTest);
    EXPECT_EQ(columns.Grid.ColDep, before.ColDep);
    EXPECT_EQ(columns.ColD1Text, "3.5");
    columns.Entry.cFcText = "1500";
    EXPECT_EQ(CalculateWoodColumn(columns, Edition::Nds2018, user), Outcome::Done);
    EXPECT_FALSE(columns.WoodTest);
    EXPECT_EQ(columns.ColD1Text + columns.ColD2Text, "");
}

TEST(NewColumn, IsBlankAndKeepsProjectFaceAndRecords)
{
    ColumnSession columns;
    columns.Entry = WorkingColumn();
    columns.Face = ColumnFace::Steel;
    columns.Identity = {.ColumnProj = "Lake House", .columnID = "C1", .ColumnDescription = "porch"};
    columns.Stud.WindStudHt = "9";
    columns.WoodRecord.HasOwn = true;
    ScriptedUser user;
    ASSERT_EQ(CalculateWoodColumn(columns, Edition::Nds2018, user), Outcome::Done);
    StartNewColumn(columns);
    EXPECT_EQ(columns.Entry, ColumnEntry{});
    EXPECT_EQ(columns.Stud, StudEntry{});
    EXPECT_EQ(columns.Identity,
              (ColumnIdentity{.ColumnProj = "Lake House", .columnID = {}, .ColumnDescription = {}}));
    EXPECT_EQ(columns.Grid.ColDep[1], "");
    EXPECT_EQ(columns.Face, ColumnFace::Steel);
    EXPECT_TRUE(columns.WoodRecord.HasOwn);
}

}  // namespace
}  // namespace kordavan
