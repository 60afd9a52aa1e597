#pragma once

#include <QAbstractButton>
#include <QObject>
#include <functional>
#include <string>
#include <vector>

class QComboBox;
class QLineEdit;

namespace kordavan {

class LineList;
class NumericBox;

/// Ties boxes to the texts and flags of the model that they show. What the person enters is in the model at
/// once; what others change there is shown by Show.
class Bindings : public QObject {
    Q_OBJECT

public:
    void Bind(QLineEdit& box, std::string& text);
    void Bind(NumericBox& box, std::string& text);
    void Bind(QAbstractButton& check, bool& flag);

    /// A list of texts; one that the model holds beside them joins the list.
    void Bind(QComboBox& list, std::string& text);

    /// A list whose position the model holds.
    void Bind(QComboBox& list, int& position);
    void Bind(LineList& list, int& position);

    /// An option that stands for one value of a choice.
    template <typename Choice>
    void BindOption(QAbstractButton& option, Choice& choice, Choice value)
    {
        connect(&option, &QAbstractButton::clicked, this, [this, &option, &choice, value] {
            if (choice != value) {
                choice = value;
                Q_EMIT Edited(option.objectName());
            }
        });
        ShowOption(option, choice, value);
    }

    /// An option that shows a choice which it does not make by itself.
    template <typename Choice>
    void ShowOption(QAbstractButton& option, const Choice& choice, Choice value)
    {
        shows.emplace_back([&option, &choice, value] { SetOption(option, choice == value); });
    }

    /// Shows what the model holds; a box whose text is the same keeps its caret and its undo steps.
    void Show() const;

Q_SIGNALS:
    /// The person has changed a control, and the model holds the change.
    void Edited(const QString& control);

private:
    static void SetOption(QAbstractButton& option, bool isChosen);

    void BindText(QLineEdit& box, std::string& text);

    std::vector<std::function<void()>> shows;
};

}  // namespace kordavan
