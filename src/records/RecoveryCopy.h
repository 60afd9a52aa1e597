#pragma once

#include <string>
#include <string_view>

#include "columns/ColumnSession.h"
#include "design/Session.h"
#include "notch/NotchSession.h"

namespace kordavan {

/// All that a person has at work.
struct WorkAtHand {
    Session& Beam;
    ColumnSession& Columns;
    NotchSession& Notch;
};

/// What a recovery copy tells beside the entries.
struct RecoveryNote {
    std::string Made;    // the moment, in words
    std::string Screen;  // the name of the form in front
};

/// Every entry of the work at hand as lines of text, "Beam.Problem.Span=14"; what is empty, off or 0 has
/// none. Two works have the same lines when their entries are the same.
std::string EntryLines(const WorkAtHand& work);

/// The content of a recovery copy; its first line names its kind and version, its last one ends it.
std::string MakeRecoveryCopy(const RecoveryNote& note, std::string_view entryLines);

enum class RecoveryFault { None, Foreign, Newer, Broken };

/// A copy as read. The work is whole only where there is no fault.
struct RecoveryRead {
    RecoveryFault Fault = RecoveryFault::None;
    RecoveryNote Note;
    Session Beam;
    ColumnSession Columns;
    NotchSession Notch;
};

/// Reads a copy. A line that is missing at its end, unknown, twice there or without a value that its entry
/// can take makes it broken.
/// @param start  the work as the program has just started with it: what a copy does not hold is as there
RecoveryRead ReadRecoveryCopy(std::string_view bytes, const WorkAtHand& start);

}  // namespace kordavan
