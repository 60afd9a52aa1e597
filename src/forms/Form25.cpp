#include "forms/Form25.h"

#include <QFontInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>
#include <optional>

namespace kordavan {

namespace {

using KeyMeaning = Form25::KeyMeaning;

struct KeyCap {
    std::string_view Name;
    std::string_view Caption;
    KeyMeaning Meaning;
    std::string_view Tip;
};

constexpr std::size_t KeysInRow = 5;

// Row by row, as they stand on the machine.
constexpr std::array KeyCaps{
    KeyCap{"KeyMC", "M&C", CalculatorKey::MemoryClear, "Empty the memory (Alt+C)"},
    KeyCap{"KeyMR", "M&R", CalculatorKey::MemoryRecall, "Recall the memory (Alt+R)"},
    KeyCap{"KeyMPlus", "&M+", CalculatorKey::MemoryAdd, "Add the value to the memory (Alt+M)"},
    KeyCap{"KeyC", "C", CalculatorKey::Clear, "Clear all but the memory (C or Ctrl+Delete)"},
    KeyCap{"KeyCE", "CE", CalculatorKey::ClearEntry, "Clear the entry (Delete)"},

    KeyCap{"Key7", "7", '7', "Digit 7"},
    KeyCap{"Key8", "8", '8', "Digit 8"},
    KeyCap{"Key9", "9", '9', "Digit 9"},
    KeyCap{"KeyDivide", "/", '/', "Divided by, or the bar of a fraction of an inch (/)"},
    KeyCap{"KeyBackspace", "\u2190", CalculatorKey::Backspace, "Take the last key back (Backspace)"},

    KeyCap{"Key4", "4", '4', "Digit 4"},
    KeyCap{"Key5", "5", '5', "Digit 5"},
    KeyCap{"Key6", "6", '6', "Digit 6"},
    KeyCap{"KeyTimes", "x", '*', "Times (x or *)"},
    KeyCap{"KeyFeet", "'  ft", '\'', "Foot mark (')"},

    KeyCap{"Key1", "1", '1', "Digit 1"},
    KeyCap{"Key2", "2", '2', "Digit 2"},
    KeyCap{"Key3", "3", '3', "Digit 3"},
    KeyCap{"KeyMinus", "-", '-', "Minus, or the hyphen before a fraction of an inch (-)"},
    KeyCap{"KeyInches", "\"  in", '"', "Inch mark, which closes a length (\")"},

    KeyCap{"Key0", "0", '0', "Digit 0"},
    KeyCap{"KeyPoint", ".", '.', "Decimal point (.)"},
    KeyCap{"KeyEquals", "=", '=', "Result (Enter or =)"},
    KeyCap{"KeyPlus", "+", '+', "Plus (+)"},
    KeyCap{"KeySpace", "space", ' ', "Blank between feet, inches and fraction (Space)"},
};
static_assert(KeyCaps.size() % KeysInRow == 0);

/// What a key of the keyboard means; none for a key that the machine has not.
std::optional<KeyMeaning> MeaningOf(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const bool isCommand = (event.modifiers() & commands) != 0;
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return '=';
        case Qt::Key_Backspace:
            return CalculatorKey::Backspace;
        case Qt::Key_Delete:
            return isCommand ? CalculatorKey::Clear : CalculatorKey::ClearEntry;
        default:
            break;
    }
    if (isCommand || event.text().size() != 1) {
        return std::nullopt;
    }
    const char typed = event.text().at(0).toLower().toLatin1();
    if (typed == 'c') {
        return CalculatorKey::Clear;
    }
    const KeyMeaning meaning = typed == 'x' ? '*' : typed;
    const bool isKey = std::any_of(KeyCaps.begin(), KeyCaps.end(),
                                   [meaning](const KeyCap& key) { return key.Meaning == meaning; });
    return isKey ? std::optional(meaning) : std::nullopt;
}

void Enlarge(QWidget& widget, double times)
{
    QFont font = widget.font();
    font.setPointSizeF(times * QFontInfo(font).pointSizeF());
    widget.setFont(font);
}

}  // namespace

