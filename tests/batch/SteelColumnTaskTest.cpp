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

/// A request for a column of 60 kips, 14 ft high, with more fields behind it.
std::string SteelColumn(std::string_view fields)
{
    return R"({"task":"steel-column","column":{"cReacText":60000,"cHTtext":"14","cD1text":"14"})" +
           std::string(fields) + "}";
}

TEST(SteelColumnTask, GivesThePicksAlone)
{
    const auto answer = AnswerTo(SteelColumn(""));
    EXPECT_THAT(NamesOf(answer), ElementsAre("status", "messages", "picks", "Label60"));
    EXPECT_STREQ(answer["status"].GetString(), "done");
    EXPECT_STREQ(answer["picks"]["StdRndBut"].GetString(), "5 in. diam.");
    EXPECT_STREQ(answer["picks"]["ExtraRndbut"].GetString(), "5 in. diam.");
    EXPECT_STREQ(answer["picks"]["DblRndBut"].GetString(), "4 in. diam.");
    ASSERT_EQ(answer["picks"]["TubeCol"].Size(), 3U);
    EXPECT_STREQ(answer["picks"]["TubeCol"][2].GetString(), "5 x 5 x 3/8");
    EXPECT_STREQ(answer["Label60"].GetString(), "");
}

TEST(SteelColumnTask, ReportsOnASize)
{
    const auto answer = AnswerTo(SteelColumn(
        R"(,"size":{"Size":"3 x 3 x 1/4","TypeAndGrade":"Structural Tube ASTM A500 Grade B"},"edition":"1997")"));
    ASSERT_STREQ(answer["status"].GetString(), "done");
    const auto& result = answer["result"];
    EXPECT_THAT(NamesOf(result), ElementsAre("Fy", "Cc", "KLoverR", "Fa", "RequiredArea", "ActualStress",
                                             "KLStatus", "AreaStatus"));
    // KLr = 168 / 1.1 = 152.727, Fa = 149332.1 / 23325.6 = 6.40207 ksi, P / Fa = 9.37197 in^2
    EXPECT_EQ(result["Cc"].GetFloat(), 111.5F);
    EXPECT_NEAR(result["KLoverR"].GetDouble(), 152.7273, 1e-4);
    EXPECT_NEAR(result["Fa"].GetDouble(), 6.40207, 1e-5);
    EXPECT_NEAR(result["RequiredArea"].GetDouble(), 9.37197, 2e-5);
    EXPECT_STREQ(result["KLStatus"].GetString(), "OK");
    EXPECT_STREQ(result["AreaStatus"].GetString(), "Fail");
    EXPECT_THAT(
        NamesOf(answer["report"]),
        ElementsAre("Reaction", "Fy", "E", "Cc", "Wt. p/ft.", "K", "unbraced, in.", "r", "Fa", "KL/r actual",
                    "KL/r critical", "KL/r status", "KL/r ratio", "stress actual", "stress critical",
                    "area required", "area actual", "area ratio", "area status", "Actual O.D."));
    EXPECT_STREQ(answer["report"]["area ratio"].GetString(), "362%");
}

TEST(SteelColumnTask, KeepsThePicksWhenTheSizeIsRefused)
{
    const auto answer = AnswerTo(SteelColumn(R"(,"size":{"Size":"3 x 3 x 1/4"})"));
    EXPECT_STREQ(answer["status"].GetString(), "refused");
    EXPECT_STREQ(answer["refusal"]["focus"].GetString(), "StlColGrade");
    EXPECT_TRUE(answer.HasMember("picks"));
    EXPECT_TRUE(answer.HasMember("Label60"));
    EXPECT_FALSE(answer.HasMember("result"));
    EXPECT_FALSE(answer.HasMember("report"));
}

TEST(SteelColumnTask, RefusesWhatTheChecksRefuse)
{
    const auto answer = AnswerTo(R"({"task":"steel-column","column":{"cReacText":60000}})");
    EXPECT_STREQ(answer["status"].GetString(), "refused");
    EXPECT_STREQ(answer["refusal"]["focus"].GetString(), "cHTtext");
    EXPECT_FALSE(answer.HasMember("picks"));
}

TEST(SteelColumnTask, KnowsItsFieldsAlone)
{
    for (const std::string_view fields :
         {R"(,"size":{"D1":"3.5"})", R"(,"size":"3 in. diam.")", R"(,"member":{})"}) {
        const auto answer = AnswerTo(SteelColumn(fields));
        EXPECT_STREQ(answer["status"].GetString(), "invalid") << fields;
        EXPECT_THAT(answer["error"].GetString(), HasSubstr(fields[2] == 's' ? "size" : "member")) << fields;
    }
}

}  // namespace
}  // namespace kordavan
