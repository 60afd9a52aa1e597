#include "forms/ColumnLoadGroup.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "forms/ColumnHelp.h"
#include "forms/Form.h"
#include "forms/ReactionFrame.h"

namespace kordavan {

namespace {

constexpr int FigureDigits = 8;

enum Line { LoadLine, ImportLine, HeightLine, ModeLine, D1Line, D2Line, DurationLine, ServiceLine, LastLine };
enum Column { CaptionColumn, BoxColumn, UnitColumn, ExtraColumn, HelpColumn };

}  // namespace

ColumnLoadGroup::ColumnLoadGroup(const GroupContext& context, ColumnSession& currentColumns)
    : EntryGroup(context, "ColumnLoadGroup", "Load and bracing"), columns(currentColumns)
{
    AddLoad(columns.Entry);
    AddLengths(columns.Entry);
    AddService(columns.Entry);
    Grid().setColumnStretch(ExtraColumn, 1);
    Grid().setRowStretch(LastLine, 1);
}

void ColumnLoadGroup::ShowScreen(const ColumnScreen& screen)
{
    import->ShowScreen(screen);
    modeCaption->setText(screen.HasWood ? QStringLiteral("Ke &Buckling Mode")
                                        : QStringLiteral("K &Buckling Mode"));
    for (QWidget* const part : woodParts) {
        part->setVisible(screen.HasWood);
    }
}

void ColumnLoadGroup::AddLoad(ColumnEntry& entry)
{
    load = AddNumber({.Name = "cReacText", .Tip = "Axial load on the column, lb"}, FigureDigits,
                     entry.cReacText);
    AddLine(LoadLine, MakeCaption("&Axial load", *load), load, "lb");
    importButton = MakeButton({.Name = "ImportButton", .Tip = "Takes a reaction of the current beam"},
                              "I&mport Reaction...");
    connect(importButton, &QPushButton::clicked, this, &ColumnLoadGroup::ToggleImport);
    Grid().addWidget(importButton, LoadLine, ExtraColumn, Qt::AlignLeft);
    Grid().addWidget(
        Shared().Owner.MakeHelp(ColumnHelp::AxialLoad, {"cReacText", "ImportButton", "OptionR1", "OptionR2",
                                                        "DblReaction", "CmdImportOK", "cHTtext"}),
        LoadLine, HelpColumn);
    import = new ReactionFrame;
    connect(import, &ReactionFrame::Taken, this, &ColumnLoadGroup::TakeReaction);
    Grid().addWidget(import, ImportLine, CaptionColumn, 1, HelpColumn + 1);
}

void ColumnLoadGroup::AddLengths(ColumnEntry& entry)
{
    NumericBox* const height =
        AddNumber({.Name = "cHTtext", .Tip = "Actual height of the column, ft"}, FigureDigits, entry.cHTtext);
    AddLine(HeightLine, MakeCaption("Actua&l height", *height), height, "ft");
    NumericBox* const mode =
        AddNumber({.Name = "cModeText", .Tip = "Effective length over unbraced length; 1.0 for most columns"},
                  FigureDigits, entry.cModeText);
    modeCaption = MakeCaption({}, *mode);
    AddLine(ModeLine, modeCaption, mode, {});
    Grid().addWidget(Shared().Owner.MakeHelp(ColumnHelp::BucklingMode, {"cModeText"}), ModeLine, HelpColumn);
    NumericBox* const d1 =
        AddNumber({.Name = "cD1text", .Tip = "Unbraced length in plane D1, ft; 0 when braced throughout"},
                  FigureDigits, entry.cD1text);
    AddLine(D1Line, MakeCaption("Unbraced, plane D&1", *d1), d1, "ft");
    QCheckBox* const braced =
        AddCheck({.Name = "ResetKf", .Tip = "The plies cannot slip in plane D1: Kf is 1.0"},
                 "D1 Full&y Braced", entry.ResetKf);
    Grid().addWidget(braced, D1Line, ExtraColumn);
    Grid().addWidget(Shared().Owner.MakeHelp(ColumnHelp::UnbracedLengths, {"cD1text", "ResetKf", "cD2text"}),
                     D1Line, HelpColumn);
    NumericBox* const d2 =
        AddNumber({.Name = "cD2text", .Tip = "Unbraced length in plane D2, ft; 0 when braced throughout"},
                  FigureDigits, entry.cD2text);
    AddLine(D2Line, MakeCaption("Unbraced, plane D&2", *d2), d2, "ft");
    woodParts = {braced, d2, Grid().itemAtPosition(D2Line, CaptionColumn)->widget(),
                 Grid().itemAtPosition(D2Line, UnitColumn)->widget()};
}

void ColumnLoadGroup::AddService(ColumnEntry& entry)
{
    NumericBox* const duration =
        AddNumber({.Name = "cDurText", .Tip = "Duration of load factor Cd, such as 1.15 for snow"},
                  FigureDigits, entry.cDurText);
    QLabel* const caption = MakeCaption("Du&ration of Load", *duration);
    HelpButton* const durationHelp = Shared().Owner.MakeHelp(ColumnHelp::Duration, {"cDurText"});
    AddLine(DurationLine, caption, duration, {});
    Grid().addWidget(durationHelp, DurationLine, HelpColumn);
    QCheckBox* const wet = AddCheck({.Name = "cWetButton", .Tip = "Moisture content above 19% in use"},
                                    "&Wet Use", entry.cWetButton);
    QCheckBox* const incised = AddCheck({.Name = "ColIncised", .Tip = "Incised for preservative treatment"},
                                        "I&ncised", entry.ColIncised);
    HelpButton* const serviceHelp =
        Shared().Owner.MakeHelp(ColumnHelp::Service, {"cWetButton", "ColIncised"});
    auto* const checks = new QHBoxLayout;
    checks->addWidget(wet);
    checks->addSpacing(DigitsWidth(*this, 2));
    checks->addWidget(incised);
    checks->addStretch(1);
    Grid().addLayout(checks, ServiceLine, BoxColumn, 1, HelpColumn - BoxColumn);
    Grid().addWidget(serviceHelp, ServiceLine, HelpColumn);
    woodParts.insert(woodParts.end(), {duration, caption, durationHelp, wet, incised, serviceHelp});
}

void ColumnLoadGroup::AddLine(int line, QLabel* caption, QWidget* box, std::string_view unit)
{
    Grid().addWidget(caption, line, CaptionColumn);
    Grid().addWidget(box, line, BoxColumn);
    Grid().addWidget(MakeLabel(unit), line, UnitColumn);
}

void ColumnLoadGroup::ToggleImport()
{
    if (import->isVisibleTo(this)) {
        import->hide();
    } else {
        import->Open();
    }
}

/// A refusal leaves the frame open.
void ColumnLoadGroup::TakeReaction(const ReactionChoice& choice)
{
    if (ImportReaction(Shared().Beam, choice, columns.Entry, Shared().Numbers.User) == Outcome::Done) {
        import->hide();
        Q_EMIT Changed();
        load->setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace kordavan
