#include "batch/StudTask.h"

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
#include "batch/FloatFields.h"
#include "columns/StudColumn.h"
#include "columns/StudCriteria.h"
#include "columns/StudStrength.h"

namespace kordavan {

namespace {

constexpr std::array<std::string_view, 4> StudTaskFields{"task", "id", "edition", "stud"};

using WindTexts = std::array<std::string, WindLoadCount>;

struct WindText {
    WindTexts StudEntry::*Texts;
    std::size_t Load;
};

struct StudListPosition {
    int StudEntry::*Position;
    int Last;
};

using StudTarget = std::variant<std::string StudEntry::*, bool StudEntry::*, StudListPosition, WindText>;

struct StudField {
    std::string_view Name;
    StudTarget Into;
};

constexpr std::array StudFields{
    StudField{"WindStudHt", &StudEntry::WindStudHt},
    StudField{"WindStudSpacing", &StudEntry::WindStudSpacing},
    StudField{"BreadthCombo", StudListPosition{&StudEntry::BreadthCombo, StudBreadths.size() - 1}},
    StudField{"DepthCombo", StudListPosition{&StudEntry::DepthCombo, StudDepths.size() - 1}},
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

struct StudFieldReader {
    const JsonValue& Value;
    const FieldPath& Path;
    StudEntry& Entry;

    void operator()(std::string StudEntry::*text) const { Entry.*text = EntryText(Value, Path); }
    void operator()(bool StudEntry::*flag) const { Entry.*flag = FlagOf(Value, Path); }
    void operator()(const StudListPosition& list) const
    {
        Entry.*list.Position = PositionOf(Value, list.Last, Path);
    }
    void operator()(const WindText& wind) const { (Entry.*wind.Texts)[wind.Load] = EntryText(Value, Path); }
};

void ReadStudFields(const JsonValue& stud, const FieldPath& path, StudEntry& entry)
{
    for (const JsonValue::Member& json : ObjectOf(stud, path).GetObject()) {
        const std::string_view name = NameOf(json);
        const FieldPath fieldPath = path.Field(name);
        std::visit(StudFieldReader{json.value, fieldPath, entry},
                   FieldNamed(StudFields, name, fieldPath, "no such field").Into);
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
        ReadStudFields(*stud, FieldPath("stud"), entry);
        FillBaseValues(*stud, edition, entry);
    }
    return entry;
}

using StudResultField = FloatMember<StudResult>;

constexpr std::array FieldsToInteraction{
    StudResultField{"P", &StudResult::P},
    StudResultField{"MaxMoment", &StudResult::MaxMoment},
    StudResultField{"MaxMomentAtFt", &StudResult::MaxMomentAtFt},
    StudResultField{"R1", &StudResult::R1},
    StudResultField{"CFb", &StudResult::CFb},
    StudResultField{"CFc", &StudResult::CFc},
    StudResultField{"FbPrime", &StudResult::FbPrime},
    StudResultField{"FcE", &StudResult::FcE},
    StudResultField{"FcStar", &StudResult::FcStar},
    StudResultField{"Cp", &StudResult::Cp},
    StudResultField{"AllowableAxial", &StudResult::AllowableAxial},
    StudResultField{"FcActual", &StudResult::FcActual},
    StudResultField{"FcPrime", &StudResult::FcPrime},
    StudResultField{"FbActual", &StudResult::FbActual},
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
    RefuseUnknownFields(request, StudTaskFields);
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
