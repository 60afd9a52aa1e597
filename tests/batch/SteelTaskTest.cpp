#include <gmock/gmock.h>
#include <rapidjson/document.h>

#include <string>
#include <string_view>

#include "batch/Answers.h"
#include "batch/ReadableReport.h"

namespace kordavan {
namespace {

using testing::HasSubstr;

constexpr std::string_view SteelBeam =
    R"({"task":"beam","criteria":{"Span":20,"UNIF":1162,"LUNIF":800,"Combo1":9,"WFbutton":true},)"
    R"("member":{"ShapeName":"W 14x 38"}})";

TEST(SteelBeamTask, HasASteelBlockInPlaceOfTheWoodOnes)
{
    const auto answer = AnswerTo(SteelBeam);
    ASSERT_STREQ(answer["status"].GetString(), "done");
    for (const char* const block : {"criteria", "analysis", "member", "steel", "test", "report"}) {
        EXPECT_TRUE(answer.HasMember(block)) << block;
    }
    for (const char* const block : {"values", "factors", "stability", "adjusted"}) {
        EXPECT_FALSE(answer.HasMember(block)) << block;
    }
    EXPECT_TRUE(answer["criteria"]["SteelFlag"].GetBool());
    EXPECT_EQ(answer["criteria"]["DensityFactor"].GetDouble(), 1);
    EXPECT_EQ(answer["analysis"].MemberCount(), 47U);
    EXPECT_STREQ(answer["member"]["BreadthKey"].GetString(), "");
    EXPECT_EQ(answer["member"]["D"].GetDouble(), 14.1);
    EXPECT_STREQ(answer["report"]["DisplayChoice"].GetString(), "W 14x 38");
}

TEST(SteelBeamTask, NamesEveryFieldOfTheTest)
{
    const auto answer = AnswerTo(SteelBeam);
    const auto& steel = answer["steel"];
    for (const char* const name : {"RowIndex",
                                   "SelfWeight",
                                   "MemberWeight",
                                   "MaxMoment",
                                   "CantileverMoment",
                                   "TotalLoad",
                                   "Reaction1",
                                   "Reaction2",
                                   "MaxShear",
                                   "UnbracedLength",
                                   "LcApplies",
                                   "LuApplies",
                                   "MaxUnbracedText",
                                   "ActualS",
                                   "RequiredS",
                                   "FbAllowed",
                                   "Fy",
                                   "FvAllowed",
                                   "WebArea",
                                   "ShearStress",
                                   "ActualI",
                                   "RequiredWebArea",
                                   "BearingR1",
                                   "BearingR2",
                                   "ActualSizeBreadth",
                                   "ActualSizeDepth"}) {
        EXPECT_TRUE(steel.HasMember(name)) << name;
    }
    EXPECT_EQ(steel.MemberCount(), 26U);
    EXPECT_EQ(steel["RowIndex"].GetInt(), 40);
    EXPECT_TRUE(steel["LcApplies"].GetBool());
    EXPECT_STREQ(steel["MaxUnbracedText"].GetString(), "Lc = 7.1 ft");
    EXPECT_EQ(steel["MaxMoment"].GetDouble(), 60000);
    EXPECT_EQ(answer["test"]["FvAdj"].GetDouble(), 14400);
}

TEST(SteelBeamTask, RefusesAnUnknownSizeAndKeepsTheAnalysis)
{
    std::string line(SteelBeam);
    line.replace(line.find("W 14x 38"), 8, "W14x38");
    const auto answer = AnswerTo(line);
    EXPECT_STREQ(answer["status"].GetString(), "refused");
    EXPECT_STREQ(answer["refusal"]["focus"].GetString(), "StlChoice");
    EXPECT_TRUE(answer.HasMember("analysis"));
    EXPECT_FALSE(answer.HasMember("steel"));
    EXPECT_FALSE(answer.HasMember("report"));
}

TEST(SteelBeamTask, KnowsNoFieldsOfWood)
{
    const auto answer = AnswerTo(
        R"({"task":"beam","criteria":{"Span":20,"UNIF":60,"Combo1":9},"member":{"BreadthText":"2x"}})");
    EXPECT_STREQ(answer["status"].GetString(), "invalid");
    EXPECT_THAT(answer["error"].GetString(), HasSubstr("member.BreadthText"));
}

TEST(SteelBeamTask, CanBeReadByAPerson)
{
    rapidjson::StringBuffer buffer;
    ReportLine(SteelBeam, buffer);
    EXPECT_THAT(std::string(buffer.GetString()), HasSubstr("W 14x 38, 36 ksi Wide Flange Steel\n"));
    EXPECT_THAT(std::string(buffer.GetString()), HasSubstr("OK, governed by Section at 56%"));
}

TEST(SteelScanTask, GivesSlotsAndLabels)
{
    const auto answer = AnswerTo(
        R"({"task":"steel-scan","criteria":{"Span":10,"UNIF":10,"LUNIF":6,"Combo1":9,"DepCombo":"6"}})");
    ASSERT_STREQ(answer["status"].GetString(), "done");
    const auto& slots = answer["slots"];
    ASSERT_EQ(slots.Size(), 9U);  // six W 6, two W 5 and W 4x 13
    EXPECT_EQ(slots[0].MemberCount(), 6U);
    EXPECT_STREQ(slots[0]["StlPick"].GetString(), "W 6x 9");
    EXPECT_STREQ(slots[0]["StlDepLab"].GetString(), "5-7/8");
    EXPECT_STREQ(slots[0]["UBLlab"].GetString(), "Lc = 4.2");
    EXPECT_STREQ(slots[8]["StlPick"].GetString(), "W 4x 13");
    EXPECT_EQ(answer["labels"].MemberCount(), 8U);
    EXPECT_STREQ(answer["labels"]["StlPanel"].GetString(), "Laterally supported compression flange");
    EXPECT_STREQ(answer["labels"]["StlMoment"].GetString(), "Max Moment = 125 ft-lbs");
}

TEST(SteelScanTask, AsksForTheSteelGroup)
{
    const auto answer = AnswerTo(R"({"task":"steel-scan","criteria":{"Span":10,"UNIF":10,"LUNIF":6}})");
    EXPECT_STREQ(answer["status"].GetString(), "invalid");
    EXPECT_THAT(answer["error"].GetString(), HasSubstr("criteria.Combo1"));
}

TEST(SteelScanTask, RefusesWhatTheCalculateActionRefuses)
{
    const auto answer = AnswerTo(R"({"task":"steel-scan","criteria":{"UNIF":10,"LUNIF":6,"Combo1":9}})");
    EXPECT_STREQ(answer["status"].GetString(), "refused");
    EXPECT_STREQ(answer["refusal"]["focus"].GetString(), "Span");
    EXPECT_FALSE(answer.HasMember("slots"));
}

}  // namespace
}  // namespace kordavan
