#include "forms/Form5.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "design/NewBeam.h"
#include "design/OverhangTip.h"
#include "design/ReportNotes.h"
#include "design/SectionPicture.h"
#include "forms/NoteLine.h"
#include "forms/ReportTable.h"
#include "forms/SectionSketch.h"
#include "forms/StatusColor.h"
#include "forms/StatusSign.h"
#include "forms/StepButtons.h"

namespace kordavan {

namespace {

void Enlarge(QLabel& label)
{
    constexpr double larger = 1.5;
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * larger);
    font.setBold(true);
    label.setFont(font);
}

/// A line that takes no more room than its text.
QLabel* MakeFact(std::string_view name)
{
    QLabel* const fact = MakeNamedLabel(name);
    fact->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return fact;
}

/// Texts that need as much room as any in their place.
std::string LongestNoSplit()
{
    MemberTestResult result;
    result.NoSplits = true;
    return NoSplitText(result);
}

constexpr std::string_view LongestTipWarning =
    "The tip moves otherwise than this report says. By the exact elastic line: total load 12.00 in. up of "
    "12.00 in. allowed, live load 12.00 in. up of 12.00 in. allowed.";

std::string LongestDeflectionAlert()
{
    MemberTestResult result;
    result.TotalDeflection = 1;
    return LargeDeflectionText(result);
}

}  // namespace

Form5::Form5(Walk& theWalk) : Form(theWalk, "Form5")
{
    setWindowTitle(QStringLiteral("Beam Test Report"));
    BuildHeader();
    BuildTable();
    BuildLines();
    BuildNotes();
    BuildStepping();
    BuildFoot();
    BuildMenus();
    for (std::size_t index = 0; index < fields.size(); ++index) {
        fields[index] = findChild<QLabel*>(Text(TestReportFields[index].Name));
    }
    ShowReport();
}

void Form5::Activate()
{
    ShowReport();
    selectButton->setFocus(Qt::OtherFocusReason);
}

QAbstractButton* Form5::DefaultCommand()
{
    return selectButton;
}

void Form5::GoBack()
{
    TheWalk().Go(TheWalk().SelectionScreen());
}

void Form5::keyPressEvent(QKeyEvent* event)
{
    if (!stepping->Press(*event)) {
        Form::keyPressEvent(event);
    }
}

/// The colours of statuses are worked out from the palette.
void Form5::changeEvent(QEvent* event)
{
    Form::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && isVisible()) {
        ShowReport();
    }
}

void Form5::BuildHeader()
{
    QLabel* const member = MakePanel("DisplayChoice");
    Enlarge(*member);
    auto* const grid = new QGridLayout;
    grid->addWidget(member, 0, 0);
    grid->addWidget(MakeFact("GradeLabel"), 0, 1);
    grid->addWidget(MakePanel("Label5"), 1, 0);
    grid->addWidget(MakeFact("Modifiers"), 1, 1);
    Body().addLayout(grid);
    Body().addWidget(MakeRule());
}

void Form5::BuildTable()
{
    table = new ReportTable(MakeHelp(HelpTexts::ReadingTheReport, {"Command1", "Command2"}));
    sketch = new SectionSketch;
    auto* const line = new QHBoxLayout;
    line->addWidget(table, 0, Qt::AlignTop);
    line->addWidget(sketch, 1);
    Body().addLayout(line, 1);
}

void Form5::BuildLines()
{
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(DigitsWidth(*this, 6));
    grid->addWidget(MakePanel("Label11"), 0, 0);
    grid->addWidget(MakePanel("Label6"), 0, 1);
    grid->addWidget(MakePanel("Label10"), 1, 0);
    grid->addWidget(MakePanel("Label15"), 1, 1);
    Body().addWidget(MakeRule());
    Body().addLayout(grid);
}

void Form5::BuildNotes()
{
    auto* const unbalanced = new NoteLine("Unbalancedlabel", " ", NoteKind::Plain);
    unbalanced->Append(MakeHelp(HelpTexts::UnbalancedLoads, {}));
    AddNote(new NoteLine("DeadDefl", " ", NoteKind::Plain));
    AddNote(new NoteLine("SmallChoice", " ", NoteKind::Plain));
    AddNote(new NoteLine("DeflTooHigh", LongestDeflectionAlert(), NoteKind::Alert));
    tip = new NoteLine("OverhangTip", LongestTipWarning, NoteKind::Alert);
    AddNote(tip);
    AddNote(new NoteLine("NoSplitLabel", LongestNoSplit(), NoteKind::Alert));
    AddNote(unbalanced);
    Body().addStretch(1);
}

void Form5::AddNote(NoteLine* note)
{
    notes.push_back(note);
    Body().addWidget(note);
}

