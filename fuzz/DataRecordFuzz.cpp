#include "FuzzKit.h"
#include "records/DataRecordFile.h"
#include "records/DataRecordLayout.h"
#include "records/DataRecordPage.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kordavan;
    const PackedRecord record(DataRecordLayout, InputBytes(data, size));
    SteadyUser user;
    if (CheckDataRecordTag(record, user) != Outcome::Done) {
        MustHold(user.MessageCount == 1, "a refusal says why, once");
        return 0;
    }
    DataSheet sheet;
    RestoreDataSheet(record, sheet);
    DataSheet again = sheet;
    RestoreDataSheet(MakeDataRecord(sheet, {sheet[1], sheet[2], sheet[3]}), again);
    MustHold(again == sheet, "a saved sheet reads as it was");
    const RecordPage page = LayOutDataRecord(sheet, {.HighDpi = size % 2 == 0, .HasDiagram = false});
    PlainTextOf(page);
    return 0;
}
