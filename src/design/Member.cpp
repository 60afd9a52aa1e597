#include "design/Member.h"

#include <array>
#include <cmath>
#include <optional>

#include "core/NumberText.h"
#include "materials/SclProducts.h"
#include "materials/Species.h"

namespace kordavan {

namespace {

constexpr std::string_view BadBreadth =
    "Please enter a valid numeric BREADTH in the same format as shown on the 'quick pick' button headings "
    "below.  Include spaces, if any, and a hyphen before fractions (example: 3-1/2x) and an 'x' immediately "
    "following the breadth.\n"
    "NOTE: Custom Timber nominal breadths and depths may be entered in half inch increments using the CUSTOM "
    "VALUES form.";

constexpr std::string_view BadSpecies =
    "Please enter a Species and Grade in exactly the same format as shown on the 'quick pick' button "
    "side-headings below.  Include any spaces between words and numbers.";

constexpr std::string_view BadDepth =
    "Please enter a valid numeric DEPTH in the same format as shown on the 'quick pick' buttons.  Your entry "
    "must also be a beam size in the Kordavan database.  Please enter NOMINAL lumber sizes for solid sawn "
    "lumber and timbers.\n"
    "2xs and 3xs:  4 to 14 in. (2 in. increments)\n"
    "4xs:  4 to 16 in. (2 in. increments)\n"
    "5x+:  6 to 16 in. (2 in. increments)\n"
    "Glu-Lams: 9 to 54 in. (1-1/2 in. increments)\n"
    "Glu-Lam Headers: 9 to 18 in. (1-1/2 in. increments)\n"
    "So. Pine Glu-Lams: 9-5/8 to 30-1/4 in.\n"
    "(1-3/8 in. increments)";

constexpr std::string_view BadSclBreadth =
    "Please check Breadth entry for proper format and correct beam breadth for this type of members. Add a "
    "hyphen before fractions with no spaces and add a small 'x' after the breadth (example: 1-3/4x).";
constexpr std::string_view BadSclDepth =
    "Please check Depth entry for proper format and correct beam depth for this type of members. Add a "
    "hyphen before fractions with no spaces (example: 11-7/8).";

constexpr std::string_view BadDiameter = "Please enter a valid numeric value for the diameter in inches.";

/// The boxes of the selection screen; those of the custom values screen bear other names.
struct SizeBoxes {
    std::string_view Breadth;
    std::string_view Depth;
    std::string_view Species;
};

constexpr SizeBoxes OwnSizeBoxes{"Text6", "Text7", "Text5"};

SizeBoxes BoxesOf(SpeciesGroup group)
{
    return HasOwnValues(group) ? OwnSizeBoxes : SizeBoxes{"Text1", "Text2", "Text3"};
}

SizeFamily FamilyOf(const CustomEntry& custom)
{
    if (custom.WidGLB) {
        return custom.SPG ? SizeFamily::CustomSouthernPineGlulam : SizeFamily::CustomGlulam;
    }
    if (custom.WidGLBHDR) {
        return SizeFamily::GlulamHeader;
    }
    if (custom.Wid6x) {
        return SizeFamily::CustomTimber;
    }
    if (custom.Wid4x) {
        return SizeFamily::Custom4x;
    }
    return custom.Wid2x ? SizeFamily::Custom2x : SizeFamily::Listed;
}

Outcome IdentifyRound(const MemberEntry& entry, UserPort& user, MemberCandidate& candidate)
{
    const std::string& diameter = entry.Custom.Diam;
    if (!IsNumeric(diameter) || Val(diameter) <= 0) {
        return Refuse(user, Refusal(BadDiameter, "Diam"));
    }
    candidate.Round = true;
    candidate.BreadthKey = BreadthKey::SixBy;
    candidate.B = Val(diameter);
    candidate.D = candidate.B;
    return Outcome::Done;
}

void TakeDepth(const Depth& depth, MemberCandidate& candidate)
{
    candidate.D = depth.Net;
    candidate.NextSmallerDepth = depth.NextSmaller;
    candidate.NextSmallerDepthText = depth.NextSmallerText;
    candidate.NextLargerDepthText = depth.NextLargerText;
}

/// A product of the user's own bears the name entered for it.
std::string ProductName(const MemberEntry& entry)
{
    const bool isNamed = IsCustomScl(entry.Product) && !entry.SpeciesText.empty();
    return isNamed ? entry.SpeciesText : std::string(SclProducts()[entry.Product].Name);
}

Outcome IdentifyComposite(const MemberEntry& entry, UserPort& user, MemberCandidate& candidate)
{
    const std::optional<Breadth> breadth = FindBreadth(SizeFamily::Composite, entry.BreadthText);
    if (!breadth || !IsMadeIn(entry.Product, entry.BreadthText)) {
        return Refuse(user, Refusal(BadSclBreadth, OwnSizeBoxes.Breadth));
    }
    const std::optional<Depth> depth = FindSclDepth(entry.Product, entry.BreadthText, entry.DepthText);
    if (!depth) {
        return Refuse(user, Refusal(BadSclDepth, OwnSizeBoxes.Depth));
    }
    candidate.SpeciesText = ProductName(entry);
    candidate.BreadthKey = breadth->Key;
    candidate.Product = entry.Product;
    candidate.B = breadth->Net;
    TakeDepth(*depth, candidate);
    return Outcome::Done;
}

Outcome IdentifySize(const MemberEntry& entry, SpeciesGroup group, UserPort& user, MemberCandidate& candidate)
{
    const SizeBoxes boxes = BoxesOf(group);
    const std::optional<Breadth> breadth = FindBreadth(candidate.Family, entry.BreadthText);
    if (!breadth) {
        return Refuse(user, Refusal(BadBreadth, boxes.Breadth));
    }
    const bool listed =
        group == SpeciesGroup::Custom || FindSpecies(breadth->Key, entry.SpeciesText) != nullptr;
    if (!listed) {
        return Refuse(user, Refusal(BadSpecies, boxes.Species));
    }
    const std::optional<Depth> depth = FindDepth(candidate.Family, *breadth, entry.DepthText);
    if (!depth) {
        return Refuse(user, Refusal(BadDepth, boxes.Depth));
    }
    candidate.BreadthKey = breadth->Key;
    candidate.B = breadth->Net;
    TakeDepth(*depth, candidate);
    return Outcome::Done;
}

}  // namespace

SizeFamily FamilyOf(const MemberEntry& entry, SpeciesGroup group)
{
    if (group == SpeciesGroup::Scl) {
        return SizeFamily::Composite;
    }
    return group == SpeciesGroup::Custom ? FamilyOf(entry.Custom) : FamilyOf(group);
}

Outcome IdentifyMember(const MemberEntry& entry, SpeciesGroup group, UserPort& user,
                       MemberCandidate& candidate)
{
    candidate = MemberCandidate{};
    candidate.BreadthText = entry.BreadthText;
    candidate.DepthText = entry.DepthText;
    candidate.SpeciesText = entry.SpeciesText;
    candidate.Family = FamilyOf(entry, group);
    if (group == SpeciesGroup::Scl) {
        return IdentifyComposite(entry, user, candidate);
    }
    const bool isRound = group == SpeciesGroup::Custom && entry.Custom.Roundoption;
    return isRound ? IdentifyRound(entry, user, candidate) : IdentifySize(entry, group, user, candidate);
}

}  // namespace kordavan
