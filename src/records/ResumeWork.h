#pragma once

#include "columns/ColumnSession.h"
#include "core/Message.h"
#include "core/NdsEdition.h"
#include "design/Session.h"

namespace kordavan {

/// Calculates a recovered beam again, as its results are not kept, without a word: what there was to ask was
/// answered then. Member, record and selection stay as recovered. Refused, with nothing changed, where the
/// entries would be.
Outcome CalculateAgain(Session& session);

/// Tests the member in the size boxes again, so that its report can be shown. Nothing else changes.
Outcome TestAgain(Session& session);

/// Searches the sizes of a recovered wood or steel column again, by its face. The size to test stays.
void CalculateAgain(ColumnSession& columns, Edition edition);

}  // namespace kordavan
