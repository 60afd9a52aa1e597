#pragma once

#include <QComboBox>
#include <string_view>
#include <vector>

#include "forms/Kit.h"

namespace kordavan {

/// A list of species and grades that takes any other name too. Down opens it, and what is typed narrows it
/// down.
class SpeciesBox : public QComboBox {
    Q_OBJECT

public:
    SpeciesBox(const ControlText& text, int mostCharacters);

    /// Shows the text over the names that are offered; neither counts as typed.
    void Show(std::string_view text, const std::vector<std::string_view>& names);

Q_SIGNALS:
    /// The text has been typed in.
    void Typed(const QString& text);

    /// A name has been chosen from those offered.
    void Picked(const QString& name);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void PickTypedName();

    bool isShowing = false;
    bool isTyped = false;  // since a name was shown or chosen
};

}  // namespace kordavan
