#include "columns/StudPicture.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "core/BeamNumbers.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

std::string Figure(double value)
{
    return PlainNumber(Single(value));
}

/// A load of one stud in whole or tenths of its unit.
std::string LoadFigure(double value)
{
    std::string text = FormatNumber(value, "#,##0.#");
    if (text.ends_with('.')) {
        text.pop_back();
    }
    return text;
}

/// The number of a text that is one, above 0; none of any other.
std::optional<double> Above0(const std::string& text)
{
    const double value = IsNumeric(text) ? Val(text) : 0;
    return value > 0 ? std::optional(value) : std::nullopt;
}

/// A place on the stud; the base where the text is empty and may be.
std::optional<double> PlaceOf(const std::string& text, bool mayBeEmpty)
{
    if (text.empty() && mayBeEmpty) {
        return 0;
    }
    return IsNumeric(text) ? std::optional(Val(text)) : std::nullopt;
}

std::string DescribeWind(const PictureWind& wind)
{
    const std::string onStud = wind.Plf == 0 ? "" : LoadFigure(wind.Plf) + " plf, ";
    return std::string(1, wind.Letter) + " " + Figure(wind.Psf) + " psf, " + onStud + Figure(wind.Begin) +
           " to " + Figure(wind.End) + " ft";
}

bool FitsOn(double height, const PictureWind& wind)
{
    return wind.Begin >= 0 && wind.Begin < wind.End && wind.End <= height;
}

PictureWind WindAt(std::size_t load, double begin, double end, double psf, double spacing)
{
    PictureWind wind{.Letter = WindLetter(load),
                     .Begin = begin,
                     .End = end,
                     .Psf = psf,
                     .Plf = psf * spacing / InchesPerFoot};
    wind.Text = DescribeWind(wind);
    return wind;
}

std::optional<PictureWind> ReadWind(const StudEntry& entry, std::size_t load, double spacing)
{
    const std::optional<double> begin = PlaceOf(entry.Beg[load], load == 0);
    const std::optional<double> end = PlaceOf(entry.End[load], false);
    const double psf = IsNumeric(entry.Wind[load]) ? Val(entry.Wind[load]) : 0;
    if (!begin || !end || psf == 0) {
        return std::nullopt;
    }
    return WindAt(load, *begin, *end, psf, spacing);
}

std::string AxialText(const StudEntry& entry, double spacing)
{
    const double ofWall = Above0(entry.AxialPLFtextbox).value_or(0);
    const double point = Above0(entry.AxialPointTextbox).value_or(0);
    if (ofWall > 0 && spacing == 0) {
        return LoadFigure(ofWall) + " plf of wall" + (point > 0 ? " and " + LoadFigure(point) + " lb" : "");
    }
    const double P = ofWall * spacing / InchesPerFoot + point;
    return P > 0 ? LoadFigure(P) + " lb" : std::string{};
}

std::string SizeText(const StudEntry& entry, double spacing)
{
    const std::string size(std::string(StudBreadthOf(entry).Name) + std::string(StudDepthOf(entry).Name));
    return spacing > 0 ? size + " at " + Figure(spacing) + " in. o.c." : size;
}

std::string WindSentence(const PictureWind& wind)
{
    return "Wind " + wind.Text + " from the base" + (wind.Psf < 0 ? ", suction. " : ". ");
}

}  // namespace

StudPicture ReadStudPicture(const StudEntry& entry)
{
    const double spacing = Above0(entry.WindStudSpacing).value_or(0);
    StudPicture picture;
    picture.AxialText = AxialText(entry, spacing);
    picture.SizeText = SizeText(entry, spacing);
    const std::optional<double> height = Above0(entry.WindStudHt);
    if (!height) {
        return picture;
    }
    picture.Height = *height;
    picture.HeightText = Figure(*height) + " ft";
    for (std::size_t load = 0; load < WindLoadCount; ++load) {
        const std::optional<PictureWind> wind = ReadWind(entry, load, spacing);
        if (wind && FitsOn(*height, *wind)) {
            picture.Winds.push_back(*wind);
        }
    }
    return picture;
}

std::string DescribeStud(const StudPicture& picture)
{
    std::string text = "Stud " + picture.SizeText;
    text += picture.Height > 0 ? ", " + picture.HeightText + " high. " : ", no height yet. ";
    if (!picture.AxialText.empty()) {
        text += "Axial load " + picture.AxialText + ". ";
    }
    for (const PictureWind& wind : picture.Winds) {
        text += WindSentence(wind);
    }
    text.pop_back();
    return text;
}

std::string DescribeStudMoment(const StudTest& test)
{
    const StudColumnProblem& stud = test.Problem;
    std::string text;
    for (std::size_t load = 0; load < WindLoadCount; ++load) {
        if (stud.Wind[load] != 0 && stud.Beg[load] < stud.End[load]) {
            text +=
                WindSentence(WindAt(load, stud.Beg[load], stud.End[load], stud.Wind[load], stud.StudSpacing));
        }
    }
    return text + "Reaction at the base " + FormatNumber(test.Result.R1, "#,##0.0") +
           " lb. The moment worked with is " + FormatNumber(test.Result.MaxMoment, "#,##0.0") +
           " ft-lb, at " + FormatNumber(test.Result.MaxMomentAtFt, "0.00") + " ft from the base.";
}

}  // namespace kordavan
