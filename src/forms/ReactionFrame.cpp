#include "forms/ReactionFrame.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "forms/Kit.h"

namespace kordavan {

ReactionFrame::ReactionFrame()
    : doubled(MakeCheck({.Name = "DblReaction", .Tip = "Two equal beams bear on the column"}, "Doubled")),
      take(MakeButton({.Name = "CmdImportOK", .Tip = "Puts the reaction into the axial load"}, "&OK"))
{
    setObjectName(QStringLiteral("ImportReaction"));
    setFrameShape(QFrame::StyledPanel);
    auto* const grid = new QGridLayout(this);
    constexpr int tight = 4;
    grid->setContentsMargins(2 * tight, tight, 2 * tight, tight);
    grid->setVerticalSpacing(tight);
    grid->addWidget(MakeLabel("From the current beam:"), 0, 0, 1, 2);
    constexpr std::array texts{
        ControlText{.Name = "OptionR1", .Tip = "Reaction at the start of the beam"},
        ControlText{.Name = "OptionR2", .Tip = "Reaction at the second support of the beam"}};
    for (std::size_t k = 0; k < options.size(); ++k) {
        options[k] = MakeOption(texts[k], {});
        grid->addWidget(options[k], static_cast<int>(k) + 1, 0);
    }
    options.front()->setChecked(true);
    grid->addWidget(doubled, 1, 1);
    grid->addWidget(take, 2, 1);
    grid->setColumnStretch(0, 1);
    connect(take, &QPushButton::clicked, this, [this] {
        Q_EMIT Taken({.IsSecond = options.back()->isChecked(), .IsDoubled = doubled->isChecked()});
    });
    hide();
}

void ReactionFrame::ShowScreen(const ColumnScreen& screen)
{
    for (std::size_t k = 0; k < options.size(); ++k) {
        options[k]->setText(Text(screen.Reactions[k]));
    }
}

void ReactionFrame::Open()
{
    show();
    for (QRadioButton* const option : options) {
        if (option->isChecked()) {
            option->setFocus(Qt::OtherFocusReason);
        }
    }
}

}  // namespace kordavan
