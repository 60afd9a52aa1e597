#include "records/CriteriaRecord.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <variant>

#include "core/CriteriaFields.h"
#include "design/EntryAdjustment.h"
#include "design/LoadTools.h"
#include "design/UnbracedEntry.h"
#include "materials/SclProducts.h"
#include "records/BoxNumbers.h"
#include "records/CriteriaLayout.h"

namespace kordavan {

namespace {

/// A start of 0 is held as this, so that it differs from an empty box; nothing else is.
constexpr float HeldZeroStart = 0.0001F;
constexpr std::string_view StartBox = "BEGP";

constexpr std::string_view NotCriteria =
    "The Beam Criteria for this form could not be loaded.  Please check to see if you selected the "
    "appropriate file.\n\n"
    "Beam Criteria files have a default extension of *.CRI\n"
    "Custom Value files have an extension of *.VAL\n"
    "Column Data Records have an extension of *.COL\n"
    "Beam Data Records have the default extension of *.DAT\n\n"
    "You may have saved your data under a different filename or file type.";

constexpr std::array<std::pair<std::string_view, bool NdsEdition::*>, 6> EditionFields{{
    {"Nds2018", &NdsEdition::Nds2018},
    {"Nds2015", &NdsEdition::Nds2015},
    {"Nds2012", &NdsEdition::Nds2012},
    {"Nds2005", &NdsEdition::Nds2005},
    {"Nds2001", &NdsEdition::Nds2001},
    {"Nds1997", &NdsEdition::Nds1997},
}};

constexpr std::array<std::pair<std::string_view, bool CustomEntry::*>, 9> CustomFlags{{
    {"WidGLBHDR", &CustomEntry::WidGLBHDR},
    {"WidGLB", &CustomEntry::WidGLB},
    {"SPG", &CustomEntry::SPG},
    {"Wid2x", &CustomEntry::Wid2x},
    {"Wid4x", &CustomEntry::Wid4x},
    {"MSRCheckbox", &CustomEntry::MSRCheckbox},
    {"MELCheckbox", &CustomEntry::MELCheckbox},
    {"Wid6x", &CustomEntry::Wid6x},
    {"Roundoption", &CustomEntry::Roundoption},
}};

/// Writes the entries of a beam into a record; the operators are picked by the kind of the field.
class EntryWriter {
public:
    EntryWriter(const BeamProblem& beamProblem, PackedRecord& packed) : problem(beamProblem), record(packed)
    {
    }

    /// The first box with a number that the record cannot hold.
    const std::string& UnfitBox() const { return unfitBox; }

    void Write(const RecordField& recordField)
    {
        const CriteriaField* const entry = FindCriteriaField(recordField.Name);
        if (entry != nullptr) {
            field = &recordField;
            std::visit(*this, entry->Target);
        }
    }

    void operator()(std::string BeamProblem::*text) { WriteText(problem.*text, 0); }
    void operator()(std::string LoadSet::*text) { WriteText(problem.Loads.*text, 0); }
    void operator()(PointTexts LoadSet::*texts) { WriteTexts(problem.Loads.*texts); }
    void operator()(PartialTexts LoadSet::*texts) { WriteTexts(problem.Loads.*texts); }
    void operator()(bool BeamProblem::*flag) { record.SetFlag(field->Name, problem.*flag); }
    void operator()(bool LoadSet::*flag) { record.SetFlag(field->Name, problem.Loads.*flag); }
    void operator()(std::array<bool, PlanQuarterCount> LoadSet::* /*flags*/) {}
    void operator()(SupportCondition support) { record.SetFlag(field->Name, problem.Support == support); }
    void operator()(RepetitiveSpacing spacing) { record.SetFlag(field->Name, problem.Spacing == spacing); }
    void operator()(SteelFamily family) { record.SetFlag(field->Name, problem.Family == family); }

    void operator()(SpanFlag flag)
    {
        record.SetFlag(field->Name, problem.ThreeSpan == (flag == SpanFlag::ThreeSpan));
    }

    void operator()(MaterialGroup /*group*/)
    {
        record.SetInteger(field->Name, static_cast<std::int16_t>(problem.Combo1));
    }

private:
    void WriteTexts(std::span<const std::string> texts)
    {
        for (std::size_t k = 0; k < texts.size(); ++k) {
            WriteText(texts[k], k);
        }
    }

