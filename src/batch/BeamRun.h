#pragma once

#include "batch/CollectingUser.h"
#include "batch/Json.h"
#include "design/Session.h"

namespace kordavan {

/// What a request asks for besides its figures, and how far it came.
struct BeamRun {
    Session Work;
    CollectingUser User;
    bool WantsStations = false;
    bool WantsRecord = false;
    bool HasMember = false;
    bool Analysed = false;
    bool Tested = false;

    bool IsDone() const { return HasMember ? Tested : Analysed; }
};

/// Runs the calculate action and, with a member, its test. Throws InvalidRequest.
void RunBeam(const JsonValue& request, BeamRun& run);

/// Runs the calculate action alone, for a species group. Throws InvalidRequest.
Outcome RunSelection(const JsonValue& request, BeamRun& run);

/// Runs the calculate action and the scan of steel candidates. Throws InvalidRequest.
Outcome RunSteelScan(const JsonValue& request, BeamRun& run);

/// Runs the hips and valleys tool alone. Throws InvalidRequest.
Outcome RunHipValley(const JsonValue& request, BeamRun& run);

/// The edition a request names, 2018 where it names none. Throws InvalidRequest.
Edition EditionOf(const JsonValue& request);

/// The task a request names. Throws InvalidRequest when it names none.
std::string_view TaskOf(const JsonValue& request);

}  // namespace kordavan
