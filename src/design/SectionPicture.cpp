#include "design/SectionPicture.h"

#include <cmath>
#include <optional>
#include <vector>

#include "core/NumberText.h"
#include "core/SizeText.h"

namespace kordavan {

namespace {

/// Built-up members bear their number of plies in front: "(3) 2x".
int PlyCountOf(const MemberCandidate& member)
{
    const bool isBuiltUp = member.BreadthText.starts_with('(');
    return isBuiltUp ? static_cast<int>(Val(std::string_view(member.BreadthText).substr(1))) : 1;
}

/// Glulams grow by one lamination from depth to depth.
double LaminationOf(const MemberCandidate& member)
{
    if (member.BreadthKey != BreadthKey::Glulam) {
        return 0;
    }
    const std::optional<Breadth> breadth = FindBreadth(member.Family, member.BreadthText);
    if (!breadth) {
        return 0;
    }
    const std::vector<DepthChoice> depths = DepthsOf(member.Family, *breadth);
    return depths[1].Net - depths[0].Net;
}

std::string InchText(double inches)
{
    return InchesText(inches) + " in.";
}

std::string CountOf(double count, std::string_view of, double thickness)
{
    std::string text = PlainNumber(count) + " ";
    text += of;
    return text + " of " + InchText(thickness);
}

std::string MakeUpOf(const SectionPicture& picture)
{
    if (picture.PlyCount > 1) {
        return CountOf(picture.PlyCount, "plies", picture.B / picture.PlyCount);
    }
    return picture.Lamination > 0
               ? CountOf(std::round(picture.D / picture.Lamination), "laminations", picture.Lamination)
               : std::string{};
}

}  // namespace

SectionPicture ReadSectionPicture(const MemberCandidate& member)
{
    SectionPicture picture{.IsRound = member.Round,
                           .B = member.B,
                           .D = member.D,
                           .PlyCount = PlyCountOf(member),
                           .Lamination = LaminationOf(member),
                           .BText = InchText(member.B),
                           .DText = InchText(member.D),
                           .MakeUpText = {}};
    picture.MakeUpText = MakeUpOf(picture);
    return picture;
}

std::string DescribeSection(const SectionPicture& picture)
{
    if (picture.B <= 0) {
        return {};
    }
    if (picture.IsRound) {
        return "Round section, " + picture.DText + " in diameter.";
    }
    const std::string text =
        "Rectangular section, " + picture.BText + " broad and " + picture.DText + " deep";
    return picture.MakeUpText.empty() ? text + "." : text + ", " + picture.MakeUpText;
}

}  // namespace kordavan
