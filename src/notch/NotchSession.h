#pragma once

#include <optional>

#include "core/NdsEdition.h"
#include "design/DataSheet.h"
#include "notch/NotchProblem.h"
#include "notch/NotchResult.h"
#include "notch/NotchYears.h"

namespace kordavan {

/// The heading that was entered to print a report, and what the report would have been headed by.
struct EnteredNotchHeading {
    RecordHeading Usual;
    RecordHeading Heading;
};

/// The notched member at work.
struct NotchSession {
    NotchEntry Entry;
    NotchYears Years;
    std::optional<Edition> YearsOf;   // the edition in force that the years followed last
    std::optional<NotchRun> Run;      // the last one
    std::optional<NotchRun> Earlier;  // the last one with a result, where the last one has none

    RecordHeading Heading;  // of the report to be printed, as its boxes hold it
    std::optional<EnteredNotchHeading> HeaderChanged;
};

}  // namespace kordavan
