#include "forms/Form22.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "design/SteelTexts.h"
#include "design/TestReport.h"
#include "forms/RatioBar.h"
#include "forms/SteelDatabaseDialog.h"

namespace kordavan {

namespace {

constexpr HelpText UnbracedHelp{"Command3D1", "Lc and Lu lengths", SteelScreenTexts::UnbracedHelp};
constexpr HelpText FormatHelp{"Command3D2", "Format of a size", SteelScreenTexts::FormatHelp};

constexpr std::string_view UnusedLine = "No further shape passes";

constexpr int MostSizeCharacters = 40;
constexpr int PickDigits = 22;
constexpr int SizeDigits = 10;

enum Column {
    PickColumn,
    DepthColumn,
    WidthColumn,
    UnbracedColumn,
    UnbracedHelpColumn,
    SectionColumn,
    SectionBarColumn,
    ShearColumn,
    ShearBarColumn
};

QLabel* AddFigure(QGridLayout& grid, std::string_view array, std::size_t index, int column)
{
    QLabel* const figure = MakeNamedLabel(Text(ArrayName(array, index)));
    figure->setTextInteractionFlags(Qt::TextSelectableByMouse);
    figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(figure, static_cast<int>(index) + 1, column);
    return figure;
}

RatioBar* AddBar(QGridLayout& grid, std::string_view array, std::size_t index, int column)
{
    auto* const bar = new RatioBar(ArrayName(array, index));
    grid.addWidget(bar, static_cast<int>(index) + 1, column, Qt::AlignVCenter);
    return bar;
}

}  // namespace

Form22::Form22(Walk& theWalk) : SelectionForm(theWalk, "Form22")
{
    setWindowTitle(QStringLiteral(" Kordavan Steel Selection Form 2"));
    BuildHeader();
    BuildCandidates();
    BuildPaging();
    BuildEntry();
    BuildFoot();
    BuildMenus();
    ShowTexts();
    ShowPage();
}

void Form22::Activate()
{
    ShowTexts();
    boxes.Show();
    ShowPage();
    if (TakeNewAnalysis()) {
        FocusOnStart();
    }
}

QAbstractButton* Form22::DefaultCommand()
{
    return okButton;
}

void Form22::BuildHeader()
{
    family = MakeHeading("");
    family->setObjectName(QStringLiteral("Label6"));
    bracing = MakePanel("StlPanel");
    bracing->setText(Text(SteelScreenTexts::Testing));
    SelectionForm::BuildHeader({family, bracing}, {"StlMoment", "StlReac1", "StlReac2"});
}

void Form22::BuildCandidates()
{
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(DigitsWidth(*this, 2));
    AddHeadings(*grid);
    for (std::size_t index = 0; index < lines.size(); ++index) {
        AddLine(*grid, index);
    }
    for (const Column column : {DepthColumn, WidthColumn, UnbracedColumn}) {
        grid->setColumnMinimumWidth(column, DigitsWidth(*this, SizeDigits));
    }
    grid->setColumnStretch(SectionBarColumn, 1);
    grid->setColumnStretch(ShearBarColumn, 1);
    Body().addLayout(grid);
}

void Form22::AddHeadings(QGridLayout& grid)
{
    grid.addWidget(MakeHeading("Shape"), 0, PickColumn);
    constexpr std::array headings{std::pair{"Depth", DepthColumn}, std::pair{"Width", WidthColumn},
                                  std::pair{"Max unbraced ft", UnbracedColumn},
                                  std::pair{"Section", SectionColumn}, std::pair{"Shear", ShearColumn}};
    for (const auto& [caption, column] : headings) {
        grid.addWidget(MakeHeading(caption), 0, column, Qt::AlignRight);
    }
    grid.addWidget(MakeHelp(UnbracedHelp, {"StlPick"}), 0, UnbracedHelpColumn, Qt::AlignLeft);
}

void Form22::AddLine(QGridLayout& grid, std::size_t index)
{
    const std::string name = Text(ArrayName("StlPick", index));
    QPushButton* const pick = MakeButton({.Name = name}, "");
    pick->setMinimumWidth(DigitsWidth(*this, PickDigits));
    connect(pick, &QPushButton::clicked, this, [this, index] { OnPick(index); });
    grid.addWidget(pick, static_cast<int>(index) + 1, PickColumn);
    lines[index] = {.StlPick = pick,
                    .StlDepLab = AddFigure(grid, "StlDepLab", index, DepthColumn),
                    .StlWidLab = AddFigure(grid, "StlWidLab", index, WidthColumn),
                    .UBLlab = AddFigure(grid, "UBLlab", index, UnbracedColumn),
                    .StlSecPerct = AddFigure(grid, "StlSecPerct", index, SectionColumn),
                    .SectionBar = AddBar(grid, "SectionBar", index, SectionBarColumn),
                    .StlShearPerct = AddFigure(grid, "StlShearPerct", index, ShearColumn),
                    .ShearBar = AddBar(grid, "ShearBar", index, ShearBarColumn)};
}

void Form22::BuildPaging()
{
    firstPage = MakeButton({.Name = "Backbutton", .Tip = "The first eight shapes (Page Up)"}, "Fi&rst Page");
    moreShapes =
        MakeButton({.Name = "Morebutton", .Tip = "The next eight shapes (Page Down)"}, "&More Shapes");
    page = MakeNamedLabel("PageLabel");
    connect(firstPage, &QPushButton::clicked, this, &Form22::TurnToFirstPage);
    connect(moreShapes, &QPushButton::clicked, this, &Form22::TurnToSecondPage);
    // The body would scroll by these keys.
    connect(new QShortcut(Qt::Key_PageUp, this), &QShortcut::activated, this, &Form22::TurnToFirstPage);
    connect(new QShortcut(Qt::Key_PageDown, this), &QShortcut::activated, this, &Form22::TurnToSecondPage);
    auto* const line = new QHBoxLayout;
    line->addWidget(firstPage);
    line->addWidget(moreShapes);
    line->addWidget(page);
    line->addStretch(1);
    Body().addLayout(line);
    Body().addStretch(1);
}

void Form22::BuildEntry()
{
    choice = MakeTextBox({.Name = "StlChoice", .Tip = "Size to test, written exactly as in the database"},
                         MostSizeCharacters);
    boxes.Bind(*choice, TheSession().Entry.ShapeName);
    parts = MakeNamedLabel("Label4");
    example = MakeNamedLabel("StlFormatLabel");
    QPushButton* const database = MakeButton(
        {.Name = "Steeldatabasecmd", .Tip = "All sizes of this shape that can be tested"}, "&Database");
    connect(database, &QPushButton::clicked, this, &Form22::ShowDatabase);
    auto* const line = new QHBoxLayout;
    line->addWidget(MakeCaption("&Size", *choice));
    line->addWidget(choice);
    line->addWidget(MakeHelp(FormatHelp, {"StlChoice"}));
    line->addSpacing(DigitsWidth(*this, 2));
    line->addWidget(MakeLabel("e.g."));
    line->addWidget(example);
    line->addSpacing(DigitsWidth(*this, 2));
    line->addWidget(parts);
    line->addStretch(1);
    line->addWidget(database);
    Body().addLayout(line);
}

void Form22::BuildFoot()
{
    status = MakePanel("StlStatis");
    okButton =
        MakeButton({.Name = "CmdOK", .Tip = "Tests the size in the box and shows the report"}, "&OK Test");
    okButton->setDefault(true);
    connect(okButton, &QPushButton::clicked, this, &Form22::OnCmdOK);
    Foot().addWidget(status, 1);
    Foot().addWidget(okButton);
}

void Form22::BuildMenus()
{
    AddExitCommand(AddMenu("&File"));
    BuildOtherMenus(GuidePage::Steel);
}

void Form22::ShowTexts()
{
    const SteelSelectionTexts texts = MakeSteelSelectionTexts(TheSession());
    family->setText(Text(texts.Label6));
    bracing->setText(Text(texts.StlPanel));
    ShowLoads(texts.StlMoment, texts.StlReac1, texts.StlReac2);
    parts->setText(Text(texts.Label4));
    example->setText(Text(texts.StlFormatLabel));
    status->setText(Text(texts.StlStatis));
}

void Form22::ShowPage()
{
    const SteelSelection& picks = TheSession().SteelPicks;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        ShowLine(lines[index], SlotOnLine(picks, index));
    }
    const bool hasPages = HasSecondPage(picks);
    firstPage->setVisible(picks.SecondPageShown);
    moreShapes->setVisible(!picks.SecondPageShown);
    moreShapes->setEnabled(hasPages);
    page->setVisible(hasPages);
    page->setText(picks.SecondPageShown ? QStringLiteral("page 2 of 2") : QStringLiteral("page 1 of 2"));
}

