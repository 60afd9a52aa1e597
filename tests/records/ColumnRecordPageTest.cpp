#include "records/ColumnRecordPage.h"

#include <gmock/gmock.h>

#include <tuple>

#include "columns/StudColumn.h"
#include "core/NumberText.h"
#include "records/ColumnRecordLayout.h"
#include "records/PageGeometry.h"

namespace kordavan {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

ColumnSheet FullSheet()
{
    ColumnSheet sheet;
    for (std::size_t label = 1; label < ColumnSheet::LabelCount; ++label) {
        sheet[label] = "c" + std::to_string(label);
    }
    sheet.SheathNote = "sheath";
    sheet.Sheathnote2 = "plies";
    sheet.ReportNotes = FullNotes;
    return sheet;
}

/// The header lines and the cells of the file.
std::set<std::size_t> CellsOf(const RecordLayout& layout)
{
    std::set<std::size_t> cells{1, 2};
    for (const RecordField& field : layout.Fields) {
        if (field.Name.starts_with("Label")) {
            cells.insert(static_cast<std::size_t>(Val(field.Name.substr(5))));
        }
    }
    return cells;
}

/// A stud of which each figure reads otherwise, all loads in use.
StudTest FullStud()
{
    StudTest test;
    test.Nds = Edition::Nds2015;
    test.Entry.WindStudSpacing = "16";
    test.Entry.DepthCombo = 1;
    test.Problem = {.StudHeight = 9.5F,
                    .StudSpacing = 16,
                    .Breadth = 1.5F,
                    .Depth = 5.5F,
                    .BaseFb = 901,
                    .BaseFc = 1351,
                    .BaseE = 1.6F,
                    .AxialPLF = 1201,
                    .AxialPoint = 301,
                    .AxialCd = 1.15F,
                    .WindCd = 1.6F,
                    .Wind = {25, 12, -18},
                    .Beg = {0.5F, 2.5F, 6.25F},
                    .End = {9.25F, 4.5F, 8.75F},
                    .RepetitiveNDS = true,
                    .RepetitiveIBC = true,
                    .SpeciesGrade = "DF-L #2"};
    test.Result = {.P = 1902,
                   .R1 = 151,
                   .MaxMoment = 343,
                   .MaxMomentAtFt = 4.51F,
                   .CFb = 1.3F,
                   .CFc = 1.1F,
                   .Cr = 1.4F,
                   .FbPrime = 2623,
                   .Slenderness = 20.73,
                   .FcE = 1118,
                   .FcStar = 1708,
                   .Cp = 0.521F,
                   .AllowableAxial = 6383,
                   .FcActual = 231,
                   .FcPrime = 889,
                   .FbActual = 545,
                   .Interaction = 0.329F,
                   .RB = 16.69,
                   .FbE = 2517};
    return test;
}

RecordPage StudPage(const StudTest& test, const PageOptions& options = {})
{
    const RecordHeading heading{.Project = "Barn",
                                .Description = "North wall",
                                .BeamId = "S1",
                                .Heading1 = "Timber & Sons",
                                .Heading2 = "12 Mill Road",
                                .Date = "3/07/26",
                                .Initials = "JD"};
    return LayOutStudRecord(test, heading, FullNotes, options);
}

class ColumnPageTest : public testing::TestWithParam<std::tuple<bool, bool>> {
protected:
    static PageOptions Options()
    {
        return {.HighDpi = std::get<0>(GetParam()), .HasDiagram = std::get<1>(GetParam())};
    }

