#pragma once

#include "batch/CollectingUser.h"
#include "design/CalculateAction.h"
#include "design/Session.h"

namespace kordavan {

/// A 16 ft beam under everything that its boxes can hold: six point and five partial loads.
inline BeamProblem FullyLoadedBeam()
{
    BeamProblem problem;
    problem.Span = "16";
    problem.Loads.UNIF = "60";
    problem.Loads.LUNIF = "40";
    problem.UBLtext = "4";
    problem.Loads.PT.fill("200");
    problem.Loads.LPT.fill("120");
    problem.Loads.DIS = {"2", "4", "6", "8", "10", "12"};
    problem.Loads.PAR.fill("40");
    problem.Loads.LPAR.fill("25");
    problem.Loads.BEGP = {"1", "3", "5", "7", "9"};
    problem.Loads.ENDP = {"4", "7", "10", "13", "16"};
    return problem;
}

inline Session CalculatedSession()
{
    Session session;
    session.Problem = FullyLoadedBeam();
    CollectingUser user;
    CalculateAction(session, user);
    return session;
}

inline const MemberEntry Timber{
    .BreadthText = "6x", .DepthText = "12", .SpeciesText = "DF-L #1", .Custom = {}};

}  // namespace kordavan
