#pragma once

#include <functional>
#include <string>
#include <vector>

#include "SweepBeam.h"

namespace kordavan::Verification {

/// One beam of a sweep: how Kordavan's figure lies to that of beam theory.
struct SweepPoint {
    double Place;       // along the axis of the sweep, as a / L
    double Difference;  // %, negative where Kordavan is below the theory
};

/// A quantity: its name, its place in the answer, what theory has for it, and what a difference is a per cent
/// of.
struct Measure {
    std::string Name;
    std::string Place;
    std::function<double(const SweepBeam&)> Exact;
    std::function<double(const SweepBeam&)> Scale;  // the exact figure itself where there is none
};

/// The beams of a family along its axis, in equal steps.
struct SweepBeams {
    std::string Name;
    std::string Axis;  // what varies
    double From;
    double To;
    int Steps;
    std::function<SweepBeam(double)> At;
};

/// A family of load cases and one quantity of them.
struct SweepFamily {
    std::string Name;
    std::string Axis;
    std::string Quantity;
    double Lowest;   // % that no difference may be below
    double Highest;  // % that no difference may be above
    std::vector<SweepPoint> Points;

    double LowestFound() const;
    double HighestFound() const;
    double MeanFound() const;
};

/// Puts every beam of a family to the engine and to beam theory.
SweepFamily Compare(const SweepBeams& beams, const Measure& measure, double lowest, double highest);

struct SweepGroup {
    std::string Title;
    std::vector<SweepFamily> Families;
};

/// All families, in the order of the manual; those of single spans come first.
std::vector<SweepGroup> RunSweep();

}  // namespace kordavan::Verification
