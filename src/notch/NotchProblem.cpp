#include "notch/NotchProblem.h"

#include <cmath>
#include <cstddef>

#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr double GreatestRise = 24;  // in 12; a greater pitch is an angle in degrees
constexpr double Run = 12;
constexpr double DegreesPerRadian = 180 / NotchPi;

double NumberOf(std::string_view text)
{
    return IsNumeric(text) ? Val(text) : 0;
}

bool IsPosition(int position, std::size_t count)
{
    return position >= 0 && static_cast<std::size_t>(position) < count;
}

std::size_t PositionOrFirst(int position, std::size_t count)
{
    return IsPosition(position, count) ? static_cast<std::size_t>(position) : 0;
}

}  // namespace

NotchProblem ReadNotchProblem(const NotchEntry& entry, std::int16_t ndsYear)
{
    NotchProblem problem;
    problem.MemberType =
        static_cast<NotchMember>(PositionOrFirst(entry.MemberListBox, NotchMemberNames.size()));
    problem.Notch = static_cast<NotchType>(PositionOrFirst(entry.NotchListBox, NotchTypeNames.size()));
    problem.MaxV = NumberOf(entry.MaxVtextbox);
    problem.Breadth = NumberOf(entry.breadthtextbox);
    problem.Depth = NumberOf(entry.depthtextbox);
    if (problem.MemberType == NotchMember::SawnRound && IsBlankText(entry.breadthtextbox)) {
        problem.Breadth = problem.Depth;
    }
    problem.BaseFv = NumberOf(entry.Fvtextbox);
    problem.DepthAtNotch = NumberOf(entry.dnTextbox);
    problem.NotchSetback = NumberOf(entry.eTextbox);
    problem.HasSetback = problem.NotchSetback > 0;
    problem.RafterDepth = NumberOf(entry.rdTextbox);
    problem.RoofPitch = NumberOf(entry.rpTextbox);
    problem.WallBreadth = NumberOf(entry.tTextbox);
    problem.Cm = NotchWetFactor(problem.MemberType, problem.Depth, entry.WetUseCheckbox);
    problem.Ch = entry.NoSplitCheckbox ? 2 : 1;
    problem.Cd = NotchDurations[PositionOrFirst(entry.DurListbox, NotchDurations.size())].Cd;
    problem.NdsYear = ndsYear;
    return problem;
}

bool HasNotchType(const NotchEntry& entry)
{
    return IsPosition(entry.NotchListBox, NotchTypeNames.size());
}

bool IsBlankText(std::string_view text)
{
    return text.find_first_not_of(" \t") == std::string_view::npos;
}

double NotchWetFactor(NotchMember member, double depth, bool isWet)
{
    constexpr double sawnLumber = 0.97;
    constexpr double glulam = 0.875;
    constexpr double leastTimber = 5;  // in.; timbers have no factor
    if (!isWet) {
        return 1;
    }
    switch (member) {
        case NotchMember::Glulam:
            return glulam;
        case NotchMember::SawnRound:
            return depth < leastTimber ? sawnLumber : 1;
        case NotchMember::SawnRectangular:
            break;
    }
    return sawnLumber;
}

double RoofAngle(double pitch)
{
    return pitch > GreatestRise ? pitch : std::atan(pitch / Run) * DegreesPerRadian;
}

}  // namespace kordavan
