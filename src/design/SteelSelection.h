#pragma once

#include <cstddef>

#include "core/Message.h"
#include "design/Session.h"
#include "design/SteelTest.h"

namespace kordavan {

/// Opens the selection of shapes on an analysed beam. The candidates are looked for when there are none;
/// those of other entries, their page and the size box are discarded. Refused where the beam leads back to
/// its criteria.
Outcome OpenSteelSelection(Session& session, UserPort& user);

/// The candidate on a line of the page in view, 0 to 7; none on a line that is not used.
const SteelSlot* SlotOnLine(const SteelSelection& picks, std::size_t line);

/// True when there are more candidates than one page shows.
bool HasSecondPage(const SteelSelection& picks);

/// Turns to the second page, where there is one, or back to the first.
void ShowMoreShapes(SteelSelection& picks);
void ShowFirstShapes(SteelSelection& picks);

/// Writes the candidate on a line of the page in view into the size box; an unused line changes nothing.
void TakeSteelPick(Session& session, std::size_t line);

/// Tests the shape in the size box.
SteelTestEnd TestEnteredShape(Session& session, UserPort& user);

enum class SteelStep { Back, Forward };

/// True when the shape tested last is a candidate with another before or behind it.
bool CanStepShape(const Session& session, SteelStep step);

/// Tests the candidate before or behind the shape tested last and writes it into the size box. A step that
/// leads nowhere, or a refused test, changes nothing.
SteelTestEnd StepShape(Session& session, SteelStep step, UserPort& user);

}  // namespace kordavan
