#include "forms/NotchMemberGroup.h"

#include <QGridLayout>
#include <QLabel>

#include "forms/Form.h"
#include "forms/LineList.h"
#include "forms/NotchHelp.h"
#include "forms/SpeciesBox.h"
#include "notch/NotchCheck.h"
#include "notch/NotchEdits.h"

namespace kordavan {

namespace {

constexpr int FigureDigits = 8;
constexpr int MostName = 30;

enum Line {
    ShearLine,
    MemberCaptionLine,
    MemberLine,
    BreadthLine,
    DepthLine,
    SpeciesCaptionLine,
    SpeciesLine,
    ValueLine,
    LastLine
};
enum Column { CaptionColumn, BoxColumn, UnitColumn, HelpColumn };

}  // namespace

NotchMemberGroup::NotchMemberGroup(const GroupContext& context, NotchSession& currentNotch)
    : EntryGroup(context, "NotchMemberGroup", "Member"), notch(currentNotch)
{
    AddMember();
    AddSizes();
    AddSpecies();
    Grid().setColumnStretch(UnitColumn, 1);
    Grid().setRowStretch(LastLine, 1);
}

void NotchMemberGroup::ShowEntries()
{
    const bool isLog = notch.Entry.MemberListBox == static_cast<int>(NotchMember::SawnRound);
    depthCaption->setText(isLog ? QStringLiteral("&Diameter d") : QStringLiteral("&Depth d"));
    breadth->setPlaceholderText(isLog ? QStringLiteral("d") : QString{});
    species->Show(notch.Entry.Species,
                  NotchSpeciesNames(static_cast<NotchMember>(notch.Entry.MemberListBox)));
}

void NotchMemberGroup::AddMember()
{
    Form& owner = Shared().Owner;
    NumericBox* const shear = AddNumber({.Name = "MaxVtextbox", .Tip = "Shear at the notch, lb"},
                                        FigureDigits, notch.Entry.MaxVtextbox);
    AddLine(ShearLine, MakeCaption("Shear &V, no reductions", *shear), shear, "lb");
    Grid().addWidget(owner.MakeHelp(NotchHelp::Shear, {"MaxVtextbox"}), ShearLine, HelpColumn);
    auto* const members = new LineList({.Name = "MemberListBox", .Tip = "What the member is made of"},
                                       {NotchMemberNames.begin(), NotchMemberNames.end()});
    Shared().Boxes.Bind(*members, notch.Entry.MemberListBox);
    Grid().addWidget(MakeCaption("&Member", *members), MemberCaptionLine, CaptionColumn);
    Grid().addWidget(owner.MakeHelp(NotchHelp::Member, {"MemberListBox", "breadthtextbox", "depthtextbox"}),
                     MemberCaptionLine, HelpColumn);
    Grid().addWidget(members, MemberLine, CaptionColumn, 1, HelpColumn + 1);
}

void NotchMemberGroup::AddSizes()
{
    breadth = AddNumber({.Name = "breadthtextbox", .Tip = "Net breadth of the member, in."}, FigureDigits,
                        notch.Entry.breadthtextbox);
    AddLine(BreadthLine, MakeCaption("&Breadth b", *breadth), breadth, "in.");
    NumericBox* const depth =
        AddNumber({.Name = "depthtextbox", .Tip = "Net depth of the member without its notch, in."},
                  FigureDigits, notch.Entry.depthtextbox);
    depthCaption = MakeCaption({}, *depth);
    AddLine(DepthLine, depthCaption, depth, "in.");
}

void NotchMemberGroup::AddSpecies()
{
    species = new SpeciesBox(
        {.Name = "SpeciesCombo", .Tip = "Species and grade; a name of the list fills in its base Fv"},
        MostName);
    connect(species, &SpeciesBox::Typed, this, [this](const QString& text) {
        notch.Entry.Species = Text(text);
        Q_EMIT Changed();
    });
    connect(species, &SpeciesBox::Picked, this, [this](const QString& name) {
        PickNotchSpecies(notch.Entry, Text(name), EditionOfNotch(notch.Years));
        Q_EMIT Changed();
    });
    Grid().addWidget(MakeCaption("&Species and grade", *species), SpeciesCaptionLine, CaptionColumn);
    Grid().addWidget(Shared().Owner.MakeHelp(NotchHelp::BaseFv, {"SpeciesCombo", "Fvtextbox"}),
                     SpeciesCaptionLine, HelpColumn);
    Grid().addWidget(species, SpeciesLine, CaptionColumn, 1, HelpColumn + 1);
    NumericBox* const fv = AddNumber({.Name = "Fvtextbox", .Tip = "Base shear value Fv, psi"}, FigureDigits,
                                     notch.Entry.Fvtextbox);
    AddLine(ValueLine, MakeCaption("B&ase Fv", *fv), fv, "psi");
}

void NotchMemberGroup::AddLine(int line, QLabel* caption, QWidget* box, std::string_view unit)
{
    Grid().addWidget(caption, line, CaptionColumn);
    Grid().addWidget(box, line, BoxColumn);
    Grid().addWidget(MakeLabel(unit), line, UnitColumn);
}

}  // namespace kordavan
