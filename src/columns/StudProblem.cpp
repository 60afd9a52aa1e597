#include "columns/StudProblem.h"

#include <span>

#include "columns/ColumnSpecies.h"
#include "core/NumberText.h"

namespace kordavan {

namespace {

const StudSize& SizeAt(std::span<const StudSize> sizes, int position)
{
    const auto index = static_cast<std::size_t>(position);
    return position >= 0 && index < sizes.size() ? sizes[index] : sizes.front();
}

float ReadFloat(const std::string& text)
{
    return Single(Val(text));
}

std::array<float, WindLoadCount> ReadFloats(const std::array<std::string, WindLoadCount>& texts)
{
    return {ReadFloat(texts[0]), ReadFloat(texts[1]), ReadFloat(texts[2])};
}

}  // namespace

const StudSize& StudBreadthOf(const StudEntry& entry)
{
    return SizeAt(StudBreadths, entry.BreadthCombo);
}

const StudSize& StudDepthOf(const StudEntry& entry)
{
    return SizeAt(StudDepths, entry.DepthCombo);
}

StudColumnProblem ReadStudProblem(const StudEntry& entry)
{
    return {.StudHeight = ReadFloat(entry.WindStudHt),
            .StudSpacing = ReadFloat(entry.WindStudSpacing),
            .Breadth = StudBreadthOf(entry).Net,
            .Depth = StudDepthOf(entry).Net,
            .StudGrade = IsStudGrade(entry.WindStudCombo),
            .BaseFb = ReadFloat(entry.WindStudFb),
            .BaseFc = ReadFloat(entry.WindStudFc),
            .BaseE = ReadFloat(entry.WindStudE),
            .AxialPLF = ReadFloat(entry.AxialPLFtextbox),
            .AxialPoint = ReadFloat(entry.AxialPointTextbox),
            .AxialCd = ReadFloat(entry.AxialDurTextbox),
            .WindCd = ReadFloat(entry.DurWindTextbox),
            .Wind = ReadFloats(entry.Wind),
            .Beg = ReadFloats(entry.Beg),
            .End = ReadFloats(entry.End),
            .RepetitiveNDS = entry.RepWindStud,
            .RepetitiveIBC = entry.RepIBCCheck,
            .SpeciesGrade = entry.WindStudCombo};
}

}  // namespace kordavan
