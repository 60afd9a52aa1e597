#include "forms/Bindings.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QSignalBlocker>

#include "forms/Kit.h"
#include "forms/LineList.h"
#include "forms/NumericBox.h"

namespace kordavan {

void Bindings::Bind(QLineEdit& box, std::string& text)
{
    connect(&box, &QLineEdit::textEdited, this, [this, &box, &text] {
        text = Text(box.text());
        Q_EMIT Edited(box.objectName());
    });
    BindText(box, text);
}

void Bindings::Bind(NumericBox& box, std::string& text)
{
    connect(&box, &NumericBox::Changed, this, [this, &box, &text] {
        text = Text(box.text());
        Q_EMIT Edited(box.objectName());
    });
    BindText(box, text);
}

void Bindings::Bind(QAbstractButton& check, bool& flag)
{
    connect(&check, &QAbstractButton::clicked, this, [this, &check, &flag] {
        flag = check.isChecked();
        Q_EMIT Edited(check.objectName());
    });
    shows.emplace_back([&check, &flag] { check.setChecked(flag); });
}

void Bindings::Bind(QComboBox& list, std::string& text)
{
    connect(&list, &QComboBox::activated, this, [this, &list, &text] {
        text = Text(list.currentText());
        Q_EMIT Edited(list.objectName());
    });
    shows.emplace_back([&list, &text] {
        const QString shown = Text(text);
        if (list.findText(shown) < 0) {
            list.addItem(shown);
        }
        list.setCurrentText(shown);
    });
}

void Bindings::Bind(QComboBox& list, int& position)
{
    connect(&list, &QComboBox::activated, this, [this, &list, &position](int index) {
        position = index;
        Q_EMIT Edited(list.objectName());
    });
    shows.emplace_back([&list, &position] { list.setCurrentIndex(position); });
}

void Bindings::Bind(LineList& list, int& position)
{
    connect(&list, &LineList::Chosen, this, [this, &list, &position](int line) {
        if (position != line) {
            position = line;
            Q_EMIT Edited(list.objectName());
        }
    });
    shows.emplace_back([&list, &position] { list.setCurrentRow(position); });
}

void Bindings::Show() const
{
    for (const auto& show : shows) {
        show();
    }
}

void Bindings::BindText(QLineEdit& box, std::string& text)
{
    shows.emplace_back([&box, &text] {
        const QString shown = Text(text);
        if (box.text() != shown) {
            box.setText(shown);
            if (!box.hasFocus()) {
                box.setCursorPosition(0);  // a text longer than its box shows how it begins
            }
        }
    });
}

/// In an exclusive group the last option could not be taken away, yet none may be chosen. The one that is
/// chosen is the group's stop for Tab, before any has had the focus too.
void Bindings::SetOption(QAbstractButton& option, bool isChosen)
{
    QButtonGroup* const group = option.group();
    if (group != nullptr && option.isChecked() && !isChosen) {
        group->setExclusive(false);
        option.setChecked(false);
        group->setExclusive(true);
    } else {
        option.setChecked(isChosen);
    }
    if (group == nullptr || !isChosen) {
        return;
    }
    for (QAbstractButton* const other : group->buttons()) {
        other->setFocusPolicy(other == &option ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

}  // namespace kordavan
