#pragma once

#include <optional>
#include <string_view>

#include "design/Session.h"

namespace kordavan {

/// An unbraced length that is fixed because the compression edge is held all along.
inline constexpr std::string_view FullyBraced = "0";

/// What the unbraced length of the span reads where it is not the person's to enter: "0" on several spans,
/// for composite lumber and for flitch plates, "Any" for tubes. None where it is typed.
std::optional<std::string_view> FixedUnbracedLength(const BeamProblem& problem);

/// Changes the material group, or the family of steel. The unbraced length becomes what the material fixes it
/// to, and empty where that ends; values of the user's own are discarded, and only solid wood stays incised.
void SwitchMaterial(Session& session, SpeciesGroup group, SteelFamily family);

}  // namespace kordavan
