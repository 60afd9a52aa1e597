#include "forms/NotchStatusLine.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

#include "columns/ColumnScreen.h"
#include "forms/Kit.h"
#include "forms/RatioBar.h"
#include "forms/StatusColor.h"
#include "forms/StatusSign.h"

namespace kordavan {

namespace {

constexpr int WidestBar = 30;

}  // namespace

NotchStatusLine::NotchStatusLine()
    : verdict(new QWidget),
      sign(new StatusSign(QStringLiteral("NotchSign"))),
      status(MakeNamedLabel("ShearStatusLabel")),
      bar(new RatioBar(QStringLiteral("NotchRatioBar"))),
      changed(MakeNamedLabel("NotchChangedLabel"))
{
    for (QLabel* const label : {status, changed}) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setFocusPolicy(Qt::NoFocus);
    }
    bar->setMinimumWidth(1);  // of large letters the words need all the room
    bar->setMaximumWidth(DigitsWidth(*bar, WidestBar));
    auto* const inner = new QHBoxLayout(verdict);
    inner->setContentsMargins(0, 0, 0, 0);
    inner->addWidget(sign);
    inner->addWidget(status);
    inner->addWidget(bar, 1);
    LetFade(*verdict);
    auto* const line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(verdict);
    line->addSpacing(DigitsWidth(*this, 1));
    line->addWidget(changed);
    line->addStretch(1);
}

void NotchStatusLine::ShowTexts(const NotchTexts& texts)
{
    fails = texts.Fails;
    const bool hasStatus = !texts.ShearStatusLabel.empty();
    const Sign outcome = fails ? Sign::Fails : Sign::Passes;
    sign->Show(hasStatus ? outcome : Sign::None);
    status->setText(Text(texts.ShearStatusLabel));
    PaintStatus(*status, fails);
    bar->Show(texts.Ratio, fails);
    changed->setText(texts.IsOutdated ? Text(EntriesChanged) : QString{});
    Fade(*verdict, texts.IsOutdated || texts.IsOfEarlierRun);
}

void NotchStatusLine::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && isVisible()) {
        PaintStatus(*status, fails);
    }
}

}  // namespace kordavan
