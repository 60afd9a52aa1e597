#include "batch/StudTask.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "batch/AnswerOutcome.h"
#include "batch/BeamRun.h"
#include "batch/CollectingUser.h"
#include "batch/FloatFields.h"
#include "columns/StudColumn.h"
#include "columns/StudCriteria.h"
#include "columns/StudStrength.h"

namespace kordavan {

namespace {

constexpr std::array<std::string_view, 4> TaskFields{"task", "id", "edition", "stud"};

using WindTexts = std::array<std::string, WindLoadCount>;

struct WindText {
    WindTexts StudEntry::*Texts;
    std::size_t Load;
};

struct ListPosition {
    int StudEntry::*Position;
    int Last;
};

using Target = std::variant<std::string StudEntry::*, bool StudEntry::*, ListPosition, WindText>;

struct StudField {
    std::string_view Name;
    Target Into;
};

constexpr std::array Fields{
    StudField{"WindStudHt", &StudEntry::WindStudHt},
    StudField{"WindStudSpacing", &StudEntry::WindStudSpacing},
    StudField{"BreadthCombo", ListPosition{&StudEntry::BreadthCombo, StudBreadths.size() - 1}},
    StudField{"DepthCombo", ListPosition{&StudEntry::DepthCombo, StudDepths.size() - 1}},
    StudField{"WindStudCombo", &StudEntry::WindStudCombo},
    StudField{"WindStudFb", &StudEntry::WindStudFb},
    StudField{"WindStudFc", &StudEntry::WindStudFc},
    StudField{"WindStudE", &StudEntry::WindStudE},
    StudField{"AxialPLFtextbox", &StudEntry::AxialPLFtextbox},
    StudField{"AxialPointTextbox", &StudEntry::AxialPointTextbox},
    StudField{"AxialDurTextbox", &StudEntry::AxialDurTextbox},
    StudField{"DurWindTextbox", &StudEntry::DurWindTextbox},
    StudField{"WindA", WindText{&StudEntry::Wind, 0}},
    StudField{"WindB", WindText{&StudEntry::Wind, 1}},
    StudField{"WindC", WindText{&StudEntry::Wind, 2}},
    StudField{"BegA", WindText{&StudEntry::Beg, 0}},
    StudField{"BegB", WindText{&StudEntry::Beg, 1}},
    StudField{"BegC", WindText{&StudEntry::Beg, 2}},
    StudField{"EndA", WindText{&StudEntry::End, 0}},
    StudField{"EndB", WindText{&StudEntry::End, 1}},
    StudField{"EndC", WindText{&StudEntry::End, 2}},
    StudField{"RepWindStud", &StudEntry::RepWindStud},
    StudField{"RepIBCCheck", &StudEntry::RepIBCCheck},
};

struct FieldReader {
    const JsonValue& Value;
    const FieldPath& Path;
    StudEntry& Entry;

    void operator()(std::string StudEntry::*text) const { Entry.*text = EntryText(Value, Path); }
    void operator()(bool StudEntry::*flag) const { Entry.*flag = FlagOf(Value, Path); }
    void operator()(const ListPosition& list) const
    {
        Entry.*list.Position = PositionOf(Value, list.Last, Path);
    }
    void operator()(const WindText& wind) const { (Entry.*wind.Texts)[wind.Load] = EntryText(Value, Path); }
};

void ReadFields(const JsonValue& stud, const FieldPath& path, StudEntry& entry)
{
    for (const JsonValue::Member& json : ObjectOf(stud, path).GetObject()) {
        const std::string_view name = NameOf(json);
        const FieldPath fieldPath = path.Field(name);
        const auto* const field = std::find_if(Fields.begin(), Fields.end(),
                                               [name](const StudField& row) { return row.Name == name; });
        if (field == Fields.end()) {
            fieldPath.Fail("no such field");
        }
        std::visit(FieldReader{json.value, fieldPath, entry}, field->Into);
    }
}

/// What is not given of the base values is that of the species.
void FillBaseValues(const JsonValue& stud, Edition edition, StudEntry& entry)
{
    const std::optional<StudBaseTexts> values = FindStudBaseTexts(entry.WindStudCombo, edition);
    if (!values) {
        return;
    }
    const auto fill = [&](std::string_view name, const std::string& text, std::string& box) {
        if (FindMember(stud, name) == nullptr) {
            box = text;
        }
    };
    fill("WindStudFb", values->Fb, entry.WindStudFb);
    fill("WindStudFc", values->Fc, entry.WindStudFc);
    fill("WindStudE", values->E, entry.WindStudE);
}

StudEntry ReadStud(const JsonValue& request, Edition edition)
{
    StudEntry entry;
    if (const JsonValue* const stud = FindMember(request, "stud")) {
        ReadFields(*stud, FieldPath("stud"), entry);
        FillBaseValues(*stud, edition, entry);
    }
    return entry;
}

using ResultField = FloatField<StudResult>;

constexpr std::array FieldsToInteraction{
    ResultField{"P", &StudResult::P},
    ResultField{"MaxMoment", &StudResult::MaxMoment},
    ResultField{"MaxMomentAtFt", &StudResult::MaxMomentAtFt},
    ResultField{"R1", &StudResult::R1},
    ResultField{"CFb", &StudResult::CFb},
    ResultField{"CFc", &StudResult::CFc},
    ResultField{"FbPrime", &StudResult::FbPrime},
    ResultField{"FcE", &StudResult::FcE},
    ResultField{"FcStar", &StudResult::FcStar},
    ResultField{"Cp", &StudResult::Cp},
    ResultField{"AllowableAxial", &StudResult::AllowableAxial},
    ResultField{"FcActual", &StudResult::FcActual},
    ResultField{"FcPrime", &StudResult::FcPrime},
    ResultField{"FbActual", &StudResult::FbActual},
};

void WriteResult(const StudResult& result, AnswerWriter& answer)
{
    constexpr float none = std::numeric_limits<float>::quiet_NaN();
    answer.BeginObject("result");
    WriteFields(result, FieldsToInteraction, answer);
    answer.Field("Interaction", InteractionOf(result).value_or(none));
    answer.Field("RB", result.RB);
    answer.Field("FbE", result.FbE);
    answer.Field("Status", result.Passes() ? StudStatus::Adequate : StudStatus::Fails);
    answer.EndObject();
}

}  // namespace

void AnswerStud(const JsonValue& request, const JsonValue* id, AnswerWriter& answer)
{
    RefuseUnknownFields(request, TaskFields);
    const Edition edition = EditionOf(request);
    StudEntry entry = ReadStud(request, edition);
    CollectingUser user;
    const std::optional<StudTest> test = TestStud(entry, edition, user);
    answer.BeginObject();
    WriteOutcome(id, user, test.has_value(), answer);
    if (test) {
        WriteResult(test->Result, answer);
    }
    answer.EndObject();
}

}  // namespace kordavan
