#include "design/EntryChoices.h"

#include <algorithm>
#include <optional>

#include "design/QuickPicks.h"
#include "materials/Species.h"

namespace kordavan {

namespace {

void AddOnce(std::vector<std::string_view>& texts, std::string_view text)
{
    if (std::find(texts.begin(), texts.end(), text) == texts.end()) {
        texts.push_back(text);
    }
}

void AddDepths(SizeFamily family, std::string_view breadthText, std::vector<std::string_view>& texts)
{
    const std::optional<Breadth> breadth = FindBreadth(family, breadthText);
    if (!breadth) {
        return;
    }
    for (const DepthChoice& depth : DepthsOf(family, *breadth)) {
        AddOnce(texts, depth.Text);
    }
}

/// The group's sawn species by the names of its quick picks, which those of other moisture begin with, and
/// the glulams of its woods.
bool IsOfGroup(const SpeciesRow& row, const QuickPicks& cells, SpeciesGroup group)
{
    if (row.Key == BreadthKey::Glulam) {
        return row.SpeciesName.ends_with(" SP/SP") == (group == SpeciesGroup::SouthernPine);
    }
    return std::any_of(cells.begin(), cells.end(), [&row](const QuickPick& cell) {
        return row.SpeciesName.starts_with(cell.SpeciesText);
    });
}

}  // namespace

std::vector<std::string_view> BreadthChoices(const BeamNumbers& beam)
{
    std::vector<std::string_view> texts;
    for (const Breadth& breadth : BreadthsOf(FamilyOf(beam.Group))) {
        if (breadth.Key != BreadthKey::Glulam) {
            texts.push_back(breadth.Text);
        }
    }
    for (const QuickPick& cell : QuickPickCells(beam)) {
        AddOnce(texts, cell.BreadthText);
    }
    return texts;
}

std::vector<std::string_view> DepthChoices(const BeamNumbers& beam, std::string_view breadthText)
{
    std::vector<std::string_view> texts;
    AddDepths(FamilyOf(beam.Group), breadthText, texts);
    if (texts.empty()) {
        for (const std::string_view breadth : BreadthChoices(beam)) {
            AddDepths(FamilyOf(beam.Group), breadth, texts);
        }
    }
    return texts;
}

std::vector<std::string_view> SpeciesChoices(const BeamNumbers& beam, std::string_view breadthText)
{
    const QuickPicks cells = QuickPickCells(beam);
    std::vector<std::string_view> texts;
    for (const SpeciesRow& row : SpeciesRows()) {
        if (IsOfGroup(row, cells, beam.Group)) {
            AddOnce(texts, row.SpeciesName);
        }
    }
    if (const std::optional<Breadth> breadth = FindBreadth(FamilyOf(beam.Group), breadthText)) {
        std::stable_partition(texts.begin(), texts.end(), [&breadth](std::string_view species) {
            return FindSpecies(breadth->Key, species) != nullptr;
        });
    }
    return texts;
}

}  // namespace kordavan
