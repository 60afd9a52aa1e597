#include "records/StudRecordFile.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <utility>

#include "records/ColumnRecordFile.h"
#include "records/PrintableText.h"
#include "records/RecordFile.h"
#include "records/StudRecordLayout.h"

namespace kordavan {

namespace {

constexpr std::string_view NotStudColumn =
    "The file you have selected does not contain a Kordavan Stud Column Record.  Please check to see if you "
    "selected the appropriate file.";
constexpr std::string_view Loaded =
    "The stud column data you have loaded may printed by selecting the Report Button.";
constexpr std::string_view StudNotesQuestion =
    "Would you like to save your notes as part of this stud column record?";
constexpr std::string_view StudSavedAs = "The Stud Column Record has been saved as\n    ";

constexpr std::string_view Checked = "1";
constexpr std::string_view Unchecked = "0";

/// Calls visit with the name of each text box and its text.
template <typename Record, typename Visit>
void ForEachText(Record& record, Visit visit)
{
    auto& identity = record.Identity;
    visit("ColumnProj", identity.ColumnProj);
    visit("ColumnDescription", identity.ColumnDescription);
    visit("columnID", identity.columnID);
    auto& entry = record.Entry;
    visit("AxialPLFtextbox", entry.AxialPLFtextbox);
    visit("WindA", entry.Wind[0]);
    visit("WindB", entry.Wind[1]);
    visit("WindC", entry.Wind[2]);
    visit("BegA", entry.Beg[0]);
    visit("BegB", entry.Beg[1]);
    visit("BegC", entry.Beg[2]);
    visit("EndA", entry.End[0]);
    visit("EndB", entry.End[1]);
    visit("EndC", entry.End[2]);
    visit("WindStudHt", entry.WindStudHt);
    visit("WindStudSpacing", entry.WindStudSpacing);
    visit("WindStudCombo", entry.WindStudCombo);
    visit("WindStudFb", entry.WindStudFb);
    visit("WindStudFc", entry.WindStudFc);
    visit("WindStudE", entry.WindStudE);
    visit("AxialPointTextbox", entry.AxialPointTextbox);
    visit("AxialDurTextbox", entry.AxialDurTextbox);
    visit("DurWindTextbox", entry.DurWindTextbox);
}

constexpr std::array<std::pair<std::string_view, bool StudEntry::*>, 2> Checks{{
    {"RepWindStud", &StudEntry::RepWindStud},
    {"RepIBCCheck", &StudEntry::RepIBCCheck},
}};

template <std::size_t Count>
int PositionIn(const std::array<StudSize, Count>& list, int position)
{
    return std::cmp_less(position, list.size()) && position >= 0 ? position : 0;
}

}  // namespace

PackedRecord MakeStudRecord(const StudRecord& record)
{
    PackedRecord packed(StudRecordLayout);
    packed.SetInteger("RecordTag", StudRecordTag);
    ForEachText(record,
                [&packed](std::string_view name, const std::string& text) { packed.SetText(name, text); });
    const StudEntry& entry = record.Entry;
    packed.SetInteger("BreadthCombo",
                      static_cast<std::int16_t>(PositionIn(StudBreadths, entry.BreadthCombo)));
    packed.SetInteger("DepthCombo", static_cast<std::int16_t>(PositionIn(StudDepths, entry.DepthCombo)));
    for (const auto& [name, check] : Checks) {
        packed.SetText(name, entry.*check ? Checked : Unchecked);
    }
    for (std::size_t k = 0; k < ReportNoteCount; ++k) {
        packed.SetText("ReportNotes", record.ReportNotes[k], k);
    }
    return packed;
}

Outcome CheckStudRecordTag(const PackedRecord& record, UserPort& user)
{
    return record.Integer("RecordTag") == StudRecordTag ? Outcome::Done
                                                        : RefuseColumnFile(NotStudColumn, user);
}

StudRecord ReadStudRecord(const PackedRecord& record)
{
    StudRecord read;
    ForEachText(read,
                [&record](std::string_view name, std::string& text) { text = PrintableText(record, name); });
    read.Entry.BreadthCombo = PositionIn(StudBreadths, record.Integer("BreadthCombo"));
    read.Entry.DepthCombo = PositionIn(StudDepths, record.Integer("DepthCombo"));
    for (const auto& [name, check] : Checks) {
        read.Entry.*check = record.Text(name) == Checked;
    }
    for (std::size_t k = 0; k < ReportNoteCount; ++k) {
        read.ReportNotes[k] = PrintableText(record, "ReportNotes", k);
    }
    return read;
}

void TellStudRecordLoaded(UserPort& user)
{
    user.Tell(Alert(Loaded));
}

bool AskToSaveStudNotes(UserPort& user)
{
    return user.Ask(Question(StudNotesQuestion));
}

Outcome SaveStudRecord(ColumnSession& columns, const ReportNoteLines& notes, const std::string& path,
                       UserPort& user)
{
    const PackedRecord record =
        MakeStudRecord({.Identity = columns.Identity, .Entry = columns.Stud, .ReportNotes = notes});
    if (const std::string fault = ReplaceRecord(path, record.Bytes()); !fault.empty()) {
        return RefuseSaving(path, fault, user);
    }
    columns.KeptStud = columns.Stud;
    user.Tell(Alert(std::string(StudSavedAs) + path));
    return Outcome::Done;
}

Outcome OpenStudRecord(const std::string& path, ColumnSession& columns, ReportNoteLines& notes,
                       UserPort& user)
{
    const FileRead file = ReadRecordFile(path);
    if (!file.Bytes) {
        return RefuseReading(path, file.Fault, user);
    }
    const PackedRecord record(StudRecordLayout, *file.Bytes);
    if (CheckStudRecordTag(record, user) != Outcome::Done) {
        return Outcome::Refused;
    }
    StudRecord read = ReadStudRecord(record);
    columns.Identity = std::move(read.Identity);
    columns.Stud = columns.KeptStud = std::move(read.Entry);
    columns.Face = ColumnFace::Studs;
    columns.StudRun.reset();
    if (read.ReportNotes != ReportNoteLines{}) {
        notes = read.ReportNotes;
    }
    TellStudRecordLoaded(user);
    return Outcome::Done;
}

}  // namespace kordavan
