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

rapidjson::Document NotchAnswer(const std::string& fields, std::string_view edition = "2018")
{
    return AnswerTo(R"({"task":"notch","edition":")" + std::string(edition) + R"(","notch":{)" + fields +
                    "}}");
}

const std::string PlainNotch =
    R"("MaxVtextbox":2000,"breadthtextbox":"3.5","depthtextbox":10,"Fvtextbox":180,"dnTextbox":"8",)"
    R"("Species":"DF-L #2")";

TEST(NotchTask, NamesEveryFigureAndLabel)
{
    const auto answer = NotchAnswer(PlainNotch + R"(,"NDSyearList":0)");
    ASSERT_STREQ(answer["status"].GetString(), "done");
    const auto& result = answer["result"];
    EXPECT_THAT(NamesOf(result), ElementsAre("NdsYear", "Cm", "Ch", "Cd", "AdjustedFv", "AreaAtNotch",
                                             "MinimumDn", "CriticalFv", "AllowableV", "ResultIsV",
                                             "RatioPercent", "MinSpan", "TaperAngle", "Status"));
    EXPECT_EQ(result["NdsYear"].GetInt(), 2005);
    EXPECT_TRUE(result["CriticalFv"].IsNull());
    EXPECT_NEAR(result["AllowableV"].GetDouble(), 2150.4010752, 1e-6);  // 0.666667 x 180 x 28 x 0.64
    EXPECT_TRUE(result["ResultIsV"].GetBool());
    EXPECT_TRUE(result["MinSpan"].IsNull());
    EXPECT_STREQ(result["Status"].GetString(), "OK");
    EXPECT_THAT(NamesOf(answer["labels"]),
                ElementsAre("WetUseLabel", "YearLine", "DnMinimum", "AdjFvLabel", "AnLabel", "CritLabel",
                            "CriticalfvLabel", "CritPsiLabel", "RatioTitle", "RatioLabel", "ShearStatusLabel",
                            "MinSpanLabel", "TaperAngleLabel", "NotchNote"));
    EXPECT_STREQ(answer["labels"]["YearLine"].GetString(), "In force: NDS 2005.");
}

TEST(NotchTask, ReadsEveryEntry)
{
    // Glulam, wet, no splits, snow: 100 x 0.875 x 2 x 1.15 = 201.25 psi; 3 x 4 / 12 = 1 ft; 4 in 12.
    const auto answer = NotchAnswer(
        R"("MemberListBox":2,"NotchListBox":2,"MaxVtextbox":"9000","breadthtextbox":5,"depthtextbox":"10",)"
        R"("Fvtextbox":"100","dnTextbox":3,"eTextbox":4,"rdTextbox":9.25,"rpTextbox":4,"tTextbox":5.5,)"
        R"("WetUseCheckbox":true,"NoSplitCheckbox":true,"DurListbox":1,"Species":"own","NDSyearList":2)");
    const auto& result = answer["result"];
    EXPECT_EQ(result["Ch"].GetInt(), 2);
    EXPECT_NEAR(result["AdjustedFv"].GetDouble(), 201.25, 1e-9);
    EXPECT_NEAR(result["CriticalFv"].GetDouble(), 900, 1e-9);  // 27000 / (2 x 15)
    EXPECT_NEAR(result["MinimumDn"].GetDouble(), 3.33, 1e-9);
    EXPECT_NEAR(result["MinSpan"].GetDouble(), 1, 1e-9);
    EXPECT_NEAR(result["TaperAngle"].GetDouble(), 18.434948823, 1e-8);
    EXPECT_STREQ(result["Status"].GetString(), "Fail");
}

TEST(NotchTask, ComputesNothingWithoutARule)
{
    const auto answer = NotchAnswer(PlainNotch + R"(,"NDSyearList":3)");
    EXPECT_STREQ(answer["status"].GetString(), "done");
    ASSERT_EQ(answer["messages"].Size(), 1U);
    EXPECT_STREQ(answer["messages"][0]["kind"].GetString(), "alert");
    EXPECT_STREQ(answer["messages"][0]["text"].GetString(), "No NDS year selected.");
    const auto& result = answer["result"];
    EXPECT_EQ(result["NdsYear"].GetInt(), 2018);
    for (const char* const name : {"CriticalFv", "AllowableV", "ResultIsV", "RatioPercent", "Status"}) {
        EXPECT_TRUE(result[name].IsNull()) << name;
    }
    EXPECT_EQ(result["AreaAtNotch"].GetDouble(), 28);
    EXPECT_STREQ(answer["labels"]["ShearStatusLabel"].GetString(), "");
    EXPECT_STREQ(NotchAnswer(PlainNotch, "2005")["result"]["Status"].GetString(), "OK");
}

TEST(NotchTask, RefusesAsTheScreenDoesAndFillsNoFv)
{
    const auto answer =
        NotchAnswer(R"("MaxVtextbox":1,"breadthtextbox":1,"depthtextbox":1,"Species":"DF-L #2")");
    EXPECT_STREQ(answer["status"].GetString(), "refused");
    EXPECT_STREQ(answer["refusal"]["focus"].GetString(), "Fvtextbox");
    EXPECT_FALSE(answer.HasMember("result") || answer.HasMember("labels"));
}

TEST(NotchTask, SaysWhatIsWrongAndWhere)
{
    for (const auto& [fields, error] :
         {std::pair{R"("MaxV":10)", "notch.MaxV"}, std::pair{R"("NotchListBox":3)", "notch.NotchListBox"},
          std::pair{R"("MemberListBox":-1)", "notch.MemberListBox"},
          std::pair{R"("DurListbox":4)", "notch.DurListbox"},
          std::pair{R"("NDSyearList":4)", "notch.NDSyearList"},
          std::pair{R"("WetUseCheckbox":1)", "notch.WetUseCheckbox"},
          std::pair{R"("rpTextbox":[4])", "notch.rpTextbox"}}) {
        const auto answer = NotchAnswer(fields);
        EXPECT_STREQ(answer["status"].GetString(), "invalid") << fields;
        EXPECT_THAT(answer["error"].GetString(), HasSubstr(error));
    }
}

}  // namespace
}  // namespace kordavan
