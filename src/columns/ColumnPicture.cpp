#include "columns/ColumnPicture.h"

#include <cmath>
#include <string_view>

#include "columns/ColumnTexts.h"
#include "core/BeamNumbers.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

/// The number of a box as far as one can be drawn, or none.
std::optional<double> ReadPositive(std::string_view text)
{
    const double number = IsNumeric(text) ? Val(text) : 0;
    return number > 0 ? std::optional(number) : std::nullopt;
}

std::string FeetText(double feet)
{
    return PlainNumber(feet) + " ft";
}

ColumnPlanePicture ReadPlane(std::string_view unbraced, std::string_view Ke)
{
    ColumnPlanePicture plane;
    const std::optional<double> length = ReadPositive(unbraced);
    plane.IsBraced = IsNumeric(unbraced) && Val(unbraced) == 0;
    plane.IsKnown = plane.IsBraced || length;
    if (plane.IsBraced) {
        plane.LengthText = "fully braced";
    }
    if (!length) {
        return plane;
    }
    plane.Unbraced = *length;
    plane.LengthText = FeetText(*length) + " unbraced";
    const double effective = *length * InchesPerFoot * ReadPositive(Ke).value_or(0);
    if (effective > 0 && std::isfinite(effective)) {
        plane.EffectiveText = "le = " + PlainNumber(effective) + " in.";
    }
    return plane;
}

std::string DescribePlane(const ColumnPlanePicture& plane, std::string_view name)
{
    std::string text = " " + std::string(name) + ": ";
    if (!plane.IsKnown) {
        return text + "its unbraced length is not entered.";
    }
    text += plane.LengthText;
    return plane.EffectiveText.empty() ? text + "." : text + ", " + plane.EffectiveText;
}

}  // namespace

ColumnPicture ReadColumnPicture(const ColumnEntry& entry, ColumnFace face)
{
    ColumnPicture picture;
    picture.IsSteel = face == ColumnFace::Steel;
    if (const std::optional<double> height = ReadPositive(entry.cHTtext)) {
        picture.Height = *height;
        picture.HeightText = FeetText(*height);
    }
    if (const std::optional<double> load = ReadPositive(entry.cReacText)) {
        picture.LoadText = PlainNumber(*load) + " lb";
    }
    picture.D1 = ReadPlane(entry.cD1text, entry.cModeText);
    if (picture.IsSteel) {
        picture.TypeText = "Steel pipe or tube";
        return picture;
    }
    picture.D2 = ReadPlane(entry.cD2text, entry.cModeText);
    picture.Type = entry.Type;
    picture.PlyCount = IsBuiltUp(entry.Type) ? 2 : 1;
    picture.TypeText = ColumnTypeName(entry.Type);
    return picture;
}

std::string DescribeColumn(const ColumnPicture& picture)
{
    std::string text = picture.TypeText + " column";
    text += picture.Height > 0 ? ", " + picture.HeightText + " high" : ", no height yet";
    text += picture.LoadText.empty() ? ", no load yet." : ", carrying " + picture.LoadText + ".";
    if (picture.IsSteel) {
        return text + DescribePlane(picture.D1, "Both planes");
    }
    return text + DescribePlane(picture.D1, "Plane D1") + DescribePlane(picture.D2, "Plane D2");
}

}  // namespace kordavan
