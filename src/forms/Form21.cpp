#include "forms/Form21.h"

#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "core/NumberText.h"

namespace kordavan {

namespace {

enum Column { NumberColumn, BoxColumn, LeftColumn };

constexpr int RuleWidth = 1;
constexpr int FocusRuleWidth = 2;
constexpr double LinePitch = 1.75;  // of the height of the letters

QString NumberOf(std::size_t number)
{
    return Text(PlainNumber(static_cast<double>(number)));
}

}  // namespace

Form21::Form21(Walk& theWalk) : BesideForm(theWalk, "Form21")
{
    setWindowTitle(QStringLiteral("Note Clipboard"));
    AddPage();
    AddCommands();
    AddHelpMenu(GuidePage::Notes);
    boxes.Show();
    connect(&boxes, &Bindings::Edited, this, [this] { TheWalk().ShowNotes(); });
    lines.front().Box->setFocus();
}

void Form21::Activate()
{
    boxes.Show();
}

QAbstractButton* Form21::DefaultCommand()
{
    return ok;
}

/// The scrolling body would take Up and Down to itself.
bool Form21::eventFilter(QObject* watched, QEvent* event)
{
    const auto line = std::find_if(lines.begin(), lines.end(),
                                   [watched](const NoteLine& each) { return each.Box == watched; });
    if (line != lines.end()) {
        if (event->type() == QEvent::KeyPress) {
            const auto index = static_cast<std::size_t>(line - lines.begin());
            return StepFrom(index, static_cast<QKeyEvent*>(event)->key());
        }
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
            ShowFocus(*line, event->type() == QEvent::FocusIn);
        }
    }
    return BesideForm::eventFilter(watched, event);
}

void Form21::AddPage()
{
    auto* const page = new QFrame;
    page->setObjectName(QStringLiteral("Page"));
    page->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
    page->setBackgroundRole(QPalette::Base);
    page->setAutoFillBackground(true);
    auto* const grid = new QGridLayout(page);
    grid->setVerticalSpacing(0);
    grid->setColumnStretch(BoxColumn, 1);
    for (std::size_t k = 0; k < lines.size(); ++k) {
        AddLine(*grid, k);
    }
    auto* const heads = new QHBoxLayout;
    heads->addWidget(MakeHeading("Notes for the foot of the record"));
    heads->addStretch(1);
    heads->addWidget(MakeLabel("Characters left"));
    Body().addLayout(heads);
    Body().addWidget(page);
    Body().addStretch(1);
}

void Form21::AddLine(QGridLayout& page, std::size_t index)
{
    const QString number = NumberOf(index + 1);
    const std::string name = Text(QStringLiteral("Text%1").arg(number));
    const std::string tip = Text(QStringLiteral("Note line %1 of %2").arg(number, NumberOf(ReportNoteCount)));
    NoteLine& line = lines[index];
    line.Box = MakeTextBox({.Name = name, .Tip = tip}, static_cast<int>(ReportNoteLength));
    line.Box->setFrame(false);
    line.Box->setMinimumWidth(static_cast<int>(ReportNoteLength) *
                              line.Box->fontMetrics().averageCharWidth());
    line.Box->setMinimumHeight(static_cast<int>(LinePitch * line.Box->fontMetrics().height()));
    line.Box->installEventFilter(this);
    boxes.Bind(*line.Box, TheSession().NoteClipboard[index]);
    connect(line.Box, &QLineEdit::textChanged, this, [this, index] { ShowLeft(index); });

    line.Left = MakeNamedLabel(Text(QStringLiteral("Left%1").arg(number)));
    line.Left->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    constexpr int digits = 3;
    line.Left->setMinimumWidth(DigitsWidth(*line.Left, digits));
    ShowLeft(index);

    line.Rule = new QFrame;
    line.Rule->setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Plain));
    line.Rule->setFixedHeight(FocusRuleWidth);
    ShowFocus(line, false);

    const int row = 2 * static_cast<int>(index);
    page.addWidget(MakeCaption("&" + Text(number), *line.Box), row, NumberColumn);
    page.addWidget(line.Box, row, BoxColumn);
    page.addWidget(line.Left, row, LeftColumn);
    page.addWidget(line.Rule, row + 1, NumberColumn, 1, LeftColumn + 1);
}

void Form21::AddCommands()
{
    clear = MakeButton({.Name = "CmdClearNotes", .Tip = "Empty all seven lines"}, "Clear &Notes");
    connect(clear, &QPushButton::clicked, this, &Form21::Clear);
    ok = MakeButton({.Name = "CmdOK", .Tip = "Keep the notes and go back (Enter)"}, "&OK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &Form21::CloseAsked);
    Foot().addStretch(1);
    Foot().addWidget(clear);
    Foot().addWidget(ok);
}

void Form21::ShowLeft(std::size_t index)
{
    const NoteLine& line = lines[index];
    const QString left = NumberOf(ReportNoteLength - static_cast<std::size_t>(line.Box->text().size()));
    line.Left->setText(left);
    line.Left->setAccessibleName(
        QStringLiteral("%1 characters left in line %2").arg(left, NumberOf(index + 1)));
}

/// The line in focus shows it by its rule, as its box has no frame.
void Form21::ShowFocus(NoteLine& line, bool hasFocus)
{
    line.Rule->setForegroundRole(hasFocus ? QPalette::Highlight : QPalette::Mid);
    line.Rule->setLineWidth(hasFocus ? FocusRuleWidth : RuleWidth);
}

bool Form21::StepFrom(std::size_t index, int key)
{
    if (key == Qt::Key_Down && index + 1 < lines.size()) {
        lines[index + 1].Box->setFocus(Qt::TabFocusReason);
    } else if (key == Qt::Key_Up && index > 0) {
        lines[index - 1].Box->setFocus(Qt::BacktabFocusReason);
    }
    return key == Qt::Key_Down || key == Qt::Key_Up;
}

void Form21::Clear()
{
    for (const NoteLine& line : lines) {
        line.Box->selectAll();
        line.Box->del();
    }
    lines.front().Box->setFocus();
}

}  // namespace kordavan
