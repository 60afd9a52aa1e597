#include "forms/ConditionsGroup.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

namespace kordavan {

namespace {

enum Column { RepetitiveColumn, RepetitiveHelpColumn, GapColumn, ServiceColumn, ServiceHelpColumn };

struct SpacingRow {
    RepetitiveSpacing Spacing;
    std::string_view Name;
    std::string_view Caption;
};

constexpr std::array SpacingRows{
    SpacingRow{RepetitiveSpacing::Ctr0, "Ctr0", "No Spacing (All Lds x 1.0)"},
    SpacingRow{RepetitiveSpacing::Ctr12, "Ctr12", "12 in. o.c."},
    SpacingRow{RepetitiveSpacing::Ctr16, "Ctr16", "16 in. o.c.  (All Lds x 1.33)"},
    SpacingRow{RepetitiveSpacing::Ctr19, "Ctr19", "19.2 in. o.c.  (All Lds x 1.6)"},
    SpacingRow{RepetitiveSpacing::Ctr24, "ctr24", "24 in. o.c.  (All Lds x 2.0)"},
};

constexpr std::string_view SpacingTip =
    "Spacing of repetitive members; the loads entered are those of 12 in. o.c.";

}  // namespace

ConditionsGroup::ConditionsGroup(const GroupContext& context)
    : EntryGroup(context, "ConditionsGroup", "Conditions")
{
    BeamProblem& problem = context.Beam.Problem;
    AddRepetitive(problem);
    AddService(problem);
    AddPitch(problem);
    constexpr int gap = 16;
    Grid().setColumnMinimumWidth(GapColumn, gap);
    Grid().setColumnStretch(RepetitiveColumn, 1);
    Grid().setColumnStretch(ServiceColumn, 1);
}

void ConditionsGroup::ShowScreen(const CriteriaScreen& screen, const BeamProblem& problem)
{
    incised->setVisible(screen.HasIncising);
    for (QRadioButton* const spacing : spacings) {
        spacing->setEnabled(problem.Rep);
    }
    pitch->setEnabled(problem.Roofbutton);
}

void ConditionsGroup::AddRepetitive(BeamProblem& problem)
{
    QCheckBox* const repetitive =
        AddCheck({.Name = "Rep", .Tip = "Joists or rafters not over 24 in. apart, not less than 3 of them"},
                 " &Repetitive Use", problem.Rep);
    Grid().addWidget(repetitive, 0, RepetitiveColumn);
    Grid().addWidget(AddHelp("Command3D9", {"Rep", "Ctr0", "Ctr12", "Ctr16", "Ctr19", "ctr24"}), 0,
                     RepetitiveHelpColumn);
    auto* const options = new QButtonGroup(this);
    for (std::size_t k = 0; k < SpacingRows.size(); ++k) {
        const SpacingRow& row = SpacingRows[k];
        spacings[k] = MakeOption({.Name = row.Name, .Tip = SpacingTip}, row.Caption);
        options->addButton(spacings[k]);
        Shared().Boxes.BindOption(*spacings[k], problem.Spacing, row.Spacing);
        auto* const indented = new QHBoxLayout;
        constexpr int indent = 18;
        indented->addSpacing(indent);
        indented->addWidget(spacings[k]);
        Grid().addLayout(indented, static_cast<int>(k) + 1, RepetitiveColumn);
    }
}

void ConditionsGroup::AddService(BeamProblem& problem)
{
    int line = 0;
    const auto add = [&](QCheckBox* check, HelpButton* help) {
        Grid().addWidget(check, line, ServiceColumn);
        if (help != nullptr) {
            Grid().addWidget(help, line, ServiceHelpColumn);
        }
        ++line;
    };
    add(AddCheck({.Name = "Wet", .Tip = "Moisture content above 19% of sawn lumber, 16% of glu-lams"},
                 " &Wet Use", problem.Wet),
        AddHelp("Command3D7", {"Wet", "Incised"}));
    incised = AddCheck({.Name = "Incised", .Tip = "Lumber incised for preservative treatment"}, "I&ncised",
                       problem.Incised);
    KeepPlace(*incised);
    add(incised, nullptr);
    add(AddCheck({.Name = "Reducechk", .Tip = "Shear is taken at the depth of the member from its supports"},
                 "R&educe shear loads at beam ends", problem.Reducechk),
        AddHelp("Command3D18", {"Reducechk"}));
    add(AddCheck({.Name = "NoWeight", .Tip = "The weight of the beam is not added to its loads"},
                 "Neg&lect the beam self-weight ", problem.NoWeight),
        nullptr);
}

void ConditionsGroup::AddPitch(BeamProblem& problem)
{
    constexpr int pitchLine = 4;
    constexpr int pitchDigits = 4;
    QCheckBox* const roof = AddCheck(
        {.Name = "Roofbutton", .Tip = "Dead loads and beam weight grow with the slope of the rafter"},
        "Rafter Pitch DL &Adjust", problem.Roofbutton);
    pitch = AddNumber({.Name = "Pitchtext", .Tip = "Rise of the roof in inches per 12 in. of run"},
                      pitchDigits, problem.Pitchtext);
    auto* const line = new QHBoxLayout;
    line->addWidget(roof);
    line->addWidget(pitch);
    line->addWidget(MakeLabel(":12"));
    line->addStretch(1);
    Grid().addLayout(line, pitchLine, ServiceColumn);
    Grid().addWidget(AddHelp("Command3D8", {"Roofbutton", "Pitchtext"}), pitchLine, ServiceHelpColumn);
    Grid().addWidget(AddCheck({.Name = "INGRADE",
                               .Tip = "On: values by the edition named in the title. Off: no edition is "
                                      "named and no member is tested"},
                              "Ingrade switch", problem.INGRADE),
                     pitchLine + 1, ServiceColumn);
}

}  // namespace kordavan
