#include "batch/NotchTask.h"

#include <array>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "batch/AnswerOutcome.h"
#include "batch/BeamRun.h"
#include "batch/CollectingUser.h"
#include "batch/FieldTable.h"
#include "notch/NotchCheck.h"
#include "notch/NotchTexts.h"

namespace kordavan {

namespace {

constexpr std::array<std::string_view, 4> NotchTaskFields{"task", "id", "edition", "notch"};

struct NotchListPosition {
    int NotchEntry::*Position;
    int Last;
};

/// A click on a line of the list of years.
struct YearClick {};

using NotchTarget = std::variant<std::string NotchEntry::*, bool NotchEntry::*, NotchListPosition, YearClick>;

struct NotchField {
    std::string_view Name;
    NotchTarget Into;
};

constexpr std::array NotchFields{
    NotchField{"MemberListBox", NotchListPosition{&NotchEntry::MemberListBox, NotchMemberNames.size() - 1}},
    NotchField{"NotchListBox", NotchListPosition{&NotchEntry::NotchListBox, NotchTypeNames.size() - 1}},
    NotchField{"DurListbox", NotchListPosition{&NotchEntry::DurListbox, NotchDurations.size() - 1}},
    NotchField{"MaxVtextbox", &NotchEntry::MaxVtextbox},
    NotchField{"breadthtextbox", &NotchEntry::breadthtextbox},
    NotchField{"depthtextbox", &NotchEntry::depthtextbox},
    NotchField{"Fvtextbox", &NotchEntry::Fvtextbox},
    NotchField{"dnTextbox", &NotchEntry::dnTextbox},
    NotchField{"eTextbox", &NotchEntry::eTextbox},
    NotchField{"rdTextbox", &NotchEntry::rdTextbox},
    NotchField{"rpTextbox", &NotchEntry::rpTextbox},
    NotchField{"tTextbox", &NotchEntry::tTextbox},
    NotchField{"WetUseCheckbox", &NotchEntry::WetUseCheckbox},
    NotchField{"NoSplitCheckbox", &NotchEntry::NoSplitCheckbox},
    NotchField{"Species", &NotchEntry::Species},
    NotchField{"NDSyearList", YearClick{}},
};

struct NotchFieldReader {
    const JsonValue& Value;
    const FieldPath& Path;
    NotchSession& Notch;
    UserPort& User;

    void operator()(std::string NotchEntry::*text) const { Notch.Entry.*text = EntryText(Value, Path); }
    void operator()(bool NotchEntry::*flag) const { Notch.Entry.*flag = FlagOf(Value, Path); }
    void operator()(const NotchListPosition& list) const
    {
        Notch.Entry.*list.Position = PositionOf(Value, list.Last, Path);
    }
    void operator()(YearClick) const
    {
        const int line = PositionOf(Value, NotchYearLines.size() - 1, Path);
        ClickNotchYear(Notch.Years, static_cast<std::size_t>(line), User);
    }
};

void ReadNotchFields(const JsonValue& json, const FieldPath& path, NotchSession& notch, UserPort& user)
{
    for (const JsonValue::Member& member : ObjectOf(json, path).GetObject()) {
        const std::string_view name = NameOf(member);
        const FieldPath fieldPath = path.Field(name);
        std::visit(NotchFieldReader{member.value, fieldPath, notch, user},
                   FieldNamed(NotchFields, name, fieldPath, "no such field").Into);
    }
}

constexpr double None = std::numeric_limits<double>::quiet_NaN();

/// Which of the two figures the edition's rule gives, and how it compares.
void WriteShear(const NotchResult& result, AnswerWriter& answer)
{
    answer.Field("CriticalFv", result.CriticalFv.value_or(None));
    answer.Field("AllowableV", result.AllowableV.value_or(None));
    if (result.IsComputed()) {
        answer.Field("ResultIsV", result.ResultIsV);
    } else {
        answer.Field("ResultIsV", None);
    }
    answer.Field("RatioPercent", result.RatioPercent.value_or(None));
}

void WriteStatus(const NotchResult& result, AnswerWriter& answer)
{
    const bool passes = result.Verdict == NotchVerdict::Passes;
    if (result.IsComputed()) {
        answer.Field("Status", passes ? NotchStatus::Ok : NotchStatus::Fail);
    } else {
        answer.Field("Status", None);
    }
}

void WriteResult(const NotchRun& run, AnswerWriter& answer)
{
    const NotchProblem& problem = run.Problem;
    const NotchResult& result = run.Result;
    answer.BeginObject("result");
    answer.Field("NdsYear", static_cast<int>(problem.NdsYear));
    answer.Field("Cm", problem.Cm);
    answer.Field("Ch", static_cast<int>(problem.Ch));
    answer.Field("Cd", problem.Cd);
    answer.Field("AdjustedFv", result.AdjustedFv);
    answer.Field("AreaAtNotch", result.AreaAtNotch);
    answer.Field("MinimumDn", result.MinimumDn);
    WriteShear(result, answer);
    answer.Field("MinSpan", result.MinSpan.value_or(None));
    answer.Field("TaperAngle", result.TaperAngle.value_or(None));
    WriteStatus(result, answer);
    answer.EndObject();
}

struct Label {
    std::string_view Name;
    std::string NotchTexts::*Text;
};

constexpr std::array Labels{
    Label{"WetUseLabel", &NotchTexts::WetUseLabel},
    Label{"YearLine", &NotchTexts::YearLine},
    Label{"DnMinimum", &NotchTexts::DnMinimum},
    Label{"AdjFvLabel", &NotchTexts::AdjFvLabel},
    Label{"AnLabel", &NotchTexts::AnLabel},
    Label{"CritLabel", &NotchTexts::CritLabel},
    Label{"CriticalfvLabel", &NotchTexts::CriticalfvLabel},
    Label{"CritPsiLabel", &NotchTexts::CritPsiLabel},
    Label{"RatioTitle", &NotchTexts::RatioTitle},
    Label{"RatioLabel", &NotchTexts::RatioLabel},
    Label{"ShearStatusLabel", &NotchTexts::ShearStatusLabel},
    Label{"MinSpanLabel", &NotchTexts::MinSpanLabel},
    Label{"TaperAngleLabel", &NotchTexts::TaperAngleLabel},
    Label{"NotchNote", &NotchTexts::NotchNote},
};

void WriteLabels(const NotchTexts& texts, AnswerWriter& answer)
{
    answer.BeginObject("labels");
    for (const Label& label : Labels) {
        answer.Field(label.Name, std::string_view(texts.*label.Text));
    }
    answer.EndObject();
}

}  // namespace

void AnswerNotch(const JsonValue& request, const JsonValue* id, AnswerWriter& answer)
{
    RefuseUnknownFields(request, NotchTaskFields);
    NotchSession notch;
    notch.Years = OpeningNotchYears(EditionOf(request));
    CollectingUser user;
    if (const JsonValue* const entry = FindMember(request, "notch")) {
        ReadNotchFields(*entry, FieldPath("notch"), notch, user);
    }
    const bool isDone = CalculateNotch(notch, user) == Outcome::Done;
    answer.BeginObject();
    WriteOutcome(id, user, isDone, answer);
    if (isDone) {
        WriteResult(*notch.Run, answer);
        WriteLabels(DescribeNotch(notch), answer);
    }
    answer.EndObject();
}

}  // namespace kordavan
