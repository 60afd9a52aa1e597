#include "design/OwnSelection.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <span>

#include "core/NumberText.h"
#include "design/CustomValues.h"
#include "design/OnceUser.h"
#include "design/Pretest.h"
#include "materials/SclProducts.h"

namespace kordavan {

namespace {

constexpr std::string_view NoFamily =
    "Please choose the breadths of the member: 2x, 4x, 6x, glu-lam or header, or Round.";
constexpr std::string_view NoDepths =
    "No beam depths in this breadth group meet the requirements (too large or too small).  You may enter a "
    "specific depth to test, select a different breadth group, or specify new values for Fb, Fv, Fc, and E "
    "above.";

constexpr std::array<std::string_view, 5> TimberPicks{"6x", "8x", "10x", "12x", "14x"};

template <typename Texts>
std::vector<std::string_view> ListOf(const Texts& texts)
{
    return {texts.begin(), texts.end()};
}

std::vector<std::string_view> FamilyPicks(SizeFamily family)
{
    switch (family) {
        case SizeFamily::Custom2x:
        case SizeFamily::Custom4x:
        case SizeFamily::GlulamHeader:
        case SizeFamily::CustomGlulam:
        case SizeFamily::CustomSouthernPineGlulam:
            return BreadthTexts(family);
        case SizeFamily::CustomTimber:
            return ListOf(TimberPicks);
        case SizeFamily::Listed:
        case SizeFamily::SouthernPineListed:
        case SizeFamily::Composite:
            break;
    }
    return {};
}

/// Timbers are offered by whole inches; their half inches can be typed.
std::vector<DepthChoice> OfferedDepths(const MemberEntry& entry, SizeFamily family, const Breadth& breadth)
{
    if (family == SizeFamily::Composite) {
        return SclDepths(entry.Product, breadth.Text);
    }
    std::vector<DepthChoice> depths = DepthsOf(family, breadth);
    if (family == SizeFamily::CustomTimber) {
        std::erase_if(depths,
                      [](const DepthChoice& depth) { return depth.Text.find('-') != depth.Text.npos; });
    }
    return depths;
}

/// Square of the least depth in bending, in2.
double LeastSquare(const Session& session, const Breadth& breadth)
{
    const BeamNumbers& beam = session.Numbers;
    const double M = std::max(session.Analysis.MaxMomentApplied, session.Analysis.OverhangMomentApplied);
    const double FbStar = ReadCustomValues(session.Entry.Custom).Fb * beam.Dur *
                          RepetitiveFactor(beam, breadth.Key, session.Entry.Product);
    return 72 * M / (breadth.Net * FbStar);  // S = b d^2 / 6 = 12 M / Fb
}

QuickPick FindPick(Session& session, std::string_view breadthText, UserPort& user)
{
    const SizeFamily family = FamilyOf(session.Entry, session.Numbers.Group);
    QuickPick pick;
    pick.BreadthText = breadthText;
    const std::optional<Breadth> breadth = FindBreadth(family, breadthText);
    if (!breadth) {
        return pick;
    }
    const std::vector<DepthChoice> depths = OfferedDepths(session.Entry, family, *breadth);
    const double square = LeastSquare(session, *breadth);
    const auto start = std::find_if(depths.begin(), depths.end(), [square](const DepthChoice& depth) {
        return depth.Net * depth.Net >= square;
    });
    MemberEntry entry = session.Entry;
    entry.BreadthText = breadthText;
    entry.DepthText = start == depths.end() ? depths.back().Text : start->Text;
    pick.State = WalkToSmallest(session, entry, user);
    if (pick.State == PickState::Filled) {
        pick.DepthText = entry.DepthText;
    }
    return pick;
}

}  // namespace

Outcome EnterValues(Session& session, UserPort& user, std::vector<QuickPick>& picks)
{
    picks = PicksWithoutValues(session);
    const MemberEntry& entry = session.Entry;
    const bool hasFamily = session.Numbers.Group == SpeciesGroup::Scl || entry.Custom.Roundoption ||
                           FamilyOf(entry, session.Numbers.Group) != SizeFamily::Listed;
    if (!hasFamily) {
        return Refuse(user, Refusal(NoFamily, "Wid2x"));
    }
    const bool needsExponent = session.Numbers.Group == SpeciesGroup::Scl && IsCustomScl(entry.Product);
    if (CheckOwnValues(ReadCustomValues(entry.Custom), user) != Outcome::Done ||
        (needsExponent && CheckSclExponent(entry.Custom.Exponent, user) != Outcome::Done)) {
        return Outcome::Refused;
    }
    const MemberTest tested = session.Member;
    const AnalysisResult analysis = session.Analysis;
    OnceUser once(user);
    for (QuickPick& pick : picks) {
        pick = FindPick(session, pick.BreadthText, once);
    }
    session.Member = tested;
    session.Analysis = analysis;
    return Outcome::Done;
}

std::vector<QuickPick> PicksWithoutValues(const Session& session)
{
    std::vector<QuickPick> picks;
    for (const std::string_view breadth : OwnPickBreadths(session.Entry, session.Numbers.Group)) {
        picks.emplace_back();
        picks.back().BreadthText = breadth;
        picks.back().State = PickState::NotEntered;
    }
    return picks;
}

std::vector<std::string_view> OwnPickBreadths(const MemberEntry& entry, SpeciesGroup group)
{
    if (group == SpeciesGroup::Scl) {
        std::vector<std::string_view> breadths;
        for (const SclSize& size : SclProducts()[entry.Product].Sizes) {
            breadths.push_back(size.Breadth);
        }
        return breadths;
    }
    if (entry.Custom.Roundoption) {
        return {};
    }
    return FamilyPicks(FamilyOf(entry, group));
}

std::vector<std::string_view> SuggestDepths(const Session& session)
{
    const SizeFamily family = FamilyOf(session.Entry, session.Numbers.Group);
    const std::optional<Breadth> breadth = FindBreadth(family, session.Entry.BreadthText);
    std::vector<std::string_view> depths;
    if (!breadth || session.Entry.Custom.Roundoption || !(ReadCustomValues(session.Entry.Custom).Fb > 0)) {
        return depths;
    }
    const double square = LeastSquare(session, *breadth);
    for (const DepthChoice& depth : OfferedDepths(session.Entry, family, *breadth)) {
        if (depth.Net * depth.Net >= square) {
            depths.push_back(depth.Text);
        }
    }
    return depths;
}

void TellNoDepths(const Session& session, const std::vector<std::string_view>& depths, UserPort& user)
{
    const SizeFamily family = FamilyOf(session.Entry, session.Numbers.Group);
    if (depths.empty() && FindBreadth(family, session.Entry.BreadthText)) {
        user.Tell(Alert(NoDepths));
    }
}

void TakeOwnPick(MemberEntry& entry, const QuickPick& pick)
{
    if (!pick.DepthText.empty()) {
        entry.BreadthText = pick.BreadthText;
        entry.DepthText = pick.DepthText;
    }
}

std::vector<std::string_view> OwnBreadthChoices(const MemberEntry& entry, SpeciesGroup group)
{
    const bool isListedProduct = group == SpeciesGroup::Scl && !IsCustomScl(entry.Product);
    return isListedProduct ? OwnPickBreadths(entry, group) : BreadthTexts(FamilyOf(entry, group));
}

std::vector<std::string_view> OwnDepthChoices(const MemberEntry& entry, SpeciesGroup group)
{
    const SizeFamily family = FamilyOf(entry, group);
    const std::optional<Breadth> breadth = FindBreadth(family, entry.BreadthText);
    std::vector<std::string_view> texts;
    if (!breadth && family != SizeFamily::Composite) {
        return texts;
    }
    const std::vector<DepthChoice> depths = family == SizeFamily::Composite
                                                ? SclDepths(entry.Product, entry.BreadthText)
                                                : DepthsOf(family, *breadth);
    for (const DepthChoice& depth : depths) {
        texts.push_back(depth.Text);
    }
    return texts;
}

bool HasAllValues(const MemberEntry& entry, SpeciesGroup group)
{
    const DesignValues values = ReadCustomValues(entry.Custom);
    const bool isFamilyChosen = group == SpeciesGroup::Scl || entry.Custom.Roundoption ||
                                FamilyOf(entry, group) != SizeFamily::Listed;
    return isFamilyChosen && values.Fb > 0 && values.Fv > 0 && values.E > 0 && values.FcPerp > 0;
}

void DiscardOwnValues(MemberEntry& entry)
{
    entry.Custom = {};
    entry.Product = 0;
    entry.BreadthText.clear();
    entry.DepthText.clear();
    entry.SpeciesText.clear();
}

void ChooseFamily(MemberEntry& entry, bool CustomEntry::*family)
{
    for (bool CustomEntry::*const each : {&CustomEntry::Wid2x, &CustomEntry::Wid4x, &CustomEntry::Wid6x,
                                          &CustomEntry::WidGLB, &CustomEntry::WidGLBHDR}) {
        entry.Custom.*each = each == family;
    }
    entry.Custom.SPG = entry.Custom.SPG && entry.Custom.WidGLB;
    entry.BreadthText.clear();
    entry.DepthText.clear();
}

}  // namespace kordavan
