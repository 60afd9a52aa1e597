#pragma once

#include <optional>

#include "notch/NotchProblem.h"
#include "notch/NotchResult.h"
#include "notch/NotchYears.h"

namespace kordavan {

/// The notched member at work.
struct NotchSession {
    NotchEntry Entry;
    NotchYears Years;
    std::optional<NotchRun> Run;      // the last one
    std::optional<NotchRun> Earlier;  // the last one with a result, where the last one has none
};

}  // namespace kordavan
