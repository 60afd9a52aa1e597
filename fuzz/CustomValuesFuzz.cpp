#include "FuzzKit.h"
#include "records/CustomValuesFile.h"
#include "records/CustomValuesLayout.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kordavan;
    const PackedRecord record(CustomValuesLayout, InputBytes(data, size));
    SteadyUser user(size % 2 == 0);
    if (CheckCustomValues(record, user) != Outcome::Done) {
        MustHold(user.MessageCount == 1, "a refusal says why, once");
        return 0;
    }
    Session session;
    RestoreCustomValues(record, session.Entry);
    TellCustomValues(record, session, user);
    const CustomValuesRecordMade made = MakeCustomValuesRecord(session.Entry);
    MustHold(made.UnfitBox.empty(), "values that were read can be saved");
    MemberEntry again;
    RestoreCustomValues(made.Record, again);
    MustHold(again.SpeciesText == session.Entry.SpeciesText, "a saved species reads as it was");
    MustHold(MakeCustomValuesRecord(again).Record.Bytes() == made.Record.Bytes(),
             "saved values read as they were");
    return 0;
}
