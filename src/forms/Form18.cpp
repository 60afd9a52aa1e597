#include "forms/Form18.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "columns/ColumnCriteria.h"
#include "columns/SteelColumn.h"
#include "columns/StudColumn.h"
#include "columns/StudCriteria.h"
#include "forms/ColumnLoadGroup.h"
#include "forms/ColumnSketch.h"
#include "forms/ColumnValuesGroup.h"
#include "forms/ReactionFrame.h"
#include "forms/StudGroup.h"
#include "forms/StudStatusLine.h"
#include "records/ColumnDesk.h"
#include "records/CustomPostFile.h"
#include "records/StudRecordFile.h"

namespace kordavan {

namespace {

constexpr int MostProject = 35;
constexpr int MostId = 25;
constexpr int MostDescription = 30;

enum Pages { ColumnPage, StudPage };

struct FaceRow {
    ColumnFace Face;
    ControlText Control;
    std::string_view Caption;
};

constexpr std::array FaceRows{
    FaceRow{ColumnFace::Wood, {.Name = "WoodButton", .Tip = "Sizes a wood column"}, "Woo&d"},
    FaceRow{ColumnFace::Steel, {.Name = "SteelButton", .Tip = "Sizes a steel pipe or tube"}, "&Steel"},
    FaceRow{ColumnFace::Studs,
            {.Name = "StudButton", .Tip = "Checks a wall stud under axial load and wind"},
            "St&uds under wind"},
};

}  // namespace

Form18::Form18(Walk& walk)
    : Form(walk, "Form18"),
      numbers{.User = walk.User(), .CalculatorText = [&walk] { return walk.CalculatorText(); }},
      context{
          .Owner = *this, .Boxes = bindings, .Numbers = numbers, .Beam = walk.CurrentSession(), .Apply = {}}
{
    setWindowTitle(QStringLiteral(" Kordavan Column Criteria Form 1"));
    FollowEdition(Columns(), EditionNow());
    Body().addLayout(MakeHead());
    studGroup = new StudGroup(context, Columns());
    connect(studGroup, &StudGroup::Changed, this, &Form18::Refresh);
    connect(studGroup, &StudGroup::SaveAsked, this, &Form18::SaveStud);
    connect(studGroup, &StudGroup::LoadAsked, this, &Form18::LoadStud);
    pages = new QStackedWidget;
    pages->addWidget(MakeColumnPage());
    pages->addWidget(studGroup);
    Body().addWidget(pages, 1);
    MakeFoot();
    MakeMenus();
    OrderTabs();
    connect(&bindings, &Bindings::Edited, this, &Form18::Refresh);
    Refresh();
    FocusOn("ColumnProj");
}

void Form18::Activate()
{
    FollowEdition(Columns(), EditionNow());
    Refresh();
}

GuidePage Form18::Guide()
{
    switch (Columns().Face) {
        case ColumnFace::Wood:
            return GuidePage::WoodColumns;
        case ColumnFace::Steel:
            return GuidePage::SteelColumns;
        case ColumnFace::Studs:
            return GuidePage::Studs;
    }
    return GuidePage::WoodColumns;
}

/// From within the frame that asks for a reaction, Enter takes it.
QAbstractButton* Form18::DefaultCommand()
{
    if (Columns().Face == ColumnFace::Studs) {
        return checkStud;
    }
    ReactionFrame& import = loadGroup->Import();
    return import.isVisibleTo(this) && import.isAncestorOf(focusWidget()) ? &import.TakeCommand() : calculate;
}

void Form18::GoBack()
{
    if (loadGroup->Import().isVisibleTo(this)) {
        loadGroup->Import().hide();
        FocusOn("ImportButton");
    } else {
        TheWalk().Go(Screen::Criteria);
    }
}

QLayout* Form18::MakeHead()
{
    ColumnIdentity& identity = Columns().Identity;
    auto* const head = new QHBoxLayout;
    const auto add = [&](const ControlText& text, int most, std::string_view caption, std::string& bound,
                         int stretch) {
        QLineEdit* const box = MakeTextBox(text, most);
        bindings.Bind(*box, bound);
        head->addWidget(MakeCaption(caption, *box));
        head->addWidget(box, stretch);
    };
    add({.Name = "ColumnProj", .Tip = "Name of the project"}, MostProject, "Pro&ject", identity.ColumnProj,
        3);
    add({.Name = "columnID", .Tip = "The column's mark on the plans"}, MostId, "Column &ID",
        identity.columnID, 2);
    add({.Name = "ColumnDescription", .Tip = "Description of the column"}, MostDescription, "Descri&ption",
        identity.ColumnDescription, 3);
    head->addSpacing(DigitsWidth(*this, 2));
    head->addLayout(MakeFaces());
    return head;
}

QLayout* Form18::MakeFaces()
{
    auto* const line = new QHBoxLayout;
    auto* const options = new QButtonGroup(this);
    for (const FaceRow& row : FaceRows) {
        QRadioButton* const option = MakeOption(row.Control, row.Caption);
        options->addButton(option);
        bindings.BindOption(*option, Columns().Face, row.Face);
        line->addWidget(option);
    }
    return line;
}

QWidget* Form18::MakeColumnPage()
{
    auto* const page = new QWidget;
    auto* const row = new QHBoxLayout(page);
    row->setContentsMargins(0, 0, 0, 0);
    loadGroup = new ColumnLoadGroup(context, Columns());
    valuesGroup = new ColumnValuesGroup(context, Columns());
    sketch = new ColumnSketch;
    connect(loadGroup, &ColumnLoadGroup::Changed, this, &Form18::Refresh);
    connect(valuesGroup, &ColumnValuesGroup::Changed, this, &Form18::Refresh);
    connect(valuesGroup, &ColumnValuesGroup::LoadAsked, this, &Form18::LoadValues);
    connect(valuesGroup, &ColumnValuesGroup::SaveAsked, this, &Form18::SaveValues);
    row->addWidget(loadGroup);
    row->addWidget(valuesGroup);
    row->addWidget(sketch, 1);
    return page;
}

void Form18::MakeFoot()
{
    resultLine = MakePanel("ColumnPanel");
    studStatus = new StudStatusLine;
    studReport =
        MakeButton({.Name = "StudReportbutton", .Tip = "The record of the last complete run"}, "Repo&rt");
    checkStud = MakeButton({.Name = "StudOKCalcbutton", .Tip = "Checks the stud (Enter)"}, "O&K Calculate");
    checkStud->setAccessibleName(QStringLiteral("OK Calculate the stud"));
    calculate = MakeButton({.Name = "CmdOK", .Tip = "Check the entries and go on to the sizes (Enter)"},
                           "O&K Calculate");
    connect(studReport, &QPushButton::clicked, this, [this] { TheWalk().Go(Screen::StudRecord); });
    connect(checkStud, &QPushButton::clicked, this, &Form18::CheckStud);
    connect(calculate, &QPushButton::clicked, this, &Form18::Calculate);
    Foot().addWidget(resultLine, 1);
    Foot().addWidget(studStatus, 1);
    for (QPushButton* const command : {studReport, checkStud, calculate}) {
        Foot().addWidget(command);
    }
}

void Form18::MakeMenus()
{
    MakeFileMenu();
    QMenu& goTo = AddMenu("&Go to");
    AddCommand(goTo, {"backmnu", "Back to the beam (Esc)"}, "&Back", [this] { GoBack(); });
    AddCommand(goTo, {"MnuCriteria", "The entries of the beam"}, "Beam &Criteria",
               [this] { TheWalk().Go(Screen::Criteria); });
    AddToolsMenu();
    AddHelpMenu(GuidePage::WoodColumns);
}

void Form18::MakeFileMenu()
{
    QMenu& file = AddMenu("&File");
    AddCommand(
        file, {"MnuNewCol", "Begins another column"}, "&New Column", [this] { StartNew(); },
        QKeySequence::New);
    AddCommand(file, {"MnuLoadWdCol", "Shows the saved record of a wood column"}, "Load &Wood Column...",
               [this] { LoadRecord(ColumnRecordKind::Wood, Screen::WoodColumnRecord); });
    AddCommand(file, {"MnuLdStlCol", "Shows the saved record of a steel column"}, "Load &Steel Column...",
               [this] { LoadRecord(ColumnRecordKind::Steel, Screen::SteelColumnRecord); });
    AddCommand(file, {"MnuLoadStud", "The entries of a saved stud"}, "&Load Stud Record...",
               [this] { LoadStud(); });
    AddCommand(file, {"MnuSaveStud", "Saves the entries of the stud"}, "Sa&ve Stud Record...",
               [this] { SaveStud(); });
    AddExitCommand(file);
}

void Form18::OrderTabs()
{
    std::vector<QWidget*> order;
    for (const char* const name : {"ColumnProj", "columnID", "ColumnDescription"}) {
        order.push_back(findChild<QLineEdit*>(QLatin1String(name)));
    }
    for (const FaceRow& row : FaceRows) {
        order.push_back(findChild<QRadioButton*>(Text(row.Control.Name)));
    }
    order.insert(order.end(), {loadGroup, valuesGroup, sketch, calculate});
    for (const char* const name : {"StudSizeGroup", "StudAxialGroup", "StudWindGroup"}) {
        order.push_back(findChild<QWidget*>(QLatin1String(name)));
    }
    order.push_back(findChild<QWidget*>(QStringLiteral("StudSketch")));
    order.insert(order.end(), {checkStud, studReport});
    ChainTabStops(order);
}

Edition Form18::EditionNow()
{
    return EditionInForce(TheSession().Nds);
}

void Form18::Refresh()
{
    const ColumnScreen screen = DescribeColumnScreen(Columns(), TheSession());
    bindings.Show();
    pages->setCurrentIndex(screen.HasStuds ? StudPage : ColumnPage);
    loadGroup->ShowScreen(screen);
    valuesGroup->ShowScreen(screen);
    sketch->ShowPicture(ReadColumnPicture(Columns().Entry, Columns().Face));
    studGroup->ShowEntries();
    resultLine->setText(Text(screen.ResultLine));
    studStatus->ShowScreen(screen);
    studReport->setEnabled(screen.HasStudRun);
    for (QWidget* const part : std::initializer_list<QWidget*>{resultLine, calculate}) {
        part->setVisible(!screen.HasStuds);
    }
    for (QWidget* const part : std::initializer_list<QWidget*>{studStatus, studReport, checkStud}) {
        part->setVisible(screen.HasStuds);
    }
    calculate->setDefault(!screen.HasStuds);
    checkStud->setDefault(screen.HasStuds);
}

/// Validation may check a box even where it refuses.
void Form18::Calculate()
{
    const bool isSteel = Columns().Face == ColumnFace::Steel;
    const Outcome outcome = isSteel ? CalculateSteelColumn(Columns(), User())
                                    : CalculateWoodColumn(Columns(), EditionNow(), User());
    Refresh();
    if (outcome == Outcome::Done) {
        TheWalk().Go(isSteel ? Screen::SteelColumns : Screen::WoodColumns);
    }
}

void Form18::CheckStud()
{
    CalculateStud(Columns(), EditionNow(), User());
    Refresh();
}

void Form18::StartNew()
{
    if (OfferNewColumn(Columns(), UnsavedColumnWork(Columns()), User()) == Outcome::Done) {
        loadGroup->Import().hide();
        Refresh();
        FocusOn("columnID");
    }
}

void Form18::LoadRecord(ColumnRecordKind kind, Screen screen)
{
    const std::optional<std::string> path = TheWalk().Desktop().AskOpenFile(OpenColumnDialog(kind));
    ColumnSheet sheet;
    if (path && OpenColumnRecord(*path, kind, sheet, User()) == Outcome::Done) {
        TakeLoadedColumnRecord(Columns(), TheSession(), kind, sheet);
        TheWalk().RefreshBeside(Screen::Notes);
        TheWalk().Go(screen);
    }
}

void Form18::LoadStud()
{
    if (OfferToOpenStud(Columns(), User()) != Outcome::Done) {
        return;
    }
    const std::optional<std::string> path = TheWalk().Desktop().AskOpenFile(OpenStudColumnDialog);
    if (path && OpenStudRecord(*path, Columns(), TheSession().NoteClipboard, User()) == Outcome::Done) {
        RecallStud(Columns(), EditionNow());
        TheWalk().RefreshBeside(Screen::Notes);
        Refresh();
        FocusOn("WindStudHt");
    }
}

void Form18::SaveStud()
{
    const ReportNoteLines notes = AskToSaveStudNotes(User()) ? TheSession().NoteClipboard : ReportNoteLines{};
    if (const std::optional<std::string> path = TheWalk().Desktop().AskSaveFile(SaveStudColumnDialog)) {
        SaveStudRecord(Columns(), notes, *path, User());
    }
}

void Form18::LoadValues()
{
    if (const std::optional<std::string> path = TheWalk().Desktop().AskOpenFile(OpenCustomPostDialog)) {
        LoadCustomPost(*path, Columns().Entry, User());
        Refresh();
    }
}

void Form18::SaveValues()
{
    if (CheckCustomPostSavable(Columns().Entry, User()) != Outcome::Done) {
        return;
    }
    if (const std::optional<std::string> path = TheWalk().Desktop().AskSaveFile(SaveCustomPostDialog)) {
        SaveCustomPost(Columns().Entry, *path, User());
    }
}

}  // namespace kordavan
