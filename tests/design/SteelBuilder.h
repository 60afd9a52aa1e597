#pragma once

#include <string_view>

#include "design/DesignBuilder.h"
#include "design/SteelSelection.h"

namespace kordavan {

/// A braced steel beam of so many feet under a uniform load, total and its live part, in plf.
inline Session SteelSession(SteelFamily family, std::string_view span, std::string_view total,
                            std::string_view live)
{
    Session session;
    session.Problem.Combo1 = SpeciesGroup::Steel;
    session.Problem.Family = family;
    session.Problem.Span = span;
    session.Problem.UBLtext = "0";
    session.Problem.Loads.UNIF = total;
    session.Problem.Loads.LUNIF = live;
    return session;
}

/// Calculates and tests a shape, which must be accepted, passing or not.
inline const SteelTestState& TestedShape(Session& session, std::string_view name)
{
    Calculate(session);
    PrepareSteel(session);
    ScriptedUser user;
    EXPECT_EQ(TestNamedShape(session, name, SteelTestMode::FromSelection, user), SteelTestEnd::Done)
        << name << (user.Told.empty() ? "" : ": " + user.Told.back().Text);
    return session.Steel;
}

/// Calculates and opens the selection, which must find its candidates in peace.
inline SteelSelection& OpenedSelection(Session& session)
{
    Calculate(session);
    ScriptedUser user;
    EXPECT_EQ(OpenSteelSelection(session, user), Outcome::Done);
    EXPECT_TRUE(user.Told.empty());
    return session.SteelPicks;
}

}  // namespace kordavan
