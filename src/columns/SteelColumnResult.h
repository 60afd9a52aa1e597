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

/// The lightest suitable size of each kind as the quick picks show it; empty where none works.
struct SteelColumnPicks {
    static constexpr std::size_t TubeCount = 3;

    std::string StdRndBut;
    std::string ExtraRndbut;
    std::string DblRndBut;
    std::array<std::string, TubeCount> TubeCol;
    std::string Label60;  // said when there is none at all

    bool operator==(const SteelColumnPicks&) const = default;
};

/// One steel size, tested.
struct SteelColumnResult {
    std::size_t Row = 0;      // of the catalogue
    double Fy = 0;            // ksi
    double Cc = 0;            // none
    double KLoverR = 0;       // none
    double Fa = 0;            // ksi
    double RequiredArea = 0;  // in^2
    double ActualStress = 0;  // ksi
    bool SlendernessPasses = false;
    bool AreaPasses = false;

    bool Passes() const { return SlendernessPasses && AreaPasses; }
};

/// The last report of a steel size: what it was of, and what came out.
struct SteelColumnTest {
    SteelColumnProblem Problem;
    SteelColumnResult Result;
    std::string Size;
    std::string TypeAndGrade;
};

}  // namespace kordavan
