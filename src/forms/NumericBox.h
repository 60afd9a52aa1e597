#pragma once

#include <functional>

#include "core/EntryRules.h"
#include "core/Message.h"
#include "forms/Kit.h"
#include "forms/TextBox.h"

namespace kordavan {

/// What the numeric boxes of a form share: whom to tell, and where an inserted number comes from.
struct NumericBoxContext {
    UserPort& User;
    std::function<std::string()> CalculatorText;
};

/// A right-aligned box for one number, under its entry rule: it selects its text on entry, judges each
/// change, takes the calculator's value by Insert and no commas.
class NumericBox : public TextBox {
    Q_OBJECT

public:
    /// @param digits  width of the box
    /// @param rule    none for a box that takes what is typed
    NumericBox(const ControlText& text, int digits, const EntryRule* rule, const NumericBoxContext& context);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    /// Lets the clearing keys speak for the row and the table that the box is in.
    void SetInTable() { isInTable = true; }

    /// Puts the calculator's value into the box, as if typed.
    void InsertFromCalculator();

Q_SIGNALS:
    /// The person has changed the text, and the rule has had its say.
    void Changed();

    /// Ctrl+Delete and Ctrl+Shift+Delete, in a box of a table: its row, or its table, is to be emptied.
    void ClearRowAsked();
    void ClearTableAsked();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void TellNoCommas();
    void Judge();

    int digitCount;
    const EntryRule* entryRule;
    const NumericBoxContext& shared;
    QString stoodLast;  // the text last let stand, for undo past a refusal
    bool isInTable = false;
    bool isJudging = false;
};

}  // namespace kordavan
