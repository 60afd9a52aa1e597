#include "forms/StudStatusLine.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

#include "forms/Kit.h"
#include "forms/NoteLine.h"
#include "forms/StatusColor.h"
#include "forms/StatusSign.h"

namespace kordavan {

namespace {

constexpr std::string_view LongestWarning =
    "The moment goes to -10,000.0 ft-lb at 10.00 ft, beyond the 10,000.0 ft-lb that the check works with: "
    "check the stud by hand for it.";
constexpr int StatusDigits = 9;

}  // namespace

StudStatusLine::StudStatusLine()
    : sign(new StatusSign(QStringLiteral("StudStatusSign"))),
      status(MakeNamedLabel("StudStatusLabel")),
      changed(MakeNamedLabel("StudChangedLabel")),
      note(new NoteLine("StudWarning", LongestWarning, NoteKind::Alert))
{
    warning = note->findChild<QLabel*>(QStringLiteral("StudWarning"));
    for (QLabel* const label : {status, changed}) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setFocusPolicy(Qt::NoFocus);
    }
    status->setMinimumWidth(DigitsWidth(*status, StatusDigits));
    auto* const line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(sign);
    line->addWidget(status);
    line->addWidget(changed);
    line->addSpacing(DigitsWidth(*this, 2));
    line->addWidget(note, 1);
}

void StudStatusLine::ShowScreen(const ColumnScreen& screen)
{
    fails = screen.HasStudRun && !screen.StudPasses;
    const Sign passes = screen.StudWarning.empty() ? Sign::Passes : Sign::Alert;
    const Sign outcome = screen.StudPasses ? passes : Sign::Fails;
    sign->Show(screen.HasStudRun ? outcome : Sign::None);
    status->setText(Text(screen.StudStatusLabel));
    PaintStatus(*status, fails);
    changed->setText(screen.HasStudChanged ? Text(EntriesChanged) : QString{});
    warning->setText(Text(screen.StudWarning));
    note->Show();
}

void StudStatusLine::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && isVisible()) {
        PaintStatus(*status, fails);
    }
}

}  // namespace kordavan
