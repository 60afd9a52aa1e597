#include "forms/ChoiceBox.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QStringListModel>

namespace kordavan {

ChoiceBox::ChoiceBox(const ControlText& text, int digits)
    : digitCount(digits), choices(new QStringListModel(this))
{
    Describe(*this, text);
    auto* const offers = new QCompleter(choices, this);
    offers->setCaseSensitivity(Qt::CaseInsensitive);
    offers->setFilterMode(Qt::MatchContains);
    offers->setCompletionMode(QCompleter::PopupCompletion);
    setCompleter(offers);
    // A line edit that loses the focus cuts whatever its completer is connected to in the edit itself.
    const auto choose = [this](const QString& choice) { Choose(choice); };
    connect(offers, qOverload<const QString&>(&QCompleter::activated), choices, choose);
    connect(offers, qOverload<const QString&>(&QCompleter::highlighted), choices, choose);
}

void ChoiceBox::SetChoices(const std::vector<std::string_view>& texts)
{
    QStringList list;
    for (const std::string_view text : texts) {
        list.append(Text(text));
    }
    if (list != choices->stringList()) {
        choices->setStringList(list);
    }
}

QSize ChoiceBox::sizeHint() const
{
    return {DigitsWidth(*this, digitCount), TextBox::sizeHint().height()};
}

void ChoiceBox::keyPressEvent(QKeyEvent* event)
{
    QAbstractItemView& list = *completer()->popup();
    if (event->key() == Qt::Key_Down && !list.isVisible()) {
        completer()->setCompletionPrefix({});
        completer()->complete();
        return;
    }
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && list.isVisible() && !list.currentIndex().isValid()) {
        list.hide();
        PassOn(*event);
        return;
    }
    TextBox::keyPressEvent(event);
}

/// Enter means the form's command, not only the end of a list from which nothing was chosen.
void ChoiceBox::PassOn(QKeyEvent& event)
{
    QCoreApplication::sendEvent(parentWidget(), &event);
    event.accept();
}

void ChoiceBox::Choose(const QString& choice)
{
    setText(choice);
    Q_EMIT textEdited(choice);
}

}  // namespace kordavan
