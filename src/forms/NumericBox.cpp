#include "forms/NumericBox.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QStyle>
#include <QStyleOptionFrame>

#include "core/NumberText.h"

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
    const std::string_view refusal =
        entryRule == nullptr ? std::string_view{} : InsertRefusal(*entryRule, value);
    if (!refusal.empty()) {
        Message message = Refusal(refusal);
        message.Icon = MessageIcon::Warning;
        shared.User.Tell(message);
        return;
    }
    selectAll();
    insert(Text(value));
    Judge();
}

void NumericBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    selectAll();
    selectsOnRelease = event->reason() == Qt::MouseFocusReason;
}

/// The click that brought the focus has put the caret somewhere; the whole text is meant.
void NumericBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (selectsOnRelease && !hasSelectedText()) {
        selectAll();
    }
    selectsOnRelease = false;
}

void NumericBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Insert && event->modifiers() == Qt::NoModifier) {
        InsertFromCalculator();
        return;
    }
    if (event->text() == QLatin1String(",")) {
        TellNoCommas();
        return;
    }
    if (event->key() == Qt::Key_Delete && event->modifiers().testFlag(Qt::ControlModifier) && IsInTable()) {
        if (event->modifiers().testFlag(Qt::ShiftModifier)) {
            Q_EMIT ClearTableAsked();
        } else {
            Q_EMIT ClearRowAsked();
        }
        return;
    }
    QLineEdit::keyPressEvent(event);
}

bool NumericBox::IsInTable() const
{
    return isSignalConnected(QMetaMethod::fromSignal(&NumericBox::ClearRowAsked));
}

void NumericBox::TellNoCommas()
{
    Message message = Alert(EntryTexts::NoCommas);
    message.Icon = MessageIcon::Warning;
    shared.User.Tell(message);
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
    if (verdict != EntryVerdict::Stands) {
        clear();
    }
    const bool hasComma = entryRule == nullptr && text().contains(QLatin1Char(','));
    if (hasComma) {
        clear();
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
