#include <algorithm>

#include "core/NumberText.h"
#include "materials/Species.h"
#include "notch/NotchCheck.h"

namespace kordavan {

namespace {

bool IsOfMember(BreadthKey key, NotchMember member)
{
    switch (member) {
        case NotchMember::SawnRectangular:
            return key == BreadthKey::TwoBy || key == BreadthKey::FourBy || key == BreadthKey::SixBy;
        case NotchMember::SawnRound:
            return key == BreadthKey::SixBy;
        case NotchMember::Glulam:
            return key == BreadthKey::Glulam;
    }
    return false;
}

/// The size class by the actual breadth; a breadth that is not known yet is taken as dimension lumber.
BreadthKey KeyOf(const NotchProblem& problem)
{
    constexpr double leastFourBy = 2.5;  // in.
    constexpr double leastTimber = 5;
    switch (problem.MemberType) {
        case NotchMember::SawnRound:
            return BreadthKey::SixBy;
        case NotchMember::Glulam:
            return BreadthKey::Glulam;
        case NotchMember::SawnRectangular:
            break;
    }
    if (problem.Breadth < leastFourBy) {
        return BreadthKey::TwoBy;
    }
    return problem.Breadth < leastTimber ? BreadthKey::FourBy : BreadthKey::SixBy;
}

}  // namespace

std::vector<std::string_view> NotchSpeciesNames(NotchMember member)
{
    std::vector<std::string_view> names;
    for (const SpeciesRow& row : SpeciesRows()) {
        const bool isNew = std::find(names.begin(), names.end(), row.SpeciesName) == names.end();
        if (isNew && IsOfMember(row.Key, member)) {
            names.push_back(row.SpeciesName);
        }
    }
    return names;
}

void PickNotchSpecies(NotchEntry& entry, std::string_view name, Edition edition)
{
    entry.Species = name;
    const NotchProblem problem = ReadNotchProblem(entry, 0);
    if (const SpeciesRow* const row = FindSpeciesForBreadth(KeyOf(problem), name)) {
        entry.Fvtextbox =
            PlainNumber(ReferenceValues(*row, edition, {.B = problem.Breadth, .D = problem.Depth}).Fv);
    }
}

}  // namespace kordavan
