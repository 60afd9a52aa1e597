#include "forms/Form13.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/SpeciesGroup.h"
#include "forms/EditionGroup.h"
#include "forms/LoadPairGroup.h"
#include "records/DefaultsFile.h"
#include "records/DefaultsLayout.h"

namespace kordavan {

namespace {

constexpr int HeaderDigits = 40;
constexpr int CaptionDigits = 14;

constexpr std::string_view HelpTitle = "DEFAULT SETTINGS";
constexpr std::string_view HelpOnSettings =
    "Enter a report header and make selections that you want automatically set when you start Kordavan.\n\n"
    "These settings are kept in a file called Kordavan201.ini located in your Kordavan Software Directory.";

/// The characters that the settings file has room for.
int MostCharacters(std::string_view field)
{
    return static_cast<int>(FindRecordField(DefaultsLayout, field)->Length);
}

/// A group that the form itself lays out.
class PlainGroup : public EntryGroup {
public:
    using EntryGroup::AddCheck;
    using EntryGroup::EntryGroup;
    using EntryGroup::Grid;
};

}  // namespace

Form13::Form13(Walk& walk)
    : Form(walk, "Form13"),
      numbers{.User = walk.User(), .CalculatorText = [&walk] { return walk.CalculatorText(); }},
      context{.Owner = *this,
              .Boxes = bindings,
              .Numbers = numbers,
              .Beam = walk.CurrentSession(),
              .Apply = [this](const SessionChange& change) {
                  const Outcome outcome = change(TheSession(), User());
                  ShowSettings();
                  return outcome;
              }}
{
    setWindowTitle(QStringLiteral(" Kordavan Default Settings"));
    editionGroup = new EditionGroup(context);
    pairGroup = new LoadPairGroup(context, settings.LoadPairs);
    auto* const columns = new QHBoxLayout;
    columns->addLayout(MakeColumn({MakeHeader(), MakeStart()}), 1);
    columns->addLayout(MakeColumn({editionGroup}));
    columns->addLayout(MakeColumn({pairGroup, MakeSteel()}));
    Body().addLayout(columns);
    Body().addStretch(1);
    MakeFoot();
    MakeMenus();
    OrderTabs();
}

void Form13::Activate()
{
    settings = SettingsToShow(TheSession());
    ShowSettings();
    FocusOn("DefHead1");
}

QAbstractButton* Form13::DefaultCommand()
{
    return save;
}

void Form13::GoBack()
{
    TheWalk().Go(Screen::Criteria);
}

QWidget* Form13::MakeHeader()
{
    auto* const group = new PlainGroup(context, "HeaderGroup", "Report header");
    int line = 0;
    const auto add = [&](const ControlText& text, std::string_view caption, std::string& bound) {
        QLineEdit* const box = MakeTextBox(text, MostCharacters(text.Name));
        bindings.Bind(*box, bound);
        group->Grid().addWidget(MakeCaption(caption, *box), line, 0);
        group->Grid().addWidget(box, line, 1);
        ++line;
        return box;
    };
    QLineEdit* const first = add({.Name = "DefHead1", .Tip = "First line at the head of print-outs"},
                                 "Fi&rst line", settings.DefHead1);
    first->setMinimumWidth(DigitsWidth(*first, HeaderDigits));
    add({.Name = "DefHead2", .Tip = "Second line at the head of print-outs"}, "Sec&ond line",
        settings.DefHead2);
    QLineEdit* const initials =
        add({.Name = "DefInitials", .Tip = "Initials of the designer, 8 characters at most"}, "&Initials",
            settings.DefInitials);
    initials->setMaximumWidth(DigitsWidth(*initials, 2 * initials->maxLength()));
    group->Grid().setColumnMinimumWidth(0, DigitsWidth(*group, CaptionDigits));
    return group;
}

QWidget* Form13::MakeStart()
{
    auto* const group = new PlainGroup(context, "StartGroup", "Start and printing");
    material = MakeMaterials();
    font = MakeFonts();
    int line = 0;
    for (const auto& [caption, list] :
         {std::pair{"&Material at start", material}, std::pair{"&Print font", font}}) {
        group->Grid().addWidget(MakeCaption(caption, *list), line, 0);
        group->Grid().addWidget(list, line, 1);
        ++line;
    }
    const auto add = [&](const ControlText& text, std::string_view caption, bool& bound) {
        group->Grid().addWidget(group->AddCheck(text, caption, bound), line, 0, 1, 3);
        ++line;
    };
    add({.Name = "Def600", .Tip = "Print-outs with fine lines"},
        "&600 dpi printout (if you have a 600 dpi printer) ", settings.Def600);
    add({.Name = "CenterFormCheckbox", .Tip = "Each form comes up in the middle of the screen"},
        "Automatically Center &User Forms", settings.CenterFormCheckbox);
    add({.Name = "DefaultPrinterCheckbox", .Tip = "After a print-out the printer is the usual one again"},
        "Always Restore &Default Printer", settings.DefaultPrinterCheckbox);
    group->Grid().addWidget(MakeSettingsHelp(), line - 1, 3);
    group->Grid().setColumnMinimumWidth(0, DigitsWidth(*group, CaptionDigits));
    group->Grid().setColumnStretch(2, 1);
    group->Grid().setRowStretch(line, 1);
    return group;
}

QWidget* Form13::MakeSteel()
{
    auto* const group = new PlainGroup(context, "SteelGroup", "Steel");
    group->Grid().addWidget(
        group->AddCheck({.Name = "Def50ksi", .Tip = "Steel beams begin with a yield strength of 50 ksi"},
                        " 50 &ksi Steel", settings.Def50ksi),
        0, 0);
    return group;
}

QLayout* Form13::MakeColumn(std::initializer_list<QWidget*> groups)
{
    auto* const column = new QVBoxLayout;
    for (QWidget* const group : groups) {
        column->addWidget(group);
    }
    return column;
}

void Form13::MakeFoot()
{
    close = MakeButton({.Name = "CmdCancel", .Tip = "Back to Form 1; what was saved stays as it is (Esc)"},
                       "&Close (exit without changes)");
    connect(close, &QPushButton::clicked, this, [this] { GoBack(); });
    save = MakeButton({.Name = "CmdSave", .Tip = "Keeps these settings and goes back to Form 1 (Enter)"},
                      "&Save as Defaults (keep changes)");
    save->setDefault(true);
    connect(save, &QPushButton::clicked, this, &Form13::Save);
    Foot().addStretch(1);
    for (QPushButton* const command : {close, save}) {
        Foot().addWidget(command);
        pairGroup->SpareOnTheWayTo(*command);
    }
}

void Form13::MakeMenus()
{
    AddExitCommand(AddMenu("&File"));
    AddToolsMenu();
    AddHelpMenu(GuidePage::Settings);
}

void Form13::OrderTabs()
{
    std::vector<QWidget*> order;
    for (const char* const group :
         {"HeaderGroup", "StartGroup", "EditionGroup", "LoadPairGroup", "SteelGroup"}) {
        order.push_back(findChild<QWidget*>(QLatin1String(group)));
    }
    order.insert(order.end(), {close, save});
    ChainTabStops(order);
}

QComboBox* Form13::MakeMaterials()
{
    auto* const list = new QComboBox;
    Describe(*list, {.Name = "DefCombo", .Tip = "Material of the beam when the program starts"});
    IgnoreStrayWheel(*list);
    for (const SpeciesGroupRow& row : SpeciesGroups) {
        list->addItem(Text(row.Text));
    }
    connect(list, &QComboBox::activated, this, [this](int index) { settings.DefCombo = index; });
    return list;
}

/// A name that the settings file would cut off is not offered, as no font would be found by it.
QComboBox* Form13::MakeFonts()
{
    auto* const list = new QComboBox;
    Describe(*list, {.Name = "FontCombo", .Tip = "Font of print-outs; Arial is recommended"});
    IgnoreStrayWheel(*list);
    const int most = MostCharacters("FontCombo");
    list->setMinimumContentsLength(most);
    for (const QString& family : QFontDatabase::families()) {
        if (family.size() <= most) {
            list->addItem(family);
        }
    }
    connect(list, &QComboBox::textActivated, this,
            [this](const QString& family) { settings.FontCombo = Text(family); });
    return list;
}

HelpButton* Form13::MakeSettingsHelp()
{
    auto* const button = new HelpButton(
        "Command3D1", "Default settings",
        {"DefHead1", "DefHead2", "DefInitials", "DefCombo", "FontCombo", "Def600", "Def50ksi"});
    connect(button, &QToolButton::clicked, this, [this] {
        Message help = Marked(Alert(HelpOnSettings), MessageIcon::Information);
        help.Title = HelpTitle;
        User().Tell(help);
    });
    return button;
}

void Form13::ShowSettings()
{
    editionGroup->SetEdition(EditionInForce(TheSession().Nds));
    bindings.Show();
    material->setCurrentIndex(settings.DefCombo);
    ShowFont();
}

/// A font that this system has not is shown and kept all the same.
void Form13::ShowFont()
{
    const QString family = Text(settings.FontCombo);
    if (font->findText(family, Qt::MatchFixedString | Qt::MatchCaseSensitive) < 0) {
        font->insertItem(0, family);
    }
    font->setCurrentIndex(font->findText(family, Qt::MatchFixedString | Qt::MatchCaseSensitive));
}

void Form13::Save()
{
    if (SaveDefaults(TheSession(), settings, TheWalk().DefaultsPath(), User()) == Outcome::Done) {
        TheWalk().Go(Screen::Criteria);
    }
}

}  // namespace kordavan
