#include "forms/StepButtons.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

#include "design/Selection.h"
#include "forms/Kit.h"

namespace kordavan {

StepButtons::StepButtons() : line(new QHBoxLayout(this))
{
    line->setContentsMargins(0, 0, 0, 0);
    shape.Back = AddShapeButton({.Name = "StlBack", .Tip = "The candidate before this shape (-)"},
                                "&Previous Shape", SteelStep::Back);
    shape.Forward = AddShapeButton({.Name = "StlForward", .Tip = "The candidate behind this shape (+)"},
                                   "Ne&xt Shape", SteelStep::Forward);
    depth.Back = AddSizeButton({.Name = "CmdNextSizeDn", .Tip = "Next smaller depth (-)"}, "&Depth -",
                               SizeStep::DepthDown);
    depth.Forward =
        AddSizeButton({.Name = "CmdNextSize", .Tip = "Next larger depth (+)"}, "D&epth +", SizeStep::DepthUp);
    line->addSpacing(DigitsWidth(*this, 4));
    breadth.Back = AddSizeButton({.Name = "CmdNextWidthDn", .Tip = "Next smaller breadth (Ctrl -)"},
                                 "B&readth -", SizeStep::BreadthDown);
    breadth.Forward = AddSizeButton({.Name = "CmdNextWidth", .Tip = "Next larger breadth (Ctrl +)"},
                                    "Bre&adth +", SizeStep::BreadthUp);
    line->addStretch(1);
}

void StepButtons::Show(const Session& session, QWidget& elsewhere)
{
    const bool isSteel = session.Numbers.IsSteel();
    for (QPushButton* const button : {depth.Back, depth.Forward, breadth.Back, breadth.Forward}) {
        button->setVisible(!isSteel);
    }
    for (QPushButton* const button : {shape.Back, shape.Forward}) {
        button->setVisible(isSteel);
    }
    const QWidget* const focused = window()->focusWidget();
    const auto enable = [focused, &elsewhere](const Pair& pair, bool back, bool forward) {
        const bool hadFocus = focused == pair.Back || focused == pair.Forward;
        pair.Back->setEnabled(back);
        pair.Forward->setEnabled(forward);
        if (hadFocus && !focused->isEnabled()) {
            HandOnFocus(pair, elsewhere);
        }
    };
    if (isSteel) {
        enable(shape, CanStepShape(session, SteelStep::Back), CanStepShape(session, SteelStep::Forward));
    } else {
        enable(depth, NextEntry(session, SizeStep::DepthDown).has_value(),
               NextEntry(session, SizeStep::DepthUp).has_value());
        enable(breadth, NextEntry(session, SizeStep::BreadthDown).has_value(),
               NextEntry(session, SizeStep::BreadthUp).has_value());
    }
}

/// Plus also without Shift, where it shares its key with the equals sign.
bool StepButtons::Press(const QKeyEvent& event)
{
    const bool isForward = event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal;
    if (event.modifiers().testFlag(Qt::AltModifier) || (!isForward && event.key() != Qt::Key_Minus)) {
        return false;
    }
    const Pair& sizes = event.modifiers().testFlag(Qt::ControlModifier) ? breadth : depth;
    const Pair& pair = shape.Back->isHidden() ? sizes : shape;
    (isForward ? pair.Forward : pair.Back)->click();
    return true;
}

QPushButton* StepButtons::AddSizeButton(const ControlText& text, std::string_view caption, SizeStep step)
{
    QPushButton* const button = MakeButton(text, caption);
    connect(button, &QPushButton::clicked, this, [this, step] { Q_EMIT SizeAsked(step); });
    line->addWidget(button);
    return button;
}

QPushButton* StepButtons::AddShapeButton(const ControlText& text, std::string_view caption, SteelStep step)
{
    QPushButton* const button = MakeButton(text, caption);
    connect(button, &QPushButton::clicked, this, [this, step] { Q_EMIT ShapeAsked(step); });
    line->addWidget(button);
    return button;
}

void StepButtons::HandOnFocus(const Pair& pair, QWidget& elsewhere)
{
    for (QWidget* const next :
         {static_cast<QWidget*>(pair.Back), static_cast<QWidget*>(pair.Forward), &elsewhere}) {
        if (next->isEnabled()) {
            next->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

}  // namespace kordavan
