#pragma once

#include <string>

#include "design/Session.h"

namespace kordavan {

/// How far the tip of an overhang really goes, by the exact elastic line, where the report's figure is well
/// short of it: loads spread over the overhang, and all but one of several point loads, count there with what
/// they do at their own place. Creep is that of the report. Empty where the report comes near enough, and
/// without an overhang or a tested member.
std::string OverhangTipWarning(const Session& session);

}  // namespace kordavan
