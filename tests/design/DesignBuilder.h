#pragma once

#include <gtest/gtest.h>

#include <string_view>

#include "design/CalculateAction.h"
#include "design/TestMember.h"
#include "support/ScriptedUser.h"

namespace kordavan {

/// A uniform load of 100 plf, 60 of it live, on 12 ft: nothing to remark.
inline Session PlainSession(Edition edition = Edition::Nds2018)
{
    Session session;
    session.Nds = EditionFlags(edition);
    session.Problem.Span = "12";
    session.Problem.Loads.UNIF = "100";
    session.Problem.Loads.LUNIF = "60";
    return session;
}

inline void SetPoint(BeamProblem& problem, std::size_t slot, std::string_view load, std::string_view place,
                     std::string_view live = "")
{
    problem.Loads.PT[slot] = load;
    problem.Loads.LPT[slot] = live;
    problem.Loads.DIS[slot] = place;
}

inline void SetPartial(BeamProblem& problem, std::size_t slot, std::string_view load, std::string_view begin,
                       std::string_view end, std::string_view live = "")
{
    problem.Loads.PAR[slot] = load;
    problem.Loads.LPAR[slot] = live;
    problem.Loads.BEGP[slot] = begin;
    problem.Loads.ENDP[slot] = end;
}

/// Calculates, hearing whatever alerts there are and saying Yes to nothing.
inline void Calculate(Session& session)
{
    ScriptedUser user;
    ASSERT_EQ(CalculateAction(session, user), Outcome::Done)
        << (user.Told.empty() ? "" : user.Told.back().Text);
}

inline MemberEntry Member(std::string_view breadth, std::string_view depth, std::string_view species)
{
    MemberEntry entry;
    entry.BreadthText = breadth;
    entry.DepthText = depth;
    entry.SpeciesText = species;
    return entry;
}

/// Tests a member that must be accepted.
inline const MemberTest& Tested(Session& session, const MemberEntry& entry)
{
    ScriptedUser user;
    EXPECT_EQ(TestMember(session, entry, {}, user), Outcome::Done)
        << (user.Told.empty() ? "" : user.Told.back().Text);
    return session.Member;
}

}  // namespace kordavan
