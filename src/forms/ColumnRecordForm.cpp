#include "forms/ColumnRecordForm.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>

#include "records/ColumnDesk.h"
#include "records/ColumnRecordPage.h"

namespace kordavan {

namespace {

constexpr std::string_view LoadedFromDisk = "Loaded from disk: text only";

}  // namespace

ColumnRecordForm::ColumnRecordForm(Walk& theWalk, const ColumnRecordScreen& recordScreen)
    : RecordForm(theWalk, recordScreen.Form), screen(recordScreen), loadedLine(MakeNamedLabel("LoadedLine"))
{
    setWindowTitle(Text(screen.Title));
    Foot().insertWidget(0, loadedLine);
    BuildMenus();
}

void ColumnRecordForm::BuildMenus()
{
    QMenu& file = AddMenu("&File");
    AddCommand(file, {screen.LoadCommand, "Shows a saved column record"}, "&Load...",
               [this] { LoadRecord(); });
    AddCommand(
        file, {screen.SaveCommand, "Saves this record as text"}, "&Save...", [this] { SaveRecord(); },
        QKeySequence::Save);
    AddPageCommands(file);
    QMenu& goTo = AddMenu("&Go to");
    AddCommand(goTo, {"MnuCriteria", "The entries of the column"}, "Column &Criteria",
               [this] { GoToCriteria(); });
    AddBackCommand(goTo, "Back to the selection (Esc)", "Column &Selection");
    AddToolsMenu();
    AddHelpMenu(screen.Page);
    AddBackToBar();
}

ColumnRecordOnShow& ColumnRecordForm::Record()
{
    return ColumnRecordOf(Columns(), screen.Kind);
}

void ColumnRecordForm::FillRecord()
{
    TakeNotes();
    loadedLine->setText(Record().FromDisk ? Text(LoadedFromDisk) : QString());
}

void ColumnRecordForm::TakeNotes()
{
    BringColumnNotes(Columns(), TheSession(), screen.Kind);
}

RecordHeading& ColumnRecordForm::Heading()
{
    return Columns().Heading;
}

void ColumnRecordForm::PrepareHeading()
{
    PrepareColumnHeading(Columns(), screen.Kind, TheWalk().Desktop().Today());
}

void ColumnRecordForm::TakeHeading()
{
    TakeColumnHeading(Columns(), screen.Kind, TheWalk().Desktop().Today());
}

RecordPage ColumnRecordForm::Page()
{
    return LayOut(Record().Sheet, true);
}

RecordPage ColumnRecordForm::HeadedPage(bool hasNotes)
{
    return LayOut(HeadedColumnSheet(Columns(), screen.Kind, TheWalk().Desktop().Today()), hasNotes);
}

RecordPage ColumnRecordForm::LayOut(const ColumnSheet& sheet, bool hasNotes)
{
    const PageOptions options{.HighDpi = TheSession().HighDPI, .HasNotes = hasNotes, .HasDiagram = false};
    return screen.Kind == ColumnRecordKind::Wood ? LayOutWoodColumnRecord(sheet, options)
                                                 : LayOutSteelColumnRecord(sheet, options);
}

PagePicture ColumnRecordForm::Picture()
{
    return {};
}

std::string_view ColumnRecordForm::IdCaption() const
{
    return ColumnIdCaption;
}

Screen ColumnRecordForm::ShownOn() const
{
    return screen.ShownOn;
}

std::optional<ColumnRecordForm::Place> ColumnRecordForm::AskWhereToSave()
{
    const bool withNotes = AskToSaveColumnNotes(User());
    const std::optional<std::string> path = TheWalk().Desktop().AskSaveFile(SaveColumnDialog(screen.Kind));
    return path ? std::optional(Place{withNotes, *path}) : std::nullopt;
}

Outcome ColumnRecordForm::SaveAt(const Place& place)
{
    return SaveColumnRecord(Record().Sheet, screen.Kind, place.WithNotes, place.Path, User());
}

Outcome ColumnRecordForm::SaveHeaded()
{
    const std::optional<Place> place = AskWhereToSave();
    if (!place) {
        return Outcome::Refused;
    }
    TakeHeading();
    return SaveAt(*place);
}

void ColumnRecordForm::SaveRecord()
{
    const std::optional<Place> place = AskWhereToSave();
    if (place && SaveAt(*place) == Outcome::Done) {
        MarkKept();
    }
}

void ColumnRecordForm::MarkKept()
{
    MarkColumnRecordKept(Columns(), screen.Kind);
}

void ColumnRecordForm::LoadRecord()
{
    const std::optional<std::string> path = TheWalk().Desktop().AskOpenFile(OpenColumnDialog(screen.Kind));
    ColumnSheet loaded;
    if (path && OpenColumnRecord(*path, screen.Kind, loaded, User()) == Outcome::Done) {
        TakeLoadedColumnRecord(Columns(), TheSession(), screen.Kind, loaded);
        TheWalk().RefreshBeside(Screen::Notes);
        Activate();
    }
}

void ColumnRecordForm::GoBack()
{
    const bool hasOwn = LeaveLoadedColumnRecord(Columns(), screen.Kind);
    TheWalk().Go(hasOwn ? screen.Selection : Screen::Columns);
}

void ColumnRecordForm::GoToCriteria()
{
    LeaveLoadedColumnRecord(Columns(), screen.Kind);
    TheWalk().Go(Screen::Columns);
}

}  // namespace kordavan
