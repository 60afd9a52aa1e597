#include "batch/WoodColumnTask.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "batch/AnswerOutcome.h"
#include "batch/BeamRun.h"
#include "batch/ColumnRequest.h"
#include "batch/FloatFields.h"
#include "columns/ColumnCriteria.h"
#include "columns/WoodColumn.h"

namespace kordavan {

namespace {

constexpr std::array<std::string_view, 5> ColumnTaskFields{"task", "id", "edition", "column", "size"};

using ColumnFactorField = FloatMember<ColumnFactors>;
using ColumnResultField = FloatMember<ColumnResult>;

constexpr std::array FactorFields{
    ColumnFactorField{"CF", &ColumnFactors::CF},   ColumnFactorField{"CmFc", &ColumnFactors::CmFc},
    ColumnFactorField{"CmE", &ColumnFactors::CmE}, ColumnFactorField{"CiFc", &ColumnFactors::CiFc},
    ColumnFactorField{"CiE", &ColumnFactors::CiE}, ColumnFactorField{"Kf", &ColumnFactors::Kf},
};

constexpr std::array StabilityFields{
    ColumnResultField{"EPrime", &ColumnResult::EPrime}, ColumnResultField{"FcStar", &ColumnResult::FcStar},
    ColumnResultField{"FcE", &ColumnResult::FcE},       ColumnResultField{"Cp1", &ColumnResult::Cp1},
    ColumnResultField{"Cp2", &ColumnResult::Cp2},
};

struct SizeTexts {
    std::string D1;
    std::string D2;
};

/// The net size to test, if the request has one.
std::optional<SizeTexts> ReadSize(const JsonValue& request)
{
    const JsonValue* const size = FindMember(request, "size");
    if (size == nullptr) {
        return std::nullopt;
    }
    SizeTexts texts;
    const FieldPath path("size");
    for (const JsonValue::Member& json : ObjectOf(*size, path).GetObject()) {
        const std::string_view name = NameOf(json);
        const FieldPath fieldPath = path.Field(name);
        if (name == "D1") {
            texts.D1 = EntryText(json.value, fieldPath);
        } else if (name == "D2") {
            texts.D2 = EntryText(json.value, fieldPath);
        } else {
            fieldPath.Fail("no such field of a size");
        }
    }
    return texts;
}

Outcome TestSize(const SizeTexts& size, Edition edition, ColumnSession& columns, UserPort& user)
{
    columns.ColD1Text = size.D1;
    columns.ColD2Text = size.D2;
    return TestEnteredColumn(columns, edition, user);
}

void WriteResult(const ColumnResult& result, AnswerWriter& answer)
{
    answer.BeginObject("result");
    answer.Field("GoverningPlane", PlaneName(result.GoverningPlane));
    answer.Field("SlendernessD1", result.SlendernessD1);
    answer.Field("SlendernessD2", result.SlendernessD2);
    WriteFields(result.Factors, FactorFields, answer);
    WriteFields(result, StabilityFields, answer);
    answer.Field("Area", result.Area);
    answer.Field("FcActual", result.FcActual);
    answer.Field("FcPrime", result.FcPrime);
    answer.Field("Status", result.Passes ? ColumnStatus::Ok : ColumnStatus::Fail);
    answer.EndObject();
}

void WriteGrid(const ColumnGrid& grid, AnswerWriter& answer)
{
    answer.BeginArray("ColDep");
    for (const std::string& width : grid.ColDep) {
        answer.Item(std::string_view(width));
    }
    answer.EndArray();
    answer.Field("NoneWorkLabel", std::string_view(grid.NoneWorkLabel));
}

}  // namespace

void AnswerColumn(const JsonValue& request, const JsonValue* id, AnswerWriter& answer)
{
    RefuseUnknownFields(request, ColumnTaskFields);
    const Edition edition = EditionOf(request);
    ColumnSession columns;
    if (const JsonValue* const column = FindMember(request, "column")) {
        ReadColumnEntry(*column, FieldPath("column"), edition, columns.Entry);
    }
    const std::optional<SizeTexts> size = ReadSize(request);
    CollectingUser user;
    const bool isSearched = CalculateWoodColumn(columns, edition, user) == Outcome::Done;
    const bool isDone = isSearched && (!size || TestSize(*size, edition, columns, user) == Outcome::Done);
    answer.BeginObject();
    WriteOutcome(id, user, isDone, answer);
    if (isSearched) {
        WriteGrid(columns.Grid, answer);
    }
    if (columns.WoodTest) {
        WriteResult(columns.WoodTest->Result, answer);
    }
    answer.EndObject();
}

}  // namespace kordavan
