#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "core/Message.h"
#include "design/QuickPicks.h"
#include "design/Session.h"

namespace kordavan {

inline constexpr std::size_t OwnPickCount = 5;
inline constexpr std::size_t SuggestedDepthCount = 12;

/// The selection of a member of the user's own values, of composite lumber or custom wood.
///
/// Entering the values checks them and finds the quick picks: each breadth of the product or family with its
/// smallest depth that passes. Refused without them; the picks are then empty.
Outcome EnterValues(Session& session, UserPort& user, std::vector<QuickPick>& picks);

/// The quick picks as they stand while the values have not been entered.
std::vector<QuickPick> PicksWithoutValues(const Session& session);

/// The breadths that are offered as quick picks; none of a round member and of the user's own products.
std::vector<std::string_view> OwnPickBreadths(const MemberEntry& entry, SpeciesGroup group);

/// The depths of the breadth entered that are deep enough in bending, from small to large: 72 M / (b Fb*) is
/// the square of the least depth, with the greatest moment M in ft-lb and Fb* for duration and repetition.
std::vector<std::string_view> SuggestDepths(const Session& session);

/// Tells that no depth of the breadth entered is deep enough, where one is entered and its list is empty.
void TellNoDepths(const Session& session, const std::vector<std::string_view>& depths, UserPort& user);

/// Puts a quick pick into the size boxes; an empty one changes nothing.
void TakeOwnPick(MemberEntry& entry, const QuickPick& pick);

/// The exact texts that the size boxes take.
std::vector<std::string_view> OwnBreadthChoices(const MemberEntry& entry, SpeciesGroup group);
std::vector<std::string_view> OwnDepthChoices(const MemberEntry& entry, SpeciesGroup group);

/// True when every value is there, so that picks can be found without a complaint.
bool HasAllValues(const MemberEntry& entry, SpeciesGroup group);

/// Takes back all values, options, names and sizes of the user's own.
void DiscardOwnValues(MemberEntry& entry);

/// Chooses one family of breadths and takes back the others with the size that they had.
void ChooseFamily(MemberEntry& entry, bool CustomEntry::*family);

}  // namespace kordavan
