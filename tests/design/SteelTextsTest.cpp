#include "design/SteelTexts.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>

#include "design/SectionPicture.h"
#include "design/SteelBuilder.h"
#include "design/TestReport.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::Contains;
using testing::EndsWith;
using testing::Not;
using testing::StartsWith;

struct SteelFamilyCase {
    SteelFamily Family;
    std::string_view Parts;
    std::string_view Example;
    std::string_view Name;
    std::string_view Grade;
    std::string_view Grade50;
};

class FamilyTextsTest : public testing::TestWithParam<SteelFamilyCase> {};

TEST_P(FamilyTextsTest, TellFormatFamilyAndGrade)
{
    const SteelFamilyCase& c = GetParam();
    Session session = SteelSession(c.Family, "10", "100", "60");
    OpenedSelection(session);
    const SteelSelectionTexts texts = MakeSteelSelectionTexts(session);
    EXPECT_EQ(texts.Label4, c.Parts);
    EXPECT_EQ(texts.StlFormatLabel, c.Example);
    EXPECT_EQ(texts.Label6, c.Name);
    SteelCriteria criteria = session.SteelPicks.Criteria;
    EXPECT_EQ(SteelGradeText(criteria), c.Grade);
    criteria.ksi50 = true;
    EXPECT_EQ(SteelGradeText(criteria), c.Grade50);
}

INSTANTIATE_TEST_SUITE_P(
    Families, FamilyTextsTest,
    testing::Values(SteelFamilyCase{SteelFamily::W, "Depth x Weight", "W 8x 18", "Wide flange",
                                    "   36 ksi Wide Flange Steel", "   50 ksi Wide Flange Steel"},
                    SteelFamilyCase{SteelFamily::S, "Depth x Weight", "S 8x 18.4", "Standard",
                                    "   36 ksi Std. Flange Steel", "   50 ksi Std. Flange Steel"},
                    SteelFamilyCase{SteelFamily::C, "Depth x Weight", "C 8x 8.5", "Channel",
                                    "   36 ksi Steel Channel", "   50 ksi Steel Channel"},
                    SteelFamilyCase{SteelFamily::MC, "Depth x Weight", "MC 8x 18.75", "Miscellaneous Channel",
                                    "   36 ksi Steel Misc Channel", "   50 ksi Steel Misc Channel"},
                    SteelFamilyCase{SteelFamily::Tube, "Depth x Breadth x Wall Thickness", "T 8x 6x 1/4",
                                    "Structural Tube", "   46 ksi Steel Tube", "   50 ksi Steel Tube"},
                    SteelFamilyCase{SteelFamily::Plate, "(Quantity > 1) - Depth x Breadth", "PL 9x 5/8",
                                    "Plate(s) for flitch beam", "   36 ksi steel flitch plate(s) ",
                                    "   50 ksi steel flitch plate(s) "},
                    SteelFamilyCase{SteelFamily::DoublePlate, "(Quantity > 1) - Depth x Breadth",
                                    "(2) PL 9x 5/8", "Plate(s) for flitch beam",
                                    "   36 ksi steel flitch plate(s) ", "   50 ksi steel flitch plate(s) "}),
    CaseName);

TEST(SteelSelectionTexts, TellTheAppliedLoads)
{
    Session session = SteelSession(SteelFamily::W, "20", "1162", "800");
    OpenedSelection(session);
    const SteelSelectionTexts texts = MakeSteelSelectionTexts(session);
    EXPECT_EQ(texts.StlMoment, "Max Moment = 58,100 ft-lbs");  // 1162 * 400 / 8
    EXPECT_EQ(texts.StlReac1, "Reaction 1 = 11,620");
    EXPECT_EQ(texts.StlReac2, "Reaction 2 = 11,620");
}

TEST(SteelSelectionTexts, TellTheLastSelectionOrThatNothingPasses)
{
    Session session = SteelSession(SteelFamily::W, "20", "1162", "800");
    OpenedSelection(session);
    EXPECT_EQ(MakeSteelSelectionTexts(session).StlStatis, "   Selection:  None");
    session.Selection =
        SelectionRecord{.MemberChoice = "W 14x 38", .MemberStatus = "OK", .RecordDate = "3/07/26"};
    EXPECT_EQ(MakeSteelSelectionTexts(session).StlStatis,
              " Selection:   W 14x 38   -  Status: OK   -  Date: 3/07/26");
    session.SteelPicks.Slots.clear();
    EXPECT_EQ(MakeSteelSelectionTexts(session).StlStatis, "No beams from the database meet the requirements");
}