void Form22::ShowLine(const Line& line, const SteelSlot* slot)
{
    const SteelSlot shown = slot == nullptr ? SteelSlot{} : *slot;
    line.StlPick->setText(Text(shown.StlPick));
    line.StlPick->setEnabled(slot != nullptr);
    line.StlPick->setAccessibleName(slot == nullptr ? line.StlPick->objectName() : QString{});
    line.StlDepLab->setText(Text(shown.StlDepLab));
    line.StlWidLab->setText(Text(shown.StlWidLab));
    line.UBLlab->setText(Text(shown.UBLlab));
    line.StlSecPerct->setText(Text(shown.StlSecPerct));
    line.SectionBar->Show(RatioOf(shown.StlSecPerct), false);
    line.StlShearPerct->setText(Text(shown.StlShearPerct));
    line.ShearBar->Show(RatioOf(shown.StlShearPerct), false);
    const std::string facts = slot == nullptr ? std::string(UnusedLine) : DescribeSlot(*slot);
    line.StlPick->setAccessibleDescription(Text(facts));
    line.StlPick->setToolTip(Text(facts));
}

void Form22::FocusOnStart()
{
    QWidget* const start = lines.front().StlPick->isEnabled() ? static_cast<QWidget*>(lines.front().StlPick)
                                                              : static_cast<QWidget*>(choice);
    start->setFocus(Qt::OtherFocusReason);
}

