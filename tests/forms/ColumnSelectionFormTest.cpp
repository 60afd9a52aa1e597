#include <QPushButton>

#include "columns/ColumnCriteria.h"
#include "columns/SteelColumn.h"
#include "forms/StatusSign.h"
#include "forms/WalkFixture.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class ColumnSelectionFormTest : public WalkFixture {
protected:
    ColumnSelectionFormTest()
    {
        columns.Entry.cHTtext = "10";
        columns.Entry.cD1text = "10";
        columns.Entry.cD2text = "10";
        columns.Entry.cFcText = "1350";
        columns.Entry.cEtext = "1.6";
        columns.Entry.ColSpeciesCombo = "DF-L #2";
    }

    void Press(const std::string& command)
    {
        Click(command);
        Settle();
    }

    void PressAndTell(const std::string& command, const std::string& beginning, const std::string& focus)
    {
        user.Told.clear();
        Press(command);
        ASSERT_EQ(user.Told.size(), 1U);
        EXPECT_THAT(user.Told.front().Text, StartsWith(beginning));
        EXPECT_EQ(FocusName(), focus);
    }

    bool IsSeen(const std::string& name) { return Find<QWidget>(name).isVisible(); }
    bool IsOn(const std::string& name) { return Find<QWidget>(name).isEnabled(); }
    bool IsFaded() { return IsSeen("OutdatedLabel"); }
    std::string FrontName() { return Text(Front().objectName()); }
    std::string Caption(const std::string& name) { return Text(Find<QPushButton>(name).text()); }
    std::string Spoken(const std::string& name) { return Text(Find<QPushButton>(name).accessibleName()); }
    Sign ShownSign(const std::string& name) { return Find<StatusSign>(name).Shown(); }
};

class WoodColumnFormTest : public ColumnSelectionFormTest {
protected:
    /// Calculates from the criteria screen, as its OK command does.
    void Open(const std::string& load, ColumnType type = ColumnType::NailedBuiltUp)
    {
        columns.Entry.cReacText = load;
        columns.Entry.Type = type;
        ASSERT_EQ(CalculateWoodColumn(columns, Edition::Nds2018, user), Outcome::Done);
        walk.Go(Screen::WoodColumns);
        Settle();
    }

    /// A nailed column that is braced in plane D1. Le2 = 120 in.; over 3.5 in. Fc* = 1552.5, FcE = 408.3, Cp
    /// = 0.2468 and Fc' = 383.2 psi, over 5.5 in. Fc* = 1485, FcE = 1008.3, Cp = 0.547 and Fc' = 812 psi. 3
    /// x 3.5 carries 4023 lb, 3 x 5.5 13400 lb, 4.5 x 3.5 6035 lb.
    void OpenBraced(const std::string& load = "6000")
    {
        columns.Entry.cD1text = "0";
        Open(load);
    }

    void Test(const std::string& D1, const std::string& D2)
    {
        Type("ColD1Text", D1);
        Type("ColD2Text", D2);
        Key(Qt::Key_Return);
    }
};

TEST_F(WoodColumnFormTest, PicksAreTheSmallestWidthOfEachThickness)
{
    OpenBraced();
    ASSERT_EQ(FrontName(), "Form20");
    EXPECT_FALSE(IsSeen("ColDep[0]"));
    EXPECT_FALSE(IsSeen("ColHead[0]"));
    const std::vector<std::pair<std::string, std::string>> expected{
        {"(2) 2x", "6"}, {"(3) 2x", "4"}, {"(4) 2x", "4"}, {"(5) 2x", "4"}};
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_EQ(LabelText(BoxName("ColHead", k + 1)), expected[k].first);
        EXPECT_EQ(Caption(BoxName("ColDep", k + 1)), expected[k].second);
    }
    EXPECT_EQ(Spoken("ColDep[1]"), "(2) 2x by 6");
    EXPECT_EQ(FocusName(), "ColDep[1]");
    Key(Qt::Key_Right);
    EXPECT_EQ(FocusName(), "ColDep[2]");
    const std::string facts = LabelText("ColumnFacts");
    for (const char* const fact :
         {"Axial load 6,000 lb", "Height 10 ft", "Le1 0, braced", "Le2 120.0 in.", "NDS 2018", "DF-L #2"}) {
        EXPECT_THAT(facts, testing::HasSubstr(fact));
    }
    EXPECT_TRUE(IsSeen("WhatToDo"));
    EXPECT_FALSE(IsOn("CmdColRecord"));
    EXPECT_FALSE(IsSeen("NoneWorkLabel"));
}

