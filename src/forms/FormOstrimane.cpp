#include "forms/FormOstrimane.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include "forms/NotchCutGroup.h"
#include "forms/NotchHelp.h"
#include "forms/NotchMemberGroup.h"
#include "forms/NotchResultGroup.h"
#include "forms/NotchSketch.h"
#include "forms/NotchStatusLine.h"
#include "notch/NotchCheck.h"
#include "notch/NotchEdits.h"

namespace kordavan {

FormOstrimane::FormOstrimane(Walk& walk)
    : Form(walk, "FormOstrimane"),
      numbers{.User = walk.User(), .CalculatorText = [&walk] { return walk.CalculatorText(); }},
      context{
          .Owner = *this, .Boxes = bindings, .Numbers = numbers, .Beam = walk.CurrentSession(), .Apply = {}}
{
    setWindowTitle(QStringLiteral(" Kordavan Notch Check"));
    FollowEdition(Notch(), EditionInForce(TheSession().Nds));
    shownEntry = Notch().Entry;
    shownYears = Notch().Years;
    memberGroup = new NotchMemberGroup(context, Notch());
    cutGroup = new NotchCutGroup(context, Notch());
    connect(memberGroup, &NotchMemberGroup::Changed, this, &FormOstrimane::Refresh);
    connect(cutGroup, &NotchCutGroup::Changed, this, &FormOstrimane::Refresh);
    auto* const row = new QHBoxLayout;
    row->addWidget(memberGroup);
    row->addWidget(cutGroup);
    row->addLayout(MakeOutcome(), 1);
    Body().addLayout(row, 1);
    MakeFoot();
    MakeMenus();
    OrderTabs();
    connect(&bindings, &Bindings::Edited, this, &FormOstrimane::Refresh);
    Refresh();
    FocusOn("MaxVtextbox");
}

void FormOstrimane::Activate()
{
    FollowEdition(Notch(), EditionInForce(TheSession().Nds));
    Refresh();
}

QAbstractButton* FormOstrimane::DefaultCommand()
{
    return calculate;
}

void FormOstrimane::GoBack()
{
    TheWalk().Go(Screen::Criteria);
}

QLayout* FormOstrimane::MakeOutcome()
{
    auto* const column = new QVBoxLayout;
    sketch = new NotchSketch;
    resultGroup = new NotchResultGroup;
    column->addWidget(sketch, 1);
    column->addWidget(resultGroup);
    return column;
}

void FormOstrimane::MakeFoot()
{
    status = new NotchStatusLine;
    report = MakeButton({.Name = "CmdNotchReport", .Tip = "The page of the last run"}, "Rep&ort...");
    calculate = MakeButton({.Name = "OKcalcCmd", .Tip = "Checks the notch (Enter)"}, "O&K Calculate");
    calculate->setDefault(true);
    connect(report, &QPushButton::clicked, this, [this] { TheWalk().Go(Screen::NotchPage); });
    connect(calculate, &QPushButton::clicked, this, &FormOstrimane::Calculate);
    Foot().addWidget(status, 1);
    Foot().addWidget(report);
    Foot().addWidget(calculate);
}

void FormOstrimane::MakeMenus()
{
    AddExitCommand(AddMenu("&File"));
    QMenu& goTo = AddMenu("&Go to");
    AddCommand(goTo, {"backmnu", "Back to the beam (Esc)"}, "&Back", [this] { GoBack(); });
    AddCommand(goTo, {"MnuCriteria", "The entries of the beam"}, "Beam &Criteria Form 1",
               [this] { TheWalk().Go(Screen::Criteria); });
    AddToolsMenu();
    AddHelpMenu(GuidePage::Notch);
}

void FormOstrimane::OrderTabs()
{
    ChainTabStops({memberGroup, cutGroup, sketch, calculate, report});
}

void FormOstrimane::Refresh()
{
    FollowNotchEdit(Notch(), shownEntry, shownYears);
    shownEntry = Notch().Entry;
    shownYears = Notch().Years;
    const NotchTexts texts = DescribeNotch(Notch());
    bindings.Show();
    memberGroup->ShowEntries();
    cutGroup->ShowTexts(texts);
    sketch->ShowPicture(ReadNotchPicture(Notch().Entry, Notch().Years));
    resultGroup->ShowTexts(texts);
    status->ShowTexts(texts);
    report->setEnabled(Notch().Run.has_value());
}

void FormOstrimane::Calculate()
{
    CalculateNotch(Notch(), User());
    Refresh();
}

}  // namespace kordavan
