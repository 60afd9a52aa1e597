#include "design/QuickPicks.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <vector>

#include "core/NumberText.h"
#include "design/Pretest.h"
#include "materials/Species.h"

namespace kordavan {

namespace {

/// The four sawn rows of a group by the names of their timbers, which only Southern Pine names otherwise.
struct GroupSpecies {
    SpeciesGroup Group;
    std::string_view FirstSecondGrade;
    std::string_view FirstFirstGrade;
    std::string_view SecondSecondGrade;
    std::string_view SecondFirstGrade;
};

constexpr std::array Groups{
    GroupSpecies{SpeciesGroup::HemFirDouglasFir, "HF #2", "HF #1", "DF-L #2", "DF-L #1"},
    GroupSpecies{SpeciesGroup::CedarWesternWoods, "Western Cedar #2", "Western Cedar #1", "Western Woods #2",
                 "Western Woods #1"},
    GroupSpecies{SpeciesGroup::EasternSpecies, "Eastern Hem/Tam #2", "Eastern Hem/Tam #1",
                 "Eastern Spruce #2", "Eastern Spruce #1"},
    GroupSpecies{SpeciesGroup::DouglasFirSouthNorth, "DF South #2", "DF South #1", "DF North #2",
                 "DF North #1"},
    GroupSpecies{SpeciesGroup::SprucePineFir, "SPF #2", "SPF #1", "SPF South #2", "SPF South #1"},
    GroupSpecies{SpeciesGroup::SouthernPine, "Mixed So. Pine #2", "Mixed So. Pine #1", "So. Pine #2",
                 "So. Pine #1"},
    GroupSpecies{SpeciesGroup::Oak, "Red Oak #2", "Red Oak #1", "White Oak #2", "White Oak #1"},
};

constexpr std::array<std::string_view, 6> SecondGradeBreadths{"2x", "(2) 2x", "(3) 2x", "(4) 2x", "4x", "6x"};
constexpr std::array<std::string_view, 4> FirstGradeBreadths{"4x", "6x", "8x", "10x"};
constexpr std::size_t BreadthsOfFirstSpecies = 3;  // its No. 1 row ends at 8x

static_assert(2 * SecondGradeBreadths.size() + BreadthsOfFirstSpecies + FirstGradeBreadths.size() +
                  GlulamLadder.size() ==
              QuickPickCount);

const GroupSpecies& SpeciesOf(SpeciesGroup group)
{
    const auto* const found = std::find_if(Groups.begin(), Groups.end(),
                                           [group](const GroupSpecies& row) { return row.Group == group; });
    return found == Groups.end() ? Groups.front() : *found;
}

bool IsSouthernPine(const BeamNumbers& beam)
{
    return beam.Group == SpeciesGroup::SouthernPine;
}

/// Combinations with tension laminations on the bottom for simple spans, balanced ones where moments turn.
std::string_view GlulamOf(const BeamNumbers& beam)
{
    const bool isBalanced = beam.IsOverhanging() || beam.IsContinuous();
    if (IsSouthernPine(beam)) {
        return isBalanced ? "GLB 24F-V5 SP/SP" : "GLB 24F-V3 SP/SP";
    }
    return isBalanced ? "GLB 24F-V8 DF/DF" : "GLB 24F-V4 DF/DF";
}

class CellWriter {
public:
    explicit CellWriter(SizeFamily sizeFamily) : family(sizeFamily) {}

    void AddRow(std::string_view species, std::span<const std::string_view> breadths)
    {
        for (const std::string_view text : breadths) {
            const std::optional<Breadth> breadth = FindBreadth(family, text);
            const SpeciesRow* const row = breadth ? FindSpeciesForBreadth(breadth->Key, species) : nullptr;
            cells[count].BreadthText = text;
            cells[count].SpeciesText = row == nullptr ? species : row->SpeciesName;
            ++count;
        }
    }

