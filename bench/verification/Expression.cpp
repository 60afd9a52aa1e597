#include "Expression.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>
#include <stdexcept>
#include <system_error>
#include <vector>

namespace kordavan::Verification {

namespace {

bool IsLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// A symbol starts with a letter; Fb' and Fc* are symbols too.
bool BelongsToSymbol(char c)
{
    return IsLetter(c) || IsDigit(c) || c == '\'' || c == '*';
}

/// Reads an expression from left to right, each level of binding by one function.
class Reader {
public:
    Reader(std::string_view expression, const Symbols& known) : text(expression), symbols(known) {}

    double Whole()
    {
        const double value = Sum();
        if (SkipBlanks(); at != text.size()) {
            Fail("cannot go on");
        }
        return value;
    }

private:
    double Sum()
    {
        double value = Product();
        while (true) {
            if (Take('+')) {
                value += Product();
            } else if (Take('-')) {
                value -= Product();
            } else {
                return value;
            }
        }
    }

    double Product()
    {
        double value = Power();
        while (true) {
            if (TakeTimes()) {
                value *= Power();
            } else if (Take('/')) {
                value /= Power();
            } else {
                return value;
            }
        }
    }

    double Power()
    {
        if (Take('-')) {
            return -Power();
        }
        const double base = Operand();
        return Take('^') ? std::pow(base, Power()) : base;
    }

    double Operand()
    {
        if (Take('(')) {
            return Bracketed();
        }
        return at < text.size() && IsLetter(text[at]) ? Named() : Number();
    }

    double Bracketed()
    {
        const double value = Sum();
        Expect(')');
        return value;
    }

    double Number()
    {
        double value = 0;
        const auto [end, error] = std::from_chars(text.data() + at, text.data() + text.size(), value);
        if (error != std::errc()) {
            Fail("expects a number");
        }
        at = static_cast<std::size_t>(end - text.data());
        return value;
    }

    double Named()
    {
        const std::size_t begin = at;
        while (at < text.size() && BelongsToSymbol(text[at])) {
            ++at;
        }
        const std::string_view name = text.substr(begin, at - begin);
        if (Take('(')) {
            return Function(name);
        }
        if (name == "pi") {
            return std::numbers::pi;
        }
        const auto found = symbols.find(name);
        if (found == symbols.end()) {
            Fail("does not know " + std::string(name));
        }
        return found->second;
    }

    double Function(std::string_view name)
    {
        std::vector<double> values{Sum()};
        while (Take(',')) {
            values.push_back(Sum());
        }
        Expect(')');
        if (name == "sqrt") {
            return std::sqrt(values.front());
        }
        if (name == "atan") {
            return std::atan(values.front());
        }
        if (name == "cos") {
            return std::cos(values.front());
        }
        if (name == "min") {
            return *std::min_element(values.begin(), values.end());
        }
        if (name == "max") {
            return *std::max_element(values.begin(), values.end());
        }
        Fail("does not know the function " + std::string(name));
    }

    void SkipBlanks()
    {
        while (at < text.size() && text[at] == ' ') {
            ++at;
        }
    }

    bool Take(char wanted)
    {
        SkipBlanks();
        if (at == text.size() || text[at] != wanted) {
            return false;
        }
        ++at;
        SkipBlanks();
        return true;
    }

    /// The sign of multiplication is an x that stands by itself.
    bool TakeTimes()
    {
        SkipBlanks();
        if (text.substr(at, 2) != "x ") {
            return false;
        }
        at += 2;
        SkipBlanks();
        return true;
    }

    void Expect(char wanted)
    {
        if (!Take(wanted)) {
            Fail(std::string("expects ") + wanted);
        }
    }

    [[noreturn]] void Fail(const std::string& fault) const
    {
        throw std::invalid_argument("\"" + std::string(text) + "\" " + fault + " at " +
                                    std::to_string(at + 1));
    }

    std::string_view text;
    const Symbols& symbols;
    std::size_t at = 0;
};

std::string_view WithoutBlanks(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(' ');
    return begin == std::string_view::npos ? std::string_view{}
                                           : text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

}  // namespace

double Evaluate(std::string_view expression, const Symbols& symbols)
{
    return Reader(WithoutBlanks(expression), symbols).Whole();
}

Symbols ReadGivens(std::string_view givens)
{
    Symbols symbols;
    while (!givens.empty()) {
        const std::string_view given = givens.substr(0, givens.find(", "));
        givens.remove_prefix(std::min(givens.size(), given.size() + 2));
        const std::size_t equals = given.find(" = ");
        const std::string_view value = given.substr(equals + 3);
        symbols[std::string(WithoutBlanks(given.substr(0, equals)))] =
            Evaluate(value.substr(0, value.find(' ')), {});
    }
    return symbols;
}

double WorkOut(std::string_view step, Symbols& symbols)
{
    const std::size_t equals = step.find(" = ");
    if (equals == std::string_view::npos) {
        return Evaluate(step, symbols);
    }
    const double value = Evaluate(step.substr(equals + 3), symbols);
    symbols[std::string(step.substr(0, equals))] = value;
    return value;
}

}  // namespace kordavan::Verification
