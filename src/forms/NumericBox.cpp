#include "forms/NumericBox.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFrame>

namespace kordavan {

NumericBox::NumericBox(const ControlText& text, int digits, const EntryRule* rule,
                       const NumericBoxContext& context)
    : digitCount(digits), entryRule(rule), shared(context)
{
    Describe(*this, text);
    setAlignment(Qt::AlignRight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textEdited, this, &NumericBox::Judge);
}

QSize NumericBox::sizeHint() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    constexpr int innerMargins = 6;
    const QSize content(DigitsWidth(*this, digitCount) + innerMargins, QLineEdit::sizeHint().height());
    return {style()->sizeFromContents(QStyle::CT_LineEdit, &option, content, this).width(), content.height()};
}

void NumericBox::InsertFromCalculator()
{
    if (isReadOnly() || !isEnabled()) {
        return;
    }
    const std::string value = shared.CalculatorText();
    const std::string_view refusal = InsertRefusal(entryRule, value);
    if (!refusal.empty()) {
        shared.User.Tell(Marked(Refusal(refusal), MessageIcon::Warning));
        return;
    }
    selectAll();
    insert(Text(value));
    Judge();
}

void NumericBox::focusInEvent(QFocusEvent* event)
{
    TextBox::focusInEvent(event);
    stoodLast = text();
}

/// A number longer than its box shows how it begins.
void NumericBox::focusOutEvent(QFocusEvent* event)
{
    TextBox::focusOutEvent(event);
    setCursorPosition(0);
}

void NumericBox::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Undo) && !isUndoAvailable() && text() != stoodLast) {
        setText(stoodLast);
        Judge();
        return;
    }
    if (event->key() == Qt::Key_Insert && event->modifiers() == Qt::NoModifier) {
        InsertFromCalculator();
        return;
    }
    if (event->text() == QLatin1String(",")) {
        TellNoCommas();
        return;
    }
    if (event->key() == Qt::Key_Delete && event->modifiers().testFlag(Qt::ControlModifier) && isInTable) {
        if (event->modifiers().testFlag(Qt::ShiftModifier)) {
            Q_EMIT ClearTableAsked();
        } else {
            Q_EMIT ClearRowAsked();
        }
        return;
    }
    TextBox::keyPressEvent(event);
}

void NumericBox::TellNoCommas()
{
    shared.User.Tell(Marked(Alert(EntryTexts::NoCommas), MessageIcon::Warning));
}

void NumericBox::Judge()
{
    if (isJudging) {
        return;
    }
    isJudging = true;
    const EntryVerdict verdict = entryRule == nullptr
                                     ? EntryVerdict::Stands
                                     : JudgeEntry(*entryRule, Text(text()), EntryState::BeingTyped);
    const bool hasComma = entryRule == nullptr && text().contains(QLatin1Char(','));
    if (verdict != EntryVerdict::Stands || hasComma) {
        setText({});  // clear() would leave the bad text to be undone to
    } else {
        stoodLast = text();
    }
    Q_EMIT Changed();
    if (hasComma) {
        TellNoCommas();
    }
    if (verdict == EntryVerdict::Refused) {
        shared.User.Tell(Alert(entryRule->Message, Text(objectName())));
    }
    isJudging = false;
}

}  // namespace kordavan
