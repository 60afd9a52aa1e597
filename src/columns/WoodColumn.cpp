#include "columns/WoodColumn.h"

#include <cmath>

#include "columns/ColumnSizes.h"
#include "columns/ColumnStability.h"
#include "columns/ColumnStrength.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr double PsiPerMillionPsi = 1e6;

ColumnPlane GoverningPlane(const ColumnProblem& problem, const ColumnResult& result)
{
    if (problem.Le1() != 0 && result.SlendernessD2 < result.SlendernessD1) {
        return ColumnPlane::D1;
    }
    const bool canBuckle = problem.Le1() != 0 || problem.Le2() != 0;
    return canBuckle ? ColumnPlane::D2 : ColumnPlane::Neither;
}

/// In plane D2 the search leaves 2018 out of the editions that buckle by Emin.
double BucklingCoefficient(Edition edition, ColumnPlane plane, ColumnPurpose purpose)
{
    const bool isLeftOut =
        purpose == ColumnPurpose::Search && plane == ColumnPlane::D2 && edition == Edition::Nds2018;
    return EulerColumnCoefficient(IsNds2005Plus(edition) && !isLeftOut);
}

void WorkOutSlenderness(const ColumnProblem& problem, ColumnResult& result)
{
    result.SlendernessD1 = problem.Le1() / result.D1;
    result.SlendernessD2 = problem.Le2() / result.D2;
    result.SlendernessOver50 =
        result.SlendernessD1 > MostColumnSlenderness || result.SlendernessD2 > MostColumnSlenderness;
    result.GoverningPlane = GoverningPlane(problem, result);
}

void WorkOutStability(double KcE, ColumnResult& result)
{
    const bool isD1 = result.GoverningPlane == ColumnPlane::D1;
    const double slenderness = isD1 ? result.SlendernessD1 : result.SlendernessD2;
    result.KcE = Single(KcE);
    result.FcE = Single(result.EPrime * KcE / (slenderness * slenderness));
    const double ratio = static_cast<double>(result.FcE) / result.FcStar;
    (isD1 ? result.Cp1 : result.Cp2) = Single(ColumnStabilityFactor(ratio) * result.Factors.Kf);
}

float LesserCp(const ColumnResult& result)
{
    if (result.Cp1 < 1 && result.Cp1 < result.Cp2) {
        return result.Cp1;
    }
    return result.Cp2 <= 1 && result.Cp2 <= result.Cp1 ? result.Cp2 : 1.0F;
}

/// NDS 3.6.3 and 3.7.1, on a result that has its size and slenderness.
void WorkOutStresses(const ColumnProblem& problem, Edition edition, ColumnPurpose purpose,
                     ColumnFactors& carried, ColumnResult& result)
{
    const ColumnCandidate candidate{.D1 = result.D1, .D2 = result.D2, .Governing = result.GoverningPlane};
    const ColumnFactors factors = ColumnFactorsOf(problem, edition, candidate, purpose, carried);
    carried = factors;
    result.Factors = factors;
    result.CarriesSizeFactor = KeepsSizeFactor(problem, candidate);
    result.EPrime = Single(problem.BaseE * PsiPerMillionPsi * factors.CmE * factors.CiE);
    result.FcStar = Single(static_cast<double>(problem.BaseFc) * factors.CF * problem.DurationCd *
                           factors.CmFc * factors.CiFc);
    if (result.GoverningPlane != ColumnPlane::Neither) {
        WorkOutStability(BucklingCoefficient(edition, result.GoverningPlane, purpose), result);
    }
    result.Area = static_cast<double>(result.D1) * result.D2;
    result.FcActual = problem.Reaction / result.Area;
    result.FcPrime = Single(static_cast<double>(result.FcStar) * LesserCp(result));
    result.Passes = !result.SlendernessOver50 && result.FcPrime >= result.FcActual;
}

ColumnResult SizeOf(const ColumnProblem& problem, float D1, float D2)
{
    ColumnResult result;
    result.D1 = D1;
    result.D2 = D2;
    WorkOutSlenderness(problem, result);
    return result;
}

/// The first width of a thickness that carries the load; too slender a width ends the search.
std::string SmallestWidth(const ColumnProblem& problem, Edition edition, std::size_t thickness,
                          ColumnFactors& carried)
{
    const float D1 = ColumnThicknessesOf(problem.Type)[thickness];
    for (const float D2 : ColumnWidthsOf(problem.Type, problem.ValueGroup, thickness)) {
        ColumnResult result = SizeOf(problem, D1, D2);
        if (result.SlendernessOver50) {
            return {};
        }
        WorkOutStresses(problem, edition, ColumnPurpose::Search, carried, result);
        if (result.Passes) {
            return std::string(NominalWidth(D2));
        }
    }
    return {};
}