    void WriteText(const std::string& text, std::size_t index)
    {
        switch (field->Type) {
            case FieldType::Text:
                record.SetText(field->Name, text, index);
                break;
            case FieldType::Float:
                WriteFloat(text, index);
                break;
            case FieldType::Integer:
                WriteInteger(text);
                break;
            case FieldType::Flag:
            case FieldType::Part:
            case FieldType::Reserved:
                break;
        }
    }

    void WriteFloat(const std::string& text, std::size_t index)
    {
        const std::optional<float> held = HeldFloat(text);
        if (!held) {
            NoteUnfit(index);
            return;
        }
        const bool isZeroStart = field->Name == StartBox && !text.empty() && *held == 0;
        record.SetFloat(field->Name, isZeroStart ? HeldZeroStart : *held, index);
    }

    void WriteInteger(const std::string& text)
    {
        const std::optional<std::int16_t> held = HeldInteger(text);
        if (!held) {
            NoteUnfit(0);
            return;
        }
        record.SetInteger(field->Name, *held);
    }

    void NoteUnfit(std::size_t index)
    {
        if (unfitBox.empty()) {
            unfitBox = field->Count > 1 ? BoxName(field->Name, index) : std::string(field->Name);
        }
    }

    const BeamProblem& problem;
    PackedRecord& record;
    const RecordField* field = nullptr;
    std::string unfitBox;
};

/// Reads the entries of a beam from a record.
class EntryReader {
public:
    EntryReader(const PackedRecord& packed, BeamProblem& beamProblem) : record(packed), problem(beamProblem)
    {
    }

    /// The first field with a value that no entry can show.
    const std::string& AbsurdField() const { return absurdField; }

    void Read(const RecordField& recordField)
    {
        const CriteriaField* const entry = FindCriteriaField(recordField.Name);
        if (entry != nullptr) {
            field = &recordField;
            std::visit(*this, entry->Target);
        }
    }

    void operator()(std::string BeamProblem::*text) { problem.*text = EntryText(0); }
    void operator()(std::string LoadSet::*text) { problem.Loads.*text = EntryText(0); }
    void operator()(PointTexts LoadSet::*texts) { ReadTexts(problem.Loads.*texts); }
    void operator()(PartialTexts LoadSet::*texts) { ReadTexts(problem.Loads.*texts); }
    void operator()(bool BeamProblem::*flag) { problem.*flag = record.Flag(field->Name); }
    void operator()(bool LoadSet::*flag) { problem.Loads.*flag = record.Flag(field->Name); }
    void operator()(std::array<bool, PlanQuarterCount> LoadSet::* /*flags*/) {}
    void operator()(SupportCondition support) { Choose(problem.Support, support); }
    void operator()(RepetitiveSpacing spacing) { Choose(problem.Spacing, spacing); }
    void operator()(SteelFamily family) { Choose(problem.Family, family); }

    void operator()(SpanFlag flag)
    {
        problem.ThreeSpan = record.Flag(field->Name) != (flag == SpanFlag::TwoSpan);
    }

    void operator()(MaterialGroup /*group*/)
    {
        const int group = record.Integer(field->Name);
        if (group < 0 || group >= static_cast<int>(SpeciesGroups.size())) {
            NoteAbsurd();
            return;
        }
        problem.Combo1 = static_cast<SpeciesGroup>(group);
    }

private:
    template <typename Choice>
    void Choose(Choice& chosen, Choice choice)
    {
        if (record.Flag(field->Name)) {
            chosen = choice;
        }
    }

    void ReadTexts(std::span<std::string> texts)
    {
        for (std::size_t k = 0; k < texts.size(); ++k) {
            texts[k] = EntryText(k);
        }
    }

    std::string EntryText(std::size_t index)
    {
        if (field->Type == FieldType::Text) {
            return record.Text(field->Name, index);
        }
        if (field->Type == FieldType::Integer) {
            return BoxText(record.Integer(field->Name));
        }
        const float value = record.Float(field->Name, index);
        if (!std::isfinite(value)) {
            NoteAbsurd();
            return {};
        }
        if (field->Name == StartBox && value == HeldZeroStart) {
            return "0";
        }
        if (field->Name == "Dur" && value == 1) {
            return "1.00";
        }
        return BoxText(value);
    }

    void NoteAbsurd()
    {
        if (absurdField.empty()) {
            absurdField = field->Name;
        }
    }

