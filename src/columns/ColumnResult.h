#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kordavan {

/// The plane in which a column buckles first; Neither when it is braced throughout.
enum class ColumnPlane { Neither, D1, D2 };

/// "D1", "D2" or nothing.
std::string_view PlaneName(ColumnPlane plane);

/// Adjustment factors of one candidate. Those that do not bear on a candidate keep the value of the one
/// before.
struct ColumnFactors {
    float CF = 1;    // size
    float CmFc = 1;  // wet service
    float CmE = 1;
    float CiFc = 1;  // incising
    float CiE = 1;
    float Kf = 1;  // built-up columns

    bool operator==(const ColumnFactors&) const = default;
};

/// The smallest width that works with each thickness, as the quick picks show it; empty where none does.
struct ColumnGrid {
    static constexpr std::size_t ThicknessCount = 5;

    std::array<std::string, ThicknessCount> ColDep;
    std::string NoneWorkLabel;
};

/// One size of a wood column, tested.
struct ColumnResult {
    float D1 = 0;  // net thickness and width, in.
    float D2 = 0;
    ColumnPlane GoverningPlane = ColumnPlane::Neither;
    double SlendernessD1 = 0;  // le/d
    double SlendernessD2 = 0;
    bool SlendernessOver50 = false;  // which fails by itself
    ColumnFactors Factors;
    bool CarriesSizeFactor = false;  // CF is that of the size before: the table has no such width
    float EPrime = 0;                // psi
    float FcStar = 0;                // psi, all factors but Cp
    float FcE = 0;                   // psi; 0 when neither plane can buckle
    float KcE = 0;                   // coefficient of E'/(le/d)^2; 0 when neither plane can buckle
    float Cp1 = 1;
    float Cp2 = 1;
    double Area = 0;      // in^2
    double FcActual = 0;  // psi
    float FcPrime = 0;    // psi
    bool Passes = false;
};

namespace ColumnStatus {
inline constexpr std::string_view Ok = "OK";
inline constexpr std::string_view Fail = "Fail";
}  // namespace ColumnStatus

}  // namespace kordavan
