#include <gmock/gmock.h>
#include <rapidjson/document.h>

#include <string>
#include <string_view>
#include <vector>

#include "batch/Answers.h"

namespace kordavan {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// A 4x column of DF-L #2, whose values are those of the table, and what else the request has.
std::string Column(std::string_view more, std::string_view rest)
{
    std::string line =
        R"({"task":"column","id":7,"column":{"cReacText":7000,"cHTtext":8,"cD1text":8,"cD2text":"8",)"
        R"("ColSpeciesCombo":"DF-L #2")";
    line += more;
    line += "}";
    line += rest;
    return line + "}";
}

std::vector<std::string> WidthsOf(const rapidjson::Document& answer)
{
    std::vector<std::string> widths;
    for (const auto& width : answer["ColDep"].GetArray()) {
        widths.emplace_back(width.GetString());
    }
    return widths;
}

TEST(ColumnTask, SearchesAndTestsWithTheValuesOfTheTable)
{
    const auto answer = AnswerTo(Column("", R"(,"size":{"D1":3.5,"D2":"3.5"})"));
    ASSERT_STREQ(answer["status"].GetString(), "done");
    EXPECT_EQ(answer["id"].GetInt(), 7);
    EXPECT_EQ(WidthsOf(answer)[1], "4");
    EXPECT_STREQ(answer["NoneWorkLabel"].GetString(), "");
    const auto& result = answer["result"];
    EXPECT_EQ(result.MemberCount(), 18U);
    EXPECT_STREQ(result["GoverningPlane"].GetString(), "D2");
    EXPECT_EQ(result["Area"].GetDouble(), 12.25);
    EXPECT_EQ(result["EPrime"].GetDouble(), 1600000);
    EXPECT_EQ(result["FcStar"].GetDouble(), 1552.5);  // 1350 * 1.15
    for (const char* const name : {"SlendernessD1", "SlendernessD2"}) {
        EXPECT_NEAR(result[name].GetDouble(), 96 / 3.5, 1e-12) << name;
    }
    for (const char* const name : {"CmFc", "CmE", "CiFc", "CiE", "Kf", "Cp1"}) {
        EXPECT_EQ(result[name].GetDouble(), 1) << name;
    }
    EXPECT_NEAR(result["FcE"].GetDouble(), 638.60909, 1e-4);
    EXPECT_NEAR(result["Cp2"].GetDouble(), 0.3683741, 1e-7);
    EXPECT_NEAR(result["FcActual"].GetDouble(), 7000 / 12.25, 1e-9);
    EXPECT_NEAR(result["FcPrime"].GetDouble(), 571.90079, 1e-4);
    EXPECT_STREQ(result["Status"].GetString(), "OK");
}

TEST(ColumnTask, SearchesAloneWithoutASize)
{
    const auto answer = AnswerTo(Column(R"(,"cReacText":1000000)", ""));
    EXPECT_STREQ(answer["status"].GetString(), "done");
    EXPECT_THAT(WidthsOf(answer), ElementsAre("", "", "", "", ""));
    EXPECT_STREQ(answer["NoneWorkLabel"].GetString(), "No columns from the database meet the requirements.");
    EXPECT_FALSE(answer.HasMember("result"));
}

TEST(ColumnTask, FillsOnlyTheValuesThatAreAbsent)
{
    // Fc 1000 * CF 1.15; E stays that of the table
    const auto typed = AnswerTo(Column(R"(,"cFcText":1000)", R"(,"size":{"D1":3.5,"D2":3.5})"));
    EXPECT_EQ(typed["result"]["FcStar"].GetDouble(), 1150);
    EXPECT_EQ(typed["result"]["EPrime"].GetDouble(), 1600000);
    // The group and edition count wherever they stand in the request: 700 as post, 1350 and 1300 of Hem-Fir
    // #1.
    const auto post = AnswerTo(Column(R"(,"ValueGroup":"TimberButton","ColumnType":"CSolidButton")",
                                      R"(,"size":{"D1":7.5,"D2":7.5})"));
    EXPECT_EQ(post["result"]["FcStar"].GetDouble(), 700);
    const std::string hemFir = Column(R"(,"ColumnType":"CBoltedButton","ColSpeciesCombo":"Hem-Fir #1")",
                                      R"(,"edition":"1997","size":{"D1":3,"D2":9.25})");
    EXPECT_NEAR(AnswerTo(hemFir)["result"]["FcStar"].GetDouble(), 1350 * 1.15, 1e-3);
    const auto blank = AnswerTo(Column(R"(,"cFcText":"")", ""));
    EXPECT_STREQ(blank["refusal"]["focus"].GetString(), "cFcText");
}

TEST(ColumnTask, RefusesAColumnBeforeTheSearchAndASizeAfterIt)
{
    const auto column = AnswerTo(Column(R"(,"cD2text":8.5)", R"(,"size":{"D1":3.5,"D2":3.5})"));
    EXPECT_STREQ(column["status"].GetString(), "refused");
    EXPECT_STREQ(column["refusal"]["focus"].GetString(), "cD2text");
    EXPECT_FALSE(column.HasMember("ColDep"));
    const auto size = AnswerTo(Column("", R"(,"size":{"D1":3.5})"));
    EXPECT_STREQ(size["status"].GetString(), "refused");
    EXPECT_STREQ(size["refusal"]["focus"].GetString(), "ColD2Text");
    EXPECT_EQ(WidthsOf(size)[1], "4");
    EXPECT_FALSE(size.HasMember("result"));
    EXPECT_STREQ(AnswerTo(R"({"task":"column"})")["refusal"]["focus"].GetString(), "cReacText");
}

TEST(ColumnTask, SaysWhatIsWrongInARequest)
{
    struct Fault {
        std::string Line;
        std::string_view Said;
    };
    for (
        const Fault& fault :
        {Fault{Column(R"(,"Fc":1000)", ""), "column.Fc"}, Fault{Column("", R"(,"size":{"D3":1})"), "size.D3"},
         Fault{Column("", R"(,"size":[3.5])"), "size: an object"},
         Fault{Column("", R"(,"stud":{})"), "stud: no such field"},
         Fault{Column(R"(,"cWetButton":1)", ""), "column.cWetButton: true or false"},
         Fault{
             Column(R"(,"ColumnType":"TimberButton")", ""),
             R"(column.ColumnType: one of "CSolidButton", "cSolid4xbutton", "CNailedButton", "CBoltedButton")"},
         Fault{Column(R"(,"ValueGroup":2)", ""), "column.ValueGroup: a text"}}) {
        const auto answer = AnswerTo(fault.Line);
        EXPECT_STREQ(answer["status"].GetString(), "invalid") << fault.Line;
        EXPECT_THAT(answer["error"].GetString(), HasSubstr(fault.Said));
    }
}

}  // namespace
}  // namespace kordavan
