#include "core/FeetInches.h"

#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr double InchesToFeet = 1.0 / 12;

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::optional<double> PlainValue(std::string_view text)
{
    const bool isUnsigned = text.find_first_of("+-") == std::string_view::npos;
    return isUnsigned && IsNumeric(text) ? std::optional(Val(text)) : std::nullopt;
}

std::optional<double> Fraction(std::string_view text)
{
    const std::size_t bar = text.find('/');
    const std::optional<double> above = PlainValue(text.substr(0, bar));
    const std::optional<double> below = PlainValue(text.substr(bar + 1));
    return above && below && *below != 0 ? std::optional(*above / *below) : std::nullopt;
}

/// Whole inches, a fraction, or both with a hyphen or a blank between them.
std::optional<double> Inches(std::string_view text)
{
    if (text.find('/') == std::string_view::npos) {
        return PlainValue(text);
    }
    const std::size_t separator = text.find_first_of("- ");
    if (separator == std::string_view::npos) {
        return Fraction(text);
    }
    const std::optional<double> whole = PlainValue(text.substr(0, separator));
    const std::optional<double> fraction = Fraction(Trimmed(text.substr(separator + 1)));
    return whole && fraction ? std::optional(*whole + *fraction) : std::nullopt;
}

}  // namespace

std::optional<double> FeetOfDrawing(std::string_view text)
{
    text = Trimmed(text);
    const std::size_t feetMark = text.find('\'');
    std::optional<double> feet = 0.0;
    if (feetMark != std::string_view::npos) {
        feet = PlainValue(text.substr(0, feetMark));
        text = Trimmed(text.substr(feetMark + 1));
        if (!feet || text.empty()) {
            return feet;
        }
    }
    if (text.empty() || text.back() != '"') {
        return std::nullopt;
    }
    const std::optional<double> inches = Inches(Trimmed(text.substr(0, text.size() - 1)));
    return inches ? std::optional(*feet + *inches * InchesToFeet) : std::nullopt;
}

}  // namespace kordavan
