#include "BatchKit.h"
#include "batch/ReadableReport.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kordavan;
    const std::string text = AnswerOf(InputBytes(data, size), ReportLine);
    MustHold(!text.empty(), "every line has a report");
    MustHold(text.find('\0') == std::string::npos, "a report is text");
    return 0;
}
