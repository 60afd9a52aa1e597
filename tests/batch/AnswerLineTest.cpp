#include <gmock/gmock.h>
#include <rapidjson/document.h>

#include <string>
#include <string_view>

#include "batch/Answers.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

TEST(BeamTask, RefusesInTheWordsOfTheScreen)
{
    EXPECT_EQ(
        AnswerText(R"({"task":"beam","id":7,"criteria":{"UNIF":60}})"),
        R"({"id":7,"status":"refused","messages":[{"kind":"refusal","title":"Kordavan",)"
        R"("text":"Please enter a beam Span","focus":"Span"}],"refusal":{"kind":"refusal","title":"Kordavan",)"
        R"("text":"Please enter a beam Span","focus":"Span"}})");
}

TEST(BeamTask, AnalysesWithoutAMember)
{
    const auto answer = AnswerTo(
        R"({"task":"beam","criteria":{"Span":"10","PT":["",1000],"LPT":[0,600],"DIS":[0,4],"Dur":"0.90"}})");
    EXPECT_STREQ(answer["status"].GetString(), "done");
    EXPECT_EQ(answer["criteria"]["PT"].Size(), 6U);
    EXPECT_EQ(answer["criteria"]["PT"][1].GetDouble(), 1000);
    EXPECT_EQ(answer["analysis"]["R1Applied"].GetDouble(), 600);
    EXPECT_FALSE(answer["analysis"].HasMember("R1Total"));
    EXPECT_FALSE(answer.HasMember("member"));
    EXPECT_FALSE(answer.HasMember("stations"));
}

TEST(BeamTask, GivesStationsWhenAskedFor)
{
    const auto answer =
        AnswerTo(R"({"task":"beam","stations":true,"criteria":{"Span":10,"UNIF":100,"LUNIF":60}})");
    EXPECT_EQ(answer["stations"].Size(), 201U);
    EXPECT_EQ(answer["stations"][100][1].GetDouble(), 1250);
    EXPECT_EQ(answer["stations"][200][2].GetDouble(), -500);
}

