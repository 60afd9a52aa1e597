#include "batch/SteelColumnTask.h"

#include <array>
#include <string>
#include <string_view>

#include "batch/AnswerOutcome.h"
#include "batch/BeamRun.h"
#include "batch/CollectingUser.h"
#include "batch/ColumnRequest.h"
#include "columns/SteelColumn.h"

namespace kordavan {

namespace {

constexpr std::array<std::string_view, 5> SteelColumnTaskFields{"task", "id", "edition", "column", "size"};

/// The boxes of a size.
struct SizeEntry {
    std::string Size;
    std::string TypeAndGrade;
};

SizeEntry ReadSize(const JsonValue& size, const FieldPath& path)
{
    SizeEntry entry;
    for (const JsonValue::Member& member : ObjectOf(size, path).GetObject()) {
        const std::string_view name = NameOf(member);
        const FieldPath fieldPath = path.Field(name);
        if (name == "Size") {
            entry.Size = EntryText(member.value, fieldPath);
        } else if (name == "TypeAndGrade") {
            entry.TypeAndGrade = EntryText(member.value, fieldPath);
        } else {
            fieldPath.Fail("no such field");
        }
    }
    return entry;
}

void WritePicks(const SteelColumnPicks& picks, AnswerWriter& answer)
{
    answer.BeginObject("picks");
    answer.Field("StdRndBut", std::string_view(picks.StdRndBut));
    answer.Field("ExtraRndbut", std::string_view(picks.ExtraRndbut));
    answer.Field("DblRndBut", std::string_view(picks.DblRndBut));
    answer.BeginArray("TubeCol");
    for (const std::string& tube : picks.TubeCol) {
        answer.Item(std::string_view(tube));
    }
    answer.EndArray();
    answer.EndObject();
    answer.Field("Label60", std::string_view(picks.Label60));
}

void WriteTest(const SteelColumnTest& test, AnswerWriter& answer)
{
    const SteelColumnResult& result = test.Result;
    answer.BeginObject("result");
    answer.Field("Fy", result.Fy);
    answer.Field("Cc", result.Cc);
    answer.Field("KLoverR", result.KLoverR);
    answer.Field("Fa", result.Fa);
    answer.Field("RequiredArea", result.RequiredArea);
    answer.Field("ActualStress", result.ActualStress);
    answer.Field("KLStatus", SteelStatusText(result.SlendernessPasses));
    answer.Field("AreaStatus", SteelStatusText(result.AreaPasses));
    answer.EndObject();
    answer.BeginObject("report");
    for (const SteelReportLine& line : SteelReportTexts(test)) {
        answer.Field(line.Name, std::string_view(line.Text));
    }
    answer.EndObject();
}

}  // namespace

void AnswerSteelColumn(const JsonValue& request, const JsonValue* id, AnswerWriter& answer)
{
    RefuseUnknownFields(request, SteelColumnTaskFields);
    const Edition edition = EditionOf(request);
    ColumnSession columns;
    if (const JsonValue* const column = FindMember(request, "column")) {
        ReadColumnEntry(*column, FieldPath("column"), edition, columns.Entry);
    }
    const JsonValue* const size = FindMember(request, "size");
    const SizeEntry entry = size == nullptr ? SizeEntry{} : ReadSize(*size, FieldPath("size"));

    CollectingUser user;
    const bool isSearched = CalculateSteelColumn(columns, user) == Outcome::Done;
    bool isDone = isSearched;
    if (isSearched && size != nullptr) {
        columns.StlColSizeText = entry.Size;
        columns.StlColGrade = entry.TypeAndGrade;
        isDone = ReportEnteredSteelColumn(columns, user) == Outcome::Done;
    }
    answer.BeginObject();
    WriteOutcome(id, user, isDone, answer);
    if (isSearched) {
        WritePicks(columns.SteelPicks, answer);
    }
    if (columns.SteelTest) {
        WriteTest(*columns.SteelTest, answer);
    }
    answer.EndObject();
}

}  // namespace kordavan
