#include "batch/MemberRequest.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "batch/FieldTable.h"
#include "materials/SclProducts.h"

namespace kordavan {

namespace {

using MemberTarget = std::variant<std::string MemberEntry::*, std::size_t MemberEntry::*,
                                  std::string CustomEntry::*, bool CustomEntry::*>;

struct MemberField {
    std::string_view Name;
    MemberTarget Into;
};

constexpr std::array MemberFields{
    MemberField{"BreadthText", &MemberEntry::BreadthText},
    MemberField{"DepthText", &MemberEntry::DepthText},
    MemberField{"SpeciesText", &MemberEntry::SpeciesText},
    MemberField{"Fb", &CustomEntry::Fb},
    MemberField{"Fv", &CustomEntry::Fv},
    MemberField{"E", &CustomEntry::E},
    MemberField{"FcPerp", &CustomEntry::FcPerp},
    MemberField{"Wid2x", &CustomEntry::Wid2x},
    MemberField{"Wid4x", &CustomEntry::Wid4x},
    MemberField{"Wid6x", &CustomEntry::Wid6x},
    MemberField{"WidGLB", &CustomEntry::WidGLB},
    MemberField{"WidGLBHDR", &CustomEntry::WidGLBHDR},
    MemberField{"SPG", &CustomEntry::SPG},
    MemberField{"CustomIngradeSP", &CustomEntry::CustomIngradeSP},
    MemberField{"MSRCheckbox", &CustomEntry::MSRCheckbox},
    MemberField{"MELCheckbox", &CustomEntry::MELCheckbox},
    MemberField{"Roundoption", &CustomEntry::Roundoption},
    MemberField{"Diam", &CustomEntry::Diam},
};
constexpr std::size_t ListedFieldCount = 3;

constexpr std::array SclFields{
    MemberField{"Product", &MemberEntry::Product},
    MemberField{"BreadthText", &MemberEntry::BreadthText},
    MemberField{"DepthText", &MemberEntry::DepthText},
    MemberField{"Fb", &CustomEntry::Fb},
    MemberField{"Fv", &CustomEntry::Fv},
    MemberField{"E", &CustomEntry::E},
    MemberField{"FcPerp", &CustomEntry::FcPerp},
    MemberField{"Exponent", &CustomEntry::Exponent},
};

constexpr std::array SteelFields{MemberField{"ShapeName", &MemberEntry::ShapeName}};

std::span<const MemberField> FieldsOf(SpeciesGroup group)
{
    if (group == SpeciesGroup::Steel) {
        return SteelFields;
    }
    if (group == SpeciesGroup::Scl) {
        return SclFields;
    }
    const std::span<const MemberField> all(MemberFields);
    return group == SpeciesGroup::Custom ? all : all.first(ListedFieldCount);
}

struct MemberFieldReader {
    const JsonValue& Value;
    const FieldPath& Path;
    MemberEntry& Entry;

    void operator()(std::string MemberEntry::*text) const { Entry.*text = EntryText(Value, Path); }
    void operator()(std::size_t MemberEntry::*product) const
    {
        Entry.*product = static_cast<std::size_t>(PositionOf(Value, SclProductCount - 1, Path));
    }
    void operator()(std::string CustomEntry::*text) const { Entry.Custom.*text = EntryText(Value, Path); }
    void operator()(bool CustomEntry::*flag) const { Entry.Custom.*flag = FlagOf(Value, Path); }
};

}  // namespace

void ReadMember(const JsonValue& member, const FieldPath& path, SpeciesGroup group, MemberEntry& entry)
{
    const std::span<const MemberField> fields = FieldsOf(group);
    for (const JsonValue::Member& json : ObjectOf(member, path).GetObject()) {
        const std::string_view name = NameOf(json);
        const FieldPath fieldPath = path.Field(name);
        std::visit(MemberFieldReader{json.value, fieldPath, entry},
                   FieldNamed(fields, name, fieldPath, "no such field in this material group").Into);
    }
    if (group == SpeciesGroup::Scl && !entry.Custom.Exponent.empty() && !IsCustomScl(entry.Product)) {
        path.Field("Exponent").Fail("only products of the user's own have one");
    }
}

}  // namespace kordavan
