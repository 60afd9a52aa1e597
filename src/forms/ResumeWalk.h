#pragma once

#include <string_view>

namespace kordavan {

class Walk;

/// Goes on with recovered entries at the form that was in front. What it showed the results of is worked out
/// again; where that is refused, or a form has nothing to show, the entries come to the front.
void ResumeWalk(Walk& walk, std::string_view form);

}  // namespace kordavan
