#pragma once

#include <QFrame>
#include <array>

#include "columns/ColumnCriteria.h"
#include "columns/ColumnScreen.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace kordavan {

/// Asks which reaction of the beam a column is to carry.
class ReactionFrame : public QFrame {
    Q_OBJECT

public:
    ReactionFrame();

    void ShowScreen(const ColumnScreen& screen);

    /// Comes up, with the caret in it.
    void Open();

    QPushButton& TakeCommand() { return *take; }

Q_SIGNALS:
    void Taken(const ReactionChoice& choice);

private:
    std::array<QRadioButton*, 2> options{};
    QCheckBox* doubled;
    QPushButton* take;
};

}  // namespace kordavan
