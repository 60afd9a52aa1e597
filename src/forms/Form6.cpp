#include "forms/Form6.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "design/NewBeam.h"
#include "forms/Form7.h"
#include "forms/RecordPdf.h"
#include "forms/RecordSheet.h"
#include "records/DataRecordFile.h"
#include "records/DataRecordPage.h"
#include "records/RecordDesk.h"
#include "records/RecordFile.h"

namespace kordavan {

namespace {

constexpr std::string_view Page6 =
    "DATA RECORD\n\n"
    "The page for the building file: the member, its criteria, its loads and the results of its test. Print "
    "it, save it as a PDF, or save it as a record that can be shown and printed again. To put it into "
    "another program, choose Copy to Clipboard (Ctrl+Shift+C) and paste it there as text.\n\n"
    "A record loaded from a file is only text; it cannot be calculated again. To change a beam later, save "
    "its criteria on Form 1.\n\n"
    "Esc leads back to the report, unless a loaded record is on show: the report is of another beam then.";

}  // namespace

Form6::Form6(Walk& theWalk) : Form(theWalk, "Form6"), sheet(new RecordSheet)
{
    setWindowTitle(QStringLiteral(" Kordavan Data Record"));
    Body().addWidget(sheet, 1);
    print = MakeButton({.Name = "Command1", .Tip = "Heads the page and prints it (Enter)"}, "&Print...");
    print->setDefault(true);
    connect(print, &QPushButton::clicked, this, [this] { GoToPrint(); });
    Foot().addStretch(1);
    Foot().addWidget(print);
    BuildMenus();
}

void Form6::Activate()
{
    ShowRecord(TheSession(), TheWalk().Desktop().Today(), User());
    const bool isFromDisk = TheSession().Record.FromDisk;
    back->setEnabled(!isFromDisk);
    backInBar->setEnabled(!isFromDisk);
    ShowSheet();
    print->setFocus(Qt::OtherFocusReason);
}

QAbstractButton* Form6::DefaultCommand()
{
    return print;
}

void Form6::GoBack()
{
    if (back->isEnabled() && LeaveForReport(TheSession(), User()) == Outcome::Done) {
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
    back = &AddCommand(goTo, {"MnuBack", "Back to the report (Esc)"}, "&Report Form3", [this] { GoBack(); });
    AddToolsMenu();
    AddHelpMenu(Page6);
    backInBar = menuBar()->addAction(QStringLiteral("&Back"));
    backInBar->setObjectName(QStringLiteral("backmnu"));
    connect(backInBar, &QAction::triggered, this, &Form6::GoBack);
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
    AddCommand(
        file, {"MnuCopyClip", "The whole record as aligned text"}, "&Copy to Clipboard",
        [this] { CopyRecord(); }, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
    AddCommand(file, {"MnuPdf", "The page as a PDF file"}, "Save as P&DF...", [this] { SaveAsPdf(); });
    AddCommand(
        file, {"MnuPrint", "Heads the page and prints it"}, "&Print...", [this] { GoToPrint(); },
        QKeySequence::Print);
    AddExitCommand(file);
}

void Form6::ShowNotes()
{
    BringNotes(TheSession());
    ShowSheet();
}

void Form6::ShowSheet()
{
    sheet->Show(Page(), Loads(), font().family());
}

RecordPage Form6::Page()
{
    const RecordOnShow& record = TheSession().Record;
    return LayOutDataRecord(
        record.Sheet, {.HighDpi = TheSession().HighDPI, .HasNotes = true, .HasDiagram = !record.FromDisk});
}

std::optional<LoadPicture> Form6::Loads()
{
    return TheSession().Record.FromDisk ? std::nullopt
                                        : std::optional(PictureOfCalculated(TheSession().Numbers));
}

void Form6::GoToPrint()
{
    static_cast<Form7&>(TheWalk().FormOf(Screen::Print)).SetLoads(Loads());
    TheWalk().Go(Screen::Print);
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
    PrepareHeading(TheSession(), TheWalk().Desktop().Today());
    if (const std::optional<std::string> path = TheWalk().Desktop().AskSaveFile(SaveDataRecordDialog)) {
        const RecordOnShow& record = TheSession().Record;
        SaveDataRecord(record.Sheet, record.Heading, *path, User());
    }
}

void Form6::CopyRecord()
{
    QApplication::clipboard()->setText(Text(PlainTextOf(Page())));
}

void Form6::SaveAsPdf()
{
    const std::optional<std::string> path = TheWalk().Desktop().AskSaveFile(SavePdfDialog);
    if (!path) {
        return;
    }
    const std::string fault = SavePdf(*path, Page(), Loads(), Text(PrintFontOf(TheSession())));
    if (!fault.empty()) {
        RefuseSaving(*path, fault, User());
    }
}

void Form6::GoToCriteria()
{
    if (LeaveForCriteria(TheSession(), User()) == Outcome::Done) {
        TheWalk().Go(Screen::Criteria);
    }
}

}  // namespace kordavan
