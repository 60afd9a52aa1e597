#include "forms/Form7.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include "forms/PagePreview.h"
#include "forms/PrinterPort.h"
#include "forms/RecordPdf.h"
#include "records/RecordDesk.h"

namespace kordavan {

namespace {

constexpr std::string_view NoPrinter =
    "No printer is installed on this system. The page can be saved as a PDF.";

constexpr int MostHeading = 110;
constexpr int MostText = 60;
constexpr int MostDate = 12;
constexpr int MostInitials = 8;

Message PrintEndMessage(PrintEnd end)
{
    switch (end) {
        case PrintEnd::Printed:
            return Alert(PrintTexts::ResetOrientation);
        case PrintEnd::NotDrawn:
            return Marked(Alert(PrintTexts::PageFault), MessageIcon::Warning);
        case PrintEnd::Failed:
            break;
    }
    return Marked(Alert(PrintTexts::NotPrinted), MessageIcon::Warning);
}

}  // namespace

Form7::Form7(Walk& walk) : Form(walk, "Form7"), preview(new PagePreview)
{
    setWindowTitle(QStringLiteral(" Kordavan Print Data Record"));
    auto* const left = new QVBoxLayout;
    auto* const grid = new QGridLayout;
    BuildHeading(*grid);
    left->addLayout(grid);
    left->addStretch(1);
    auto* const line = new QHBoxLayout;
    line->addLayout(left, 2);
    line->addWidget(preview, 3);
    Body().addLayout(line, 1);
    BuildFoot();
    BuildMenus();
    connect(&boxes, &Bindings::Edited, this, [this] {
        source->Heading() = heading;
        isEdited = true;
        Refresh();
    });
}

void Form7::Activate()
{
    source->PrepareHeading();
    idCaption->setText(Text(source->IdCaption()));
    isEdited = false;
    Refresh();
    FocusOn("Heading1");
}

void Form7::ShowNotes()
{
    source->TakeNotes();
    Refresh();
}

QAbstractButton* Form7::DefaultCommand()
{
    return print;
}

void Form7::GoBack()
{
    if (isEdited) {
        source->TakeHeading();
    }
    TheWalk().Go(source->ShownOn());
}

void Form7::BuildHeading(QGridLayout& grid)
{
    int row = 0;
    const auto add = [&](const ControlText& text, int most, std::string_view caption, std::string& bound) {
        QLineEdit* const box = MakeTextBox(text, most);
        boxes.Bind(*box, bound);
        QLabel* const label = MakeCaption(caption, *box);
        grid.addWidget(label, row, 0);
        grid.addWidget(box, row, 1);
        ++row;
        return label;
    };
    add({.Name = "Heading1", .Tip = "First line above the record"}, MostHeading, "He&ader lines",
        heading.Heading1);
    QLineEdit* const second =
        MakeTextBox({.Name = "Heading2", .Tip = "Second line above the record"}, MostHeading);
    boxes.Bind(*second, heading.Heading2);
    grid.addWidget(second, row, 1);
    ++row;
    add({.Name = "Text1", .Tip = "Name of the project"}, MostText, "Pro&ject", heading.Project);
    add({.Name = "Text2", .Tip = "Description of the member"}, MostText, "De&scription", heading.Description);
    idCaption =
        add({.Name = "Text3", .Tip = "Mark of the member on the plans"}, MostText, {}, heading.BeamId);
    idCaption->setObjectName(QStringLiteral("IdCaption"));
    add({.Name = "Datebox", .Tip = "Date of the record; today when empty"}, MostDate, "Dat&e", heading.Date);
    add({.Name = "Initialbox", .Tip = "Initials of the designer"}, MostInitials, "Prepared b&y",
        heading.Initials);
    QCheckBox* const fine = MakeCheck(
        {.Name = "HighDPI", .Tip = "Finer lines and tints, for printers of 600 dpi"}, "&600 dpi layout");
    boxes.Bind(*fine, TheSession().HighDPI);
    grid.addWidget(fine, row, 1);
}

void Form7::BuildFoot()
{
    panel = MakePanel("PrintPanel");
    Foot().addWidget(panel, 1);
    const auto add = [this](const ControlText& text, std::string_view caption, auto run) {
        QPushButton* const button = MakeButton(text, caption);
        connect(button, &QPushButton::clicked, this, run);
        Foot().addWidget(button);
        return button;
    };
    add({.Name = "CmdClear", .Tip = "Empties the heading"}, "&Clear Header", &Form7::OnClear);
    add({.Name = "Command1", .Tip = "Saves the record as text"}, "Save &Record...", &Form7::OnSave);
    add({.Name = "CmdPdf", .Tip = "The page as a PDF file"}, "Save as P&DF...", &Form7::OnPdf);
    add({.Name = "Command2", .Tip = "Printer, paper and copies"}, "Print Set&up...", &Form7::OnSetup);
    add({.Name = "Command3", .Tip = "Back to the record (Esc)"}, "C&lose", &Form7::GoBack);
    print = add({.Name = "CmdPrint", .Tip = "Prints the page (Enter)"}, "&Print", &Form7::OnPrint);
    print->setDefault(true);
}

void Form7::BuildMenus()
{
    QMenu& file = AddMenu("&File");
    AddCommand(
        file, {"MnuSaveRec", "Saves the record as text"}, "&Save Record...", [this] { OnSave(); },
        QKeySequence::Save);
    AddCommand(file, {"Mnusetup", "Printer, paper and copies"}, "Print Set&up...", [this] { OnSetup(); });
    AddCommand(file, {"MnuFont", "Font of the page"}, "&Font...", [this] { OnFont(); });
    AddCommand(file, {"MnuClose", "Back to the record (Esc)"}, "&Close", [this] { GoBack(); });
    AddHelpMenu(GuidePage::Printing);
}

void Form7::Refresh()
{
    heading = source->Heading();
    boxes.Show();
    preview->Show(source->HeadedPage(true), source->Picture(), Text(PrintFontOf(TheSession())));
}

void Form7::OnClear()
{
    source->Heading() = {};
    isEdited = true;
    Refresh();
    FocusOn("Heading1");
}

void Form7::OnPrint()
{
    PrinterPort& printers = TheWalk().Desktop().Printers();
    if (!printers.HasPrinter()) {
        User().Tell(Marked(Alert(NoPrinter), MessageIcon::Warning));
        return;
    }
    RememberPrinter();
    const bool hasNotes = AskToPrintNotes(TheSession(), User());
    source->TakeHeading();
    Refresh();
    panel->setText(QStringLiteral("Printing, one moment please..."));
    panel->repaint();
    const RecordPage page = source->HeadedPage(hasNotes);
    const PagePicture picture = source->Picture();
    const PrintEnd end =
        printers.Print({.Page = page, .Picture = picture, .Family = Text(PrintFontOf(TheSession()))});
    panel->setText({});
    if (TheSession().RestoreDefaultPrinter) {
        printers.UsePrinter(*usualPrinter);
    }
    usualPrinter.reset();
    if (end == PrintEnd::Printed) {
        source->MarkKept();
    }
    User().Tell(PrintEndMessage(end));
}

void Form7::OnSave()
{
    const Outcome saved = source->SaveHeaded();
    Refresh();
    if (saved == Outcome::Done) {
        source->MarkKept();
        source->FollowSaving();
    }
}

void Form7::OnPdf()
{
    const PdfPage page{.Page = source->HeadedPage(true),
                       .Picture = source->Picture(),
                       .Family = Text(PrintFontOf(TheSession()))};
    if (AskToSavePdf(page, TheWalk().Desktop(), User()) == Outcome::Done) {
        source->TakeHeading();
        source->MarkKept();
        Refresh();
    }
}

void Form7::OnSetup()
{
    PrinterPort& printers = TheWalk().Desktop().Printers();
    if (!printers.HasPrinter()) {
        User().Tell(Marked(Alert(NoPrinter), MessageIcon::Warning));
        return;
    }
    RememberPrinter();
    printers.AskSetup(*this);
}

/// The printer to come back to is the one from before the first setup for this page.
void Form7::RememberPrinter()
{
    if (!usualPrinter) {
        usualPrinter = TheWalk().Desktop().Printers().CurrentPrinter();
    }
}

void Form7::OnFont()
{
    if (const std::optional<std::string> family =
            TheWalk().Desktop().Printers().AskFont(*this, PrintFontOf(TheSession()))) {
        TheSession().PrintFont = *family;
        Refresh();
    }
}

}  // namespace kordavan