    const QuickPicks& Cells() const { return cells; }

private:
    SizeFamily family;
    QuickPicks cells;
    std::size_t count = 0;
};

/// Nominal depths by 2 in. steps of net depth. From 13.5 in. up the square of the estimate carries the size
/// factor (12/d)^(1/9) of the step that it is compared with.
struct LadderBound {
    double Net;  // in.
    double DepthFactor;
};

constexpr std::array LadderBounds{
    LadderBound{3.5, 1},  LadderBound{5.5, 1},      LadderBound{7.5, 1},      LadderBound{9.5, 1},
    LadderBound{11.5, 1}, LadderBound{13.5, 0.987}, LadderBound{15.5, 0.972}, LadderBound{17.5, 0.959},
};
constexpr double FirstNominalDepth = 6;  // of what is between the first two bounds
constexpr double NominalRise = 2;

struct Estimate {
    PickState State = PickState::Filled;
    double Nominal = 0;  // in.
    double Net = 0;      // in.
};

Estimate EstimateDepth(const BeamNumbers& beam, double momentFtLb, const Breadth& breadth, double Fb)
{
    constexpr double repetitive = 1.15;
    constexpr double wet = 0.85;
    const double P = (beam.Rep ? repetitive : 1) * breadth.Net * Fb * (beam.Wet ? wet : 1);
    const double square = 72 * momentFtLb / P;  // S = b d^2 / 6 = 12 M / Fb
    const auto passed = std::count_if(
        LadderBounds.begin(), LadderBounds.end(),
        [square](const LadderBound& bound) { return std::sqrt(square * bound.DepthFactor) >= bound.Net; });
    if (passed == 0) {
        return {.State = PickState::UnderLadder};
    }
    const bool isPast = static_cast<std::size_t>(passed) == LadderBounds.size();
    return {.State = isPast ? PickState::PastLadder : PickState::Filled,
            .Nominal = FirstNominalDepth + NominalRise * static_cast<double>(passed - 1),
            .Net = std::sqrt(square)};
}

/// The first of the cell's own depths that is not below the estimate, or its last.
std::string_view StartDepth(const std::vector<DepthChoice>& depths, const Estimate& estimate, BreadthKey key)
{
    const auto reaches = [&](const DepthChoice& depth) {
        return key == BreadthKey::Glulam ? depth.Net >= estimate.Net : Val(depth.Text) >= estimate.Nominal;
    };
    const auto found = std::find_if(depths.begin(), depths.end(), reaches);
    return found == depths.end() ? depths.back().Text : found->Text;
}

void FillCell(Session& session, UserPort& user, QuickPick& cell)
{
    const BeamNumbers& beam = session.Numbers;
    const std::optional<Breadth> breadth = FindBreadth(FamilyOf(beam.Group), cell.BreadthText);
    const SpeciesRow* const row = breadth ? FindSpecies(breadth->Key, cell.SpeciesText) : nullptr;
    if (row == nullptr) {
        return;
    }
    const Estimate estimate = EstimateDepth(beam, session.Analysis.MaxMomentApplied, *breadth, row->Fb);
    if (estimate.State != PickState::Filled && breadth->Key != BreadthKey::Glulam) {
        cell.State = estimate.State;
        return;
    }
    MemberEntry entry;
    entry.BreadthText = cell.BreadthText;
    entry.SpeciesText = cell.SpeciesText;
    entry.DepthText = StartDepth(DepthsOf(FamilyOf(beam.Group), *breadth), estimate, breadth->Key);
    cell.State = WalkToSmallest(session, entry, user);
    if (cell.State == PickState::Filled) {
        cell.DepthText = entry.DepthText;
    }
}

std::string ValuesInUse(const BeamNumbers& beam)
{
    if (!beam.InGrade || beam.Nds == Edition::None) {
        return {};
    }
    std::string text = "Using NDS ";
    text += EditionYear(beam.Nds);
    return text + " Values";
}

/// Timbers and glulams, which repetitive use does not raise.
bool IsUnfitForRepetition(const QuickPick& pick, SizeFamily family)
{
    const std::optional<Breadth> breadth = FindBreadth(family, pick.BreadthText);
    return breadth && (breadth->Key == BreadthKey::SixBy || breadth->Key == BreadthKey::Glulam);
}

std::string_view WhyEmpty(PickState state)
{
    switch (state) {
        case PickState::UnderLadder:
            return "Empty: the estimated depth is under 3.5 in. A small size can be typed below and tested.";
        case PickState::PastLadder:
            return "Empty: the estimated depth is past 17.5 in. A size can be typed below and tested.";
        case PickState::NonePasses:
            return "Empty: no depth of this breadth passes every check.";
        case PickState::NotTested:
            return "Empty: the test was refused.";
        case PickState::NotEntered:
            return "Empty: the values have not been entered.";
        case PickState::Filled:
            break;
    }
    return {};
}

}  // namespace

PickFace FaceOf(const QuickPick& pick, SizeFamily family, bool isRepetitive)
{
    PickFace face;
    face.Name = pick.BreadthText;
    for (const std::string_view part : {std::string_view(pick.DepthText), pick.SpeciesText}) {
        if (!part.empty()) {
            face.Name += " ";
            face.Name += part;
        }
    }
    face.IsFaded = isRepetitive && IsUnfitForRepetition(pick, family);
    if (pick.DepthText.empty()) {
        face.Tip = WhyEmpty(pick.State);
    } else {
        face.Tip = face.IsFaded ? std::string(SelectionScreenTexts::RepQualify) : face.Name;
    }
    return face;
}

bool IsEntered(const QuickPick& pick, const MemberEntry& entry)
{
    return !pick.DepthText.empty() && pick.BreadthText == entry.BreadthText &&
           pick.DepthText == entry.DepthText && pick.SpeciesText == entry.SpeciesText;
}

QuickPicks QuickPickCells(const BeamNumbers& beam)
{
    const GroupSpecies& species = SpeciesOf(beam.Group);
    const std::span<const std::string_view> firstGrade(FirstGradeBreadths);
    CellWriter writer(FamilyOf(beam.Group));
    writer.AddRow(species.FirstSecondGrade, SecondGradeBreadths);
    writer.AddRow(species.FirstFirstGrade, firstGrade.first(BreadthsOfFirstSpecies));
    writer.AddRow(species.SecondSecondGrade, SecondGradeBreadths);
    writer.AddRow(species.SecondFirstGrade, firstGrade);
    writer.AddRow(GlulamOf(beam), GlulamLadderOf(beam.Group));
    return writer.Cells();
}

QuickPicks FindQuickPicks(Session& session, UserPort& user)
{
    const MemberTest tested = session.Member;
    const AnalysisResult analysis = session.Analysis;
    QuickPicks cells = QuickPickCells(session.Numbers);
    for (QuickPick& cell : cells) {
        FillCell(session, user, cell);
    }
    session.Member = tested;
    session.Analysis = analysis;
    return cells;
}

SelectionTexts MakeSelectionTexts(const Session& session)
{
    const AnalysisResult& analysis = session.Analysis;
    SelectionTexts texts;
    texts.LabelINGRADE = ValuesInUse(session.Numbers);
    texts.MOMENT = FormatNumber(analysis.MaxMomentApplied, "#,###") + " ft-lbs";
    texts.Reac1 = "Reaction 1 = " + FormatNumber(analysis.R1Applied, "#,##0");
    texts.Reac2 = "Reaction 2 = " + FormatNumber(analysis.R2Applied, "#,###");
    texts.GlulamHeads = GlulamLadderOf(session.Numbers.Group);
    texts.RepQualify = session.Numbers.Rep ? SelectionScreenTexts::RepQualify : std::string_view{};
    texts.WoodStatisPanel = WoodResultLine(session.Selection);
    return texts;
}

}  // namespace kordavan
