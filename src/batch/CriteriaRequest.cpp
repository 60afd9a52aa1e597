#include "batch/CriteriaRequest.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "core/CriteriaFields.h"
#include "core/EntryRules.h"

namespace kordavan {

namespace {

/// Reads field after field into one problem; the operators are picked by the kind of the target.
class CriteriaReader {
public:
    CriteriaReader(BeamProblem& beamProblem, UserPort& port) : problem(beamProblem), user(port) {}

    void Read(std::string_view fieldName, const JsonValue& json, const FieldPath& fieldPath)
    {
        const CriteriaField* const field = FindCriteriaField(fieldName);
        if (field == nullptr) {
            fieldPath.Fail("no such field");
        }
        name = fieldName;
        rule = FindEntryRule(fieldName);
        value = &json;
        path = &fieldPath;
        std::visit(*this, field->Target);
    }

    void operator()(std::string BeamProblem::*text) { ReadText(problem.*text); }
    void operator()(std::string LoadSet::*text) { ReadText(problem.Loads.*text); }
    void operator()(PointTexts LoadSet::*texts) { ReadTexts(problem.Loads.*texts); }
    void operator()(PartialTexts LoadSet::*texts) { ReadTexts(problem.Loads.*texts); }
    void operator()(bool BeamProblem::*flag) { problem.*flag = FlagOf(*value, *path); }
    void operator()(bool LoadSet::*flag) { problem.Loads.*flag = FlagOf(*value, *path); }

    void operator()(std::array<bool, PlanQuarterCount> LoadSet::*flags)
    {
        std::size_t k = 0;
        for (const JsonValue& item : ArrayOf(*value, PlanQuarterCount, *path).GetArray()) {
            (problem.Loads.*flags)[k] = FlagOf(item, path->Item(k));
            ++k;
        }
    }

    void operator()(SupportCondition support) { Choose(problem.Support, support, supportChosen); }
    void operator()(RepetitiveSpacing spacing) { Choose(problem.Spacing, spacing, spacingChosen); }
    void operator()(SteelFamily family) { Choose(problem.Family, family, familyChosen); }
    void operator()(SpanFlag flag) { Choose(problem.ThreeSpan, flag == SpanFlag::ThreeSpan, spansChosen); }

    void operator()(MaterialGroup /*group*/)
    {
        const int last = static_cast<int>(SpeciesGroups.size()) - 1;
        problem.Combo1 = static_cast<SpeciesGroup>(PositionOf(*value, last, *path));
    }

private:
    /// Of a group of options only one may be on.
    template <typename Choice>
    void Choose(Choice& chosen, Choice choice, bool& groupChosen)
    {
        if (!FlagOf(*value, *path)) {
            return;
        }
        if (groupChosen) {
            path->Fail("another option of the same group is on");
        }
        groupChosen = true;
        chosen = choice;
    }

    void ReadText(std::string& text)
    {
        text = EntryText(*value, *path);
        if (IsCleared(text)) {
            user.Tell(Alert(rule->Message, name));
        }
    }

    void ReadTexts(std::span<std::string> texts)
    {
        std::size_t k = 0;
        for (const JsonValue& item : ArrayOf(*value, texts.size(), *path).GetArray()) {
            texts[k] = EntryText(item, path->Item(k));
            if (IsCleared(texts[k])) {
                user.Tell(Alert(rule->Message, BoxName(name, k)));
            }
            ++k;
        }
    }

    /// Applies the box's rule to a text as if typed. True when the person is to be told of it.
    bool IsCleared(std::string& text) const
    {
        const EntryVerdict verdict = rule == nullptr ? EntryVerdict::Stands : JudgeEntry(*rule, text);
        if (verdict != EntryVerdict::Stands) {
            text.clear();
        }
        return verdict == EntryVerdict::Refused;
    }

    BeamProblem& problem;
    UserPort& user;
    std::string_view name;
    const EntryRule* rule = nullptr;
    const JsonValue* value = nullptr;
    const FieldPath* path = nullptr;
    bool supportChosen = false;
    bool spacingChosen = false;
    bool familyChosen = false;
    bool spansChosen = false;
};

}  // namespace

void ReadCriteria(const JsonValue& criteria, const FieldPath& path, BeamProblem& problem, UserPort& user)
{
    CriteriaReader reader(problem, user);
    for (const JsonValue::Member& member : ObjectOf(criteria, path).GetObject()) {
        const std::string_view name = NameOf(member);
        reader.Read(name, member.value, path.Field(name));
    }
}

}  // namespace kordavan
