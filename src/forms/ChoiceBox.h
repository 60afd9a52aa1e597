#pragma once

#include <string_view>
#include <vector>

#include "forms/Kit.h"
#include "forms/TextBox.h"

class QStringListModel;

namespace kordavan {

/// A text box that offers the exact texts it takes, as they are typed or all of them on Down. A text chosen
/// from those counts as typed.
class ChoiceBox : public TextBox {
    Q_OBJECT

public:
    /// @param digits  least width of the box
    ChoiceBox(const ControlText& text, int digits);

    /// The same texts again leave an open list as it is.
    void SetChoices(const std::vector<std::string_view>& texts);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Choose(const QString& choice);
    void PassOn(QKeyEvent& event);

    int digitCount;
    QStringListModel* choices;
};

}  // namespace kordavan
