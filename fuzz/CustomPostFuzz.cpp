#include "FuzzKit.h"
#include "core/NumberText.h"
#include "records/CustomPostFile.h"
#include "records/CustomPostLayout.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kordavan;
    const PackedRecord record(CustomPostLayout, InputBytes(data, size));
    SteadyUser user;
    if (CheckCustomPost(record, user) != Outcome::Done) {
        MustHold(user.MessageCount == 1, "a refusal says why, once");
        return 0;
    }
    ColumnEntry entry;
    RestoreCustomPost(record, entry);
    for (const std::string& text : {entry.cFcText, entry.cEtext}) {
        MustHold(text.empty() || IsNumeric(text), "a value is a number or none");
    }
    ColumnEntry again;
    RestoreCustomPost(MakeCustomPostRecord(entry), again);
    MustHold(again == entry, "saved values read as they were");
    return 0;
}
