#include "records/ColumnRecordFile.h"

#include <string_view>

#include "records/ColumnRecordLayout.h"
#include "records/PrintableText.h"
#include "records/RecordFile.h"

namespace kordavan {

namespace {

constexpr std::string_view NotWoodColumn =
    "The file you have selected does not contain a Kordavan Column Record.  Please check to see if you "
    "selected the appropriate file.";
constexpr std::string_view NotSteelColumn =
    "The file you have selected does not contain a Kordavan Steel Column Record.  Please check to see if you "
    "selected the appropriate file.";
constexpr std::string_view WoodLoaded =
    "The column data you have loaded is text and the values are not active.  You may print the report as is, "
    "but to edit values you need to re-enter the column criteria in form 1.";
constexpr std::string_view SteelLoaded =
    "The steel column data you have loaded is text and the values are not active.  You may print the report "
    "as is, but to edit values you need to re-enter the column criteria in form 1.";
constexpr std::string_view ColumnNotesQuestion =
    "Would you like to save your notes as part of this column record?";
constexpr std::string_view ColumnSavedAs = "The Column Record has been saved as\n    ";

/// What the two kinds have each of their own.
struct ColumnRecordFacts {
    const RecordLayout* Layout;
    std::int16_t Tag;
    std::string_view WrongTag;
    std::string_view Loaded;
    const FileDialogText* OpenDialog;
    const FileDialogText* SaveDialog;
};

constexpr ColumnRecordFacts WoodFacts{.Layout = &WoodColumnRecordLayout,
                                      .Tag = WoodColumnTag,
                                      .WrongTag = NotWoodColumn,
                                      .Loaded = WoodLoaded,
                                      .OpenDialog = &OpenWoodColumnDialog,
                                      .SaveDialog = &SaveWoodColumnDialog};
constexpr ColumnRecordFacts SteelFacts{.Layout = &SteelColumnRecordLayout,
                                       .Tag = SteelColumnTag,
                                       .WrongTag = NotSteelColumn,
                                       .Loaded = SteelLoaded,
                                       .OpenDialog = &OpenSteelColumnDialog,
                                       .SaveDialog = &SaveSteelColumnDialog};

const ColumnRecordFacts& FactsOf(ColumnRecordKind kind)
{
    return kind == ColumnRecordKind::Steel ? SteelFacts : WoodFacts;
}

/// Calls visit with the name of each text cell of the record and its text on the sheet.
template <typename Sheet, typename Visit>
void ForEachCell(const RecordLayout& layout, Sheet& sheet, Visit visit)
{
    for (std::size_t label = 1; label < ColumnSheet::LabelCount; ++label) {
        if (FindRecordField(layout, LabelName(label)) != nullptr) {
            visit(LabelName(label), sheet[label]);
        }
    }
    if (&layout == &WoodColumnRecordLayout) {
        visit("SheathNote", sheet.SheathNote);
        visit("Sheathnote2", sheet.Sheathnote2);
    }
}

}  // namespace

PackedRecord MakeColumnRecord(const ColumnSheet& sheet, ColumnRecordKind kind, bool withNotes)
{
    const ColumnRecordFacts& facts = FactsOf(kind);
    PackedRecord record(*facts.Layout);
    record.SetInteger("RecordTag", facts.Tag);
    ForEachCell(*facts.Layout, sheet,
                [&record](std::string_view name, const std::string& text) { record.SetText(name, text); });
    for (std::size_t k = 0; withNotes && k < ReportNoteCount; ++k) {
        record.SetText("ReportNotes", sheet.ReportNotes[k], k);
    }
    return record;
}

Outcome CheckColumnRecordTag(const PackedRecord& record, ColumnRecordKind kind, UserPort& user)
{
    const ColumnRecordFacts& facts = FactsOf(kind);
    return record.Integer("RecordTag") == facts.Tag ? Outcome::Done : RefuseColumnFile(facts.WrongTag, user);
}

Outcome RefuseColumnFile(std::string_view what, UserPort& user)
{
    constexpr std::string_view extensions =
        "\n\nColumn Records have a default extension of *.COL\n\n"
        "Custom Value files have an extension of *.VAL\n"
        "Beam Data Records have an extension of *.DAT\n"
        "Criteria files have an extension of *.CRI";
    return Refuse(user, Marked(Refusal(std::string(what) + std::string(extensions)), MessageIcon::Warning));
}

ColumnSheet ReadColumnSheet(const PackedRecord& record, ColumnRecordKind kind)
{
    ColumnSheet sheet;
    ForEachCell(*FactsOf(kind).Layout, sheet,
                [&record](std::string_view name, std::string& text) { text = PrintableText(record, name); });
    for (std::size_t k = 0; k < ReportNoteCount; ++k) {
        sheet.ReportNotes[k] = PrintableText(record, "ReportNotes", k);
    }
    return sheet;
}

void TellColumnRecordLoaded(ColumnRecordKind kind, UserPort& user)
{
    user.Tell(Alert(FactsOf(kind).Loaded));
}

bool AskToSaveColumnNotes(UserPort& user)
{
    return user.Ask(Question(ColumnNotesQuestion));
}

Outcome SaveColumnRecord(const ColumnSheet& sheet, ColumnRecordKind kind, bool withNotes,
                         const std::string& path, UserPort& user)
{
    if (const std::string fault = ReplaceRecord(path, MakeColumnRecord(sheet, kind, withNotes).Bytes());
        !fault.empty()) {
        return RefuseSaving(path, fault, user);
    }
    user.Tell(Alert(std::string(ColumnSavedAs) + path));
    return Outcome::Done;
}

Outcome OpenColumnRecord(const std::string& path, ColumnRecordKind kind, ColumnSheet& sheet, UserPort& user)
{
    const FileRead file = ReadRecordFile(path);
    if (!file.Bytes) {
        return RefuseReading(path, file.Fault, user);
    }
    const PackedRecord record(*FactsOf(kind).Layout, *file.Bytes);
    if (CheckColumnRecordTag(record, kind, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    sheet = ReadColumnSheet(record, kind);
    TellColumnRecordLoaded(kind, user);
    return Outcome::Done;
}

const FileDialogText& SaveColumnDialog(ColumnRecordKind kind)
{
    return *FactsOf(kind).SaveDialog;
}

const FileDialogText& OpenColumnDialog(ColumnRecordKind kind)
{
    return *FactsOf(kind).OpenDialog;
}

}  // namespace kordavan
