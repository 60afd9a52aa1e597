#include "columns/StudColumn.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "columns/SilentUser.h"
#include "columns/StudCriteria.h"
#include "columns/StudFactors.h"
#include "columns/StudStrength.h"

namespace kordavan {

namespace {

constexpr std::string_view StudGradeTooDeep =
    "Stud grade members with an 8 inch depth will default to Grade No. 3 values. We recommend that you select "
    "a No.2 grade or select a shallower stud depth.";

constexpr std::string_view NotFinite =
    "The stud could not be worked out, because a load, a length or a value is far too large or too small.";

constexpr std::string_view SpecialCrDenied =
    "This is not a 2x member and doesn't qualify for special IBC repetitive use factors.  The NDS Repetitive "
    "use factor is reset to the normal 1.15 and the IBC factor has been unchecked for you.";

bool IsFinite(const StudStationTable& stations)
{
    return std::all_of(stations.begin(), stations.end(),
                       [](const StudStation& station) { return std::isfinite(station.Moment); });
}

void DropSpecialCr(StudEntry& entry, UserPort& user)
{
    entry.RepIBCCheck = false;
    user.Tell(Alert(SpecialCrDenied, "RepIBCCheck"));
}

}  // namespace

std::optional<StudTest> TestStud(StudEntry& entry, Edition edition, UserPort& user)
{
    if (ValidateStudProblem(entry, user) == Outcome::Refused) {
        return std::nullopt;
    }
    StudColumnProblem problem = ReadStudProblem(entry);
    const std::optional<StudFactors> factors = FindStudFactors(problem);
    if (!factors) {
        user.Tell(Refusal(StudGradeTooDeep, "DepthCombo"));
        return std::nullopt;
    }
    const StudMoment moment = ComputeStudMoment(problem);
    const StudResult result = WorkOutStud(problem, *factors, moment, edition);
    if (!IsFinite(moment.Stations) || !IsFinite(result)) {
        user.Tell(Refusal(NotFinite));
        return std::nullopt;
    }
    if (IsDeniedSpecialCr(problem)) {
        DropSpecialCr(entry, user);
        problem.RepetitiveIBC = false;
    }
    return StudTest{
        .Entry = entry, .Problem = problem, .Nds = edition, .Stations = moment.Stations, .Result = result};
}

Outcome CalculateStud(ColumnSession& columns, Edition edition, UserPort& user)
{
    const std::optional<StudTest> test = TestStud(columns.Stud, edition, user);
    if (!test) {
        return Outcome::Refused;
    }
    columns.StudRun = test;
    return Outcome::Done;
}

void RecallStud(ColumnSession& columns, Edition edition)
{
    StudEntry entry = columns.Stud;
    SilentUser nobody;
    const std::optional<StudTest> test = TestStud(entry, edition, nobody);
    if (test && entry == columns.Stud) {
        columns.StudRun = test;
    }
}

}  // namespace kordavan
