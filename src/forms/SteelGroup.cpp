#include "forms/SteelGroup.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <array>

#include "design/SteelCriteria.h"
#include "design/UnbracedEntry.h"

namespace kordavan {

namespace {

struct FamilyRow {
    SteelFamily Family;
    std::string_view Option;
    std::string_view Caption;
    std::string_view Tip;
    int Line;
    int Column;
};

constexpr std::array FamilyRows{
    FamilyRow{SteelFamily::W, "WFbutton", "W  wide flange", "Wide flange shapes, 4 to 36 in. deep", 0, 0},
    FamilyRow{SteelFamily::S, "SFbutton", "S  std. flange", "Standard flange shapes, 3 to 24 in. deep", 1, 0},
    FamilyRow{SteelFamily::C, "CFbutton", "C  std. channel", "Standard channels, 3 to 15 in. deep", 2, 0},
    FamilyRow{SteelFamily::MC, "MCbutton", "MC misc channel", "Miscellaneous channels, 3 to 18 in. deep", 3,
              0},
    FamilyRow{SteelFamily::Tube, "TUbutton", "T  rectangular tube",
              "Rectangular tubes, 4 to 20 in. deep; they need no bracing between supports", 0, 1},
    FamilyRow{SteelFamily::Plate, "PLbutton", "PL Flitch",
              "One plate between lumber; its edge must be braced all along", 1, 1},
    FamilyRow{SteelFamily::DoublePlate, "DblPLbutton", "Dbl Flitch",
              "Two plates between lumber; their edges must be braced all along", 2, 1},
};

enum Line { GradeLine = 3, DepthLine };
enum Column { SecondColumn = 1, HelpColumn };

}  // namespace

SteelGroup::SteelGroup(const GroupContext& context) : EntryGroup(context, "SteelFrame", "Steel")
{
    AddFamilies(context.Beam.Problem);
    AddFilters(context.Beam.Problem);
    Grid().setRowStretch(DepthLine + 1, 1);
}

void SteelGroup::AddFamilies(const BeamProblem& problem)
{
    auto* const options = new QButtonGroup(this);
    for (const FamilyRow& row : FamilyRows) {
        QRadioButton* const option = MakeOption({.Name = row.Option, .Tip = row.Tip}, row.Caption);
        options->addButton(option);
        Shared().Boxes.ShowOption(*option, problem.Family, row.Family);
        connect(option, &QRadioButton::clicked, this, [this, family = row.Family] {
            Change([family](Session& session) { SwitchMaterial(session, SpeciesGroup::Steel, family); });
        });
        Grid().addWidget(option, row.Line, row.Column);
    }
}

void SteelGroup::AddFilters(BeamProblem& problem)
{
    auto* const depth = new QComboBox;
    Describe(*depth,
             {.Name = "DepCombo",
              .Tip = "Greatest nominal depth of the shapes that are offered; calculations are the same"});
    IgnoreStrayWheel(*depth);
    for (const std::string_view choice : SteelDepthChoices) {
        depth->addItem(Text(choice));
    }
    Shared().Boxes.Bind(*depth, problem.DepCombo);
    Grid().addWidget(AddCheck({.Name = "ksi50", .Tip = "Yield stress 50 ksi instead of 36, 46 of tubes"},
                              "Use 50 ksi Values", problem.ksi50),
                     GradeLine, SecondColumn);
    Grid().addWidget(MakeCaption("Maximum depth, in.", *depth), DepthLine, 0);
    Grid().addWidget(depth, DepthLine, SecondColumn);
    Grid().addWidget(AddHelp("DepthDesHelp", {"DepCombo"}), DepthLine, HelpColumn);
}

}  // namespace kordavan
