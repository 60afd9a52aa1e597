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

rapidjson::Document StudAnswer(const std::string& fields, std::string_view edition = "2018")
{
    return AnswerTo(R"({"task":"stud","edition":")" + std::string(edition) + R"(","stud":{)" + fields + "}}");
}

const std::string LoadsAndSize =
    R"("WindStudHt":10,"WindStudSpacing":"16","DepthCombo":1,"AxialPLFtextbox":600,"WindA":20,"EndA":"10")";
const std::string PlainStud = LoadsAndSize + R"(,"WindStudCombo":"DF-L #2")";

TEST(StudTask, NamesEveryFigureAndFillsTheBaseValues)
{
    const auto answer = StudAnswer(PlainStud);
    ASSERT_STREQ(answer["status"].GetString(), "done");
    EXPECT_EQ(answer["messages"].Size(), 0U);
    EXPECT_THAT(NamesOf(answer["result"]),
                ElementsAre("P", "MaxMoment", "MaxMomentAtFt", "R1", "CFb", "CFc", "FbPrime", "FcE", "FcStar",
                            "Cp", "AllowableAxial", "FcActual", "FcPrime", "FbActual", "Interaction", "RB",
                            "FbE", "Status"));
    EXPECT_EQ(answer["result"]["P"].GetFloat(), 800);
    EXPECT_EQ(answer["result"]["FbPrime"].GetFloat(), 1872);  // 1.3 x 900 x 1.6
    EXPECT_EQ(answer["result"]["FcStar"].GetFloat(), 1485);   // 1.1 x 1350
    EXPECT_STREQ(answer["result"]["Status"].GetString(), "Adequate");
}

TEST(StudTask, TakesTheBaseValuesOfTheEditionAndGivenOnesAsTheyAre)
{
    const std::string stud = LoadsAndSize + R"(,"WindStudCombo":"Hem-Fir #1")";
    EXPECT_FLOAT_EQ(StudAnswer(stud, "1997")["result"]["FcStar"].GetFloat(), 1485);  // 1.1 x 1350
    EXPECT_FLOAT_EQ(StudAnswer(stud)["result"]["FcStar"].GetFloat(), 1430);          // 1.1 x 1300
    EXPECT_FLOAT_EQ(StudAnswer(stud + R"(,"WindStudFc":1000)")["result"]["FcStar"].GetFloat(), 1100);
    const auto emptied = StudAnswer(stud + R"(,"WindStudE":"")");
    EXPECT_STREQ(emptied["status"].GetString(), "refused");
    EXPECT_STREQ(emptied["refusal"]["focus"].GetString(), "WindStudE");
    EXPECT_FALSE(emptied.HasMember("result"));
}

TEST(StudTask, FailsBeyondItsBucklingLoadWithTheFigureOfTheFormula)
{
    // fc = 40000 / 8.25 = 4848 psi, far beyond FcE.
    const auto answer = StudAnswer(PlainStud + R"(,"AxialPointTextbox":"39200")");
    EXPECT_TRUE(answer["result"]["Interaction"].IsNumber());
    EXPECT_STREQ(answer["result"]["Status"].GetString(), "Fails");
}

TEST(StudTask, SaysWhatIsWrongAndWhere)
{
    for (const auto& [fields, error] :
         {std::pair{R"("WindStudht":10)", "stud.WindStudht"},
          std::pair{R"("DepthCombo":3)", "stud.DepthCombo"},
          std::pair{R"("BreadthCombo":-1)", "stud.BreadthCombo"}, std::pair{R"("BegC":[1])", "stud.BegC"},
          std::pair{R"("RepIBCCheck":1)", "stud.RepIBCCheck"}}) {
        const auto answer = StudAnswer(fields);
        EXPECT_STREQ(answer["status"].GetString(), "invalid") << fields;
        EXPECT_THAT(answer["error"].GetString(), HasSubstr(error));
    }
}

}  // namespace
}  // namespace kordavan
