#include "records/CellText.h"

#include <cmath>

#include "core/NumberText.h"

namespace kordavan {

namespace {

std::string PowerText(double value, std::size_t length)
{
    constexpr double tenths = 10;
    double power = std::floor(std::log10(std::abs(value)));
    double mantissa = std::round(value / std::pow(10.0, power) * tenths) / tenths;
    if (std::abs(mantissa) >= 10) {
        mantissa /= 10;
        ++power;
    }
    const std::string tail = "E" + FormatNumber(power, "0");
    const std::string fine = FormatNumber(mantissa, "0.0") + tail;
    return fine.size() <= length ? fine : FormatNumber(mantissa, "0") + tail;
}

std::string Written(auto value, std::string_view format)
{
    std::string text = FormatNumber(value, format);
    if (text.ends_with('.')) {
        text.pop_back();
    }
    return text;
}

std::string Fitted(auto value, std::string_view format, std::size_t length)
{
    std::string text = Written(value, format);
    std::string shorter(format);
    std::erase(shorter, ',');
    while (text.size() > length) {
        text = Written(value, shorter);
        if (shorter.find('.') == std::string::npos) {
            break;
        }
        shorter.pop_back();
    }
    return text.size() <= length ? text : PowerText(value, length);
}

}  // namespace

std::string CellNumber(double value, std::string_view format, std::size_t length)
{
    return Fitted(value, format, length);
}

std::string CellNumber(float value, std::string_view format, std::size_t length)
{
    return Fitted(value, format, length);
}

std::string CellStress(float psi)
{
    constexpr float few = 100;
    return CellNumber(psi, std::abs(psi) < few ? "0.0#" : "#,##0");
}

std::string CellText(std::string_view text, std::size_t length)
{
    std::string cell(text);
    if (cell.size() > length) {
        std::erase(cell, ',');
    }
    return cell.size() > length && IsNumeric(cell) ? CellNumber(Val(cell), "0", length) : cell;
}

std::string CellPercent(std::string_view text)
{
    constexpr std::string_view over = "over ";
    if (text == "%") {
        return "0%";
    }
    std::string cell =
        text.starts_with(over) ? ">" + std::string(text.substr(over.size())) : std::string(text);
    if (cell.size() > FigureLength) {
        std::erase(cell, ',');
    }
    return cell.size() > FigureLength ? ">9999%" : cell;
}

}  // namespace kordavan
