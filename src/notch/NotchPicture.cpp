#include "notch/NotchPicture.h"

#include <algorithm>

#include "core/NumberText.h"
#include "notch/NotchCheck.h"

namespace kordavan {

namespace {

double AboveZero(double size)
{
    return std::max(size, 0.0);
}

std::string Sized(std::string_view symbol, double size, std::string_view unit)
{
    return size > 0 ? std::string(symbol) + " " + PlainNumber(size) + " " + std::string(unit) : std::string{};
}

std::string Inches(std::string_view symbol, double size)
{
    return Sized(symbol, size, "in.");
}

std::string Rounded(std::string_view symbol, double size, std::string_view unit)
{
    return size > 0 ? std::string(symbol) + FormatNumber(size, "#0.0#") + std::string(unit) : std::string{};
}

void ReadNotchOwn(const NotchProblem& problem, NotchPicture& picture)
{
    if (problem.Notch == NotchType::Compression) {
        picture.Setback = AboveZero(problem.NotchSetback);
        picture.SetbackText = Inches("e", picture.Setback);
    }
    if (problem.Notch != NotchType::Tapered) {
        return;
    }
    constexpr double upright = 90;  // degrees
    const double angle = RoofAngle(AboveZero(problem.RoofPitch));
    picture.RafterDepth = AboveZero(problem.RafterDepth);
    picture.WallBreadth = AboveZero(problem.WallBreadth);
    picture.SeatAngle = angle < upright ? angle : 0;
    picture.RafterDepthText = Inches("rd", picture.RafterDepth);
    picture.WallBreadthText = Inches("t", picture.WallBreadth);
    picture.AngleText = Rounded("", picture.SeatAngle, "\u00B0");
}

std::string MemberSentence(const NotchPicture& picture)
{
    std::string_view name = NotchMemberNames[static_cast<std::size_t>(picture.Member)];
    name.remove_prefix(1);
    std::string text(name);
    if (picture.Depth <= 0) {
        return text + ", no depth yet. ";
    }
    if (picture.Member == NotchMember::SawnRound) {
        return text + ", " + PlainNumber(picture.Depth) + " in. in diameter. ";
    }
    const std::string breadth =
        picture.Breadth > 0 ? PlainNumber(picture.Breadth) + " in. broad and " : std::string{};
    return text + ", " + breadth + PlainNumber(picture.Depth) + " in. deep. ";
}

std::string NotchSentence(const NotchPicture& picture)
{
    std::string text(NotchTypeNames[static_cast<std::size_t>(picture.Notch)]);
    for (const std::string* const size :
         {&picture.DepthAtNotchText, &picture.MinimumText, &picture.SetbackText, &picture.RafterDepthText,
          &picture.WallBreadthText}) {
        text += size->empty() ? "" : ", " + *size;
    }
    if (picture.SeatAngle > 0) {
        text += ", roof angle " + FormatNumber(picture.SeatAngle, "#0.0#") + " degrees";
    }
    return text.ends_with('.') ? text : text + ".";
}

}  // namespace

NotchPicture ReadNotchPicture(const NotchEntry& entry, const NotchYears& years)
{
    const NotchProblem problem = ReadNotchProblem(entry, years.NdsYear);
    NotchPicture picture;
    picture.Member = problem.MemberType;
    picture.Notch = problem.Notch;
    picture.Depth = AboveZero(problem.Depth);
    picture.Breadth = AboveZero(problem.Breadth);
    picture.DepthAtNotch = std::min(AboveZero(problem.DepthAtNotch), picture.Depth);
    picture.MinimumDn = AboveZero(FindLeastNotchDepth(problem).Dn);
    picture.DepthText = Inches("d", picture.Depth);
    picture.DepthAtNotchText = Inches("dn", AboveZero(problem.DepthAtNotch));
    picture.MinimumText = Rounded("minimum ", picture.MinimumDn, " in.");
    picture.ShearText = Sized("V", problem.MaxV, "lb");
    ReadNotchOwn(problem, picture);
    return picture;
}

std::string DescribeNotchPicture(const NotchPicture& picture)
{
    const std::string shear = picture.ShearText.empty() ? "" : " " + picture.ShearText + ".";
    return MemberSentence(picture) + NotchSentence(picture) + shear;
}

}  // namespace kordavan