Form25::Form25(Walk& theWalk) : BesideForm(theWalk, "Form25")
{
    setWindowTitle(QStringLiteral("Calculator"));
    setWindowFlag(Qt::WindowStaysOnTopHint);
    AddDisplay();
    AddKeys();
    AddCommands();
    AddHelpMenu(GuidePage::Calculator);
    ShowValue();
    display->setFocus();
}

void Form25::keyPressEvent(QKeyEvent* event)
{
    if (!TakeKey(*event)) {
        BesideForm::keyPressEvent(event);
    }
}

/// A box that cannot be edited keeps Backspace and Delete to itself all the same.
bool Form25::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey = watched == display && event->type() == QEvent::KeyPress;
    return (isKey && TakeKey(*static_cast<QKeyEvent*>(event))) || BesideForm::eventFilter(watched, event);
}

void Form25::AddDisplay()
{
    memory = MakeNamedLabel("MemoryMark");
    memory->setMinimumWidth(memory->fontMetrics().horizontalAdvance(QLatin1String("MM")));
    display = new QLineEdit;
    Describe(*display, {.Name = "CalT", .Tip = "Entry and value of the calculator"});
    display->setReadOnly(true);
    display->installEventFilter(this);
    display->setAlignment(Qt::AlignRight);
    constexpr double large = 1.7;
    Enlarge(*display, large);
    auto* const line = new QHBoxLayout;
    line->addWidget(memory);
    line->addWidget(display, 1);
    Body().addLayout(line);
}

void Form25::AddKeys()
{
    auto* const grid = new QGridLayout;
    for (std::size_t k = 0; k < KeyCaps.size(); ++k) {
        const KeyCap& cap = KeyCaps[k];
        QPushButton* const key = MakeButton({.Name = cap.Name, .Tip = cap.Tip}, cap.Caption);
        key->setFocusPolicy(Qt::NoFocus);
        constexpr double larger = 1.2;
        Enlarge(*key, larger);
        constexpr int digits = 6;
        constexpr double heights = 2.1;
        key->setMinimumSize(DigitsWidth(*key, digits),
                            static_cast<int>(heights * key->fontMetrics().height()));
        key->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        connect(key, &QPushButton::clicked, this, [this, &cap] { Press(cap.Meaning); });
        const int row = static_cast<int>(k / KeysInRow);
        const int column = static_cast<int>(k % KeysInRow);
        grid->addWidget(key, row, column);
        grid->setRowStretch(row, 1);
        grid->setColumnStretch(column, 1);
    }
    Body().addLayout(grid, 1);
}

void Form25::AddCommands()
{
    value = MakePanel("ValueLine");
    insert = MakeButton({.Name = "CmdInsert", .Tip = "Put the value into the box you were in last (Insert)"},
                        "&Insert");
    insert->setFocusPolicy(Qt::NoFocus);
    connect(insert, &QPushButton::clicked, this, [this] { TheWalk().InsertIntoLastBox(); });
    Foot().addWidget(value);
    Foot().addWidget(insert);
}

/// Presses the key that the keyboard's stands for; false where there is none.
bool Form25::TakeKey(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Insert && event.modifiers() == Qt::NoModifier) {
        insert->click();
        return true;
    }
    const std::optional<KeyMeaning> meaning = MeaningOf(event);
    if (meaning) {
        Press(*meaning);
    }
    return meaning.has_value();
}

void Form25::Press(KeyMeaning meaning)
{
    std::visit([this](auto key) { calculator.Press(key); }, meaning);
    ShowValue();
}

void Form25::ShowValue()
{
    const QString text = Text(ValueText());
    display->setText(Text(calculator.Display()));
    memory->setText(calculator.HasMemory() ? QStringLiteral("M") : QString());
    memory->setAccessibleName(calculator.HasMemory() ? QStringLiteral("The memory holds a value")
                                                     : QStringLiteral("The memory is empty"));
    value->setText(text.isEmpty() ? QStringLiteral("Nothing to insert")
                                  : QStringLiteral("Value: %1").arg(text));
    insert->setEnabled(!text.isEmpty());
}

}  // namespace kordavan