struct OfferedCase {
    ColumnType Type;
    std::vector<std::string> Heads;
};

class OfferedPicksTest : public WoodColumnFormTest, public testing::WithParamInterface<OfferedCase> {};

TEST_P(OfferedPicksTest, OnlyTheThicknessesOfTheTypeAreSeen)
{
    Open("1000", GetParam().Type);
    std::vector<std::string> heads;
    for (std::size_t k = 0; k < ColumnGrid::ThicknessCount; ++k) {
        EXPECT_EQ(IsSeen(BoxName("ColDep", k)), IsSeen(BoxName("ColHead", k)));
        EXPECT_EQ(IsOn(BoxName("ColDep", k)), !columns.Grid.ColDep[k].empty());
        if (IsSeen(BoxName("ColDep", k))) {
            heads.push_back(LabelText(BoxName("ColHead", k)));
        }
    }
    EXPECT_EQ(heads, GetParam().Heads);
}

INSTANTIATE_TEST_SUITE_P(
    Types, OfferedPicksTest,
    testing::Values(OfferedCase{ColumnType::SolidSawn2xOr4x, {"2x", "4x"}},
                    OfferedCase{ColumnType::NailedBuiltUp, {"(2) 2x", "(3) 2x", "(4) 2x", "(5) 2x"}},
                    OfferedCase{ColumnType::BoltedBuiltUp, {"(2) 2x", "(3) 2x", "(4) 2x", "(5) 2x"}},
                    OfferedCase{ColumnType::SolidSawn6x, {"6x", "8x", "10x"}}));

/// fc = 6000 / (4.5 x 3.5) = 381.0 psi.
TEST_F(WoodColumnFormTest, APickFillsItsNetSizeAndIsTested)
{
    OpenBraced();
    Press("ColDep[2]");
    EXPECT_EQ(BoxText("ColD1Text"), "4.5");
    EXPECT_EQ(BoxText("ColD2Text"), "3.5");
    EXPECT_EQ(LabelText("ColumnMember"), "(3) 2x 4 nailed built-up column, DF-L #2");
    EXPECT_EQ(LabelText("ColumnStatus"), "OK");
    EXPECT_EQ(ShownSign("ColumnSign"), Sign::Passes);
    EXPECT_EQ(LabelText("ColumnRatio"), "99%");
    EXPECT_EQ(LabelText("PanFcActual"), "381.0");
    EXPECT_THAT(LabelText("ColumnGoverning"), StartsWith("Plane D2 governs"));
    EXPECT_FALSE(IsSeen("ColumnReason"));
    EXPECT_FALSE(IsSeen("WhatToDo"));
    EXPECT_FALSE(IsFaded());
    EXPECT_TRUE(IsOn("CmdColRecord"));
    EXPECT_THAT(user.Told, IsEmpty());
}

