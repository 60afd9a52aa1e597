#include "forms/Form1.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <exception>
#include <vector>

#include "design/CalculateAction.h"
#include "design/CriteriaScreen.h"
#include "design/EntryAdjustment.h"
#include "design/LoadPicture.h"
#include "design/NewBeam.h"
#include "design/SteelSelection.h"
#include "design/UnbracedEntry.h"
#include "forms/ConditionsGroup.h"
#include "forms/Form4.h"
#include "forms/HipValleyGroup.h"
#include "forms/LoadSketch.h"
#include "forms/MultiSpanGroup.h"
#include "forms/PartialLoadGroup.h"
#include "forms/PointLoadGroup.h"
#include "forms/SpanGroup.h"
#include "forms/SteelGroup.h"
#include "forms/SupportGroup.h"
#include "forms/UniformLoadGroup.h"
#include "records/CriteriaFile.h"

namespace kordavan {

namespace {

constexpr int MostProject = 35;
constexpr int MostItem = 25;
constexpr int MostDescription = 30;

Screen DiagramOf(SupportCondition support)
{
    switch (support) {
        case SupportCondition::Overhanging:
            return Screen::OverhangDiagram;
        case SupportCondition::HipValley:
            return Screen::HipDiagram;
        case SupportCondition::SimpleSpan:
        case SupportCondition::MultipleSpans:
            break;
    }
    return Screen::SimpleDiagram;
}

void TellFault(std::string_view what, UserPort& user)
{
    Message message = Marked(Alert(what), MessageIcon::Warning);
    message.Title = "Kordavan Error: Form 1";
    user.Tell(message);
}

}  // namespace

Form1::Form1(Walk& walk)
    : Form(walk, "Form1"),
      numbers{.User = walk.User(), .CalculatorText = [&walk] { return walk.CalculatorText(); }},
      context{.Owner = *this,
              .Boxes = bindings,
              .Numbers = numbers,
              .Beam = walk.CurrentSession(),
              .Apply = [this](const SessionChange& change) { return Apply(change); }}
{
    Body().addLayout(MakeHead());
    Body().addLayout(MakeCriteria());
    Body().addLayout(MakeSketch(), 1);
    Body().addLayout(MakeLoads());
    MakeFoot();
    MakeMenus();
    OrderTabs();
    gauge = new Form4(*this);
    connect(&bindings, &Bindings::Edited, this, &Form1::AfterEdit);
    connect(sketch, &LoadSketch::LoadChosen, this, [this](const QString& box) { FocusOn(Text(box)); });
    connect(supportGroup, &SupportGroup::DiagramAsked, this, &Form1::ShowDiagram);
    Refresh();
    FocusOn("Proj");
}

void Form1::Activate()
{
    RestoreEntries(TheSession());
    Refresh();
}

GuidePage Form1::Guide()
{
    switch (TheSession().Problem.Support) {
        case SupportCondition::HipValley:
            return GuidePage::Hips;
        case SupportCondition::MultipleSpans:
            return GuidePage::MultipleSpans;
        case SupportCondition::SimpleSpan:
        case SupportCondition::Overhanging:
            break;
    }
    return GuidePage::Criteria;
}

QAbstractButton* Form1::DefaultCommand()
{
    if (partialCalculator->isVisibleTo(this)) {
        return &partialCalculator->InsertCommand();
    }
    return DescribeCriteriaScreen(TheSession()).MustCalculateHipLoad ? &hipGroup->CalculateCommand()
                                                                     : calculate;
}

void Form1::GoBack()
{
    partialCalculator->PutAway();
}

QLayout* Form1::MakeHead()
{
    BeamProblem& problem = TheSession().Problem;
    auto* const head = new QHBoxLayout;
    const auto add = [&](const ControlText& text, int most, std::string_view caption, std::string& bound,
                         int stretch) {
        QLineEdit* const box = MakeTextBox(text, most);
        bindings.Bind(*box, bound);
        head->addWidget(MakeCaption(caption, *box));
        head->addWidget(box, stretch);
    };
    add({.Name = "Proj", .Tip = "Name of the project"}, MostProject, "Pro&ject", problem.Proj, 3);
    add({.Name = "ID", .Tip = "Item: the beam's mark on the plans"}, MostItem, "&Item", problem.ID, 2);
    add({.Name = "Descrip", .Tip = "Description of the beam"}, MostDescription, "Descri&ption",
        problem.Descrip, 3);
    material = new QComboBox;
    Describe(*material, {.Name = "Combo1", .Tip = "Material of the beam"});
    IgnoreStrayWheel(*material);
    for (const SpeciesGroupRow& row : SpeciesGroups) {
        material->addItem(Text(row.Text));
    }
    connect(material, &QComboBox::activated, this,
            [this](int index) { ChooseMaterial(static_cast<SpeciesGroup>(index)); });
    head->addWidget(MakeCaption("&Material", *material));
    head->addWidget(material);
    return head;
}

QLayout* Form1::MakeCriteria()
{
    auto* const row = new QHBoxLayout;
    supportGroup = new SupportGroup(context);
    spanGroup = new SpanGroup(context);
    conditionsGroup = new ConditionsGroup(context);
    row->addWidget(supportGroup);
    row->addWidget(spanGroup);
    row->addWidget(conditionsGroup, 1);
    return row;
}

QLayout* Form1::MakeSketch()
{
    auto* const row = new QHBoxLayout;
    steelGroup = new SteelGroup(context);
    sketch = new LoadSketch;
    row->addWidget(steelGroup);
    row->addWidget(sketch, 1);
    return row;
}

QLayout* Form1::MakeLoads()
{
    auto* const row = new QHBoxLayout;
    uniformGroup = new UniformLoadGroup(context);
    hipGroup = new HipValleyGroup(context);
    multiGroup = new MultiSpanGroup(context);
    tables = new QStackedWidget;
    tables->addWidget(MakePointAndPartialPage());
    tables->addWidget(hipGroup);
    tables->addWidget(multiGroup);
    row->addWidget(uniformGroup);
    row->addWidget(tables, 1);
    connect(hipGroup, &HipValleyGroup::Calculated, this, [this] { FocusOn("CmdOK"); });
    return row;
}

QWidget* Form1::MakePointAndPartialPage()
{
    auto* const page = new QWidget;
    auto* const line = new QHBoxLayout(page);
    line->setContentsMargins(0, 0, 0, 0);
    pointGroup = new PointLoadGroup(context);
    partialCalculator = new PartialCalculator(context);
    partialGroup = new PartialLoadGroup(context);
    line->addWidget(pointGroup);
    line->addWidget(partialCalculator);
    line->addWidget(partialGroup);
    line->addStretch(1);
    connect(partialGroup, &PartialLoadGroup::CalculatorAsked, partialCalculator, &PartialCalculator::Open);
    connect(partialCalculator, &PartialCalculator::Opened, this, [this] { calculate->setEnabled(false); });
    connect(partialCalculator, &PartialCalculator::Closed, this, [this] { calculate->setEnabled(true); });
    return page;
}

void Form1::MakeFoot()
{
    resultLine = MakePanel("SavePanel");
    calculate = MakeButton({.Name = "CmdOK", .Tip = "Check the entries and go on to the selection (Enter)"},
                           "O&K Calculate");
    connect(calculate, &QPushButton::clicked, this, &Form1::Calculate);
    Foot().addWidget(resultLine, 1);
    Foot().addWidget(calculate);
}

void Form1::MakeMenus()
{
    MakeFileMenu();
    QMenu& options = AddMenu("&Options");
    AddCommand(options, {"MnuDefaults", "Edition, print header, load pairs and other standing choices"},
               "Set &Defaults", [this] { TheWalk().Go(Screen::Settings); });
    QMenu& goTo = AddMenu("&Go to");
    dataRecord = &AddCommand(goTo, {"MnuDataRecord", "The Data Record of the member on record"},
                             "&Data Record", [this] { TheWalk().Go(Screen::Record); });
    diagram = &AddDiagramCommand(goTo);
    AddCommand(
        goTo, {"MnuColumns", "Columns of wood and steel, and wall studs under wind"}, "&Columns",
        [this] { TheWalk().Go(Screen::Columns); }, QKeySequence(Qt::Key_F7));
    AddCommand(
        goTo, {"MnuNotch", "The shear at the notched end of a wood member"}, "&Notch Check",
        [this] { TheWalk().Go(Screen::Notch); }, QKeySequence(Qt::Key_F6));
    AddToolsMenu();
    AddHelpMenu(GuidePage::Criteria);
}

void Form1::MakeFileMenu()
{
    QMenu& file = AddMenu("&File");
    AddCommand(
        file, {"MnuNew", "Begins another beam"}, "&New Beam", [this] { StartNew(); }, QKeySequence::New);
    AddCommand(
        file, {"MnuOpenBeam", "Opens the criteria of a saved beam"}, "&Open Beam...", [this] { OpenBeam(); },
        QKeySequence::Open);
    AddCommand(
        file, {"MnuSaveBeam", "Saves the criteria of this beam"}, "&Save Beam...", [this] { SaveBeam(); },
        QKeySequence::Save);
    file.addSeparator();
    for (std::size_t k = 0; k < recentFiles.size(); ++k) {
        recentFiles[k] = &AddCommand(file, {BoxName("MnuRecent", k)}, {},
                                     [this, k] { OpenRecent(Text(recentFiles[k]->data().toString())); });
    }
    connect(&file, &QMenu::aboutToShow, this, &Form1::ShowRecentFiles);
    file.addSeparator();
    AddCommand(file, {"MnuExplorer", "The folder that the program works in"}, "Open File &Explorer",
               [this] { OpenExplorer(); });
    AddExitCommand(file);
}

void Form1::ShowRecentFiles()
{
    const std::vector<std::string> files = ReadRecentFiles(TheWalk().RecentFilesPath());
    for (std::size_t k = 0; k < recentFiles.size(); ++k) {
        const bool hasFile = k < files.size();
        recentFiles[k]->setVisible(hasFile);
        if (hasFile) {
            const QString path = Text(files[k]);
            recentFiles[k]->setData(path);
            recentFiles[k]->setText(QStringLiteral("&%1 %2").arg(k + 1).arg(
                QFileInfo(path).fileName().replace(QLatin1String("&"), QLatin1String("&&"))));
            recentFiles[k]->setToolTip(path);
        }
    }
}

void Form1::OrderTabs()
{
    std::vector<QWidget*> order;
    for (const char* const name : {"Proj", "ID", "Descrip"}) {
        order.push_back(findChild<QLineEdit*>(QLatin1String(name)));
    }
    order.insert(order.end(),
                 {material, supportGroup, spanGroup, conditionsGroup, steelGroup, sketch, uniformGroup,
                  pointGroup, partialCalculator, partialGroup, hipGroup, multiGroup, calculate});
    ChainTabStops(order);
}

Outcome Form1::Apply(const SessionChange& change)
{
    const SupportCondition before = TheSession().Problem.Support;
    const Outcome outcome = change(TheSession(), User());
    if (TheSession().Problem.Support != before) {
        partialCalculator->PutAway();
    }
    Refresh();
    return outcome;
}

void Form1::AfterEdit(const QString& box)
{
    EntryEdited(TheSession(), Text(box));
    Refresh();
}

void Form1::Refresh()
{
    const Session& session = TheSession();
    const CriteriaScreen screen = DescribeCriteriaScreen(session);
    bindings.Show();
    setWindowTitle(Text(screen.Title));
    material->setCurrentIndex(static_cast<int>(session.Problem.Combo1));
    spanGroup->ShowScreen(screen);
    conditionsGroup->ShowScreen(screen, session.Problem);
    steelGroup->setVisible(screen.HasSteel);
    uniformGroup->ShowScreen(screen);
    pointGroup->ShowScreen(screen);
    partialGroup->ShowScreen(screen);
    hipGroup->ShowScreen(screen);
    multiGroup->ShowScreen(screen);
    tables->setCurrentIndex(static_cast<int>(screen.Tables));
    sketch->Show(ReadLoadPicture(session));
    resultLine->setText(Text(screen.SavePanel));
    dataRecord->setEnabled(screen.HasRecord);
    diagram->setEnabled(TheWalk().AnalysisCount > 0);
    calculate->setDefault(!screen.MustCalculateHipLoad);
}

void Form1::ShowDiagram(SupportCondition support)
{
    TheWalk().ShowBeside(DiagramOf(support));
}

void Form1::StartNew()
{
    if (OfferNewBeam(TheSession(), User()) == Outcome::Done) {
        partialCalculator->PutAway();
        TheWalk().RefreshBeside(Screen::Notes);
        Refresh();
        FocusOn("Proj");
    }
}

void Form1::OpenBeam()
{
    if (OfferToOpen(TheSession(), User()) != Outcome::Done) {
        return;
    }
    if (const std::optional<std::string> path = TheWalk().Desktop().AskOpenFile(OpenCriteriaDialog)) {
        LoadBeam(*path);
    }
}

void Form1::OpenRecent(const std::string& path)
{
    if (OfferToOpen(TheSession(), User()) == Outcome::Done) {
        LoadBeam(path);
    }
}

void Form1::LoadBeam(const std::string& path)
{
    if (LoadCriteriaFile(TheSession(), path, User()) != Outcome::Done) {
        return;
    }
    AddRecentFile(TheWalk().RecentFilesPath(), path);
    partialCalculator->PutAway();
    Refresh();
    FocusOn("Span");
}

void Form1::SaveBeam()
{
    if (CheckCriteriaSavable(TheSession(), User()) != Outcome::Done) {
        return;
    }
    DesktopPort& desktop = TheWalk().Desktop();
    const std::optional<std::string> path = desktop.AskSaveFile(SaveCriteriaDialog);
    if (path && SaveCriteriaFile(TheSession(), *path, desktop.Today(), User()) == Outcome::Done) {
        AddRecentFile(TheWalk().RecentFilesPath(), *path);
    }
}

void Form1::OpenExplorer()
{
    if (!TheWalk().Desktop().OpenFileExplorer()) {
        User().Tell(Alert("There is no file explorer to open on this desktop."));
    }
}

void Form1::ChooseMaterial(SpeciesGroup group)
{
    Apply([group](Session& session, UserPort& user) {
        return ChangeEntries(session, user, [group](Session& changed, UserPort& /*user*/) {
            SwitchMaterial(changed, group, changed.Problem.Family);
            return Outcome::Done;
        });
    });
}

void Form1::Calculate()
{
    const Progress progress([this](int percent) { gauge->Reach(percent); });
    try {
        if (CalculateAction(TheSession(), User(), progress) == Outcome::Done) {
            ++TheWalk().AnalysisCount;
            TheWalk().PutAway(Screen::LoadDiagram);
            OpenSelection();
        } else {
            Refresh();
        }
    } catch (const std::exception& fault) {
        TellFault(fault.what(), User());
    }
    gauge->hide();
}

/// A steel beam whose shears cannot be compared stays here.
void Form1::OpenSelection()
{
    if (TheSession().Numbers.IsSteel() && OpenSteelSelection(TheSession(), User()) != Outcome::Done) {
        Activate();
        return;
    }
    TheWalk().Go(TheWalk().SelectionScreen());
}

}  // namespace kordavan
