#pragma once

#include <string>

#include "design/Session.h"

namespace kordavan {

/// A value as text for a load box, where a 0 does not stay.
std::string LoadText(double value);

/// A total whose dead part, total less live, grows with the slope.
double WithSlope(double total, double live, double slopeFactor);

/// Puts loads as the analysis takes them into the load entries: dead parts grown with the slope (not those of
/// a hip or valley, whose tool has done it), then all loads times the spacing. The unbraced lengths of a
/// steel beam become those that shapes are tested at. What is needed to undo it is kept.
void AdjustEntries(BeamProblem& problem, float slopeFactor, EntriesToRestore& restore);

/// Puts the entries back when the criteria come to the front again. Loads multiplied for a spacing are
/// divided, to whole pounds for 16 and 19.2 in.; totals grown by the slope, and unbraced lengths, return to
/// what was typed.
void RestoreEntries(Session& session);

/// The entries as typed, whatever a calculation or the hips and valleys tool has written into the boxes.
BeamProblem TypedEntries(const Session& session);

/// Puts back the roof loads that the hips and valleys tool has grown, so that it may run again.
void RestoreHipLoads(Session& session);

}  // namespace kordavan
