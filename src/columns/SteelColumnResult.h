#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kordavan {

/// A steel column as the calculation reads its entries.
struct SteelColumnProblem {
    double Reaction = 0;        // lb
    double UnbracedLength = 0;  // in., in both planes
    double K = 0;               // none
    double ColumnHeight{};      // ft; documented, not reckoned with
};

/// The first suitable size of each kind as the quick picks show it; empty where none works.
struct SteelColumnPicks {
    static constexpr std::size_t TubeCount = 3;

    std::string StdRndBut;
    std::string ExtraRndbut;
    std::string DblRndBut;
    std::array<std::string, TubeCount> TubeCol;
    std::string Label60;  // said when there is none at all

    bool operator==(const SteelColumnPicks&) const = default;
};

/// One steel size, tested. Figures are held in single precision, so that a limit typed in decimals is met.
struct SteelColumnResult {
    std::size_t Row = 0;     // of the catalogue
    float Fy = 0;            // ksi
    float Cc = 0;            // none
    float KLoverR = 0;       // none
    float Fa = 0;            // ksi
    float RequiredArea = 0;  // in^2
    float ActualStress = 0;  // ksi
    bool SlendernessPasses = false;
    bool AreaPasses = false;

    bool Passes() const { return SlendernessPasses && AreaPasses; }
};

namespace SteelColumnStatus {
inline constexpr std::string_view Ok = "OK";
inline constexpr std::string_view Fail = "Fail";
}  // namespace SteelColumnStatus

constexpr std::string_view SteelStatusText(bool passes)
{
    return passes ? SteelColumnStatus::Ok : SteelColumnStatus::Fail;
}

/// The last report of a steel size: what it was of, and what came out.
struct SteelColumnTest {
    SteelColumnProblem Problem;
    SteelColumnResult Result;
    std::string Size;
    std::string TypeAndGrade;
};

}  // namespace kordavan