TEST(BeamTask, WithAMemberHasEveryBlock)
{
    const auto answer =
        AnswerTo(R"({"task":"beam","edition":"2005","criteria":{"Span":12,"UNIF":100,"LUNIF":60},)"
                 R"("member":{"BreadthText":"4x","DepthText":"10","SpeciesText":"HF #1"}})");
    for (const char* const block :
         {"criteria", "analysis", "member", "values", "factors", "stability", "adjusted", "test", "report"}) {
        EXPECT_TRUE(answer.HasMember(block)) << block;
    }
    EXPECT_EQ(answer["analysis"].MemberCount(), 47U);
    EXPECT_STREQ(answer["report"]["GradeLabel"].GetString(), "NDS 2005 Values");
    EXPECT_STREQ(answer["test"]["OHDeflStatus"].GetString(), "");
}

TEST(BeamTask, KeepsTheAnalysisWhereTheMemberIsRefused)
{
    const auto answer =
        AnswerTo(R"({"task":"beam","stations":true,"criteria":{"Span":12,"UNIF":100,"LUNIF":60},)"
                 R"("member":{"BreadthText":"4","DepthText":"10","SpeciesText":"HF #1"}})");
    EXPECT_STREQ(answer["status"].GetString(), "refused");
    EXPECT_TRUE(answer.HasMember("analysis"));
    EXPECT_FALSE(answer["analysis"].HasMember("R1Total"));
    EXPECT_FALSE(answer.HasMember("test"));
    EXPECT_STREQ(answer["refusal"]["focus"].GetString(), "Text1");
}

TEST(BeamTask, PassesEntriesThroughTheirBoxes)
{
    const auto answer =
        AnswerTo(R"({"task":"beam","criteria":{"Span":12,"UNIF":100,"LUNIF":"60","LPT":["","","x"]}})");
    EXPECT_STREQ(answer["status"].GetString(), "done");
    ASSERT_EQ(answer["messages"].Size(), 1U);
    EXPECT_STREQ(answer["messages"][0]["kind"].GetString(), "alert");
    EXPECT_STREQ(answer["messages"][0]["text"].GetString(),
                 "Please enter a valid numeric value for the Live Point Load.");
    EXPECT_STREQ(answer["messages"][0]["focus"].GetString(), "LPT[2]");
}

TEST(BeamTask, AnswersQuestionsAsTold)
{
    constexpr std::string_view overhang =
        R"({"task":"beam",%"criteria":{"Span":10,"OHbutton":true,"UNIF":50,"LUNIF":30,"PT":["","","","",90],)"
        R"("LPT":["","","","",60],"DIS":["","","","",6]}})";
    const auto with = [&](std::string_view answerField) {
        std::string line(overhang);
        return AnswerTo(line.replace(line.find('%'), 1, answerField));
    };
    EXPECT_STREQ(with("")["status"].GetString(), "done");
    const auto no = with(R"("answer":"no",)");
    EXPECT_STREQ(no["status"].GetString(), "refused");
    EXPECT_STREQ(no["refusal"]["kind"].GetString(), "question");
}

TEST(BeamTask, RunsTheHipToolWhereOnlyTheRoofLoadIsGiven)
{
    const auto answer = AnswerTo(
        R"({"task":"beam","criteria":{"IncButton":true,"IncTL":40,"IncLL":25,"Trib1":10,"Trib2":10,"CalctheSpan":true,)"
        R"("Areas":[true,true]}})");
    EXPECT_STREQ(answer["status"].GetString(), "done");
    EXPECT_NEAR(answer["analysis"]["R2Applied"].GetDouble(), 2 * 2000.0 / 3, 0.01);
    const auto refused = AnswerTo(R"({"task":"beam","criteria":{"IncButton":true,"IncTL":40}})");
    EXPECT_STREQ(refused["refusal"]["focus"].GetString(), "Trib1");
}

TEST(SelectTask, GivesTheFilledCellsAndTheTextsOfTheScreen)
{
    const auto answer =
        AnswerTo(R"({"task":"select","criteria":{"Span":12,"UNIF":100,"LUNIF":60,"Combo1":5}})");
    EXPECT_STREQ(answer["status"].GetString(), "done");
    EXPECT_STREQ(answer["picks"][0]["BreadthText"].GetString(), "2x");
    EXPECT_STREQ(answer["picks"][0]["SpeciesText"].GetString(), "Mixed So. Pine #2");
    EXPECT_STREQ(answer["picks"][0]["DepthText"].GetString(), "12");
    EXPECT_STREQ(answer["labels"]["Label16"].GetString(), "8-1/2x");
    EXPECT_STREQ(answer["labels"]["MOMENT"].GetString(), "1,800 ft-lbs");
    EXPECT_THAT(AnswerText(R"({"task":"select","criteria":{"Span":12,"UNIF":100,"Combo1":8}})"),
                HasSubstr("criteria.Combo1: a species group"));
    EXPECT_THAT(AnswerText(R"({"task":"select","criteria":{"Span":12}})"), HasSubstr("\"refused\""));
}

TEST(HipValleyTask, GivesTheCriteriaAsTheyStand)
{
    const auto answer = AnswerTo(
        R"({"task":"hip-valley","criteria":{"IncButton":true,"IncTL":40,"Trib1":6,"Trib2":8,"CalctheSpan":true,)"
        R"("Areas":[true,true,true,true]}})");
    EXPECT_EQ(answer["criteria"]["Span"].GetDouble(), 10);
    EXPECT_EQ(answer["criteria"]["IncreasingTotalLoad"].GetDouble(), 1920);
    EXPECT_NEAR(answer["criteria"]["UNIF"].GetDouble(), 197.0688, 1e-4);  // 1920 * 1.0264 / 10
    EXPECT_EQ(answer["criteria"]["LUNIF"].GetDouble(), 0);
    EXPECT_TRUE(answer["criteria"]["Areas"][3].GetBool());
    EXPECT_TRUE(answer["criteria"]["IncButton"].GetBool());
    EXPECT_FALSE(answer["criteria"]["TwoSpan"].GetBool());
    EXPECT_EQ(answer["criteria"]["PT"].Size(), 6U);
    EXPECT_EQ(answer["criteria"]["MaxDefl"].GetDouble(), 240);
}

TEST(Answers, ReadBackTheSameFloat)
{
    EXPECT_THAT(AnswerText(R"({"task":"beam","criteria":{"Span":12,"UNIF":100,"LUNIF":60}})"),
                HasSubstr(R"("DensityFactor":0.243,)"));
}

TEST(Answers, GiveBackAnyId)
{
    EXPECT_THAT(AnswerText(R"({"id":{"a":[1,null,"é"]},"task":"beam"})"),
                StartsWith(R"({"id":{"a":[1,null,"é"]},)"));
    EXPECT_THAT(AnswerText(R"({"id":"\ud83d\ude00 \\udc00","task":"beam"})"),
                StartsWith("{\"id\":\"\xF0\x9F\x98\x80 \\\\udc00\","));
    EXPECT_THAT(AnswerText(R"({"id":"x","task":"none"})"), StartsWith(R"({"id":"x","status":"invalid")"));
}

struct InvalidCase {
    std::string_view Line;
    std::string_view Error;  // its beginning
};

class InvalidLineTest : public testing::TestWithParam<InvalidCase> {};

TEST_P(InvalidLineTest, SaysWhatIsWrongAndWhere)
{
    const auto answer = AnswerTo(GetParam().Line);
    EXPECT_STREQ(answer["status"].GetString(), "invalid");
    EXPECT_THAT(answer["error"].GetString(), StartsWith(std::string(GetParam().Error)));
    EXPECT_FALSE(answer.HasMember("messages"));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, InvalidLineTest,
    testing::Values(
        InvalidCase{"", "not JSON: The document is empty."}, InvalidCase{"{", "not JSON: "},
        InvalidCase{"{} {}", "not JSON: "}, InvalidCase{"[1,2]", "an object is expected"},
        InvalidCase{"{}", "task: missing"}, InvalidCase{R"({"task":1})", "task: a text is expected"},
        InvalidCase{R"({"task":"Beam"})", "task: no such task"},
        InvalidCase{R"({"task":"beam","criterias":{}})", "criterias: no such field"},
        InvalidCase{R"({"task":"beam","criteria":[]})", "criteria: an object is expected"},
        InvalidCase{R"({"task":"beam","criteria":{"Spam":1}})", "criteria.Spam: no such field"},
        InvalidCase{R"({"task":"beam","criteria":{"Span":true}})",
                    "criteria.Span: a text or a number is expected"},
        InvalidCase{R"({"task":"beam","criteria":{"Span":null}})",
                    "criteria.Span: a text or a number is expected"},
        InvalidCase{R"({"task":"beam","criteria":{"Rep":"yes"}})", "criteria.Rep: true or false is expected"},
        InvalidCase{R"({"task":"beam","criteria":{"PT":5}})", "criteria.PT: an array is expected"},
        InvalidCase{R"({"task":"beam","criteria":{"PT":[1,[2]]}})",
                    "criteria.PT[1]: a text or a number is expected"},
        InvalidCase{R"({"task":"beam","criteria":{"PAR":[1,2,3,4,5,6]}})",
                    "criteria.PAR: at most 5 items are expected"},
        InvalidCase{R"({"task":"beam","criteria":{"Areas":[1]}})",
                    "criteria.Areas[0]: true or false is expected"},
        InvalidCase{R"({"task":"beam","criteria":{"Combo1":10}})",
                    "criteria.Combo1: a whole number from 0 to 9"},
        InvalidCase{R"({"task":"beam","criteria":{"Combo1":-1}})",
                    "criteria.Combo1: a whole number from 0 to 9"},
        InvalidCase{R"({"task":"beam","criteria":{"OHbutton":true,"SimpleSpanbutton":true}})",
                    "criteria.SimpleSpanbutton: another option of the same group is on"},
        InvalidCase{R"({"task":"beam","edition":"1991"})", "edition: "},
        InvalidCase{R"({"task":"beam","answer":"maybe"})", "answer: "},
        InvalidCase{R"({"task":"beam","stations":1})", "stations: true or false is expected"},
        InvalidCase{R"({"task":"beam","member":{"Fb":1}})",
                    "member.Fb: no such field in this material group"},
        InvalidCase{R"({"task":"beam","criteria":{"Span":1e999}})", "not JSON: Number too big"},
        InvalidCase{R"({"task":"beam","id":"\udc00"})", "not JSON: a character that is no text"},
        InvalidCase{R"({"task":"beam","id":"\ud800"})", "not JSON: "},
        InvalidCase{std::string_view("{\"task\":\"beam\"}\0{", 17), "not JSON: a character that is no text"},
        InvalidCase{"{\"task\":\"b\xff\"}", "not JSON: Invalid encoding in string."}),
    CaseName);

TEST(InvalidLines, OfAnyDepthOrLengthAreAnswered)
{
    EXPECT_THAT(AnswerText(std::string(100000, '[')), HasSubstr("the line is nested too deeply"));
    std::string nested = R"({"id":)" + std::string(70, '[') + std::string(70, ']') + "}";
    EXPECT_THAT(AnswerText(nested), HasSubstr("the line is nested too deeply"));
    EXPECT_THAT(AnswerText(std::string((1 << 20) + 1, ' ')),
                HasSubstr("the line is longer than 1048576 bytes"));
    EXPECT_THAT(
        AnswerText(
            R"({"task":"beam","id":"[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[["})"),
        Not(HasSubstr("nested")));
}

}  // namespace
}  // namespace kordavan
