#include "forms/RecordForm.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "forms/Form7.h"
#include "forms/RecordPdf.h"
#include "forms/RecordSheet.h"
#include "records/RecordDesk.h"

namespace kordavan {

RecordForm::RecordForm(Walk& theWalk, std::string_view name)
    : Form(theWalk, name),
      shown(new RecordSheet),
      print(MakeButton({.Name = "Command1", .Tip = "Heads the page and prints it (Enter)"}, "&Print..."))
{
    Body().addWidget(shown, 1);
    print->setDefault(true);
    connect(print, &QPushButton::clicked, this, [this] { GoToPrint(); });
    Foot().addStretch(1);
    Foot().addWidget(print);
}

void RecordForm::Activate()
{
    FillRecord();
    ShowSheet();
    print->setFocus(Qt::OtherFocusReason);
}

void RecordForm::ShowNotes()
{
    TakeNotes();
    ShowSheet();
}

QAbstractButton* RecordForm::DefaultCommand()
{
    return print;
}

void RecordForm::ShowSheet()
{
    shown->Show(Page(), Picture(), font().family());
}

void RecordForm::AddPageCommands(QMenu& file)
{
    AddCommand(
        file, {"MnuCopyClip", "The whole record as aligned text"}, "&Copy to Clipboard",
        [this] { CopyRecord(); }, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
    AddCommand(file, {"MnuPdf", "The page as a PDF file"}, "Save as P&DF...", [this] { SaveAsPdf(); });
    AddCommand(
        file, {"MnuPrint", "Heads the page and prints it"}, "&Print...", [this] { GoToPrint(); },
        QKeySequence::Print);
    AddExitCommand(file);
}

void RecordForm::AddBackCommand(QMenu& goTo, std::string_view tip, std::string_view caption)
{
    back = &AddCommand(goTo, {"MnuBack", tip}, caption, [this] { GoBack(); });
}

void RecordForm::AddBackToBar()
{
    backInBar = menuBar()->addAction(QStringLiteral("&Back"));
    backInBar->setObjectName(QStringLiteral("backmnu"));
    connect(backInBar, &QAction::triggered, this, &RecordForm::GoBack);
}

void RecordForm::EnableBack(bool isEnabled)
{
    back->setEnabled(isEnabled);
    backInBar->setEnabled(isEnabled);
}

bool RecordForm::CanGoBack() const
{
    return back->isEnabled();
}

void RecordForm::CopyRecord()
{
    QApplication::clipboard()->setText(Text(PlainTextOf(Page())));
}

void RecordForm::SaveAsPdf()
{
    const PdfPage page{.Page = Page(), .Picture = Picture(), .Family = Text(PrintFontOf(TheSession()))};
    if (AskToSavePdf(page, TheWalk().Desktop(), User()) == Outcome::Done) {
        MarkKept();
    }
}

void RecordForm::GoToPrint()
{
    static_cast<Form7&>(TheWalk().FormOf(Screen::Print)).PrintFrom(*this);
    TheWalk().Go(Screen::Print);
}

}  // namespace kordavan
