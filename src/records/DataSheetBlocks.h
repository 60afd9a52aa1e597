#pragma once

#include <array>
#include <cstddef>

#include "core/Message.h"
#include "design/Session.h"

namespace kordavan {

/// The labels of a check: its caption and figures.
struct CheckCells {
    std::size_t Caption;
    std::size_t Critical;
    std::size_t Actual;
    std::size_t Status;
    std::size_t Ratio;
};

inline constexpr CheckCells SectionCells{9, 13, 14, 111, 152};
inline constexpr CheckCells ShearCells{10, 15, 16, 112, 153};
inline constexpr CheckCells TotalDeflectionCells{11, 17, 18, 113, 154};
inline constexpr CheckCells LiveDeflectionCells{110, 109, 106, 114, 155};
inline constexpr CheckCells OverhangCells{156, 158, 157, 159, 160};
inline constexpr CheckCells OverhangLiveCells{161, 163, 162, 164, 165};
inline constexpr std::array CheckRows{SectionCells,        ShearCells,    TotalDeflectionCells,
                                      LiveDeflectionCells, OverhangCells, OverhangLiveCells};

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
