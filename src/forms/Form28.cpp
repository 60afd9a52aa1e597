#include "forms/Form28.h"

#include <QMenu>

#include "records/ColumnDesk.h"
#include "records/ColumnRecordPage.h"
#include "records/SheetHeading.h"
#include "records/StudRecordFile.h"

namespace kordavan {

Form28::Form28(Walk& theWalk) : RecordForm(theWalk, "Form28")
{
    setWindowTitle(QStringLiteral("Stud Record"));
    BuildMenus();
}

void Form28::BuildMenus()
{
    QMenu& file = AddMenu("&File");
    AddCommand(
        file, {"MnuSave", "Saves the entries of the stud"}, "&Save...", [this] { SaveHeaded(); },
        QKeySequence::Save);
    AddPageCommands(file);
    QMenu& goTo = AddMenu("&Go to");
    AddCommand(goTo, {"MnuCriteria", "The entries of the columns"}, "Column &Criteria", [this] { GoBack(); });
    AddBackCommand(goTo, "Back to the entries of the stud (Esc)", "&Stud Entries");
    AddToolsMenu();
    AddHelpMenu(GuidePage::ColumnRecords);
    AddBackToBar();
}

void Form28::FillRecord()
{
    PrepareHeading();
}

void Form28::GoBack()
{
    TheWalk().Go(Screen::Columns);
}

RecordHeading& Form28::Heading()
{
    return Columns().Heading;
}

void Form28::PrepareHeading()
{
    PrepareStudHeading(Columns(), TheSession(), TheWalk().Desktop().Today());
}

void Form28::TakeHeading()
{
    TakeStudHeading(Columns(), TheWalk().Desktop().Today());
}

RecordPage Form28::Page()
{
    return HeadedPage(true);
}

RecordPage Form28::HeadedPage(bool hasNotes)
{
    RecordHeading heading = Heading();
    DateHeading(heading, TheWalk().Desktop().Today());
    return LayOutStudRecord(*Columns().StudRun, heading, TheSession().NoteClipboard,
                            {.HighDpi = TheSession().HighDPI, .HasNotes = hasNotes, .HasDiagram = true});
}

PagePicture Form28::Picture()
{
    return *Columns().StudRun;
}

std::string_view Form28::IdCaption() const
{
    return ColumnIdCaption;
}

Screen Form28::ShownOn() const
{
    return Screen::StudRecord;
}

Outcome Form28::SaveHeaded()
{
    const bool withNotes = AskToSaveStudNotes(User());
    const std::optional<std::string> path = TheWalk().Desktop().AskSaveFile(SaveStudColumnDialog);
    if (!path) {
        return Outcome::Refused;
    }
    return SaveStudRecord(Columns(), withNotes ? TheSession().NoteClipboard : ReportNoteLines{}, *path,
                          User());
}

}  // namespace kordavan
