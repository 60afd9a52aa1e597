#pragma once

#include <optional>

#include "columns/StudProblem.h"

namespace kordavan {

/// Size factors of bending and compression, and repetitive use in bending; none.
struct StudFactors {
    float CFb = 1;
    float CFc = 1;
    float Cr = 1;
};

/// The factors of a stud, NDS Supplement Table 4A and, where it complies, the repetitive use factor of wind
/// loaded walls of IBC 2306.2.1. None for a Stud grade 7.25 in. deep, which has no values of its own.
std::optional<StudFactors> FindStudFactors(const StudColumnProblem& problem);

/// Whether the special repetitive use factor is asked for by a stud that is not made of 2x pieces; it then
/// gets the usual one.
bool IsDeniedSpecialCr(const StudColumnProblem& problem);

}  // namespace kordavan
