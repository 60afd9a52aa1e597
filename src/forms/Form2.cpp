#include "forms/Form2.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include "design/OwnScreen.h"
#include "design/Selection.h"
#include "forms/ChoiceBox.h"
#include "forms/OwnPickRow.h"
#include "forms/OwnSectionGroup.h"
#include "forms/OwnValuesGroup.h"
#include "records/CustomValuesFile.h"
#include "records/SclFile.h"

namespace kordavan {

namespace {

constexpr int SizeDigits = 12;

/// A diameter is a size, not a value.
CustomEntry WithoutDiameter(CustomEntry custom)
{
    custom.Diam.clear();
    return custom;
}

}  // namespace

Form2::Form2(Walk& walk)
    : SelectionForm(walk, "Form2"),
      numbers{.User = walk.User(), .CalculatorText = [&walk] { return walk.CalculatorText(); }},
      context{.Owner = *this,
              .Boxes = bindings,
              .Numbers = numbers,
              .Beam = walk.CurrentSession(),
              .Apply = [this](const SessionChange& change) {
                  const Outcome outcome = change(TheSession(), User());
                  Refresh();
                  return outcome;
              }}
{
    BuildHeader();
    BuildGroups();
    BuildSizes();
    BuildFoot();
    BuildMenus();
    OrderTabs();
    connect(&bindings, &Bindings::Edited, this, &Form2::Refresh);
    Refresh();
}

void Form2::Activate()
{
    const bool isNewAnalysis = TakeNewAnalysis();
    if (isNewAnalysis) {
        StartOver();
    }
    ShowHeader();
    Refresh();
    if (isNewAnalysis) {
        FocusOnStart();
    }
}

QAbstractButton* Form2::DefaultCommand()
{
    return AreValuesEntered() ? test : &values->EnterCommand();
}

void Form2::BuildHeader()
{
    valuesInUse = MakePanel("LabelINGRADE");
    SelectionForm::BuildHeader({valuesInUse}, {"MOMENT", "Reac1", "Reac2"});
}

void Form2::BuildGroups()
{
    section = new OwnSectionGroup(context);
    values = new OwnValuesGroup(context);
    pickRow = new OwnPickRow;
    connect(section, &OwnSectionGroup::ProductChosen, this, &Form2::ChooseProduct);
    connect(values, &OwnValuesGroup::LoadAsked, this, &Form2::LoadValues);
    connect(values, &OwnValuesGroup::SaveAsked, this, &Form2::SaveValues);
    connect(values, &OwnValuesGroup::EnterAsked, this, &Form2::OnEnterValues);
    connect(pickRow, &OwnPickRow::Picked, this, &Form2::OnPick);
    connect(pickRow, &OwnPickRow::DepthPicked, this, &Form2::OnDepth);
    auto* const groups = new QHBoxLayout;
    groups->addWidget(section, 1);
    groups->addWidget(values, 1);
    Body().addLayout(groups);
    Body().addSpacing(fontMetrics().height() / 2);
    Body().addWidget(pickRow);
}

void Form2::BuildSizes()
{
    MemberEntry& entry = TheSession().Entry;
    breadth =
        new ChoiceBox({.Name = "Text6",
                       .Tip = "Breadth to test, exactly as listed (Down key); timbers also by half inches"},
                      SizeDigits);
    depth =
        new ChoiceBox({.Name = "Text7", .Tip = "Depth to test, exactly as listed (Down key)"}, SizeDigits);
    bindings.Bind(*breadth, entry.BreadthText);
    bindings.Bind(*depth, entry.DepthText);
    label20 = MakeNamedLabel("Label20");
    moreSizes = MakeNamedLabel("Moresizes");
    sizes = new QWidget;
    auto* const line = new QHBoxLayout(sizes);
    line->setContentsMargins(0, 0, 0, 0);
    for (const auto& [caption, box] : {std::pair{"Breadth", breadth}, std::pair{"&Depth", depth}}) {
        line->addWidget(MakeCaption(caption, *box));
        line->addWidget(box);
        box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }
    line->addWidget(label20);
    line->addWidget(moreSizes, 1);
    KeepPlace(*sizes);
    Body().addWidget(sizes);
    Body().addStretch(1);
}

void Form2::BuildFoot()
{
    panel = MakePanel("WoodStatisPanel");
    test = MakeButton({.Name = "CmdTest", .Tip = "Tests the member and shows the report"}, "O&K Test");
    connect(test, &QPushButton::clicked, this, &Form2::OnTest);
    Foot().addWidget(panel, 1);
    Foot().addWidget(test);
}

void Form2::BuildMenus()
{
    QMenu& file = AddMenu("&File");
    loadFile = &AddCommand(file, {"MnuLoadCustom", "Values of a saved species and grade"}, "&Load Values...",
                           [this] { LoadFile(); });
    AddCommand(file, {"MnuSaveCustom", "Saves the values of custom wood under a name"}, "&Save Values...",
               [this] { SaveFile(); });
    AddExitCommand(file);
    BuildOtherMenus(GuidePage::OwnSections);
}

void Form2::OrderTabs()
{
    std::vector<QWidget*> order{section};
    for (const char* const name : {"Text1", "Text2", "Text4", "Text3", "Text5", "Text8", "CustomIngradeSP",
                                   "MSRCheckbox", "MELCheckbox", "CmdEnterValues"}) {
        order.push_back(findChild<QWidget*>(QLatin1String(name)));
    }
    order.insert(order.end(), {pickRow, breadth, depth, test});
    for (const char* const name : {"LVLLoadDefault", "LVLsavedefault", "LoadVal", "SaveVal"}) {
        order.push_back(findChild<QWidget*>(QLatin1String(name)));
    }
    ChainTabStops(order);
}

/// The values of a product are read from its file; those of custom wood are still there.
void Form2::StartOver()
{
    Session& session = TheSession();
    entered.reset();
    if (session.Numbers.Group == SpeciesGroup::Scl) {
        LoadProduct();
        session.Entry.BreadthText.clear();
        session.Entry.DepthText.clear();
    }
    picks = PicksWithoutValues(session);
    if (HasAllValues(session.Entry, session.Numbers.Group)) {
        OnEnterValues();
    }
}

void Form2::Refresh()
{
    const Session& session = TheSession();
    const OwnScreen screen = DescribeOwnScreen(session);
    bindings.Show();
    setWindowTitle(Text(screen.Title));
    section->ShowScreen(screen);
    values->ShowScreen(screen);
    if (!AreValuesEntered()) {
        entered.reset();
        picks = PicksWithoutValues(session);
    }
    pickRow->ShowPicks(picks, session);
    pickRow->ShowDepths(AreValuesEntered() ? SuggestDepths(session) : std::vector<std::string_view>{});
    ShowSizes(screen);
    loadFile->setEnabled(!screen.IsComposite);
    values->EnterCommand().setDefault(!AreValuesEntered());
    test->setDefault(AreValuesEntered());
}

void Form2::ShowHeader()
{
    const SelectionTexts texts = MakeSelectionTexts(TheSession());
    valuesInUse->setText(Text(texts.LabelINGRADE));
    ShowLoads(texts.MOMENT, texts.Reac1, texts.Reac2);
    panel->setText(Text(texts.WoodStatisPanel));
}

void Form2::ShowSizes(const OwnScreen& screen)
{
    const Session& session = TheSession();
    sizes->setVisible(!screen.IsRound);
    label20->setText(Text(screen.Label20));
    moreSizes->setText(Text(screen.Moresizes));
    breadth->SetChoices(OwnBreadthChoices(session.Entry, session.Numbers.Group));
    depth->SetChoices(OwnDepthChoices(session.Entry, session.Numbers.Group));
}

bool Form2::AreValuesEntered() const
{
    const MemberEntry& entry = context.Beam.Entry;
    return entered && entered->Custom == WithoutDiameter(entry.Custom) && entered->Product == entry.Product;
}

void Form2::FocusOnStart()
{
    if (!AreValuesEntered() || !pickRow->FocusFirst()) {
        FocusOn("Text1");
    }
}

void Form2::ChooseProduct(int product)
{
    TheSession().Entry.Product = static_cast<std::size_t>(product);
    LoadProduct();
    Refresh();
}

void Form2::LoadProduct()
{
    MemberEntry& entry = TheSession().Entry;
    const SclValues saved = LoadSclValues(TheWalk().Desktop().FixedFilesFolder(), entry.Product, User());
    entry.Custom.Fb = saved.Fb;
    entry.Custom.Fv = saved.Fv;
    entry.Custom.E = saved.E;
    entry.Custom.FcPerp = saved.FcPerp;
    entry.Custom.Exponent = saved.Exponent;
    entry.SpeciesText = saved.Name;
}

void Form2::LoadValues()
{
    if (TheSession().Numbers.Group == SpeciesGroup::Scl) {
        LoadProduct();
        Refresh();
    } else {
        LoadFile();
    }
}

void Form2::SaveValues()
{
    if (TheSession().Numbers.Group == SpeciesGroup::Scl) {
        SaveProduct();
    } else {
        SaveFile();
    }
}

void Form2::SaveProduct()
{
    const MemberEntry& entry = TheSession().Entry;
    SaveSclValues(TheWalk().Desktop().FixedFilesFolder(), entry.Product,
                  {.Fb = entry.Custom.Fb,
                   .Fv = entry.Custom.Fv,
                   .E = entry.Custom.E,
                   .FcPerp = entry.Custom.FcPerp,
                   .Exponent = entry.Custom.Exponent,
                   .Name = entry.SpeciesText},
                  User());
}

void Form2::LoadFile()
{
    if (const std::optional<std::string> path = TheWalk().Desktop().AskOpenFile(OpenCustomValuesDialog)) {
        LoadCustomValues(TheSession(), *path, User());
        Refresh();
    }
}

void Form2::SaveFile()
{
    if (CheckCustomValuesSavable(TheSession(), User()) != Outcome::Done) {
        return;
    }
    if (const std::optional<std::string> path = TheWalk().Desktop().AskSaveFile(SaveCustomValuesDialog)) {
        SaveCustomValues(TheSession(), *path, User());
    }
}

void Form2::OnEnterValues()
{
    Session& session = TheSession();
    if (EnterValues(session, User(), picks) == Outcome::Done) {
        entered = EnteredValues{WithoutDiameter(session.Entry.Custom), session.Entry.Product};
        TellNoDepths(session, SuggestDepths(session), User());
        Refresh();
        pickRow->FocusFirst();
    } else {
        entered.reset();
        Refresh();
    }
}

void Form2::OnPick(std::size_t index)
{
    TakeOwnPick(TheSession().Entry, picks[index]);
    Refresh();
    test->setFocus(Qt::OtherFocusReason);
}

void Form2::OnDepth(const QString& text)
{
    TheSession().Entry.DepthText = Text(text);
    Refresh();
    test->setFocus(Qt::OtherFocusReason);
}

void Form2::OnTest()
{
    if (TestEntered(TheSession(), User()) == Outcome::Done) {
        TheWalk().Go(Screen::TestReport);
    }
}

}  // namespace kordavan
