#include "forms/PointLoadGroup.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "design/LoadPicture.h"
#include "design/LoadingConditions.h"
#include "design/Unbalance.h"

namespace kordavan {

namespace {

constexpr std::string_view FromR1 = "Distance of the point load from R1, feet";
constexpr std::string_view FromR2 = "Distance of the point load from R2, feet, on the overhang";

void ShowUnbalance(QPushButton& button, const UnbalanceButton& state, bool isSeen)
{
    SetCaption(button, state.Caption);
    button.setChecked(state.IsPressed);
    button.setEnabled(state.IsEnabled);
    button.setVisible(isSeen);
}

}  // namespace

PointLoadGroup::PointLoadGroup(const GroupContext& context) : LoadTable(context, "Frame3D4", "Point loads")
{
    AddRows();
    AddUnbalance();
}

void PointLoadGroup::ShowScreen(const CriteriaScreen& screen)
{
    for (std::size_t k = FirstOverhangPoint; k < PointSlotCount; ++k) {
        const Row& row = rows[k];
        const bool isOver = screen.HasOverhang;
        PaintOverhang(*row.Live, isOver ? OverhangPaint::Live : OverhangPaint::None);
        PaintOverhang(*row.Total, isOver ? OverhangPaint::Total : OverhangPaint::None);
        PaintOverhang(*row.Distance, isOver ? OverhangPaint::Total : OverhangPaint::None);
        const std::string letter(1, PointLetter(k));
        SetTip(*row.Distance, letter + ": " + std::string(isOver ? FromR2 : FromR1));
        row.Tag->setVisible(isOver);
    }
    ShowUnbalance(*unbalanceSpan, screen.UBSpan, screen.HasOverhang);
    ShowUnbalance(*unbalanceOverhang, screen.UBOH, screen.HasOverhang);
}

void PointLoadGroup::AddRows()
{
    LoadSet& loads = Shared().Beam.Problem.Loads;
    AddHeadings({"LL lbs", "LL+DL lbs", "at ft"});
    for (std::size_t k = 0; k < PointSlotCount; ++k) {
        const std::vector<NumericBox*> boxes =
            AddRow(PointLetter(k), k,
                   {{"LPT", "Live point load, lb", LoadDigits, &loads.LPT[k]},
                    {"PT", "Total point load, live and dead, lb", LoadDigits, &loads.PT[k]},
                    {"DIS", FromR1, DistanceDigits, &loads.DIS[k]}},
                   ClearPointRow);
        AddLetter(BoxName("Labl20", k), PointLetter(k), k, ClearPointRow);
        rows[k] = {.Live = boxes[0], .Total = boxes[1], .Distance = boxes[2], .Tag = nullptr};
        if (k >= FirstOverhangPoint) {
            rows[k].Tag = AddOverhangTag(k);
        }
    }
    MakeTableClearable(ClearPointLoads);
}

void PointLoadGroup::AddUnbalance()
{
    unbalanceSpan =
        AddCommand({.Name = "UBSpan", .Tip = "Take the live loads off the span, or put them back (Alt+6)"},
                   UnbalanceCaptions::UnbalanceSpan, ToggleSpanLiveLoads);
    unbalanceSpan->setShortcut(QKeySequence(Qt::ALT | Qt::Key_6));
    unbalanceOverhang =
        AddCommand({.Name = "UBOH", .Tip = "Take the live loads off the overhang, or put them back (Alt+7)"},
                   UnbalanceCaptions::UnbalanceOverhang, ToggleOverhangLiveLoads);
    unbalanceOverhang->setShortcut(QKeySequence(Qt::ALT | Qt::Key_7));
    auto* const line = new QHBoxLayout;
    for (QPushButton* const button : {unbalanceSpan, unbalanceOverhang}) {
        button->setCheckable(true);
        KeepPlace(*button);
        line->addWidget(button);
    }
    Grid().addLayout(line, LineOf(PointSlotCount), 0, 1, Grid().columnCount());
}

}  // namespace kordavan