bool IsFinite(const ColumnResult& result)
{
    return std::isfinite(result.SlendernessD1) && std::isfinite(result.SlendernessD2) &&
           std::isfinite(result.FcE) && std::isfinite(result.FcStar) && std::isfinite(result.FcActual) &&
           std::isfinite(result.FcPrime) && std::isfinite(result.Area);
}

std::optional<Message> CheckSize(float D, std::string_view side, std::string_view focus)
{
    if (D > 0 && std::isfinite(D)) {
        return std::nullopt;
    }
    return Refusal("Please enter a net size in inches for the column " + std::string(side) + ".", focus);
}

}  // namespace

ColumnGrid SearchColumnGrid(const ColumnProblem& problem, Edition edition, ColumnFactors& carried)
{
    ColumnGrid grid;
    const ThicknessRange offered = OfferedThicknesses(problem.Type);
    bool isAnyFound = false;
    for (std::size_t thickness = 0; thickness < grid.ColDep.size(); ++thickness) {
        grid.ColDep[thickness] = SmallestWidth(problem, edition, thickness, carried);
        isAnyFound = isAnyFound || (offered.Has(thickness) && !grid.ColDep[thickness].empty());
    }
    if (!isAnyFound) {
        grid.NoneWorkLabel = "No columns from the database meet the requirements.";
    }
    return grid;
}

std::optional<ColumnResult> TestColumnSize(std::string_view D1Text, std::string_view D2Text,
                                           const ColumnProblem& problem, Edition edition,
                                           ColumnFactors& carried, UserPort& user)
{
    const float D1 = Single(Val(D1Text));
    const float D2 = Single(Val(D2Text));
    if (const std::optional<Message> fault = CheckSize(D1, "thickness D1", "ColD1Text")) {
        user.Tell(*fault);
        return std::nullopt;
    }
    if (const std::optional<Message> fault = CheckSize(D2, "width D2", "ColD2Text")) {
        user.Tell(*fault);
        return std::nullopt;
    }
    ColumnFactors factors = carried;
    ColumnResult result = SizeOf(problem, D1, D2);
    WorkOutStresses(problem, edition, ColumnPurpose::Test, factors, result);
    if (!IsFinite(result)) {
        user.Tell(Refusal("The column cannot be worked out for this size. Please revise it.", "ColD1Text"));
        return std::nullopt;
    }
    carried = factors;
    return result;
}

ThicknessRange OfferedThicknesses(ColumnType type)
{
    switch (type) {
        case ColumnType::SolidSawn2xOr4x:
            return {.First = 0, .Last = 1};
        case ColumnType::NailedBuiltUp:
        case ColumnType::BoltedBuiltUp:
            return {.First = 1, .Last = 4};
        case ColumnType::SolidSawn6x:
            break;
    }
    return {.First = 2, .Last = 4};
}

std::string_view ThicknessHead(ColumnType type, std::size_t index)
{
    constexpr std::array<std::string_view, ColumnGrid::ThicknessCount> sawn{"2x", "4x", "6x", "8x", "10x"};
    constexpr std::array<std::string_view, ColumnGrid::ThicknessCount> plies{"", "(2) 2x", "(3) 2x", "(4) 2x",
                                                                             "(5) 2x"};
    if (!OfferedThicknesses(type).Has(index)) {
        return {};
    }
    return IsBuiltUp(type) ? plies[index] : sawn[index];
}

bool PickColumnSize(ColumnSession& columns, std::size_t index)
{
    const ColumnProblem& problem = columns.Problem;
    const std::string& picked = columns.Grid.ColDep[index];
    if (picked.empty()) {
        return false;
    }
    for (const float D2 : ColumnWidthsOf(problem.Type, problem.ValueGroup, index)) {
        if (NominalWidth(D2) == picked) {
            columns.ColD1Text = PlainNumber(ColumnThicknessesOf(problem.Type)[index]);
            columns.ColD2Text = PlainNumber(D2);
            return true;
        }
    }
    return false;
}

Outcome TestEnteredColumn(ColumnSession& columns, Edition edition, UserPort& user)
{
    const std::optional<ColumnResult> result =
        TestColumnSize(columns.ColD1Text, columns.ColD2Text, columns.Problem, edition, columns.Carried, user);
    if (!result) {
        return Outcome::Refused;
    }
    columns.WoodTest = WoodColumnTest{.Problem = columns.Problem, .Nds = edition, .Result = *result};
    return Outcome::Done;
}

}  // namespace kordavan
