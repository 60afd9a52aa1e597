#include "forms/HipValleyGroup.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "design/LoadTools.h"
#include "forms/RoofPlan.h"

namespace kordavan {

namespace {

enum Column { CaptionColumn, LiveColumn, TotalColumn, GapColumn, SideColumn, PlanColumn };
enum Line { HeadLine, RoofLine, UniformLine, AutoLine, CommandLine, LineCount };

}  // namespace

HipValleyGroup::HipValleyGroup(const GroupContext& context)
    : EntryGroup(context, "IncFrame", "Hip or valley load")
{
    AddLoads();
    AddPlan();
    AddCommands();
    constexpr int gap = 24;
    Grid().setColumnMinimumWidth(GapColumn, gap);
    Grid().setColumnStretch(PlanColumn + 1, 1);
    Grid().setRowStretch(LineCount, 1);
}

void HipValleyGroup::ShowScreen(const CriteriaScreen& screen)
{
    calculate->setEnabled(screen.CanCalculateHipLoad);
    calculate->setDefault(screen.MustCalculateHipLoad);
}

void HipValleyGroup::AddLoads()
{
    LoadSet& loads = Shared().Beam.Problem.Loads;
    Grid().addWidget(MakeColumnHead("LL"), HeadLine, LiveColumn);
    Grid().addWidget(MakeColumnHead("LL+DL"), HeadLine, TotalColumn);
    Grid().addWidget(MakeLabel("Roof load, psf"), RoofLine, CaptionColumn);
    Grid().addWidget(AddNumber({.Name = "IncLL", .Tip = "Live roof load, psf"}, LoadDigits, loads.IncLL),
                     RoofLine, LiveColumn);
    Grid().addWidget(
        AddNumber({.Name = "IncTL", .Tip = "Total roof load, live and dead, psf"}, LoadDigits, loads.IncTL),
        RoofLine, TotalColumn);
    Grid().addWidget(MakeLabel("Uniform load beside it, plf"), UniformLine, CaptionColumn);
    Grid().addWidget(
        AddNumber({.Name = "IncUnifLL", .Tip = "Live uniform load beside the roof's, plf; optional"},
                  LoadDigits, loads.IncUnifLL),
        UniformLine, LiveColumn);
    Grid().addWidget(
        AddNumber({.Name = "IncUnifTL", .Tip = "Total uniform load beside the roof's, plf; optional"},
                  LoadDigits, loads.IncUnifTL),
        UniformLine, TotalColumn);
}

void HipValleyGroup::AddPlan()
{
    LoadSet& loads = Shared().Beam.Problem.Loads;
    auto* const plan = new RoofPlan;
    for (std::size_t k = 0; k < PlanQuarterCount; ++k) {
        Shared().Boxes.Bind(plan->Quarter(k), loads.Areas[k]);
    }
    const auto addSide = [&](std::string_view name, std::string_view tip, std::string_view caption,
                             std::string& text) {
        auto* const side = new QWidget;
        auto* const line = new QGridLayout(side);
        line->setContentsMargins(0, 0, 0, 0);
        NumericBox* const box = AddNumber({.Name = name, .Tip = tip}, DistanceDigits, text);
        line->addWidget(MakeLabel(caption), 0, 0);
        line->addWidget(box, 0, 1);
        line->addWidget(MakeLabel("ft"), 0, 2);
        return side;
    };
    Grid().addWidget(addSide("Trib1", "Side 1 of the roof plan, feet", "side 1", loads.Trib1), HeadLine,
                     PlanColumn, Qt::AlignHCenter);
    Grid().addWidget(addSide("Trib2", "Side 2 of the roof plan, feet", "side 2", loads.Trib2), RoofLine,
                     SideColumn, LineCount - RoofLine, 1, Qt::AlignVCenter);
    Grid().addWidget(plan, RoofLine, PlanColumn, LineCount - RoofLine, 1);
}

void HipValleyGroup::AddCommands()
{
    LoadSet& loads = Shared().Beam.Problem.Loads;
    Grid().addWidget(AddCheck({.Name = "CalctheSpan", .Tip = "The diagonal of the plan is the span"},
                              "Span Auto-Calc", loads.CalctheSpan),
                     AutoLine, CaptionColumn);
    calculate = MakeButton(
        {.Name = "IncCalcButton", .Tip = "Work out the equivalent uniform load of this roof load (Enter)"},
        "&Calculate Load");
    connect(calculate, &QPushButton::clicked, this, [this] {
        if (Shared().Apply(CalculateHipValley) == Outcome::Done) {
            Q_EMIT Calculated();
        }
    });
    Grid().addWidget(calculate, CommandLine, CaptionColumn, Qt::AlignLeft);
}

}  // namespace kordavan
