#include "forms/OwnPickRow.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "forms/Kit.h"
#include "forms/PickTable.h"

namespace kordavan {

namespace {

constexpr int DepthDigits = 8;

}  // namespace

OwnPickRow::OwnPickRow()
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    heading = MakeHeading("Quick picks: smallest depth that passes");
    KeepPlace(*heading);
    column->addWidget(heading);
    auto* const grid = new QGridLayout;
    for (std::size_t k = 0; k < picks.size(); ++k) {
        breadths[k] = MakeNamedLabel(Text(ArrayName("LVLab", k)));
        picks[k] = new PickCell(ArrayName("LVLbut", k));
        picks[k]->setAccessibleName(QStringLiteral("Quick pick %1").arg(k + 1));
        picks[k]->setToolTip(picks[k]->accessibleName());
        connect(picks[k], &QPushButton::clicked, this, [this, k] { Q_EMIT Picked(k); });
        grid->addWidget(breadths[k], 0, static_cast<int>(k), Qt::AlignHCenter);
        grid->addWidget(picks[k], 1, static_cast<int>(k));
        KeepPlace(*breadths[k]);
        KeepPlace(*picks[k]);
    }
    grid->setColumnStretch(OwnPickCount, 1);
    column->addLayout(grid);

    auto* const line = new QHBoxLayout;
    depthsCaption = MakeNamedLabel("DepthsCaption", "Depths of the breadth below that suit the moment:");
    KeepPlace(*depthsCaption);
    line->addWidget(depthsCaption);
    for (std::size_t k = 0; k < depthButtons.size(); ++k) {
        const std::string name = Text(ArrayName("ButG", k));
        depthButtons[k] = MakeButton({.Name = name, .Tip = "Puts this depth into the box below"}, "");
        depthButtons[k]->setAccessibleName(QStringLiteral("Suggested depth %1").arg(k + 1));
        depthButtons[k]->setFixedWidth(DigitsWidth(*this, DepthDigits));
        connect(depthButtons[k], &QPushButton::clicked, this,
                [this, k] { Q_EMIT DepthPicked(depthButtons[k]->text()); });
        line->addWidget(depthButtons[k]);
        KeepPlace(*depthButtons[k]);
    }
    line->addStretch(1);
    column->addLayout(line);
}

void OwnPickRow::ShowPicks(const std::vector<QuickPick>& found, const Session& session)
{
    heading->setVisible(!found.empty());
    const SizeFamily family = FamilyOf(session.Entry, session.Numbers.Group);
    for (std::size_t k = 0; k < picks.size(); ++k) {
        const bool isUsed = k < found.size();
        breadths[k]->setVisible(isUsed);
        picks[k]->setVisible(isUsed);
        if (isUsed) {
            breadths[k]->setText(Text(found[k].BreadthText));
            picks[k]->Show(found[k], FaceOf(found[k], family, session.Numbers.Rep));
            picks[k]->SetPicked(!found[k].DepthText.empty() &&
                                found[k].BreadthText == session.Entry.BreadthText &&
                                found[k].DepthText == session.Entry.DepthText);
        }
    }
}

void OwnPickRow::ShowDepths(const std::vector<std::string_view>& depths)
{
    depthsCaption->setVisible(!depths.empty());
    for (std::size_t k = 0; k < depthButtons.size(); ++k) {
        depthButtons[k]->setVisible(k < depths.size());
        if (k < depths.size()) {
            depthButtons[k]->setText(Text(depths[k]));
            depthButtons[k]->setAccessibleName(QStringLiteral("Depth %1").arg(Text(depths[k])));
        }
    }
}

void OwnPickRow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Left) {
        FocusNext(-1);
    } else if (event->key() == Qt::Key_Right) {
        FocusNext(1);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void OwnPickRow::FocusNext(int step)
{
    const auto count = static_cast<int>(picks.size());
    const auto focused =
        std::find_if(picks.begin(), picks.end(), [](const PickCell* pick) { return pick->hasFocus(); });
    for (int k = static_cast<int>(focused - picks.begin()) + step; k >= 0 && k < count; k += step) {
        PickCell* const pick = picks[static_cast<std::size_t>(k)];
        if (!pick->isHidden() && pick->isEnabled()) {
            pick->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

bool OwnPickRow::FocusFirst()
{
    for (PickCell* const pick : picks) {
        if (!pick->isHidden() && pick->isEnabled()) {
            pick->setFocus(Qt::OtherFocusReason);
            return true;
        }
    }
    return false;
}

}  // namespace kordavan
