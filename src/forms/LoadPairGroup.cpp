#include "forms/LoadPairGroup.h"

#include <QAbstractButton>
#include <QFocusEvent>
#include <QGridLayout>
#include <QLabel>
#include <algorithm>
#include <string>

#include "core/NumberText.h"
#include "records/DefaultsFile.h"

namespace kordavan {

namespace {

constexpr int GapLine = 1;
constexpr int HeadLine = 2;
constexpr int FirstPairLine = 3;

enum Column { NumberColumn, LiveColumn, TotalColumn, RestColumn };

constexpr std::string_view LiveArray = "Livedefault";
constexpr std::string_view TotalArray = "TotalLoadDefault";
constexpr std::string_view Advice =
    "Enter pairs of commonly used uniform loads in PSF for the 'spin' buttons of Form 1.";

/// Pairs are counted from 1 to the person.
std::string NumberOf(std::size_t index)
{
    return PlainNumber(static_cast<double>(index + 1));
}

/// The person's own ways out of a box. A message, a menu or another program takes the focus only for a while,
/// and where the program itself sets it nothing is finished; but the mnemonic of a check gives no reason.
bool IsLeft(Qt::FocusReason reason, const QWidget* now)
{
    switch (reason) {
        case Qt::MouseFocusReason:
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
        case Qt::ShortcutFocusReason:
            return true;
        case Qt::OtherFocusReason:
            return qobject_cast<const QAbstractButton*>(now) != nullptr;
        default:
            return false;
    }
}

}  // namespace

LoadPairGroup::LoadPairGroup(const GroupContext& context, std::array<LoadPair, LoadPairCount>& pairs)
    : EntryGroup(context, "LoadPairGroup", "Load pairs")
{
    connect(this, &LoadPairGroup::BoxLeft, this, &LoadPairGroup::JudgeLeft, Qt::QueuedConnection);
    QLabel* const advice = MakeNamedLabel("Label7", Advice);
    advice->setWordWrap(true);
    constexpr int adviceDigits = 30;
    advice->setMinimumWidth(DigitsWidth(*advice, adviceDigits));
    Grid().addWidget(advice, 0, 0, 1, RestColumn + 1);
    Grid().setRowMinimumHeight(GapLine, advice->fontMetrics().height() / 2);
    for (std::size_t k = 0; k < pairs.size(); ++k) {
        NumericBox* const live = AddBox(LiveArray, k, "Live load", pairs[k].Live);
        NumericBox* const total = AddBox(TotalArray, k, "Total load, live and dead,", pairs[k].Total);
        const int line = FirstPairLine + static_cast<int>(k);
        Grid().addWidget(MakeLabel(NumberOf(k)), line, NumberColumn);
        Grid().addWidget(live, line, LiveColumn, Qt::AlignRight);
        Grid().addWidget(total, line, TotalColumn, Qt::AlignRight);
        if (k == 0) {
            Grid().addWidget(MakeHead("&LL (PSF)", *live), HeadLine, LiveColumn);
            Grid().addWidget(MakeHead("TL (PSF)", *total), HeadLine, TotalColumn);
        }
    }
    Grid().setColumnStretch(RestColumn, 1);
    Grid().setRowStretch(FirstPairLine + static_cast<int>(pairs.size()), 1);
}

/// The message waits until the focus has arrived where it goes: the click that moved it is still on its way.
bool LoadPairGroup::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut) {
        auto* const box = static_cast<NumericBox*>(watched);
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        Q_EMIT BoxLeft(box, reason);
    }
    return EntryGroup::eventFilter(watched, event);
}

NumericBox* LoadPairGroup::AddBox(std::string_view array, std::size_t index, std::string_view what,
                                  std::string& bound)
{
    const std::string tip = std::string(what) + " of pair " + NumberOf(index) + ", psf";
    NumericBox* const box = AddNumber(array, index, tip, LoadDigits, bound);
    box->installEventFilter(this);
    return box;
}

QLabel* LoadPairGroup::MakeHead(std::string_view caption, NumericBox& firstBox)
{
    QLabel* const head = MakeColumnHead(caption);
    head->setBuddy(&firstBox);
    return head;
}

void LoadPairGroup::JudgeLeft(NumericBox* box, Qt::FocusReason reason)
{
    const QWidget* const now = window()->focusWidget();
    const bool isSpared = std::find(sparing.begin(), sparing.end(), now) != sparing.end();
    if (now == box || !IsLeft(reason, now) || isSpared || !box->isVisible()) {
        return;
    }
    const bool isLive = box->objectName().startsWith(Text(LiveArray));
    const std::string_view fault =
        LoadPairFault(Text(box->text()), isLive ? LoadPairSide::Live : LoadPairSide::Total);
    if (!fault.empty()) {
        Shared().Numbers.User.Tell(Alert(fault, Text(box->objectName())));
    }
}

}  // namespace kordavan