/// 3 x 3.5 in.: 571.4 psi on 383; 120 / 2 is 60, beyond a slenderness of 50.
TEST_F(WoodColumnFormTest, ASizeThatFailsSaysWhy)
{
    OpenBraced();
    for (const auto& [D1, D2] : {std::pair{"3", "3.5"}, std::pair{"8", "2"}}) {
        Test(D1, D2);
        EXPECT_EQ(LabelText("ColumnStatus"), "Fail");
        EXPECT_EQ(ShownSign("ColumnSign"), Sign::Fails);
        EXPECT_TRUE(IsSeen("ColumnReason"));
        EXPECT_NE(LabelText("ColumnReason"), "");
        EXPECT_TRUE(IsOn("CmdColRecord"));
    }
    EXPECT_EQ(LabelText("PanSlendernessD2"), "60.0");
    Test("4.5", "3.5");
    EXPECT_FALSE(IsSeen("ColumnReason"));
}

TEST_F(WoodColumnFormTest, TextsThatAreNoSizeAreRefusedAndTheReportStays)
{
    OpenBraced();
    Press("ColDep[2]");
    for (const char* const text : {"abc", "0", "", "-3"}) {
        Type("ColD1Text", text);
        PressAndTell("CmdTestCol", "Please enter a net size in inches for the column thickness D1.",
                     "ColD1Text");
        EXPECT_EQ(BoxText("ColD1Text"), text);
        EXPECT_EQ(LabelText("PanD1"), "4.5");
        EXPECT_TRUE(IsFaded());
    }
    Type("ColD1Text", "4.5");
    Type("ColD2Text", "x");
    PressAndTell("CmdTestCol", "Please enter a net size in inches for the column width D2.", "ColD2Text");
}

TEST_F(WoodColumnFormTest, EditsMarkTheReportUntilTheNextTest)
{
    OpenBraced();
    Type("ColD1Text", "6");
    EXPECT_FALSE(IsFaded());
    Test("6", "5.5");
    EXPECT_FALSE(IsFaded());
    Type("ColD2Text", "3.5");
    EXPECT_TRUE(IsFaded());
    EXPECT_EQ(LabelText("OutdatedLabel"), "Entries changed since.");
    EXPECT_EQ(LabelText("PanD2"), "5.5");
    Press("CmdTestCol");
    EXPECT_FALSE(IsFaded());
    EXPECT_EQ(LabelText("PanD2"), "3.5");
}

TEST_F(WoodColumnFormTest, SaysThatNoSizeWorks)
{
    OpenBraced("200000");
    EXPECT_TRUE(IsSeen("NoneWorkLabel"));
    EXPECT_EQ(LabelText("NoneWorkLabel"), "No columns from the database meet the requirements.");
    for (std::size_t k = 1; k < ColumnGrid::ThicknessCount; ++k) {
        EXPECT_FALSE(IsOn(BoxName("ColDep", k)));
    }
    EXPECT_EQ(Spoken("ColDep[1]"), "(2) 2x: none");
    EXPECT_EQ(FocusName(), "ColD1Text");
}

TEST_F(WoodColumnFormTest, TheTestedSizeGoesOnRecordAndStaysOnShow)
{
    OpenBraced();
    Press("ColDep[2]");
    Type("ColD1Text", "9");
    Press("CmdColRecord");
    ASSERT_EQ(FrontName(), "Form19");
    EXPECT_THAT(columns.WoodRecord.Sheet[12], testing::HasSubstr("(3) 2x 4"));
    walk.Go(Screen::WoodColumns);
    EXPECT_EQ(LabelText("PanD1"), "4.5");
    EXPECT_EQ(BoxText("ColD1Text"), "9");
    EXPECT_TRUE(IsFaded());
    Open("500");
    EXPECT_TRUE(IsSeen("WhatToDo"));
    EXPECT_FALSE(IsOn("CmdColRecord"));
}

TEST_F(WoodColumnFormTest, TabRunsAsOneReads)
{
    OpenBraced();
    Press("ColDep[1]");
    std::vector<std::string> stops;
    do {
        stops.push_back(FocusName());
        Key(Qt::Key_Tab);
    } while (FocusName() != "ColDep[1]" && stops.size() < 20);
    EXPECT_THAT(stops, ElementsAre("ColDep[1]", "ColDep[2]", "ColDep[3]", "ColDep[4]", "ColD1Text",
                                   "ColD2Text", "CmdColRecord", "CmdTestCol"));
}

