#include "core/Calculator.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

#include "core/FeetInches.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr std::size_t MostEntryLength = 24;

constexpr std::string_view EntryKeys = "0123456789.'\"";
constexpr std::string_view OperationKeys = "+-*/=";

std::optional<double> Apply(char operation, double a, double b)
{
    double result = b;
    switch (operation) {
        case '+':
            result = a + b;
            break;
        case '-':
            result = a - b;
            break;
        case '*':
            result = a * b;
            break;
        case '/':
            result = a / b;
            break;
        default:
            break;
    }
    return std::isfinite(result) ? std::optional(result) : std::nullopt;
}

/// Ten digits, as a desk machine shows them.
std::string TenDigits(double value)
{
    constexpr int digits = 10;
    std::array<char, 32> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value == 0 ? 0.0 : value,
                                            std::chars_format::general, digits);
    return {text.data(), end};
}

bool HasMark(std::string_view text)
{
    return text.find_first_of("'\"") != std::string_view::npos;
}

}  // namespace

void Calculator::Press(char key)
{
    if (hasFailed) {
        return;
    }
    if (EntryKeys.find(key) != std::string_view::npos || TakesIntoLength(key)) {
        Append(key);
    } else if (OperationKeys.find(key) != std::string_view::npos) {
        Operate(key);
    }
}

void Calculator::Press(CalculatorKey key)
{
    if (key == CalculatorKey::Clear) {
        const double kept = memory;
        *this = Calculator{};
        memory = kept;
        return;
    }
    if (hasFailed) {
        return;
    }
    switch (key) {
        case CalculatorKey::Clear:
            break;
        case CalculatorKey::ClearEntry:
            display = "0";
            isEntry = false;
            break;
        case CalculatorKey::Backspace:
            if (isEntry) {
                display.pop_back();
                isEntry = !display.empty();
                display = isEntry ? display : "0";
            }
            break;
        case CalculatorKey::MemoryAdd:
            CloseEntry();
            AddToMemory(Value().value_or(0));
            break;
        case CalculatorKey::MemoryRecall:
            Show(memory);
            break;
        case CalculatorKey::MemoryClear:
            memory = 0;
            break;
    }
}

std::string Calculator::ValueText() const
{
    const std::optional<double> value = hasFailed ? std::nullopt : Value();
    return value ? TenDigits(*value) : std::string{};
}

/// Minus, slash and blank are part of a length between its foot and its inch mark.
bool Calculator::TakesIntoLength(char key) const
{
    const bool isOpen = isEntry && display.find('\'') != std::string::npos && display.back() != '"';
    return isOpen && std::string_view("-/ ").find(key) != std::string_view::npos;
}

void Calculator::Append(char key)
{
    if (!isEntry) {
        display.clear();
        isEntry = true;
    }
    if (display.size() < MostEntryLength) {
        display.push_back(key);
    }
}

void Calculator::Operate(char operation)
{
    CloseEntry();
    const std::optional<double> right = hasFailed ? std::nullopt : Value();
    if (!right) {
        Fail();
        return;
    }
    const std::optional<double> result = left ? Apply(pending, *left, *right) : right;
    if (!result) {
        Fail();
        return;
    }
    Show(*result);
    pending = operation == '=' ? 0 : operation;
    left = operation == '=' ? std::nullopt : result;
}

/// Turns a typed length into feet, to the ten-thousandth that drawings are read to.
void Calculator::CloseEntry()
{
    if (isEntry && HasMark(display)) {
        const std::optional<double> feet = Value();
        if (feet) {
            Show(*feet);
        } else {
            Fail();
        }
    }
    isEntry = false;
}

void Calculator::AddToMemory(double value)
{
    if (std::isfinite(memory + value)) {
        memory += value;
    } else {
        Fail();
    }
}

std::optional<double> Calculator::Value() const
{
    if (!HasMark(display)) {
        return IsNumeric(display) || display == "." ? std::optional(Val(display)) : std::nullopt;
    }
    const std::optional<double> feet = FeetOfDrawing(display);
    return feet ? std::optional(Val(FormatNumber(*feet, "0.####"))) : std::nullopt;
}

void Calculator::Show(double value)
{
    display = TenDigits(value);
    isEntry = false;
}

void Calculator::Fail()
{
    display = "Error";
    isEntry = false;
    hasFailed = true;
}

}  // namespace kordavan
