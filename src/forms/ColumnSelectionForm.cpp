#include "forms/ColumnSelectionForm.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "columns/ColumnScreen.h"
#include "forms/RatioBar.h"
#include "forms/StatusColor.h"
#include "forms/StatusSign.h"
#include "records/ColumnDesk.h"

namespace kordavan {

namespace {

constexpr int WidestBar = 50;

void Enlarge(QLabel& label)
{
    constexpr double larger = 1.3;
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * larger);
    font.setBold(true);
    label.setFont(font);
}

}  // namespace

ColumnSelectionForm::ColumnSelectionForm(Walk& theWalk, std::string_view name, ColumnRecordKind recordKind,
                                         Screen recordScreen)
    : Form(theWalk, name), kind(recordKind), recordForm(recordScreen)
{
}

void ColumnSelectionForm::BuildHead()
{
    head = MakePanel("ColumnFacts");
    Body().addWidget(head);
    Body().addWidget(MakeRule());
}

void ColumnSelectionForm::BuildReport(QWidget* report, std::string_view whatToDo)
{
    memberLine = MakePanel("ColumnMember");
    Enlarge(*memberLine);
    outdatedMark = new QWidget;
    auto* const mark = new QHBoxLayout(outdatedMark);
    mark->setContentsMargins(0, 0, 0, 0);
    mark->addWidget(new StatusSign(QStringLiteral("OutdatedSign"), Sign::Alert));
    mark->addWidget(MakeNamedLabel("OutdatedLabel", EntriesChanged));
    KeepPlace(*outdatedMark);
    auto* const line = new QHBoxLayout;
    line->addWidget(memberLine, 1);
    line->addWidget(outdatedMark);
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->addSpacing(fontMetrics().height() / 4);
    column->addLayout(line);
    column->addSpacing(fontMetrics().height() / 4);
    column->addWidget(report);
    column->addStretch(1);
    QLabel* const advice = MakeNamedLabel("WhatToDo", whatToDo);
    advice->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    advice->setWordWrap(true);
    pages = new QStackedWidget;
    pages->addWidget(advice);
    pages->addWidget(page);
    Body().addWidget(MakeRule());
    Body().addWidget(pages, 1);
    figures = report;
    LetFade(*memberLine);
    LetFade(*figures);
}

void ColumnSelectionForm::BuildFoot(std::string_view select, QPushButton* test)
{
    testButton = test;
    testButton->setDefault(true);
    selectButton = MakeButton({.Name = select, .Tip = "Puts the size tested last on record and shows it"},
                              "OK  &Select Column");
    connect(selectButton, &QPushButton::clicked, this, &ColumnSelectionForm::OnSelect);
    status = MakeNamedLabel("ColumnStatus");
    ratioText = MakeNamedLabel("ColumnRatio");
    for (QLabel* const text : {status, ratioText}) {
        Enlarge(*text);
        text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    sign = new StatusSign(QStringLiteral("ColumnSign"));
    sign->setFont(status->font());
    ratioBar = new RatioBar(QStringLiteral("ColumnRatioBar"));
    verdictLine = new QWidget;
    auto* const line = new QHBoxLayout(verdictLine);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(sign);
    line->addWidget(status);
    line->addSpacing(DigitsWidth(*this, 2));
    line->addWidget(ratioText);
    ratioBar->setMaximumWidth(DigitsWidth(*this, WidestBar));
    line->addWidget(ratioBar, 2);
    line->addStretch(1);
    KeepPlace(*verdictLine);
    LetFade(*verdictLine);
    Foot().addWidget(verdictLine, 1);
    Foot().addSpacing(DigitsWidth(*this, 4));
    Foot().addWidget(selectButton);
    Foot().addWidget(testButton);
}

void ColumnSelectionForm::BuildMenus(GuidePage page)
{
    AddExitCommand(AddMenu("&File"));
    QMenu& goTo = AddMenu("&Go to");
    AddCommand(goTo, {"backmnu", "Back to the criteria of the column (Esc)"}, "&Column Criteria",
               [this] { GoBack(); });
    AddCommand(goTo, {"MnuCriteria", "The entries of the beam"}, "&Beam Criteria Form 1",
               [this] { TheWalk().Go(Screen::Criteria); });
    AddToolsMenu();
    AddHelpMenu(page);
}

void ColumnSelectionForm::ShowFacts(const std::vector<std::string>& facts)
{
    QString line;
    for (const std::string& fact : facts) {
        line += (line.isEmpty() ? QString{} : QStringLiteral("      ")) + Text(fact);
    }
    head->setText(line);
}

void ColumnSelectionForm::ShowNoReport()
{
    pages->setCurrentIndex(0);
    verdictLine->setVisible(false);
    selectButton->setEnabled(false);
}

void ColumnSelectionForm::ShowReport(const std::string& member, const ColumnVerdict& verdict, bool isOutdated)
{
    memberLine->setText(Text(member));
    pages->setCurrentIndex(1);
    ShowVerdict(verdict);
    selectButton->setEnabled(true);
    outdatedMark->setVisible(isOutdated);
    for (QWidget* const part : std::initializer_list<QWidget*>{memberLine, figures, verdictLine}) {
        Fade(*part, isOutdated);
    }
}

void ColumnSelectionForm::ShowVerdict(const ColumnVerdict& verdict)
{
    verdictLine->setVisible(true);
    sign->Show(verdict.Passes ? Sign::Passes : Sign::Fails);
    status->setText(Text(verdict.Status));
    PaintStatus(*status, !verdict.Passes);
    ratioText->setText(Text(verdict.RatioText));
    ratioBar->Show(verdict.Ratio, !verdict.Passes);
}

void ColumnSelectionForm::OnSelect()
{
    if (SelectColumnForRecord(Columns(), TheSession(), kind, TheWalk().Desktop().Today(), User()) ==
        Outcome::Done) {
        TheWalk().Go(recordForm);
    }
}

QAbstractButton* ColumnSelectionForm::DefaultCommand()
{
    return testButton;
}

void ColumnSelectionForm::GoBack()
{
    TheWalk().Go(Screen::Columns);
}

/// The colours of statuses are worked out from the palette.
void ColumnSelectionForm::changeEvent(QEvent* event)
{
    Form::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && isVisible()) {
        ShowTest();
    }
}

}  // namespace kordavan
