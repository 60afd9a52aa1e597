#pragma once

#include <string>
#include <vector>

#include "BeamTheory.h"

namespace kordavan::Verification {

/// A beam that is put both to the engine and to beam theory; its loads are all live, so that no creep enters.
struct SweepBeam {
    double Span = 10;     // ft
    int Spans = 1;        // equal ones
    double Overhang = 0;  // ft
    double UNIF = 0;      // plf, on the span or spans
    double HipPsf = 0;    // of a hip over a bay whose diagonal is the span
    bool WithWeight = false;
    std::vector<PointLoad> Points = {};      // ft from R1
    std::vector<PointLoad> TipPoints = {};   // ft from R2
    std::vector<LineLoad> Partials = {};     // ft from R1
    std::vector<LineLoad> TipPartials = {};  // ft from R2
};

/// The request that puts the beam to the engine as a 6x12 DF-L #1.
std::string RequestOf(const SweepBeam& beam);

/// The same beam for the theory.
ElasticBeam TheoryOf(const SweepBeam& beam);

}  // namespace kordavan::Verification
