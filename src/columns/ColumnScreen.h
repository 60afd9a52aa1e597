#pragma once

#include <array>
#include <string>
#include <string_view>

#include "columns/ColumnSession.h"
#include "design/Session.h"

namespace kordavan {

/// Said beside a result that is no longer that of the entries.
inline constexpr std::string_view EntriesChanged = "Entries changed since.";

/// What the column screen shows of a session besides the entries themselves.
struct ColumnScreen {
    bool HasWood = true;  // of the face of wood alone
    bool HasStuds = false;
    std::array<std::string, 2> Reactions;  // of the beam, with their size once it is calculated
    std::string SpeciesNote;
    std::string ResultLine;  // edition and the size tested last

    std::string StudStatusLabel;  // of the last complete run; empty before one
    bool HasStudRun = false;
    bool StudPasses = false;
    bool HasStudChanged = false;  // the entries, or the edition, are no longer those of the run
    std::string StudWarning;
};

ColumnScreen DescribeColumnScreen(const ColumnSession& columns, const Session& beam);

/// The next of the common duration factors of a stud's axial load: 1.0, 1.15, 1.25, 1.6. Any other text
/// starts the cycle.
std::string NextAxialDuration(const std::string& text);

/// Begins another column; work that is not saved is asked about first. Refused when the person would rather
/// keep it.
/// @param unsaved  what would be lost; empty when nothing would be
Outcome OfferNewColumn(ColumnSession& columns, const std::string& unsaved, UserPort& user);

/// Asks before a stud from a file takes the place of entries that are not saved. Refused when the person
/// would rather keep them.
Outcome OfferToOpenStud(const ColumnSession& columns, UserPort& user);

}  // namespace kordavan
