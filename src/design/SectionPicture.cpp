#include "design/SectionPicture.h"

#include <cmath>
#include <optional>
#include <vector>

#include "core/NumberText.h"
#include "core/SizeText.h"
#include "materials/SteelShapes.h"

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

SectionOutline OutlineOf(SteelFamily family)
{
    switch (family) {
        case SteelFamily::W:
        case SteelFamily::S:
            return SectionOutline::Flanged;
        case SteelFamily::C:
        case SteelFamily::MC:
            return SectionOutline::Channel;
        case SteelFamily::Tube:
            return SectionOutline::Tube;
        case SteelFamily::Plate:
        case SteelFamily::DoublePlate:
            break;
    }
    return SectionOutline::Plates;
}

std::string FractionText(std::string_view fraction)
{
    return std::string(fraction) + " in.";
}

std::string ThicknessText(std::string_view part, double inches)
{
    return std::string(part) + " " + PlainNumber(inches) + " in.";
}

SectionPicture PictureOfPlates(const SteelShape& shape, int count)
{
    constexpr double plyBetween = 1.5;
    SectionPicture picture{.Outline = SectionOutline::Plates,
                           .B = count * BreadthOf(shape) + (count - 1) * plyBetween,
                           .D = shape.ActualDepth,
                           .PlyCount = count,
                           .Web = BreadthOf(shape),
                           .DText = FractionText(shape.DepthText)};
    if (count == 1) {
        picture.BText = FractionText(shape.BreadthText);
    } else {
        picture.MakeUpText = std::to_string(count) + " plates of " + FractionText(shape.BreadthText);
    }
    return picture;
}

SectionPicture PictureOfSteel(SteelFamily family, const SteelShape& shape)
{
    if (IsPlate(family)) {
        return PictureOfPlates(shape, family == SteelFamily::DoublePlate ? 2 : 1);
    }
    SectionPicture picture{.Outline = OutlineOf(family),
                           .B = BreadthOf(shape),
                           .D = shape.ActualDepth,
                           .Web = shape.WebThickness,
                           .Flange = shape.FlangeThickness,
                           .BText = FractionText(shape.BreadthText),
                           .DText = FractionText(shape.DepthText)};
    if (picture.Outline == SectionOutline::Tube) {
        picture.Web = picture.Flange;
        picture.MakeUpText = ThicknessText("wall", picture.Web);
    } else {
        picture.MakeUpText =
            ThicknessText("web", picture.Web) + ", " + ThicknessText("flanges", picture.Flange);
    }
    return picture;
}

std::string_view OutlineName(SectionOutline outline)
{
    switch (outline) {
        case SectionOutline::Flanged:
            return "Flanged section, ";
        case SectionOutline::Channel:
            return "Channel, ";
        case SectionOutline::Tube:
            return "Rectangular tube, ";
        case SectionOutline::Plates:
            return "Plate, ";
        case SectionOutline::Rectangle:
        case SectionOutline::Round:
            break;
    }
    return "Rectangular section, ";
}

}  // namespace

SectionPicture ReadSectionPicture(const MemberCandidate& member)
{
    SectionPicture picture{.Outline = member.Round ? SectionOutline::Round : SectionOutline::Rectangle,
                           .B = member.B,
                           .D = member.D,
                           .PlyCount = PlyCountOf(member),
                           .Lamination = LaminationOf(member),
                           .BText = InchText(member.B),
                           .DText = InchText(member.D)};
    picture.MakeUpText = MakeUpOf(picture);
    return picture;
}

SectionPicture ReadSectionPicture(const Session& session)
{
    return session.Numbers.IsSteel()
               ? PictureOfSteel(session.SteelPicks.Criteria.Family, SteelShapes()[session.Steel.RowIndex])
               : ReadSectionPicture(session.Member.Candidate);
}

std::string DescribeSection(const SectionPicture& picture)
{
    if (picture.B <= 0) {
        return {};
    }
    if (picture.Outline == SectionOutline::Round) {
        return "Round section, " + picture.DText + " in diameter.";
    }
    std::string text(OutlineName(picture.Outline));
    if (!picture.BText.empty()) {
        text += picture.BText + " broad and ";
    }
    text += picture.DText + " deep";
    return picture.MakeUpText.empty() ? text + "." : text + ", " + picture.MakeUpText;
}

}  // namespace kordavan
