#include "forms/SpeciesBox.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>

#include "forms/TextBox.h"

namespace kordavan {

SpeciesBox::SpeciesBox(const ControlText& text, int mostCharacters)
{
    setEditable(true);
    auto* const box = new TextBox;
    Describe(*box, {.Name = text.Name, .Tip = text.Tip});
    box->setObjectName(box->objectName() + QStringLiteral("Text"));
    box->setMaxLength(mostCharacters);
    setLineEdit(box);
    Describe(*this, text);
    setInsertPolicy(QComboBox::NoInsert);
    setSizeAdjustPolicy(QComboBox::AdjustToContentsOnFirstShow);
    IgnoreStrayWheel(*this);
    completer()->setCompletionMode(QCompleter::PopupCompletion);
    completer()->setFilterMode(Qt::MatchContains);
    connect(this, &QComboBox::editTextChanged, this, [this](const QString& typed) {
        if (!isShowing) {
            isTyped = true;
            Q_EMIT Typed(typed);
        }
    });
    connect(this, &QComboBox::activated, this, [this](int index) { Q_EMIT Picked(itemText(index)); });
    connect(this, &SpeciesBox::Picked, this, [this] { isTyped = false; });
    connect(completer(), qOverload<const QString&>(&QCompleter::highlighted), this, &SpeciesBox::Picked);
}

void SpeciesBox::Show(std::string_view text, const std::vector<std::string_view>& names)
{
    isShowing = true;
    QStringList wanted;
    for (const std::string_view name : names) {
        wanted.append(Text(name));
    }
    QStringList offered;
    for (int index = 0; index < count(); ++index) {
        offered.append(itemText(index));
    }
    if (offered != wanted) {
        clear();
        addItems(wanted);
    }
    if (currentText() != Text(text)) {
        setCurrentIndex(findText(Text(text)));
        setEditText(Text(text));
    }
    isShowing = false;
}

/// A name typed to its end is as good as one chosen.
void SpeciesBox::PickTypedName()
{
    if (isTyped && findText(currentText(), Qt::MatchFixedString | Qt::MatchCaseSensitive) >= 0) {
        Q_EMIT Picked(currentText());
    }
}

/// Arrows choose from the open list alone: a stray one would put another name in the place of the text. Enter
/// means the form's command, not the name that the text begins like.
void SpeciesBox::keyPressEvent(QKeyEvent* event)
{
    QAbstractItemView& matches = *completer()->popup();
    switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
            matches.hide();
            showPopup();
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!matches.isVisible() || !matches.currentIndex().isValid()) {
                matches.hide();
                PickTypedName();
                event->ignore();
                return;
            }
            break;
        default:
            break;
    }
    QComboBox::keyPressEvent(event);
}

}  // namespace kordavan
