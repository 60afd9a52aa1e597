#include "batch/ColumnRequest.h"

#include <array>
#include <string>
#include <string_view>
#include <variant>

#include "batch/FieldTable.h"
#include "columns/ColumnCriteria.h"

namespace kordavan {

namespace {

using ColumnTarget = std::variant<std::string ColumnEntry::*, bool ColumnEntry::*, ColumnType ColumnEntry::*,
                                  ColumnValueGroup ColumnEntry::*>;

struct ColumnField {
    std::string_view Name;
    ColumnTarget Into;
};

constexpr std::array ColumnFields{
    ColumnField{"cReacText", &ColumnEntry::cReacText},
    ColumnField{"cHTtext", &ColumnEntry::cHTtext},
    ColumnField{"cD1text", &ColumnEntry::cD1text},
    ColumnField{"cD2text", &ColumnEntry::cD2text},
    ColumnField{"cModeText", &ColumnEntry::cModeText},
    ColumnField{"cDurText", &ColumnEntry::cDurText},
    ColumnField{"cFcText", &ColumnEntry::cFcText},
    ColumnField{"cEtext", &ColumnEntry::cEtext},
    ColumnField{"cWetButton", &ColumnEntry::cWetButton},
    ColumnField{"ColIncised", &ColumnEntry::ColIncised},
    ColumnField{"ResetKf", &ColumnEntry::ResetKf},
    ColumnField{"ColSpeciesCombo", &ColumnEntry::ColSpeciesCombo},
    ColumnField{"ColumnType", &ColumnEntry::Type},
    ColumnField{"ValueGroup", &ColumnEntry::ValueGroup},
};

template <typename Value>
struct Button {
    std::string_view Name;
    Value Chosen;
};

constexpr std::array TypeButtons{
    Button<ColumnType>{"CSolidButton", ColumnType::SolidSawn6x},
    Button<ColumnType>{"cSolid4xbutton", ColumnType::SolidSawn2xOr4x},
    Button<ColumnType>{"CNailedButton", ColumnType::NailedBuiltUp},
    Button<ColumnType>{"CBoltedButton", ColumnType::BoltedBuiltUp},
};

constexpr std::array GroupButtons{
    Button<ColumnValueGroup>{"FramingButton", ColumnValueGroup::DimensionLumber},
    Button<ColumnValueGroup>{"TimberButton", ColumnValueGroup::PostAndTimber},
    Button<ColumnValueGroup>{"StringerButton", ColumnValueGroup::BeamAndStringer},
};

template <typename Value, std::size_t Count>
Value ChoiceOf(const JsonValue& value, const std::array<Button<Value>, Count>& buttons, const FieldPath& path)
{
    const std::string_view name = TextOf(value, path);
    std::string expected;
    for (const Button<Value>& button : buttons) {
        if (button.Name == name) {
            return button.Chosen;
        }
        expected += expected.empty() ? "\"" : ", \"";
        expected += button.Name;
        expected += "\"";
    }
    path.Fail("one of " + expected + " is expected");
}

struct ColumnFieldReader {
    const JsonValue& Value;
    const FieldPath& Path;
    ColumnEntry& Entry;

    void operator()(std::string ColumnEntry::*text) const { Entry.*text = EntryText(Value, Path); }
    void operator()(bool ColumnEntry::*flag) const { Entry.*flag = FlagOf(Value, Path); }
    void operator()(ColumnType ColumnEntry::*type) const { Entry.*type = ChoiceOf(Value, TypeButtons, Path); }
    void operator()(ColumnValueGroup ColumnEntry::*group) const
    {
        Entry.*group = ChoiceOf(Value, GroupButtons, Path);
    }
};

/// What picking the species on the screen would fill in, where the request gives no value of its own.
void FillAbsentValues(const JsonValue& column, Edition edition, ColumnEntry& entry)
{
    ColumnEntry picked = entry;
    PickColumnSpecies(picked, entry.ColSpeciesCombo, edition);
    if (FindMember(column, "cFcText") == nullptr) {
        entry.cFcText = picked.cFcText;
    }
    if (FindMember(column, "cEtext") == nullptr) {
        entry.cEtext = picked.cEtext;
    }
}

}  // namespace

void ReadColumnEntry(const JsonValue& column, const FieldPath& path, Edition edition, ColumnEntry& entry)
{
    for (const JsonValue::Member& json : ObjectOf(column, path).GetObject()) {
        const std::string_view name = NameOf(json);
        const FieldPath fieldPath = path.Field(name);
        std::visit(ColumnFieldReader{json.value, fieldPath, entry},
                   FieldNamed(ColumnFields, name, fieldPath, "no such field of a column").Into);
    }
    FillAbsentValues(column, edition, entry);
}

}  // namespace kordavan