struct BracingCase {
    std::string_view Name;
    SteelFamily Family;
    SupportCondition Support;
    std::string_view Span;
    std::string_view Overhang;
    std::string_view Note;
};

class BracingNoteTest : public testing::TestWithParam<BracingCase> {};

TEST_P(BracingNoteTest, TellsHowTheShapesAreBraced)
{
    const BracingCase& c = GetParam();
    Session session = SteelSession(c.Family, "12", "100", "60");
    session.Problem.Support = c.Support;
    session.Problem.UBLtext = c.Span;
    session.Problem.CantUBLtext = c.Overhang;
    if (c.Support == SupportCondition::Overhanging) {
        SetPoint(session.Problem, 4, "100", "5", "60");
    }
    OpenedSelection(session);
    EXPECT_EQ(MakeSteelSelectionTexts(session).StlPanel, c.Note);
}

INSTANTIATE_TEST_SUITE_P(
    Lengths, BracingNoteTest,
    testing::Values(BracingCase{"tube", SteelFamily::Tube, SupportCondition::SimpleSpan, "8", "",
                                "Compression flange lateral support not required"},
                    BracingCase{"plate", SteelFamily::Plate, SupportCondition::SimpleSpan, "8", "",
                                "Top loading and full lateral support required"},
                    BracingCase{"pair", SteelFamily::DoublePlate, SupportCondition::SimpleSpan, "", "",
                                "Top loading and full lateral support required"},
                    BracingCase{"blank", SteelFamily::W, SupportCondition::SimpleSpan, "", "",
                                "Laterally supported compression flange"},
                    BracingCase{"zero", SteelFamily::C, SupportCondition::Overhanging, "0", "0",
                                "Laterally supported compression flange"},
                    BracingCase{"length", SteelFamily::S, SupportCondition::SimpleSpan, "4.5", "",
                                "Proposed Max Unbraced Length is 4.5 ft"},
                    BracingCase{"overhang larger", SteelFamily::MC, SupportCondition::Overhanging, "4", "4.5",
                                "Proposed Max Unbraced Length is 4.5 ft"},
                    BracingCase{"overhang smaller", SteelFamily::W, SupportCondition::Overhanging, "6", "5",
                                "Proposed Max Unbraced Length is 6 ft"},
                    BracingCase{"any", SteelFamily::W, SupportCondition::SimpleSpan, "Any", "",
                                "Proposed Max Unbraced Length is Any ft"}),
    CaseName);

TEST(SteelDatabase, ListsEverySizeThatCanBeTested)
{
    EXPECT_EQ(SteelDatabase(SteelFamily::W).size(), 154U);
    EXPECT_EQ(SteelDatabase(SteelFamily::Tube).size(), 109U);
    EXPECT_THAT(SteelDatabase(SteelFamily::Tube), Not(Contains("xx")));
    EXPECT_EQ(SteelDatabase(SteelFamily::DoublePlate).size(), 53U);
}

TEST(SteelHelp, TellsTheLimitsAndTheFormats)
{
    EXPECT_THAT(std::string(SteelScreenTexts::UnbracedHelp), StartsWith("Lc and Lu lengths:"));
    EXPECT_THAT(
        std::string(SteelScreenTexts::UnbracedHelp),
        EndsWith("Section and shear percentages are the Actual beam properties divided by the Critical "
                 "properties.  A percentage over 100% indicates an unacceptable ratio."));
    EXPECT_THAT(std::string(SteelScreenTexts::FormatHelp),
                EndsWith("W 10x 22    'Depth x Weight'\n"
                         "S 12x 40.8    'Depth x Weight'\n"
                         "C 8x 13.75    'Depth x Weight'\n"
                         "T 7x 5x 3/8    'Depth x Width x Thickness'\n"
                         "(2) PL 9x 1/2  '(Quantity > 1) x Depth x Thickness'"));
}

