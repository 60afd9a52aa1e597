#include "forms/ColumnValuesGroup.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "columns/ColumnCriteria.h"
#include "columns/ColumnSpecies.h"
#include "forms/ColumnHelp.h"
#include "forms/Form.h"
#include "forms/NoteLine.h"
#include "forms/SpeciesBox.h"

namespace kordavan {

namespace {

struct TypeRow {
    ColumnType Type;
    ControlText Control;
    std::string_view Caption;
};

constexpr std::array TypeRows{
    TypeRow{ColumnType::SolidSawn6x,
            {.Name = "CSolidButton", .Tip = "One timber, 6x and larger"},
            "Solid Sawn 6x+"},
    TypeRow{ColumnType::SolidSawn2xOr4x,
            {.Name = "cSolid4xbutton", .Tip = "One piece of dimension lumber"},
            "Solid Sawn 2x or 4x"},
    TypeRow{ColumnType::NailedBuiltUp,
            {.Name = "CNailedButton", .Tip = "Two to five 2x side by side, nailed"},
            "Nailed Built-up 2xs"},
    TypeRow{ColumnType::BoltedBuiltUp,
            {.Name = "CBoltedButton", .Tip = "Two to five 2x side by side, bolted"},
            "Bolted Built-up 2xs"},
};

struct ValueGroupRow {
    ColumnValueGroup Group;
    ControlText Control;
    std::string_view Caption;
};

constexpr std::array ValueGroupRows{
    ValueGroupRow{ColumnValueGroup::DimensionLumber,
                  {.Name = "FramingButton", .Tip = "Values of lumber 2 to 4 in. thick"},
                  "Dimension Lumber"},
    ValueGroupRow{ColumnValueGroup::PostAndTimber,
                  {.Name = "TimberButton", .Tip = "Values of 5x5 and larger, nearly square"},
                  "Post and Timber"},
    ValueGroupRow{ColumnValueGroup::BeamAndStringer,
                  {.Name = "StringerButton", .Tip = "Values of timbers more than 2 in. wider than thick"},
                  "Beam and Stringer"},
};

constexpr std::string_view LongestNote =
    "Southern Pine has no values of dimension lumber here: Fc and E are those of timbers.";
constexpr int ValueDigits = 8;
constexpr int MostName = 30;

enum Line { OptionLine, SpeciesLine = OptionLine + 4, ValueLine, NoteTextLine, CommandLine, LastLine };
enum Column { FirstColumn, SecondColumn, HelpColumn };

}  // namespace

ColumnValuesGroup::ColumnValuesGroup(const GroupContext& context, ColumnSession& currentColumns)
    : EntryGroup(context, "ColumnValuesGroup", "Wood and values"), columns(currentColumns)
{
    AddTypes();
    AddGroups();
    AddSpecies();
    AddValues();
    AddCommands();
    Grid().setColumnStretch(FirstColumn, 1);
    Grid().setColumnStretch(SecondColumn, 1);
    Grid().setRowStretch(LastLine, 1);
}

void ColumnValuesGroup::ShowScreen(const ColumnScreen& screen)
{
    setVisible(screen.HasWood);
    species->Show(columns.Entry.ColSpeciesCombo, ColumnSpeciesNames(columns.Entry.ValueGroup));
    note->setText(Text(screen.SpeciesNote));
}

void ColumnValuesGroup::AddTypes()
{
    auto* const options = new QButtonGroup(this);
    for (std::size_t k = 0; k < TypeRows.size(); ++k) {
        const TypeRow& row = TypeRows[k];
        QRadioButton* const option = MakeOption(row.Control, row.Caption);
        options->addButton(option);
        Shared().Boxes.BindOption(*option, columns.Entry.Type, row.Type);
        Grid().addWidget(option, OptionLine + static_cast<int>(k), FirstColumn);
    }
    Grid().addWidget(Shared().Owner.MakeHelp(ColumnHelp::Types, {"CSolidButton", "cSolid4xbutton",
                                                                 "CNailedButton", "CBoltedButton"}),
                     OptionLine, HelpColumn);
}

void ColumnValuesGroup::AddGroups()
{
    auto* const options = new QButtonGroup(this);
    for (std::size_t k = 0; k < ValueGroupRows.size(); ++k) {
        const ValueGroupRow& row = ValueGroupRows[k];
        QRadioButton* const option = MakeOption(row.Control, row.Caption);
        options->addButton(option);
        Shared().Boxes.ShowOption(*option, columns.Entry.ValueGroup, row.Group);
        connect(option, &QRadioButton::clicked, this, [this, group = row.Group] { ChooseGroup(group); });
        Grid().addWidget(option, OptionLine + static_cast<int>(k), SecondColumn);
    }
}

void ColumnValuesGroup::AddSpecies()
{
    species = new SpeciesBox(
        {.Name = "ColSpeciesCombo", .Tip = "Species and grade; a name of the list fills in its values"},
        MostName);
    connect(species, &SpeciesBox::Typed, this, [this](const QString& text) {
        columns.Entry.ColSpeciesCombo = Text(text);
        Q_EMIT Changed();
    });
    connect(species, &SpeciesBox::Picked, this, [this](const QString& name) { Pick(Text(name)); });
    auto* const line = new QHBoxLayout;
    line->setSpacing(Grid().horizontalSpacing());
    line->addWidget(MakeCaption("Sp&ecies and grade", *species));
    line->addWidget(species, 1);
    Grid().addLayout(line, SpeciesLine, FirstColumn, 1, HelpColumn);
    Grid().addWidget(
        Shared().Owner.MakeHelp(ColumnHelp::Values,
                                {"FramingButton", "TimberButton", "StringerButton", "ColSpeciesCombo",
                                 "cFcText", "cEtext", "Loadpostbutton", "SavePostbutton"}),
        SpeciesLine, HelpColumn);
}

void ColumnValuesGroup::AddValues()
{
    NumericBox* const fc = AddNumber({.Name = "cFcText", .Tip = "Base Fc parallel to grain, psi"},
                                     ValueDigits, columns.Entry.cFcText);
    NumericBox* const e = AddNumber({.Name = "cEtext", .Tip = "Base E in millions of psi, such as 1.6"},
                                    ValueDigits, columns.Entry.cEtext);
    auto* const line = new QHBoxLayout;
    line->setSpacing(Grid().horizontalSpacing());
    for (const auto& [caption, box, unit] :
         {std::tuple{"Fc", fc, "psi"}, std::tuple{"E", e, "million psi"}}) {
        line->addWidget(MakeCaption(caption, *box));
        line->addWidget(box);
        line->addWidget(MakeLabel(unit));
        line->addSpacing(DigitsWidth(*this, 2));
    }
    line->addStretch(1);
    Grid().addLayout(line, ValueLine, FirstColumn, 1, HelpColumn);
    note = new NoteLabel("ColSpeciesNote", LongestNote);
    Grid().addWidget(note, NoteTextLine, FirstColumn, 1, HelpColumn);
}

void ColumnValuesGroup::AddCommands()
{
    auto* const line = new QHBoxLayout;
    line->setSpacing(Grid().horizontalSpacing());
    const auto add = [&](const ControlText& text, std::string_view caption, auto signal) {
        QPushButton* const button = MakeButton(text, caption);
        connect(button, &QPushButton::clicked, this, signal);
        line->addWidget(button);
    };
    add({.Name = "Loadpostbutton", .Tip = "Species, Fc and E of a file"}, "Load &Custom Values...",
        &ColumnValuesGroup::LoadAsked);
    add({.Name = "SavePostbutton", .Tip = "Keeps species, Fc and E in a file"}, "Sa&ve Custom Values...",
        &ColumnValuesGroup::SaveAsked);
    line->addStretch(1);
    Grid().addLayout(line, CommandLine, FirstColumn, 1, HelpColumn);
}

/// The name in the box has other values in another group.
void ColumnValuesGroup::ChooseGroup(ColumnValueGroup group)
{
    ColumnEntry& entry = columns.Entry;
    if (entry.ValueGroup == group) {
        return;
    }
    entry.ValueGroup = group;
    const Edition edition = EditionInForce(Shared().Beam.Nds);
    if (FindColumnValues(entry.ColSpeciesCombo, group, edition)) {
        PickColumnSpecies(entry, std::string(entry.ColSpeciesCombo), edition);
    }
    Q_EMIT Changed();
}

void ColumnValuesGroup::Pick(std::string_view name)
{
    PickColumnSpecies(columns.Entry, name, EditionInForce(Shared().Beam.Nds));
    Q_EMIT Changed();
}

}  // namespace kordavan
