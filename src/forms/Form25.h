#pragma once

#include <string>
#include <variant>

#include "core/Calculator.h"
#include "forms/BesideForm.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace kordavan {

/// The calculator on top of any form: a desk machine that also takes feet and inches, and puts its value into
/// the box that had the focus last.
class Form25 : public BesideForm {
    Q_OBJECT

public:
    /// What a key means to the machine.
    using KeyMeaning = std::variant<char, CalculatorKey>;

    explicit Form25(Walk& walk);

    /// The value shown, as plain number text; empty where there is none.
    std::string ValueText() const { return calculator.ValueText(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddDisplay();
    void AddKeys();
    void AddCommands();
    bool TakeKey(const QKeyEvent& event);
    void Press(KeyMeaning meaning);
    void ShowValue();

    Calculator calculator;
    QLineEdit* display = nullptr;
    QLabel* memory = nullptr;
    QLabel* value = nullptr;
    QPushButton* insert = nullptr;
};

}  // namespace kordavan