TEST_F(WoodColumnFormTest, EscapeLeadsBackToTheCriteria)
{
    OpenBraced();
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), "Form18");
}

/// 40 kips over 120 in. As Fa x A: 27.96, 38.2 and 48.9 kips of the standard pipes, 37.1 and 51.6 of the
/// extra strong, 60.6 of the first double extra strong; 32.4 and 65.2 of the tubes.
class SteelColumnFormTest : public ColumnSelectionFormTest {
protected:
    SteelColumnFormTest() { Open("40000"); }

    void Open(const std::string& load)
    {
        columns.Face = ColumnFace::Steel;
        columns.Entry.cReacText = load;
        ASSERT_EQ(CalculateSteelColumn(columns, user), Outcome::Done);
        walk.Go(Screen::SteelColumns);
        Settle();
    }
};

TEST_F(SteelColumnFormTest, PicksAreTheFirstOfEachKindThatCarriesTheLoad)
{
    ASSERT_EQ(FrontName(), "Form10");
    EXPECT_EQ(Spoken("StdRndBut"), "Standard pipe, 4 in. diam.");
    EXPECT_EQ(Caption("ExtraRndbut"), "3-1/2 in. diam.");
    EXPECT_EQ(Caption("DblRndBut"), "3 in. diam.");
    EXPECT_EQ(Caption("TubeCol[0]"), "4 x 4 x 1/4");
    EXPECT_EQ(Caption("TubeCol[1]"), "4 x 4 x 3/8");
    EXPECT_EQ(Caption("TubeCol[2]"), "4 x 4 x 1/2");
    EXPECT_EQ(FocusName(), "StdRndBut");
    EXPECT_FALSE(IsSeen("Label60"));
    EXPECT_FALSE(IsOn("CmdStlRecord"));
    EXPECT_EQ(LabelText("SelfWeightLine"), NoSelfWeight);
}

struct SteelPickCase {
    const char* Button;
    const char* Size;
    const char* Grade;
    const char* Fy;
};

class SteelPickTest : public SteelColumnFormTest, public testing::WithParamInterface<SteelPickCase> {};

TEST_P(SteelPickTest, FillsTheBoxesAndIsReportedOn)
{
    const SteelPickCase& pick = GetParam();
    Press(pick.Button);
    EXPECT_EQ(BoxText("StlColSizeText"), pick.Size);
    EXPECT_EQ(BoxText("StlColGrade"), pick.Grade);
    EXPECT_EQ(LabelText("ColumnMember"), std::string(pick.Size) + "   " + pick.Grade);
    EXPECT_EQ(LabelText("StlFy"), pick.Fy);
    EXPECT_EQ(LabelText("ColumnStatus"), "OK");
    EXPECT_FALSE(IsFaded());
    EXPECT_TRUE(IsOn("CmdStlRecord"));
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, SteelPickTest,
    testing::Values(
        SteelPickCase{"StdRndBut", "4 in. diam.", "Standard Wt. Pipe A501 or A53 Grade B", "36"},
        SteelPickCase{"ExtraRndbut", "3-1/2 in. diam.", "Extra Strong Pipe A501 or A53 Grade B", "36"},
        SteelPickCase{"DblRndBut", "3 in. diam.", "Dbl Extra Strong Pipe A501 or A53 Grade B", "36"},
        SteelPickCase{"TubeCol[1]", "4 x 4 x 3/8", "Structural Tube ASTM A500 Grade B", "46"}));