    const PackedRecord& record;
    BeamProblem& problem;
    const RecordField* field = nullptr;
    std::string absurdField;
};

struct LaterField {
    std::string_view Name;
    CriteriaGeneration Since;
};

/// Entries that files of the first generation do not hold.
constexpr std::array LaterFields{
    LaterField{"Incised", CriteriaGeneration::WithStatus},
    LaterField{"CantUBLtext", CriteriaGeneration::WithStatus},
    LaterField{"ksi50", CriteriaGeneration::WithStatus},
    LaterField{"NoWeight", CriteriaGeneration::WithChoice},
};

CriteriaGeneration GenerationOf(const PackedRecord& record)
{
    const std::int16_t* const tag = FindCriteriaTag(record.Integer("RecordTag"));
    return static_cast<CriteriaGeneration>(tag == nullptr ? 0 : tag - CriteriaTags.data());
}

bool IsHeld(std::string_view name, CriteriaGeneration generation)
{
    const auto* const later = std::find_if(LaterFields.begin(), LaterFields.end(),
                                           [name](const LaterField& field) { return field.Name == name; });
    return later == LaterFields.end() || generation >= later->Since;
}

/// Entries that hang on others, whatever the file says.
void SettleEntries(const PackedRecord& record, BeamProblem& problem)
{
    if (record.Flag("Multibutton")) {
        problem.Support = SupportCondition::MultipleSpans;
        problem.CantUBLtext = FullyBraced;
    } else if (problem.Support != SupportCondition::Overhanging) {
        problem.CantUBLtext.clear();
    }
    const std::optional<std::string_view> fixed = FixedUnbracedLength(problem);
    if (fixed && problem.Combo1 != SpeciesGroup::Scl) {
        problem.UBLtext = *fixed;
    }
    if (!problem.Rep) {
        problem.Spacing = RepetitiveSpacing::None;
    } else if (problem.Spacing == RepetitiveSpacing::None) {
        problem.Spacing = RepetitiveSpacing::Ctr0;
    }
}

void RestoreStatus(const PackedRecord& record, Session& session)
{
    session.Selection.reset();
    const std::string choice = record.Text("MemberChoice");
    if (!choice.empty()) {
        session.Selection = SelectionRecord{.MemberChoice = choice,
                                            .MemberStatus = record.Text("MemberStatus"),
                                            .RecordDate = record.Text("RecordDate")};
    }
    session.Nds.Nds1997 = record.Flag("Nds1997");
}

void RestoreEditionAndNotes(const PackedRecord& record, Session& session)
{
    for (const auto& [name, flag] : EditionFields) {
        session.Nds.*flag = record.Flag(name);
    }
    for (std::size_t k = 0; k < ReportNoteCount; ++k) {
        session.NoteClipboard[k] = record.Text("ReportNotes", k);
    }
}

void WriteMember(const Session& session, CalendarDay today, PackedRecord& record)
{
    const SelectionRecord selection = session.Selection.value_or(SelectionRecord{});
    record.SetText("MemberChoice", selection.MemberChoice);
    record.SetText("MemberStatus", selection.MemberStatus);
    record.SetText("RecordDate", selection.RecordDate.empty() ? ShortDate(today) : selection.RecordDate);
    record.SetText("ChoiceBreadth", session.Entry.BreadthText);
    record.SetText("ChoiceDepth", session.Entry.DepthText);
    record.SetText("ChoiceSpecies", session.Entry.SpeciesText);
    record.SetText("SteelChoice", session.Entry.ShapeName);
}

/// The boxes of the custom screen, each at the place of its own name.
void WriteCustom(const MemberEntry& entry, SpeciesGroup group, PackedRecord& record)
{
    const CustomEntry& custom = entry.Custom;
    if (group == SpeciesGroup::Scl || group == SpeciesGroup::Custom) {
        record.SetText("Custom.Text5", entry.SpeciesText);
        record.SetText("Custom.Text6", entry.BreadthText);
        record.SetText("Custom.Text7", entry.DepthText);
    }
    if (group == SpeciesGroup::Scl) {
        record.SetText("Custom.Combo1", SclProducts()[entry.Product].Name);
    }
    record.SetText("Custom.Text1", custom.Fb);
    record.SetText("Custom.Text2", custom.Fv);
    record.SetText("Custom.Text4", custom.E);
    record.SetText("Custom.Text3", custom.FcPerp);
    record.SetText("Diam", custom.Diam);
    record.SetFlag("Rectoption", !custom.Roundoption);
    for (const auto& [name, flag] : CustomFlags) {
        record.SetFlag(name, custom.*flag);
    }
}

void WriteHeaderAndNotes(const Session& session, PackedRecord& record)
{
    record.SetText("Heading1", session.Header.Heading1);
    record.SetText("Heading2", session.Header.Heading2);
    record.SetText("Initialbox", session.Header.Initialbox);
    for (std::size_t k = 0; k < ReportNoteCount; ++k) {
        record.SetText("ReportNotes", session.NoteClipboard[k], k);
    }
    for (const auto& [name, flag] : EditionFields) {
        record.SetFlag(name, session.Nds.*flag);
    }
}

}  // namespace

CriteriaRecordMade MakeCriteriaRecord(const Session& session, CalendarDay today)
{
    const BeamProblem problem = TypedEntries(session);
    CriteriaRecordMade made{.Record = PackedRecord(CriteriaLayout), .UnfitBox = {}};
    made.Record.SetInteger("RecordTag", CriteriaTagWritten);
    EntryWriter writer(problem, made.Record);
    for (const RecordField& field : CriteriaLayout.Fields) {
        writer.Write(field);
    }
    made.UnfitBox = writer.UnfitBox();
    WriteMember(session, today, made.Record);
    WriteCustom(session.Entry, problem.Combo1, made.Record);
    WriteHeaderAndNotes(session, made.Record);
    return made;
}

Outcome CheckCriteriaTag(const PackedRecord& record, UserPort& user)
{
    if (FindCriteriaTag(record.Integer("RecordTag")) != nullptr) {
        return Outcome::Done;
    }
    Message message = Refusal(NotCriteria);
    message.Icon = MessageIcon::Warning;
    return Refuse(user, message);
}

Outcome RestoreCriteria(const PackedRecord& record, Session& session, UserPort& user)
{
    const CriteriaGeneration generation = GenerationOf(record);
    BeamProblem problem;
    problem.Incised = session.Problem.Incised;
    problem.ksi50 = session.Problem.ksi50;
    EntryReader reader(record, problem);
    for (const RecordField& field : CriteriaLayout.Fields) {
        if (IsHeld(field.Name, generation)) {
            reader.Read(field);
        }
    }
    if (!reader.AbsurdField().empty()) {
        return Refuse(user, Refusal("This Beam Criteria file holds a value that is no number (" +
                                    reader.AbsurdField() + "), so it was not loaded."));
    }
    SettleEntries(record, problem);
    session.Problem = std::move(problem);
    session.Restore = {};
    session.Record = {};
    session.Unbalanced = {};
    session.Selection.reset();
    session.Header.Heading1 = record.Text("Heading1");
    session.Header.Heading2 = record.Text("Heading2");
    session.Header.Initialbox = record.Text("Initialbox");
    if (generation >= CriteriaGeneration::WithStatus) {
        RestoreStatus(record, session);
    }
    if (generation >= CriteriaGeneration::WithEdition) {
        RestoreEditionAndNotes(record, session);
    }
    if (generation >= CriteriaGeneration::WithChoice) {
        session.Entry.BreadthText = record.Text("ChoiceBreadth");
        session.Entry.DepthText = record.Text("ChoiceDepth");
        session.Entry.SpeciesText = record.Text("ChoiceSpecies");
        session.Entry.ShapeName = record.Text("SteelChoice");
    }
    RestoreIncreasingLoads(session);
    session.KeptProblem = session.Problem;
    return Outcome::Done;
}

void TellCriteriaEdition(const PackedRecord& record, UserPort& user)
{
    if (GenerationOf(record) < CriteriaGeneration::WithEdition) {
        return;
    }
    const auto* const inForce =
        std::find_if(EditionFields.begin(), EditionFields.end(),
                     [&record](const auto& edition) { return record.Flag(edition.first); });
    Message message =
        Alert("This criteria was saved under NDS 2001 or earlier standards. NDS Edition unknown.");
    if (inForce != EditionFields.end()) {
        constexpr std::size_t lettersBeforeYear = 3;
        message.Text = "This criteria was saved under NDS ";
        message.Text += inForce->first.substr(lettersBeforeYear);
        message.Text += " standards.";
    }
    message.Icon = MessageIcon::Information;
    user.Tell(message);
}

}  // namespace kordavan
