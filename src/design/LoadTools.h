#pragma once

#include "core/Message.h"
#include "design/Session.h"

namespace kordavan {

/// Uniform load calculator: psf times tributary length into LUNIF and UNIF.
Outcome MultiplyTributary(Session& session, UserPort& user);

/// Partial load calculator: psf times tributary length into PAR and LPAR, row by row. Rows without a
/// tributary length, and values that are not above 0, leave their boxes as they are. A product beyond any
/// number is refused with nothing changed.
Outcome InsertPartialLoads(BeamProblem& problem, UserPort& user);

/// Clears the partial load calculator: its load boxes are emptied, its lengths read "0".
void ClearPartialCalculator(BeamProblem& problem);

/// Hips and valleys: the triangular load of the plan quarters as an equivalent uniform load in UNIF and
/// LUNIF, which stands for its moment, shear and deflection; the reactions keep the triangular law.
///
/// With slope adjustment the dead part of the roof loads grows; until it is put back the tool does nothing
/// more, as its button is off.
/// A refusal leaves everything as it was, save a span already written by Span Auto-Calc.
Outcome CalculateHipValley(Session& session, UserPort& user);

/// Works out the increasing load behind the equivalent one in the boxes, where entries came from a file: the
/// file holds only the latter, and the reactions need the former. Entries of other support conditions have
/// none.
void RestoreIncreasingLoads(Session& session);

}  // namespace kordavan
