#include "forms/Form3.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "design/EntryChoices.h"
#include "forms/ChoiceBox.h"
#include "forms/PickTable.h"

namespace kordavan {

namespace {

constexpr int SizeDigits = 10;
constexpr int SpeciesDigits = 28;

}  // namespace

Form3::Form3(Walk& theWalk) : SelectionForm(theWalk, "Form3"), picks(QuickPickCells(TheSession().Numbers))
{
    setWindowTitle(QStringLiteral(" Kordavan Selection Form 2"));
    BuildHeader();
    BuildPicks();
    BuildBoxes();
    BuildFoot();
    BuildMenus();
    connect(&boxes, &Bindings::Edited, this, &Form3::ShowEntry);
    table->Show(picks, TheSession().Numbers);
    ShowTexts();
}

void Form3::Activate()
{
    const bool isNewAnalysis = TakeNewAnalysis();
    if (isNewAnalysis) {
        StartOver();
    }
    ShowTexts();
    boxes.Show();
    ShowEntry();
    if (isNewAnalysis && !table->FocusFirst()) {
        breadth->setFocus();
    }
}

QAbstractButton* Form3::DefaultCommand()
{
    return okButton;
}

void Form3::BuildHeader()
{
    valuesInUse = MakePanel("LabelINGRADE");
    SelectionForm::BuildHeader({valuesInUse, MakeHeading("Quick picks: smallest depth that passes")},
                               {"MOMENT", "Reac1", "Reac2"});
}

void Form3::BuildPicks()
{
    table = new PickTable(MakeHelp(HelpTexts::QuickPickWidths, {"ht", "Text1", "Text2"}),
                          MakeHelp(HelpTexts::GlulamBeams, {"Text3"}));
    connect(table, &PickTable::Picked, this, &Form3::OnPick);
    Body().addWidget(table, 0, Qt::AlignHCenter);
    Body().addSpacing(fontMetrics().height());
}

void Form3::BuildBoxes()
{
    MemberEntry& entry = TheSession().Entry;
    breadth = new ChoiceBox(
        {.Name = "Text1", .Tip = "Breadth to test, as in the headings: 2x, (2) 2x, 3-1/8x"}, SizeDigits);
    depth = new ChoiceBox({.Name = "Text2", .Tip = "Depth to test; the nominal depth of sawn lumber"},
                          SizeDigits);
    species = new ChoiceBox(
        {.Name = "Text3", .Tip = "Species and grade to test, as in the headings at the left"}, SpeciesDigits);
    boxes.Bind(*breadth, entry.BreadthText);
    boxes.Bind(*depth, entry.DepthText);
    boxes.Bind(*species, entry.SpeciesText);
    auto* const line = new QHBoxLayout;
    line->addWidget(MakeCaption("&Breadth", *breadth));
    line->addWidget(breadth, 0);
    line->addWidget(MakeCaption("&Depth, nominal", *depth));
    line->addWidget(depth, 0);
    line->addWidget(MakeCaption("&Species and grade", *species));
    line->addWidget(species, 1);
    Body().addWidget(MakeNamedLabel("TestedLine", SelectionScreenTexts::MustBeTested));
    Body().addLayout(line);
    Body().addStretch(1);
}

void Form3::BuildFoot()
{
    panel = MakePanel("WoodStatisPanel");
    okButton = MakeButton({.Name = "CmdOK", .Tip = "Tests the member in the boxes and shows the report"},
                          "&OK Test");
    okButton->setDefault(true);
    connect(okButton, &QPushButton::clicked, this, &Form3::OnCmdOK);
    Foot().addWidget(panel, 1);
    Foot().addWidget(okButton);
}

void Form3::BuildMenus()
{
    QMenu& file = AddMenu("&File");
    AddExitCommand(file);
    BuildOtherMenus(GuidePage::WoodSelection);
}

void Form3::StartOver()
{
    panel->setText(Text(SelectionScreenTexts::Pretesting));
    panel->repaint();
    picks = StartSelection(TheSession(), User());
    table->Show(picks, TheSession().Numbers);
}

void Form3::ShowTexts()
{
    const SelectionTexts texts = MakeSelectionTexts(TheSession());
    valuesInUse->setText(Text(texts.LabelINGRADE));
    ShowLoads(texts.MOMENT, texts.Reac1, texts.Reac2);
    panel->setText(Text(texts.WoodStatisPanel));
    table->ShowTexts(texts);
}

void Form3::ShowEntry()
{
    const BeamNumbers& beam = TheSession().Numbers;
    const MemberEntry& entry = TheSession().Entry;
    breadth->SetChoices(BreadthChoices(beam));
    depth->SetChoices(DepthChoices(beam, entry.BreadthText));
    species->SetChoices(SpeciesChoices(beam, entry.BreadthText));
    table->ShowEntry(picks, entry);
}

void Form3::OnPick(std::size_t index)
{
    TakePick(TheSession(), picks[index]);
    boxes.Show();
    ShowEntry();
    okButton->setFocus(Qt::OtherFocusReason);
}

void Form3::OnCmdOK()
{
    if (TestEntered(TheSession(), User()) == Outcome::Done) {
        TheWalk().Go(Screen::TestReport);
    }
}

}  // namespace kordavan
