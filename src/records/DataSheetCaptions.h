#pragma once

#include <string_view>

#include "design/DataSheet.h"

namespace kordavan {

/// Captions of the span (Label12) and of the bearing at the supports (Label60).
inline constexpr std::string_view BeamSpanCaption = "Beam Span";
inline constexpr std::string_view BearingAreaCaption = "Min Bearing Area";
inline constexpr std::string_view BearingLengthCaption = "Min Bearing Length";

/// Writes the captions that stand on the sheet whatever its beam is. On a steel sheet those of the factors
/// that only wood has (Label32, Label33, Label47) are hidden: their cells are empty.
void FillFixedCaptions(DataSheet& sheet);

}  // namespace kordavan
