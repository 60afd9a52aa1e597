#include "batch/AnswerLine.h"

#include <array>
#include <exception>
#include <optional>
#include <string>

#include "batch/AnswerOutcome.h"
#include "batch/AnswerWriter.h"
#include "batch/BeamAnswer.h"
#include "batch/BeamRun.h"
#include "batch/LocalDay.h"
#include "batch/NotchTask.h"
#include "batch/RecordAnswer.h"
#include "batch/RecordTasks.h"
#include "batch/RequestLine.h"
#include "batch/SteelAnswer.h"
#include "batch/SteelColumnTask.h"
#include "batch/StudTask.h"
#include "batch/WoodColumnTask.h"
#include "records/DataSheetFill.h"

namespace kordavan {

namespace {

void AnswerBeam(const JsonValue& request, const JsonValue* id, AnswerWriter& answer)
{
    BeamRun run;
    RunBeam(request, run);
    std::optional<DataSheet> sheet;
    if (run.Tested && run.WantsRecord) {
        sheet = FillDataRecord(run.Work, LocalToday(), run.User);
    }
    answer.BeginObject();
    WriteOutcome(id, run.User, run.IsDone(), answer);
    if (run.Analysed) {
        WriteCriteria(run.Work, answer);
        WriteAnalysis(run.Work.Analysis,
                      run.Tested ? AnalysisPart::WithCandidate : AnalysisPart::AppliedLoads, answer);
    }
    if (run.Analysed && run.IsDone() && run.WantsStations) {
        WriteStations(run.Work.Stations, answer);
    }
    if (run.Tested) {
        if (run.Work.Numbers.IsSteel()) {
            WriteSteelTest(run.Work, answer);
        } else {
            WriteMemberTest(run.Work.Member, answer);
        }
        WriteReport(run.Work, answer);
    }
    if (sheet) {
        WriteRecord(*sheet, answer);
    }
    answer.EndObject();
}

void AnswerHipValley(const JsonValue& request, const JsonValue* id, AnswerWriter& answer)
{
    BeamRun run;
    const bool isDone = RunHipValley(request, run) == Outcome::Done;
    answer.BeginObject();
    WriteOutcome(id, run.User, isDone, answer);
    if (isDone) {
        WriteHipValley(run.Work, answer);
    }
    answer.EndObject();
}

void AnswerSelection(const JsonValue& request, const JsonValue* id, AnswerWriter& answer)
{
    BeamRun run;
    const bool isDone = RunSelection(request, run) == Outcome::Done;
    const QuickPicks picks = isDone ? FindQuickPicks(run.Work, run.User) : QuickPicks{};
    answer.BeginObject();
    WriteOutcome(id, run.User, isDone, answer);
    if (isDone) {
        WriteQuickPicks(picks, answer);
        WriteSelectionLabels(MakeSelectionTexts(run.Work), answer);
    }
    answer.EndObject();
}

void AnswerSteelScan(const JsonValue& request, const JsonValue* id, AnswerWriter& answer)
{
    BeamRun run;
    const bool isDone = RunSteelScan(request, run) == Outcome::Done;
    answer.BeginObject();
    WriteOutcome(id, run.User, isDone, answer);
    if (isDone) {
        WriteSteelSlots(run.Work.SteelPicks, answer);
        WriteSteelLabels(MakeSteelSelectionTexts(run.Work), answer);
    }
    answer.EndObject();
}

using Task = void (*)(const JsonValue&, const JsonValue*, AnswerWriter&);

struct TaskRow {
    std::string_view Name;
    Task Answer;
};

constexpr std::array Tasks{
    TaskRow{"beam", AnswerBeam},
    TaskRow{"column", AnswerColumn},
    TaskRow{"hip-valley", AnswerHipValley},
    TaskRow{"notch", AnswerNotch},
    TaskRow{"read-record", AnswerReadRecord},
    TaskRow{"select", AnswerSelection},
    TaskRow{"steel-column", AnswerSteelColumn},
    TaskRow{"steel-scan", AnswerSteelScan},
    TaskRow{"stud", AnswerStud},
    TaskRow{"write-record", AnswerWriteRecord},
};

Task FindTask(std::string_view name)
{
    for (const TaskRow& row : Tasks) {
        if (row.Name == name) {
            return row.Answer;
        }
    }
    throw InvalidRequest("task: no such task");
}

void AnswerInvalid(const JsonValue* id, std::string_view error, rapidjson::StringBuffer& buffer)
{
    AnswerWriter answer(buffer);
    answer.BeginObject();
    WriteHead(id, "invalid", answer);
    answer.Field("error", error);
    answer.EndObject();
}

}  // namespace

void AnswerLine(std::string_view line, rapidjson::StringBuffer& buffer)
{
    const std::size_t begin = buffer.GetSize();
    rapidjson::Document request;
    const JsonValue* id = nullptr;
    try {
        ParseRequest(line, request);
        const auto found = request.FindMember("id");
        id = found == request.MemberEnd() ? nullptr : &found->value;
        const Task task = FindTask(TaskOf(request));
        AnswerWriter answer(buffer);
        task(request, id, answer);
    } catch (const std::exception& fault) {
        buffer.Pop(buffer.GetSize() - begin);
        AnswerInvalid(id, fault.what(), buffer);
    }
}

}  // namespace kordavan
