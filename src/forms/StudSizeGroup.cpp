#include "forms/StudSizeGroup.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include "columns/ColumnSpecies.h"
#include "columns/StudCriteria.h"
#include "forms/ColumnHelp.h"
#include "forms/Form.h"
#include "forms/SpeciesBox.h"

namespace kordavan {

namespace {

constexpr int FigureDigits = 8;
constexpr int MostName = 30;

enum Line { HeightLine, SpacingLine, SizeLine, SpeciesLine, FbLine, FcLine, ELine, LastLine };
enum Column { CaptionColumn, BoxColumn, UnitColumn, HelpColumn };

template <std::size_t Count>
QComboBox* MakeList(const ControlText& text, const std::array<StudSize, Count>& sizes)
{
    auto* const list = new QComboBox;
    Describe(*list, text);
    IgnoreStrayWheel(*list);
    for (const StudSize& size : sizes) {
        list->addItem(Text(size.Name));
    }
    return list;
}

}  // namespace

StudSizeGroup::StudSizeGroup(const GroupContext& context, StudEntry& studEntry)
    : EntryGroup(context, "StudSizeGroup", "Stud"), entry(studEntry)
{
    AddPlace();
    AddSize();
    AddSpecies();
    AddValues();
    Grid().setColumnStretch(UnitColumn, 1);
    Grid().setRowStretch(LastLine, 1);
}

void StudSizeGroup::ShowEntries()
{
    species->Show(entry.WindStudCombo, StudSpeciesNames());
}

void StudSizeGroup::AddPlace()
{
    NumericBox* const height =
        AddNumber({.Name = "WindStudHt", .Tip = "Height of the stud in feet and decimals"}, FigureDigits,
                  entry.WindStudHt);
    NumericBox* const spacing =
        AddNumber({.Name = "WindStudSpacing", .Tip = "Spacing of the studs, inches on centre"}, FigureDigits,
                  entry.WindStudSpacing);
    for (const auto& [line, caption, box, unit] :
         {std::tuple{HeightLine, "H&eight", height, "ft"},
          std::tuple{SpacingLine, "Spa&cing", spacing, "in. o.c."}}) {
        Grid().addWidget(MakeCaption(caption, *box), line, CaptionColumn);
        Grid().addWidget(box, line, BoxColumn);
        Grid().addWidget(MakeLabel(unit), line, UnitColumn);
    }
    Grid().addWidget(Shared().Owner.MakeHelp(ColumnHelp::StudSize,
                                             {"WindStudHt", "WindStudSpacing", "BreadthCombo", "DepthCombo"}),
                     HeightLine, HelpColumn);
}

void StudSizeGroup::AddSize()
{
    QComboBox* const breadth =
        MakeList({.Name = "BreadthCombo", .Tip = "Breadth of the stud; in front, of how many"}, StudBreadths);
    QComboBox* const depth =
        MakeList({.Name = "DepthCombo", .Tip = "Nominal depth of the stud, across the wall"}, StudDepths);
    Shared().Boxes.Bind(*breadth, entry.BreadthCombo);
    Shared().Boxes.Bind(*depth, entry.DepthCombo);
    auto* const line = new QHBoxLayout;
    line->setSpacing(Grid().horizontalSpacing());
    line->addWidget(breadth);
    line->addWidget(depth);
    line->addStretch(1);
    Grid().addWidget(MakeCaption("Si&ze", *breadth), SizeLine, CaptionColumn);
    Grid().addLayout(line, SizeLine, BoxColumn, 1, HelpColumn - BoxColumn);
}

void StudSizeGroup::AddSpecies()
{
    species = new SpeciesBox({.Name = "WindStudCombo",
                              .Tip = "Species and grade of the stud; a name of the list fills in its values"},
                             MostName);
    connect(species, &SpeciesBox::Typed, this, [this](const QString& text) {
        entry.WindStudCombo = Text(text);
        Q_EMIT Changed();
    });
    connect(species, &SpeciesBox::Picked, this, [this](const QString& name) {
        PickStudSpecies(entry, Text(name), EditionInForce(Shared().Beam.Nds));
        Q_EMIT Changed();
    });
    Grid().addWidget(MakeCaption("Species a&nd grade", *species), SpeciesLine, CaptionColumn);
    Grid().addWidget(species, SpeciesLine, BoxColumn, 1, HelpColumn - BoxColumn);
    Grid().addWidget(Shared().Owner.MakeHelp(ColumnHelp::StudValues,
                                             {"WindStudCombo", "WindStudFb", "WindStudFc", "WindStudE"}),
                     SpeciesLine, HelpColumn);
}

void StudSizeGroup::AddValues()
{
    struct ValueRow {
        Line Place;
        ControlText Control;
        std::string_view Caption;
        std::string_view Unit;
        std::string StudEntry::*Value;
    };
    constexpr std::array rows{
        ValueRow{FbLine,
                 {.Name = "WindStudFb", .Tip = "Base Fb of the stud, psi"},
                 "Fb",
                 "psi",
                 &StudEntry::WindStudFb},
        ValueRow{FcLine,
                 {.Name = "WindStudFc", .Tip = "Base Fc of the stud parallel to grain, psi"},
                 "Fc",
                 "psi",
                 &StudEntry::WindStudFc},
        ValueRow{ELine,
                 {.Name = "WindStudE", .Tip = "Base E of the stud in millions of psi, such as 1.6"},
                 "E",
                 "million psi",
                 &StudEntry::WindStudE},
    };
    for (const ValueRow& row : rows) {
        NumericBox* const box = AddNumber(row.Control, FigureDigits, entry.*row.Value);
        Grid().addWidget(MakeCaption(row.Caption, *box), row.Place, CaptionColumn);
        Grid().addWidget(box, row.Place, BoxColumn);
        Grid().addWidget(MakeLabel(row.Unit), row.Place, UnitColumn);
    }
}

}  // namespace kordavan
