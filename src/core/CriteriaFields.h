#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "core/BeamProblem.h"

namespace kordavan {

enum class SpanFlag { TwoSpan, ThreeSpan };

/// The list position of the material group.
struct MaterialGroup {};

/// Where a criteria field lives; of a group of options, the choice that its flag stands for.
using CriteriaTarget = std::variant<std::string BeamProblem::*, std::string LoadSet::*, PointTexts LoadSet::*,
                                    PartialTexts LoadSet::*, bool BeamProblem::*, bool LoadSet::*,
                                    std::array<bool, PlanQuarterCount> LoadSet::*, SupportCondition, SpanFlag,
                                    RepetitiveSpacing, SteelFamily, MaterialGroup>;

struct CriteriaField {
    std::string_view Name;
    CriteriaTarget Target;
};

/// The fields of a criteria form by the names of its boxes, in the order of the names.
std::span<const CriteriaField> CriteriaFields();

/// The field of this name, or none.
const CriteriaField* FindCriteriaField(std::string_view name);

}  // namespace kordavan
