#include "design/UnbracedEntry.h"

#include "design/OwnSelection.h"
#include "design/SteelCriteria.h"
#include "materials/SteelShapes.h"

namespace kordavan {

std::optional<std::string_view> FixedUnbracedLength(const BeamProblem& problem)
{
    if (problem.Support == SupportCondition::MultipleSpans) {
        return FullyBraced;
    }
    if (problem.Combo1 == SpeciesGroup::Scl) {
        return FullyBraced;
    }
    if (problem.Combo1 != SpeciesGroup::Steel) {
        return std::nullopt;
    }
    if (problem.Family == SteelFamily::Tube) {
        return AnyUnbracedLength;
    }
    return IsPlate(problem.Family) ? std::optional(FullyBraced) : std::nullopt;
}

void SwitchMaterial(Session& session, SpeciesGroup group, SteelFamily family)
{
    BeamProblem& problem = session.Problem;
    const bool wasFixed = FixedUnbracedLength(problem).has_value();
    problem.Combo1 = group;
    problem.Family = family;
    problem.Incised = problem.Incised && IsIncisable(group);
    DiscardOwnValues(session.Entry);
    if (const std::optional<std::string_view> fixed = FixedUnbracedLength(problem)) {
        problem.UBLtext = *fixed;
    } else if (wasFixed) {
        problem.UBLtext.clear();
    }
}

}  // namespace kordavan
