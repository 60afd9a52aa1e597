#include "records/CustomValuesFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string_view>
#include <utility>

#include "core/NumberText.h"
#include "design/CustomValues.h"
#include "records/BoxNumbers.h"
#include "records/CustomValuesLayout.h"
#include "records/RecordFile.h"

namespace kordavan {

namespace {

constexpr std::string_view NotForScl =
    "Please use the Save Default button to save SCL values. Use 'File, Save Values' for solid lumber and "
    "glu-lams only.";
constexpr std::string_view UnfitText =
    "A Custom Value file cannot hold what is in this box: it is no number, or too large.  Please change it "
    "and save again.";
constexpr std::string_view NotCustomValues =
    "The selected file does not contain Kordavan Custom Values.  Please check to see if you selected the "
    "appropriate file.\n\n"
    "Custom Value files have an extension of *.VAL\n"
    "Beam Criteria files have a default extension of *.CRI\n"
    "Column Data Records have an extension of *.COL\n"
    "Beam Data Records have the default extension of *.DAT\n\n"
    "You may have saved the file you are looking for under another filename or file type.";
constexpr std::string_view CourtesyTitle = "Kordavan Courtesy Alert";
constexpr std::string_view ChangeEditionTitle = "To change the NDS version:";
constexpr std::string_view ChangeEdition =
    "Return to form 1, on the menu bar select Options, select Set defaults, change the NDS version, select "
    "Save Defaults, and return to this form and re-load the values.";
constexpr std::string_view RepetitiveTimber =
    "Criteria chosen in Form 1 is inappropriate for 6x members. Repetitive use does not apply to 6x beams.  "
    "Please select a different breadth group or change the repetitive use criteria in Form 1.";

struct NumberEntry {
    std::string_view Name;
    std::string CustomEntry::*Text;
    std::string_view Box;
};

constexpr std::array NumberEntries{
    NumberEntry{"Fb", &CustomEntry::Fb, OwnValues::Fb.Box},
    NumberEntry{"Fv", &CustomEntry::Fv, OwnValues::Fv.Box},
    NumberEntry{"FcPerp", &CustomEntry::FcPerp, OwnValues::FcPerp.Box},
    NumberEntry{"E", &CustomEntry::E, OwnValues::E.Box},
};

using FlagEntry = std::pair<std::string_view, bool CustomEntry::*>;

constexpr std::array<FlagEntry, 5> Families{{
    {"Wid2x", &CustomEntry::Wid2x},
    {"Wid4x", &CustomEntry::Wid4x},
    {"Wid6x", &CustomEntry::Wid6x},
    {"WidGLB", &CustomEntry::WidGLB},
    {"WidGLBHDR", &CustomEntry::WidGLBHDR},
}};

constexpr std::array<FlagEntry, 4> Options{{
    {"CustomIngradeSP", &CustomEntry::CustomIngradeSP},
    {"Roundoption", &CustomEntry::Roundoption},
    {"MSRCheckbox", &CustomEntry::MSRCheckbox},
    {"MELCheckbox", &CustomEntry::MELCheckbox},
}};

/// Of several families the last stays, as of option buttons pressed one after the other.
void ReadFamily(const PackedRecord& record, CustomEntry& custom)
{
    bool CustomEntry::*chosen = nullptr;
    for (const auto& [name, flag] : Families) {
        custom.*flag = false;
        chosen = record.Flag(name) ? flag : chosen;
    }
    if (chosen != nullptr) {
        custom.*chosen = true;
    }
    custom.SPG = custom.SPG && custom.WidGLB;
}

Message Titled(std::string_view title, Message message)
{
    message.Title = title;
    return message;
}

Message EditionQuestion(Edition edition)
{
    const std::string year(EditionYear(edition));
    // Under NDS 2015 this line deliberately speaks of the procedures of 2005.
    const std::string procedures(EditionYear(edition == Edition::Nds2015 ? Edition::Nds2005 : edition));
    return Titled(CourtesyTitle,
                  Question("Courtesy Alert:      Are you loading NDS " + year +
                           " VALUES?\n"
                           "Kordavan is currently set to calculate using NDS " +
                           procedures +
                           " procedures.\n"
                           "IF these are NOT NDS " +
                           year + " values, either revise these values or change the correct NDS Version."));
}

}  // namespace

CustomValuesRecordMade MakeCustomValuesRecord(const MemberEntry& entry)
{
    CustomValuesRecordMade made{.Record = PackedRecord(CustomValuesLayout), .UnfitBox = {}};
    made.Record.SetInteger("RecordTag", CustomValuesTag);
    for (const NumberEntry& field : NumberEntries) {
        const std::string& text = entry.Custom.*field.Text;
        const std::optional<float> held = HeldFloat(text);
        const bool fits = held && (IsBlank(text) || IsNumeric(text));
        if (!fits && made.UnfitBox.empty()) {
            made.UnfitBox = field.Box;
        }
        made.Record.SetFloat(field.Name, fits ? *held : 0);
    }
    made.Record.SetText("SpeciesText", entry.SpeciesText);
    for (const auto& [name, flag] : Families) {
        made.Record.SetFlag(name, entry.Custom.*flag);
    }
    for (const auto& [name, flag] : Options) {
        made.Record.SetFlag(name, entry.Custom.*flag);
    }
    return made;
}

Outcome CheckCustomValues(const PackedRecord& record, UserPort& user)
{
    if (record.Integer("RecordTag") != CustomValuesTag) {
        return Refuse(user, Marked(Refusal(NotCustomValues), MessageIcon::Warning));
    }
    const auto* const absurd = std::find_if(
        NumberEntries.begin(), NumberEntries.end(),
        [&record](const NumberEntry& field) { return !std::isfinite(record.Float(field.Name)); });
    return absurd == NumberEntries.end()
               ? Outcome::Done
               : Refuse(user, Refusal("This Custom Value file holds a value that is no number (" +
                                      std::string(absurd->Name) + "), so it was not loaded."));
}

void RestoreCustomValues(const PackedRecord& record, MemberEntry& entry)
{
    for (const NumberEntry& field : NumberEntries) {
        entry.Custom.*field.Text = BoxText(record.Float(field.Name));
    }
    entry.SpeciesText = record.Text("SpeciesText");
    const SizeFamily before = FamilyOf(entry, SpeciesGroup::Custom);
    ReadFamily(record, entry.Custom);
    if (FamilyOf(entry, SpeciesGroup::Custom) != before) {
        entry.BreadthText.clear();
        entry.DepthText.clear();
    }
    for (const auto& [name, flag] : Options) {
        entry.Custom.*flag = record.Flag(name);
    }
}

void TellCustomValues(const PackedRecord& record, const Session& session, UserPort& user)
{
    const Edition edition = EditionInForce(session.Nds);
    if (edition != Edition::None && !user.Ask(EditionQuestion(edition))) {
        user.Tell(Titled(ChangeEditionTitle, Alert(ChangeEdition)));
    }
    if (record.Flag("Wid6x") && session.Problem.Rep) {
        user.Tell(Alert(RepetitiveTimber));
    }
}

Outcome CheckCustomValuesSavable(const Session& session, UserPort& user)
{
    if (session.Problem.Combo1 == SpeciesGroup::Scl) {
        return Refuse(user, Refusal(NotForScl));
    }
    const std::string unfitBox = MakeCustomValuesRecord(session.Entry).UnfitBox;
    return unfitBox.empty() ? Outcome::Done : Refuse(user, Refusal(UnfitText, unfitBox));
}

Outcome SaveCustomValues(const Session& session, const std::string& path, UserPort& user)
{
    if (CheckCustomValuesSavable(session, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    const std::string fault = ReplaceRecord(path, MakeCustomValuesRecord(session.Entry).Record.Bytes());
    return fault.empty() ? Outcome::Done : RefuseSaving(path, fault, user);
}

Outcome LoadCustomValues(Session& session, const std::string& path, UserPort& user)
{
    const FileRead file = ReadRecordFile(path);
    if (!file.Bytes) {
        return RefuseReading(path, file.Fault, user);
    }
    const PackedRecord record(CustomValuesLayout, *file.Bytes);
    if (CheckCustomValues(record, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    RestoreCustomValues(record, session.Entry);
    TellCustomValues(record, session, user);
    return Outcome::Done;
}

}  // namespace kordavan
