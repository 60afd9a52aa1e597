#include "columns/SteelColumn.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

std::string Percent(double share)
{
    return FormatNumber(100 * share, "##") + "%";
}

/// The diameter of a pipe as a number, the sides of a tube as the catalogue writes them.
std::string OutsideText(std::string_view dimension)
{
    return IsNumeric(dimension) ? FormatNumber(Val(dimension), "##.0##") : std::string(dimension);
}

}  // namespace

std::vector<SteelReportLine> SteelReportTexts(const SteelColumnTest& test)
{
    const SteelColumnProblem& problem = test.Problem;
    const SteelColumnResult& result = test.Result;
    const SteelColumnRow& row = SteelColumnRows()[result.Row];
    const double slenderness = result.KLoverR;
    return {
        {"Reaction", FormatNumber(problem.Reaction, "#,###")},
        {"Fy", PlainNumber(result.Fy)},
        {"E", PlainNumber(SteelColumnE / 1000)},
        {"Cc", PlainNumber(result.Cc)},
        {"Wt. p/ft.", PlainNumber(row.WeightPerFoot)},
        {"K", FormatNumber(problem.K, "0.00")},
        {"unbraced, in.", problem.UnbracedLength == 0 ? "0" : FormatNumber(problem.UnbracedLength, "##")},
        {"r", FormatNumber(row.Radius, "##0.0#")},
        {"Fa", FormatNumber(result.Fa, "##0.0")},
        {"KL/r actual", FormatNumber(result.KLoverR, "#0")},
        {"KL/r critical", PlainNumber(GreatestSteelSlenderness)},
        {"KL/r status", std::string(SteelStatusText(result.SlendernessPasses))},
        {"KL/r ratio", slenderness == 0 ? "0%" : Percent(slenderness / GreatestSteelSlenderness)},
        {"stress actual", FormatNumber(result.ActualStress, "#0.0")},
        {"stress critical", FormatNumber(result.Fa, "#0.0")},
        {"area required", FormatNumber(result.RequiredArea, "#0.0")},
        {"area actual", FormatNumber(row.Area, "#0.0")},
        {"area ratio", Percent(result.RequiredArea / row.Area)},
        {"area status", std::string(SteelStatusText(result.AreaPasses))},
        {"Actual O.D.", OutsideText(row.OutsideDimension)},
    };
}

}  // namespace kordavan