void Form22::TurnToSecondPage()
{
    SteelSelection& picks = TheSession().SteelPicks;
    if (!HasSecondPage(picks) || picks.SecondPageShown) {
        return;
    }
    ShowMoreShapes(picks);
    ShowPage();
    lines.front().StlPick->setFocus(Qt::OtherFocusReason);
}

void Form22::TurnToFirstPage()
{
    SteelSelection& picks = TheSession().SteelPicks;
    if (!picks.SecondPageShown) {
        return;
    }
    ShowFirstShapes(picks);
    ShowPage();
    lines.front().StlPick->setFocus(Qt::OtherFocusReason);
}

void Form22::OnPick(std::size_t index)
{
    TakeSteelPick(TheSession(), index);
    boxes.Show();
    OnCmdOK();
}

void Form22::ShowDatabase()
{
    auto* const dialog = new SteelDatabaseDialog(
        *this, SteelDatabase(TheSession().SteelPicks.Criteria.Family), choice->text());
    connect(dialog, &SteelDatabaseDialog::Taken, this, [this](const QString& name) {
        TheSession().Entry.ShapeName = Text(name);
        boxes.Show();
        okButton->setFocus(Qt::OtherFocusReason);
    });
    connect(new QShortcut(Qt::Key_F1, dialog), &QShortcut::activated, this,
            [this, dialog] { TheWalk().ShowGuide(Guide(), *dialog); });
    dialog->open();
}

void Form22::OnCmdOK()
{
    switch (TestEnteredShape(TheSession(), User())) {
        case SteelTestEnd::Done:
            TheWalk().Go(Screen::TestReport);
            break;
        case SteelTestEnd::BackToCriteria:
            TheWalk().Go(Screen::Criteria);
            break;
        case SteelTestEnd::Refused:
            break;
    }
}

}  // namespace kordavan
