#include "columns/ColumnTexts.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

#include "columns/ColumnSizes.h"
#include "columns/ColumnStability.h"
#include "columns/WoodColumn.h"
#include "core/NumberText.h"
#include "core/SizeText.h"

namespace kordavan {

namespace {

std::string_view MakeUpName(ColumnType type)
{
    switch (type) {
        case ColumnType::SolidSawn6x:
        case ColumnType::SolidSawn2xOr4x:
            return "solid sawn column";
        case ColumnType::NailedBuiltUp:
            return "nailed built-up column";
        case ColumnType::BoltedBuiltUp:
            return "bolted built-up column";
    }
    return {};
}

/// The head of the thickness in the list of quick picks; empty where it is not offered there.
std::string_view NominalThickness(ColumnType type, float net)
{
    const ColumnThicknesses& listed = ColumnThicknessesOf(type);
    const auto place = std::find(listed.begin(), listed.end(), net);
    return place == listed.end()
               ? std::string_view{}
               : ThicknessHead(type, static_cast<std::size_t>(std::distance(listed.begin(), place)));
}

std::string SizeText(ColumnType type, const ColumnResult& result)
{
    const std::string_view thickness = NominalThickness(type, result.D1);
    const std::string_view width = NominalWidth(result.D2);
    if (thickness.empty() || width.empty()) {
        return InchesText(result.D1) + " in. x " + InchesText(result.D2) + " in.";
    }
    return std::string(thickness) + " " + std::string(width);
}

/// Two figures with as many decimals as it takes to tell them apart.
std::pair<std::string, std::string> ComparedTexts(double first, double second)
{
    for (const std::string_view format : {"#,##0.0", "#,##0.000"}) {
        std::pair texts{FormatNumber(first, format), FormatNumber(second, format)};
        if (first == second || texts.first != texts.second) {
            return texts;
        }
    }
    return {PlainNumber(first), PlainNumber(second)};
}

std::string OnePlaneText(std::string_view governing, double slenderness, std::string_view other,
                         double otherSlenderness)
{
    std::string text = "Plane " + std::string(governing) + " governs: ";
    if (otherSlenderness == 0) {
        return text + "plane " + std::string(other) + " is braced throughout its length.";
    }
    const auto [larger, smaller] = ComparedTexts(slenderness, otherSlenderness);
    if (slenderness == otherSlenderness) {
        return text + "le/d is " + larger + " in both planes.";
    }
    return text + "le/d of " + larger + " is greater than " + smaller + " of plane " + std::string(other) +
           ".";
}

std::string SlendernessFault(double slenderness, std::string_view plane)
{
    if (!(slenderness > MostColumnSlenderness)) {
        return {};
    }
    const auto [actual, limit] = ComparedTexts(slenderness, MostColumnSlenderness);
    return "le/d of " + actual + " in plane " + std::string(plane) + " is over " + limit + ".";
}

void AppendSentence(std::string_view sentence, std::string& text)
{
    if (!sentence.empty()) {
        text += text.empty() ? "" : " ";
        text += sentence;
    }
}

}  // namespace

std::string ColumnMemberText(const WoodColumnTest& test)
{
    return SizeText(test.Problem.Type, test.Result) + " " + std::string(MakeUpName(test.Problem.Type)) +
           ", " + test.Problem.SpeciesGrade;
}

std::string GoverningPlaneText(const WoodColumnTest& test)
{
    const ColumnResult& result = test.Result;
    switch (result.GoverningPlane) {
        case ColumnPlane::D1:
            return OnePlaneText("D1", result.SlendernessD1, "D2", result.SlendernessD2);
        case ColumnPlane::D2:
            return OnePlaneText("D2", result.SlendernessD2, "D1", result.SlendernessD1);
        case ColumnPlane::Neither:
            break;
    }
    return "Neither plane governs: both effective lengths are 0.";
}

std::string ColumnFailureText(const WoodColumnTest& test)
{
    const ColumnResult& result = test.Result;
    std::string text;
    AppendSentence(SlendernessFault(result.SlendernessD1, "D1"), text);
    AppendSentence(SlendernessFault(result.SlendernessD2, "D2"), text);
    if (!(result.FcPrime >= result.FcActual)) {
        const auto [actual, allowed] = ComparedTexts(result.FcActual, result.FcPrime);
        AppendSentence("fc of " + actual + " psi is over Fc' of " + allowed + " psi.", text);
    }
    return text;
}

std::string ColumnAttributeText(const WoodColumnTest& test)
{
    const ColumnProblem& problem = test.Problem;
    std::string text =
        test.Nds == Edition::None ? std::string{} : "NDS " + std::string(EditionYear(test.Nds)) + ", ";
    text += std::string(ColumnTypeName(problem.Type)) + ", ";
    text += std::string(ValueGroupName(problem.ValueGroup)) + " values, ";
    text += problem.WetUse ? "wet use" : "dry use";
    text += problem.Incised ? ", incised" : "";
    text += problem.D1FullyBraced ? ", D1 fully braced" : "";
    return text;
}

std::string ColumnRatioText(const ColumnResult& result)
{
    if (!(result.FcPrime > 0)) {
        return {};
    }
    constexpr double percent = 100;
    const double ratio = result.FcActual / result.FcPrime;
    const std::string text = FormatNumber(ratio * percent, "#,##0");
    const bool looksFull = text == "100" && ratio > 1;
    return (looksFull ? std::string("over 100") : text) + "%";
}

std::string_view ValueGroupName(ColumnValueGroup group)
{
    switch (group) {
        case ColumnValueGroup::DimensionLumber:
            return "Dimension Lumber";
        case ColumnValueGroup::PostAndTimber:
            return "Post and Timber";
        case ColumnValueGroup::BeamAndStringer:
            return "Beam and Stringer";
    }
    return {};
}

std::string_view ColumnTypeName(ColumnType type)
{
    switch (type) {
        case ColumnType::SolidSawn6x:
            return "Solid Sawn 6x+";
        case ColumnType::SolidSawn2xOr4x:
            return "Solid Sawn 2x or 4x";
        case ColumnType::NailedBuiltUp:
            return "Nailed Built-up 2xs";
        case ColumnType::BoltedBuiltUp:
            return "Bolted Built-up 2xs";
    }
    return {};
}

}  // namespace kordavan
