#include "records/RecordDesk.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "records/DataSheetFill.h"
#include "records/SheetHeading.h"

namespace kordavan {

namespace {

constexpr std::string_view NotesQuestion =
    "There are currently notes on the Note Clipboard. Would you like them included on the printed Data "
    "Record?";
constexpr std::string_view LostOnReport =
    "The current information on the Data Record was loaded from a disk file and is only text.  It will be "
    "lost if you go to the Report Form3.\n"
    "You may re-load this Data Record text file later if you choose to return.\n\n"
    "Do you wish to leave it?";
constexpr std::string_view LostOnCriteria =
    "The current information on the Data Record was loaded from a disk file and is only text.  It will be "
    "lost if you go to the Criteria Form1.\n"
    "You may reload the Data Record text file later if you choose to return.\n\n"
    "Do you wish to leave it?";

constexpr std::array HeadCells{
    HeadCell{1, "Project: ", &RecordHeading::Project},
    HeadCell{2, "Beam ID: ", &RecordHeading::BeamId},
    HeadCell{3, "Description: ", &RecordHeading::Description},
    HeadCell{4, "Date: ", &RecordHeading::Date},
    HeadCell{169, "Prepared by: ", &RecordHeading::Initials},
};

void HeadSheet(const RecordHeading& heading, DataSheet& sheet)
{
    WriteHeadCells(HeadCells, heading, sheet.Labels);
    sheet[132] = heading.Heading1;
    sheet.Label133Missing = heading.Heading2;
}

RecordHeading HeadingOfProblem(const Session& session, CalendarDay today)
{
    return {.Project = session.Problem.Proj,
            .Description = session.Problem.Descrip,
            .BeamId = session.Problem.ID,
            .Heading1 = session.Header.Heading1,
            .Heading2 = session.Header.Heading2,
            .Date = ShortDate(today),
            .Initials = session.Header.Initialbox};
}

/// The heading that stands on a sheet of our own.
RecordHeading HeadingOnSheet(const DataSheet& sheet)
{
    RecordHeading heading = ReadHeadCells(HeadCells, sheet.Labels);
    heading.Heading1 = sheet[132];
    heading.Heading2 = sheet.Label133Missing;
    return heading;
}

/// The heading of a sheet as it was loaded: the record holds description and beam identification in the other
/// order than the sheet has them.
RecordHeading HeadingOfLoaded(const DataSheet& sheet)
{
    return {.Project = sheet[1],
            .Description = sheet[2],
            .BeamId = sheet[3],
            .Heading1 = sheet[132],
            .Heading2 = sheet.Label133Missing,
            .Date = WithoutPrefix(sheet[4], "Date: "),
            .Initials = WithoutPrefix(sheet[169], "Prepared by: ")};
}

Outcome LeaveLoadedRecord(Session& session, std::string_view warning, UserPort& user)
{
    if (!session.Record.FromDisk) {
        return Outcome::Done;
    }
    if (!user.Ask(RiskyQuestion(warning))) {
        return Outcome::Refused;
    }
    RecordOnShow& record = session.Record;
    record.Sheet = std::move(record.OwnSheet);
    record.FromDisk = record.HeaderChanged = false;
    return Outcome::Done;
}

}  // namespace

void ShowRecord(Session& session, CalendarDay today, UserPort& user)
{
    RecordOnShow& record = session.Record;
    if (record.CanBeRefilled && !record.FromDisk) {
        record.Sheet = FillDataRecord(session, today, user);
        if (record.HeaderChanged) {
            HeadSheet(record.Heading, record.Sheet);
        }
    }
    BringNotes(session);
}

void BringNotes(Session& session)
{
    session.Record.Sheet.ReportNotes = session.NoteClipboard;
}

void TakeLoadedRecord(Session& session, const DataSheet& sheet)
{
    RecordOnShow& record = session.Record;
    if (!record.FromDisk) {
        record.OwnSheet = std::move(record.Sheet);
    }
    record.Sheet = sheet;
    record.FromDisk = true;
    record.HeaderChanged = false;
    if (sheet.ReportNotes != ReportNoteLines{}) {
        session.NoteClipboard = sheet.ReportNotes;
    }
}

void PrepareHeading(Session& session, CalendarDay today)
{
    RecordOnShow& record = session.Record;
    if (record.HeaderChanged) {
        return;
    }
    if (record.FromDisk) {
        record.Heading = HeadingOfLoaded(record.Sheet);
    } else {
        record.Heading =
            record.CanBeRefilled ? HeadingOfProblem(session, today) : HeadingOnSheet(record.Sheet);
    }
    DateHeading(record.Heading, today);
}

void ClearHeading(Session& session)
{
    session.Record.Heading = {};
}

void TakeHeading(Session& session, CalendarDay today)
{
    RecordOnShow& record = session.Record;
    record.Sheet = HeadedSheet(session, today);
    DateHeading(record.Heading, today);
    record.HeaderChanged = true;
}

DataSheet HeadedSheet(const Session& session, CalendarDay today)
{
    RecordHeading heading = session.Record.Heading;
    DateHeading(heading, today);
    DataSheet sheet = session.Record.Sheet;
    HeadSheet(heading, sheet);
    sheet.ReportNotes = session.NoteClipboard;
    return sheet;
}

bool AskToPrintNotes(const Session& session, UserPort& user)
{
    const ReportNoteLines& notes = session.NoteClipboard;
    const bool hasNotes =
        std::any_of(notes.begin(), notes.end(), [](const std::string& note) { return !note.empty(); });
    return hasNotes && user.Ask(Question(NotesQuestion));
}

std::string PrintFontOf(const Session& session)
{
    return session.PrintFont.empty() ? "Arial" : session.PrintFont;
}

Outcome LeaveForReport(Session& session, UserPort& user)
{
    return LeaveLoadedRecord(session, LostOnReport, user);
}

Outcome LeaveForCriteria(Session& session, UserPort& user)
{
    return LeaveLoadedRecord(session, LostOnCriteria, user);
}

}  // namespace kordavan
