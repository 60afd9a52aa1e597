#pragma once

#include "core/Message.h"
#include "design/Session.h"

namespace kordavan {

/// True of a sawn member under the incised option; glulams, composite lumber and steel are not incised.
bool IsIncised(const Session& session);

/// The blocks of the Data Record, each filled by itself.
void FillHeading(const Session& session, CalendarDay today, DataSheet& sheet);
void FillMemberLines(const Session& session, DataSheet& sheet);
void FillChecks(const Session& session, DataSheet& sheet);
void FillReferenceValues(const Session& session, DataSheet& sheet);
void FillFactors(const Session& session, UserPort& user, DataSheet& sheet);
void FillSpansAndReactions(const Session& session, DataSheet& sheet);
void FillDeflections(const Session& session, DataSheet& sheet);
void FillBearing(const Session& session, DataSheet& sheet);
void FillLoads(const Session& session, DataSheet& sheet);

}  // namespace kordavan
