#include "design/SteelTexts.h"

#include <algorithm>
#include <array>

#include "core/NumberText.h"

namespace kordavan {

namespace {

constexpr std::string_view DepthAndWeight = "Depth x Weight";
constexpr std::string_view NoneFound = "No beams from the database meet the requirements";

struct FamilyTexts {
    SteelFamily Family;
    std::string_view Parts;
    std::string_view Example;
    std::string_view Name;
    std::string_view Grade;
    std::string_view Grade50;
};

constexpr std::array Families{
    FamilyTexts{SteelFamily::W, DepthAndWeight, "W 8x 18", "Wide flange", "   36 ksi Wide Flange Steel",
                "   50 ksi Wide Flange Steel"},
    FamilyTexts{SteelFamily::S, DepthAndWeight, "S 8x 18.4", "Standard", "   36 ksi Std. Flange Steel",
                "   50 ksi Std. Flange Steel"},
    FamilyTexts{SteelFamily::C, DepthAndWeight, "C 8x 8.5", "Channel", "   36 ksi Steel Channel",
                "   50 ksi Steel Channel"},
    FamilyTexts{SteelFamily::MC, DepthAndWeight, "MC 8x 18.75", "Miscellaneous Channel",
                "   36 ksi Steel Misc Channel", "   50 ksi Steel Misc Channel"},
    FamilyTexts{SteelFamily::Tube, "Depth x Breadth x Wall Thickness", "T 8x 6x 1/4", "Structural Tube",
                "   46 ksi Steel Tube", "   50 ksi Steel Tube"},
    FamilyTexts{SteelFamily::Plate, "(Quantity > 1) - Depth x Breadth", "PL 9x 5/8",
                "Plate(s) for flitch beam", "   36 ksi steel flitch plate(s) ",
                "   50 ksi steel flitch plate(s) "},
    FamilyTexts{SteelFamily::DoublePlate, "(Quantity > 1) - Depth x Breadth", "(2) PL 9x 5/8",
                "Plate(s) for flitch beam", "   36 ksi steel flitch plate(s) ",
                "   50 ksi steel flitch plate(s) "},
};

const FamilyTexts& TextsOf(SteelFamily family)
{
    return *std::find_if(Families.begin(), Families.end(),
                         [family](const FamilyTexts& row) { return row.Family == family; });
}

/// The larger unbraced entry as it was typed.
std::string_view LargerUnbracedEntry(const BeamProblem& problem)
{
    const bool overhangIsLarger =
        problem.Support == SupportCondition::Overhanging && Val(problem.CantUBLtext) > Val(problem.UBLtext);
    return overhangIsLarger ? problem.CantUBLtext : problem.UBLtext;
}

std::string BracingNote(const SteelCriteria& criteria, const BeamProblem& problem)
{
    if (criteria.Family == SteelFamily::Tube) {
        return "Compression flange lateral support not required";
    }
    if (IsPlate(criteria.Family)) {
        return "Top loading and full lateral support required";
    }
    if (criteria.ProposedUBL == 0 && problem.UBLtext != AnyUnbracedLength) {
        return "Laterally supported compression flange";
    }
    std::string note = "Proposed Max Unbraced Length is ";
    note += LargerUnbracedEntry(problem);
    return note + " ft";
}

}  // namespace

SteelSelectionTexts MakeSteelSelectionTexts(const Session& session)
{
    const AnalysisResult& analysis = session.Analysis;
    const SteelSelection& picks = session.SteelPicks;
    const FamilyTexts& family = TextsOf(picks.Criteria.Family);
    return {.Label4 = family.Parts,
            .StlFormatLabel = family.Example,
            .Label6 = family.Name,
            .StlMoment = "Max Moment = " + FormatNumber(analysis.MaxMomentApplied, "#,###") + " ft-lbs",
            .StlReac1 = "Reaction 1 = " + FormatNumber(analysis.R1Applied, "#,##0"),
            .StlReac2 = "Reaction 2 = " + FormatNumber(analysis.R2Applied, "#,###"),
            .StlStatis = picks.Slots.empty() ? std::string(NoneFound) : CriteriaResultLine(session.Selection),
            .StlPanel = BracingNote(picks.Criteria, session.Problem)};
}

std::string DescribeSlot(const SteelSlot& slot)
{
    std::string text(slot.StlDepLab);
    text += " in. deep, ";
    text += slot.StlWidLab;
    return text + " in. wide, unbraced " + slot.UBLlab + ", section " + slot.StlSecPerct + ", shear " +
           slot.StlShearPerct;
}

std::vector<std::string_view> SteelDatabase(SteelFamily family)
{
    std::vector<std::string_view> names;
    for (const SteelShape& shape : ShapesOf(family)) {
        if (HasSection(shape)) {
            names.push_back(shape.ShapeName);
        }
    }
    return names;
}

std::string_view SteelGradeText(const SteelCriteria& criteria)
{
    const FamilyTexts& family = TextsOf(criteria.Family);
    return criteria.ksi50 ? family.Grade50 : family.Grade;
}

std::string SteelModifiersText(const SteelCriteria& criteria, const SteelTestState& state)
{
    if (criteria.Family == SteelFamily::Tube) {
        return "No maximum unbraced length.";
    }
    if (IsPlate(criteria.Family)) {
        return "Full lateral bracing required.";
    }
    return "Maximum Unbraced Length: " + state.MaxUnbracedText;
}

}  // namespace kordavan
