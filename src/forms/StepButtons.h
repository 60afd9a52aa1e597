#pragma once

#include <QWidget>
#include <array>
#include <optional>

#include "design/SizeStepping.h"
#include "design/SteelSelection.h"

class QHBoxLayout;
class QKeyEvent;
class QPushButton;

namespace kordavan {

struct ControlText;

/// The buttons of the test report that step to another member: depth and breadth of wood, or the neighbouring
/// shape of steel.
class StepButtons : public QWidget {
    Q_OBJECT

public:
    StepButtons();

    /// Shows the buttons of the member tested last. One that is switched off hands its focus to its twin, or
    /// else to another control.
    void Show(const Session& session, QWidget& elsewhere);

    /// Presses the button of a key: plus and minus, with Ctrl for the breadth. False for any other key.
    bool Press(const QKeyEvent& event);

Q_SIGNALS:
    void SizeAsked(SizeStep step);
    void ShapeAsked(SteelStep step);

private:
    /// A step back and the step forward that undoes it.
    struct Pair {
        QPushButton* Back;
        QPushButton* Forward;
    };

    QPushButton* AddSizeButton(const ControlText& text, std::string_view caption, SizeStep step);
    QPushButton* AddShapeButton(const ControlText& text, std::string_view caption, SteelStep step);
    static void HandOnFocus(const Pair& pair, QWidget& elsewhere);

    QHBoxLayout* line;
    Pair depth{};
    Pair breadth{};
    Pair shape{};
};

}  // namespace kordavan