void Form5::BuildStepping()
{
    stepping = new StepButtons;
    connect(stepping, &StepButtons::SizeAsked, this, &Form5::OnSizeStep);
    connect(stepping, &StepButtons::ShapeAsked, this, &Form5::OnShapeStep);
    Body().addWidget(stepping);
}

void Form5::BuildFoot()
{
    overall = MakePanel("OverallStatus");
    Enlarge(*overall);
    overallSign = new StatusSign(QStringLiteral("OverallSign"));
    overallSign->setFont(overall->font());
    QPushButton* const notesButton =
        MakeButton({.Name = "Command1", .Tip = "Notes for the foot of the record"}, " Add &Notes");
    selectButton =
        MakeButton({.Name = "Command2", .Tip = "Puts this member on record and shows its Data Record"},
                   "OK  &Select Member");
    selectButton->setDefault(true);
    connect(notesButton, &QPushButton::clicked, this, [this] { TheWalk().ShowBeside(Screen::Notes); });
    connect(selectButton, &QPushButton::clicked, this, &Form5::OnSelectMember);
    Foot().addWidget(overallSign);
    Foot().addWidget(overall, 1);
    Foot().addWidget(notesButton);
    Foot().addWidget(selectButton);
}

void Form5::BuildMenus()
{
    QMenu& file = AddMenu("&File");
    AddCommand(file, {"MnuNew", "Begins another beam"}, "&New Beam", [this] { OnNewBeam(); });
    AddExitCommand(file);
    QMenu& goTo = AddMenu("&Go to");
    AddCommand(goTo, {"MnuBack", "Back to the selection (Esc)"}, "&Selection Form 2", [this] { GoBack(); });
    AddCommand(goTo, {"MnuCriteria", "The entries of this beam"}, "&Criteria Form 1",
               [this] { TheWalk().Go(Screen::Criteria); });
    AddCommand(goTo, {"MnuDataRecord", "Puts this member on record and shows its Data Record"},
               "&Data Record", [this] { OnSelectMember(); });
    AddDiagramCommand(goTo);
    AddToolsMenu();
    AddHelpMenu(GuidePage::Report);
    QAction* const back = menuBar()->addAction(QStringLiteral("&Back"));
    back->setObjectName(QStringLiteral("backmnu"));
    back->setStatusTip(QStringLiteral("Back to the selection (Esc)"));
    connect(back, &QAction::triggered, this, &Form5::GoBack);
}

void Form5::ShowReport()
{
    const TestReport report = MakeTestReport(TheSession());
    for (std::size_t index = 0; index < fields.size(); ++index) {
        fields[index]->setText(Text(report.*TestReportFields[index].Text));
    }
    table->Show(report);
    sketch->Show(ReadSectionPicture(TheSession()));
    const OverhangTipWarning tipWarning = WarnOfOverhangTip(TheSession());
    tip->Tell(tipWarning.Text);
    for (NoteLine* const note : notes) {
        note->Show();
    }
    ShowOverall(tipWarning.ExceedsAllowed);
    stepping->Show(TheSession(), *selectButton);
    TheWalk().RefreshBeside(Screen::LoadDiagram);
}

/// @param isQualified  by a warning beside the verdict
void Form5::ShowOverall(bool isQualified)
{
    const MemberTestResult& result = TheSession().Member.Result;
    const bool fails = result.Overall == StatusFail;
    overall->setText(Text(OverallText(result)));
    PaintStatus(*overall, fails);
    const Sign passes = result.NoSplits || isQualified ? Sign::Alert : Sign::Passes;
    overallSign->Show(fails ? Sign::Fails : passes);
}

void Form5::OnSizeStep(SizeStep step)
{
    if (StepMember(TheSession(), step, User()) == Outcome::Done) {
        ShowReport();
    }
}

void Form5::OnShapeStep(SteelStep step)
{
    switch (StepShape(TheSession(), step, User())) {
        case SteelTestEnd::Done:
            ShowReport();
            break;
        case SteelTestEnd::BackToCriteria:
            TheWalk().Go(Screen::Criteria);
            break;
        case SteelTestEnd::Refused:
            break;
    }
}

void Form5::OnNewBeam()
{
    if (OfferNewBeamAfterReport(TheSession(), User()) == Outcome::Done) {
        TheWalk().RefreshBeside(Screen::Notes);
        TheWalk().Go(Screen::Criteria);
        TheWalk().Front()->FocusOn("Proj");
    }
}

void Form5::OnSelectMember()
{
    SelectMember(TheSession(), TheWalk().Desktop().Today());
    TheWalk().Go(Screen::Record);
}

}  // namespace kordavan
