#include "records/ColumnDesk.h"

#include <string_view>
#include <utility>

#include "records/ColumnSheetFill.h"
#include "records/SheetHeading.h"

namespace kordavan {

namespace {

constexpr std::string_view NothingTested = "Please test a column size first, then select it for the record.";
constexpr std::string_view StudNotSaved = "The entries of the stud have not been saved.";
constexpr std::string_view WoodRecordNotKept =
    "The record of the wood column has been neither saved nor printed.";
constexpr std::string_view SteelRecordNotKept =
    "The record of the steel column has been neither saved nor printed.";

/// Of a session that may be changed or not.
template <typename Columns>
auto& RecordOf(Columns& columns, ColumnRecordKind kind)
{
    return kind == ColumnRecordKind::Steel ? columns.SteelRecord : columns.WoodRecord;
}

RecordHeading HeadingOfColumn(const ColumnSession& columns, const Session& beam, CalendarDay today)
{
    if (columns.HeaderChanged && columns.HeaderChanged->Column == columns.Identity) {
        return columns.HeaderChanged->Heading;
    }
    return {.Project = columns.Identity.ColumnProj,
            .Description = columns.Identity.ColumnDescription,
            .BeamId = columns.Identity.columnID,
            .Heading1 = beam.Header.Heading1,
            .Heading2 = beam.Header.Heading2,
            .Date = ShortDate(today),
            .Initials = beam.Header.Initialbox};
}

Outcome RefuseUntested(ColumnRecordKind kind, UserPort& user)
{
    const std::string_view box = kind == ColumnRecordKind::Steel ? "StlColSizeText" : "ColD1Text";
    return Refuse(user, Refusal(NothingTested, box));
}

}  // namespace

ColumnRecordOnShow& ColumnRecordOf(ColumnSession& columns, ColumnRecordKind kind)
{
    return RecordOf(columns, kind);
}

Outcome SelectColumnForRecord(ColumnSession& columns, const Session& beam, ColumnRecordKind kind,
                              CalendarDay today, UserPort& user)
{
    const bool isSteel = kind == ColumnRecordKind::Steel;
    if (isSteel ? !columns.SteelTest : !columns.WoodTest) {
        return RefuseUntested(kind, user);
    }
    const RecordHeading heading = HeadingOfColumn(columns, beam, today);
    ColumnSheet sheet = isSteel ? FillSteelColumnSheet(*columns.SteelTest, heading, beam.NoteClipboard)
                                : FillWoodColumnSheet(*columns.WoodTest, heading, beam.NoteClipboard);
    ColumnRecordOf(columns, kind) = {
        .Sheet = std::move(sheet), .OwnSheet = {}, .HasOwn = true, .FromDisk = false, .IsUnsaved = true};
    return Outcome::Done;
}

void TakeLoadedColumnRecord(ColumnSession& columns, Session& beam, ColumnRecordKind kind,
                            const ColumnSheet& sheet)
{
    ColumnRecordOnShow& record = ColumnRecordOf(columns, kind);
    if (!record.FromDisk) {
        record.OwnSheet = std::move(record.Sheet);
    }
    record.Sheet = sheet;
    record.FromDisk = true;
    if (sheet.ReportNotes != ReportNoteLines{}) {
        beam.NoteClipboard = sheet.ReportNotes;
    }
}

bool LeaveLoadedColumnRecord(ColumnSession& columns, ColumnRecordKind kind)
{
    ColumnRecordOnShow& record = ColumnRecordOf(columns, kind);
    if (record.FromDisk) {
        record.Sheet = std::move(record.OwnSheet);
        record.OwnSheet = {};
        record.FromDisk = false;
    }
    return record.HasOwn;
}

void BringColumnNotes(ColumnSession& columns, const Session& beam, ColumnRecordKind kind)
{
    ColumnRecordOf(columns, kind).Sheet.ReportNotes = beam.NoteClipboard;
}

void MarkColumnRecordKept(ColumnSession& columns, ColumnRecordKind kind)
{
    ColumnRecordOnShow& record = ColumnRecordOf(columns, kind);
    record.IsUnsaved = record.IsUnsaved && record.FromDisk;
}

void PrepareColumnHeading(ColumnSession& columns, ColumnRecordKind kind, CalendarDay today)
{
    columns.Heading = HeadingOnColumnSheet(ColumnRecordOf(columns, kind).Sheet);
    DateHeading(columns.Heading, today);
}

void PrepareStudHeading(ColumnSession& columns, const Session& beam, CalendarDay today)
{
    columns.Heading = HeadingOfColumn(columns, beam, today);
}

ColumnSheet HeadedColumnSheet(const ColumnSession& columns, ColumnRecordKind kind, CalendarDay today)
{
    RecordHeading heading = columns.Heading;
    DateHeading(heading, today);
    ColumnSheet sheet = RecordOf(columns, kind).Sheet;
    HeadColumnSheet(heading, sheet);
    return sheet;
}

void TakeColumnHeading(ColumnSession& columns, ColumnRecordKind kind, CalendarDay today)
{
    ColumnRecordOnShow& record = ColumnRecordOf(columns, kind);
    record.Sheet = HeadedColumnSheet(columns, kind, today);
    DateHeading(columns.Heading, today);
    if (!record.FromDisk) {
        columns.HeaderChanged = EnteredHeading{.Column = columns.Identity, .Heading = columns.Heading};
    }
}

void TakeStudHeading(ColumnSession& columns, CalendarDay today)
{
    DateHeading(columns.Heading, today);
    columns.HeaderChanged = EnteredHeading{.Column = columns.Identity, .Heading = columns.Heading};
}

std::string UnsavedColumnWork(const ColumnSession& columns)
{
    std::string work;
    const auto name = [&work](bool isUnsaved, std::string_view text) {
        if (isUnsaved) {
            work += work.empty() ? "" : "\n";
            work += text;
        }
    };
    name(columns.Stud != columns.KeptStud, StudNotSaved);
    name(columns.WoodRecord.IsUnsaved, WoodRecordNotKept);
    name(columns.SteelRecord.IsUnsaved, SteelRecordNotKept);
    return work;
}

}  // namespace kordavan