/// 4 in. pipe: KL/r = 120 / 1.51 = 79.5, Fa = 15.41 ksi; 40 / 3.17 = 12.6 ksi; 40 / 15.41 = 2.60 of 3.17 in2.
TEST_F(SteelColumnFormTest, TheReportTellsEachCheck)
{
    Press("StdRndBut");
    const std::vector<std::pair<const char*, const char*>> expected{
        {"StlKLrCritical", "200"},  {"StlKLrActual", "79"},      {"StlKLrStatus", "OK"},
        {"StlKLrRatio", "40%"},     {"StlStressActual", "12.6"}, {"StlStressCritical", "15.4"},
        {"StlAreaRequired", "2.6"}, {"StlAreaActual", "3.2"},    {"StlAreaStatus", "OK"},
        {"StlAreaRatio", "82%"},    {"StlReaction", "40,000"},   {"StlUnbraced", "120"}};
    for (const auto& [panel, text] : expected) {
        EXPECT_EQ(LabelText(panel), text) << panel;
    }
}

/// 40 / 12.54 = 3.19 in2 of the 2.23 that a 3 in. pipe has.
TEST_F(SteelColumnFormTest, ATypedSizeThatFailsIsMarked)
{
    Press("StdRndBut");
    Type("StlColSizeText", "3 in. diam.");
    EXPECT_TRUE(IsFaded());
    Key(Qt::Key_Return);
    EXPECT_FALSE(IsFaded());
    EXPECT_EQ(LabelText("StlAreaStatus"), "Fail");
    EXPECT_EQ(ShownSign("StlAreaStatusSign"), Sign::Fails);
    EXPECT_EQ(LabelText("StlKLrStatus"), "OK");
    EXPECT_EQ(ShownSign("StlKLrStatusSign"), Sign::Passes);
    EXPECT_EQ(LabelText("ColumnStatus"), "Fail");
    EXPECT_EQ(ShownSign("ColumnSign"), Sign::Fails);
}

TEST_F(SteelColumnFormTest, SizesThatMatchNothingAreRefused)
{
    PressAndTell("StlColReportBut", "Please enter a steel column size above.", "StlColSizeText");
    Press("StdRndBut");
    Type("StlColSizeText", "9 in. diam.");
    PressAndTell("StlColReportBut", "Please enter a steel column size that matches a size", "StlColSizeText");
    Type("StlColSizeText", "4 x 4 x 1/4");
    PressAndTell("StlColReportBut", "Kordavan could not find a match", "StlColGrade");
    EXPECT_EQ(LabelText("ColumnMember"), "4 in. diam.   Standard Wt. Pipe A501 or A53 Grade B");
    EXPECT_TRUE(IsFaded());
}

TEST_F(SteelColumnFormTest, TheSmallSquareListsAllSizes)
{
    Press("SizeHelp");
    ASSERT_EQ(user.Told.size(), 1U);
    EXPECT_EQ(user.Told.front().Text, SteelColumnSizeList());
}

TEST_F(SteelColumnFormTest, SaysThatNoSizeWorks)
{
    Open("900000");
    EXPECT_TRUE(IsSeen("Label60"));
    EXPECT_EQ(LabelText("Label60"), columns.SteelPicks.Label60);
    EXPECT_FALSE(IsOn("TubeCol[2]"));
    EXPECT_EQ(Spoken("TubeCol[2]"), "Third square tube: none");
    EXPECT_EQ(FocusName(), "StlColSizeText");
}

TEST_F(SteelColumnFormTest, TheReportedSizeGoesOnRecordAndStaysOnShow)
{
    Press("TubeCol[0]");
    Press("CmdStlRecord");
    ASSERT_EQ(FrontName(), "Form23");
    EXPECT_THAT(columns.SteelRecord.Sheet[10], testing::HasSubstr("4 x 4 x 1/4"));
    walk.Go(Screen::SteelColumns);
    EXPECT_THAT(LabelText("ColumnMember"), StartsWith("4 x 4 x 1/4"));
    EXPECT_FALSE(IsFaded());
    Key(Qt::Key_Escape);
    EXPECT_EQ(FrontName(), "Form18");
}

}  // namespace
}  // namespace kordavan
