#pragma once

#include <optional>
#include <string>

namespace kordavan {

/// Keys of the desk calculator. The character keys stand in CalculatorPress itself.
enum class CalculatorKey { Clear, ClearEntry, Backspace, MemoryAdd, MemoryRecall, MemoryClear };

/// A desk calculator with four operations, a memory and entry in feet and inches.
///
/// Operations are taken in the order they are pressed. After a foot mark ' the keys - / and blank belong to
/// the entry (13' 3-1/2") until the inch mark closes it or an operation that no length contains is pressed.
class Calculator {
public:
    /// One of 0-9 . ' " blank + - * / =; any other character does nothing.
    void Press(char key);
    void Press(CalculatorKey key);

    /// What the machine shows: the entry as it stands, a result, or "Error".
    const std::string& Display() const { return display; }

    /// The value shown, as plain number text; empty where there is none.
    std::string ValueText() const;

    bool HasMemory() const { return memory != 0; }

private:
    bool TakesIntoLength(char key) const;
    void Append(char key);
    void Operate(char operation);
    void CloseEntry();
    void AddToMemory(double value);
    std::optional<double> Value() const;
    void Show(double value);
    void Fail();

    std::string display = "0";
    bool isEntry = false;  // the display is being typed
    bool hasFailed = false;
    std::optional<double> left;  // waits for the second number of the pending operation
    char pending = 0;
    double memory = 0;
};

}  // namespace kordavan
