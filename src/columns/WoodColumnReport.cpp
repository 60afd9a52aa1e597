#include "columns/WoodColumnReport.h"

#include <optional>
#include <string_view>

#include "columns/ColumnSpecies.h"
#include "columns/ColumnStability.h"
#include "columns/ColumnTexts.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr std::string_view Factor = "0.00";
constexpr std::string_view Stress = "#,##0.0";
constexpr std::string_view Slenderness = "#,##0.0";
constexpr std::string_view Length = "#,##0.0#";

std::string WetNote(const ColumnProblem& problem, const ColumnFactors& factors)
{
    if (!problem.WetUse) {
        return "dry use";
    }
    return factors.CmFc == 1 ? "wet use: Fc x CF is low enough to take no reduction" : "wet use";
}

std::string SizeFactorNote(const ColumnResult& result)
{
    return result.CarriesSizeFactor ? "no value for this width: that of the size before" : std::string{};
}

std::string KfNote(const ColumnProblem& problem, const ColumnResult& result)
{
    if (!IsBuiltUp(problem.Type)) {
        return {};
    }
    if (result.GoverningPlane != ColumnPlane::D1) {
        return "bears on plane D1 alone";
    }
    return problem.D1FullyBraced ? "face D1 is sheathed" : std::string{};
}

std::string BaseValueNote(const WoodColumnTest& test)
{
    const ColumnProblem& problem = test.Problem;
    const std::optional<ColumnBaseValues> values =
        FindColumnValues(problem.SpeciesGrade, problem.ValueGroup, test.Nds);
    const bool isTimberRow = values && values->IsTimberRow && values->Fc == problem.BaseFc;
    return isTimberRow ? "of timbers: the table has none of dimension lumber" : std::string{};
}

/// A figure that is not there where neither plane can buckle.
std::string IfBuckling(const ColumnResult& result, float value, std::string_view format)
{
    return result.GoverningPlane == ColumnPlane::Neither ? std::string{} : FormatNumber(value, format);
}

ColumnReportBlock LoadBlock(const WoodColumnTest& test)
{
    const ColumnProblem& p = test.Problem;
    return {"Load and bracing",
            {
                {"PanReaction", "P, axial load", FormatNumber(p.Reaction, "#,##0"), "lb"},
                {"PanHeight", "Actual height", FormatNumber(p.ColumnHeight, Length), "ft"},
                {"PanKe", "Ke, buckling mode", FormatNumber(p.BucklingKe, "0.0##"), ""},
                {"PanUnbracedD1", "Unbraced length, plane D1", FormatNumber(p.UnbracedD1, Length), "ft"},
                {"PanUnbracedD2", "Unbraced length, plane D2", FormatNumber(p.UnbracedD2, Length), "ft"},
                {"PanLe1", "le1, effective length", FormatNumber(p.Le1(), Length), "in."},
                {"PanLe2", "le2, effective length", FormatNumber(p.Le2(), Length), "in."},
            }};
}

ColumnReportBlock SizeBlock(const ColumnResult& r)
{
    return {"Size and slenderness",
            {
                {"PanD1", "D1, net thickness", PlainNumber(r.D1), "in."},
                {"PanD2", "D2, net width", PlainNumber(r.D2), "in."},
                {"PanArea", "A, area", FormatNumber(r.Area, "#,##0.00"), "in\u00B2"},
                {"PanSlendernessD1", "le1/D1", FormatNumber(r.SlendernessD1, Slenderness), ""},
                {"PanSlendernessD2", "le2/D2", FormatNumber(r.SlendernessD2, Slenderness), ""},
                {"PanSlendernessLimit", "Limit of le/d", FormatNumber(MostColumnSlenderness, "0"), "",
                 r.SlendernessOver50 ? "exceeded" : ""},
            }};
}

ColumnReportBlock FactorBlock(const WoodColumnTest& test)
{
    const ColumnProblem& p = test.Problem;
    const ColumnFactors& f = test.Result.Factors;
    const std::string incising = p.Incised ? "incised" : "not incised";
    return {"Base values and factors",
            {
                {"PanFc", "Fc, base value", PlainNumber(p.BaseFc), "psi", BaseValueNote(test)},
                {"PanE", "E, base value", FormatNumber(p.BaseE, "0.0##"), "million psi"},
                {"PanCd", "Cd, duration of load", FormatNumber(p.DurationCd, "0.00#"), ""},
                {"PanCF", "CF, size", FormatNumber(f.CF, Factor), "", SizeFactorNote(test.Result)},
                {"PanCmFc", "Cm of Fc, wet service", FormatNumber(f.CmFc, Factor), "", WetNote(p, f)},
                {"PanCmE", "Cm of E", FormatNumber(f.CmE, Factor), ""},
                {"PanCiFc", "Ci of Fc, incising", FormatNumber(f.CiFc, Factor), "", incising},
                {"PanCiE", "Ci of E", FormatNumber(f.CiE, Factor), ""},
                {"PanKf", "Kf, built-up columns", FormatNumber(f.Kf, Factor), "", KfNote(p, test.Result)},
                {"PanC", "c, sawn lumber", FormatNumber(SawnColumnC, "0.0"), ""},
            }};
}

ColumnReportBlock StabilityBlock(const ColumnResult& r)
{
    return {"Stability",
            {
                {"PanEPrime", "E', adjusted", FormatNumber(r.EPrime, "#,##0"), "psi"},
                {"PanFcStar", "Fc*, all factors but Cp", FormatNumber(r.FcStar, Stress), "psi"},
                {"PanKcE", "KcE, of E'/(le/d)^2", IfBuckling(r, r.KcE, "0.0000"), ""},
                {"PanFcE", "FcE, critical buckling stress", IfBuckling(r, r.FcE, Stress), "psi"},
                {"PanCp1", "Cp1, stability in plane D1", FormatNumber(r.Cp1, "0.000"), ""},
                {"PanCp2", "Cp2, stability in plane D2", FormatNumber(r.Cp2, "0.000"), ""},
            }};
}

ColumnReportBlock StressBlock(const ColumnResult& r)
{
    return {"Stress",
            {
                {"PanFcActual", "fc, actual", FormatNumber(r.FcActual, Stress), "psi"},
                {"PanFcPrime", "Fc', allowed", FormatNumber(r.FcPrime, Stress), "psi"},
                {"PanRatio", "fc / Fc'", ColumnRatioText(r), ""},
            }};
}

}  // namespace

WoodColumnReport ReportWoodColumn(const WoodColumnTest& test)
{
    const ColumnResult& result = test.Result;
    return {.Member = ColumnMemberText(test),
            .Governing = GoverningPlaneText(test),
            .Status = std::string(result.Passes ? ColumnStatus::Ok : ColumnStatus::Fail),
            .Reason = ColumnFailureText(test),
            .Ratio = result.FcPrime > 0 ? result.FcActual / result.FcPrime : 0,
            .RatioText = ColumnRatioText(result),
            .Blocks = {LoadBlock(test), SizeBlock(result), FactorBlock(test), StabilityBlock(result),
                       StressBlock(result)}};
}

}  // namespace kordavan
