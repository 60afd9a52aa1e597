#include "design/Pretest.h"

#include "design/TestMember.h"

namespace kordavan {

namespace {

class Pretest {
public:
    Pretest(Session& tested, UserPort& port) : session(tested), user(port) {}

    PickState Walk(MemberEntry& entry)
    {
        if (!Test(entry)) {
            return PickState::NotTested;
        }
        while (!Passes()) {
            if (!Step(entry, session.Member.Candidate.NextLargerDepthText)) {
                return PickState::NonePasses;
            }
            if (Passes()) {
                return PickState::Filled;
            }
        }
        while (session.Member.Result.NextSmallerOk) {
            if (!Step(entry, session.Member.Candidate.NextSmallerDepthText)) {
                return PickState::NonePasses;
            }
        }
        return PickState::Filled;
    }

private:
    bool Test(const MemberEntry& entry)
    {
        return TestMember(session, entry, {.QuietTest = true}, user) == Outcome::Done;
    }

    bool Passes() const { return session.Member.Result.Overall == StatusOk; }

    bool Step(MemberEntry& entry, std::string_view depth)
    {
        entry.DepthText = depth;
        return !depth.empty() && Test(entry);
    }

    Session& session;
    UserPort& user;
};

}  // namespace

PickState WalkToSmallest(Session& session, MemberEntry& entry, UserPort& user)
{
    return Pretest(session, user).Walk(entry);
}

}  // namespace kordavan
