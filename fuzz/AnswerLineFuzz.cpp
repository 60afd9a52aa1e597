#include "BatchKit.h"
#include "batch/AnswerLine.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kordavan;
    const std::string text = AnswerOf(WithoutFiles(InputBytes(data, size)), AnswerLine);
    MustHold(text.find('\n') == std::string::npos, "an answer is one line");
    rapidjson::Document answer;
    answer.Parse<rapidjson::kParseValidateEncodingFlag>(text.data(), text.size());
    MustHold(!answer.HasParseError() && answer.IsObject(), "an answer is a JSON object");
    MustHold(answer.HasMember("status") && answer["status"].IsString(), "an answer has a status");
    const std::string_view status = answer["status"].GetString();
    MustHold(status == "done" || status == "refused" || status == "invalid", "a status is one of three");
    MustHold(answer.HasMember(status == "invalid" ? "error" : "messages"), "an answer says what was told");
    return 0;
}
