#include "records/DataRecordPage.h"

#include <gmock/gmock.h>

#include "records/PageGeometry.h"

namespace kordavan {
namespace {

/// Every cell of the sheet, each with a text of its own and all notes.
DataSheet FullBeamSheet()
{
    DataSheet sheet;
    for (std::size_t label = 1; label < DataSheet::LabelCount; ++label) {
        sheet[label] = "c" + std::to_string(label);
    }
    sheet.Label133Missing = "second header";
    sheet.ReportNotes = {"n1", "n2", "n3", "n4", "n5", "n6", "n7"};
    return sheet;
}

class RecordPageTest : public testing::TestWithParam<bool> {};

TEST_P(RecordPageTest, HoldsEveryCellOnceWithinTheMargins)
{
    const RecordPage page = LayOutDataRecord(FullBeamSheet(), {.HighDpi = GetParam()});
    ExpectWithinMargins(page);
    constexpr std::size_t cellsOfTheSheet = 181;  // 194 numbers less the 13 that name no cell
    EXPECT_EQ(CellsOnce(page).size(), cellsOfTheSheet);
    ASSERT_TRUE(page.Diagram);
    EXPECT_EQ(page.Tints.empty(), !GetParam());
}

INSTANTIATE_TEST_SUITE_P(Layouts, RecordPageTest, testing::Bool());

TEST(RecordPage, TextsDoNotLieOnOneAnother)
{
    const RecordPage page = LayOutDataRecord(FullBeamSheet(), {});
    ExpectTextsApart(page);
}

TEST(RecordPage, WithoutNotesHasNoHeadingForThem)
{
    const auto texts = [](const DataSheet& sheet, bool hasNotes) {
        const RecordPage page = LayOutDataRecord(sheet, {.HasNotes = hasNotes});
        std::vector<std::string> all;
        for (const PageText& text : page.Texts) {
            all.push_back(text.Text);
        }
        return all;
    };
    EXPECT_THAT(texts(FullBeamSheet(), true), testing::Contains("Notes"));
    EXPECT_THAT(texts(FullBeamSheet(), false), testing::Not(testing::Contains("Notes")));
    EXPECT_THAT(texts(DataSheet{}, true), testing::Not(testing::Contains("Notes")));
}

TEST(RecordPage, AsTextKeepsItsLinesAndColumns)
{
    const std::string text = PlainTextOf(LayOutDataRecord(FullBeamSheet(), {}));
    EXPECT_THAT(text, testing::HasSubstr("second header"));
    const std::size_t critical = text.find("c13 ");
    const std::size_t below = text.find("c15 ");
    const auto column = [&text](std::size_t at) { return at - text.rfind('\n', at); };
    EXPECT_EQ(column(critical), column(below));
    EXPECT_THAT(text, testing::ContainsRegex("c9 +c13 +c14 +c111 +c152"));
    EXPECT_THAT(text, testing::HasSubstr("\nn7\n"));
}

TEST(RecordPage, AsTextCountsLettersNotBytes)
{
    DataSheet plain = FullBeamSheet();
    plain[1] = "Project: Hauser";
    DataSheet accented = FullBeamSheet();
    accented[1] = "Project: H\u00E4user";
    const auto dateColumn = [](const DataSheet& sheet) {
        const std::string text = PlainTextOf(LayOutDataRecord(sheet, {}));
        const std::size_t at = text.find("c4\n");
        return at - text.rfind('\n', at);
    };
    EXPECT_EQ(dateColumn(accented), dateColumn(plain) + 1);  // of two bytes, one letter
}

}  // namespace
}  // namespace kordavan
