#include "batch/RecordTasks.h"

#include <array>
#include <string>
#include <string_view>

#include "batch/AnswerOutcome.h"
#include "batch/BeamRun.h"
#include "batch/CollectingUser.h"
#include "records/ColumnRecordFile.h"
#include "records/ColumnRecordLayout.h"
#include "records/CriteriaLayout.h"
#include "records/CriteriaRecord.h"
#include "records/CustomPostFile.h"
#include "records/CustomPostLayout.h"
#include "records/CustomValuesFile.h"
#include "records/CustomValuesLayout.h"
#include "records/DataRecordFile.h"
#include "records/DataRecordLayout.h"
#include "records/DefaultsFile.h"
#include "records/DefaultsLayout.h"
#include "records/RecordFile.h"
#include "records/SclFile.h"
#include "records/SclLayout.h"
#include "records/StudRecordFile.h"
#include "records/StudRecordLayout.h"

namespace kordavan {

namespace {

constexpr std::array<std::string_view, 5> ReadTaskFields{"task", "id", "edition", "kind", "path"};
constexpr std::array<std::string_view, 6> WriteTaskFields{"task", "id", "edition", "kind", "path", "fields"};
constexpr std::string_view TagField = "RecordTag";

/// A kind of record file: its layout, the tag it is written with, and what loading it tells.
struct RecordKind {
    std::string_view Name;
    const RecordLayout* Layout;
    std::int16_t Tag;
    Outcome (*Check)(const PackedRecord& record, UserPort& user);
    void (*TellLoaded)(const PackedRecord& record, const Session& session, UserPort& user);
};

void TellNothing(const PackedRecord& /*record*/, const Session& /*session*/, UserPort& /*user*/) {}

void TellCriteria(const PackedRecord& record, const Session& /*session*/, UserPort& user)
{
    TellCriteriaEdition(record, user);
}

template <ColumnRecordKind Kind>
Outcome CheckColumn(const PackedRecord& record, UserPort& user)
{
    return CheckColumnRecordTag(record, Kind, user);
}

template <ColumnRecordKind Kind>
void TellColumn(const PackedRecord& /*record*/, const Session& /*session*/, UserPort& user)
{
    TellColumnRecordLoaded(Kind, user);
}

void TellStud(const PackedRecord& /*record*/, const Session& /*session*/, UserPort& user)
{
    TellStudRecordLoaded(user);
}

constexpr std::array Kinds{
    RecordKind{"column", &WoodColumnRecordLayout, WoodColumnTag, CheckColumn<ColumnRecordKind::Wood>,
               TellColumn<ColumnRecordKind::Wood>},
    RecordKind{"criteria", &CriteriaLayout, CriteriaTagWritten, CheckCriteriaTag, TellCriteria},
    RecordKind{"custom-post", &CustomPostLayout, CustomPostTag, CheckCustomPost, TellNothing},
    RecordKind{"custom-values", &CustomValuesLayout, CustomValuesTag, CheckCustomValues, TellCustomValues},
    RecordKind{"data-record", &DataRecordLayout, DataRecordTag, CheckDataRecordTag, TellNothing},
    RecordKind{"defaults", &DefaultsLayout, DefaultsTag, CheckDefaultsTag, TellNothing},
    RecordKind{"scl", &SclLayout, SclTag, CheckSclTag, TellNothing},
    RecordKind{"scl-custom", &CustomSclLayout, CustomSclTag, CheckCustomSclTag, TellNothing},
    RecordKind{"steel-column", &SteelColumnRecordLayout, SteelColumnTag, CheckColumn<ColumnRecordKind::Steel>,
               TellColumn<ColumnRecordKind::Steel>},
    RecordKind{"stud-column", &StudRecordLayout, StudRecordTag, CheckStudRecordTag, TellStud},
};

const JsonValue& Needed(const JsonValue& request, std::string_view name)
{
    const JsonValue* const value = FindMember(request, name);
    if (value == nullptr) {
        FieldPath(name).Fail("missing");
    }
    return *value;
}

const RecordKind& KindOf(const JsonValue& request)
{
    const FieldPath path("kind");
    const std::string_view name = TextOf(Needed(request, "kind"), path);
    for (const RecordKind& kind : Kinds) {
        if (kind.Name == name) {
            return kind;
        }
    }
    path.Fail("no such kind of record");
}

std::string PathOf(const JsonValue& request)
{
    const FieldPath path("path");
    const std::string_view text = TextOf(Needed(request, "path"), path);
    if (text.find('\0') != std::string_view::npos) {
        path.Fail("a path without null characters is expected");
    }
    return std::string(text);
}

bool IsArray(const RecordField& field)
{
    return field.Count > 1 || field.Type == FieldType::Part;
}

void WriteRecord(const PackedRecord& record, AnswerWriter& answer);

void WriteElement(const PackedRecord& record, const RecordField& field, std::size_t index,
                  AnswerWriter& answer)
{
    if (field.Type == FieldType::Part) {
        answer.BeginObject();
        WriteRecord(record.Part(field.Name, index), answer);
        answer.EndObject();
    } else if (field.Type == FieldType::Text) {
        answer.Item(record.Text(field.Name, index));
    } else {
        answer.Item(record.Float(field.Name, index));
    }
}

void WriteField(const PackedRecord& record, const RecordField& field, AnswerWriter& answer)
{
    if (IsArray(field)) {
        answer.BeginArray(field.Name);
        for (std::size_t k = 0; k < field.Count; ++k) {
            WriteElement(record, field, k, answer);
        }
        answer.EndArray();
        return;
    }
    switch (field.Type) {
        case FieldType::Integer:
            answer.Field(field.Name, record.Integer(field.Name));
            break;
        case FieldType::Flag:
            answer.Field(field.Name, record.Flag(field.Name));
            break;
        case FieldType::Float:
            answer.Field(field.Name, record.Float(field.Name));
            break;
        case FieldType::Text:
            answer.Field(field.Name, record.Text(field.Name));
            break;
        case FieldType::Part:
        case FieldType::Reserved:
            break;
    }
}

void WriteRecord(const PackedRecord& record, AnswerWriter& answer)
{
    for (const RecordField& field : record.Layout().Fields) {
        WriteField(record, field, answer);
    }
}

void FillRecord(PackedRecord& record, const JsonValue& fields, const FieldPath& path);

void SetPart(PackedRecord& record, const RecordField& field, std::size_t index, const JsonValue& value,
             const FieldPath& path)
{
    const PackedRecord blank(*field.PartLayout);
    PackedRecord part = blank;
    FillRecord(part, value, path);
    if (field.Holds(index)) {
        record.SetPart(field.Name, index, part);
    } else if (part.Bytes() != blank.Bytes()) {
        path.Fail("zeros are expected, as this record does not hold these values");
    }
}

void SetElement(PackedRecord& record, const RecordField& field, std::size_t index, const JsonValue& value,
                const FieldPath& path)
{
    switch (field.Type) {
        case FieldType::Integer:
            record.SetInteger(field.Name, ShortOf(value, path));
            break;
        case FieldType::Flag:
            record.SetFlag(field.Name, FlagOf(value, path));
            break;
        case FieldType::Float:
            record.SetFloat(field.Name, FloatOf(value, path), index);
            break;
        case FieldType::Text:
            record.SetText(field.Name, TextOf(value, path), index);
            break;
        case FieldType::Part:
            SetPart(record, field, index, value, path);
            break;
        case FieldType::Reserved:
            break;
    }
}

void SetField(PackedRecord& record, const RecordField& field, const JsonValue& value, const FieldPath& path)
{
    if (!IsArray(field)) {
        SetElement(record, field, 0, value, path);
        return;
    }
    std::size_t k = 0;
    for (const JsonValue& item : ArrayOf(value, field.Count, path).GetArray()) {
        SetElement(record, field, k, item, path.Item(k));
        ++k;
    }
}

void FillRecord(PackedRecord& record, const JsonValue& fields, const FieldPath& path)
{
    for (const JsonValue::Member& member : ObjectOf(fields, path).GetObject()) {
        const std::string_view name = NameOf(member);
        const FieldPath fieldPath = path.Field(name);
        const RecordField* const field = FindRecordField(record.Layout(), name);
        if (field == nullptr) {
            fieldPath.Fail("no such field");
        }
        SetField(record, *field, member.value, fieldPath);
    }
}

PackedRecord RecordOf(const JsonValue& request, const RecordKind& kind)
{
    PackedRecord record(*kind.Layout);
    record.SetInteger(TagField, kind.Tag);
    if (const JsonValue* const fields = FindMember(request, "fields")) {
        FillRecord(record, *fields, FieldPath("fields"));
    }
    return record;
}

}  // namespace

void AnswerReadRecord(const JsonValue& request, const JsonValue* id, AnswerWriter& answer)
{
    RefuseUnknownFields(request, ReadTaskFields);
    const RecordKind& kind = KindOf(request);
    const std::string path = PathOf(request);
    Session session;
    session.Nds = EditionFlags(EditionOf(request));
    CollectingUser user;
    const FileRead file = ReadRecordFile(path);
    const PackedRecord record(*kind.Layout, file.Bytes.value_or(std::string{}));
    const Outcome outcome = file.Bytes ? kind.Check(record, user) : RefuseReading(path, file.Fault, user);
    if (outcome == Outcome::Done) {
        kind.TellLoaded(record, session, user);
    }
    answer.BeginObject();
    WriteOutcome(id, user, outcome == Outcome::Done, answer);
    if (outcome == Outcome::Done) {
        answer.BeginObject("fields");
        WriteRecord(record, answer);
        answer.EndObject();
        answer.Field("bytes", static_cast<double>(file.Bytes->size()));
    }
    answer.EndObject();
}

void AnswerWriteRecord(const JsonValue& request, const JsonValue* id, AnswerWriter& answer)
{
    RefuseUnknownFields(request, WriteTaskFields);
    const RecordKind& kind = KindOf(request);
    const std::string path = PathOf(request);
    const PackedRecord record = RecordOf(request, kind);
    CollectingUser user;
    const std::string fault = ReplaceRecord(path, record.Bytes());
    const Outcome outcome = fault.empty() ? Outcome::Done : RefuseSaving(path, fault, user);
    const FileRead saved = ReadRecordFile(path);
    answer.BeginObject();
    WriteOutcome(id, user, outcome == Outcome::Done, answer);
    if (outcome == Outcome::Done && saved.Bytes) {
        answer.Field("bytes", static_cast<double>(saved.Bytes->size()));
    }
    answer.EndObject();
}

}  // namespace kordavan