    static void ExpectWellLaidOut(const RecordPage& page)
    {
        ExpectWithinMargins(page);
        ExpectTextsApart(page);
        EXPECT_EQ(page.Diagram.has_value(), Options().HasDiagram);
        EXPECT_EQ(page.Tints.empty(), !Options().HighDpi);
        for (const std::string& note : FullNotes) {
            EXPECT_THAT(TextsOf(page), Contains(note));
        }
    }
};

TEST_P(ColumnPageTest, HoldsEveryCellOfWoodOnce)
{
    const RecordPage page = LayOutWoodColumnRecord(FullSheet(), Options());
    ExpectWellLaidOut(page);
    EXPECT_EQ(CellsOnce(page), CellsOf(WoodColumnRecordLayout));
    std::vector<std::string> names;
    for (const PageText& text : page.Texts) {
        if (!text.Name.empty()) {
            names.push_back(text.Name + "=" + text.Text);
        }
    }
    EXPECT_THAT(names, testing::ElementsAre("SheathNote=sheath", "Sheathnote2=plies"));
}

TEST_P(ColumnPageTest, HoldsEveryCellOfSteelOnce)
{
    const RecordPage page = LayOutSteelColumnRecord(FullSheet(), Options());
    ExpectWellLaidOut(page);
    EXPECT_EQ(CellsOnce(page), CellsOf(SteelColumnRecordLayout));
}

TEST_P(ColumnPageTest, HoldsEveryFigureOfAStud)
{
    const RecordPage page = StudPage(FullStud(), Options());
    ExpectWellLaidOut(page);
    for (const std::string_view text : {"Timber & Sons",
                                        "12 Mill Road",
                                        "Barn",
                                        "North wall",
                                        "S1",
                                        "3/07/26",
                                        "JD",
                                        "Stud 2x6 at 16 in. o.c., DF-L #2",
                                        "Status: Adequate",
                                        "25.0",
                                        "33.3",
                                        "0.5",
                                        "9.25",
                                        "12.0",
                                        "16.0",
                                        "2.5",
                                        "4.5",
                                        "-18.0",
                                        "-24.0",
                                        "6.25",
                                        "8.75",
                                        "9.5",
                                        "1.5",
                                        "5.5",
                                        "1,201.0",
                                        "301.0",
                                        "1,902.0",
                                        "151.0",
                                        "343.0",
                                        "4.51",
                                        "901.0",
                                        "1,351.0",
                                        "1.6",
                                        "1.15",
                                        "1.60",
                                        "1.30",
                                        "1.10",
                                        "1.40",
                                        "2,623.0",
                                        "545.0",
                                        "20.8%",
                                        "20.73",
                                        "41.5%",
                                        "1,118.0",
                                        "1,708.0",
                                        "0.521",
                                        "6,383.0",
                                        "29.8%",
                                        "231.0",
                                        "889.0",
                                        "0.329",
                                        "32.9%",
                                        "16.69",
                                        "2,517.0",
                                        "21.7%",
                                        "50",
                                        "1.0"}) {
        EXPECT_THAT(TextsOf(page), Contains(text));
    }
    EXPECT_THAT(PlainTextOf(page),
                HasSubstr("NDS 2015, load duration 1.15 of the axial load and 1.60 of the wind, "
                          "repetitive use factor Cr 1.40 by IBC 2306.2.1\n"));
}

INSTANTIATE_TEST_SUITE_P(Layouts, ColumnPageTest, testing::Combine(testing::Bool(), testing::Bool()));

TEST(ColumnRecordPage, StopsTheKeyboardAtItsBlocks)
{
    const auto blocks = [](const RecordPage& page) {
        std::vector<std::string> texts;
        for (const PageText& text : page.Texts) {
            if (text.StartsBlock) {
                texts.push_back(text.Text);
            }
        }
        return texts;
    };
    EXPECT_THAT(blocks(LayOutWoodColumnRecord(FullSheet(), {})),
                testing::ElementsAre("c12", "Check", "Load and geometry", "Values and factors",
                                     "Bracing and fastening"));
    EXPECT_THAT(blocks(LayOutSteelColumnRecord(FullSheet(), {})),
                testing::ElementsAre("c10", "Check", "Load and geometry"));
    EXPECT_THAT(blocks(StudPage(FullStud())), testing::ElementsAre(HasSubstr("Stud 2x6"), "Check", "Wind",
                                                                   "Loads and geometry", "Bending"));
}

TEST(ColumnRecordPage, WithoutNotesHasNoHeadingsForThem)
{
    const std::string bare = PlainTextOf(LayOutWoodColumnRecord({}, {}));
    EXPECT_THAT(bare, Not(HasSubstr("Notes")));
    EXPECT_THAT(bare, Not(HasSubstr("Bracing and fastening")));
    EXPECT_THAT(PlainTextOf(LayOutSteelColumnRecord(FullSheet(), {.HasNotes = false})), Not(HasSubstr("n1")));
    EXPECT_THAT(PlainTextOf(StudPage(FullStud(), {.HasNotes = false})), Not(HasSubstr("n1")));
}

TEST(ColumnRecordPage, AsTextSetsEachFigureBesideItsCaption)
{
    const std::string text = PlainTextOf(LayOutWoodColumnRecord(FullSheet(), {}));
    EXPECT_THAT(text, testing::ContainsRegex("Compression Fc', fc, psi +c83 +c82 +c84\n"));
    EXPECT_THAT(text, testing::ContainsRegex("Unbraced length, ft +c23 +c29\n"));
    EXPECT_THAT(text, testing::ContainsRegex("Wet use Cm +c48 +c49 +Built-up column Kf +c52\n"));
}

TEST(StudRecordPage, SaysWhyThereIsNoInteraction)
{
    StudTest test = FullStud();
    EXPECT_THAT(PlainTextOf(StudPage(test)), Not(HasSubstr("No interaction")));
    test.Result.Interaction.reset();
    test.Result.InteractionFails = true;
    const std::string text = PlainTextOf(StudPage(test));
    EXPECT_THAT(text, HasSubstr("No interaction: the axial stress fc reaches FcE"));
    EXPECT_THAT(text, testing::ContainsRegex("Axial load with bending +1\\.0 +Fails\n"));
    EXPECT_THAT(text, HasSubstr("Status: Fails"));
}

TEST(StudRecordPage, SaysOfEachCheckWhetherItFails)
{
    StudTest test = FullStud();
    const auto lines = [&test] { return PlainTextOf(StudPage(test)); };
    EXPECT_THAT(lines(), Not(HasSubstr("Fails")));
    test.Result.SlendernessOver50 = test.Result.BendingBuckles = true;
    EXPECT_THAT(lines(), testing::ContainsRegex("Slenderness le/d +50 +20\\.73 +Fails"));
    EXPECT_THAT(lines(), testing::ContainsRegex("Stability FbE, fb, psi [^\n]+ Fails"));
    test.Result.AxialFails = true;
    EXPECT_THAT(lines(), testing::ContainsRegex("Axial load Pa, P, lb [^\n]+ Fails"));
}

/// Station 100 has more than the moment worked with; the page warns in a line that the room then allows for.
TEST(StudRecordPage, WarnsOfAGreaterMoment)
{
    StudTest test = FullStud();
    test.Stations[100] = {.At = 4.75F, .Moment = 500};
    const RecordPage page = StudPage(test);
    EXPECT_THAT(TextsOf(page), Contains(StudMomentWarning(test)));
    ExpectTextsApart(page);
}

TEST(StudRecordPage, LeavesOutWindThatIsNotThere)
{
    StudTest test = FullStud();
    test.Problem.Wind = {25, 0, 0};
    test.Problem.RepetitiveNDS = false;
    const std::string text = PlainTextOf(StudPage(test));
    EXPECT_THAT(text, testing::ContainsRegex("Load B +none\nLoad C +none\n"));
    EXPECT_THAT(text, HasSubstr("no repetitive use factor"));
}

}  // namespace
}  // namespace kordavan
