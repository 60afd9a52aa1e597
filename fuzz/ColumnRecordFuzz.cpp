#include "FuzzKit.h"
#include "records/ColumnRecordFile.h"
#include "records/ColumnRecordLayout.h"
#include "records/ColumnRecordPage.h"

namespace kordavan {
namespace {

void TryKind(const std::string& bytes, ColumnRecordKind kind)
{
    const bool isWood = kind == ColumnRecordKind::Wood;
    const PackedRecord record(isWood ? WoodColumnRecordLayout : SteelColumnRecordLayout, bytes);
    SteadyUser user;
    if (CheckColumnRecordTag(record, kind, user) != Outcome::Done) {
        MustHold(user.MessageCount == 1, "a refusal says why, once");
        return;
    }
    const ColumnSheet sheet = ReadColumnSheet(record, kind);
    MustHold(ReadColumnSheet(MakeColumnRecord(sheet, kind, true), kind) == sheet,
             "a saved sheet reads as it was");
    PlainTextOf(isWood ? LayOutWoodColumnRecord(sheet, {}) : LayOutSteelColumnRecord(sheet, {}));
}

}  // namespace
}  // namespace kordavan

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kordavan;
    const std::string bytes = InputBytes(data, size);
    TryKind(bytes, ColumnRecordKind::Wood);
    TryKind(bytes, ColumnRecordKind::Steel);
    return 0;
}
