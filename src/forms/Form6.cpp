#include "forms/Form6.h"

#include <QMenu>

#include "design/NewBeam.h"
#include "records/DataRecordFile.h"
#include "records/DataRecordPage.h"
#include "records/RecordDesk.h"

namespace kordavan {

Form6::Form6(Walk& theWalk) : RecordForm(theWalk, "Form6")
{
    setWindowTitle(QStringLiteral(" Kordavan Data Record"));
    BuildMenus();
}

void Form6::FillRecord()
{
    ShowRecord(TheSession(), TheWalk().Desktop().Today(), User());
    EnableBack(!TheSession().Record.FromDisk);
}

void Form6::TakeNotes()
{
    BringNotes(TheSession());
}

void Form6::GoBack()
{
    if (CanGoBack() && LeaveForReport(TheSession(), User()) == Outcome::Done) {
        TheWalk().Go(Screen::TestReport);
    }
}

void Form6::BuildMenus()
{
    BuildFileMenu();
    QMenu& goTo = AddMenu("&Go to");
    AddCommand(goTo, {"MnuCriteria", "The entries of this beam"}, "&Criteria Form 1",
               [this] { GoToCriteria(); });
    AddDiagramCommand(goTo);
    AddBackCommand(goTo, "Back to the report (Esc)", "&Report Form3");
    AddToolsMenu();
    AddHelpMenu(GuidePage::DataRecord);
    AddBackToBar();
}

void Form6::BuildFileMenu()
{
    QMenu& file = AddMenu("&File");
    AddCommand(file, {"MnuNew", "Begins another beam"}, "&New Beam", [this] { OnNewBeam(); });
    AddCommand(file, {"MnuOpenData", "Shows a saved Data Record"}, "&Load Record...",
               [this] { OpenRecord(); });
    AddCommand(
        file, {"MnuSaveData", "Saves this record as text"}, "&Save Record...", [this] { SaveRecord(); },
        QKeySequence::Save);
    AddPageCommands(file);
}

RecordHeading& Form6::Heading()
{
    return TheSession().Record.Heading;
}

void Form6::PrepareHeading()
{
    kordavan::PrepareHeading(TheSession(), TheWalk().Desktop().Today());
}

void Form6::TakeHeading()
{
    kordavan::TakeHeading(TheSession(), TheWalk().Desktop().Today());
}

RecordPage Form6::Page()
{
    return LayOut(TheSession().Record.Sheet, true);
}

RecordPage Form6::HeadedPage(bool hasNotes)
{
    return LayOut(HeadedSheet(TheSession(), TheWalk().Desktop().Today()), hasNotes);
}

RecordPage Form6::LayOut(const DataSheet& sheet, bool hasNotes)
{
    return LayOutDataRecord(
        sheet,
        {.HighDpi = TheSession().HighDPI, .HasNotes = hasNotes, .HasDiagram = !TheSession().Record.FromDisk});
}

PagePicture Form6::Picture()
{
    return TheSession().Record.FromDisk ? PagePicture() : PictureOfCalculated(TheSession().Numbers);
}

std::string_view Form6::IdCaption() const
{
    return "&Beam ID";
}

Screen Form6::ShownOn() const
{
    return Screen::Record;
}

Outcome Form6::SaveHeaded()
{
    const std::optional<std::string> path = TheWalk().Desktop().AskSaveFile(SaveDataRecordDialog);
    if (!path) {
        return Outcome::Refused;
    }
    TakeHeading();
    const RecordOnShow& record = TheSession().Record;
    return SaveDataRecord(record.Sheet, record.Heading, *path, User());
}

void Form6::FollowSaving()
{
    if (!TheSession().Record.FromDisk && User().Ask(Question(PrintTexts::SaveCriteriaToo))) {
        TheWalk().Go(Screen::Criteria);
    }
}

void Form6::OnNewBeam()
{
    if (OfferNewBeamAfterReport(TheSession(), User()) == Outcome::Done) {
        TheWalk().RefreshBeside(Screen::Notes);
        TheWalk().Go(Screen::Criteria);
        TheWalk().Front()->FocusOn("Proj");
    }
}

void Form6::OpenRecord()
{
    const std::optional<std::string> path = TheWalk().Desktop().AskOpenFile(OpenDataRecordDialog);
    DataSheet loaded = TheSession().Record.Sheet;
    if (path && OpenDataRecord(*path, loaded, User()) == Outcome::Done) {
        TakeLoadedRecord(TheSession(), loaded);
        TheWalk().RefreshBeside(Screen::Notes);
        ShowSheet();
    }
}

void Form6::SaveRecord()
{
    PrepareHeading();
    if (const std::optional<std::string> path = TheWalk().Desktop().AskSaveFile(SaveDataRecordDialog)) {
        const RecordOnShow& record = TheSession().Record;
        SaveDataRecord(record.Sheet, record.Heading, *path, User());
    }
}

void Form6::GoToCriteria()
{
    if (LeaveForCriteria(TheSession(), User()) == Outcome::Done) {
        TheWalk().Go(Screen::Criteria);
    }
}

}  // namespace kordavan
