#include "batch/BeamRun.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

#include "batch/CriteriaRequest.h"
#include "batch/MemberRequest.h"
#include "design/CalculateAction.h"
#include "design/LoadTools.h"
#include "design/SteelSelection.h"
#include "design/TestMember.h"

namespace kordavan {

namespace {

constexpr std::array<std::string_view, 8> BeamFields{"task",   "id",     "edition",  "criteria",
                                                     "member", "answer", "stations", "record"};
constexpr std::array<std::string_view, 5> CriteriaTaskFields{"task", "id", "edition", "criteria", "answer"};

bool AnswersYes(const JsonValue& request)
{
    const JsonValue* const answer = FindMember(request, "answer");
    if (answer == nullptr) {
        return true;
    }
    const FieldPath path("answer");
    const std::string_view text = TextOf(*answer, path);
    if (text != "yes" && text != "no") {
        path.Fail("\"yes\" or \"no\" is expected");
    }
    return text == "yes";
}

void ReadProblem(const JsonValue& request, BeamRun& run)
{
    run.Work.Nds = EditionFlags(EditionOf(request));
    run.User.AnswerWith(AnswersYes(request));
    if (const JsonValue* const criteria = FindMember(request, "criteria")) {
        ReadCriteria(*criteria, FieldPath("criteria"), run.Work.Problem, run.User);
    }
}

/// The equivalent uniform load of a hip or valley is worked out first when only the roof load is given.
Outcome PrepareHipValley(BeamRun& run)
{
    const BeamProblem& problem = run.Work.Problem;
    const bool isNeeded = problem.Support == SupportCondition::HipValley && !problem.Loads.IncTL.empty() &&
                          problem.Loads.UNIF.empty();
    return isNeeded ? CalculateHipValley(run.Work, run.User) : Outcome::Done;
}

Outcome Calculate(BeamRun& run)
{
    return PrepareHipValley(run) == Outcome::Done ? CalculateAction(run.Work, run.User) : Outcome::Refused;
}

/// True when the member was tested, whether it passes or fails.
bool TestEntry(const MemberEntry& entry, BeamRun& run)
{
    run.Work.Entry = entry;
    if (!run.Work.Numbers.IsSteel()) {
        return TestMember(run.Work, entry, {}, run.User) == Outcome::Done;
    }
    PrepareSteel(run.Work);
    return TestEnteredShape(run.Work, run.User) == SteelTestEnd::Done;
}

}  // namespace

void RunBeam(const JsonValue& request, BeamRun& run)
{
    RefuseUnknownFields(request, BeamFields);
    ReadProblem(request, run);
    if (const JsonValue* const stations = FindMember(request, "stations")) {
        run.WantsStations = FlagOf(*stations, FieldPath("stations"));
    }
    if (const JsonValue* const record = FindMember(request, "record")) {
        run.WantsRecord = FlagOf(*record, FieldPath("record"));
    }
    MemberEntry entry;
    if (const JsonValue* const member = FindMember(request, "member")) {
        run.HasMember = true;
        ReadMember(*member, FieldPath("member"), run.Work.Problem.Combo1, entry);
    }
    run.Analysed = Calculate(run) == Outcome::Done;
    if (!run.Analysed) {
        return;
    }
    run.Tested = run.HasMember && TestEntry(entry, run);
}

Outcome RunHipValley(const JsonValue& request, BeamRun& run)
{
    RefuseUnknownFields(request, CriteriaTaskFields);
    ReadProblem(request, run);
    return CalculateHipValley(run.Work, run.User);
}

Outcome RunSelection(const JsonValue& request, BeamRun& run)
{
    RefuseUnknownFields(request, CriteriaTaskFields);
    ReadProblem(request, run);
    if (run.Work.Problem.Combo1 >= SpeciesGroup::Scl) {
        FieldPath("criteria").Field("Combo1").Fail("a species group (0 to 6) is expected");
    }
    return Calculate(run);
}

Outcome RunSteelScan(const JsonValue& request, BeamRun& run)
{
    RefuseUnknownFields(request, CriteriaTaskFields);
    ReadProblem(request, run);
    if (run.Work.Problem.Combo1 != SpeciesGroup::Steel) {
        FieldPath("criteria").Field("Combo1").Fail("the steel group (9) is expected");
    }
    return Calculate(run) == Outcome::Done ? OpenSteelSelection(run.Work, run.User) : Outcome::Refused;
}

Edition EditionOf(const JsonValue& request)
{
    const JsonValue* const year = FindMember(request, "edition");
    if (year == nullptr) {
        return Edition::Nds2018;
    }
    const FieldPath path("edition");
    const Edition edition = EditionOfYear(TextOf(*year, path));
    if (edition == Edition::None) {
        path.Fail("\"1997\", \"2001\", \"2005\", \"2012\", \"2015\" or \"2018\" is expected");
    }
    return edition;
}

std::string_view TaskOf(const JsonValue& request)
{
    const JsonValue* const task = FindMember(request, "task");
    if (task == nullptr) {
        throw InvalidRequest("task: missing");
    }
    return TextOf(*task, FieldPath("task"));
}

}  // namespace kordavan
