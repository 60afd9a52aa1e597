#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <vector>

class QAbstractButton;
class QBoxLayout;
class QCheckBox;
class QFrame;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPalette;
class QKeySequence;
class QPushButton;
class QRadioButton;
class QToolButton;
class QWidget;

namespace kordavan {

QString Text(std::string_view text);
std::string Text(const QString& text);

/// The name of a member of a control array.
QString ArrayName(std::string_view array, std::size_t index);

/// What a control is called by tests and styles, and what assistive tools and a hovering mouse say of it.
struct ControlText {
    std::string_view Name;
    std::string_view Tip{};
};

/// Names the control and tells its tip.
void Describe(QWidget& control, const ControlText& text);

/// What a hovering mouse says of a control. To assistive tools it is the name of a control without a caption,
/// and the description of one that has a caption.
void SetTip(QWidget& control, std::string_view tip);

/// The wheel turns a list only while it has the focus, not as it comes by when the form scrolls.
void IgnoreStrayWheel(QWidget& list);

/// The control keeps its place while it is hidden.
void KeepPlace(QWidget& control);

/// Makes Fade work on a control.
void LetFade(QWidget& control);

/// Shows a control pale, for what no longer counts, or plain.
void Fade(QWidget& control, bool isFaded);

QLabel* MakeLabel(std::string_view caption);
QLabel* MakeNamedLabel(std::string_view name, std::string_view caption = {});

/// A caption whose mnemonic leads to the box.
QLabel* MakeCaption(std::string_view caption, QWidget& box);

QPushButton* MakeButton(const ControlText& text, std::string_view caption);
QCheckBox* MakeCheck(const ControlText& text, std::string_view caption);
QRadioButton* MakeOption(const ControlText& text, std::string_view caption);

/// Changes the caption of a button, which keeps its shortcut.
void SetCaption(QAbstractButton& button, std::string_view caption);

/// A small button that steps a box beside it through common values.
QToolButton* MakeCycle(const ControlText& text, const QKeySequence& keys);

/// A text box of any text that takes the room it gets.
QLineEdit* MakeTextBox(const ControlText& text, int mostCharacters);

/// A read-only line that takes the room it gets.
QLabel* MakePanel(std::string_view name);

/// A heading over a group of controls.
QLabel* MakeHeading(std::string_view caption);

/// A heading over a column of figures.
QLabel* MakeColumnHead(std::string_view caption);

QFrame* MakeRule();

/// Whether a palette is a dark one.
bool IsDark(const QPalette& palette);

/// The blues of entries that lie on an overhang: their totals and distances, and their live parts.
enum class OverhangPaint { None, Total, Live };

/// Paints a box in a blue of the overhang, with white text, or like any other box.
void PaintOverhang(QLineEdit& box, OverhangPaint paint);

/// Chains the tab stops in this order; a group stands for all that are in it, as they were added.
void ChainTabStops(const std::vector<QWidget*>& order);

/// The room of so many digits in the widget's font.
int DigitsWidth(const QWidget& widget, int digits);

}  // namespace kordavan