TEST(SteelReport, ShowsAShape)
{
    // W 14x 38 on 20 ft, 1162 + 38 = 1200 plf, 800 live: S 30.30 of 54.60; web 12000 / 14400 = 0.83 of 4.37;
    // 0.3863 in. of 1.00, 0.2575 of 0.67; 240 / 0.3863 = 621
    Session session = SteelSession(SteelFamily::W, "20", "1162", "800");
    TestedShape(session, "W 14x 38");
    const TestReport report = MakeTestReport(session);
    EXPECT_EQ(report.DisplayChoice, "W 14x 38");
    EXPECT_EQ(report.GradeLabel, "   36 ksi Wide Flange Steel");
    EXPECT_EQ(report.Modifiers, "Maximum Unbraced Length: Lc = 7.1 ft");
    EXPECT_EQ(report.Label5, "Actual Size is  6-3/4 x 14-1/8");
    EXPECT_EQ(report.SectionReq + " " + report.SectionProp + " " + report.SecStatus + " " + report.SecPercent,
              "30.30 54.60 OK 56%");
    EXPECT_EQ(report.ShearReq + " " + report.ShearProp + " " + report.ShearStatus + " " + report.HorPercent,
              "0.83 4.37 OK 19%");
    EXPECT_EQ(report.DeflReq + " " + report.DeflProp + " " + report.DeflPercent, "1.00 0.39 39%");
    EXPECT_EQ(report.LDeflReq + " " + report.LDeflProp + " " + report.LDeflPercent, "0.67 0.26 39%");
    EXPECT_EQ(report.DeadDefl, "Dead Load Deflection (x 1 for creep)= 0.13");
    EXPECT_EQ(report.Label11, "Total Load Deflection    Max: L / 240   Actual: L / 621");
    EXPECT_EQ(report.Label10, "Reactions: R1 TL = 12000   R2 TL = 12000");
    EXPECT_EQ(report.NoSplitLabel + report.SmallChoice, "");
}

TEST(SteelReport, TellsHowTheShapeMustBeBraced)
{
    const auto modifiers = [](SteelFamily family, std::string_view name) {
        Session session = SteelSession(family, "10", "100", "60");
        session.Problem.Wet = true;
        session.Problem.Rep = true;
        session.Problem.Spacing = RepetitiveSpacing::Ctr12;
        TestedShape(session, name);
        return MakeTestReport(session).Modifiers;
    };
    EXPECT_EQ(modifiers(SteelFamily::Tube, "T 7x 4x 1/4"), "No maximum unbraced length.");
    EXPECT_EQ(modifiers(SteelFamily::Plate, "PL 9x 5/8"), "Full lateral bracing required.");
    EXPECT_EQ(modifiers(SteelFamily::DoublePlate, "(2) PL 9x 5/8"), "Full lateral bracing required.");
    EXPECT_EQ(modifiers(SteelFamily::C, "C 8x 11.5"), "Maximum Unbraced Length: Lu = 5.1 ft");
}

struct SketchCase {
    SteelFamily Family;
    std::string_view Shape;
    std::string_view Words;
};

class SteelSketchTest : public testing::TestWithParam<SketchCase> {};

TEST_P(SteelSketchTest, TellsTheSection)
{
    Session session = SteelSession(GetParam().Family, "6", "100", "60");
    TestedShape(session, GetParam().Shape);
    EXPECT_EQ(DescribeSection(ReadSectionPicture(session)), GetParam().Words);
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, SteelSketchTest,
    testing::Values(SketchCase{SteelFamily::W, "W 8x 18",
                               "Flanged section, 5-1/4 in. broad and 8-1/8 in. deep, web 0.23 in., flanges "
                               "0.33 in."},
                    SketchCase{SteelFamily::C, "C 8x 11.5",
                               "Channel, 2-1/4 in. broad and 8 in. deep, web 0.22 in., flanges 0.39 in."},
                    SketchCase{SteelFamily::Tube, "T 8x 6x 1/4",
                               "Rectangular tube, 6 in. broad and 8 in. deep, wall 0.25 in."},
                    SketchCase{SteelFamily::Plate, "PL 9x 5/8", "Plate, 5/8 in. broad and 9 in. deep."},
                    SketchCase{SteelFamily::DoublePlate, "(2) PL 9x 5/8",
                               "Plate, 9 in. deep, 2 plates of 5/8 in."}));

}  // namespace
}  // namespace kordavan
