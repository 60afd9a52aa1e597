#include "forms/StudAxialGroup.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include "columns/ColumnScreen.h"
#include "forms/ColumnHelp.h"
#include "forms/Form.h"

namespace kordavan {

namespace {

constexpr int FigureDigits = 8;

enum Line { WallLine, PointLine, AxialDurationLine, WindDurationLine, LastLine };
enum Column { CaptionColumn, BoxColumn, UnitColumn, HelpColumn };

}  // namespace

StudAxialGroup::StudAxialGroup(const GroupContext& context, StudEntry& studEntry)
    : EntryGroup(context, "StudAxialGroup", "Axial load and durations"), entry(studEntry)
{
    AddLoads();
    AddDurations();
    Grid().setColumnStretch(UnitColumn, 1);
    Grid().setRowStretch(LastLine, 1);
}

void StudAxialGroup::AddLoads()
{
    AddLine(WallLine, "A&xial load of the wall",
            AddNumber({.Name = "AxialPLFtextbox", .Tip = "Axial load, lb per foot of wall"}, FigureDigits,
                      entry.AxialPLFtextbox),
            "plf");
    AddLine(PointLine, "Axial point load",
            AddNumber({.Name = "AxialPointTextbox", .Tip = "Axial load on this stud alone, lb"}, FigureDigits,
                      entry.AxialPointTextbox),
            "lb");
    Grid().addWidget(Shared().Owner.MakeHelp(ColumnHelp::StudAxial, {"AxialPLFtextbox", "AxialPointTextbox"}),
                     WallLine, HelpColumn);
}

void StudAxialGroup::AddDurations()
{
    AddLine(AxialDurationLine, "Durati&on, axial",
            AddNumber({.Name = "AxialDurTextbox", .Tip = "Duration of load factor of the axial load"},
                      FigureDigits, entry.AxialDurTextbox),
            {});
    QToolButton* const cycle = MakeCycle(
        {.Name = "AxialDurCycle", .Tip = "Next of the common factors: 1.0, 1.15, 1.25, 1.6 (Alt+1)"},
        QKeySequence(Qt::ALT | Qt::Key_1));
    connect(cycle, &QToolButton::clicked, this, [this] {
        entry.AxialDurTextbox = NextAxialDuration(entry.AxialDurTextbox);
        Q_EMIT Changed();
    });
    Grid().addWidget(cycle, AxialDurationLine, UnitColumn, Qt::AlignLeft);
    AddLine(WindDurationLine, "Duration, &wind",
            AddNumber({.Name = "DurWindTextbox", .Tip = "Duration of load factor of the wind"}, FigureDigits,
                      entry.DurWindTextbox),
            {});
    Grid().addWidget(Shared().Owner.MakeHelp(ColumnHelp::StudDuration,
                                             {"AxialDurTextbox", "AxialDurCycle", "DurWindTextbox"}),
                     AxialDurationLine, HelpColumn);
}

void StudAxialGroup::AddLine(int line, std::string_view caption, NumericBox* box, std::string_view unit)
{
    Grid().addWidget(MakeCaption(caption, *box), line, CaptionColumn);
    Grid().addWidget(box, line, BoxColumn);
    if (!unit.empty()) {
        Grid().addWidget(MakeLabel(unit), line, UnitColumn);
    }
}

}  // namespace kordavan
