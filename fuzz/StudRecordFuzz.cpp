#include "FuzzKit.h"
#include "columns/StudColumn.h"
#include "columns/StudPicture.h"
#include "records/ColumnRecordPage.h"
#include "records/StudRecordFile.h"
#include "records/StudRecordLayout.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kordavan;
    const PackedRecord record(StudRecordLayout, InputBytes(data, size));
    SteadyUser user;
    if (CheckStudRecordTag(record, user) != Outcome::Done) {
        MustHold(user.MessageCount == 1, "a refusal says why, once");
        return 0;
    }
    const StudRecord stud = ReadStudRecord(record);
    const StudRecord again = ReadStudRecord(MakeStudRecord(stud));
    MustHold(
        again.Entry == stud.Entry && again.Identity == stud.Identity && again.ReportNotes == stud.ReportNotes,
        "a saved stud reads as it was");
    StudEntry entry = stud.Entry;
    const auto test = TestStud(entry, size % 2 == 0 ? Edition::Nds2018 : Edition::Nds1997, user);
    MustHold(test.has_value() || user.MessageCount > 0, "a refusal says why");
    if (test) {
        PlainTextOf(LayOutStudRecord(*test, {}, stud.ReportNotes, {}));
    }
    return 0;
}
