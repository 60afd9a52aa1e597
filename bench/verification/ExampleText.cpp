#include "ExampleText.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "Engine.h"
#include "Expression.h"
#include "Figure.h"

namespace kordavan::Verification {

namespace {

constexpr int DifferenceDecimals = 3;

/// Difference of a figure from the hand calculation, %.
double DifferenceOf(double kordavan, double byHand)
{
    return byHand == 0 ? (kordavan == 0 ? 0.0 : INFINITY) : 100 * (kordavan - byHand) / std::abs(byHand);
}

std::string LimitText(double within)
{
    std::string text = Fixed(within, DifferenceDecimals);
    text.erase(text.find_last_not_of('0') + 1);
    return text.back() == '.' ? text.substr(0, text.size() - 1) : text;
}

void Fault(Manual& manual, const std::string& number, const Row& row, const std::string& what)
{
    manual.Faults.push_back(number + ", " + row.Quantity + ": " + what);
}

/// The cells of a row whose outcome is a text.
std::string TextCells(const Row& row, const Answer& answer, const std::string& number, Manual& manual)
{
    const std::string kordavan = answer.Text(row.Place);
    const bool same = kordavan == *row.Text;
    if (!same) {
        Fault(manual, number, row, "\"" + kordavan + "\" is not \"" + *row.Text + "\"");
    }
    const auto shown = [](const std::string& text) { return text.empty() ? std::string("none") : text; };
    return row.Step + " | " + shown(*row.Text) + " | " + shown(kordavan) + " | " + (same ? "same" : "other") +
           " | same |\n";
}

/// The cells of a row whose outcome is a figure, or of a step on the way to one.
std::string FigureCells(const Row& row, const Answer& answer, Symbols& symbols, const std::string& number,
                        Manual& manual)
{
    const double byHand = WorkOut(row.Step, symbols);
    const std::string step = "`" + row.Step + "` | " + Figure(byHand) + " | ";
    if (row.Place.empty()) {
        return step + "| | |\n";
    }
    const double kordavan = answer.Number(row.Place);
    const double difference = DifferenceOf(kordavan, byHand);
    if (!(std::abs(difference) <= row.Within)) {
        Fault(manual, number, row,
              Signed(difference, DifferenceDecimals) + " % leaves " + LimitText(row.Within) + " %");
    }
    return step + Figure(kordavan) + " | " + Signed(difference, DifferenceDecimals) + " | " +
           LimitText(row.Within) + " |\n";
}

std::string RowCells(const Row& row, const Answer& answer, Symbols& symbols, const std::string& number,
                     Manual& manual)
{
    return row.Text ? TextCells(row, answer, number, manual)
                    : FigureCells(row, answer, symbols, number, manual);
}

/// The request as a line of the batch program, with its number as its id.
void WriteRequest(const Case& one, const std::string& id, Manual& manual)
{
    manual.Requests += "{\"id\":\"" + id + "\"," + one.Request.substr(1) + "\n";
}

std::string Heading(bool namesCases)
{
    return std::string(namesCases ? "| Case | Quantity" : "| Quantity") +
           " | By hand | gives | Kordavan | Difference, % | Within, % |\n" +
           (namesCases ? "|---|---" : "|---") + "|---|---:|---:|---:|---:|\n";
}

/// Cases without givens share one table, which names them at its left; any other has a table of its own.
bool SharesTable(const Example& example)
{
    return example.Cases.size() > 1 && std::all_of(example.Cases.begin(), example.Cases.end(),
                                                   [](const Case& one) { return one.Givens.empty(); });
}

void WriteCase(const Case& one, const std::string& id, bool namesCase, Manual& manual)
{
    WriteRequest(one, id, manual);
    try {
        const Answer answer(one.Request);
        Symbols symbols = ReadGivens(one.Givens);
        std::string name = one.Name;
        for (const Row& row : one.Rows) {
            manual.Text += (namesCase ? "| " + name + " | " : "| ") + row.Quantity + " | " +
                           RowCells(row, answer, symbols, id, manual);
            name.clear();
        }
    } catch (const std::exception& fault) {
        throw std::runtime_error(id + ": " + fault.what());
    }
}

void WriteOwnTable(const Case& one, const std::string& id, Manual& manual)
{
    const std::string name = one.Name.empty() ? "" : "**" + one.Name + ".** ";
    const std::string givens = one.Givens.empty() ? "" : "Given: " + one.Givens;
    const std::string lead = name + givens;
    manual.Text += lead.empty() ? "" : lead + "\n\n";
    manual.Text += Heading(false);
    WriteCase(one, id, false, manual);
    manual.Text += "\n";
}

}  // namespace

void WriteExample(const Example& example, const std::string& number, Manual& manual)
{
    manual.Text += "### " + number + " " + example.Title + "\n\n" + example.Text + "\n\n";
    const bool shares = SharesTable(example);
    if (shares) {
        manual.Text += Heading(true);
    }
    for (std::size_t k = 0; k < example.Cases.size(); ++k) {
        const std::string id =
            number +
            (example.Cases.size() > 1 ? std::string(1, static_cast<char>('a' + static_cast<char>(k))) : "");
        if (shares) {
            WriteCase(example.Cases[k], id, true, manual);
        } else {
            WriteOwnTable(example.Cases[k], id, manual);
        }
    }
    if (shares) {
        manual.Text += "\n";
    }
}

}  // namespace kordavan::Verification
