#include "forms/ColumnPicks.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <algorithm>

#include "forms/Kit.h"
#include "forms/PickTable.h"

namespace kordavan {

ColumnPicks::ColumnPicks(int digits) : grid(new QGridLayout(this)), digitCount(digits)
{
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(DigitsWidth(*this, 1));
}

void ColumnPicks::AddLine(std::string_view headCaption, std::string_view caption,
                          const std::vector<Names>& names)
{
    const int headLine = grid->rowCount();
    const int line = headLine + 1;
    if (!headCaption.empty()) {
        grid->addWidget(MakeLabel(headCaption), headLine, 0);
    }
    grid->addWidget(MakeLabel(caption), line, 0);
    int column = 1;
    for (const Names& name : names) {
        Place place{.Head = nullptr, .Cell = new PickCell(Text(name.Button))};
        place.Cell->setMinimumWidth(DigitsWidth(*this, digitCount));
        grid->addWidget(place.Cell, line, column);
        if (!name.Head.empty()) {
            place.Head = MakeHeading("");
            place.Head->setObjectName(Text(name.Head));
            grid->addWidget(place.Head, headLine, column, Qt::AlignHCenter);
        }
        connect(place.Cell, &PickCell::clicked, this,
                [this, index = places.size()] { Q_EMIT Picked(index); });
        places.push_back(place);
        ++column;
    }
    grid->setColumnStretch(column, 1);
}

void ColumnPicks::Show(const std::vector<ColumnPick>& picks)
{
    for (std::size_t k = 0; k < places.size() && k < picks.size(); ++k) {
        const ColumnPick& pick = picks[k];
        if (places[k].Head != nullptr) {
            places[k].Head->setText(Text(pick.Head));
            places[k].Head->setVisible(pick.IsOffered);
        }
        QuickPick shown;
        shown.DepthText = pick.Size;
        places[k].Cell->Show(shown, {.Name = pick.Name, .Tip = pick.Tip});
        places[k].Cell->SetPicked(pick.IsPicked);
        places[k].Cell->setVisible(pick.IsOffered);
    }
}

bool ColumnPicks::FocusFirst()
{
    const auto first = std::find_if(places.begin(), places.end(), [](const Place& place) {
        return !place.Cell->isHidden() && place.Cell->isEnabled();
    });
    if (first == places.end()) {
        return false;
    }
    first->Cell->setFocus(Qt::OtherFocusReason);
    return true;
}

void ColumnPicks::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Up:
            FocusNext(-1);
            break;
        case Qt::Key_Right:
        case Qt::Key_Down:
            FocusNext(1);
            break;
        default:
            QWidget::keyPressEvent(event);
            break;
    }
}

void ColumnPicks::FocusNext(int step)
{
    const auto focused =
        std::find_if(places.begin(), places.end(), [](const Place& place) { return place.Cell->hasFocus(); });
    const auto count = static_cast<int>(places.size());
    for (int k = static_cast<int>(focused - places.begin()) + step; k >= 0 && k < count; k += step) {
        PickCell* const cell = places[static_cast<std::size_t>(k)].Cell;
        if (!cell->isHidden() && cell->isEnabled()) {
            cell->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

}  // namespace kordavan
