#include "records/CustomPostFile.h"

#include <cmath>
#include <optional>
#include <string_view>

#include "columns/ColumnSpecies.h"
#include "core/NumberText.h"
#include "records/BoxNumbers.h"
#include "records/CustomPostLayout.h"
#include "records/RecordFile.h"

namespace kordavan {

namespace {

constexpr std::string_view SpeciesBox = "ColSpeciesCombo";
constexpr std::string_view EBox = "cEtext";
constexpr std::string_view FcBox = "cFcText";

constexpr std::string_view SpeciesIsCustom =
    "Please document your custom species and grade by replacing the word 'Custom' in the species list box.";
constexpr std::string_view NoSpecies =
    "Please document your custom species and grade in the species list box.";
constexpr std::string_view NoE = "Please document your custom species E with a value.";
constexpr std::string_view NoFc = "Please document your custom species Fc with a value.";
constexpr std::string_view UnfitE =
    "A Custom Post Value file cannot hold this E: it is no number, or too large.  Please change it and save "
    "again.";
constexpr std::string_view UnfitFc =
    "A Custom Post Value file cannot hold this Fc: it is no whole number, or too large.  Please change it and "
    "save again.";
constexpr std::string_view PostSaved = "Custom post values saved to disk as ";
constexpr std::string_view NotCustomPost =
    "Cannot load the selected values. Please verify you are loading Custom Wood Post values with the *.CPV "
    "extension";
constexpr std::string_view AbsurdE =
    "This Custom Post Value file holds a value that is no number (E), so it was not loaded.";

bool IsNumberOrNone(std::string_view text)
{
    return IsNumeric(text) || Val(text) == 0;
}

Outcome CheckSpecies(std::string_view species, UserPort& user)
{
    if (IsBlank(species)) {
        return Refuse(user, Refusal(NoSpecies, SpeciesBox));
    }
    const std::string_view fromFirst = species.substr(species.find_first_not_of(' '));
    const bool isCustom = fromFirst.substr(0, fromFirst.find_last_not_of(' ') + 1) == CustomSpecies;
    return isCustom ? Refuse(user, Refusal(SpeciesIsCustom, SpeciesBox)) : Outcome::Done;
}

Outcome CheckE(std::string_view text, UserPort& user)
{
    const std::optional<float> E = HeldFloat(text);
    if (!E || !IsNumberOrNone(text)) {
        return Refuse(user, Refusal(UnfitE, EBox));
    }
    return *E == 0 ? Refuse(user, Refusal(NoE, EBox)) : Outcome::Done;
}

Outcome CheckFc(std::string_view text, UserPort& user)
{
    const std::optional<std::int16_t> Fc = HeldInteger(text);
    if (!Fc || !IsNumberOrNone(text)) {
        return Refuse(user, Refusal(UnfitFc, FcBox));
    }
    return *Fc == 0 ? Refuse(user, Refusal(NoFc, FcBox)) : Outcome::Done;
}

}  // namespace

Outcome CheckCustomPostSavable(const ColumnEntry& entry, UserPort& user)
{
    if (CheckSpecies(entry.ColSpeciesCombo, user) != Outcome::Done ||
        CheckE(entry.cEtext, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    return CheckFc(entry.cFcText, user);
}

PackedRecord MakeCustomPostRecord(const ColumnEntry& entry)
{
    PackedRecord record(CustomPostLayout);
    record.SetInteger("RecordTag", CustomPostTag);
    record.SetInteger("Fc", HeldInteger(entry.cFcText).value_or(0));
    record.SetFloat("E", HeldFloat(entry.cEtext).value_or(0));
    record.SetText("SpeciesText", entry.ColSpeciesCombo);
    return record;
}

Outcome CheckCustomPost(const PackedRecord& record, UserPort& user)
{
    if (record.Integer("RecordTag") != CustomPostTag) {
        return Refuse(user, Marked(Refusal(NotCustomPost), MessageIcon::Warning));
    }
    return std::isfinite(record.Float("E")) ? Outcome::Done : Refuse(user, Refusal(AbsurdE));
}

void RestoreCustomPost(const PackedRecord& record, ColumnEntry& entry)
{
    entry.ColSpeciesCombo = record.Text("SpeciesText");
    entry.cFcText = BoxText(record.Integer("Fc"));
    entry.cEtext = BoxText(record.Float("E"));
}

Outcome SaveCustomPost(const ColumnEntry& entry, const std::string& path, UserPort& user)
{
    if (CheckCustomPostSavable(entry, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    const std::string fault = ReplaceRecord(path, MakeCustomPostRecord(entry).Bytes());
    if (!fault.empty()) {
        return RefuseSaving(path, fault, user);
    }
    user.Tell(Marked(Alert(std::string(PostSaved) + path), MessageIcon::Information));
    return Outcome::Done;
}

Outcome LoadCustomPost(const std::string& path, ColumnEntry& entry, UserPort& user)
{
    const FileRead file = ReadRecordFile(path);
    if (!file.Bytes) {
        return RefuseReading(path, file.Fault, user);
    }
    const PackedRecord record(CustomPostLayout, *file.Bytes);
    if (CheckCustomPost(record, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    RestoreCustomPost(record, entry);
    return Outcome::Done;
}

}  // namespace kordavan
