#include "batch/CriteriaRequest.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "core/EntryRules.h"

namespace kordavan {

namespace {

enum class SpanFlag { TwoSpan, ThreeSpan };

struct MaterialGroup {};

using Target = std::variant<std::string BeamProblem::*, std::string LoadSet::*, PointTexts LoadSet::*,
                            PartialTexts LoadSet::*, bool BeamProblem::*, bool LoadSet::*,
                            std::array<bool, PlanQuarterCount> LoadSet::*, SupportCondition, SpanFlag,
                            RepetitiveSpacing, SteelFamily, MaterialGroup>;

struct CriteriaField {
    std::string_view Name;
    Target Into;
};

constexpr std::array Fields{
    CriteriaField{"Areas", &LoadSet::Areas},
    CriteriaField{"BEGP", &LoadSet::BEGP},
    CriteriaField{"CFbutton", SteelFamily::C},
    CriteriaField{"CalctheSpan", &LoadSet::CalctheSpan},
    CriteriaField{"CantUBLtext", &BeamProblem::CantUBLtext},
    CriteriaField{"Combo1", MaterialGroup{}},
    CriteriaField{"Ctr0", RepetitiveSpacing::Ctr0},
    CriteriaField{"Ctr12", RepetitiveSpacing::Ctr12},
    CriteriaField{"Ctr16", RepetitiveSpacing::Ctr16},
    CriteriaField{"Ctr19", RepetitiveSpacing::Ctr19},
    CriteriaField{"DIS", &LoadSet::DIS},
    CriteriaField{"DblPLbutton", SteelFamily::DoublePlate},
    CriteriaField{"DepCombo", &BeamProblem::DepCombo},
    CriteriaField{"Descrip", &BeamProblem::Descrip},
    CriteriaField{"Dur", &BeamProblem::Dur},
    CriteriaField{"ENDP", &LoadSet::ENDP},
    CriteriaField{"ID", &BeamProblem::ID},
    CriteriaField{"INGRADE", &BeamProblem::INGRADE},
    CriteriaField{"IncButton", SupportCondition::HipValley},
    CriteriaField{"IncLL", &LoadSet::IncLL},
    CriteriaField{"IncTL", &LoadSet::IncTL},
    CriteriaField{"IncUnifLL", &LoadSet::IncUnifLL},
    CriteriaField{"IncUnifTL", &LoadSet::IncUnifTL},
    CriteriaField{"Incised", &BeamProblem::Incised},
    CriteriaField{"LMaxDefl", &BeamProblem::LMaxDefl},
    CriteriaField{"LPAR", &LoadSet::LPAR},
    CriteriaField{"LPSF", &LoadSet::LPSF},
    CriteriaField{"LPT", &LoadSet::LPT},
    CriteriaField{"LUNIF", &LoadSet::LUNIF},
    CriteriaField{"MCbutton", SteelFamily::MC},
    CriteriaField{"MaxDefl", &BeamProblem::MaxDefl},
    CriteriaField{"Multibutton", SupportCondition::MultipleSpans},
    CriteriaField{"NoWeight", &BeamProblem::NoWeight},
    CriteriaField{"OHbutton", SupportCondition::Overhanging},
    CriteriaField{"PAR", &LoadSet::PAR},
    CriteriaField{"PLbutton", SteelFamily::Plate},
    CriteriaField{"PSF", &LoadSet::PSF},
    CriteriaField{"PT", &LoadSet::PT},
    CriteriaField{"Pitchtext", &BeamProblem::Pitchtext},
    CriteriaField{"Proj", &BeamProblem::Proj},
    CriteriaField{"Reducechk", &BeamProblem::Reducechk},
    CriteriaField{"Rep", &BeamProblem::Rep},
    CriteriaField{"Roofbutton", &BeamProblem::Roofbutton},
    CriteriaField{"SFbutton", SteelFamily::S},
    CriteriaField{"SimpleSpanbutton", SupportCondition::SimpleSpan},
    CriteriaField{"Span", &BeamProblem::Span},
    CriteriaField{"TUbutton", SteelFamily::Tube},
    CriteriaField{"Text1", &LoadSet::Text1},
    CriteriaField{"Text2", &LoadSet::Text2},
    CriteriaField{"ThreeSpan", SpanFlag::ThreeSpan},
    CriteriaField{"Trib1", &LoadSet::Trib1},
    CriteriaField{"Trib2", &LoadSet::Trib2},
    CriteriaField{"TribPSF", &LoadSet::TribPSF},
    CriteriaField{"Tribute", &LoadSet::Tribute},
    CriteriaField{"TwoSpan", SpanFlag::TwoSpan},
    CriteriaField{"UBLtext", &BeamProblem::UBLtext},
    CriteriaField{"UNIF", &LoadSet::UNIF},
    CriteriaField{"WFbutton", SteelFamily::W},
    CriteriaField{"Wet", &BeamProblem::Wet},
    CriteriaField{"ctr24", RepetitiveSpacing::Ctr24},
    CriteriaField{"ksi50", &BeamProblem::ksi50},
};

constexpr bool NameStandsBefore(const CriteriaField& field, std::string_view name)
{
    return field.Name < name;
}
static_assert(std::is_sorted(Fields.begin(), Fields.end(),
                             [](const CriteriaField& a, const CriteriaField& b) { return a.Name < b.Name; }));

const CriteriaField* FindField(std::string_view name)
{
    const auto* const found = std::lower_bound(Fields.begin(), Fields.end(), name, NameStandsBefore);
    return found != Fields.end() && found->Name == name ? found : nullptr;
}

/// Reads field after field into one problem; the operators are picked by the kind of the target.
class CriteriaReader {
public:
    CriteriaReader(BeamProblem& beamProblem, UserPort& port) : problem(beamProblem), user(port) {}

    void Read(std::string_view fieldName, const JsonValue& json, const FieldPath& fieldPath)
    {
        const CriteriaField* const field = FindField(fieldName);
        if (field == nullptr) {
            fieldPath.Fail("no such field");
        }
        name = fieldName;
        rule = FindEntryRule(fieldName);
        value = &json;
        path = &fieldPath;
        std::visit(*this, field->Into);
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
