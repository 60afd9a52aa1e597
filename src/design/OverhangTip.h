#pragma once

#include <string>

#include "design/Session.h"

namespace kordavan {

/// A warning about the tip of an overhang; without a text there is none to give.
struct OverhangTipWarning {
    std::string Text;
    bool ExceedsAllowed = false;  // the tip really goes further than is allowed
};

/// How far the tip of an overhang really goes, by the exact elastic line, where the report's figure is well
/// short of it: loads spread over the overhang, and all but one of several point loads, count there with what
/// they do at their own place. Creep is that of the report. Empty where the report comes near enough, and
/// without an overhang or a tested member.
OverhangTipWarning WarnOfOverhangTip(const Session& session);

}  // namespace kordavan
