#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "columns/StudProblem.h"
#include "core/NdsEdition.h"

namespace kordavan {

inline constexpr std::size_t StudStationCount = 201;

/// One place along the stud.
struct StudStation {
    float At = 0;                                      // ft from the base
    std::array<float, WindLoadCount> Contributions{};  // moment that each load takes off, ft-lb
    float Moment = 0;                                  // ft-lb
};

using StudStationTable = std::array<StudStation, StudStationCount>;

/// A stud under axial load and wind, tested.
struct StudResult {
    float P = 0;              // lb
    float R1 = 0;             // reaction of the wind at the base, lb
    float MaxMoment = 0;      // ft-lb, the top of the last rise
    float MaxMomentAtFt = 0;  // ft from the base
    float CFb = 1;            // size factors
    float CFc = 1;
    float Cr = 1;                      // repetitive use
    float FbPrime = 0;                 // psi
    double Slenderness = 0;            // le/d
    float FcE = 0;                     // psi
    float FcStar = 0;                  // psi
    float Cp = 0;                      // none
    float AllowableAxial = 0;          // lb, without duration of load
    float FcActual = 0;                // psi
    float FcPrime = 0;                 // psi
    float FbActual = 0;                // psi
    std::optional<float> Interaction;  // none where axial load alone reaches FcE: the stud buckles
    double RB = 0;
    float FbE = 0;  // psi
    bool SlendernessOver50 = false;
    bool AxialFails = false;
    bool InteractionFails = false;
    bool BendingBuckles = false;

    bool Passes() const { return !SlendernessOver50 && !AxialFails && !InteractionFails && !BendingBuckles; }
};

namespace StudStatus {
inline constexpr std::string_view Adequate = "Adequate";
inline constexpr std::string_view Fails = "Fails";
}  // namespace StudStatus

/// The last complete run of the stud check: what it was of, and what came out. Entries may have changed
/// since.
struct StudTest {
    StudEntry Entry;
    StudColumnProblem Problem;
    Edition Nds = Edition::None;
    StudStationTable Stations{};
    StudResult Result;
};

}  // namespace kordavan
